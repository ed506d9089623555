// SPDX-License-Identifier: MIT
import { fit, type Size } from './geometry.ts';
import type { Face } from './spreads.ts';

export interface Paper {
  readonly colour: string;
  readonly ink: string; // of the number on a page without a picture
}

export interface FaceSource {
  picture(place: number): CanvasImageSource | undefined;
  /** Width over height; 0 when it is not known. */
  shape(place: number): number;
  label(place: number): string;
}

export type HingeSide = 'left' | 'right' | 'none';

const GUTTER = 0.09; // of the leaf's width: how far the fold darkens the page
const GUTTER_SHADE = 0.16;

/** Paints what a reader sees of a face, in the box of a leaf from (0, 0). */
export function paintFace(
  context: CanvasRenderingContext2D,
  leaf: Size,
  face: Face | undefined,
  hinge: HingeSide,
  source: FaceSource,
  paper: Paper,
): void {
  context.fillStyle = paper.colour;
  context.fillRect(0, 0, leaf.width, leaf.height);
  if (face && face.place > 0) {
    const picture = source.picture(face.place);
    if (picture) paintPicture(context, leaf, face, hinge, picture, source.shape(face.place));
    else paintNumber(context, leaf, source.label(face.place), paper.ink);
  }
  if (hinge !== 'none') paintGutter(context, leaf, hinge);
}

function paintPicture(
  context: CanvasRenderingContext2D,
  leaf: Size,
  face: Face,
  hinge: HingeSide,
  picture: CanvasImageSource,
  shape: number,
): void {
  const box = pictureBox(leaf, face, hinge, shape);
  context.save();
  context.beginPath();
  context.rect(0, 0, leaf.width, leaf.height);
  context.clip();
  context.imageSmoothingQuality = 'high';
  context.drawImage(picture, box.x, box.y, box.width, box.height);
  context.restore();
}

/**
 * Where the whole page lies in the leaf's coordinates; half of a wide one lies outside. In whole
 * pixels, because a picture of the same size is then copied and not resampled.
 */
export function pictureBox(leaf: Size, face: Face, hinge: HingeSide, shape: number): { x: number; y: number } & Size {
  const space = face.part === 'whole' ? leaf : { width: 2 * leaf.width, height: leaf.height };
  const size = shape > 0 ? nearly(fit(shape, space), space) : space;
  const y = Math.floor((leaf.height - size.height) / 2);
  if (face.part !== 'whole') return { x: (hinge === 'right' ? leaf.width : 0) - size.width / 2, y, ...size };
  const gap = leaf.width - size.width;
  const x = hinge === 'left' ? 0 : hinge === 'right' ? gap : Math.floor(gap / 2);
  return { x, y, ...size };
}

/** Pages whose shape differs by a rounding only fill their leaf. */
function nearly({ width, height }: Size, space: Size): Size {
  const close = width > space.width * 0.985 && height > space.height * 0.985;
  return close ? space : { width: 2 * Math.round(width / 2), height: Math.round(height) };
}

function paintNumber(context: CanvasRenderingContext2D, leaf: Size, label: string, ink: string): void {
  context.fillStyle = ink;
  context.textAlign = 'center';
  context.textBaseline = 'middle';
  context.font = `${Math.round(leaf.height / 14)}px system-ui, sans-serif`;
  context.fillText(label, leaf.width / 2, leaf.height / 2);
}

function paintGutter(context: CanvasRenderingContext2D, leaf: Size, hinge: 'left' | 'right'): void {
  const width = leaf.width * GUTTER;
  const from = hinge === 'left' ? 0 : leaf.width;
  const to = hinge === 'left' ? width : leaf.width - width;
  const gradient = context.createLinearGradient(from, 0, to, 0);
  gradient.addColorStop(0, `rgba(0, 0, 0, ${GUTTER_SHADE})`);
  gradient.addColorStop(0.25, `rgba(0, 0, 0, ${GUTTER_SHADE * 0.42})`);
  gradient.addColorStop(1, 'rgba(0, 0, 0, 0)');
  context.fillStyle = gradient;
  context.fillRect(Math.min(from, to), 0, width, leaf.height);
}
