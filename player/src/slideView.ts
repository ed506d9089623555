// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookPictures } from './bookPictures.ts';
import { makeCanvas } from './canvas.ts';
import type { Paper } from './facePainter.ts';
import { fadingPicture } from './fading.ts';
import { type Box, clamp, fit, type Size } from './geometry.ts';
import type { Settings } from './settings.ts';
import type { PlacedPage } from './sharpView.ts';
import { SlideMotion } from './slideMotion.ts';
import { stiffnessOf } from './spring.ts';
import { marginOf, onOtherSize, sizeOf } from './stageSize.ts';
import { Ticker } from './ticker.ts';
import type { View, ViewEvents } from './view.ts';
import { NO_ZOOM, type Zoom } from './zoom.ts';
import { ZoomedSheet } from './zoomedSheet.ts';

export interface SlideOptions extends Pick<Settings, 'rightToLeft' | 'turnSeconds' | 'slideEffect' | 'wheelTurns'> {
  readonly paper: Paper;
  readonly standIn: (place: number) => CanvasImageSource | undefined;
}

const NOTHING: Size = { width: 0, height: 0 };

/** One page at a time, as large as the stage allows; the others wait beside it. */
export class SlideView implements View {
  readonly isDouble = false;
  readonly pictures: BookPictures;
  private readonly zoomedSheet: ZoomedSheet;
  private readonly slides = new Map<number, HTMLCanvasElement>(); // by place
  private readonly ticker = new Ticker((seconds) => this.step(seconds));
  private motion: SlideMotion;
  private reducedMotion = false;
  private unfollow: (() => void) | undefined; // the size of the stage
  private hasTurned = false;
  private space: Size = NOTHING;
  private margin: Size = NOTHING;
  private told = 0; // the place that was said to lie open

  constructor(
    readonly host: HTMLElement,
    private readonly book: Book,
    readonly options: SlideOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.pictures = new BookPictures(book, options.paper, options.standIn, (at) => this.pictured(at));
    this.zoomedSheet = new ZoomedSheet(this.pictures, this, (zoom) => events.zoomed(zoom));
    this.motion = new SlideMotion(book.pages.length, place, stiffnessOf(options.turnSeconds));
    this.sheet.append(this.zoomedSheet.sharp.element);
    host.append(this.sheet);
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
    return this.motion.destination;
  }

  get places(): number[] {
    return [this.place];
  }

  get sheet(): HTMLElement {
    return this.zoomedSheet.element;
  }

  get zoom(): Zoom {
    return this.zoomedSheet.zoom;
  }

  get openPart(): Box {
    return this.boxOf(this.place);
  }

  get openPages(): PlacedPage[] {
    const box = this.openPart;
    return [{ place: this.place, picture: box, window: box }];
  }

  get isStill(): boolean {
    return this.motion.isStill;
  }

  /** Whether pages move in from the side, and so can follow a finger. */
  get follows(): boolean {
    return this.options.slideEffect === 'slide' && !this.reducedMotion;
  }

  /** From one page to the next, in CSS pixels. */
  get stride(): number {
    return this.space.width * (this.options.rightToLeft ? -1 : 1);
  }

  canTurn(step: number): boolean {
    return this.place + step >= 1 && this.place + step <= this.book.pages.length;
  }

  turn(count: number): boolean {
    const wanted = clamp(this.place + count, 1, this.book.pages.length);
    if (wanted === this.place) return false;
    if (this.follows) this.motion.turn(count);
    else this.change(wanted);
    this.tellTurned();
    return true;
  }

  goTo(place: number): void {
    if (place === this.place) return;
    if (this.follows) this.motion.jump(place);
    else this.change(place);
    this.tellTurned();
  }

  hold(): number {
    return this.motion.hold();
  }

  drag(position: number): void {
    this.motion.drag(position);
    this.ticker.wake();
  }

  release(velocity: number, isStroke: boolean): void {
    this.motion.release(velocity, isStroke);
    this.tellTurned();
  }

  setReducedMotion(reduced: boolean): void {
    this.reducedMotion = reduced;
  }

  setZoom(zoom: Zoom): void {
    this.zoomedSheet.setZoom(zoom);
  }

  reveal(place: number, top = 0): void {
    this.zoomedSheet.reveal(place, top);
  }

  destroy(): void {
    this.unfollow?.();
    this.ticker.stop();
    this.zoomedSheet.sharp.clear();
    this.pictures.close();
  }

  private pictured(place: number): void {
    const slide = this.slides.get(place);
    if (slide) this.pictures.paint(slide, place, this.boxOf(place));
    if (place === this.place) this.zoomedSheet.sharpen();
    if (!this.book.hasPageList) this.tellPlaced();
    this.events.pictured(place);
  }

  private arrange(): void {
    const space = sizeOf(this.host);
    if (!space.width || !space.height) return;
    const look = this.zoomedSheet.look();
    this.space = space;
    this.margin = marginOf(this.host);
    this.motion.show(this.place);
    for (const place of this.slides.keys()) this.drop(place);
    this.zoomedSheet.layOut(space, 0, look);
    this.showSlides();
  }

  private tell(): void {
    this.tellPlaced();
    this.events.settled(this.places);
  }

  /** Another page is meant to be seen from here on. */
  private tellTurned(): void {
    this.ticker.wake();
    if (this.place === this.told) return;
    this.hasTurned = true;
    if (this.zoom.scale !== 1) this.setZoom(NO_ZOOM);
    this.tellPlaced();
    this.events.turned(this.places);
  }

  private tellPlaced(): void {
    this.told = this.place;
    this.events.placed(this.openPages);
  }

  private step(seconds: number): boolean {
    const rests = this.motion.isStill || this.motion.step(seconds);
    this.showSlides();
    if (rests) this.settle();
    return !rests && !this.motion.isHeld;
  }

  private settle(): void {
    this.zoomedSheet.sharpen();
    this.events.settled(this.places);
  }

  private change(place: number): void {
    const before = this.slides.get(this.place);
    const box = this.boxOf(this.place);
    if (before && this.options.slideEffect !== 'none') this.sheet.append(fadingPicture(box, [{ canvas: before, box }]));
    this.motion.show(place);
    this.showSlides();
  }

  /** In the middle of the stage, inside its padding. */
  private boxOf(place: number): Box {
    return centred(this.pictures.shapeOf(place), this.space, this.margin);
  }

  /** What is seen and what lies beside it has a canvas. */
  private showSlides(): void {
    const { slots, position, isStill } = this.motion;
    const seen = new Map(slots.map((slot) => [this.motion.placeIn(slot), slot]));
    const here = this.place;
    const kept = [...seen.keys(), here, here + 1, here - 1];
    for (const place of this.slides.keys()) if (!kept.includes(place)) this.drop(place);
    for (const place of kept) if (place >= 1 && place <= this.book.pages.length) this.slide(place);
    for (const [place, slide] of this.slides) {
      const slot = seen.get(place);
      slide.hidden = slot === undefined;
      slide.style.transform = slot === undefined || slot === position ? '' : `translateX(${(slot - position) * this.stride}px)`;
    }
    this.sheet.classList.toggle('moving', !isStill);
    const next = this.hasTurned ? [here + 1, here + 2, here - 1] : [here + 1];
    this.pictures.want(
      [here, ...seen.keys(), ...next],
      (place) => place === here || seen.has(place),
      (place) => this.boxOf(place),
    );
  }

  private slide(place: number): HTMLCanvasElement {
    const known = this.slides.get(place);
    if (known) return known;
    const slide = makeCanvas('side');
    this.slides.set(place, slide);
    this.zoomedSheet.sharp.element.before(slide);
    this.pictures.paint(slide, place, this.boxOf(place));
    return slide;
  }

  private drop(place: number): void {
    const slide = this.slides.get(place)!;
    slide.width = 0; // frees the pixels at once
    slide.remove();
    this.slides.delete(place);
  }
}

/** In whole pixels, so that resting pictures are sharp. */
function centred(shape: number, space: Size, margin: Size): Box {
  const inside = { width: space.width - 2 * margin.width, height: space.height - 2 * margin.height };
  const size = fit(shape, { width: Math.max(inside.width, 1), height: Math.max(inside.height, 1) });
  const [width, height] = [Math.max(Math.round(size.width), 1), Math.max(Math.round(size.height), 1)];
  return { x: Math.round((space.width - width) / 2), y: Math.round((space.height - height) / 2), width, height };
}
