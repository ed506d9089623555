// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import type { LeafFaces } from './leafPainter.ts';
import type { Ground } from './leafShadow.ts';

/** The free edge of a board that stands upright is nearer to the eye, and looks so much taller. */
const PERSPECTIVE = 0.14;
const SLICES = 24;
const SHADE_OF_UPRIGHT = 0.35;
const SHADOW_ON_GROUND = 0.35;

/**
 * Paints a leaf of board, which turns about the hinge without bending. `opening` is the cosine of
 * its angle: 1 where it lies on the end side, -1 on the start side. Coordinates as in curl.ts.
 */
export function paintStiffLeaf(
  context: CanvasRenderingContext2D,
  leaf: Size,
  opening: number,
  faces: LeafFaces,
  ground: Ground,
): void {
  const upright = Math.sqrt(Math.max(0, 1 - opening * opening));
  paintShadow(context, leaf, opening, upright, ground);
  const showsFront = opening > 0;
  const width = leaf.width / SLICES;
  for (let slice = 0; slice < SLICES; slice++) {
    const from = slice * width;
    const taller = 1 + (PERSPECTIVE * upright * (slice + 0.5)) / SLICES;
    context.save();
    context.transform(opening, 0, 0, taller, 0, ((1 - taller) * leaf.height) / 2);
    context.beginPath();
    // Slices overlap a little, or the ground shines through between them.
    context.rect(from, 0, width + 0.5 / Math.max(Math.abs(opening), 0.05), leaf.height);
    context.clip();
    if (!showsFront) context.transform(-1, 0, 0, 1, leaf.width, 0);
    context.drawImage((showsFront ? faces.front : faces.back).picture, 0, 0, leaf.width, leaf.height);
    context.fillStyle = `rgba(0, 0, 0, ${(SHADE_OF_UPRIGHT * upright).toFixed(3)})`;
    context.fillRect(0, 0, leaf.width, leaf.height);
    context.restore();
  }
}

/** Falls on the side over which the board stands. */
function paintShadow(
  context: CanvasRenderingContext2D,
  leaf: Size,
  opening: number,
  upright: number,
  ground: Ground,
): void {
  if (!(opening > 0 ? ground.end : ground.start)) return;
  const reach = leaf.width * Math.min(1, Math.abs(opening) + 0.25 * upright) * Math.sign(opening);
  const gradient = context.createLinearGradient(0, 0, reach, 0);
  gradient.addColorStop(0, `rgba(0, 0, 0, ${SHADOW_ON_GROUND * upright})`);
  gradient.addColorStop(1, 'rgba(0, 0, 0, 0)');
  context.fillStyle = gradient;
  context.fillRect(Math.min(reach, 0), 0, Math.abs(reach), leaf.height);
}
