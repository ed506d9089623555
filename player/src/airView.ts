// SPDX-License-Identifier: MIT
import { makeCanvas, putCanvas } from './canvas.ts';
import type { Curl } from './curl.ts';
import type { Box } from './geometry.ts';
import type { Quality } from './governor.ts';
import type { Layout } from './layout.ts';
import { type LeafFaces, paintLeaf } from './leafPainter.ts';
import type { Ground } from './leafShadow.ts';
import { paintStiffLeaf } from './stiffLeaf.ts';
import { overlap } from './zoom.ts';

export interface LeafInTheAir {
  readonly curl: Curl; // with the leaf's height as the unit
  readonly opening: number; // see stiffLeaf.ts
  readonly stiff: boolean;
  readonly faces: LeafFaces;
  readonly ground: Ground;
}

/** What a leaf may rise above and beside the book, of its height. */
const HEADROOM = 0.25;

/** The canvas on which leaves move; it covers the book and what they rise above it. */
export class AirView {
  readonly element = makeCanvas('air');

  clear(): void {
    this.element.hidden = true;
  }

  /** The lowest leaf first. */
  paint(leaves: readonly LeafInTheAir[], layout: Layout, space: Box, rightToLeft: boolean, quality: Quality): void {
    const ratio = Math.min(devicePixelRatio, quality.mostPixels);
    const room = overlap(roomAround(layout), space) ?? layout.book;
    putCanvas(this.element, room, ratio);
    this.element.hidden = false;
    const context = this.element.getContext('2d')!;
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, this.element.width, this.element.height);
    const mirror = rightToLeft ? -1 : 1;
    const [x, y] = [layout.hingeX - room.x, layout.book.y - room.y];
    context.setTransform(ratio * mirror, 0, 0, ratio, x * ratio, y * ratio);
    for (const { curl, opening, stiff, faces, ground } of leaves)
      if (stiff) paintStiffLeaf(context, layout.leaf, opening, faces, ground);
      else paintLeaf(context, layout.leaf, inPixels(curl, layout.leaf.height), faces, ground, quality);
  }
}

function roomAround({ leaf, book, hingeX }: Layout): Box {
  const head = Math.round(leaf.height * HEADROOM);
  const width = 2 * (leaf.width + head);
  return { x: hingeX - width / 2, y: book.y - head, width, height: leaf.height + 2 * head };
}

const inPixels = ({ direction, line, radius }: Curl, height: number): Curl => ({
  direction,
  line: line * height,
  radius: radius * height,
});
