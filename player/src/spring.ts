// SPDX-License-Identifier: MIT
import { add, distance, length, type Point, scale, subtract } from './geometry.ts';

/** A point on a critically damped spring: it comes to its target without swinging past it. */
export interface Motion {
  readonly position: Point;
  readonly velocity: Point; // per second
}

/**
 * The motion after some seconds, exactly, so that few long frames and many short ones lead to the
 * same place. The stiffness is the spring's angular frequency, per second.
 */
export function springTo(motion: Motion, target: Point, stiffness: number, seconds: number): Motion {
  const offset = subtract(motion.position, target);
  const drive = add(motion.velocity, scale(offset, stiffness));
  const decay = Math.exp(-stiffness * seconds);
  return {
    position: add(target, scale(add(offset, scale(drive, seconds)), decay)),
    velocity: scale(subtract(motion.velocity, scale(drive, stiffness * seconds)), decay),
  };
}

/** Whether nothing of the motion could be seen any more. */
export function hasArrived(motion: Motion, target: Point, tolerance: number, stiffness: number): boolean {
  return (
    distance(motion.position, target) < tolerance && length(motion.velocity) < tolerance * stiffness
  );
}
