// SPDX-License-Identifier: MIT
import { clamp } from './geometry.ts';

/**
 * Which leaves are in the air and where they go. A leaf lies between two spreads: at 0 it lies on
 * the end side and the spread `from` is seen, at 1 on the start side and `to` is seen. How it moves
 * in between is the mover's.
 */
export interface Leaf<Mover> {
  readonly from: number; // index of a spread
  readonly to: number; // greater than from; by more than one for a jump
  target: 0 | 1;
  held: boolean;
  readonly mover: Mover;
}

export interface MoverFactory<Mover> {
  /** A leaf that lies at rest on the side it starts from. */
  launch(from: number, to: number, start: 0 | 1): Mover;
}

const MOST_IN_THE_AIR = 3;
/** Between two launches, so that leaves fly apart and can be told from each other. */
export const LAUNCH_INTERVAL_SECONDS = 0.11;

/** Leaves in the air form a chain: each one's `to` is the next one's `from`. */
export class Flight<Mover> {
  readonly leaves: Leaf<Mover>[] = [];
  private settled: number;
  private pending = 0; // turns asked for and not yet begun; negative ones go back
  private sinceLaunch = Infinity;

  constructor(
    private readonly spreadCount: number,
    private readonly factory: MoverFactory<Mover>,
    start: number,
  ) {
    this.settled = start;
  }

  /** The spread on the ground at the start side, beneath all leaves. */
  get lowest(): number {
    return this.leaves[0]?.from ?? this.settled;
  }

  /** The spread on the ground at the end side. */
  get highest(): number {
    return this.leaves[this.leaves.length - 1]?.to ?? this.settled;
  }

  /** The spread that will be seen when all that is under way has landed. */
  get landing(): number {
    return this.leaves.find((leaf) => leaf.target === 0)?.from ?? this.highest;
  }

  /** As `landing`, with the turns that wait. */
  get destination(): number {
    return this.landing + this.pending;
  }

  get isMoving(): boolean {
    return this.leaves.length > 0 || this.pending !== 0;
  }

  /** Turns by so many spreads; each one is seen. Answers whether there is any to turn. */
  turn(count: number): boolean {
    const before = this.destination;
    const wanted = clamp(before + count, 0, this.spreadCount - 1);
    this.pending += wanted - before;
    return wanted !== before;
  }

  /** Turns one leaf with the place jumped to on its other side. */
  jump(spread: number): void {
    this.pending = 0;
    const here = this.landing;
    if (spread === here || spread < 0 || spread >= this.spreadCount) return;
    if (Math.abs(spread - here) === 1) {
      this.pending = spread - here;
      return;
    }
    const goesOn = this.leaves.every((leaf) => leaf.target === (spread > here ? 1 : 0));
    if (!goesOn || this.isFull) this.settle(here);
    this.launch(here, spread);
  }

  /** Takes hold of the next leaf of that side, in flight or not; undefined when there is none. */
  hold(step: 1 | -1): Leaf<Mover> | undefined {
    this.pending = 0;
    const here = this.landing;
    const neighbour = here + step;
    if (neighbour < 0 || neighbour >= this.spreadCount) return undefined;
    const leaf = this.flyingTowards(here, step) ?? (this.isFull ? undefined : this.launch(here, neighbour));
    if (leaf) leaf.held = true;
    return leaf;
  }

  /** Shows a spread at once. */
  settle(spread: number): void {
    this.leaves.length = 0;
    this.pending = 0;
    this.settled = spread;
  }

  /** Begins turns that wait, as far as the air is free. */
  advance(seconds: number): void {
    this.sinceLaunch += seconds;
    if (this.pending === 0 || this.leaves.some((leaf) => leaf.held)) return;
    const step = Math.sign(this.pending);
    if (this.reverse(step)) this.pending -= step;
    else if (this.mayLaunch(step)) {
      this.pending -= step;
      this.launch(this.landing, this.landing + step);
    }
  }

  /** To be told that a leaf lies at its target. It goes when no leaf beneath it is in the air. */
  land(landed: (leaf: Leaf<Mover>) => boolean): void {
    const isDown = (leaf: Leaf<Mover> | undefined, target: 0 | 1): boolean =>
      leaf !== undefined && !leaf.held && leaf.target === target && landed(leaf);
    while (isDown(this.leaves[0], 1)) this.settled = this.leaves.shift()!.to;
    while (isDown(this.leaves[this.leaves.length - 1], 0)) this.settled = this.leaves.pop()!.from;
  }

  /** A leaf that flies the other way turns round instead of a new one. */
  private reverse(step: number): boolean {
    const leaf = this.flyingTowards(this.landing, step);
    if (leaf) leaf.target = step > 0 ? 1 : 0;
    return leaf !== undefined;
  }

  /** The leaf in the air that a step from a spread would turn, were it on the ground. */
  private flyingTowards(spread: number, step: number): Leaf<Mover> | undefined {
    return this.leaves.find((leaf) => (step > 0 ? leaf.from : leaf.to) === spread);
  }

  private get isFull(): boolean {
    return this.leaves.length >= MOST_IN_THE_AIR;
  }

  private mayLaunch(step: number): boolean {
    return (
      !this.isFull &&
      this.sinceLaunch >= LAUNCH_INTERVAL_SECONDS &&
      this.leaves.every((leaf) => leaf.target === (step > 0 ? 1 : 0))
    );
  }

  private launch(here: number, there: number): Leaf<Mover> {
    const forward = there > here;
    const [from, to] = forward ? [here, there] : [there, here];
    const mover = this.factory.launch(from, to, forward ? 0 : 1);
    const leaf: Leaf<Mover> = { from, to, target: forward ? 1 : 0, held: false, mover };
    if (forward) this.leaves.push(leaf);
    else this.leaves.unshift(leaf);
    this.sinceLaunch = 0;
    return leaf;
  }
}
