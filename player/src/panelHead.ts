// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { icon } from './icons.ts';

/** The title of a panel or a dialog, and the button that closes it. */
export function panelHead(title: string, closeName: string, close: () => void): HTMLElement {
  const button = create('button', { type: 'button', className: 'tool', title: closeName, 'aria-label': closeName });
  button.append(icon('close'));
  button.addEventListener('click', close);
  return create('div', { className: 'panel-head' }, create('h2', {}, title), button);
}
