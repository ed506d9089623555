// SPDX-License-Identifier: MIT
import type { Point } from './geometry.ts';
import type { SlideView } from './slideView.ts';
import { type Drag, isStroke, ZoomingHands } from './zoomingHands.ts';

/** Of the stage's width, on both sides: a tap there turns. */
const EDGE = 0.2;

/** What hands do to slides: they follow the finger, and turn by a tap at the edges. */
export class SlideHands extends ZoomingHands<SlideView> {
  tap(at: Point): void {
    this.turnAtEdge(at);
  }

  /** Two quick taps at an edge are two turns. */
  override doubleTap(at: Point): void {
    if (!this.turnAtEdge(at)) super.doubleTap(at);
  }

  protected grab(from: Point, direction: Point): Drag | undefined {
    const { view } = this;
    if (!view.follows) return this.swipe(from, direction);
    if (Math.abs(direction.x) <= Math.abs(direction.y)) return undefined;
    const held = view.hold();
    let moved = 0;
    return {
      move: (to) => view.drag(held - (moved = to.x - from.x) / view.stride),
      end: ({ x }) => view.release(-x / view.stride, isStroke(moved, x)),
      cancel: () => view.release(0, false),
    };
  }

  /** Answers whether it was an edge. */
  private turnAtEdge({ x }: Point): boolean {
    const { host, zoom, options } = this.view;
    const part = x / host.clientWidth;
    if (zoom.scale !== 1 || (part > EDGE && part < 1 - EDGE)) return false;
    this.view.turn(part < EDGE === options.rightToLeft ? 1 : -1);
    return true;
  }
}
