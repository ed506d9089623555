// SPDX-License-Identifier: MIT

const A_MOMENT_MILLISECONDS = 200;

/** Runs once the browser has nothing better to do; not every browser can tell. */
export const whenIdle = (work: () => void): number => (canTell ? requestIdleCallback(() => work()) : laterOn(work));

export const cancelIdle = (handle: number): void => (canTell ? cancelIdleCallback(handle) : clearTimeout(handle));

const canTell = 'requestIdleCallback' in globalThis;
const laterOn = (work: () => void): number => window.setTimeout(work, A_MOMENT_MILLISECONDS);
