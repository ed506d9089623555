// SPDX-License-Identifier: MIT
import type { Box, Point, Size } from './geometry.ts';
import { NO_ZOOM, seenBox, type Zoom } from './zoom.ts';

/** Where the sheet lies that holds the laid-out book: zoomed, and moved so that a closed book lies in the middle. */
export class SheetPlace {
  readonly element = document.createElement('div');
  private zoomed = NO_ZOOM;
  private shift = 0;

  constructor() {
    this.element.className = 'sheet';
  }

  get zoom(): Zoom {
    return this.zoomed;
  }

  set zoom(zoom: Zoom) {
    this.place(zoom, this.shift);
  }

  /** The shift is in CSS pixels before zoom; takes its time when it is given. */
  place(zoom: Zoom, shift: number, seconds = 0): void {
    this.zoomed = zoom;
    this.shift = shift;
    this.element.style.transition = seconds > 0 ? `transform ${seconds}s cubic-bezier(0.3, 0, 0.2, 1)` : '';
    this.put();
  }

  /** To where it was to come, at once. */
  rest(): void {
    this.element.style.transition = '';
  }

  /** A point of the stage, as a point of the sheet. */
  toSheet({ x, y }: Point): Point {
    const { scale, offset } = this.zoomed;
    return { x: (x - offset.x) / scale - this.shift, y: (y - offset.y) / scale };
  }

  /** What is seen of the sheet in a stage of some size. */
  seen(stage: Size): Box {
    const box = seenBox(this.zoomed, stage);
    return { ...box, x: box.x - this.shift };
  }

  private put(): void {
    const { scale, offset } = this.zoomed;
    const x = offset.x + this.shift * scale;
    const { style } = this.element;
    style.transform = scale === 1 && x === 0 ? '' : `translate(${x}px, ${offset.y}px) scale(${scale})`;
  }
}
