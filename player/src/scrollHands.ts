// SPDX-License-Identifier: MIT
import type { Point } from './geometry.ts';
import { type GestureHandler, Gestures } from './gestures.ts';
import type { ScrollView } from './scrollView.ts';
import { Pinch, toggleZoom, zoomByWheel } from './zoomingHands.ts';

/** What hands do to pages that the browser scrolls: they zoom them. */
export class ScrollHands implements GestureHandler {
  private pinch: Pinch | undefined;

  constructor(private readonly view: ScrollView) {
    new Gestures(view.host, this);
    view.host.addEventListener('wheel', (event) => this.onWheel(event), { passive: false });
    for (const name of ['touchstart', 'touchmove'] as const)
      view.host.addEventListener(name, leaveOneFinger, { passive: false });
  }

  dragStart(): boolean {
    return false;
  }

  dragMove(): void {}
  dragEnd(): void {}
  dragCancel(): void {}
  tap(): void {}

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

  private onWheel(event: WheelEvent): void {
    if (!event.ctrlKey) return;
    event.preventDefault();
    zoomByWheel(this.view, event);
  }
}

/** One finger scrolls; the browser would scroll with two as well, and take the pinch away. */
function leaveOneFinger(event: TouchEvent): void {
  if (event.touches.length > 1 && event.cancelable) event.preventDefault();
}
