// SPDX-License-Identifier: MIT
import type { BookView } from './bookView.ts';
import { add, type Point, scale, subtract } from './geometry.ts';
import { type Drag, isStroke, ZoomingHands } from './zoomingHands.ts';

/** Of a leaf's width, from its outer edge: here a page is taken by the finger itself. */
const GRAB_ZONE = 0.2;
/** A leaf goes twice its width while a finger crosses the page once. */
const SWIPE_GAIN = 2;
const STILL: Point = { x: 0, y: 0 };

/** What hands do to the book: turn its leaves, beside what they do to every view. */
export class Hands extends ZoomingHands<BookView> {
  tap(at: Point): void {
    const step = this.edgeAt(at);
    if (step) this.view.turn(step);
  }

  /** Two quick taps at an edge are two turns; beside the book there is nothing to enlarge. */
  override doubleTap(at: Point): void {
    const step = this.edgeAt(at);
    if (step) this.view.turn(step);
    else if (this.view.zoom.scale !== 1 || this.isOnBook(at)) super.doubleTap(at);
  }

  /** To which side a tap at a point turns; 0 elsewhere, and while the book is larger than its stage. */
  private edgeAt(at: Point): 1 | -1 | 0 {
    if (this.view.zoom.scale > 1 || !this.isOnBook(at)) return 0;
    const { x } = this.view.leafPoint(at);
    const edge = this.view.leafShape * (1 - GRAB_ZONE);
    const isStart = this.view.isDouble ? x < -edge : x < this.view.leafShape * GRAB_ZONE;
    return x > edge ? 1 : isStart ? -1 : 0;
  }

  private isOnBook(at: Point): boolean {
    const { x, y } = this.view.leafPoint(at);
    const least = this.view.isDouble ? -this.view.leafShape : 0;
    return y >= 0 && y <= 1 && x >= least && x <= this.view.leafShape;
  }

  /** A leaf in flight, the leaf under the finger, or the leaf that a swipe would turn. */
  protected grab(from: Point, direction: Point): Drag | undefined {
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
        const { leafPixels } = this.view;
        const isSwipe = gain > 1 && moved * step < 0 && isStroke(moved * leafPixels, thrown.x * leafPixels);
        this.view.release(leaf, follow(thrown), isSwipe ? away : undefined);
      },
      cancel: () => this.view.release(leaf, STILL, home),
    };
  }

  private inLeaf(velocity: Point): Point {
    const inHeights = scale(velocity, 1 / this.view.leafPixels);
    return this.view.options.rightToLeft ? { x: -inHeights.x, y: inHeights.y } : inHeights;
  }
}
