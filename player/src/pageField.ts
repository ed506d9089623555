// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

/** Shows where the book lies open, and takes a number or a label to go to. */
export function makePageField({ reader, say, names, layer, announce }: Ui): HTMLElement {
  const field = create('input', { type: 'text', className: 'field', 'aria-label': say('pageField') });
  field.autocomplete = 'off';
  field.enterKeyHint = 'go';
  const total = create('span', { className: 'total', 'aria-hidden': 'true' });
  const form = create('form', { className: 'page-field', noValidate: true }, field, total);
  let isTyped = false;
  const show = () => {
    if (isTyped) return; // not under the fingers of who types while the pages still move
    field.value = names.labels(reader.places);
    field.style.width = `${Math.max(field.value.length, String(reader.pageCount).length) + 3}ch`;
    total.textContent = names.total(reader.places);
    accept(field);
  };
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    const place = names.find(field.value) ?? names.findRange(field.value)?.[0];
    isTyped = !place;
    if (place) reader.goTo(place);
    else refuse(field, say('noSuchPage', field.value), announce);
    if (place && reader.places.includes(place)) show();
  });
  field.addEventListener('focus', () => field.select());
  field.addEventListener('blur', () => {
    isTyped = false;
    show();
  });
  field.addEventListener('input', () => {
    isTyped = true;
    layer.leaveFocus();
    accept(field);
  });
  reader.on('turned', show);
  reader.on('settled', show);
  return form;
}

function accept(field: HTMLInputElement): void {
  field.removeAttribute('aria-invalid');
  field.title = '';
}

function refuse(field: HTMLInputElement, reason: string, announce: (text: string) => void): void {
  field.setAttribute('aria-invalid', 'true');
  field.title = reason;
  field.select();
  announce(reason);
}
