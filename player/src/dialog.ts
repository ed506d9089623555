// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { icon } from './icons.ts';
import type { Ui } from './ui.ts';

/** Shows a modal dialog; the browser keeps the focus in it and gives it back. Answers how to close it. */
export function openDialog({ root, say }: Ui, title: string, body: HTMLElement): () => void {
  const close = create('button', { type: 'button', className: 'tool', title: say('close'), 'aria-label': say('close') });
  close.append(icon('close'));
  const head = create('div', { className: 'panel-head' }, create('h2', {}, title), close);
  const dialog = create('dialog', { className: 'dialog', 'aria-label': title }, head, body);
  close.addEventListener('click', () => dialog.close());
  dialog.addEventListener('close', () => dialog.remove());
  dialog.addEventListener('click', (event) => {
    if (event.target === dialog) dialog.close();
  });
  root.append(dialog);
  dialog.showModal();
  return () => dialog.close();
}
