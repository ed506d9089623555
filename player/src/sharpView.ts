// SPDX-License-Identifier: MIT
import { makeCanvas, putCanvas } from './canvas.ts';
import { create } from './dom.ts';
import type { Box } from './geometry.ts';
import type { PictureFiles } from './pictureFiles.ts';
import { overlap } from './zoom.ts';

/** Where a page's picture lies in the laid-out book, and which part of that can be seen. */
export interface PlacedPage {
  readonly place: number;
  readonly picture: Box;
  readonly window: Box; // the leaf that it lies on
}

const MOST_PIXELS_WITH_FINGERS = 5e6;
const MOST_PIXELS = 16e6;
const REST_MILLISECONDS = 120;

/**
 * Sharp pictures of what is seen of the pages while the book is zoomed. They lie over the resting
 * sides, which are seen scaled meanwhile, so nothing is ever blank.
 */
export class SharpView {
  readonly element = create('div', { className: 'sharp' });
  private timer = 0;
  private turn = 0; // of the crops that are under way; older ones are dropped when they come

  constructor(private readonly files: Pick<PictureFiles, 'crop'>) {}

  clear(): void {
    clearTimeout(this.timer);
    this.turn++;
    this.element.replaceChildren();
  }

  /** Once nothing has changed for a moment. */
  showSoon(pages: readonly PlacedPage[], seen: Box, scale: number): void {
    clearTimeout(this.timer);
    this.timer = setTimeout(() => void this.show(pages, seen, scale), REST_MILLISECONDS);
  }

  private async show(pages: readonly PlacedPage[], seen: Box, scale: number): Promise<void> {
    const turn = ++this.turn;
    const parts = pages.flatMap((page) => {
      const visible = overlap(overlap(page.picture, page.window) ?? page.picture, seen);
      return visible ? [{ page, visible }] : [];
    });
    const ratio = pixelRatio(parts.map(({ visible }) => visible), scale);
    const canvases = await Promise.all(
      parts.map(({ page, visible }) => this.part(page, visible, ratio).catch(() => undefined)),
    );
    if (turn === this.turn) this.element.replaceChildren(...canvases.filter((each) => each !== undefined));
  }

  private async part(page: PlacedPage, visible: Box, ratio: number): Promise<HTMLCanvasElement> {
    const { picture } = page;
    const fractions = {
      x: (visible.x - picture.x) / picture.width,
      y: (visible.y - picture.y) / picture.height,
      width: visible.width / picture.width,
      height: visible.height / picture.height,
    };
    const bitmap = await this.files.crop(page.place, fractions, visible.width * ratio);
    const canvas = makeCanvas('part');
    putCanvas(canvas, visible, bitmap.width / visible.width);
    canvas.getContext('2d')!.drawImage(bitmap, 0, 0, canvas.width, canvas.height);
    bitmap.close();
    return canvas;
  }
}

/** What is seen of all pages together may have so many pixels. */
function pixelRatio(boxes: readonly Box[], scale: number): number {
  const most = matchMedia('(pointer: coarse)').matches ? MOST_PIXELS_WITH_FINGERS : MOST_PIXELS;
  const area = boxes.reduce((sum, { width, height }) => sum + width * height, 0);
  return Math.min(scale * devicePixelRatio, Math.sqrt(most / area));
}
