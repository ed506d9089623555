// SPDX-License-Identifier: MIT
import type { Point } from './geometry.ts';
import { type GestureHandler, Gestures } from './gestures.ts';
import type { ScrollView } from './scrollView.ts';
import { Pinch, toggleZoom, zoomByWheel } from './zoomingHands.ts';

/**
 * What hands do to pages that the browser scrolls: they zoom them. A pinch is made of touch events,
 * because the browser keeps the pointer events of a finger that it scrolls by to itself.
 */
export class ScrollHands implements GestureHandler {
  private pinch: { readonly on: Pinch; readonly spread: number } | undefined;

  constructor(private readonly view: ScrollView) {
    const { host } = view;
    new Gestures(host, this);
    host.addEventListener('wheel', (event) => this.onWheel(event), { passive: false });
    host.addEventListener('touchstart', (event) => this.onTouch(event), { passive: false });
    host.addEventListener('touchmove', (event) => this.onTouch(event), { passive: false });
    for (const name of ['touchend', 'touchcancel'] as const) host.addEventListener(name, () => this.endPinch());
  }

  doubleTap(at: Point): void {
    toggleZoom(this.view, at);
  }

  private onTouch(event: TouchEvent): void {
    const [one, other] = event.touches;
    if (!one || !other) return;
    if (event.cancelable) event.preventDefault();
    const { left, top } = this.view.host.getBoundingClientRect();
    const middle = { x: (one.clientX + other.clientX) / 2 - left, y: (one.clientY + other.clientY) / 2 - top };
    const spread = Math.max(Math.hypot(one.clientX - other.clientX, one.clientY - other.clientY), 1);
    this.pinch ??= { on: new Pinch(this.view, middle), spread };
    this.pinch.on.move(spread / this.pinch.spread, middle);
  }

  private endPinch(): void {
    this.pinch?.on.end();
    this.pinch = undefined;
  }

  private onWheel(event: WheelEvent): void {
    if (!event.ctrlKey) return;
    event.preventDefault();
    zoomByWheel(this.view, event);
  }
}
