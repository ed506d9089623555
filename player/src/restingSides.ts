// SPDX-License-Identifier: MIT
import { makeCanvas, putCanvas } from './canvas.ts';
import type { Box } from './geometry.ts';
import type { FacePainter } from './leafPainter.ts';
import type { Face } from './spreads.ts';

export type Side = 'start' | 'end';
export const SIDES = ['start', 'end'] as const;

interface Painted {
  readonly face: Face | undefined;
  readonly picture: unknown;
}

/** The two sides of the book at rest, each a canvas that is painted when something else lies on it. */
export class RestingSides {
  readonly canvases: Readonly<Record<Side, HTMLCanvasElement>> = { start: makeCanvas('side'), end: makeCanvas('side') };
  private readonly boxes = new Map<Side, Box>();
  private readonly painted = new Map<Side, Painted>();

  place(side: Side, box: Box): void {
    this.boxes.set(side, box);
    this.painted.delete(side);
  }

  /** `picture` is what the page is painted with, if there is one yet; `ratio`: pixels to a CSS pixel. */
  show(side: Side, face: Face | undefined, picture: unknown, ratio: number, paint: FacePainter): void {
    const last = this.painted.get(side);
    if (last && last.picture === picture && isSame(last.face, face)) return;
    this.painted.set(side, { face, picture });
    const canvas = this.canvases[side];
    canvas.hidden = !face;
    const box = this.boxes.get(side);
    if (!face || !box) return;
    putCanvas(canvas, box, ratio);
    const { width, height } = box;
    const context = canvas.getContext('2d')!;
    context.setTransform(canvas.width / width, 0, 0, canvas.height / height, 0, 0);
    paint(context, { width, height });
  }
}

const isSame = (one: Face | undefined, other: Face | undefined): boolean =>
  one?.place === other?.place && one?.part === other?.part;
