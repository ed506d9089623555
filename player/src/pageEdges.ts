// SPDX-License-Identifier: MIT
import type { BookPlan } from './bookPlan.ts';
import { create, putAt } from './dom.ts';
import { clamp } from './geometry.ts';

const MOST_PIXELS = 14;
const PIXELS_A_PAGE = 0.06;
const LEAST_PIXELS = 3;

/** The edges of the leaves left and right of the open ones; a click on them jumps there. */
export class PageEdges {
  readonly start = edge('start');
  readonly end = edge('end');

  constructor(
    private readonly pageCount: number,
    jump: (place: number) => void,
  ) {
    for (const [element, isStart] of [[this.start, true], [this.end, false]] as const)
      element.addEventListener('click', (event) => {
        const box = element.getBoundingClientRect();
        const outwards = clamp((event.clientX - box.left) / Math.max(box.width, 1), 0, 1);
        const isLeft = element.dataset.at === 'left';
        const inEdge = isLeft ? outwards : 1 - outwards; // 0 at the outer rim
        const open = Number(element.dataset.open);
        const through = isStart ? inEdge * open : 1 - inEdge * (1 - open);
        jump(Math.ceil(through * pageCount));
      });
  }

  /** Beside a spread that lies open; where there is no other, there is nothing to jump to. */
  place({ layout: { book }, lastSpread }: BookPlan, spread: number, rightToLeft: boolean): void {
    const whole = lastSpread === 0 ? 0 : clamp(this.pageCount * PIXELS_A_PAGE, LEAST_PIXELS, MOST_PIXELS);
    const open = spread / Math.max(lastSpread, 1); // from 0 to 1
    for (const [element, part] of [[this.start, open], [this.end, 1 - open]] as const) {
      const isLeft = (element === this.start) !== rightToLeft;
      const width = Math.round(whole * part * 2) / 2;
      element.dataset.at = isLeft ? 'left' : 'right';
      element.dataset.open = String(open);
      element.hidden = width < 0.5;
      const x = isLeft ? book.x - width : book.x + book.width;
      putAt(element, { ...book, x, width });
    }
  }
}

/** The slider does the same for keys and screen readers. */
const edge = (name: string): HTMLElement => create('div', { className: `edge ${name}`, 'aria-hidden': 'true' });
