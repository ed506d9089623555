// SPDX-License-Identifier: MIT
import { Flight, type Leaf } from './flight.ts';
import type { Point, Size } from './geometry.ts';
import { Governor, type Quality } from './governor.ts';
import { LeafMotion } from './leafMotion.ts';
import { Ticker } from './ticker.ts';

export type FlyingLeaf = Leaf<LeafMotion>;

export interface TurningEvents {
  /** Something moved and is to be drawn. */
  frame(quality: Quality): void;
  /** A leaf was launched or landed: other pages are seen or will be. */
  changed(): void;
  settled(): void;
}

/** A finger that rests for so long on a held leaf needs no more frames. */
const REST_MILLISECONDS = 100;

/** Moves leaves frame by frame, and asks for no frame while nothing moves. */
export class Turning {
  private readonly flight: Flight<LeafMotion>;
  private readonly governor = new Governor();
  private readonly ticker = new Ticker((seconds, elapsed) => this.step(seconds, elapsed));
  private isChanged = false; // since the frame before
  private lastChange = 0;
  private painting = 0; // seconds, of the frame before
  private shown = '';

  constructor(
    spreadCount: number,
    start: number,
    leaf: Size, // with the height 1
    stiffness: number,
    private readonly events: TurningEvents,
  ) {
    const launch = (_from: number, _to: number, side: 0 | 1) => new LeafMotion(leaf, side, stiffness);
    this.flight = new Flight(spreadCount, { launch }, start);
  }

  get lowest(): number {
    return this.flight.lowest;
  }

  get highest(): number {
    return this.flight.highest;
  }

  get destination(): number {
    return this.flight.destination;
  }

  get isMoving(): boolean {
    return this.flight.isMoving;
  }

  /** The lowest first. Those past the middle lie on the start side, the later the higher. */
  get leaves(): FlyingLeaf[] {
    const onEndSide = this.flight.leaves.filter((leaf) => leaf.mover.progress < 0.5).reverse();
    return [...onEndSide, ...this.flight.leaves.filter((leaf) => leaf.mover.progress >= 0.5)];
  }

  turn(count: number): boolean {
    const turned = this.flight.turn(count);
    if (turned) this.wake();
    return turned;
  }

  jump(spread: number): void {
    this.flight.jump(spread);
    this.wake();
  }

  settle(spread: number): void {
    this.flight.settle(spread);
    this.wake();
  }

  /** Takes the next leaf of a side at a point in its coordinates. */
  hold(step: 1 | -1, pointer: Point): FlyingLeaf | undefined {
    const flying = new Set(this.flight.leaves);
    const leaf = this.flight.hold(step);
    if (leaf) leaf.mover.hold(pointer, flying.has(leaf) ? undefined : step > 0 ? 0 : 1);
    this.wake();
    return leaf;
  }

  drag(leaf: FlyingLeaf, pointer: Point): void {
    leaf.mover.drag(pointer);
    this.wake();
  }

  /** Lets a leaf go with a velocity in its heights a second, to a side or to where it falls by itself. */
  release(leaf: FlyingLeaf, velocity: Point, target?: 0 | 1): void {
    const falls = leaf.mover.release(velocity);
    leaf.target = target ?? falls;
    leaf.held = false;
    this.wake();
  }

  /** Leaves the leaves where they are, for good. */
  stop(): void {
    this.ticker.stop();
  }

  /** Asks for a frame; needed from outside when what is drawn has changed and not where it lies. */
  wake(): void {
    this.isChanged = true;
    this.lastChange = performance.now();
    this.ticker.wake();
  }

  private step(seconds: number, elapsed: number): boolean {
    this.governor.frame(elapsed, this.painting);
    const isHeld = this.flight.isMoving && this.flight.leaves.every((leaf) => leaf.held);
    // Frames go on for a while under a finger, so that it is seen whether they come late.
    if (isHeld && !this.isChanged) return performance.now() - this.lastChange < REST_MILLISECONDS;
    this.isChanged = false;
    const begun = performance.now();
    this.advance(seconds);
    this.tellOfChange();
    this.events.frame(this.governor.quality);
    this.painting = (performance.now() - begun) / 1000;
    if (this.flight.isMoving) return true;
    this.governor.rest();
    this.events.settled();
    return false;
  }

  private advance(seconds: number): void {
    this.flight.advance(seconds);
    for (const leaf of this.flight.leaves) if (!leaf.held) leaf.mover.step(leaf.target, seconds);
    this.flight.land((leaf) => leaf.mover.hasLanded(leaf.target));
  }

  private tellOfChange(): void {
    const shown = `${this.flight.lowest} ${this.flight.leaves.map((leaf) => leaf.to).join(' ')}`;
    if (shown === this.shown) return;
    this.shown = shown;
    this.events.changed();
  }
}
