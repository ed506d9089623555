// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import type { FacePainter } from './leafPainter.ts';

/** Sides of leaves in the air, painted once and drawn in every strip of every frame. */
export class FaceCache {
  private readonly kept = new Map<string, HTMLCanvasElement>();
  private used = new Set<string>();

  /** To be called where a frame begins: what the last one did not draw goes. */
  beginFrame(): void {
    for (const [key, canvas] of this.kept)
      if (!this.used.has(key)) {
        canvas.width = 0; // frees the pixels at once
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
  painted(key: string, leaf: Size, ratio: number, paint: FacePainter): HTMLCanvasElement {
    const whole = `${key} ${ratio}`;
    this.used.add(whole);
    const canvas = this.kept.get(whole) ?? painted(leaf, ratio, paint);
    this.kept.set(whole, canvas);
    return canvas;
  }
}

function painted(leaf: Size, ratio: number, paint: FacePainter): HTMLCanvasElement {
  const canvas = document.createElement('canvas');
  canvas.width = Math.round(leaf.width * ratio);
  canvas.height = Math.round(leaf.height * ratio);
  const context = canvas.getContext('2d')!;
  context.scale(canvas.width / leaf.width, canvas.height / leaf.height);
  paint(context, leaf);
  return canvas;
}
