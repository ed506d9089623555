// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

/** Lays out for the printer these pictures, one a sheet, and nothing else. Answers how to take them away again. */
export function putOnPaper(pictures: readonly HTMLElement[]): () => void {
  const container = create('div', { className: 'leafcast-print' }, ...pictures);
  document.body.append(container);
  document.documentElement.classList.add('leafcast-printing');
  return () => {
    container.remove();
    document.documentElement.classList.remove('leafcast-printing');
  };
}

/** The browser's own command prints the open pages: they are cut for the window, of which paper shows only a part. */
export function printOpenPages({ root, reader, signal }: Ui): void {
  let takeAway: (() => void) | undefined;
  const lay = () => {
    if (document.querySelector('.leafcast-print')) return;
    const sides = [...root.querySelectorAll<HTMLCanvasElement>('.side:not([hidden])')];
    const open = sides.filter(({ dataset }) => reader.places.includes(Number(dataset.drawn)));
    if (open.length > 0) takeAway = putOnPaper([joined(open)]);
  };
  window.addEventListener('beforeprint', lay, { signal });
  window.addEventListener('afterprint', () => takeAway?.(), { signal });
}

/** As they lie side by side. Nothing can be loaded any more once printing has begun. */
function joined(sides: readonly HTMLCanvasElement[]): HTMLCanvasElement {
  const left = (side: HTMLCanvasElement) => side.getBoundingClientRect().left;
  const inOrder = [...sides].sort((one, other) => left(one) - left(other));
  const sheet = create('canvas');
  sheet.width = sides.reduce((sum, { width }) => sum + width, 0);
  sheet.height = Math.max(...sides.map(({ height }) => height));
  const context = sheet.getContext('2d')!;
  let x = 0;
  for (const side of inOrder) {
    context.drawImage(side, x, 0);
    x += side.width;
  }
  return sheet;
}
