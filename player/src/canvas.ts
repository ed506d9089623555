// SPDX-License-Identifier: MIT
import type { Box } from './geometry.ts';

export function makeCanvas(className: string): HTMLCanvasElement {
  const element = document.createElement('canvas');
  element.className = className;
  element.setAttribute('aria-hidden', 'true');
  return element;
}

/** Puts a canvas in its parent, in CSS pixels, with so many pixels for each of them. */
export function putCanvas(element: HTMLCanvasElement, box: Box, ratio: number): void {
  const { style } = element;
  style.left = `${box.x}px`;
  style.top = `${box.y}px`;
  style.width = `${box.width}px`;
  style.height = `${box.height}px`;
  const [width, height] = [Math.round(box.width * ratio), Math.round(box.height * ratio)];
  // Setting a size clears the canvas, so only when it differs.
  if (element.width !== width) element.width = width;
  if (element.height !== height) element.height = height;
}
