// SPDX-License-Identifier: MIT
import { type Point, subtract } from './geometry.ts';
import { type GestureHandler, Gestures } from './gestures.ts';
import { panBy, type Zoom, zoomAbout } from './zoom.ts';

const DOUBLE_TAP_SCALE = 2.5;
const WHEEL_ZOOM = 0.0022; // of the scale's logarithm, for a pixel of the wheel
const WHEEL_TURN = 60; // pixels of the wheel that turn a page
const WHEEL_PAUSE_MILLISECONDS = 260;
const LINE_PIXELS = 16;
/** What a finger could pan no farther than this was at its edge. */
const EDGE_PIXELS = 12;
const FAR_PIXELS = 1e6;
const SWIPE_PIXELS = 48;
const SWIPE_SPEED = 200; // CSS pixels a second

/** A short stroke that still moves when the finger leaves means the page to turn. Both have the same sign then. */
export const isStroke = (pixels: number, pixelsASecond: number): boolean =>
  Math.abs(pixels) > SWIPE_PIXELS && pixelsASecond * Math.sign(pixels) > SWIPE_SPEED;

export interface Drag {
  readonly move: (to: Point) => unknown;
  readonly end: (velocity: Point) => unknown;
  readonly cancel: () => unknown;
}

/** What hands need of a view. */
export interface Handled {
  readonly host: HTMLElement;
  readonly zoom: Zoom;
  readonly options: { readonly wheelTurns: boolean; readonly rightToLeft: boolean };
  setZoom(zoom: Zoom): void;
  canTurn(step: number): boolean;
  turn(count: number): boolean;
}

/** What hands do to every view whose pages turn: they zoom it, pan it while it is zoomed, and turn by the wheel. */
export abstract class ZoomingHands<Kind extends Handled> implements GestureHandler {
  private current: Drag | undefined;
  private pinch: Pinch | undefined;
  private wheel = 0;
  private wheelTime = 0;

  constructor(protected readonly view: Kind) {
    new Gestures(view.host, this);
    view.host.addEventListener('wheel', (event) => this.onWheel(event), { passive: false });
  }

  /** What a drag does to pages that are not zoomed. */
  protected abstract grab(from: Point, direction: Point): Drag | undefined;

  abstract tap(at: Point): void;

  dragStart(from: Point, direction: Point): boolean {
    this.current = this.view.zoom.scale > 1 ? this.pan(from) : this.grab(from, direction);
    return this.current !== undefined;
  }

  dragMove(to: Point): void {
    this.current?.move(to);
  }

  dragEnd(velocity: Point): void {
    this.current?.end(velocity);
    this.current = undefined;
  }

  dragCancel(): void {
    this.current?.cancel();
    this.current = undefined;
  }

  doubleTap(at: Point): void {
    toggleZoom(this.view, at);
  }

  pinchStart(middle: Point): void {
    this.pinch = new Pinch(this.view, middle);
  }

  pinchMove(factor: number, middle: Point): void {
    this.pinch?.move(factor, middle);
  }

  pinchEnd(): void {
    this.pinch?.end();
    this.pinch = undefined;
  }

  /** Where nothing is to follow the finger, the swipe alone turns. */
  protected swipe(from: Point, direction: Point): Drag | undefined {
    if (Math.abs(direction.x) <= Math.abs(direction.y)) return undefined;
    let moved = 0;
    const forward = this.view.options.rightToLeft ? 1 : -1;
    return {
      move: (to) => (moved = to.x - from.x),
      end: () => Math.abs(moved) > SWIPE_PIXELS && this.view.turn(Math.sign(moved) * forward),
      cancel: () => {},
    };
  }

  /** What is zoomed turns where it is pulled on beyond its edge. */
  private pan(from: Point): Drag {
    const { zoom } = this.view;
    let pulled: Point = { x: 0, y: 0 };
    return {
      move: (to) => {
        pulled = subtract(to, from);
        this.view.setZoom(panBy(zoom, pulled));
      },
      end: () => {
        const moved = this.view.zoom.offset.x - zoom.offset.x;
        const isSideways = Math.abs(pulled.x) > Math.max(SWIPE_PIXELS, Math.abs(pulled.y));
        if (isSideways && Math.abs(moved) < EDGE_PIXELS) this.turnZoomed(-Math.sign(pulled.x));
      },
      cancel: () => {},
    };
  }

  /** To the right (1) or left (-1); what comes is read from its near edge. */
  private turnZoomed(side: number): void {
    if (!this.view.turn(this.view.options.rightToLeft ? -side : side)) return;
    this.view.setZoom(panBy(this.view.zoom, { x: side * FAR_PIXELS, y: 0 }));
  }

  private onWheel(event: WheelEvent): void {
    const { zoom, options } = this.view;
    const isSpent = Math.abs(this.wheel) === Infinity && event.timeStamp - this.wheelTime <= WHEEL_PAUSE_MILLISECONDS;
    const turns = options.wheelTurns && (isSpent || this.view.canTurn(Math.sign(pushOf(event, options.rightToLeft))));
    // What is not used here scrolls the page around the book.
    if (!event.ctrlKey && zoom.scale <= 1 && !turns) return;
    event.preventDefault();
    const unit = wheelUnit(event);
    if (event.ctrlKey) zoomByWheel(this.view, event);
    else if (zoom.scale > 1) this.view.setZoom(panBy(zoom, { x: -event.deltaX * unit, y: -event.deltaY * unit }));
    else this.turnByWheel(pushOf(event, options.rightToLeft) * unit, event.timeStamp);
  }

  /** One page a push of the wheel, however long a touch pad lets it run on; what runs back is another push. */
  private turnByWheel(pixels: number, time: number): void {
    if (time - this.wheelTime > WHEEL_PAUSE_MILLISECONDS || pixels * this.wheel < 0) this.wheel = 0;
    this.wheelTime = time;
    if (Math.abs(this.wheel) === Infinity) return;
    this.wheel += pixels;
    if (Math.abs(this.wheel) < WHEEL_TURN) return;
    this.view.turn(Math.sign(this.wheel));
    this.wheel *= Infinity;
  }
}

/** Forwards in the book; whichever way the wheel is pushed more, since no push of a touch pad is straight. */
function pushOf({ deltaX, deltaY }: WheelEvent, rightToLeft: boolean): number {
  if (Math.abs(deltaY) >= Math.abs(deltaX)) return deltaY;
  return rightToLeft ? -deltaX : deltaX;
}

type Zoomable = Pick<Handled, 'host' | 'zoom' | 'setZoom'>;

/** Two fingers on a view, from where they were when it began. */
export class Pinch {
  private readonly zoom: Zoom;

  constructor(
    private readonly view: Zoomable,
    private readonly start: Point,
  ) {
    this.zoom = view.zoom;
  }

  move(factor: number, middle: Point): void {
    const moved = panBy(this.zoom, subtract(middle, this.start));
    this.view.setZoom(zoomAbout(moved, middle, this.zoom.scale * factor));
  }

  /** Hardly zoomed is not zoomed: a pinch seldom ends where it began. */
  end(): void {
    const { zoom } = this.view;
    if (Math.abs(zoom.scale - 1) < 0.08) this.view.setZoom(zoomAbout(zoom, { x: 0, y: 0 }, 1));
  }
}

export function toggleZoom(view: Zoomable, at: Point): void {
  view.setZoom(zoomAbout(view.zoom, at, view.zoom.scale === 1 ? DOUBLE_TAP_SCALE : 1));
}

export function zoomByWheel(view: Zoomable, event: WheelEvent): void {
  const { left, top } = view.host.getBoundingClientRect();
  const at = { x: event.clientX - left, y: event.clientY - top };
  const factor = Math.exp(-event.deltaY * wheelUnit(event) * WHEEL_ZOOM);
  view.setZoom(zoomAbout(view.zoom, at, view.zoom.scale * factor));
}

const wheelUnit = ({ deltaMode }: WheelEvent): number => (deltaMode === WheelEvent.DOM_DELTA_LINE ? LINE_PIXELS : 1);
