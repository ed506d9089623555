// SPDX-License-Identifier: MIT

/** Vectors and rectangles. x grows to the right, y downwards; the unit is the caller's. */
export interface Point {
  readonly x: number;
  readonly y: number;
}

export interface Size {
  readonly width: number;
  readonly height: number;
}

export interface Box extends Point, Size {}

export const add = (a: Point, b: Point): Point => ({ x: a.x + b.x, y: a.y + b.y });
export const subtract = (a: Point, b: Point): Point => ({ x: a.x - b.x, y: a.y - b.y });
export const scale = (a: Point, factor: number): Point => ({ x: a.x * factor, y: a.y * factor });
export const dot = (a: Point, b: Point): number => a.x * b.x + a.y * b.y;
export const length = (a: Point): number => Math.hypot(a.x, a.y);
export const distance = (a: Point, b: Point): number => length(subtract(a, b));
export const clamp = (value: number, least: number, most: number): number =>
  Math.max(least, Math.min(most, value));

/** The largest size of the given shape (width over height) inside a space. */
export function fit(shape: number, space: Size): Size {
  const height = Math.min(space.height, space.width / shape);
  return { width: height * shape, height };
}
