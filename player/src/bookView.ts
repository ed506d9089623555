// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookPictures } from './bookPictures.ts';
import { BookPlan } from './bookPlan.ts';
import { type Paper, paintFace } from './facePainter.ts';
import { fadingPicture } from './fading.ts';
import { FlyingLeaves } from './flyingLeaves.ts';
import { clamp, type Point } from './geometry.ts';
import type { Quality } from './governor.ts';
import { airSpace, faceOnGround, placedPages, wantedPlaces } from './ground.ts';
import type { Mode } from './layout.ts';
import { PageEdges } from './pageEdges.ts';
import { RestingSides, type Side, SIDES } from './restingSides.ts';
import { type PlacedPage, SharpView } from './sharpView.ts';
import { SheetPlace } from './sheetPlace.ts';
import type { Face } from './spreads.ts';
import { stiffnessOf } from './spring.ts';
import { marginOf, onOtherSize, sizeOf } from './stageSize.ts';
import { type FlyingLeaf, Turning } from './turning.ts';
import type { View, ViewEvents } from './view.ts';
import { keptInSight, middleOf, NO_ZOOM, type Zoom, zoomOn } from './zoom.ts';

export interface ViewOptions {
  readonly mode: Mode;
  readonly coverAlone: boolean;
  readonly rightToLeft: boolean;
  readonly turnSeconds: number;
  readonly paper: Paper;
  readonly standIn: (place: number) => CanvasImageSource | undefined;
  readonly hardCovers: boolean;
  readonly pageEdges: boolean;
  readonly wheelTurns: boolean;
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
  private readonly sheetPlace = new SheetPlace();
  private readonly sides = new RestingSides();
  readonly pictures: BookPictures;
  private readonly leaves: FlyingLeaves;
  private readonly sharp: SharpView;
  private readonly edges: PageEdges;
  private plan!: BookPlan;
  private turning!: Turning; // made with the first plan
  private mode: Mode;
  private reducedMotion = false;
  private unfollow: (() => void) | undefined; // the size of the stage
  private hasTurned = false;
  private heading: 1 | -1 = 1; // of the last turn
  private told = 0; // the spread that was last said to lie open

  constructor(
    readonly host: HTMLElement,
    private readonly book: Book,
    readonly options: ViewOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.mode = options.mode;
    this.pictures = new BookPictures(book, options.paper, options.standIn, (at) => this.pictured(at), MOST_BITMAPS);
    this.leaves = new FlyingLeaves(this.pictures.source, options.paper, options.rightToLeft);
    this.sharp = new SharpView(this.pictures.files);
    this.edges = new PageEdges((fraction) => events.jumpAsked(Math.ceil(fraction * book.pages.length)));
    if (options.pageEdges) this.sheet.append(this.edges.start, this.edges.end);
    const { start, end } = this.sides.canvases;
    this.sheet.append(start, end, this.sharp.element, this.leaves.element);
    host.append(this.sheet);
    this.arrangeAt(place);
  }

  start(): void {
    this.tell();
    this.unfollow = onOtherSize(this.host, () => {
      this.arrangeAt(this.place);
      this.tell();
    });
  }

  get sheet(): HTMLElement {
    return this.sheetPlace.element;
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
    return this.sheetPlace.zoom;
  }

  get flying(): readonly FlyingLeaf[] {
    return this.turning.leaves;
  }

  get fades(): boolean {
    return this.reducedMotion;
  }

  setReducedMotion(reduced: boolean): void {
    this.reducedMotion = reduced;
  }

  canTurn(step: number): boolean {
    const spread = this.turning.destination + step;
    return spread >= 0 && spread <= this.plan.lastSpread;
  }

  turn(count: number): boolean {
    const turned = this.reducedMotion
      ? this.fadeTo(clamp(this.turning.destination + count, 0, this.plan.lastSpread))
      : this.turning.turn(count);
    if (turned) this.tellTurned();
    return turned;
  }

  goTo(place: number): void {
    const spread = this.plan.spreadOf(place);
    if (this.reducedMotion) this.fadeTo(spread);
    else this.turning.jump(spread);
    this.tellTurned();
  }

  reveal(place: number, top = 0): void {
    const page = this.placedPages.find((placed) => placed.place === place);
    if (!page || this.zoom.scale <= 1) return;
    const seen = { ...page.picture, x: page.picture.x + this.plan.shiftAt(this.turning.destination) };
    this.setZoom(zoomOn(this.zoom.scale, { x: 0.5, y: top }, seen, sizeOf(this.host)));
  }

  setMode(mode: Mode): void {
    this.mode = mode;
    this.arrangeAt(this.place);
    this.tell();
  }

  setZoom(zoom: Zoom): void {
    const open = this.plan.openPart(this.turning.destination);
    this.sheetPlace.zoom = zoom.scale === 1 ? NO_ZOOM : keptInSight(zoom, open, sizeOf(this.host));
    this.sharpen();
    this.events.zoomed(this.zoom);
  }

  /** A point of the host, in CSS pixels, in leaf coordinates (see curl.ts) with the height 1. */
  leafPoint(point: Point): Point {
    const mirror = this.options.rightToLeft ? -1 : 1;
    const { hingeX, book, leaf } = this.plan.layout;
    const { x, y } = this.sheetPlace.toSheet(point);
    return { x: ((x - hingeX) * mirror) / leaf.height, y: (y - book.y) / leaf.height };
  }

  /** Of a leaf with the height 1. */
  get leafShape(): number {
    const { width, height } = this.plan.layout.leaf;
    return width / height;
  }

  /** CSS pixels of the height that leaf coordinates have as their unit. */
  get leafPixels(): number {
    return this.plan.layout.leaf.height * this.zoom.scale;
  }

  hold(step: 1 | -1, pointer: Point): FlyingLeaf | undefined {
    this.sheetPlace.rest();
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

  drop(leaf: FlyingLeaf, target: 0 | 1): void {
    this.turning.drop(leaf, target);
    this.tellTurned();
  }

  destroy(): void {
    this.unfollow?.();
    this.turning.stop();
    this.sharp.clear();
    this.pictures.pictures.close();
  }

  private sharpen(): void {
    const { scale } = this.zoom;
    if (scale > 1) this.sharp.showSoon(this.placedPages, this.sheetPlace.seen(sizeOf(this.host)), scale);
    else this.sharp.clear();
  }

  private pictured(place: number): void {
    this.paintSides();
    if (this.turning.isMoving) this.turning.wake();
    else this.prepareNextLeaf();
    this.events.pictured(place);
  }

  private tellTurned(): void {
    const { destination } = this.turning;
    if (destination === this.told) return;
    this.heading = destination > this.told ? 1 : -1;
    this.told = destination;
    this.moveSheet();
    this.events.turned(this.places);
  }

  /** A closed book lies in the middle, an enlarged one shows no more of what lies around it than it must. */
  private moveSheet(): void {
    const { destination } = this.turning;
    const isWhole = this.zoom.scale === 1;
    const zoom = isWhole ? NO_ZOOM : keptInSight(this.zoom, this.plan.openPart(destination), sizeOf(this.host));
    this.sheetPlace.place(zoom, this.plan.shiftAt(destination), this.reducedMotion ? 0 : this.options.turnSeconds);
    if (!isWhole) this.events.zoomed(zoom);
  }

  /** A cross-fade instead of a turn. */
  private fadeTo(spread: number): boolean {
    if (spread === this.turning.destination) return false;
    const parts = SIDES.map((side) => ({ canvas: this.sides.canvases[side], box: this.plan.sideBox(side) }));
    this.sheet.append(fadingPicture(this.plan.layout.book, parts.filter(({ canvas }) => !canvas.hidden)));
    this.turning.settle(spread);
    return true;
  }

  private arrangeAt(place: number): void {
    const look = this.look();
    this.plan = new BookPlan(this.book, this.options, sizeOf(this.host), marginOf(this.host), this.mode);
    this.startTurning(this.plan.spreadOf(place));
    // What takes longest is under way before anything is drawn.
    this.wantPictures();
    for (const side of SIDES) this.sides.place(side, this.plan.sideBox(side));
    this.sheetPlace.place(NO_ZOOM, this.plan.shiftAt(this.turning.destination));
    this.setZoom(look ? this.zoomOnOpen(look.scale, look.at) : NO_ZOOM);
    this.leaves.clear();
    this.paintSides();
  }

  /** Of an enlarged book, how much and where it is enlarged, in fractions of what lies open. */
  private look(): { scale: number; at: Point } | undefined {
    if (!this.plan || this.zoom.scale <= 1) return undefined;
    const open = this.plan.openPart(this.turning.destination);
    return { scale: this.zoom.scale, at: middleOf(this.zoom, open, this.plan.space) };
  }

  private zoomOnOpen(scale: number, at: Point): Zoom {
    return zoomOn(scale, at, this.plan.openPart(this.turning.destination), sizeOf(this.host));
  }

  private tell(): void {
    this.placeEdges();
    this.events.placed(this.placedPages);
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
    this.sharpen();
    this.events.settled(this.places);
    this.prepareNextLeaf();
  }

  private showGround(): void {
    const { isMoving } = this.turning;
    this.hasTurned ||= isMoving;
    if (isMoving) this.sharp.clear();
    this.wantPictures();
    this.paintSides();
    this.placeEdges();
    this.events.placed(this.placedPages);
  }

  private placeEdges(): void {
    const through = this.turning.lowest / Math.max(this.plan.lastSpread, 1);
    this.edges.place(this.plan.layout.book, this.book.pages.length / 2, through, this.options.rightToLeft);
  }

  private wantPictures(): void {
    if (this.host.clientWidth === 0) return; // not seen yet
    const { seen, all } = wantedPlaces(this.plan, this.turning, this.hasTurned ? NEAR_AFTER_A_TURN : NEAR_AT_FIRST);
    this.pictures.want(all.slice(0, MOST_BITMAPS), (place) => seen.includes(place), (place) => this.plan.pageSize(place));
  }

  private get placedPages(): PlacedPage[] {
    return placedPages(this.plan, this.turning);
  }

  private paintSides(): void {
    for (const side of SIDES) this.paintSide(side, faceOnGround(this.plan, this.turning, side));
  }

  private paintSide(side: Side, face: Face | undefined): void {
    const { source, pictures } = this.pictures;
    this.sides.canvases[side].dataset.drawn = face && pictures.get(face.place) ? String(face.place) : '';
    const ratio = this.plan.pixelRatioOf(face);
    this.sides.show(side, face, face && source.picture(face.place), ratio, (context, leaf) =>
      paintFace(context, leaf, face, this.plan.hingeOf(side), source, this.options.paper),
    );
  }

  private paintLeaves(quality: Quality): void {
    if (this.turning.isMoving) this.leaves.paint(this.plan, this.turning, airSpace(this.plan, this.turning, sizeOf(this.host)), quality);
    else this.leaves.clear();
  }

  private prepareNextLeaf(): void {
    if (this.reducedMotion) return;
    const from = this.turning.destination - (this.heading > 0 ? 0 : 1);
    this.leaves.prepareSoon(this.plan, { from, to: from + 1 }, () => !this.turning.isMoving);
  }
}
