// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { Emitter } from './emitter.ts';
import { clamp } from './geometry.ts';
import type { Mode } from './layout.ts';
import type { Settings } from './settings.ts';
import type { PlacedPage } from './sharpView.ts';
import { Thumbnails } from './thumbnails.ts';
import type { View, ViewKind } from './view.ts';
import { makeView } from './views.ts';
import type { Zoom } from './zoom.ts';
import { MOST_SCALE, panBy, zoomAbout } from './zoom.ts';

export interface ReaderEvents {
  /** The pages that will lie open; said at once, while leaves still move. */
  turned: readonly number[];
  /** The pages that lie open now that all leaves have landed. */
  settled: readonly number[];
  /** Where pages lie on the sheet, for what is laid over them. */
  placed: readonly PlacedPage[];
  zoomed: Zoom;
  motionReduced: boolean;
  /** A page's picture came, or could not be loaded. */
  pictured: number;
  /** A jump is about to happen, from a page to another; for the history. */
  jumped: { readonly from: number; readonly to: number };
  /** A jump was asked for to a page that lies open. */
  revealed: number;
}

/**
 * The book in a reader's hands: everything that buttons, keys, addresses and panels ask for or
 * want to know. Pages are named by their place, from 1.
 */
export class Reader extends Emitter<ReaderEvents> {
  /** They also stand in for pages that are on their way. */
  readonly thumbnails: Thumbnails;
  private readonly view: View;
  private isMotionReduced = false;

  constructor(
    stage: HTMLElement,
    readonly book: Book,
    readonly settings: Settings,
    place: number,
    readonly kind: ViewKind = 'book',
  ) {
    super();
    this.thumbnails = new Thumbnails(book.pages);
    const standIn = (at: number) => this.thumbnails.get(at);
    const events = {
      turned: (places: readonly number[]) => this.emit('turned', places),
      settled: (places: readonly number[]) => this.emit('settled', places),
      placed: (pages: readonly PlacedPage[]) => this.emit('placed', pages),
      zoomed: (zoom: Zoom) => this.emit('zoomed', zoom),
      pictured: (place: number) => this.emit('pictured', place),
      jumpAsked: (to: number) => this.goTo(to),
    };
    this.view = makeView(kind, stage, book, settings, standIn, events, this.within(place));
  }

  /** Once everything listens that wants to know what is shown. */
  start(): void {
    this.view.start();
  }

  /** What pages lie on; layers over them go into it, so that they are zoomed along. */
  get sheet(): HTMLElement {
    return this.view.sheet;
  }

  get places(): readonly number[] {
    return this.view.places;
  }

  get place(): number {
    return this.view.place;
  }

  get pageCount(): number {
    return this.book.pages.length;
  }

  get isDouble(): boolean {
    return this.view.isDouble;
  }

  get scale(): number {
    return this.view.zoom.scale;
  }

  get mostScale(): number {
    return this.view.mostScale ?? MOST_SCALE;
  }

  /** A cross-fade takes the place of the turn. */
  get hasReducedMotion(): boolean {
    return this.isMotionReduced;
  }

  next(): boolean {
    return this.view.turn(1);
  }

  previous(): boolean {
    return this.view.turn(-1);
  }

  /** A jump that the back button undoes, to a page or to what lies at a fraction of its height. */
  goTo(place: number, top?: number): void {
    const to = this.within(place);
    if (this.places.includes(to)) {
      this.view.reveal?.(to, top);
      return this.emit('revealed', to);
    }
    this.emit('jumped', { from: this.place, to });
    this.view.goTo(to, top);
  }

  /** Without a trace in the history. */
  show(place: number): void {
    this.view.goTo(this.within(place));
  }

  setMode(mode: Mode): void {
    this.view.setMode?.(mode);
  }

  setReducedMotion(reduced: boolean): void {
    this.isMotionReduced = reduced;
    this.view.setReducedMotion(reduced);
    this.emit('motionReduced', reduced);
  }

  /** About the middle of the stage. */
  zoomTo(scale: number): void {
    const { clientWidth, clientHeight } = this.view.host;
    this.view.setZoom(zoomAbout(this.view.zoom, { x: clientWidth / 2, y: clientHeight / 2 }, scale));
  }

  /** Moves on over a zoomed page by parts of the stage; answers whether there was anywhere to go. */
  pan(across: number, down: number): boolean {
    const { zoom, host } = this.view;
    if (zoom.scale <= 1) return false;
    this.view.setZoom(panBy(zoom, { x: -across * host.clientWidth, y: -down * host.clientHeight }));
    const { x, y } = this.view.zoom.offset;
    return Math.abs(x - zoom.offset.x) > 1 || Math.abs(y - zoom.offset.y) > 1;
  }

  /** Whether a page's picture is there. */
  hasPicture(place: number): boolean {
    return this.view.pictures.hasPicture(place);
  }

  /** Whether it could not be loaded. */
  hasFailed(place: number): boolean {
    return this.view.pictures.hasFailed(place);
  }

  retry(place: number): void {
    this.view.pictures.retry(place);
  }

  /** Nothing is told any more, and nothing more can be asked. */
  destroy(): void {
    this.clear();
    this.view.destroy();
    this.thumbnails.destroy();
  }

  private within(place: number): number {
    return clamp(Math.round(place) || 1, 1, Math.max(this.pageCount, 1));
  }
}
