// SPDX-License-Identifier: MIT
import { makeCanvas, putCanvas } from './canvas.ts';
import type { Box } from './geometry.ts';
import type { Pictures } from './pictures.ts';
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
  readonly element = document.createElement('div');
  private timer = 0;
  private turn = 0; // of the crops that are under way; older ones are dropped when they come

  constructor(private readonly pictures: Pictures) {
    this.element.className = 'sharp';
  }

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
    const canvases = await Promise.all(pages.map((page) => this.part(page, seen, scale).catch(() => undefined)));
    if (turn === this.turn) this.element.replaceChildren(...canvases.filter((each) => each !== undefined));
  }

  private async part(page: PlacedPage, seen: Box, scale: number): Promise<HTMLCanvasElement | undefined> {
    const visible = overlap(overlap(page.picture, page.window) ?? page.picture, seen);
    if (!visible) return undefined;
    const ratio = pixelRatio(visible, scale);
    const { picture } = page;
    const fractions = {
      x: (visible.x - picture.x) / picture.width,
      y: (visible.y - picture.y) / picture.height,
      width: visible.width / picture.width,
      height: visible.height / picture.height,
    };
    const bitmap = await this.pictures.crop(page.place, fractions, visible.width * ratio);
    const canvas = makeCanvas('part');
    putCanvas(canvas, visible, bitmap.width / visible.width);
    canvas.getContext('2d')!.drawImage(bitmap, 0, 0, canvas.width, canvas.height);
    bitmap.close();
    return canvas;
  }
}

function pixelRatio(box: Box, scale: number): number {
  const most = matchMedia('(pointer: coarse)').matches ? MOST_PIXELS_WITH_FINGERS : MOST_PIXELS;
  // Both sides of a spread together may have so many.
  return Math.min(scale * devicePixelRatio, Math.sqrt(most / 2 / (box.width * box.height)));
}
