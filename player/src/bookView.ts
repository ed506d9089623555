// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookPictures } from './bookPictures.ts';
import { BookPlan } from './bookPlan.ts';
import type { Paper } from './facePainter.ts';
import { FlyingLeaves } from './flyingLeaves.ts';
import { type Box, clamp, type Point } from './geometry.ts';
import type { Quality } from './governor.ts';
import { airSpace, placedPages, wantedPlaces } from './ground.ts';
import type { Mode } from './layout.ts';
import { PageEdges } from './pageEdges.ts';
import { RestingSides } from './restingSides.ts';
import type { Settings } from './settings.ts';
import type { PlacedPage } from './sharpView.ts';
import { stiffnessOf } from './spring.ts';
import { marginOf, onOtherSize, sizeOf } from './stageSize.ts';
import { type FlyingLeaf, Turning } from './turning.ts';
import type { View, ViewEvents } from './view.ts';
import type { Zoom } from './zoom.ts';
import { ZoomedSheet } from './zoomedSheet.ts';

type Wishes = 'mode' | 'coverAlone' | 'rightToLeft' | 'turnSeconds' | 'hardCovers' | 'pageEdges' | 'wheelTurns';

export interface ViewOptions extends Pick<Settings, Wishes> {
  readonly paper: Paper;
  readonly standIn: (place: number) => CanvasImageSource | undefined;
}

const MOST_BITMAPS = 10;
/** Spreads to be loaded too, from the open one. Who only opens a book may never turn a page. */
const NEAR_AT_FIRST = [1, -1];
const NEAR_AFTER_A_TURN = [1, 2, -1];

/**
 * The open book: two resting sides and the leaves in the air, in a sheet that zooming scales. Knows
 * places and spreads; what hands, keys and addresses do to it is said by its methods.
 */
export class BookView implements View {
  private readonly sides: RestingSides;
  readonly pictures: BookPictures;
  private readonly leaves: FlyingLeaves;
  private readonly zoomedSheet: ZoomedSheet;
  private readonly edges: PageEdges;
  private plan!: BookPlan;
  private turning!: Turning; // made with the first plan
  private mode: Mode;
  fades = false; // rather than turn leaves
  private unfollow: (() => void) | undefined; // the size of the stage
  private hasTurned = false;
  private heading: 1 | -1 = 1; // of the last turn
  private told = 0; // the spread that was last said to lie open
  private asked: number; // a page of that

  constructor(
    readonly host: HTMLElement,
    private readonly book: Book,
    readonly options: ViewOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.mode = options.mode;
    this.asked = place;
    this.pictures = new BookPictures(book, options.paper, options.standIn, (at) => this.pictured(at), MOST_BITMAPS);
    this.sides = new RestingSides(this.pictures, options.paper);
    this.leaves = new FlyingLeaves(this.pictures.source, options.paper, options.rightToLeft);
    this.zoomedSheet = new ZoomedSheet(this.pictures, this, (zoom) => events.zoomed(zoom));
    this.edges = new PageEdges(book.pages.length, (place) => events.jumpAsked(place));
    if (options.pageEdges) this.sheet.append(this.edges.start, this.edges.end);
    this.sheet.append(...Object.values(this.sides.canvases), this.zoomedSheet.sharp.element, this.leaves.element);
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

  get sheet(): HTMLElement {
    return this.zoomedSheet.element;
  }

  /** Of the pages that lie open, or will when all has landed, in reading order. */
  get places(): number[] {
    return this.plan.placesAt(this.turning.destination);
  }

  get place(): number {
    return this.places[0] ?? 1;
  }

  get isDouble(): boolean {
    return this.plan.layout.double;
  }

  get zoom(): Zoom {
    return this.zoomedSheet.zoom;
  }

  get flying(): readonly FlyingLeaf[] {
    return this.turning.leaves;
  }

  setReducedMotion(reduced: boolean): void {
    this.fades = reduced;
  }

  canTurn(step: number): boolean {
    const spread = this.turning.destination + step;
    return spread >= 0 && spread <= this.plan.lastSpread;
  }

  turn(count: number): boolean {
    const turned = this.fades
      ? this.fadeTo(clamp(this.turning.destination + count, 0, this.plan.lastSpread))
      : this.turning.turn(count);
    if (turned) this.tellTurned();
    return turned;
  }

  goTo(place: number, top?: number): void {
    const spread = this.plan.spreadOf(place);
    if (this.fades) this.fadeTo(spread);
    else this.turning.jump(spread);
    this.tellTurned();
    this.asked = place;
    if (top !== undefined) this.zoomedSheet.reveal(place, top, this.moveSeconds);
  }

  reveal(place: number, top = 0): void {
    this.zoomedSheet.reveal(place, top);
  }

  setMode(mode: Mode): void {
    this.mode = mode;
    this.arrange();
    this.tell();
  }

  setZoom(zoom: Zoom): void {
    this.zoomedSheet.setZoom(zoom);
  }

  get openPart(): Box {
    return this.plan.openPart(this.turning.destination);
  }

  get openPages(): PlacedPage[] {
    const { destination } = this.turning;
    return placedPages(this.plan, { lowest: destination, highest: destination });
  }

  get isStill(): boolean {
    return !this.turning.isMoving;
  }

  /** A point of the host, in CSS pixels, in leaf coordinates (see curl.ts) with the height 1. */
  leafPoint(point: Point): Point {
    return this.plan.leafPoint(this.zoomedSheet.toSheet(point));
  }

  get leafShape(): number {
    return this.plan.leafShape;
  }

  /** CSS pixels of the height that leaf coordinates have as their unit. */
  get leafPixels(): number {
    return this.plan.layout.leaf.height * this.zoom.scale;
  }

  hold(step: 1 | -1, pointer: Point): FlyingLeaf | undefined {
    this.zoomedSheet.rest();
    return this.turning.hold(step, pointer);
  }

  drag(leaf: FlyingLeaf, pointer: Point): void {
    this.turning.drag(leaf, pointer);
  }

  /** To the side given, or else where it falls by itself. */
  release(leaf: FlyingLeaf, velocity: Point, target?: 0 | 1): void {
    this.turning.release(leaf, velocity, target);
    this.tellTurned();
  }

  destroy(): void {
    this.unfollow?.();
    this.turning.stop();
    this.zoomedSheet.sharp.clear();
    this.pictures.close();
  }

  private pictured(place: number): void {
    this.paintSides();
    if (this.turning.isMoving) this.turning.wake();
    else this.prepareNextLeaf();
    if (this.places.includes(place)) this.zoomedSheet.sharpen();
    if (!this.book.hasPageList) this.placePages();
    this.events.pictured(place);
  }

  private tellTurned(): void {
    const { destination } = this.turning;
    if (destination === this.told) return;
    this.heading = destination > this.told ? 1 : -1;
    this.hasTurned = true;
    this.told = destination;
    this.asked = this.place;
    // A closed book lies in the middle.
    this.zoomedSheet.move(this.plan.shiftAt(destination), this.moveSeconds);
    this.events.turned(this.places);
  }

  private get moveSeconds(): number {
    return this.fades ? 0 : this.options.turnSeconds;
  }

  /** A cross-fade instead of a turn. */
  private fadeTo(spread: number): boolean {
    if (spread === this.turning.destination) return false;
    this.sheet.append(this.sides.fading(this.plan));
    this.turning.settle(spread);
    return true;
  }

  /** In the size that the stage has, at the page that was asked for last, or the one that is looked at. */
  private arrange(): void {
    const look = this.turning && this.zoomedSheet.look();
    const space = sizeOf(this.host);
    const options = { ...this.options, shapeOf: (place: number) => this.pictures.shapeOf(place) };
    this.plan = new BookPlan(this.book, options, space, marginOf(this.host), this.mode);
    if (look) this.asked = look.place;
    this.startTurning(this.plan.spreadOf(this.asked));
    // What takes longest is under way before anything is drawn.
    this.wantPictures();
    this.zoomedSheet.layOut(space, this.plan.shiftAt(this.told), look);
    this.leaves.clear();
    this.paintSides();
  }

  private tell(): void {
    this.placePages();
    this.events.settled(this.places);
  }

  private startTurning(spread: number): void {
    const leaf = { width: this.leafShape, height: 1 };
    this.told = spread;
    // One that goes on would tell of spreads that there are not any more.
    this.turning?.stop();
    this.turning = new Turning(this.plan.spreads.length, spread, leaf, stiffnessOf(this.options.turnSeconds), {
      frame: (quality) => this.paintLeaves(quality),
      changed: () => this.showGround(),
      settled: () => this.settle(),
    });
  }

  private settle(): void {
    this.zoomedSheet.sharpen();
    this.events.settled(this.places);
    this.prepareNextLeaf();
  }

  private showGround(): void {
    this.zoomedSheet.sharp.clear();
    this.wantPictures();
    this.paintSides();
    this.placePages();
  }

  private placePages(): void {
    this.edges.place(this.plan, this.turning.lowest, this.options.rightToLeft);
    this.events.placed(placedPages(this.plan, this.turning));
  }

  private wantPictures(): void {
    if (this.host.clientWidth === 0) return; // not seen yet
    const { seen, all } = wantedPlaces(this.plan, this.turning, this.hasTurned ? NEAR_AFTER_A_TURN : NEAR_AT_FIRST);
    this.pictures.want(all.slice(0, MOST_BITMAPS), (place) => seen.includes(place), (place) => this.plan.pageSize(place));
  }

  private paintSides(): void {
    this.sides.paint(this.plan, this.turning);
  }

  private paintLeaves(quality: Quality): void {
    if (this.turning.isMoving) this.leaves.paint(this.plan, this.turning, airSpace(this.plan, this.turning, sizeOf(this.host)), quality);
    else this.leaves.clear();
  }

  private prepareNextLeaf(): void {
    if (this.fades) return;
    const from = this.turning.destination - (this.heading > 0 ? 0 : 1);
    this.leaves.prepareSoon(this.plan, { from, to: from + 1 }, () => !this.turning.isMoving);
  }
}
