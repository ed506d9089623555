// SPDX-License-Identifier: MIT
import { type Curl, curlOf, reachable } from './curl.ts';
import { add, clamp, type Point, type Size, subtract } from './geometry.ts';
import { FORESIGHT_SECONDS, hasArrived, type Motion, springTo } from './spring.ts';

/** Of the leaf's width. */
const LARGEST_RADIUS = 0.17;
/** Of the leaf's height a second; lifts the corner, so that the leaf turns at a tilt. */
const LIFT = 1.9;
/** Of the leaf's height: less than a pixel on any screen. */
const TOLERANCE = 0.0008;

const STILL: Point = { x: 0, y: 0 };

/**
 * A leaf in the air, in leaf coordinates (see curl.ts) with the leaf's height as the unit. It hangs
 * at the point where it was grabbed, or at its lower corner when it turns by itself.
 */
export class LeafMotion {
  private grabbed: Point;
  private motion: Motion;
  private grip: Point = STILL; // from the pointer to the held point

  constructor(
    private readonly leaf: Size,
    start: 0 | 1,
    private readonly stiffness: number, // per second
  ) {
    this.grabbed = { x: leaf.width, y: leaf.height * 0.985 };
    this.motion = { position: this.rest(start), velocity: { x: 0, y: -LIFT } };
  }

  get curl(): Curl {
    const held = reachable(this.motion.position, this.grabbed, this.leaf);
    return curlOf(held, this.grabbed, this.leaf, LARGEST_RADIUS * this.leaf.width);
  }

  /** From 0 where the leaf lies on the end side to 1 on the start side. */
  get progress(): number {
    return clamp((this.grabbed.x - this.motion.position.x) / (2 * this.grabbed.x), 0, 1);
  }

  /** For a stiff leaf: the cosine of the angle that it has turned through. */
  get opening(): number {
    return 1 - 2 * this.progress;
  }

  /** Takes hold of a resting leaf at the pointer itself, of one in flight where it hangs. */
  hold(pointer: Point, resting: 0 | 1 | undefined): void {
    if (resting !== undefined) {
      this.grabbed = resting === 0 ? pointer : { x: -pointer.x, y: pointer.y };
      this.motion = { position: this.rest(resting), velocity: STILL };
    }
    this.grip = subtract(this.motion.position, pointer);
  }

  drag(pointer: Point): void {
    this.motion = { position: add(pointer, this.grip), velocity: STILL };
  }

  /** Lets go with a velocity a second; answers the side to which the leaf falls. */
  release(velocity: Point): 0 | 1 {
    this.motion = { position: reachable(this.motion.position, this.grabbed, this.leaf), velocity };
    return this.motion.position.x + velocity.x * FORESIGHT_SECONDS < 0 ? 1 : 0;
  }

  step(target: 0 | 1, seconds: number): void {
    this.motion = springTo(this.motion, this.rest(target), this.stiffness, seconds);
  }

  hasLanded(target: 0 | 1): boolean {
    return hasArrived(this.motion, this.rest(target), TOLERANCE, this.stiffness);
  }

  private rest(side: 0 | 1): Point {
    return { x: side === 0 ? this.grabbed.x : -this.grabbed.x, y: this.grabbed.y };
  }
}
