// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

const MOST_DOTS = 9; // odd, so that the open page can be in the middle
/** From the open page; dots further away give way where there is little width. */
const NEAR = 2;

/** The pages that have a dot: all, or as many as there may be around the open one. */
export function dotPlaces(place: number, pageCount: number, most = MOST_DOTS): number[] {
  const count = Math.min(most, pageCount);
  const first = Math.min(Math.max(place - (count - 1) / 2, 1), pageCount - count + 1);
  return Array.from({ length: count }, (_, index) => Math.floor(first) + index);
}

/** A button for each of the pages around the open one. */
export function makeDots({ reader, say, names }: Ui): HTMLElement {
  const { rightToLeft } = reader.settings;
  const list = create('ul', { className: 'dots', dir: rightToLeft ? 'rtl' : 'ltr' });
  const dots = dotPlaces(1, reader.pageCount).map(() => {
    const dot = create('button', { type: 'button' });
    dot.addEventListener('click', () => reader.goTo(Number(dot.dataset.place)));
    list.append(create('li', {}, dot));
    return dot;
  });
  const show = ([place = 1]: readonly number[]) => {
    const places = dotPlaces(place, reader.pageCount);
    const near = dotPlaces(place, reader.pageCount, 2 * NEAR + 1);
    const hasFocus = dots.some((dot) => dot === document.activeElement);
    dots.forEach((dot, index) => {
      const at = places[index]!;
      dot.dataset.place = String(at);
      dot.title = say('page', names.label(at));
      dot.setAttribute('aria-label', dot.title);
      dot.setAttribute('aria-current', at === place ? 'page' : 'false');
      dot.parentElement!.classList.toggle('far', !near.includes(at));
      // The focus stays on the page, not on the button that stood for it.
      if (hasFocus && at === place) dot.focus();
    });
    list.classList.toggle('before', places[0]! > 1);
    list.classList.toggle('after', places[places.length - 1]! < reader.pageCount);
  };
  reader.on('turned', show);
  reader.on('settled', show);
  show(reader.places);
  return list;
}
