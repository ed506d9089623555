// SPDX-License-Identifier: MIT
import type { BookPictures } from './bookPictures.ts';
import type { BookPlan } from './bookPlan.ts';
import { makeCanvas, putCanvas } from './canvas.ts';
import { type Paper, paintFace } from './facePainter.ts';
import { fadingPicture } from './fading.ts';
import { faceOnGround, type OnGround } from './ground.ts';
import { type Face, type Side, SIDES } from './spreads.ts';

interface Painted {
  readonly face: Face | undefined;
  readonly picture: unknown;
}

/** The two sides of the book at rest, each a canvas that is painted when something else lies on it. */
export class RestingSides {
  readonly canvases: Readonly<Record<Side, HTMLCanvasElement>> = { start: makeCanvas('side'), end: makeCanvas('side') };
  private readonly painted = new Map<Side, Painted>();
  private laidOut: BookPlan | undefined;

  constructor(
    private readonly pictures: BookPictures,
    private readonly paper: Paper,
  ) {}

  paint(plan: BookPlan, ground: OnGround): void {
    if (plan !== this.laidOut) this.painted.clear();
    this.laidOut = plan;
    for (const side of SIDES) this.paintSide(plan, side, faceOnGround(plan, ground, side));
  }

  /** What lies on them, for a cross-fade. */
  fading(plan: BookPlan): HTMLCanvasElement {
    const parts = SIDES.map((side) => ({ canvas: this.canvases[side], box: plan.sideBox(side) }));
    return fadingPicture(plan.layout.book, parts.filter(({ canvas }) => !canvas.hidden));
  }

  private paintSide(plan: BookPlan, side: Side, face: Face | undefined): void {
    const { source, pictures } = this.pictures;
    const canvas = this.canvases[side];
    canvas.dataset.drawn = face && pictures.get(face.place) ? String(face.place) : '';
    const picture = face && source.picture(face.place);
    const last = this.painted.get(side);
    if (last && last.picture === picture && isSame(last.face, face)) return;
    this.painted.set(side, { face, picture });
    canvas.hidden = !face;
    if (!face) return;
    const box = plan.sideBox(side);
    putCanvas(canvas, box, plan.pixelRatioOf(face));
    const { width, height } = box;
    const context = canvas.getContext('2d')!;
    context.setTransform(canvas.width / width, 0, 0, canvas.height / height, 0, 0);
    paintFace(context, { width, height }, face, plan.hingeOf(side), source, this.paper);
  }
}

const isSame = (one: Face | undefined, other: Face | undefined): boolean =>
  one?.place === other?.place && one?.part === other?.part;
