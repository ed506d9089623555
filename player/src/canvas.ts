// SPDX-License-Identifier: MIT
import { create, putAt } from './dom.ts';
import type { Box } from './geometry.ts';

export function makeCanvas(className: string): HTMLCanvasElement {
  return create('canvas', { className, 'aria-hidden': 'true' });
}

/** Puts a canvas in its parent, in CSS pixels, with so many pixels for each of them. */
export function putCanvas(element: HTMLCanvasElement, box: Box, ratio: number): void {
  putAt(element, box);
  const [width, height] = [Math.round(box.width * ratio), Math.round(box.height * ratio)];
  // Setting a size clears the canvas, so only when it differs.
  if (element.width !== width) element.width = width;
  if (element.height !== height) element.height = height;
}
