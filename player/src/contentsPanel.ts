// SPDX-License-Identifier: MIT
import type { OutlineItem } from './book.ts';
import { create, scrollWithin } from './dom.ts';
import { icon } from './icons.ts';
import { makePageLink } from './pageLink.ts';
import type { PanelContent } from './sidePanel.ts';
import type { Ui } from './ui.ts';

type Links = Map<OutlineItem, HTMLElement>;

/** The outline as a tree, open where the book lies open when it is made; what is open then is marked in it. */
export function contentsPanel(ui: Ui): PanelContent {
  const { reader } = ui;
  const openPath = () => pathTo(reader.book.outline, reader.places[reader.places.length - 1] ?? 1);
  const links: Links = new Map();
  const element = create('div', { className: 'panel-body contents' }, branch(ui, reader.book.outline, openPath(), links));
  const mark = () => {
    const shown = openPath().flatMap((item) => links.get(item) ?? []).filter((link) => element.contains(link));
    const here = shown[shown.length - 1];
    for (const link of links.values()) if (link !== here) link.removeAttribute('aria-current');
    here?.setAttribute('aria-current', 'true');
  };
  mark();
  element.addEventListener('click', mark); // a branch that is opened is made anew
  const stop = reader.on('turned', mark);
  const current = (): HTMLElement | null => element.querySelector<HTMLElement>('[aria-current]') ?? element.querySelector('a');
  const reveal = () => {
    const item = current();
    if (item) scrollWithin(element, item, 0.5);
  };
  return { element, focus: () => current()?.focus({ preventScroll: true }), shown: reveal, closed: stop };
}

/** The items that lead to the last one that starts at or before a place. */
export function pathTo(items: readonly OutlineItem[], place: number): OutlineItem[] {
  let path: OutlineItem[] = [];
  for (const item of items) {
    const deeper = pathTo(item.items ?? [], place); // left out by other writers
    const reached = item.place > 0 && item.place <= place ? [item] : [];
    const found = deeper.length > 0 ? [item, ...deeper] : reached;
    if (startOf(found) >= startOf(path)) path = found.length > 0 ? found : path;
  }
  return path;
}

const startOf = (path: readonly OutlineItem[]): number => path[path.length - 1]?.place ?? 0;

function branch(ui: Ui, items: readonly OutlineItem[], path: readonly OutlineItem[], links: Links): HTMLElement {
  return create('ul', {}, ...items.map((item) => create('li', {}, ...entry(ui, item, path, links))));
}

function entry(ui: Ui, item: OutlineItem, path: readonly OutlineItem[], links: Links): HTMLElement[] {
  const title = leader(ui, item);
  if (item.place > 0) links.set(item, title);
  const { items = [] } = item;
  if (items.length === 0)
    return [create('div', { className: 'row' }, create('span', { className: 'no-twist' }), title)];
  const children = create('div', { className: 'branch', hidden: true });
  const twist = create(
    'button',
    { type: 'button', className: 'twist', 'aria-label': ui.say('open', item.title) },
    icon('expand'),
  );
  const open = (isOpen: boolean) => {
    twist.setAttribute('aria-expanded', String(isOpen));
    children.hidden = !isOpen;
    // Long outlines cost only what is looked at.
    children.replaceChildren(...(isOpen ? [branch(ui, items, path, links)] : []));
  };
  twist.addEventListener('click', () => open(children.hidden));
  open(path.includes(item) && item !== path[path.length - 1]);
  return [create('div', { className: 'row' }, twist, title), children];
}

function leader({ reader, names, panel, ownsPage }: Ui, { title, place }: OutlineItem): HTMLElement {
  if (place === 0) return create('span', { className: 'leads-nowhere' }, title);
  const label = create('span', { className: 'number' }, names.label(place));
  const link = makePageLink(place, ownsPage, () => {
    panel.makeWay();
    reader.goTo(place);
  });
  link.append(create('span', {}, title), ' ', label);
  return link;
}
