// SPDX-License-Identifier: MIT
import { isCharacter } from './characterKeys.ts';
import { isField } from './dom.ts';
import { openHelpDialog } from './helpDialog.ts';
import { type Actions, keyName, viewKeys } from './viewKeys.ts';
import { canBeFullScreen, toggleFullScreen, zoomBy } from './viewTools.ts';
import type { Ui } from './ui.ts';

/** Keys that are pressed on `target` and not meant for a field turn, jump, zoom and open what there is. */
export function listenToKeys(ui: Ui, target: HTMLElement | Document, openSearch: (() => void) | undefined): void {
  const actions = actionsOf(ui, openSearch);
  const hear = (event: Event) => {
    const isOff = isCharacter((event as KeyboardEvent).key) && !ui.characterKeys.areOn;
    if (!isOff) answer(event as KeyboardEvent, actions);
  };
  target.addEventListener('keydown', hear, { signal: ui.signal });
}

function answer(event: KeyboardEvent, actions: Actions): void {
  if (event.defaultPrevented || event.isComposing || event.altKey || event.ctrlKey || event.metaKey || isField(event.target)) return;
  // Lists and long texts scroll and choose by the same keys, and dialogs close themselves.
  if (event.target instanceof Element && event.target.closest('dialog, .panel, .menu')) return;
  const action = actions[keyName(event)];
  if (!action || (isPress(event) && event.target instanceof Element && event.target.closest('a, button'))) return;
  event.preventDefault();
  action();
}

/** What buttons and links take as a press on them. */
const isPress = ({ key }: KeyboardEvent): boolean => key === ' ' || key === 'Enter';

function actionsOf(ui: Ui, openSearch: (() => void) | undefined): Actions {
  const { reader, root, panel } = ui;
  const { shows } = reader.settings;
  return {
    '+': () => zoomBy(ui, 1),
    '=': () => zoomBy(ui, 1),
    '-': () => zoomBy(ui, -1),
    0: () => reader.zoomTo(1),
    ...(shows.fullScreen && canBeFullScreen() ? { f: () => toggleFullScreen(root) } : {}),
    ...(openSearch ? { '/': openSearch } : {}),
    ...(shows.help ? { '?': () => openHelpDialog(ui) } : {}),
    Escape: () => void panel.close(),
    ...viewKeys(ui),
  };
}
