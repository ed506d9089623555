// SPDX-License-Identifier: MIT
import type { BookPictures } from './bookPictures.ts';
import { create } from './dom.ts';
import type { Box, Point, Size } from './geometry.ts';
import { type PlacedPage, SharpView } from './sharpView.ts';
import { keptInSight, middleOf, NO_ZOOM, seenBox, type Zoom, zoomOn } from './zoom.ts';

/** What lies on a sheet, in CSS pixels before zoom. */
export interface OnSheet {
  /** What lies open, or will when all has landed, where the stage shows it. */
  readonly openPart: Box;
  /** The pages of that, in the sheet. */
  readonly openPages: readonly PlacedPage[];
  /** Whether they are all that is seen. */
  readonly isStill: boolean;
}

/** How much and where a page is enlarged, in fractions of it. */
export interface Look {
  readonly place: number;
  readonly scale: number;
  readonly at: Point;
}

/** Where the sheet lies that holds the laid-out pages: zoomed, and moved so that a closed book lies in the middle. */
export class ZoomedSheet {
  readonly element = create('div', { className: 'sheet' });
  readonly sharp: SharpView;
  private current = NO_ZOOM;
  private shifted = 0;
  private stageSize: Size = { width: 0, height: 0 };

  constructor(
    private readonly pictures: BookPictures,
    private readonly on: OnSheet,
    private readonly tell: (zoom: Zoom) => void,
  ) {
    this.sharp = new SharpView(pictures.files);
  }

  get zoom(): Zoom {
    return this.current;
  }

  setZoom(zoom: Zoom, seconds = 0): void {
    this.put(zoom, this.shifted, seconds);
    this.sharpen();
    this.tell(this.current);
  }

  /** Other pages are to lie open: shows no more of what lies around them than it must. */
  move(shift: number, seconds: number): void {
    this.put(this.current, shift, seconds);
    if (this.current.scale !== 1) this.tell(this.current);
  }

  /** To where it was to come, at once. */
  rest(): void {
    this.element.style.transition = '';
  }

  /** Of what is enlarged, the page in the middle of the stage. */
  look(): Look | undefined {
    const { scale } = this.current;
    const middle = this.toSheet({ x: this.stageSize.width / 2, y: 0 }).x;
    const away = ({ window }: PlacedPage) => Math.abs(window.x + window.width / 2 - middle);
    const [page] = scale > 1 ? [...this.on.openPages].sort((one, other) => away(one) - away(other)) : [];
    return page && { place: page.place, scale, at: middleOf(this.current, this.boxOf(page), this.stageSize) };
  }

  /** Shows pages that were laid out anew, in a stage of some size, as they were looked at before. */
  layOut(stage: Size, shift: number, look: Look | undefined): void {
    this.stageSize = stage;
    this.shifted = shift;
    this.sharp.clear();
    const page = look && this.pageAt(look.place);
    this.setZoom(page ? zoomOn(look.scale, look.at, this.boxOf(page), stage) : NO_ZOOM);
  }

  /** Moves over an enlarged page to what lies at a fraction of its height. */
  reveal(place: number, top: number, seconds = 0): void {
    const page = this.pageAt(place);
    const { scale } = this.current;
    if (page && scale > 1) this.setZoom(zoomOn(scale, { x: 0.5, y: top }, this.boxOf(page), this.stageSize), seconds);
  }

  /** While pages move they are seen scaled; what was sharp before would lie over them. */
  sharpen(): void {
    const { scale } = this.current;
    const pages = this.on.openPages.filter(({ place }) => this.pictures.hasPicture(place));
    const { x, ...size } = seenBox(this.current, this.stageSize);
    if (scale <= 1 || !this.on.isStill) this.sharp.clear();
    else this.sharp.showSoon(pages, { ...size, x: x - this.shifted }, scale);
  }

  /** A point of the stage, as a point of the sheet. */
  toSheet({ x, y }: Point): Point {
    const { scale, offset } = this.current;
    return { x: (x - offset.x) / scale - this.shifted, y: (y - offset.y) / scale };
  }

  private pageAt(place: number): PlacedPage | undefined {
    return this.on.openPages.find((page) => page.place === place);
  }

  private boxOf({ picture }: PlacedPage): Box {
    return { ...picture, x: picture.x + this.shifted };
  }

  /** Takes its time when that is given. */
  private put(zoom: Zoom, shift: number, seconds: number): void {
    this.shifted = shift;
    this.current = zoom.scale === 1 ? NO_ZOOM : keptInSight(zoom, this.on.openPart, this.stageSize);
    const { scale, offset } = this.current;
    const x = offset.x + shift * scale;
    const { style } = this.element;
    style.transition = seconds > 0 ? `transform ${seconds}s cubic-bezier(0.3, 0, 0.2, 1)` : '';
    style.transform = scale === 1 && x === 0 ? '' : `translate(${x}px, ${offset.y}px) scale(${scale})`;
  }
}
