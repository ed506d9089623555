// SPDX-License-Identifier: MIT
import type { Page } from './book.ts';
import { loadSource } from './pictureFiles.ts';

const MOST_HELD = 80;
const AT_ONCE = 2;
/** Pixels; wide enough for a screen with two pixels to a CSS pixel. */
const THUMBNAIL_WIDTH = 208;

/** Small pictures of pages, made of the pages' own files. What was asked for last comes first. */
export class Thumbnails {
  private readonly held = new Map<number, ImageBitmap>(); // in order of use, the last one last
  private readonly waiting: { readonly place: number; readonly canvas: HTMLCanvasElement }[] = [];
  private readonly loading = new Map<number, Promise<ImageBitmap | undefined>>(); // for all canvases that ask meanwhile
  private running = 0;
  private isOver = false;

  constructor(private readonly pages: readonly Page[]) {}

  /** Draws a page on a canvas, at once or when it is loaded, as long as the canvas is in the document. */
  draw(place: number, canvas: HTMLCanvasElement): void {
    const { width, height } = this.pages[place - 1] ?? { width: 0, height: 0 };
    canvas.width = THUMBNAIL_WIDTH;
    canvas.height = width > 0 ? Math.round((THUMBNAIL_WIDTH * height) / width) : canvas.width;
    canvas.dataset.place = String(place);
    const bitmap = this.held.get(place);
    if (bitmap) return this.show(place, bitmap, canvas);
    if (width === 0) return;
    this.waiting.push({ place, canvas });
    void this.loadNext();
  }

  /** What there is of a page already. */
  get(place: number): ImageBitmap | undefined {
    return this.held.get(place);
  }

  /** Frees what is held; nothing more is loaded. */
  destroy(): void {
    this.isOver = true;
    this.waiting.length = 0;
    for (const bitmap of this.held.values()) bitmap.close();
    this.held.clear();
  }

  private async loadNext(): Promise<void> {
    if (this.running >= AT_ONCE) return;
    const next = this.waiting.pop();
    if (!next) return;
    // Scrolled or moved on meanwhile.
    if (!isWanted(next.place, next.canvas)) return this.loadNext();
    this.running++;
    const bitmap = this.held.get(next.place) ?? (await this.loaded(next.place));
    this.running--;
    if (bitmap && isWanted(next.place, next.canvas)) this.show(next.place, bitmap, next.canvas);
    void this.loadNext();
    void this.loadNext();
  }

  private loaded(place: number): Promise<ImageBitmap | undefined> {
    const load = async () => {
      const bitmap = await this.load(place).catch(() => undefined);
      this.loading.delete(place);
      if (this.isOver) bitmap?.close();
      else if (bitmap) this.hold(place, bitmap);
      return this.held.get(place);
    };
    const loading = this.loading.get(place) ?? load();
    this.loading.set(place, loading);
    return loading;
  }

  private async load(place: number): Promise<ImageBitmap> {
    const source = await loadSource(this.pages[place - 1]!.image);
    const small = createImageBitmap(source, { resizeWidth: THUMBNAIL_WIDTH, resizeQuality: 'medium' });
    // A browser that can't resize here draws the whole picture smaller.
    return small.catch(() => createImageBitmap(source));
  }

  private show(place: number, bitmap: ImageBitmap, canvas: HTMLCanvasElement): void {
    this.hold(place, bitmap);
    canvas.getContext('2d')!.drawImage(bitmap, 0, 0, canvas.width, canvas.height);
  }

  private hold(place: number, bitmap: ImageBitmap): void {
    this.held.delete(place);
    this.held.set(place, bitmap);
    for (const [oldest, each] of this.held) {
      if (this.held.size <= MOST_HELD) break;
      each.close();
      this.held.delete(oldest);
    }
  }
}

const isWanted = (place: number, canvas: HTMLCanvasElement): boolean =>
  canvas.isConnected && canvas.dataset.place === String(place);
