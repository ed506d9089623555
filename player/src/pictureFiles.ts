// SPDX-License-Identifier: MIT
import { fit, type Size } from './geometry.ts';

/** A part of a page, in fractions of it. */
export interface PagePart {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

const MOST_BLOB_BYTES = 64 << 20;

/**
 * The files of the pages. Over HTTP the compressed bytes are kept, so that another size costs no
 * request. From `file://` nothing can be fetched; there an image element loads the file and is
 * dropped at once, because one that stays keeps its decoded pixels for good.
 */
export class PictureFiles {
  private readonly blobs = new Map<number, Blob>();
  private readonly sizes = new Map<number, Size>(); // as they were found
  private readonly damaged = new Set<number>();

  constructor(
    private readonly urlOf: (place: number) => string,
    /** In pixels, where that is known before a page is loaded. */
    private readonly sizeOf: (place: number) => Size | undefined,
  ) {}

  /** A page in a size, or in its own where that is smaller; as large as fits in where its shape was not known before. */
  async decode(place: number, size: Size, signal: AbortSignal): Promise<ImageBitmap> {
    const source = await this.source(place, signal);
    const known = await this.size(place, source);
    const asked = this.sizeOf(place) ? size : fit(known.width / known.height, size);
    const options = resized(known.width < asked.width ? known : asked);
    // A browser that can't resize here draws the whole picture smaller, a little more slowly.
    return createImageBitmap(source, options).catch(() => createImageBitmap(source));
  }

  /** As sharp as the file allows, but no wider than asked for. */
  async crop(place: number, part: PagePart, width: number): Promise<ImageBitmap> {
    const source = await this.source(place, new AbortController().signal);
    const { width: across, height: down } = await this.size(place, source);
    const cut = [part.x * across, part.y * down, part.width * across, part.height * down].map(Math.round);
    const [x = 0, y = 0, w = 1, h = 1] = cut;
    const options = resized({ width: Math.min(width, w) });
    return createImageBitmap(source, x, y, Math.max(w, 1), Math.max(h, 1), options);
  }

  /** What came was no picture: it is loaded anew the next time, past every cache. */
  forget(place: number): void {
    this.blobs.delete(place);
    this.damaged.add(place);
  }

  /** Width over height, once the file of a page was there. */
  shapeOf(place: number): number | undefined {
    const size = this.sizes.get(place);
    return size && size.width / size.height;
  }

  /** Lets go what is kept. */
  close(): void {
    this.blobs.clear();
  }

  private async size(place: number, source: Blob | HTMLImageElement): Promise<Size> {
    const known = this.sizeOf(place) ?? this.sizes.get(place);
    if (known) return known;
    const found = source instanceof Blob ? await sizeOfBlob(source) : naturalSize(source);
    this.sizes.set(place, found);
    return found;
  }

  private async source(place: number, signal: AbortSignal): Promise<Blob | HTMLImageElement> {
    const kept = this.blobs.get(place);
    if (kept) return kept;
    const source = await loadSource(this.urlOf(place), signal, this.damaged.has(place) ? 'reload' : 'default');
    this.damaged.delete(place);
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
}

const naturalSize = ({ naturalWidth, naturalHeight }: HTMLImageElement): Size => ({
  width: naturalWidth,
  height: naturalHeight,
});

async function sizeOfBlob(blob: Blob): Promise<Size> {
  const whole = await createImageBitmap(blob);
  const { width, height } = whole;
  whole.close();
  return { width, height };
}

/** Without a height the shape is kept. */
function resized({ width, height }: { width: number; height?: number }): ImageBitmapOptions {
  const pixels = (length: number) => Math.max(1, Math.round(length));
  const options: ImageBitmapOptions = { resizeWidth: pixels(width), resizeQuality: 'high' };
  return height ? { ...options, resizeHeight: pixels(height) } : options;
}

/** What a bitmap can be made of; see above for why it differs with the protocol. */
export async function loadSource(
  url: string,
  signal = new AbortController().signal,
  cache: RequestCache = 'default',
): Promise<Blob | HTMLImageElement> {
  if (location.protocol === 'file:') return loadImage(url, signal);
  const response = await fetch(url, { signal, cache });
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
