// SPDX-License-Identifier: MIT
import type { Size } from './geometry.ts';
import { onResize } from './onResize.ts';

export const sizeOf = ({ clientWidth, clientHeight }: HTMLElement): Size => ({ width: clientWidth, height: clientHeight });

/** Pages rest inside a stage's padding; leaves in the air and zoomed pages may lie over it. */
export function marginOf(stage: HTMLElement): Size {
  const { paddingLeft, paddingTop } = getComputedStyle(stage);
  return { width: parseFloat(paddingLeft), height: parseFloat(paddingTop) };
}

/** Calls back when a stage has another size than it has now. Answers how to stop. */
export function onOtherSize(stage: HTMLElement, changed: () => void): () => void {
  let last = sizeOf(stage);
  return onResize(stage, () => {
    const now = sizeOf(stage);
    if (now.width === last.width && now.height === last.height) return;
    last = now;
    changed();
  });
}
