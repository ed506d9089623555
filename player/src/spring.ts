// SPDX-License-Identifier: MIT
import { add, distance, length, type Point, scale, subtract } from './geometry.ts';

/** What is let go comes to rest where it would be so much later. */
export const FORESIGHT_SECONDS = 0.15;
/** A critically damped spring has come to rest to the eye after this many radians. */
const RADIANS_TO_REST = 9.5;

/** Of a spring that comes to rest after some seconds. */
export const stiffnessOf = (seconds: number): number => RADIANS_TO_REST / seconds;

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
