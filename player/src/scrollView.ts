// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookPictures } from './bookPictures.ts';
import { makeCanvas, putCanvas } from './canvas.ts';
import { type Anchor, anchorAt, type Column, heightOf, layoutColumn, placesBetween, readingHeight, scrolledTo } from './column.ts';
import { create } from './dom.ts';
import type { Paper } from './facePainter.ts';
import { type Box, clamp } from './geometry.ts';
import { SharpView } from './sharpView.ts';
import { onOtherSize } from './stageSize.ts';
import type { View, ViewEvents } from './view.ts';
import { LEAST_SCALE, MOST_SCALE, type Zoom, zoomAbout } from './zoom.ts';

export interface ScrollOptions {
  readonly readingWidth: number;
  readonly paper: Paper;
  readonly standIn: (place: number) => CanvasImageSource | undefined;
}

const REST_MILLISECONDS = 120;
/** No browser scrolls reliably through much more. */
const MOST_HEIGHT = 16e6;
/** From the upper edge of the window to a page that is gone to, and to a line on a page. */
const LEAD_PIXELS = 10;
const LINE_LEAD = 0.3; // of the window's height
const TOLERANCE_PIXELS = 2;

/** Where a jump or a step goes, until its reader scrolls elsewhere. */
interface Aim {
  readonly place: number;
  readonly part: number; // of the page's height
  readonly top: number; // to be scrolled to
  away: number; // the least distance so far
}

/**
 * All pages below each other in a stage that the browser scrolls. Only those near the window exist;
 * a spacer keeps the room of the others. What lies on the sheet is laid out as before zoom.
 */
export class ScrollView implements View {
  readonly sheet = create('div', { className: 'sheet' });
  readonly isDouble = false;
  private readonly spacer = create('div');
  readonly pictures: BookPictures;
  private readonly sharp: SharpView;
  private readonly canvases = new Map<number, HTMLCanvasElement>(); // by place
  private column: Column = { boxes: [], width: 0, height: 0 };
  private scale = 1;
  private left = 0; // of the sheet, where it is narrower than the window
  private aim: Aim | undefined;
  private reducedMotion = false;
  private unfollow: (() => void) | undefined; // the size of the stage
  private shown = '';
  private last = 0; // scrolled to
  private reading: Anchor;
  private told: number;
  private rest = 0;

  constructor(
    readonly host: HTMLElement,
    private readonly book: Book,
    private readonly options: ScrollOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.told = place;
    this.reading = { place, part: 0 };
    this.pictures = new BookPictures(book, options.paper, options.standIn, (at) => this.pictured(at));
    this.sharp = new SharpView(this.pictures.files);
    this.sheet.append(this.sharp.element);
    host.append(this.spacer, this.sheet);
    host.tabIndex = 0; // so that keys scroll it
    host.addEventListener('scroll', () => this.scrolled(), { passive: true });
    this.arrange();
  }

  start(): void {
    this.tell();
    this.unfollow = onOtherSize(this.host, () => {
      this.arrange();
      this.tell();
    });
  }

  get place(): number {
    return this.aim?.place ?? this.told;
  }

  get places(): number[] {
    return [this.place];
  }

  get zoom(): Zoom {
    const { scrollLeft, scrollTop } = this.host;
    return { scale: this.scale, offset: { x: this.left - scrollLeft, y: -scrollTop } };
  }

  get mostScale(): number {
    return this.isLaidOut ? clamp(MOST_HEIGHT / this.column.height, LEAST_SCALE, MOST_SCALE) : MOST_SCALE;
  }

  turn(count: number): boolean {
    const wanted = clamp(this.place + count, 1, this.book.pages.length);
    if (wanted === this.place) return false;
    this.scrollTo(wanted, 0, this.reducedMotion ? 'auto' : 'smooth');
    return true;
  }

  goTo(place: number, top = 0): void {
    this.scrollTo(place, top, 'auto');
  }

  reveal(place: number, top?: number): void {
    this.goTo(place, top);
  }

  setReducedMotion(reduced: boolean): void {
    this.reducedMotion = reduced;
  }

  setZoom(zoom: Zoom): void {
    if (!this.isLaidOut) return;
    const most = this.mostScale;
    const middle = { x: this.host.clientWidth / 2, y: this.host.clientHeight / 2 };
    const { scale, offset } = zoom.scale > most ? zoomAbout(this.zoom, middle, most) : zoom;
    this.scale = scale;
    this.aim = undefined;
    this.placeSheet();
    this.host.scrollTo({ left: this.left - offset.x, top: -offset.y, behavior: 'instant' });
    this.sharp.clear();
    this.scrolled();
    this.events.zoomed(this.zoom);
  }

  destroy(): void {
    this.unfollow?.();
    clearTimeout(this.rest);
    this.sharp.clear();
    this.pictures.close();
  }

  private pictured(place: number): void {
    const canvas = this.canvases.get(place);
    if (canvas) this.pictures.paint(canvas, place, this.boxOf(place));
    this.events.pictured(place);
  }

  private get isLaidOut(): boolean {
    return this.column.boxes.length > 0;
  }

  private boxOf(place: number): Box {
    return this.column.boxes[place - 1]!;
  }

  private arrange(): void {
    const { clientWidth, clientHeight } = this.host;
    if (!clientWidth || !clientHeight) return;
    const aim = this.isLaidOut ? this.aim : { place: this.told, part: 0, ...this.aim };
    this.column = layoutColumn(this.book.pages, this.book.shape, clientWidth, this.options.readingWidth);
    this.scale = Math.min(this.scale, MOST_HEIGHT / this.column.height);
    for (const place of this.canvases.keys()) this.drop(place);
    this.shown = '';
    this.sharp.clear();
    this.placeSheet();
    if (aim) this.goTo(aim.place, aim.part);
    else this.host.scrollTop = scrolledTo(heightOf(this.column, this.reading), clientHeight / this.scale, this.column.height) * this.scale;
    this.scrolled();
  }

  private tell(): void {
    if (!this.isLaidOut) return;
    this.events.placed(this.placed());
    this.events.settled(this.places);
  }

  private placeSheet(): void {
    const { scale, column } = this;
    this.left = Math.max(Math.round((this.host.clientWidth - column.width * scale) / 2), 0);
    this.sheet.style.transform = `translateX(${this.left}px)${scale === 1 ? '' : ` scale(${scale})`}`;
    Object.assign(this.spacer.style, { width: `${column.width * scale}px`, height: `${column.height * scale}px` });
  }

  /** A stage without a size, as in a hidden part of another page, goes there once it has got one. */
  private aimAt(place: number, part: number): void {
    this.aim = { place, part, top: 0, away: 0 };
    if (place === this.told) return;
    this.told = place;
    this.events.turned([place]);
  }

  private scrollTo(place: number, part: number, behavior: ScrollBehavior): void {
    if (!this.isLaidOut) return this.aimAt(place, part);
    const { clientHeight, scrollHeight, scrollTop } = this.host;
    const lead = part > 0 ? clientHeight * LINE_LEAD : LEAD_PIXELS;
    const wanted = heightOf(this.column, { place, part }) * this.scale - lead;
    const top = clamp(wanted, 0, Math.max(scrollHeight - clientHeight, 0));
    this.aim = { place, part, top, away: Math.abs(scrollTop - top) };
    this.host.scrollTo({ top, behavior });
    this.last = this.host.scrollTop;
    this.scrolled();
  }

  private scrolled(): void {
    const { scrollTop, clientHeight } = this.host;
    // Whoever drags the scroll bar through the document does not look at what flies by.
    const hurries = Math.abs(scrollTop - this.last) > clientHeight;
    this.last = scrollTop;
    this.followAim();
    this.tellPlace();
    if (this.showPages() && !hurries) this.wantPictures();
    clearTimeout(this.rest);
    this.rest = window.setTimeout(() => this.settle(), REST_MILLISECONDS);
  }

  /** An aim holds as long as the window comes nearer to it. */
  private followAim(): void {
    if (!this.aim) return;
    const away = Math.abs(this.host.scrollTop - this.aim.top);
    if (away > this.aim.away + TOLERANCE_PIXELS) this.aim = undefined;
    else this.aim.away = Math.min(away, this.aim.away);
  }

  private tellPlace(): void {
    const { scrollTop, clientHeight, scrollHeight } = this.host;
    this.reading = anchorAt(this.column, readingHeight(scrollTop, clientHeight, scrollHeight) / this.scale);
    const { place } = this.aim ?? this.reading;
    if (place === this.told) return;
    this.told = place;
    this.events.turned([place]);
  }

  private settle(): void {
    this.wantPictures();
    for (const [place, canvas] of this.canvases)
      if (canvas.dataset.drawn === undefined) this.pictures.paint(canvas, place, this.boxOf(place));
    if (this.scale > 1) this.sharp.showSoon(this.placed(), this.seen(), this.scale);
    this.events.settled(this.places);
  }

  /** The part of the sheet that is seen. */
  private seen(): Box {
    const { scrollLeft, scrollTop, clientWidth, clientHeight } = this.host;
    const [x, y, width, height] = [scrollLeft - this.left, scrollTop, clientWidth, clientHeight].map((each) => each / this.scale);
    return { x: x!, y: y!, width: width!, height: height! };
  }

  private seenPlaces(): [number, number] {
    const { y, height } = this.seen();
    return placesBetween(this.column, y, y + height);
  }

  private placed(): { place: number; picture: Box; window: Box }[] {
    const [first, last] = this.seenPlaces();
    return range(first, last).map((place) => ({ place, picture: this.boxOf(place), window: this.boxOf(place) }));
  }

  /** Answers whether there are others than before. */
  private showPages(): boolean {
    const [first, last] = this.seenPlaces();
    if (this.shown === `${first} ${last}`) return false;
    this.shown = `${first} ${last}`;
    const near = range(Math.max(first - 1, 1), Math.min(last + 1, this.book.pages.length));
    for (const place of this.canvases.keys()) if (!near.includes(place)) this.drop(place);
    for (const place of near) this.add(place);
    this.events.placed(this.placed());
    return true;
  }

  private wantPictures(): void {
    const [first, last] = this.seenPlaces();
    this.pictures.want(
      [...range(first, last), last + 1, first - 1],
      (place) => place >= first && place <= last,
      (place) => this.boxOf(place),
    );
  }

  /** An empty page first, because it gets its pixels only when there is something to paint. */
  private add(place: number): void {
    if (this.canvases.has(place)) return;
    const canvas = makeCanvas('side');
    this.canvases.set(place, canvas);
    this.sharp.element.before(canvas);
    canvas.style.backgroundColor = this.options.paper.colour;
    if (this.pictures.pictures.get(place)) this.pictures.paint(canvas, place, this.boxOf(place));
    else putCanvas(canvas, this.boxOf(place), 0);
  }

  private drop(place: number): void {
    const canvas = this.canvases.get(place)!;
    canvas.width = 0; // frees the pixels at once
    canvas.remove();
    this.canvases.delete(place);
  }
}

const range = (first: number, last: number): number[] =>
  Array.from({ length: last - first + 1 }, (_, index) => first + index);
