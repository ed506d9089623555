// SPDX-License-Identifier: MIT

/**
 * Which pages are seen together. A place counts from 1 in the order of the book; a spread has a
 * start and an end side in reading order, so that right-to-left books differ in drawing alone.
 */
export type Side = 'start' | 'end';
export const SIDES = ['start', 'end'] as const;
export type Part = 'whole' | Side;

export interface Face {
  readonly place: number; // 0: blank paper
  readonly part: Part; // a wide page takes both sides, half of it on each
}

export interface Spread {
  readonly start: Face | undefined;
  readonly end: Face | undefined;
}

export interface Arrangement {
  readonly pageCount: number;
  readonly double: boolean;
  readonly coverAlone: boolean;
  /** Whether a page is so much wider than the others that it takes a spread of its own. */
  isWide(place: number): boolean;
}

const whole = (place: number): Face => ({ place, part: 'whole' });
const blank: Face = whole(0);
const both = (place: number): Spread => ({ start: { place, part: 'start' }, end: { place, part: 'end' } });

export function arrange(arrangement: Arrangement): Spread[] {
  if (!arrangement.double) return places(arrangement.pageCount).map((place) => ({ start: undefined, end: whole(place) }));
  const spreads: Spread[] = [];
  if (arrangement.pageCount === 0) return spreads;
  for (let start = arrangement.coverAlone ? 0 : 1; start <= arrangement.pageCount; start += 2)
    spreads.push(...pair(start, arrangement));
  return spreads;
}

/** A wide page breaks its own pair only, so that the pages after it keep their side. */
function pair(start: number, arrangement: Arrangement): Spread[] {
  const exists = (place: number) => place >= 1 && place <= arrangement.pageCount;
  const isWide = (place: number) => exists(place) && arrangement.isWide(place);
  const end = start + 1;
  if (!isWide(start) && !isWide(end))
    return [{ start: exists(start) ? whole(start) : undefined, end: exists(end) ? whole(end) : undefined }];
  const first = isWide(start) ? both(start) : { start: whole(start), end: blank };
  const second = isWide(end) ? both(end) : { start: blank, end: whole(end) };
  return [exists(start) ? first : undefined, exists(end) ? second : undefined].filter(
    (spread): spread is Spread => spread !== undefined,
  );
}

const places = (count: number): number[] => Array.from({ length: count }, (_, index) => index + 1);

/** In reading order, each once. */
export function placesOf(spread: Spread): number[] {
  const all = [spread.start, spread.end].map((face) => face?.place ?? blank.place);
  return [...new Set(all)].filter((place) => place !== blank.place);
}

/** The index of the spread that shows a place; the nearest one for a place that there is not. */
export function spreadOf(spreads: readonly Spread[], place: number): number {
  const found = spreads.findIndex((spread) => placesOf(spread).some((shown) => shown >= place));
  return found >= 0 ? found : Math.max(spreads.length - 1, 0);
}
