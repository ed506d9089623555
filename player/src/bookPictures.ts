// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { putCanvas } from './canvas.ts';
import { type FaceSource, type Paper, paintFace } from './facePainter.ts';
import type { Box, Size } from './geometry.ts';
import { PictureFiles } from './pictureFiles.ts';
import { type PictureRequest, Pictures } from './pictures.ts';

/** Few, because a canvas that stays keeps its pixels itself. */
const MOST_BITMAPS = 4;

/** The pictures of a book's pages, on canvases that show a whole page each. */
export class BookPictures {
  readonly files: PictureFiles;
  readonly pictures: Pictures;
  readonly source: FaceSource;

  constructor(
    private readonly book: Book,
    private readonly paper: Paper,
    /** A small picture of a page, if there is one, for as long as its own is on its way. */
    standIn: (place: number) => CanvasImageSource | undefined,
    /** A page's picture came, or could not be loaded. */
    changed: (place: number) => void,
    mostBitmaps = MOST_BITMAPS,
  ) {
    const page = (place: number) => book.pages[place - 1];
    this.files = new PictureFiles(
      (place) => page(place)!.image,
      (place) => (book.hasPageList ? page(place) : undefined),
    );
    this.pictures = new Pictures(this.files, changed, mostBitmaps);
    this.source = {
      picture: (place) => this.pictures.get(place) ?? standIn(place),
      shape: (place) => this.shapeOf(place),
      label: (place) => page(place)?.label ?? '',
    };
  }

  /** Width over height; that of most pages where it is not known. */
  shapeOf(place: number): number {
    const { width, height } = this.book.pages[place - 1] ?? { width: 0, height: 0 };
    if (!(width > 0 && height > 0)) return this.book.shape;
    // Without a page list the size is that of the first page.
    return (!this.book.hasPageList && this.files.shapeOf(place)) || width / height;
  }

  hasPicture(place: number): boolean {
    return this.pictures.has(place);
  }

  retry(place: number): void {
    this.pictures.retry(place);
  }

  hasFailed(place: number): boolean {
    const hasNoFile = this.book.hasPageList && this.book.pages[place - 1]?.width === 0;
    return hasNoFile || this.pictures.hasFailed(place);
  }

  /** Asks for pages that exist, at the sizes of their boxes in CSS pixels; most urgent first. */
  want(places: readonly number[], seen: (place: number) => boolean, sizeOf: (place: number) => Size): void {
    const hasFile = (place: number) => (this.book.pages[place - 1]?.width ?? 0) > 0 || !this.book.hasPageList;
    const exists = (place: number) => place >= 1 && place <= this.book.pages.length;
    const wanted = [...new Set(places)].filter((place) => exists(place) && hasFile(place));
    const request = (place: number): PictureRequest => {
      const { width, height } = sizeOf(place);
      const size = { width: Math.round(width * devicePixelRatio), height: Math.round(height * devicePixelRatio) };
      return { place, size, seen: seen(place) };
    };
    this.pictures.want(wanted.map(request));
  }

  /** Gives everything up that is held or under way. */
  close(): void {
    this.pictures.close();
    this.files.close();
  }

  paint(canvas: HTMLCanvasElement, place: number, box: Box): void {
    const { width: pixels } = this.book.pages[place - 1]!;
    // No more than the picture has.
    const isKnown = this.book.hasPageList && pixels > 0;
    putCanvas(canvas, box, isKnown ? Math.min(devicePixelRatio, pixels / box.width) : devicePixelRatio);
    // Printing takes such canvases, and tests wait for them.
    canvas.dataset.drawn = this.pictures.get(place) ? String(place) : '';
    const context = canvas.getContext('2d')!;
    context.setTransform(canvas.width / box.width, 0, 0, canvas.height / box.height, 0, 0);
    const { width, height } = box;
    paintFace(context, { width, height }, { place, part: 'whole' }, 'none', this.source, this.paper);
  }
}
