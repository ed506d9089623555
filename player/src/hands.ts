// SPDX-License-Identifier: MIT
import type { BookView } from './bookView.ts';
import { add, type Point, scale, subtract } from './geometry.ts';
import { type GestureHandler, Gestures } from './gestures.ts';
import { panBy, type Zoom, zoomAbout } from './zoom.ts';

/** Of a leaf's width, from its outer edge: here a page is taken by the finger itself. */
const GRAB_ZONE = 0.2;
/** A leaf goes twice its width while a finger crosses the page once. */
const SWIPE_GAIN = 2;
const SWIPE_PIXELS = 48;
const SWIPE_SPEED = 200; // CSS pixels a second
const DOUBLE_TAP_SCALE = 2.5;
const WHEEL_ZOOM = 0.0022; // of the scale's logarithm, for a pixel of the wheel
const WHEEL_TURN = 60; // pixels of the wheel that turn a page
const WHEEL_PAUSE_MILLISECONDS = 260;
const LINE_PIXELS = 16;

interface Drag {
  readonly move: (to: Point) => unknown;
  readonly end: (velocity: Point) => unknown;
  readonly cancel: () => unknown;
}

/** What hands do to the book: turn, pan, zoom. */
export class Hands implements GestureHandler {
  private current: Drag | undefined;
  private pinch: { readonly zoom: Zoom; readonly middle: Point } | undefined;
  private wheel = 0;
  private wheelTime = 0;

  constructor(private readonly view: BookView) {
    new Gestures(view.host, this);
    view.host.addEventListener('wheel', (event) => this.onWheel(event), { passive: false });
  }

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

  tap(at: Point): void {
    const { x, y } = this.view.leafPoint(at);
    if (this.view.zoom.scale !== 1 || y < 0 || y > 1) return;
    const edge = this.view.leafShape * (1 - GRAB_ZONE);
    const isStart = this.view.isDouble ? x < -edge : x >= 0 && x < this.view.leafShape * GRAB_ZONE;
    if (x > edge && x <= this.view.leafShape) this.view.turn(1);
    else if (isStart && x >= -this.view.leafShape) this.view.turn(-1);
  }

  doubleTap(at: Point): void {
    const { zoom } = this.view;
    this.view.setZoom(zoomAbout(zoom, at, zoom.scale === 1 ? DOUBLE_TAP_SCALE : 1));
  }

  pinchStart(middle: Point): void {
    this.pinch = { zoom: this.view.zoom, middle };
  }

  pinchMove(factor: number, middle: Point): void {
    if (!this.pinch) return;
    const { zoom, middle: start } = this.pinch;
    const moved = panBy(zoom, subtract(middle, start));
    this.view.setZoom(zoomAbout(moved, middle, zoom.scale * factor));
  }

  pinchEnd(): void {
    this.pinch = undefined;
    // Hardly zoomed is not zoomed: a pinch seldom ends where it began.
    const { zoom } = this.view;
    if (Math.abs(zoom.scale - 1) < 0.08) this.view.setZoom(zoomAbout(zoom, { x: 0, y: 0 }, 1));
  }

  private pan(from: Point): Drag {
    const { zoom } = this.view;
    const to = (point: Point) => this.view.setZoom(panBy(zoom, subtract(point, from)));
    return { move: to, end: () => {}, cancel: () => this.view.setZoom(zoom) };
  }

  /** A leaf in flight, the leaf under the finger, or the leaf that a swipe would turn. */
  private grab(from: Point, direction: Point): Drag | undefined {
    if (this.view.fades) return this.swipe(from, direction);
    const start = this.view.leafPoint(from);
    const flying = this.view.flying[this.view.flying.length - 1];
    if (flying) return this.carry(flying.target === 1 ? -1 : 1, start, from);
    const width = this.view.leafShape;
    const onEdge = start.y >= 0 && start.y <= 1 && Math.abs(start.x) > width * (1 - GRAB_ZONE) && Math.abs(start.x) <= width;
    const isSideways = Math.abs(direction.x) > Math.abs(direction.y);
    if (onEdge && this.view.isDouble) return this.carry(start.x > 0 ? 1 : -1, start, from);
    if (!isSideways) return undefined;
    const goesOn = direction.x < 0 !== this.view.options.rightToLeft;
    return this.carry(goesOn ? 1 : -1, { x: goesOn ? width : -width, y: start.y }, from, SWIPE_GAIN);
  }

  /** Where nothing is to fly, the swipe alone turns. */
  private swipe(from: Point, direction: Point): Drag | undefined {
    if (Math.abs(direction.x) <= Math.abs(direction.y)) return undefined;
    let moved = 0;
    const forward = this.view.options.rightToLeft ? 1 : -1;
    return {
      move: (to) => (moved = to.x - from.x),
      end: () => Math.abs(moved) > SWIPE_PIXELS && this.view.turn(Math.sign(moved) * forward),
      cancel: () => {},
    };
  }

  /** The leaf is held at a point and follows the pointer from there, so many times as far sideways. */
  private carry(step: 1 | -1, at: Point, from: Point, gain = 1): Drag | undefined {
    const leaf = this.view.hold(step, at);
    if (!leaf) return undefined;
    const start = this.view.leafPoint(from);
    const follow = (by: Point): Point => ({ x: by.x * gain, y: by.y });
    const [home, away] = step > 0 ? ([0, 1] as const) : ([1, 0] as const);
    let moved = 0;
    return {
      move: (to) => {
        const by = subtract(this.view.leafPoint(to), start);
        moved = by.x;
        this.view.drag(leaf, add(at, follow(by)));
      },
      end: (velocity) => {
        const thrown = this.inLeaf(velocity);
        const isSwipe = gain > 1 && this.isSwipe(moved * -step, thrown.x * -step);
        this.view.release(leaf, follow(thrown), isSwipe ? away : undefined);
      },
      cancel: () => this.view.drop(leaf, home),
    };
  }

  /** A short stroke that still moves when the finger leaves means the page to turn. In leaf heights. */
  private isSwipe(moved: number, velocity: number): boolean {
    const { leafPixels } = this.view;
    return moved * leafPixels > SWIPE_PIXELS && velocity * leafPixels > SWIPE_SPEED;
  }

  private inLeaf(velocity: Point): Point {
    const inHeights = scale(velocity, 1 / this.view.leafPixels);
    return this.view.options.rightToLeft ? { x: -inHeights.x, y: inHeights.y } : inHeights;
  }

  private onWheel(event: WheelEvent): void {
    // What is not used here scrolls the page around the book.
    if (!event.ctrlKey && this.view.zoom.scale <= 1 && !this.view.options.wheelTurns) return;
    event.preventDefault();
    const unit = event.deltaMode === WheelEvent.DOM_DELTA_LINE ? LINE_PIXELS : 1;
    const { left, top } = this.view.host.getBoundingClientRect();
    const at = { x: event.clientX - left, y: event.clientY - top };
    const { zoom } = this.view;
    if (event.ctrlKey) this.view.setZoom(zoomAbout(zoom, at, zoom.scale * Math.exp(-event.deltaY * unit * WHEEL_ZOOM)));
    else if (zoom.scale > 1) this.view.setZoom(panBy(zoom, { x: -event.deltaX * unit, y: -event.deltaY * unit }));
    else this.turnByWheel((event.deltaY || event.deltaX) * unit, event.timeStamp);
  }

  /** One page a push of the wheel, however long a touch pad lets it run on. */
  private turnByWheel(pixels: number, time: number): void {
    if (time - this.wheelTime < WHEEL_PAUSE_MILLISECONDS && this.wheel === Infinity) {
      this.wheelTime = time;
      return;
    }
    if (time - this.wheelTime > WHEEL_PAUSE_MILLISECONDS) this.wheel = 0;
    this.wheel += pixels;
    this.wheelTime = time;
    if (Math.abs(this.wheel) < WHEEL_TURN) return;
    this.view.turn(Math.sign(this.wheel));
    this.wheel = Infinity;
  }
}

