// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import { onResize } from './onResize.ts';

export const sizeOf = ({ clientWidth, clientHeight }: HTMLElement): Size => ({ width: clientWidth, height: clientHeight });

/** Pages rest inside a stage's padding; leaves in the air and zoomed pages may lie over it. */
export function marginOf(stage: HTMLElement): Size {
  const { paddingLeft, paddingTop } = getComputedStyle(stage);
  return { width: parseFloat(paddingLeft), height: parseFloat(paddingTop) };
}

/** Calls back when a stage has another size than it has now, in CSS pixels or in those of a screen. Answers how to stop. */
export function onOtherSize(stage: HTMLElement, changed: () => void): () => void {
  const now = () => `${stage.clientWidth} ${stage.clientHeight} ${devicePixelRatio}`;
  let last = now();
  const look = () => {
    if (now() === last) return;
    last = now();
    changed();
  };
  const stopWatchingSize = onResize(stage, look);
  const stopWatchingDensity = onOtherDensity(look);
  return () => {
    stopWatchingSize();
    stopWatchingDensity();
  };
}

/** When the window comes to a screen of another density; a query asks for one density only. */
function onOtherDensity(changed: () => void): () => void {
  const stop = new AbortController();
  const watch = () =>
    matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener(
      'change',
      () => {
        changed();
        watch();
      },
      { once: true, signal: stop.signal },
    );
  watch();
  return () => stop.abort();
}
