// SPDX-License-Identifier: MIT
import { openDialog } from './dialog.ts';
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

/** Which keys do what. */
export function openHelpDialog(ui: Ui): void {
  const { say } = ui;
  const rows: readonly (readonly [string, readonly string[]])[] = [
    [say('keyTurn'), ['←', '→', 'Page Up', 'Page Down']],
    [say('keyEnds'), ['Home', 'End']],
    [say('keyZoom'), ['+', '−']],
    [say('fit'), ['0']],
    [say('fullScreen'), ['F']],
    [say('search'), ['/']],
    [say('help'), ['?']],
    [say('keyClose'), ['Esc']],
  ];
  const list = create('dl', { className: 'keys' });
  for (const [name, keys] of rows)
    list.append(
      create('div', {}, create('dt', {}, name), create('dd', {}, ...keys.map((key) => create('kbd', {}, key)))),
    );
  openDialog(ui, say('help'), list);
}
