// SPDX-License-Identifier: MIT
import { type Book, isWide } from './book.ts';
import { type FaceSource, type HingeSide, type Paper, paintFace } from './facePainter.ts';
import type { Point, Size } from './geometry.ts';
import type { Quality } from './governor.ts';
import { type Layout, layoutBook, type Mode } from './layout.ts';
import { type LeafFaces, paintLeaf } from './leafPainter.ts';
import { type PictureRequest, Pictures } from './pictures.ts';
import { arrange, type Face, placesOf, type Spread, spreadOf } from './spreads.ts';
import { type FlyingLeaf, Turning } from './turning.ts';

export interface ViewOptions {
  readonly mode: Mode;
  readonly coverAlone: boolean;
  readonly rightToLeft: boolean;
  readonly turnSeconds: number;
  readonly paper: Paper;
}

export interface ViewEvents {
  /** Other pages lie open; what was under way has landed. */
  settled(places: readonly number[]): void;
}

type Side = 'start' | 'end';

/** What a leaf may rise above and below the book, of its height. */
const HEADROOM = 0.25;
/** A critically damped spring has come to rest to the eye after this many radians. */
const RADIANS_OF_A_TURN = 9.5;
const SPREADS_AHEAD = 2;
const SPREADS_BEHIND = 1;

/** The open book: two resting sides, each on a canvas, and a canvas for the leaves in the air. */
export class BookView {
  private readonly sides: Record<Side, HTMLCanvasElement>;
  private readonly air: HTMLCanvasElement;
  private readonly pictures: Pictures;
  private readonly source: FaceSource;
  private layout!: Layout;
  private spreads: Spread[] = [];
  private turning!: Turning;
  private mode: Mode;

  constructor(
    private readonly host: HTMLElement,
    private readonly book: Book,
    private readonly options: ViewOptions,
    private readonly events: ViewEvents,
    place: number,
  ) {
    this.mode = options.mode;
    this.sides = { start: canvas('side'), end: canvas('side') };
    this.air = canvas('air');
    host.append(this.sides.start, this.sides.end, this.air);
    const page = (at: number) => this.book.pages[at - 1];
    this.pictures = new Pictures(
      (at) => page(at)?.image ?? '',
      (at) => ({ width: page(at)?.width ?? 0, height: page(at)?.height ?? 0 }),
      () => this.paintAll(),
    );
    this.source = {
      picture: (at) => this.pictures.get(at),
      shape: (at) => (page(at)?.height ? page(at)!.width / page(at)!.height : 0),
      label: (at) => page(at)?.label ?? '',
    };
    this.arrangeAt(place);
    new ResizeObserver(() => this.arrangeAt(this.place)).observe(host);
  }

  /** The first page that lies open, or will when all has landed. */
  get place(): number {
    return this.placesAt(this.turning.destination)[0] ?? 1;
  }

  turn(count: number): boolean {
    return this.turning.turn(count);
  }

  goTo(place: number): void {
    this.turning.jump(spreadOf(this.spreads, place));
  }

  setMode(mode: Mode): void {
    this.mode = mode;
    this.arrangeAt(this.place);
  }

  private placesAt(spread: number): number[] {
    const shown = this.spreads[spread];
    return shown ? placesOf(shown) : [];
  }

  private arrangeAt(place: number): void {
    const space = { width: this.host.clientWidth, height: this.host.clientHeight };
    if (!space.width || !space.height) return;
    this.layout = layoutBook(space, this.book.shape, this.mode, this.options.rightToLeft);
    this.spreads = arrange({
      pageCount: this.book.pages.length,
      double: this.layout.double,
      coverAlone: this.options.coverAlone,
      isWide: (at) => isWide(this.book.pages[at - 1], this.book.shape),
    });
    this.turning = new Turning(
      this.spreads.length,
      spreadOf(this.spreads, place),
      { width: this.layout.leaf.width / this.layout.leaf.height, height: 1 },
      RADIANS_OF_A_TURN / this.options.turnSeconds,
      {
        frame: (quality) => this.paintAir(quality),
        changed: () => this.showGround(),
        settled: (spread) => this.events.settled(this.placesAt(spread)),
      },
    );
    this.placeCanvases();
    this.turning.settle(spreadOf(this.spreads, place));
    this.showGround();
  }

  private placeCanvases(): void {
    const { leaf, book, double } = this.layout;
    for (const side of ['start', 'end'] as const) {
      const atLeft = double && (side === 'start') !== this.options.rightToLeft;
      put(this.sides[side], double && !atLeft ? book.x + leaf.width : book.x, book.y, leaf, devicePixelRatio);
      this.sides[side].hidden = !double && side === 'start';
    }
  }

  /** The sides on the ground, and the pictures that are wanted next. */
  private showGround(): void {
    this.paintAll();
    this.pictures.want(this.wantedPictures());
  }

  private wantedPictures(): PictureRequest[] {
    const { lowest, highest, destination } = this.turning;
    const order = [destination, lowest, highest];
    for (let step = 1; step <= SPREADS_AHEAD; step++) order.push(destination + step);
    for (let step = 1; step <= SPREADS_BEHIND; step++) order.push(destination - step);
    const places = new Set(order.flatMap((spread) => this.placesAt(spread)));
    return [...places].map((place) => ({ place, width: this.pixelsAcross(place) }));
  }

  private pixelsAcross(place: number): number {
    const wide = isWide(this.book.pages[place - 1], this.book.shape);
    return Math.round(this.layout.leaf.width * devicePixelRatio * (wide && this.layout.double ? 2 : 1));
  }

  private paintAll(): void {
    const start = this.spreads[this.turning.lowest]?.start;
    const end = this.spreads[this.turning.highest]?.end;
    this.paintSide('start', start);
    this.paintSide('end', end);
    this.paintAir(undefined);
  }

  private paintSide(side: Side, face: Face | undefined): void {
    const target = this.sides[side];
    target.classList.toggle('empty', !face);
    if (!face) return;
    const context = target.getContext('2d')!;
    const ratio = target.width / this.layout.leaf.width;
    context.setTransform(ratio, 0, 0, target.height / this.layout.leaf.height, 0, 0);
    paintFace(context, this.layout.leaf, face, this.hingeOf(side), this.source, this.options.paper);
  }

  private hingeOf(side: Side): HingeSide {
    if (!this.layout.double) return 'none';
    return (side === 'end') !== this.options.rightToLeft ? 'left' : 'right';
  }

  private paintAir(quality: Quality | undefined): void {
    const leaves = this.turning.leaves;
    this.air.hidden = leaves.length === 0;
    if (leaves.length === 0) return;
    const ratio = quality?.fullPixels === false ? 1 : devicePixelRatio;
    const room = this.roomForAir();
    put(this.air, room.x, room.y, room, ratio);
    const context = this.air.getContext('2d')!;
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, this.air.width, this.air.height);
    const { book, hingeX, leaf } = this.layout;
    const mirror = this.options.rightToLeft ? -1 : 1;
    for (const flying of leaves) {
      context.setTransform(ratio * mirror, 0, 0, ratio, (hingeX - room.x) * ratio, (book.y - room.y) * ratio);
      paintLeaf(context, leaf, scaled(flying, leaf.height), this.facesOf(flying), quality ?? { stripsPerQuarter: 8 });
    }
  }

  private roomForAir(): Point & Size {
    const { leaf, book, hingeX } = this.layout;
    const head = Math.round(leaf.height * HEADROOM);
    const width = 2 * leaf.width + 2 * head;
    return { x: hingeX - width / 2, y: book.y - head, width, height: leaf.height + 2 * head };
  }

  private facesOf(flying: FlyingLeaf): LeafFaces {
    const front = this.spreads[flying.from]?.end;
    const back = this.layout.double ? this.spreads[flying.to]?.start : undefined;
    return { front: this.painterOf(front, 'end'), back: this.painterOf(back, 'start') };
  }

  private painterOf(face: Face | undefined, side: Side): LeafFaces['front'] {
    return (context, leaf) => {
      context.save();
      if (this.options.rightToLeft) context.transform(-1, 0, 0, 1, leaf.width, 0);
      paintFace(context, leaf, face, this.hingeOf(side), this.source, this.options.paper);
      context.restore();
    };
  }
}

/** A leaf's curl, with its height in CSS pixels instead of 1. */
function scaled(flying: FlyingLeaf, height: number) {
  const { direction, line, radius } = flying.mover.curl;
  return { direction, line: line * height, radius: radius * height };
}

function canvas(name: string): HTMLCanvasElement {
  const element = document.createElement('canvas');
  element.className = name;
  element.setAttribute('aria-hidden', 'true');
  return element;
}

function put(element: HTMLCanvasElement, x: number, y: number, size: Size, ratio: number): void {
  Object.assign(element.style, {
    left: `${x}px`,
    top: `${y}px`,
    width: `${size.width}px`,
    height: `${size.height}px`,
  });
  const [width, height] = [Math.round(size.width * ratio), Math.round(size.height * ratio)];
  // Setting a size clears the canvas, so only when it differs.
  if (element.width !== width) element.width = width;
  if (element.height !== height) element.height = height;
}
