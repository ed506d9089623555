// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import type { FacePainter, PaintedFace } from './leafPainter.ts';

interface KeptFace extends PaintedFace {
  readonly made: unknown;
}

/** Sides of leaves in the air, painted once and drawn in every strip of every frame. */
export class FaceCache {
  private readonly kept = new Map<string, KeptFace>();
  private used = new Set<string>();

  /** What was not asked for since the last call goes. */
  sweep(): void {
    for (const [key, { picture }] of this.kept)
      if (!this.used.has(key)) {
        picture.width = 0; // frees the pixels at once
        this.kept.delete(key);
      }
    this.used = new Set();
  }

  /**
   * What a painter paints, with so many pixels a unit. It is painted anew when it was `made` of
   * something else before.
   */
  painted(key: string, made: unknown, leaf: Size, ratio: number, paint: FacePainter): PaintedFace {
    const whole = `${key} ${ratio} ${leaf.width} ${leaf.height}`;
    this.used.add(whole);
    const kept = this.kept.get(whole);
    if (kept && kept.made === made) return kept;
    if (kept) kept.picture.width = 0;
    const face = { ...painted(leaf, ratio, paint), made };
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
