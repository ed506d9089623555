// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { icon } from './icons.ts';
import type { Ui } from './ui.ts';

/** Back and on, each on the side of the book that it turns to. */
export function makeTurnButtons({ reader, say }: Ui): { readonly back: HTMLElement; readonly on: HTMLElement } {
  const { rightToLeft } = reader.settings;
  const back = turnButton('previous', say('previous'), rightToLeft, () => reader.previous());
  const on = turnButton('next', say('next'), !rightToLeft, () => reader.next());
  const show = (places: readonly number[]) => {
    back.setAttribute('aria-disabled', String(places.includes(1)));
    on.setAttribute('aria-disabled', String(places.includes(reader.pageCount)));
  };
  reader.on('turned', show);
  reader.on('settled', show);
  return { back, on };
}

function turnButton(name: string, label: string, isRight: boolean, press: () => void): HTMLButtonElement {
  const button = create('button', { type: 'button', className: `turn ${name}`, title: label, 'aria-label': label });
  button.dataset.side = isRight ? 'right' : 'left';
  button.append(icon(isRight ? 'on' : 'back'));
  button.addEventListener('click', press);
  return button;
}
