// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';

/**
 * Pictures of pages, decoded at the size at which they are shown. Few are held: those that are
 * wanted, and of the others the ones shown last.
 *
 * Over HTTP the compressed bytes are kept too, so that another size costs no request. From `file://`
 * nothing can be fetched; there an image element loads the file and is dropped at once, because one
 * that stays keeps its decoded pixels for good.
 */
export interface Picture {
  readonly bitmap: ImageBitmap;
  readonly wantedWidth: number; // pixels that were asked for; the bitmap may have fewer
}

export interface PictureRequest {
  readonly place: number;
  readonly size: Size; // pixels
  /** Whether the page is on the screen; the others wait until all of these are there. */
  readonly seen: boolean;
}

const MOST_BITMAPS = 10;
const MOST_BLOB_BYTES = 64 << 20;
const AT_ONCE = 2;

export class Pictures {
  private readonly held = new Map<number, Picture>(); // in order of use, the last one last
  private readonly blobs = new Map<number, Blob>();
  private readonly running = new Map<number, AbortController>();
  private readonly failed = new Set<number>();
  private wanted: readonly PictureRequest[] = [];

  constructor(
    private readonly urlOf: (place: number) => string,
    private readonly sizeOf: (place: number) => Size,
    private readonly changed: (place: number) => void,
    private readonly mostBitmaps = MOST_BITMAPS,
  ) {}

  /** What is to be held, most urgent first. What runs and is not among it any more is given up. */
  want(requests: readonly PictureRequest[]): void {
    this.wanted = requests.filter(({ place }) => this.urlOf(place) !== '');
    for (const [place, controller] of this.running)
      if (!this.wanted.some((request) => request.place === place)) controller.abort();
    this.startNext();
  }

  /** In whatever size there is. */
  get(place: number): ImageBitmap | undefined {
    const picture = this.held.get(place);
    if (!picture) return undefined;
    this.held.delete(place);
    this.held.set(place, picture);
    return picture.bitmap;
  }

  hasFailed(place: number): boolean {
    return this.failed.has(place);
  }

  retry(place: number): void {
    this.failed.delete(place);
    this.startNext();
  }

  /** A part of a page, given in fractions of it, as sharp as its file allows. */
  async crop(place: number, part: { x: number; y: number; width: number; height: number }, width: number): Promise<ImageBitmap> {
    const source = await this.source(place, new AbortController().signal);
    const { width: across, height: down } = this.sizeOf(place);
    const cut = [part.x * across, part.y * down, part.width * across, part.height * down].map(Math.round);
    const [x = 0, y = 0, w = 1, h = 1] = cut;
    const options = resized({ width: Math.min(width, w) });
    return createImageBitmap(source, x, y, Math.max(w, 1), Math.max(h, 1), options);
  }

  private startNext(): void {
    const isLoading = ({ place }: PictureRequest) => this.running.has(place);
    for (const request of this.wanted) {
      if (this.running.size >= AT_ONCE) return;
      if (!request.seen && this.wanted.some((other) => other.seen && isLoading(other))) return;
      if (this.isMissing(request)) void this.load(request);
    }
  }

  private isMissing({ place, size: { width } }: PictureRequest): boolean {
    if (this.failed.has(place) || this.running.has(place)) return false;
    const picture = this.held.get(place);
    return !picture || picture.wantedWidth < width * 0.98 || picture.wantedWidth > width * 1.6;
  }

  private async load({ place, size }: PictureRequest): Promise<void> {
    const controller = new AbortController();
    this.running.set(place, controller);
    try {
      const bitmap = await this.decode(place, size, controller.signal);
      this.held.get(place)?.bitmap.close();
      this.held.delete(place);
      this.held.set(place, { bitmap, wantedWidth: size.width });
      this.dropOldest();
    } catch {
      if (!controller.signal.aborted) this.failed.add(place);
    }
    this.running.delete(place);
    if (!controller.signal.aborted) this.changed(place);
    this.startNext();
  }

  private async decode(place: number, size: Size, signal: AbortSignal): Promise<ImageBitmap> {
    const source = await this.source(place, signal);
    const known = this.sizeOf(place);
    const options = resized(known.width > 0 && known.width < size.width ? known : size);
    // A browser that can't resize here draws the whole picture smaller, a little more slowly.
    return createImageBitmap(source, options).catch(() => createImageBitmap(source));
  }

  private async source(place: number, signal: AbortSignal): Promise<ImageBitmapSource> {
    const kept = this.blobs.get(place);
    if (kept) return kept;
    const source = await loadSource(this.urlOf(place), signal);
    if (source instanceof Blob) this.keepBlob(place, source);
    return source;
  }

  private keepBlob(place: number, blob: Blob): void {
    this.blobs.set(place, blob);
    let bytes = [...this.blobs.values()].reduce((sum, each) => sum + each.size, 0);
    for (const [oldest, each] of this.blobs) {
      if (bytes <= MOST_BLOB_BYTES || oldest === place) break;
      this.blobs.delete(oldest);
      bytes -= each.size;
    }
  }

  private dropOldest(): void {
    for (const [place, picture] of this.held) {
      if (this.held.size <= this.mostBitmaps) return;
      if (this.wanted.some((request) => request.place === place)) continue;
      this.held.delete(place);
      picture.bitmap.close();
    }
  }
}

/** Without a height the shape is kept. */
function resized({ width, height }: { width: number; height?: number }): ImageBitmapOptions {
  const pixels = (length: number) => Math.max(1, Math.round(length));
  const options: ImageBitmapOptions = { resizeWidth: pixels(width), resizeQuality: 'high' };
  return height ? { ...options, resizeHeight: pixels(height) } : options;
}

/** What a bitmap can be made of; see above for why it differs with the protocol. */
export async function loadSource(url: string, signal = new AbortController().signal): Promise<Blob | HTMLImageElement> {
  if (location.protocol === 'file:') return loadImage(url, signal);
  const response = await fetch(url, { signal });
  if (!response.ok) throw new Error(`${url}: ${response.status}`);
  return response.blob();
}

function loadImage(url: string, signal: AbortSignal): Promise<HTMLImageElement> {
  return new Promise((resolve, reject) => {
    const image = new Image();
    image.onload = () => resolve(image);
    image.onerror = () => reject(new Error(url));
    signal.addEventListener('abort', () => {
      image.src = '';
      reject(new Error('aborted'));
    });
    image.src = url;
  });
}
