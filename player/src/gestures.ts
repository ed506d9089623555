// SPDX-License-Identifier: MIT
import { type Point, scale, subtract } from './geometry.ts';

/** What fingers, a pen or a mouse do, in CSS pixels of the element that they do it on. */
export interface GestureHandler {
  /** A pointer went down and moved; answers whether the drag is taken. */
  dragStart?(from: Point, direction: Point): boolean;
  dragMove?(to: Point): void;
  /** With a velocity in pixels a second. */
  dragEnd?(velocity: Point): void;
  /** The drag came to nothing: the pointer was lost, or a second finger came. */
  dragCancel?(): void;
  tap?(at: Point): void;
  doubleTap(at: Point): void;
  pinchStart?(middle: Point): void;
  /** Since the start: how much the fingers have spread, and where their middle is. */
  pinchMove?(factor: number, middle: Point): void;
  pinchEnd?(): void;
}

const DRAG_PIXELS = 6;
const TAP_MILLISECONDS = 350;
const DOUBLE_TAP_MILLISECONDS = 300;
const DOUBLE_TAP_PIXELS = 30;
/** A pointer that rested before it was lifted throws nothing. */
const VELOCITY_MILLISECONDS = 80;

interface Sample {
  readonly at: Point;
  readonly time: number;
}

interface Tracked {
  readonly start: Sample;
  samples: Sample[];
}

/** Makes drags, taps and pinches of pointer events; one at a time, and the last to come wins. */
export class Gestures {
  private readonly pointers = new Map<number, Tracked>();
  private state: 'idle' | 'pressed' | 'dragging' | 'refused' | 'pinching' = 'idle';
  private pinchDistance = 1;
  private lastTap: Sample | undefined;

  constructor(
    private readonly element: HTMLElement,
    private readonly handler: GestureHandler,
  ) {
    element.addEventListener('pointerdown', (event) => this.down(event));
    element.addEventListener('pointermove', (event) => this.move(event));
    element.addEventListener('pointerup', (event) => this.up(event));
    element.addEventListener('pointercancel', (event) => this.lost(event));
    // The browser's own dragging of a link would take the pointer away.
    element.addEventListener('dragstart', (event) => event.preventDefault());
    element.addEventListener('lostpointercapture', (event) => {
      // A finger is captured by what it touched first, which loses it when the element takes it over.
      if (event.target === element) this.lost(event);
    });
  }

  private down(event: PointerEvent): void {
    // The first finger is the only one: of others nobody heard that they left.
    if (event.isPrimary) this.pointers.clear();
    if (event.button !== 0 || this.pointers.size === 2 || isControl(event.target)) return;
    const sample = { at: this.place(event), time: event.timeStamp };
    this.pointers.set(event.pointerId, { start: sample, samples: [sample] });
    if (this.pointers.size === 2) this.startPinch();
    else this.state = 'pressed';
  }

  private move(event: PointerEvent): void {
    const tracked = this.pointers.get(event.pointerId);
    if (!tracked) return;
    // It was let go where the element could not see it.
    if (event.buttons === 0) return this.lost(event);
    const sample = { at: this.place(event), time: event.timeStamp };
    tracked.samples = [...tracked.samples.filter(({ time }) => sample.time - time < VELOCITY_MILLISECONDS), sample];
    if (this.state === 'pinching') this.pinch();
    else if (this.state === 'dragging') this.handler.dragMove?.(sample.at);
    else if (this.state === 'pressed') this.startDrag(event, tracked, sample.at);
  }

  private up(event: PointerEvent): void {
    const tracked = this.pointers.get(event.pointerId);
    this.pointers.delete(event.pointerId);
    if (!tracked) return;
    const { state } = this;
    this.state = this.pointers.size > 0 ? 'refused' : 'idle';
    if (state === 'dragging') this.handler.dragEnd?.(velocityOf(tracked.samples, event.timeStamp));
    else if (state === 'pinching') this.handler.pinchEnd?.();
    else if (state === 'pressed' && !isLink(event.target) && event.timeStamp - tracked.start.time < TAP_MILLISECONDS)
      this.tap({ at: this.place(event), time: event.timeStamp });
  }

  private lost(event: PointerEvent): void {
    if (!this.pointers.delete(event.pointerId)) return;
    if (this.state === 'dragging') this.handler.dragCancel?.();
    if (this.state === 'pinching') this.handler.pinchEnd?.();
    this.state = this.pointers.size > 0 ? 'refused' : 'idle';
  }

  private startDrag(event: PointerEvent, tracked: Tracked, at: Point): void {
    const moved = subtract(at, tracked.start.at);
    if (Math.hypot(moved.x, moved.y) < DRAG_PIXELS) return;
    this.state = this.handler.dragStart?.(tracked.start.at, moved) ? 'dragging' : 'refused';
    if (this.state !== 'dragging') return;
    // Captured only now, so that a press on a link stays a click on it.
    this.element.setPointerCapture(event.pointerId);
    this.handler.dragMove?.(at);
  }

  private startPinch(): void {
    if (this.state === 'dragging') this.handler.dragCancel?.();
    this.state = 'pinching';
    for (const pointerId of this.pointers.keys()) this.element.setPointerCapture(pointerId);
    const { spread, middle } = this.fingers();
    this.pinchDistance = Math.max(spread, 1);
    this.handler.pinchStart?.(middle);
  }

  private pinch(): void {
    const { spread, middle } = this.fingers();
    this.handler.pinchMove?.(spread / this.pinchDistance, middle);
  }

  private fingers(): { spread: number; middle: Point } {
    const [one, other] = [...this.pointers.values()].map(({ samples }) => samples[samples.length - 1]!.at);
    const between = subtract(other!, one!);
    return { spread: Math.hypot(between.x, between.y), middle: { x: one!.x + between.x / 2, y: one!.y + between.y / 2 } };
  }

  private tap(sample: Sample): void {
    const last = this.lastTap;
    const isDouble =
      last !== undefined &&
      sample.time - last.time < DOUBLE_TAP_MILLISECONDS &&
      Math.hypot(sample.at.x - last.at.x, sample.at.y - last.at.y) < DOUBLE_TAP_PIXELS;
    this.lastTap = isDouble ? undefined : sample;
    if (isDouble) this.handler.doubleTap(sample.at);
    else this.handler.tap?.(sample.at);
  }

  private place(event: PointerEvent): Point {
    const box = this.element.getBoundingClientRect();
    return { x: event.clientX - box.left, y: event.clientY - box.top };
  }
}

/** Buttons and fields on the pages answer to the press themselves. */
const isControl = (target: EventTarget | null): boolean =>
  target instanceof Element && target.closest('button, input, select, textarea') !== null;

const isLink = (target: EventTarget | null): boolean => target instanceof Element && target.closest('a') !== null;

function velocityOf(samples: readonly Sample[], now: number): Point {
  const recent = samples.filter(({ time }) => now - time < VELOCITY_MILLISECONDS);
  const [first, last] = [recent[0], recent[recent.length - 1]];
  if (!first || !last || last.time - first.time < 1) return { x: 0, y: 0 };
  return scale(subtract(last.at, first.at), 1000 / (last.time - first.time));
}
