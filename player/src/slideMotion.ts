// SPDX-License-Identifier: MIT
import { clamp } from './geometry.ts';
import { FORESIGHT_SECONDS, hasArrived, type Motion, springTo } from './spring.ts';

/** Of a slide's width: less than a pixel on any screen. */
const TOLERANCE = 0.0004;
/** How much of the way a finger takes the strip beyond its ends. */
const GIVE = 0.3;

/** A page in the slot beside the one that was jumped to. */
interface StandIn {
  readonly slot: number;
  readonly place: number;
  readonly jumpedTo: number;
}

/**
 * A strip of slides, one a slot, and how far it has moved: at 3 the third slot fills the stage, at
 * 3.5 half of the fourth is seen too. A slot holds the page of its number, but for a jump: then the
 * page that is left stands in the slot beside the one jumped to.
 */
export class SlideMotion {
  private motion: Motion;
  private target: number; // a slot
  private held: number | undefined; // the slot that was nearest when it was taken hold of
  private standIn: StandIn | undefined;

  constructor(
    private readonly pageCount: number,
    place: number,
    private readonly stiffness: number, // per second
  ) {
    this.target = place;
    this.motion = resting(place);
  }

  get position(): number {
    return this.motion.position.x;
  }

  /** The page that will be seen when all is still. */
  get destination(): number {
    return this.placeIn(this.target);
  }

  get isHeld(): boolean {
    return this.held !== undefined;
  }

  get isStill(): boolean {
    return !this.isHeld && this.position === this.target;
  }

  placeIn(slot: number): number {
    return this.standIn?.slot === slot ? this.standIn.place : slot;
  }

  /** Of which something is seen, one or two. */
  get slots(): number[] {
    const slots = [Math.floor(this.position), Math.ceil(this.position)];
    return [...new Set(slots)].filter((slot) => slot >= 1 && slot <= this.pageCount);
  }

  /** Answers whether there is a page to turn to. */
  turn(count: number): boolean {
    // The page meant is the one that belongs into the stand-in's slot, or beside where the stand-in belongs.
    if (this.standIn && [this.target, this.target + count].includes(this.standIn.slot)) this.show(this.destination);
    const wanted = clamp(this.target + count, 1, this.pageCount);
    const turns = wanted !== this.target;
    this.target = wanted;
    return turns;
  }

  /** Goes to a page as if it were the next one, however far it is. */
  jump(place: number): void {
    const step = Math.sign(place - this.destination);
    if (Math.abs(place - this.destination) <= 1) return void this.turn(step);
    const left = this.placeIn(clamp(Math.round(this.position), 1, this.pageCount));
    this.show(place);
    if (left === place) return;
    this.standIn = { slot: place - step, place: left, jumpedTo: place };
    this.motion = resting(place - step);
  }

  /** At once. */
  show(place: number): void {
    this.standIn = undefined;
    this.held = undefined;
    this.target = place;
    this.motion = resting(place);
  }

  /** Answers where it is held, to drag it on from there. */
  hold(): number {
    this.held = clamp(Math.round(this.position), 1, this.pageCount);
    return this.position;
  }

  drag(position: number): void {
    const inside = this.within(position);
    this.motion = resting(inside + (position - inside) * GIVE);
  }

  /** Lets go with a velocity in slides a second; a stroke turns however short it was. */
  release(velocity: number, isStroke: boolean): void {
    const from = this.held ?? this.target;
    this.held = undefined;
    this.target = this.within(landing(from, this.position, velocity, isStroke));
    this.motion = { position: this.motion.position, velocity: { x: velocity, y: 0 } };
  }

  /** Answers whether it has come to rest. */
  step(seconds: number): boolean {
    if (this.isHeld) return false;
    const target = { x: this.target, y: 0 };
    this.motion = springTo(this.motion, target, this.stiffness, seconds);
    if (this.standIn && !this.slots.includes(this.standIn.slot)) this.standIn = undefined;
    if (!hasArrived(this.motion, target, TOLERANCE, this.stiffness)) return false;
    this.show(this.destination);
    return true;
  }

  /** While a stand-in is seen a finger reaches its slot and the one beside it, for beyond it lie other pages. */
  private within(position: number): number {
    const { slot, jumpedTo } = this.standIn ?? { slot: 1, jumpedTo: this.pageCount };
    return clamp(position, Math.min(slot, jumpedTo), Math.max(slot, jumpedTo));
  }
}

const resting = (position: number): Motion => ({ position: { x: position, y: 0 }, velocity: { x: 0, y: 0 } });

/** The slot where a strip that is let go comes to rest: one finger turns one page. */
export function landing(from: number, position: number, velocity: number, isStroke: boolean): number {
  const falls = Math.round(position + velocity * FORESIGHT_SECONDS);
  return isStroke ? from + Math.sign(velocity) : clamp(falls, from - 1, from + 1);
}
