// SPDX-License-Identifier: MIT
import { type Box, clamp, type Point, type Size } from './geometry.ts';

/** What is laid out at `p` is seen at `p * scale + offset`, in CSS pixels. */
export interface Zoom {
  readonly scale: number;
  readonly offset: Point;
}

export const NO_ZOOM: Zoom = { scale: 1, offset: { x: 0, y: 0 } };
export const LEAST_SCALE = 0.5;
export const MOST_SCALE = 6;

/** Changes the scale; what is seen at a point stays there. */
export function zoomAbout(zoom: Zoom, point: Point, scale: number): Zoom {
  const limited = clamp(scale, LEAST_SCALE, MOST_SCALE);
  const factor = limited / zoom.scale;
  return {
    scale: limited,
    offset: {
      x: point.x - (point.x - zoom.offset.x) * factor,
      y: point.y - (point.y - zoom.offset.y) * factor,
    },
  };
}

export const panBy = (zoom: Zoom, by: Point): Zoom => ({
  scale: zoom.scale,
  offset: { x: zoom.offset.x + by.x, y: zoom.offset.y + by.y },
});

/** Keeps the book in sight: centred where it is smaller than the space, without gaps where larger. */
export function keptInSight(zoom: Zoom, book: Box, space: Size): Zoom {
  return {
    scale: zoom.scale,
    offset: {
      x: kept(zoom.offset.x, zoom.scale, book.x, book.width, space.width),
      y: kept(zoom.offset.y, zoom.scale, book.y, book.height, space.height),
    },
  };
}

function kept(offset: number, scale: number, start: number, length: number, space: number): number {
  const seen = length * scale;
  if (seen <= space) return (space - seen) / 2 - start * scale;
  return clamp(offset, space - (start + length) * scale, -start * scale);
}

/** What lies in the middle of a space, in fractions of a box. */
export const middleOf = ({ scale, offset }: Zoom, box: Box, space: Size): Point => ({
  x: ((space.width / 2 - offset.x) / scale - box.x) / box.width,
  y: ((space.height / 2 - offset.y) / scale - box.y) / box.height,
});

/** So that a point of a box, in fractions of it, lies in the middle of a space. */
export const zoomOn = (scale: number, point: Point, box: Box, space: Size): Zoom => ({
  scale,
  offset: {
    x: space.width / 2 - (box.x + point.x * box.width) * scale,
    y: space.height / 2 - (box.y + point.y * box.height) * scale,
  },
});

/** The part of the laid-out space that is seen. */
export function seenBox(zoom: Zoom, space: Size): Box {
  return {
    x: -zoom.offset.x / zoom.scale,
    y: -zoom.offset.y / zoom.scale,
    width: space.width / zoom.scale,
    height: space.height / zoom.scale,
  };
}

export function overlap(one: Box, other: Box): Box | undefined {
  const x = Math.max(one.x, other.x);
  const y = Math.max(one.y, other.y);
  const width = Math.min(one.x + one.width, other.x + other.width) - x;
  const height = Math.min(one.y + one.height, other.y + other.height) - y;
  return width > 0 && height > 0 ? { x, y, width, height } : undefined;
}
