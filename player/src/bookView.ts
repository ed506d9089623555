// SPDX-License-Identifier: MIT
import { AirView, type LeafInTheAir } from './airView.ts';
import { type Book, isWide } from './book.ts';
import { makeCanvas, putCanvas } from './canvas.ts';
import { type FaceSource, type HingeSide, type Paper, paintFace, pictureBox } from './facePainter.ts';
import { FaceCache } from './faceCache.ts';
import { type Box, clamp, type Point, type Size } from './geometry.ts';
import type { Quality } from './governor.ts';
import { cancelIdle, whenIdle } from './idle.ts';
import { type Layout, layoutBook, type Mode } from './layout.ts';
import type { LeafFaces, PaintedFace } from './leafPainter.ts';
import { PageEdges } from './pageEdges.ts';
import { type PictureRequest, Pictures } from './pictures.ts';
import { RestingSides, type Side, SIDES } from './restingSides.ts';
import { type PlacedPage, SharpView } from './sharpView.ts';
import { arrange, type Face, placesOf, type Spread, spreadOf } from './spreads.ts';
import { stiffnessOf } from './spring.ts';
import { type FlyingLeaf, Turning } from './turning.ts';
import type { View, ViewEvents } from './view.ts';
import { keptInSight, NO_ZOOM, seenBox, type Zoom } from './zoom.ts';

export interface ViewOptions {
  readonly mode: Mode;
  readonly coverAlone: boolean;
  readonly rightToLeft: boolean;
  readonly turnSeconds: number;
  readonly paper: Paper;
  readonly hardCovers: boolean;
  readonly pageEdges: boolean;
  readonly wheelTurns: boolean;
}

const SPREADS_AHEAD = 2;
const SPREADS_BEHIND = 1;

/**
 * The open book: two resting sides and the leaves in the air, in a sheet that zooming scales. Knows
 * places and spreads; what hands, keys and addresses do to it is said by its methods.
 */
export class BookView implements View {
  readonly sheet = document.createElement('div');
  private readonly sides = new RestingSides();
  private readonly air = new AirView();
  private readonly faces = new FaceCache();
  private readonly edges: PageEdges;
  private reducedMotion = false;
  private hasTurned = false;
  private heading: 1 | -1 = 1; // of the last turn
  private lastDestination = 0;
  private preparation = 0;
  private readonly pictures: Pictures;
  private readonly sharp: SharpView;
  private readonly source: FaceSource;
  private layout!: Layout;
  private spreads: Spread[] = [];
  private turning!: Turning;
  private mode: Mode;
  private zoomed = NO_ZOOM;
  /** A closed book lies in the middle: how far its sheet is moved for that, in CSS pixels. */
  private shift = 0;

  constructor(
    readonly host: HTMLElement,
    private readonly book: Book,
    readonly options: ViewOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.mode = options.mode;
    const page = (at: number) => this.book.pages[at - 1];
    this.pictures = new Pictures(
      (at) => (page(at)?.width === 0 ? '' : (page(at)?.image ?? '')),
      (at) => ({ width: page(at)?.width ?? 0, height: page(at)?.height ?? 0 }),
      (at) => {
        this.paintSides();
        if (this.turning.isMoving) this.turning.wake();
        else this.prepareSoon();
        events.pictured(at);
      },
    );
    this.source = {
      picture: (at) => this.pictures.get(at),
      shape: (at) => (page(at)?.height ? page(at)!.width / page(at)!.height : 0),
      label: (at) => page(at)?.label ?? '',
    };
    this.sharp = new SharpView(this.pictures);
    this.sheet.className = 'sheet';
    this.edges = new PageEdges((fraction) => events.jumpAsked(Math.ceil(fraction * book.pages.length)));
    if (options.pageEdges) this.sheet.append(this.edges.start, this.edges.end);
    this.sheet.append(this.sides.canvases.start, this.sides.canvases.end, this.sharp.element, this.air.element);
    host.append(this.sheet);
    this.arrangeAt(place);
    new ResizeObserver(() => this.arrangeAt(this.place)).observe(host);
  }

  /** Of the pages that lie open, or will when all has landed, in reading order. */
  get places(): number[] {
    return this.placesAt(this.turning.destination);
  }

  get place(): number {
    return this.places[0] ?? 1;
  }

  get isDouble(): boolean {
    return this.layout.double;
  }

  get zoom(): Zoom {
    return this.zoomed;
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

  turn(count: number): boolean {
    const turned = this.reducedMotion
      ? this.fadeTo(clamp(this.turning.destination + count, 0, this.spreads.length - 1))
      : this.turning.turn(count);
    if (turned) this.tellTurned();
    return turned;
  }

  goTo(place: number): void {
    const spread = spreadOf(this.spreads, place);
    if (this.reducedMotion) this.fadeTo(spread);
    else this.turning.jump(spread);
    this.tellTurned();
  }

  setMode(mode: Mode): void {
    this.mode = mode;
    this.arrangeAt(this.place);
  }

  setZoom(zoom: Zoom): void {
    const space = this.space();
    this.zoomed = zoom.scale === 1 ? NO_ZOOM : keptInSight(zoom, this.openPart(), space);
    this.sheet.style.transition = '';
    this.placeSheet();
    this.sharpen();
    this.events.zoomed(this.zoomed);
  }

  private sharpen(): void {
    const { scale } = this.zoomed;
    if (scale <= 1) return this.sharp.clear();
    const seen = seenBox(this.zoomed, this.space());
    this.sharp.showSoon(this.placedPages(), { ...seen, x: seen.x - this.shift }, scale);
  }

  /** A point of the host, in CSS pixels, in leaf coordinates (see curl.ts) with the height 1. */
  leafPoint(point: Point): Point {
    const mirror = this.options.rightToLeft ? -1 : 1;
    const { scale, offset } = this.zoomed;
    const x = (point.x - offset.x) / scale - this.shift - this.layout.hingeX;
    const y = (point.y - offset.y) / scale - this.layout.book.y;
    return { x: (x * mirror) / this.layout.leaf.height, y: y / this.layout.leaf.height };
  }

  /** Of a leaf with the height 1. */
  get leafShape(): number {
    return this.layout.leaf.width / this.layout.leaf.height;
  }

  /** CSS pixels of the height that leaf coordinates have as their unit. */
  get leafPixels(): number {
    return this.layout.leaf.height * this.zoomed.scale;
  }

  hold(step: 1 | -1, pointer: Point): FlyingLeaf | undefined {
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

  retry(place: number): void {
    this.pictures.retry(place);
  }

  hasFailed(place: number): boolean {
    return this.book.pages[place - 1]?.width === 0 || this.pictures.hasFailed(place);
  }

  private tellTurned(): void {
    const { destination } = this.turning;
    if (destination !== this.lastDestination) this.heading = destination > this.lastDestination ? 1 : -1;
    this.lastDestination = destination;
    const shift = this.shiftAt(this.turning.destination);
    if (shift !== this.shift) {
      this.shift = shift;
      const seconds = this.reducedMotion ? 0 : this.options.turnSeconds;
      this.sheet.style.transition = `transform ${seconds}s cubic-bezier(0.3, 0, 0.2, 1)`;
      this.placeSheet();
    }
    this.events.turned(this.places);
  }

  private shiftAt(spread: number): number {
    const { start, end } = this.spreads[spread] ?? {};
    if (!this.layout.double || (start && end)) return 0;
    const half = Math.round(this.layout.leaf.width / 2);
    return (start === undefined) !== this.options.rightToLeft ? -half : half;
  }

  private placeSheet(): void {
    const { scale, offset } = this.zoomed;
    const x = offset.x + this.shift * scale;
    this.sheet.style.transform =
      scale === 1 && x === 0 ? '' : `translate(${x}px, ${offset.y}px) scale(${scale})`;
  }

  /** What lies open of the book, where it is seen without zoom. */
  private openPart(): Box {
    const { start, end } = this.spreads[this.turning.destination] ?? {};
    const box = start && end ? this.layout.book : this.sideBox(start ? 'start' : 'end');
    return { ...box, x: box.x + this.shift };
  }

  /** A cross-fade instead of a turn. */
  private fadeTo(spread: number): boolean {
    if (spread === this.turning.destination) return false;
    const { book } = this.layout;
    const before = makeCanvas('fading');
    putCanvas(before, book, devicePixelRatio);
    const context = before.getContext('2d')!;
    for (const side of SIDES) {
      const box = this.sideBox(side);
      const canvas = this.sides.canvases[side];
      const [x, width] = [(box.x - book.x) * devicePixelRatio, box.width * devicePixelRatio];
      if (!canvas.hidden) context.drawImage(canvas, x, 0, width, before.height);
    }
    before.addEventListener('animationend', () => before.remove());
    this.sheet.append(before);
    this.turning.settle(spread);
    return true;
  }

  /** Where leaves can be seen, also while the sheet moves to or from a cover. */
  private airSpace(): Box {
    const { width, height } = this.space();
    const { lowest, highest } = this.turning;
    const side = lowest === 0 || highest === this.spreads.length - 1 ? this.layout.leaf.width / 2 : 0;
    return { x: -side, y: 0, width: width + 2 * side, height };
  }

  private space(): Size {
    return { width: this.host.clientWidth, height: this.host.clientHeight };
  }

  /** The host's padding: the book rests inside it, and leaves in the air and a zoomed book may lie over it. */
  private margin(): Size {
    const { paddingLeft, paddingTop } = getComputedStyle(this.host);
    return { width: parseFloat(paddingLeft), height: parseFloat(paddingTop) };
  }

  private placesAt(spread: number): number[] {
    const shown = this.spreads[spread];
    return shown ? placesOf(shown) : [];
  }

  private arrangeAt(place: number): void {
    const space = this.space();
    if (!space.width || !space.height) return;
    this.layout = layoutBook(space, this.margin(), this.book.shape, this.mode, this.options.rightToLeft);
    this.spreads = arrange({
      pageCount: this.book.pages.length,
      double: this.layout.double,
      coverAlone: this.options.coverAlone,
      isWide: (at) => isWide(this.book.pages[at - 1], this.book.shape),
    });
    this.startTurning(spreadOf(this.spreads, place));
    // What takes longest is under way before anything is drawn.
    this.pictures.want(this.wantedPictures());
    for (const side of SIDES) this.sides.place(side, this.sideBox(side));
    this.shift = this.shiftAt(this.turning.destination);
    this.setZoom(NO_ZOOM);
    this.air.clear();
    this.showGround();
    this.events.settled(this.places);
  }

  private startTurning(spread: number): void {
    const leaf = { width: this.leafShape, height: 1 };
    this.lastDestination = spread;
    this.turning = new Turning(this.spreads.length, spread, leaf, stiffnessOf(this.options.turnSeconds), {
      frame: (quality) => this.paintAir(quality),
      changed: () => this.showGround(),
      settled: (settled) => {
        this.sharpen();
        this.events.settled(this.placesAt(settled));
        this.prepareSoon();
      },
    });
  }

  private sideBox(side: Side): Box {
    const { leaf, book, double } = this.layout;
    const isLeft = (side === 'start') !== this.options.rightToLeft;
    return { x: double && !isLeft ? book.x + leaf.width : book.x, y: book.y, ...leaf };
  }

  private faceOnGround(side: Side): Face | undefined {
    return side === 'start'
      ? this.spreads[this.turning.lowest]?.start
      : this.spreads[this.turning.highest]?.end;
  }

  private showGround(): void {
    this.hasTurned ||= this.turning.isMoving;
    if (this.turning.isMoving) this.sharp.clear();
    this.pictures.want(this.wantedPictures());
    this.paintSides();
    const last = Math.max(this.spreads.length - 1, 1);
    this.edges.place(this.layout.book, this.book.pages.length / 2, this.turning.lowest / last, this.options.rightToLeft);
    this.events.placed(this.placedPages());
  }

  /** What is seen now and at the end, then the leaves in between, then what comes after it. */
  private wantedPictures(): PictureRequest[] {
    const { lowest, highest, destination } = this.turning;
    const seen = [lowest, highest, destination, ...this.turning.leaves.map((leaf) => leaf.to)];
    const next: number[] = [];
    // Who only opens the book may never turn a page.
    for (let step = 1; step <= (this.hasTurned ? SPREADS_AHEAD : 1); step++) next.push(destination + step);
    for (let step = 1; step <= SPREADS_BEHIND; step++) next.push(destination - step);
    const placesSeen = new Set(seen.flatMap((spread) => this.placesAt(spread)));
    const places = new Set([...placesSeen, ...next.flatMap((spread) => this.placesAt(spread))]);
    return [...places].map((place) => ({ place, size: this.pictureSize(place), seen: placesSeen.has(place) }));
  }

  /** In pixels, of the page as it is drawn. */
  private pictureSize(place: number): Size {
    const wide = this.layout.double && isWide(this.book.pages[place - 1], this.book.shape);
    const face: Face = { place, part: wide ? 'start' : 'whole' };
    const { width, height } = pictureBox(this.layout.leaf, face, 'none', this.source.shape(place));
    return { width: Math.round(width * devicePixelRatio), height: Math.round(height * devicePixelRatio) };
  }

  private placedPages(): PlacedPage[] {
    return SIDES.flatMap((side) => {
      const face = this.faceOnGround(side);
      if (!face || face.place === 0) return [];
      const window = this.sideBox(side);
      const box = pictureBox(this.layout.leaf, face, this.hingeOf(side), this.source.shape(face.place));
      return [{ place: face.place, window, picture: { ...box, x: window.x + box.x, y: window.y + box.y } }];
    });
  }

  private paintSides(): void {
    for (const side of SIDES) this.paintSide(side, this.faceOnGround(side));
  }

  private paintSide(side: Side, face: Face | undefined): void {
    const canvas = this.sides.canvases[side];
    canvas.dataset.drawn = face && this.pictures.get(face.place) ? String(face.place) : '';
    this.sides.show(side, face, face && this.source.picture(face.place), (context, leaf) =>
      paintFace(context, leaf, face, this.hingeOf(side), this.source, this.options.paper),
    );
  }

  private hingeOf(side: Side): HingeSide {
    if (!this.layout.double) return 'none';
    return (side === 'end') !== this.options.rightToLeft ? 'left' : 'right';
  }

  private paintAir(quality: Quality): void {
    if (!this.turning.isMoving) return this.air.clear();
    const leaves = this.turning.leaves.map((leaf) => this.inTheAir(leaf));
    this.air.paint(leaves, this.layout, this.airSpace(), this.options.rightToLeft, quality);
    this.faces.sweep();
  }

  /** While nothing else is to be done, so that the first frame of the next turn does not have to paint it. */
  private prepareSoon(): void {
    cancelIdle(this.preparation);
    this.preparation = whenIdle(() => this.prepareNextLeaf());
  }

  private prepareNextLeaf(): void {
    if (this.turning.isMoving || this.reducedMotion) return;
    const from = this.turning.destination - (this.heading > 0 ? 0 : 1);
    if (!this.spreads[from] || !this.spreads[from + 1]) return;
    this.facesOf({ from, to: from + 1 });
    this.faces.sweep();
  }

  private inTheAir(leaf: FlyingLeaf): LeafInTheAir {
    const { lowest, highest } = this.turning;
    return {
      curl: leaf.mover.curl,
      opening: leaf.mover.opening,
      stiff: this.isBoard(leaf),
      faces: this.facesOf(leaf),
      // Without a page on the ground and no leaf below, the background takes no shadow.
      ground: {
        start: leaf.from !== lowest || this.spreads[lowest]?.start !== undefined,
        end: leaf.to !== highest || this.spreads[highest]?.end !== undefined,
      },
    };
  }

  private facesOf({ from, to }: Pick<FlyingLeaf, 'from' | 'to'>): LeafFaces {
    const back = this.layout.double ? this.spreads[to]?.start : undefined;
    return { front: this.painted(this.spreads[from]?.end, 'end'), back: this.painted(back, 'start') };
  }

  /** The cover and the last leaf of a hardback. */
  private isBoard(leaf: FlyingLeaf): boolean {
    if (!this.options.hardCovers || !this.layout.double) return false;
    const closesAtEnd = this.spreads[this.spreads.length - 1]?.end === undefined;
    return leaf.from === 0 || (closesAtEnd && leaf.to === this.spreads.length - 1);
  }

  private painted(face: Face | undefined, side: Side): PaintedFace {
    const key = `${side} ${face?.place} ${face?.part}`;
    const picture = face && this.source.picture(face.place);
    return this.faces.painted(key, picture, this.layout.leaf, devicePixelRatio, (context, leaf) => {
      if (this.options.rightToLeft) context.transform(-1, 0, 0, 1, leaf.width, 0);
      paintFace(context, leaf, face, this.hingeOf(side), this.source, this.options.paper);
    });
  }
}
