// SPDX-License-Identifier: MIT

const A_MOMENT_MILLISECONDS = 200;

/** Runs once the browser has nothing better to do; not every browser can tell. */
export const whenIdle = (work: () => void): number => (canTell ? requestIdleCallback(() => work()) : laterOn(work));

export const cancelIdle = (handle: number): void => (canTell ? cancelIdleCallback(handle) : clearTimeout(handle));

const FRAME_MILLISECONDS = 50;

/** Before the next frame is drawn; where none is, as in a hidden tab, soon. */
export function inNextFrame(work: () => void): void {
  const once = () => {
    cancelAnimationFrame(frame);
    clearTimeout(timer);
    work();
  };
  const frame = requestAnimationFrame(once);
  const timer = window.setTimeout(once, FRAME_MILLISECONDS);
}

const LONGEST_WORK_MILLISECONDS = 12; // within a frame

/** To be called between parts of long work: lets the browser do something else when it has gone on for long. */
export function pauseNowAndThen(): () => Promise<void> {
  let since = performance.now();
  return async () => {
    if (performance.now() - since < LONGEST_WORK_MILLISECONDS) return;
    await new Promise((resolve) => setTimeout(resolve));
    since = performance.now();
  };
}

const canTell = 'requestIdleCallback' in globalThis;
const laterOn = (work: () => void): number => window.setTimeout(work, A_MOMENT_MILLISECONDS);
