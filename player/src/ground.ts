// SPDX-License-Identifier: MIT
import type { BookPlan } from './bookPlan.ts';
import type { Box, Size } from './geometry.ts';
import type { PlacedPage } from './sharpView.ts';
import { type Face, type Side, SIDES } from './spreads.ts';

/** The spreads that lie below the leaves in the air, at the start side and at the end side. */
export interface OnGround {
  readonly lowest: number;
  readonly highest: number;
}

/** Which spreads are seen while leaves are in the air between them. */
export interface Turns extends OnGround {
  readonly destination: number;
  readonly leaves: readonly { readonly to: number }[];
}

/** What lies below the leaves in the air. */
export function faceOnGround({ spreads }: BookPlan, { lowest, highest }: OnGround, side: Side): Face | undefined {
  return side === 'start' ? spreads[lowest]?.start : spreads[highest]?.end;
}

export function placedPages(plan: BookPlan, turns: OnGround): PlacedPage[] {
  return SIDES.flatMap((side) => {
    const face = faceOnGround(plan, turns, side);
    if (!face || face.place === 0) return [];
    return [{ place: face.place, window: plan.sideBox(side), picture: plan.pageBox(face, side) }];
  });
}

/** What is seen now and at the end, then the leaves in between, then the spreads so far from there. */
export function wantedPlaces(plan: BookPlan, turns: Turns, near: readonly number[]): { seen: number[]; all: number[] } {
  const { lowest, highest, destination, leaves } = turns;
  const places = (spreads: readonly number[]) => spreads.flatMap((spread) => plan.placesAt(spread));
  const seen = places([lowest, highest, destination, ...leaves.map((leaf) => leaf.to)]);
  return { seen, all: [...new Set([...seen, ...places(near.map((step) => destination + step))])] };
}

/** Where leaves can be seen, also while the sheet moves to or from a cover. */
export function airSpace(plan: BookPlan, { lowest, highest }: Turns, { width, height }: Size): Box {
  const side = lowest === 0 || highest === plan.lastSpread ? plan.layout.leaf.width / 2 : 0;
  return { x: -side, y: 0, width: width + 2 * side, height };
}
