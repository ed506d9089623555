// SPDX-License-Identifier: MIT
import { isField } from './dom.ts';
import { openHelpDialog } from './helpDialog.ts';
import { canBeFullScreen, toggleFullScreen, zoomBy } from './viewTools.ts';
import type { Ui } from './ui.ts';

type Actions = Readonly<Record<string, () => void>>;

/** Keys that are pressed on `target` and not meant for a field turn, jump, zoom and open what there is. */
export function listenToKeys(ui: Ui, target: HTMLElement | Document, openSearch: (() => void) | undefined): void {
  const actions = actionsOf(ui, openSearch);
  target.addEventListener('keydown', (event) => answer(event as KeyboardEvent, actions), { signal: ui.signal });
}

function answer(event: KeyboardEvent, actions: Actions): void {
  if (event.defaultPrevented || event.altKey || event.ctrlKey || event.metaKey || isField(event.target)) return;
  // Lists and long texts scroll and choose by the same keys, and dialogs close themselves.
  if (event.target instanceof Element && event.target.closest('dialog, .panel, .menu')) return;
  const action = actions[event.key.length === 1 ? event.key.toLowerCase() : event.key];
  if (!action) return;
  event.preventDefault();
  action();
}

function actionsOf(ui: Ui, openSearch: (() => void) | undefined): Actions {
  const { reader, root, panel } = ui;
  const { rightToLeft, shows } = reader.settings;
  const on = () => void reader.next();
  const back = () => void reader.previous();
  return {
    ArrowRight: rightToLeft ? back : on,
    ArrowLeft: rightToLeft ? on : back,
    PageDown: on,
    PageUp: back,
    Home: () => reader.goTo(1),
    End: () => reader.goTo(reader.pageCount),
    '+': () => zoomBy(ui, 1),
    '=': () => zoomBy(ui, 1),
    '-': () => zoomBy(ui, -1),
    0: () => reader.zoomTo(1),
    ...(shows.fullScreen && canBeFullScreen() ? { f: () => toggleFullScreen(root) } : {}),
    ...(openSearch ? { '/': openSearch } : {}),
    ...(shows.help ? { '?': () => openHelpDialog(ui) } : {}),
    Escape: () => void panel.close(),
  };
}
