// SPDX-License-Identifier: MIT
import { type Curl, seenAt } from './curl.ts';
import { add, dot, type Point, scale, type Size, subtract } from './geometry.ts';

/** Outlines of parts of a leaf, in leaf coordinates (see curl.ts). */
export type Outline = readonly Point[];

const cornersOf = (leaf: Size): Point[] => [
  { x: 0, y: 0 },
  { x: leaf.width, y: 0 },
  { x: leaf.width, y: leaf.height },
  { x: 0, y: leaf.height },
];

/** The paper between two reaches behind the line, as it would lie flat. */
export function partOf(leaf: Size, curl: Curl, from: number, to: number): Point[] {
  const { direction, line } = curl;
  const beyond = clippedFrom(cornersOf(leaf), direction, line + from);
  return clippedFrom(beyond, scale(direction, -1), -(line + to));
}

/** What lies on its face behind the roll, as it is seen. */
export const backPart = (curl: Curl, leaf: Size): Point[] =>
  partOf(leaf, curl, Math.PI * curl.radius, Infinity).map((point) => seenAt(point, curl));

/**
 * What can be seen of an outline on the roll's first quarter. Where the paper goes over the whole
 * roll and comes down behind it, its second quarter hides the first.
 */
export function besideBack(outline: Outline, curl: Curl, leaf: Size): Outline[] {
  const { direction } = curl;
  const along = { x: -direction.y, y: direction.x };
  const covered = partOf(leaf, curl, Math.PI * curl.radius, Infinity).map((point) => dot(point, along));
  if (covered.length === 0) return [outline];
  const [least, most] = [Math.min(...covered), Math.max(...covered)];
  return [clippedFrom(outline, scale(along, -1), -least), clippedFrom(outline, along, most)];
}

/** The part of a convex outline whose points are at least so far along a direction. */
export function clippedFrom(outline: Outline, direction: Point, least: number): Point[] {
  const result: Point[] = [];
  outline.forEach((point, index) => {
    const next = outline[(index + 1) % outline.length]!;
    const [here, there] = [dot(point, direction) - least, dot(next, direction) - least];
    if (here >= 0) result.push(point);
    if (here * there < 0) result.push(add(point, scale(subtract(next, point), here / (here - there))));
  });
  return result;
}

/** Across the leaf and far beyond it, between two places along the curl's direction. */
export function band(curl: Curl, leaf: Size, from: number, to: number): Point[] {
  const far = 2 * (leaf.width + leaf.height);
  const across = { x: -curl.direction.y, y: curl.direction.x };
  const corner = (along: number, side: number) => add(scale(curl.direction, along), scale(across, side * far));
  return [corner(from, -1), corner(to, -1), corner(to, 1), corner(from, 1)];
}

export function path(context: CanvasRenderingContext2D, outline: Outline): void {
  context.beginPath();
  trace(context, outline);
}

/** Adds an outline to the path that there is. */
export function trace(context: CanvasRenderingContext2D, outline: Outline): void {
  outline.forEach((point, index) =>
    index === 0 ? context.moveTo(point.x, point.y) : context.lineTo(point.x, point.y),
  );
  context.closePath();
}
