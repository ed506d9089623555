// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { panelHead } from './panelHead.ts';
import type { Ui } from './ui.ts';

interface OpenDialog {
  close(): void;
  /** Aborted when the dialog is closed, by whatever way. */
  readonly closed: AbortSignal;
}

/** Shows a modal dialog; the browser keeps the focus in it and gives it back. */
export function openDialog({ root, say, signal }: Ui, title: string, body: HTMLElement): OpenDialog {
  const dialog = create('dialog', { className: 'dialog', 'aria-label': title });
  const close = () => dialog.close();
  dialog.append(panelHead(title, say('close'), close), body);
  const closed = new AbortController();
  dialog.addEventListener('close', () => {
    dialog.remove();
    closed.abort();
  });
  dialog.addEventListener('click', (event) => {
    if (event.target === dialog) close();
  });
  signal.addEventListener('abort', close, { signal: closed.signal });
  root.append(dialog);
  dialog.showModal();
  return { close, closed: closed.signal };
}
