// SPDX-License-Identifier: MIT
import { type Book, isWide } from './book.ts';
import { type HingeSide, pictureBox } from './facePainter.ts';
import type { Box, Point, Size } from './geometry.ts';
import { type Layout, layoutBook, type Mode } from './layout.ts';
import { arrange, type Face, placesOf, type Side, type Spread, spreadOf } from './spreads.ts';

export interface PlanOptions {
  readonly coverAlone: boolean;
  readonly rightToLeft: boolean;
  readonly hardCovers: boolean;
  /** Of a page, width over height. */
  readonly shapeOf: (place: number) => number;
}

/** From one spread to another. */
export interface Step {
  readonly from: number;
  readonly to: number;
}

/** Where everything of a book lies that is laid out in a space; boxes are in CSS pixels of the sheet. */
export class BookPlan {
  readonly layout: Layout;
  readonly spreads: readonly Spread[];

  constructor(
    private readonly book: Book,
    private readonly options: PlanOptions,
    space: Size,
    margin: Size,
    mode: Mode,
  ) {
    const isSheet = book.pages.length === 1 && !isWide(book.pages[0], book.shape);
    this.layout = layoutBook(space, margin, book.shape, isSheet && mode === 'auto' ? 'single' : mode, options.rightToLeft);
    this.spreads = arrange({
      pageCount: book.pages.length,
      double: this.layout.double,
      coverAlone: options.coverAlone !== (mode === 'other'),
      isWide: (place) => isWide(book.pages[place - 1], book.shape),
    });
  }

  get lastSpread(): number {
    return this.spreads.length - 1;
  }

  spreadOf(place: number): number {
    return spreadOf(this.spreads, place);
  }

  placesAt(spread: number): number[] {
    const shown = this.spreads[spread];
    return shown ? placesOf(shown) : [];
  }

  sideBox(side: Side): Box {
    const { leaf, book, double } = this.layout;
    const isLeft = (side === 'start') !== this.options.rightToLeft;
    return { x: double && !isLeft ? book.x + leaf.width : book.x, y: book.y, ...leaf };
  }

  /** A point of the sheet, in leaf coordinates (see curl.ts) with the height 1. */
  leafPoint({ x, y }: Point): Point {
    const mirror = this.options.rightToLeft ? -1 : 1;
    const { hingeX, book, leaf } = this.layout;
    return { x: ((x - hingeX) * mirror) / leaf.height, y: (y - book.y) / leaf.height };
  }

  /** The width of a leaf with the height 1. */
  get leafShape(): number {
    const { width, height } = this.layout.leaf;
    return width / height;
  }

  hingeOf(side: Side): HingeSide {
    if (!this.layout.double) return 'none';
    return (side === 'end') !== this.options.rightToLeft ? 'left' : 'right';
  }

  /** A closed book lies in the middle: how far its sheet is moved for that. */
  shiftAt(spread: number): number {
    const { start, end } = this.spreads[spread] ?? {};
    if (!this.layout.double || (start && end)) return 0;
    const half = Math.round(this.layout.leaf.width / 2);
    return (start === undefined) !== this.options.rightToLeft ? -half : half;
  }

  /** What lies open of the book, where it is seen without zoom. */
  openPart(spread: number): Box {
    const { start, end } = this.spreads[spread] ?? {};
    const box = start && end ? this.layout.book : this.sideBox(start ? 'start' : 'end');
    return { ...box, x: box.x + this.shiftAt(spread) };
  }

  /** The whole page that a face is of, as it is drawn on a side. */
  pageBox(face: Face, side: Side): Box {
    const window = this.sideBox(side);
    const box = pictureBox(this.layout.leaf, face, this.hingeOf(side), this.options.shapeOf(face.place));
    return { ...box, x: window.x + box.x, y: window.y + box.y };
  }

  pageSize(place: number): Size {
    const wide = this.layout.double && isWide(this.book.pages[place - 1], this.book.shape);
    return pictureBox(this.layout.leaf, { place, part: wide ? 'start' : 'whole' }, 'none', this.options.shapeOf(place));
  }

  /** Pixels of a canvas to a CSS pixel: those of the screen, but no more than the page's picture has. */
  pixelRatioOf(face: Face | undefined): number {
    const { width } = this.book.pages[(face?.place ?? 0) - 1] ?? { width: 0 };
    const isKnown = this.book.hasPageList && face && width > 0;
    return isKnown ? Math.min(devicePixelRatio, width / this.pageSize(face.place).width) : devicePixelRatio;
  }

  /** Where the other side of a leaf is not seen, because there is one page at a time, it has no face. */
  facesOf({ from, to }: Step): Record<'front' | 'back', Face | undefined> {
    return { front: this.spreads[from]?.end, back: this.layout.double ? this.spreads[to]?.start : undefined };
  }

  /** Whether a leaf is the cover or the last leaf of a hardback. */
  isBoard({ from, to }: Step): boolean {
    if (!this.options.hardCovers || !this.layout.double) return false;
    const closesAtEnd = this.spreads[this.lastSpread]?.end === undefined;
    return from === 0 || (closesAtEnd && to === this.lastSpread);
  }
}
