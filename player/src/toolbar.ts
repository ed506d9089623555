// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { clamp } from './geometry.ts';
import { onResize } from './onResize.ts';
import { makeTool } from './tool.ts';
import type { Ui } from './ui.ts';

export interface RankedTool {
  readonly tool: HTMLButtonElement;
  readonly rank: number; // those with low ranks stay in the bar when it is narrow
}

const MOST_OF_TITLE = 0.34; // of the bar's width; more only where tools leave it

/** Title, logo and tools. Tools that do not fit go into a menu at the end of the bar. */
export function makeToolbar(ui: Ui, title: string, tools: readonly RankedTool[]): HTMLElement {
  // Inside another page, landmarks and the first heading are that page's.
  const [bar, level] = ui.ownsPage ? (['header', 'h1'] as const) : (['div', 'h2'] as const);
  const heading = create(level, { className: 'title' }, title);
  if (!ui.reader.settings.toolbar) return create(bar, { className: 'spoken' }, heading);
  const group = create('div', { className: 'tools', role: 'group', 'aria-label': ui.say('tools') });
  const header = create(bar, { className: 'bar' }, ...logo(ui), heading, group);
  const menu = new Menu(ui);
  let shown = -1;
  const fit = () => {
    const room = roomFor(header, tools.length);
    if (room !== shown) spread(group, menu, tools, (shown = room));
  };
  ui.signal.addEventListener('abort', onResize(header, fit));
  return header;
}

function roomFor(header: HTMLElement, wanted: number): number {
  const style = getComputedStyle(header);
  const tool = parseFloat(style.getPropertyValue('--tool')) || 40;
  const logoWidth = header.querySelector('.logo')?.clientWidth ?? 0;
  const title = Math.min(header.querySelector('.title')!.scrollWidth + 32, header.clientWidth * MOST_OF_TITLE);
  const free = header.clientWidth - parseFloat(style.paddingLeft) * 2 - logoWidth - title;
  return clamp(Math.floor(free / tool), 1, wanted);
}

function spread(group: HTMLElement, menu: Menu, tools: readonly RankedTool[], room: number): void {
  const inBar = room >= tools.length ? room : room - 1; // the menu's own button takes a place
  const kept = [...tools].sort((one, other) => one.rank - other.rank).slice(0, inBar);
  const focused = document.activeElement;
  group.replaceChildren(...tools.filter((each) => kept.includes(each)).map(({ tool }) => tool));
  const others = tools.filter((each) => !kept.includes(each)).map(({ tool }) => tool);
  menu.hold(others);
  if (others.length > 0) group.append(menu.button, menu.element);
  if (focused instanceof HTMLElement && group.contains(focused)) focused.focus();
}

class Menu {
  readonly button: HTMLButtonElement;
  readonly element = create('div', { className: 'menu', hidden: true });

  constructor({ say, signal }: Ui) {
    this.button = makeTool('more', say('more'), () => this.show(this.element.hidden));
    this.button.classList.add('more');
    this.show(false);
    const closeOutside = (target: EventTarget | null) => {
      const isInside = [this.element, this.button].some((each) => each.contains(target as Node));
      if (target && !isInside) this.show(false);
    };
    document.addEventListener('pointerdown', ({ target }) => closeOutside(target), { signal });
    this.element.addEventListener('focusout', ({ relatedTarget }) => closeOutside(relatedTarget));
    for (const each of [this.element, this.button] as HTMLElement[])
      each.addEventListener('keydown', (event) => {
        if (event.key !== 'Escape' || this.element.hidden) return;
        event.stopPropagation();
        this.leave();
      });
    // Before the tool's own answer, so that a panel gives the focus back to what stays visible.
    this.element.addEventListener('click', (event) => event.target !== this.element && this.leave(), { capture: true });
  }

  hold(tools: readonly HTMLElement[]): void {
    this.element.replaceChildren(...tools);
    this.show(false);
  }

  private leave(): void {
    this.show(false);
    this.button.focus();
  }

  private show(visible: boolean): void {
    this.element.hidden = !visible;
    this.button.setAttribute('aria-expanded', String(visible));
    if (visible) this.element.querySelector('button')?.focus();
  }
}

function logo({ reader: { settings } }: Ui): HTMLElement[] {
  if (!settings.logo) return [];
  const picture = create('img', { src: settings.logo, alt: settings.logoLink || 'Logo' });
  const isWebLink = /^https?:/i.test(settings.logoLink);
  const element = isWebLink
    ? create(
        'a',
        { className: 'logo', href: settings.logoLink, target: settings.linkTarget, rel: 'noopener noreferrer' },
        picture,
      )
    : create('span', { className: 'logo' }, picture);
  picture.addEventListener('error', () => element.remove());
  return [element];
}
