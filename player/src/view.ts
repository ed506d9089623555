// SPDX-License-Identifier: MIT
import type { BookPictures } from './bookPictures.ts';
import type { Mode } from './layout.ts';
import type { PlacedPage } from './sharpView.ts';
import type { Zoom } from './zoom.ts';

/** How pages are shown: as a book whose leaves turn, one at a time, or below each other. */
export type ViewKind = 'book' | 'slide' | 'scroll';

export const viewKind = (name: string | undefined): ViewKind => (name === 'slide' || name === 'scroll' ? name : 'book');

export interface ViewEvents {
  /** Other pages will lie open when all has landed. */
  turned(places: readonly number[]): void;
  /** They lie open. */
  settled(places: readonly number[]): void;
  /** Places or sizes of pages on the screen changed. */
  placed(pages: readonly PlacedPage[]): void;
  zoomed(zoom: Zoom): void;
  /** A page's picture came, or could not be loaded. */
  pictured(place: number): void;
  /** The reader asked for a page by the book itself. */
  jumpAsked(place: number): void;
}

/**
 * The pages on the stage. A view draws itself and asks for pictures as soon as it is made, so that
 * these are under way while the rest of the page is built; it tells of what happens to it by its
 * `ViewEvents`.
 */
export interface View {
  readonly host: HTMLElement;
  readonly pictures: Pick<BookPictures, 'hasPicture' | 'hasFailed' | 'retry'>;
  /** Tells what lies open, and follows the size of the stage from now on. To be called once. */
  start(): void;
  /** What pages lie on; layers over them go into it. */
  readonly sheet: HTMLElement;
  /** Of the pages that lie open, or will when all has landed, in reading order. */
  readonly places: readonly number[];
  readonly place: number;
  readonly isDouble: boolean;
  readonly zoom: Zoom;
  /** Where that is less than for others. */
  readonly mostScale?: number;
  /** Goes on or back by so many steps; answers whether there was any to go. */
  turn(count: number): boolean;
  /** `top` is what is to be seen of the page, as a fraction of its height. */
  goTo(place: number, top?: number): void;
  /** As `goTo`, for an open page where that may be partly out of sight. */
  reveal?(place: number, top?: number): void;
  /** Where pages can lie side by side. */
  setMode?(mode: Mode): void;
  setReducedMotion(reduced: boolean): void;
  setZoom(zoom: Zoom): void;
  /** Stops whatever moves or is loaded, and frees it. Nothing else may be asked of the view then. */
  destroy(): void;
}
