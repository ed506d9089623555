// SPDX-License-Identifier: MIT
import { create, scrollWithin } from './dom.ts';
import { paragraphsOf } from './paragraphs.ts';
import type { PanelContent } from './sidePanel.ts';
import type { Ui } from './ui.ts';

const PAGES_AT_ONCE = 10;

/** The book as plain text, in sections of a few pages around the open one. */
export function textPanel(ui: Ui): PanelContent {
  const { reader, say, texts } = ui;
  const text = create('div', { className: 'text', lang: '' });
  const earlier = create('button', { type: 'button', className: 'plain' }, say('earlier'));
  const later = create('button', { type: 'button', className: 'plain' }, say('later'));
  const element = create('div', { className: 'panel-body' }, earlier, text, later);
  let first = Math.floor((reader.place - 1) / PAGES_AT_ONCE) * PAGES_AT_ONCE + 1;

  const show = (from: number) => {
    first = from;
    const last = Math.min(from + PAGES_AT_ONCE - 1, reader.pageCount);
    text.replaceChildren(...range(from, last).map((place) => section(ui, place)));
    earlier.hidden = from === 1;
    later.hidden = last === reader.pageCount;
  };
  const headingOf = (place: number) => text.children[place - first]?.querySelector('h3');
  const scrollTo = (place: number) => {
    const heading = headingOf(place);
    if (heading) scrollWithin(element, heading);
  };
  const reveal = (place: number) => {
    headingOf(place)?.focus({ preventScroll: true });
    scrollTo(place);
    // The texts above it come from the same file, and move it when they come.
    void texts.linesOf(place).then(() => scrollTo(place));
  };
  const showFrom = (from: number, heading: number) => {
    show(from);
    reveal(heading);
  };
  earlier.addEventListener('click', () => showFrom(first - PAGES_AT_ONCE, first - 1));
  later.addEventListener('click', () => showFrom(first + PAGES_AT_ONCE, first + PAGES_AT_ONCE));
  show(first);
  return { element, focus: () => reveal(reader.place) };
}

function section({ reader, names, say, texts }: Ui, place: number): HTMLElement {
  const heading = create('h3', { tabIndex: -1 }, say('page', names.label(place)));
  const element = create('section', {}, heading);
  const { width, height } = reader.book.pages[place - 1]!;
  void texts.linesOf(place).then((lines) => {
    const paragraphs = paragraphsOf(lines, height > 0 ? width / height : reader.book.shape);
    element.append(...paragraphs.map((text) => create('p', {}, text)));
    if (paragraphs.length === 0) element.append(create('p', { className: 'none' }, say('noText')));
  });
  return element;
}

const range = (from: number, to: number): number[] => Array.from({ length: to - from + 1 }, (_, index) => from + index);
