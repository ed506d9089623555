// SPDX-License-Identifier: MIT
import { type Box, fit, type Size } from './geometry.ts';

/** Where the open book lies, in CSS pixels from the top left of the space it is given. */
export interface Layout {
  readonly double: boolean;
  readonly leaf: Size;
  /** Both leaves, or the one. */
  readonly book: Box;
  readonly hingeX: number;
}

/** In "other", the pages that are not each other's neighbours otherwise lie side by side. */
export type Mode = 'auto' | 'single' | 'double' | 'other';

/** Two pages may be this much smaller than one alone before one alone is better. */
const SMALLEST_SPREAD = 0.6;

/** In the middle of a space, away from its edges by the margin. */
export function layoutBook(space: Size, margin: Size, shape: number, mode: Mode, rightToLeft: boolean): Layout {
  const inner = {
    width: Math.max(space.width - 2 * margin.width, 1),
    height: Math.max(space.height - 2 * margin.height, 1),
  };
  const double = mode === 'double' || mode === 'other' || (mode === 'auto' && suitsSpread(inner, shape));
  const free = fit(double ? 2 * shape : shape, inner);
  // Whole pixels, so that a leaf in the air covers the one at rest exactly.
  const leaf = {
    width: Math.max(Math.floor(double ? free.width / 2 : free.width), 1),
    height: Math.max(Math.floor(free.height), 1),
  };
  const width = double ? 2 * leaf.width : leaf.width;
  const x = Math.round((space.width - width) / 2);
  const y = Math.round((space.height - leaf.height) / 2);
  const singleHinge = rightToLeft ? x + width : x;
  return { double, leaf, book: { x, y, width, height: leaf.height }, hingeX: double ? x + leaf.width : singleHinge };
}

function suitsSpread(space: Size, shape: number): boolean {
  return fit(2 * shape, space).height >= SMALLEST_SPREAD * fit(shape, space).height;
}
