// SPDX-License-Identifier: MIT
import { openDialog } from './dialog.ts';
import { create } from './dom.ts';
import { putOnPaper } from './paper.ts';
import type { Ui } from './ui.ts';

/** Asks which pages to print and prints their pictures, one a sheet. */
export function openPrintDialog(ui: Ui): void {
  const { say, names, reader } = ui;
  const field = create('input', {
    type: 'text',
    className: 'field',
    'aria-label': say('printSome'),
    placeholder: '1-4, 7',
  });
  const some = choice(say('printSome'), 'some', false, field);
  const note = create('p', { className: 'note', role: 'status', id: 'leafcast-print-note' }, say('printExample'));
  field.setAttribute('aria-describedby', note.id);
  const button = create('button', { type: 'submit', className: 'main-button' }, say('print'));
  const form = create(
    'form',
    { className: 'form', noValidate: true },
    choice(say('printOpen'), 'open', true),
    choice(say('printAll'), 'all', false),
    some,
    note,
    button,
  );
  field.addEventListener('focus', () => (some.querySelector('input')!.checked = true));
  const { close, closed } = openDialog(ui, say('print'), form);
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    const places = chosen(String(new FormData(form).get('pages')), field.value, ui);
    note.textContent = say(places ? 'printing' : 'printWrong');
    field.setAttribute('aria-invalid', String(!places));
    if (!places) return field.focus();
    const pages = places.map((place) => ({ url: reader.book.pages[place - 1]!.image, label: names.label(place) }));
    const tell = (done: number) => (note.textContent = `${say('printing')} ${done} / ${places.length}`);
    button.disabled = true;
    void printPages(pages, tell, closed).then((missing) => {
      button.disabled = false;
      if (missing.length === 0) close();
      else note.textContent = say('printMissing', missing.join(', '));
    });
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

interface PageToPrint {
  readonly url: string;
  readonly label: string;
}

const AT_ONCE = 4;

/**
 * Answers the labels of pages that could not be loaded, which are left out. Nothing is printed when there
 * is no other, or once the dialog is closed.
 */
async function printPages(
  pages: readonly PageToPrint[],
  tell: (done: number) => void,
  closed: AbortSignal,
): Promise<string[]> {
  const pictures = new Array<HTMLElement | undefined>(pages.length);
  let [next, done] = [0, 0];
  const load = async () => {
    while (next < pages.length && !closed.aborted) {
      const at = next++;
      pictures[at] = await pictureOf(pages[at]!);
      tell(++done);
    }
  };
  await Promise.all(Array.from({ length: AT_ONCE }, load));
  const missing = pages.filter((_, at) => !pictures[at]).map(({ label }) => label);
  if (closed.aborted || missing.length === pages.length) return missing;
  const takeAway = putOnPaper(pictures.flatMap((picture) => picture ?? []));
  // Where nothing can be printed nothing is told either.
  const printed = new Promise((resolve) => {
    window.addEventListener('afterprint', resolve, { once: true });
    closed.addEventListener('abort', resolve, { once: true });
  });
  window.print();
  await printed;
  takeAway();
  return missing;
}

function pictureOf({ url, label }: PageToPrint): Promise<HTMLElement | undefined> {
  return new Promise((resolve) => {
    const picture = create('img', { alt: label });
    picture.onload = () => resolve(picture);
    picture.onerror = () => resolve(undefined);
    picture.src = url;
  });
}
