// SPDX-License-Identifier: MIT
import { hashOf } from './address.ts';
import { openDialog } from './dialog.ts';
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

/** The address of the open page, and what another web page needs to show the book. */
export function openShareDialog(ui: Ui): void {
  const { say, reader } = ui;
  const address = addressOf(reader.settings.shareAddress, reader.place);
  // While a modal dialog is open, nothing outside it is there for screen readers.
  const status = create('p', { className: 'spoken', role: 'status' });
  const announce = (text: string) => (status.textContent = text);
  const form = create('div', { className: 'form' }, status, copyField(ui, announce, say('shareAddress'), address));
  if (/^https?:/i.test(address)) form.append(copyField(ui, announce, say('shareEmbed'), snippet(address, document.title)));
  else form.append(create('p', { className: 'note' }, say('shareLocal')));
  if ('share' in navigator) form.append(nativeShare(say('shareWith'), address));
  openDialog(ui, say('share'), form);
}

export function addressOf(shareAddress: string, place: number): string {
  const [base = ''] = (shareAddress || location.href).split('#');
  return withScheme(base) + hashOf(place);
}

/** Who types an address often leaves out how it begins. */
const withScheme = (address: string): string => (/^\w+:\/\//.test(address) ? address : `https://${address}`);

export const snippet = (address: string, title: string): string =>
  `<iframe src="${escaped(address)}" title="${escaped(title)}" width="960" height="640" ` +
  'style="border:0;max-width:100%" allow="fullscreen; clipboard-write; web-share"></iframe>';

const escaped = (text: string): string => text.replace(/&/g, '&amp;').replace(/"/g, '&quot;').replace(/</g, '&lt;');

function copyField({ say }: Ui, announce: (text: string) => void, label: string, text: string): HTMLElement {
  const field = create('input', { type: 'text', className: 'field', readOnly: true, value: text });
  const copy = create('button', { type: 'button', className: 'plain' }, say('copy'));
  field.addEventListener('focus', () => field.select());
  copy.addEventListener('click', () => {
    void copied(field).then((done) => {
      copy.textContent = say(done ? 'copied' : 'copy');
      if (done) announce(say('copied'));
    });
  });
  return create('div', { className: 'copy-field' }, create('label', {}, label, field), copy);
}

/** The clipboard may be forbidden, and there is none for a page over plain HTTP. */
async function copied(field: HTMLInputElement): Promise<boolean> {
  try {
    await navigator.clipboard.writeText(field.value);
    return true;
  } catch {
    field.select();
    return document.execCommand('copy');
  }
}

function nativeShare(label: string, url: string): HTMLElement {
  const button = create('button', { type: 'button', className: 'main-button' }, label);
  // Refused only by the reader, who knows.
  button.addEventListener('click', () => void navigator.share({ title: document.title, url }).catch(() => {}));
  return button;
}
