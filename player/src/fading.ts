// SPDX-License-Identifier: MIT
import { makeCanvas, putCanvas } from './canvas.ts';
import type { Box } from './geometry.ts';

interface Part {
  readonly canvas: HTMLCanvasElement;
  readonly box: Box;
}

/** A picture of what lay in a box of the sheet, made of its canvases; it fades and goes by itself. */
export function fadingPicture(box: Box, parts: readonly Part[]): HTMLCanvasElement {
  const picture = makeCanvas('fading');
  putCanvas(picture, box, devicePixelRatio);
  const context = picture.getContext('2d')!;
  const pixels = (length: number) => length * devicePixelRatio;
  for (const part of parts)
    context.drawImage(
      part.canvas,
      pixels(part.box.x - box.x),
      pixels(part.box.y - box.y),
      pixels(part.box.width),
      pixels(part.box.height),
    );
  const leave = () => picture.remove();
  picture.addEventListener('animationend', leave);
  // A reader's own style may leave no animation that could end.
  requestAnimationFrame(() => picture.getAnimations().length === 0 && leave());
  return picture;
}
