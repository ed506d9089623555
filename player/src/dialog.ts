// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { panelHead } from './panelHead.ts';
import type { Ui } from './ui.ts';

/** Shows a modal dialog; the browser keeps the focus in it and gives it back. Answers how to close it. */
export function openDialog({ root, say }: Ui, title: string, body: HTMLElement): () => void {
  const dialog = create('dialog', { className: 'dialog', 'aria-label': title });
  const close = () => dialog.close();
  dialog.append(panelHead(title, say('close'), close), body);
  dialog.addEventListener('close', () => dialog.remove());
  dialog.addEventListener('click', (event) => {
    if (event.target === dialog) close();
  });
  root.append(dialog);
  dialog.showModal();
  return close;
}
