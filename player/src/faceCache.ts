// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import type { FacePainter, PaintedFace } from './leafPainter.ts';

/** Sides of leaves in the air, painted once and drawn in every strip of every frame. */
export class FaceCache {
  private readonly kept = new Map<string, PaintedFace>();
  private used = new Set<string>();

  /** To be called where a frame begins: what the last one did not draw goes. */
  beginFrame(): void {
    for (const [key, { picture }] of this.kept)
      if (!this.used.has(key)) {
        picture.width = 0; // frees the pixels at once
        this.kept.delete(key);
      }
    this.used = new Set();
  }

  /** After pictures or sizes have changed. */
  forget(): void {
    this.used.clear();
    this.beginFrame();
  }

  /** What a painter paints, with so many pixels a unit. */
  painted(key: string, leaf: Size, ratio: number, paint: FacePainter): PaintedFace {
    const whole = `${key} ${ratio}`;
    this.used.add(whole);
    const face = this.kept.get(whole) ?? painted(leaf, ratio, paint);
    this.kept.set(whole, face);
    return face;
  }
}

function painted(leaf: Size, ratio: number, paint: FacePainter): PaintedFace {
  const picture = document.createElement('canvas');
  picture.width = Math.round(leaf.width * ratio);
  picture.height = Math.round(leaf.height * ratio);
  const context = picture.getContext('2d')!;
  context.scale(picture.width / leaf.width, picture.height / leaf.height);
  paint(context, leaf);
  return { picture, paper: context.createPattern(picture, 'no-repeat')! };
}
