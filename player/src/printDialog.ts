// SPDX-License-Identifier: MIT
import { openDialog } from './dialog.ts';
import { create } from './dom.ts';
import { putOnPaper } from './paper.ts';
import type { Ui } from './ui.ts';

/** Asks which pages to print and prints their pictures, one a sheet. */
export function openPrintDialog(ui: Ui): void {
  const { say, names, reader } = ui;
  const pages = create('input', {
    type: 'text',
    className: 'field',
    'aria-label': say('printExample'),
    placeholder: '1-4, 7',
  });
  const some = choice(say('printSome'), 'some', false, pages);
  const note = create('p', { className: 'note', role: 'status' }, say('printExample'));
  const form = create(
    'form',
    { className: 'form', noValidate: true },
    choice(say('printOpen'), 'open', true),
    choice(say('printAll'), 'all', false),
    some,
    note,
    create('button', { type: 'submit', className: 'main-button' }, say('print')),
  );
  pages.addEventListener('focus', () => (some.querySelector('input')!.checked = true));
  const close = openDialog(ui, say('print'), form);
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    const places = chosen(String(new FormData(form).get('pages')), pages.value, ui);
    note.textContent = say(places ? 'printing' : 'printWrong');
    pages.setAttribute('aria-invalid', String(!places));
    if (!places) return pages.focus();
    void printPages(
      places.map((place) => reader.book.pages[place - 1]!.image),
      places.map((place) => names.label(place)),
    ).then(close);
  });
}

function choice(label: string, value: string, checked: boolean, ...more: HTMLElement[]): HTMLElement {
  const radio = create('input', { type: 'radio', name: 'pages', value, checked });
  return create('div', { className: 'choice' }, create('label', {}, radio, label), ...more);
}

function chosen(which: string, text: string, { reader, names }: Ui): readonly number[] | undefined {
  if (which === 'open') return reader.places;
  if (which === 'all') return reader.book.pages.map((_, index) => index + 1);
  return names.findRange(text);
}

/** Pages that cannot be loaded are left out. */
async function printPages(urls: readonly string[], labels: readonly string[]): Promise<void> {
  const loaded = await Promise.all(urls.map((url, index) => pictureOf(url, labels[index]!)));
  const takeAway = putOnPaper(loaded.flatMap((picture) => picture ?? []));
  const done = new Promise((resolve) => window.addEventListener('afterprint', resolve, { once: true }));
  window.print();
  await done;
  takeAway();
}

function pictureOf(url: string, label: string): Promise<HTMLElement | undefined> {
  return new Promise((resolve) => {
    const picture = create('img', { alt: label });
    picture.onload = () => resolve(picture);
    picture.onerror = () => resolve(undefined);
    picture.src = url;
  });
}
