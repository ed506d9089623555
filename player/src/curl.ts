// SPDX-License-Identifier: MIT
import { add, clamp, distance, dot, type Point, scale, type Size, subtract } from './geometry.ts';

/**
 * How a leaf of paper lies while it is held by a point.
 *
 * Leaf coordinates: the hinge is the line x = 0, the flat leaf covers 0 <= x <= width and
 * 0 <= y <= height before the turn, and -width <= x <= 0 after it. Seen from straight above.
 *
 * The paper is flat up to a line, goes up and over a cylinder that touches that line, and lies flat
 * on its face behind it. With n the direction from the line to the held point on the flat leaf, a
 * point of the flat leaf at `reach` behind the line along n is seen at `projected(reach)`.
 */
export interface Curl {
  readonly direction: Point; // n, of length 1
  readonly line: number; // n . x of the line where the paper leaves the ground
  readonly radius: number; // 0: a sharp fold
}

/** A part of the curl that is drawn as if it were flat. */
export interface Strip {
  readonly from: number; // reach on the paper, from < to
  readonly to: number;
  readonly seenFrom: number; // where these are seen, along n from the line
  readonly seenTo: number;
  readonly showsBack: boolean;
}

const HALF_TURN = Math.PI;
const FLAT: Curl = { direction: { x: 1, y: 0 }, line: Infinity, radius: 0 };

/** The point nearest to the one wanted to which paper can follow without tearing at the hinge. */
export function reachable(wanted: Point, grabbed: Point, leaf: Size): Point {
  const corners = [
    { x: 0, y: 0 },
    { x: 0, y: leaf.height },
  ];
  // Each pass mends one corner and may disturb the other a little less than the pass before.
  let point = wanted;
  for (let pass = 0; pass < 4; pass++) {
    for (const corner of corners) {
      const rope = distance(grabbed, corner);
      const pulled = distance(point, corner);
      if (pulled > rope) point = add(corner, scale(subtract(point, corner), rope / pulled));
    }
  }
  return point;
}

/**
 * The curl that brings the grabbed point of the flat leaf to where it is held, with the largest
 * radius up to the one given with which the hinge stays on the ground. `held` is reachable().
 */
export function curlOf(held: Point, grabbed: Point, leaf: Size, largestRadius: number): Curl {
  const pull = subtract(grabbed, held);
  const pulled = Math.hypot(pull.x, pull.y);
  if (pulled < 1e-6) return FLAT;
  const direction = scale(pull, 1 / pulled);
  const toHinge = Math.min(dot(direction, grabbed), dot(direction, { x: grabbed.x, y: grabbed.y - leaf.height }));
  const radius = clamp((2 * toHinge - pulled) / HALF_TURN, 0, largestRadius);
  const reach = Math.min(reachOfPull(pulled, radius), Math.max(toHinge, pulled / 2));
  return { direction, line: dot(direction, grabbed) - reach, radius };
}

/** How far behind the line a point is that the curl brings nearer by the given length. */
function reachOfPull(pulled: number, radius: number): number {
  const wholeHalfTurn = HALF_TURN * radius;
  if (pulled >= wholeHalfTurn) return (pulled + wholeHalfTurn) / 2;
  // reach - radius * sin(reach / radius) = pulled, which grows with reach: halve the interval.
  let [least, most] = [0, wholeHalfTurn];
  for (let step = 0; step < 40; step++) {
    const middle = (least + most) / 2;
    if (middle - radius * Math.sin(middle / radius) < pulled) least = middle;
    else most = middle;
  }
  return most;
}

/** Where a point at some reach behind the line is seen. */
export function projected(reach: number, radius: number): number {
  if (reach <= 0) return reach;
  if (reach < HALF_TURN * radius) return radius * Math.sin(reach / radius);
  return HALF_TURN * radius - reach;
}

/** Where a point of the flat leaf is seen. */
export function seenAt(point: Point, curl: Curl): Point {
  const reach = dot(curl.direction, point) - curl.line;
  if (reach <= 0) return point;
  return add(point, scale(curl.direction, projected(reach, curl.radius) - reach));
}

/** The farthest that any point of the leaf is behind the line; negative when none is. */
export function farthestReach(curl: Curl, leaf: Size): number {
  const { x, y } = curl.direction;
  return Math.max(x * leaf.width, 0) + Math.max(y * leaf.height, 0) - curl.line;
}

/**
 * The strips that stand for the curved part and the flat part behind it, those that are hidden by
 * others first. The first quarter, of which little is seen below the second, has half as many.
 */
export function strips(curl: Curl, leaf: Size, perQuarter: number): Strip[] {
  const end = farthestReach(curl, leaf);
  const quarter = (HALF_TURN / 2) * curl.radius;
  const result: Strip[] = [];
  const add = (from: number, to: number, count: number, showsBack: boolean) => {
    const step = (to - from) / count;
    for (let index = 0; index < count && from + index * step < end; index++)
      result.push(strip(from + index * step, Math.min(from + (index + 1) * step, end), curl.radius, showsBack));
  };
  if (curl.radius > 0) {
    add(0, quarter, Math.ceil(perQuarter / 2), false);
    add(quarter, 2 * quarter, perQuarter, true);
  }
  if (end > 2 * quarter) result.push(strip(2 * quarter, end, curl.radius, true));
  return result;
}

function strip(from: number, to: number, radius: number, showsBack: boolean): Strip {
  return {
    from,
    to,
    seenFrom: projected(from, radius),
    seenTo: projected(to, radius),
    showsBack,
  };
}
