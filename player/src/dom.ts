// SPDX-License-Identifier: MIT
import type { Box } from './geometry.ts';

export type Child = Node | string;

/** An element with properties set, `data-` and `aria-` ones and other hyphenated names as attributes. */
export function create<Name extends keyof HTMLElementTagNameMap>(
  name: Name,
  properties: Readonly<Record<string, unknown>> = {},
  ...children: Child[]
): HTMLElementTagNameMap[Name] {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(properties)) {
    if (value === undefined) continue;
    if (key.includes('-') || key === 'role') element.setAttribute(key, String(value));
    else (element as unknown as Record<string, unknown>)[key] = value;
  }
  element.append(...children);
  return element;
}

/** Where it lies in what it is positioned in, in CSS pixels or another unit. */
export function putAt({ style }: HTMLElement, { x, y, width, height }: Box, unit = 'px'): void {
  [style.left, style.top] = [x + unit, y + unit];
  [style.width, style.height] = [width + unit, height + unit];
}

const LEAD_PIXELS = 8;

/**
 * Scrolls a box, and nothing around it, to an element in it: to its upper edge, or by `part` of the
 * room that is left towards the lower one.
 */
export function scrollWithin(box: HTMLElement, element: HTMLElement, part = 0): void {
  const above = element.getBoundingClientRect().top - box.getBoundingClientRect().top;
  box.scrollTop += above - LEAD_PIXELS - (box.clientHeight - element.offsetHeight) * part;
}

/** Whether keys typed now are meant for a field. */
export const isField = (target: EventTarget | null): boolean =>
  target instanceof Element && target.closest('input, textarea, select, [contenteditable]') !== null;
