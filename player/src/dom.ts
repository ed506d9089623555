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

export interface Closable {
  close(): void;
}

/** Whether keys typed now are meant for a field. */
export const isField = (target: EventTarget | null): boolean =>
  target instanceof Element && target.closest('input, textarea, select, [contenteditable]') !== null;

/** Listens until the book is taken down. */
export function listen<Name extends keyof DocumentEventMap>(
  name: Name,
  listener: (event: DocumentEventMap[Name]) => void,
  signal: AbortSignal,
): void {
  document.addEventListener(name, listener, { signal });
}
