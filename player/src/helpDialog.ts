// SPDX-License-Identifier: MIT
import { openDialog } from './dialog.ts';
import { create } from './dom.ts';
import type { Texts } from './texts/english.ts';
import type { Ui } from './ui.ts';
import type { ViewKind } from './view.ts';
import { canBeFullScreen } from './viewTools.ts';

type Row = readonly [name: keyof Texts, keys: readonly string[]];

const WAYS: Readonly<Record<ViewKind, readonly Row[]>> = {
  book: [['keyTurn', ['←', '→', 'Page Up', 'Page Down']]],
  slide: [
    ['keyTurn', ['←', '→', 'Space', 'Page Up', 'Page Down']],
    ['pageField', ['1 … 9', 'Enter']],
    ['blackScreen', ['B', '.']],
  ],
  scroll: [['keyScroll', ['↑', '↓', 'Space', 'Page Up', 'Page Down']]],
};

const PAN: Row = ['keyPan', ['←', '→', '↑', '↓']];

/** Which keys do what in this book and this browser. */
export function openHelpDialog(ui: Ui): void {
  const { say } = ui;
  const { shows } = ui.reader.settings;
  const search: readonly Row[] = shows.search && ui.texts.hasText ? [['search', ['/']]] : [];
  const fullScreen: readonly Row[] = shows.fullScreen && canBeFullScreen() ? [['fullScreen', ['F']]] : [];
  const rows: readonly Row[] = [
    ...WAYS[ui.reader.kind],
    ['keyEnds', ['Home', 'End']],
    ['keyZoom', ['+', '−']],
    ...(ui.reader.kind === 'scroll' ? [] : [PAN]),
    ['fit', ['0']],
    ...fullScreen,
    ...search,
    ['help', ['?']],
    ['keyClose', ['Esc']],
  ];
  const list = create('dl', { className: 'keys' });
  for (const [name, keys] of rows)
    list.append(
      create('div', {}, create('dt', {}, say(name)), create('dd', {}, ...keys.map((key) => create('kbd', {}, key)))),
    );
  openDialog(ui, say('help'), create('div', {}, list, characterSwitch(ui)));
}

function characterSwitch({ say, characterKeys }: Ui): HTMLElement {
  const box = create('input', { type: 'checkbox', checked: characterKeys.areOn });
  box.addEventListener('change', () => characterKeys.turn(box.checked));
  return create('div', { className: 'choice key-switch' }, create('label', {}, box, say('characterKeys')));
}
