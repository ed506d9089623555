// SPDX-License-Identifier: MIT
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

/** Whether keys typed now are meant for a field. */
export const isField = (target: EventTarget | null): boolean =>
  target instanceof Element && target.closest('input, textarea, select, [contenteditable]') !== null;
