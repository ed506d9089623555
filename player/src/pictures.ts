// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import type { PictureFiles } from './pictureFiles.ts';

interface Picture {
  readonly bitmap: ImageBitmap;
  readonly wantedWidth: number; // pixels that were asked for; the bitmap may have fewer
}

export interface PictureRequest {
  readonly place: number;
  readonly size: Size; // pixels
  /** Whether the page is on the screen; the others wait until all of these are there. */
  readonly seen: boolean;
}

const AT_ONCE = 2;

/**
 * Pictures of pages, decoded at the size at which they are shown. Few are held: those that are
 * wanted, and of the others the ones shown last.
 */
export class Pictures {
  private readonly held = new Map<number, Picture>(); // in order of use, the last one last
  private readonly running = new Map<number, AbortController>();
  private readonly failed = new Set<number>();
  private wanted: readonly PictureRequest[] = [];

  constructor(
    private readonly files: Pick<PictureFiles, 'decode' | 'forget'>,
    private readonly changed: (place: number) => void,
    private readonly mostBitmaps: number,
  ) {}

  /** What is to be held, most urgent first. What runs and is not among it any more is given up. */
  want(requests: readonly PictureRequest[]): void {
    const wasSeen = new Set(this.wanted.filter(({ seen }) => seen).map(({ place }) => place));
    // What failed on the way, perhaps without a network, gets another chance when it is looked at.
    for (const { place, seen } of requests) if (seen && !wasSeen.has(place)) this.failed.delete(place);
    this.wanted = requests;
    for (const [place, controller] of this.running)
      if (!requests.some((request) => request.place === place)) controller.abort();
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

  has(place: number): boolean {
    return this.held.has(place);
  }

  hasFailed(place: number): boolean {
    return this.failed.has(place);
  }

  retry(place: number): void {
    this.failed.delete(place);
    this.startNext();
  }

  /** Gives everything up that is held or under way. */
  close(): void {
    this.want([]);
    for (const { bitmap } of this.held.values()) bitmap.close();
    this.held.clear();
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
    const bitmap = await this.files.decode(place, size, controller.signal).catch(() => undefined);
    this.running.delete(place);
    // One that was given up and is wanted again meanwhile is loaded anew, so that somebody is told.
    if (controller.signal.aborted) bitmap?.close();
    else this.keep(place, bitmap, size.width);
    this.startNext();
  }

  private keep(place: number, bitmap: ImageBitmap | undefined, wantedWidth: number): void {
    if (bitmap) {
      this.held.get(place)?.bitmap.close();
      this.held.delete(place);
      this.held.set(place, { bitmap, wantedWidth });
      this.dropOldest();
    } else {
      this.failed.add(place);
      this.files.forget(place);
    }
    this.changed(place);
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
