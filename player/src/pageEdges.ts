// SPDX-License-Identifier: MIT
import { type Box, clamp } from './geometry.ts';

const MOST_PIXELS = 14;
const PIXELS_A_LEAF = 0.12;
const LEAST_PIXELS = 3;

/** The edges of the leaves left and right of the open ones; a click on them jumps there. */
export class PageEdges {
  readonly start = edge('start');
  readonly end = edge('end');

  /** `jump` gets how far through the book the click was, from 0 to 1. */
  constructor(jump: (fraction: number) => void) {
    for (const [element, isStart] of [[this.start, true], [this.end, false]] as const)
      element.addEventListener('click', (event) => {
        const box = element.getBoundingClientRect();
        const outwards = clamp((event.clientX - box.left) / Math.max(box.width, 1), 0, 1);
        const isLeft = element.dataset.at === 'left';
        const inEdge = isLeft ? outwards : 1 - outwards; // 0 at the outer rim
        const open = Number(element.dataset.open);
        jump(isStart ? inEdge * open : 1 - inEdge * (1 - open));
      });
  }

  /** `open` is how far through the book it lies open, from 0 to 1. */
  place(book: Box, leafCount: number, open: number, rightToLeft: boolean): void {
    const whole = clamp(leafCount * PIXELS_A_LEAF, LEAST_PIXELS, MOST_PIXELS);
    for (const [element, part] of [[this.start, open], [this.end, 1 - open]] as const) {
      const isLeft = (element === this.start) !== rightToLeft;
      const width = Math.round(whole * part * 2) / 2;
      element.dataset.at = isLeft ? 'left' : 'right';
      element.dataset.open = String(open);
      element.hidden = width < 0.5;
      const x = isLeft ? book.x - width : book.x + book.width;
      Object.assign(element.style, {
        left: `${x}px`,
        top: `${book.y}px`,
        width: `${width}px`,
        height: `${book.height}px`,
      });
    }
  }
}

/** The slider does the same for keys and screen readers. */
function edge(name: string): HTMLElement {
  const element = document.createElement('div');
  element.className = `edge ${name}`;
  element.setAttribute('aria-hidden', 'true');
  return element;
}
