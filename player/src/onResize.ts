// SPDX-License-Identifier: MIT

/** Calls back now and then: when an element has got its size, and another one. Answers how to stop. */
export function onResize(element: Element, changed: () => void): () => void {
  const observer = new ResizeObserver(changed);
  observer.observe(element);
  return () => observer.disconnect();
}
