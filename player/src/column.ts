// SPDX-License-Identifier: MIT
import { type Box, clamp, type Size } from './geometry.ts';

/** Pages below each other, in CSS pixels before zoom. */
export interface Column {
  readonly boxes: readonly Box[]; // of the places, from 1
  readonly width: number;
  readonly height: number;
}

/** A page and how far down on it, as a fraction of its height. */
export interface Anchor {
  readonly place: number;
  readonly part: number;
}

const GAP = 18;
const MARGIN = 16;
const NARROW_MARGIN = 8;
const NARROW_PIXELS = 500;
/** Of the usual page's width; a smaller one would be hard to read. */
const LEAST_WIDTH = 0.5;

/**
 * The usual page is as wide as the window, or as the reading width if that is less (0: no limit).
 * Others are as much wider or narrower as in the document, but never wider than the window. A page
 * of unknown size, with the width 0, is a usual one of the given shape.
 */
export function layoutColumn(pages: readonly Size[], shape: number, windowWidth: number, readingWidth: number): Column {
  const margin = windowWidth < NARROW_PIXELS ? NARROW_MARGIN : MARGIN;
  const room = Math.max(windowWidth - 2 * margin, 1);
  const usual = Math.min(room, readingWidth || room);
  const usualPixels = commonest(pages.map(({ width }) => width).filter((width) => width > 0));
  const sizes = pages.map((page) => sizeOf(page, shape, usual, usualPixels, room));
  const width = Math.max(...sizes.map((size) => size.width), 1) + 2 * margin;
  let y = margin;
  const boxes = sizes.map((size) => {
    const box = { x: Math.round((width - size.width) / 2), y, ...size };
    y += size.height + GAP;
    return box;
  });
  return { boxes, width, height: y - GAP + margin };
}

function sizeOf(page: Size, shape: number, usual: number, usualPixels: number, room: number): Size {
  const isKnown = page.width > 0 && page.height > 0;
  const wanted = isKnown ? usual * Math.max(page.width / usualPixels, LEAST_WIDTH) : usual;
  // Whole pixels, so that pictures are sharp.
  const width = Math.round(Math.min(wanted, room));
  return { width, height: Math.max(Math.round(width / (isKnown ? page.width / page.height : shape)), 1) };
}

function commonest(values: readonly number[]): number {
  const counts = new Map<number, number>();
  for (const value of values) counts.set(value, (counts.get(value) ?? 0) + 1);
  return [...counts].sort((one, other) => other[1] - one[1])[0]?.[0] ?? 1;
}

/** The page at a height or, between two, the one below; the last one beyond the end. */
export function placeAt({ boxes }: Column, y: number): number {
  let [low, high] = [0, boxes.length - 1];
  while (low < high) {
    const middle = (low + high) >> 1;
    if (boxes[middle]!.y + boxes[middle]!.height > y) high = middle;
    else low = middle + 1;
  }
  return low + 1;
}

/** The first and the last page of which something lies between two heights. */
export function placesBetween(column: Column, top: number, bottom: number): [number, number] {
  const first = placeAt(column, top);
  const last = placeAt(column, bottom);
  return [first, last > first && column.boxes[last - 1]!.y >= bottom ? last - 1 : last];
}

export function anchorAt(column: Column, y: number): Anchor {
  const place = placeAt(column, y);
  const box = column.boxes[place - 1]!;
  return { place, part: clamp((y - box.y) / box.height, 0, 1) };
}

export function heightOf(column: Column, { place, part }: Anchor): number {
  const box = column.boxes[place - 1]!;
  return box.y + part * box.height;
}

/**
 * The height at which a reader is taken to be: the middle of the window. Near the ends of the
 * document it moves to the window's edge, so that every page gets its turn.
 */
export function readingHeight(scrolled: number, windowHeight: number, wholeHeight: number): number {
  const most = wholeHeight - windowHeight;
  if (most <= windowHeight) return scrolled + (most > 0 ? clamp(scrolled / most, 0, 1) : 0) * windowHeight;
  const half = windowHeight / 2;
  return scrolled + Math.min(half, Math.max(scrolled, 0)) + half - Math.min(half, Math.max(most - scrolled, 0));
}

/** The other way round: how far to scroll for a height to be the one that is read. */
export function scrolledTo(height: number, windowHeight: number, wholeHeight: number): number {
  const most = Math.max(wholeHeight - windowHeight, 0);
  if (most <= windowHeight) return (height * most) / wholeHeight;
  if (height < windowHeight) return height / 2;
  return height <= most ? height - windowHeight / 2 : (height + most - windowHeight) / 2;
}
