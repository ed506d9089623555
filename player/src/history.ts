// SPDX-License-Identifier: MIT
import { hashOf, LastPage, placeOfHash } from './address.ts';
import type { Book } from './book.ts';
import type { Reader } from './reader.ts';
import type { Settings } from './settings.ts';

const lastPageOf = (): LastPage => new LastPage(() => localStorage, `leafcast:${location.pathname}`);

const placeOfAddress = (book: Book): number | undefined =>
  placeOfHash(
    location.hash,
    book.pages.map(({ label }) => label),
  );

/** What an address asks for goes before what was read last. */
export function firstPlace(book: Book, settings: Settings): number {
  const remembered = settings.remembersPage ? lastPageOf().read(book.pages.length) : undefined;
  return placeOfAddress(book) ?? remembered ?? 1;
}

/** Keeps the address at the open page. Jumps become steps of the history, turns do not. */
export function keepAddress(reader: Reader, signal: AbortSignal): void {
  const { book, settings } = reader;
  const lastPage = lastPageOf();
  const remember = (place: number): void => {
    if (settings.remembersPage) lastPage.write(place);
  };
  reader.on('jumped', ({ from, to }) => {
    change('replaceState', from);
    change('pushState', to);
    remember(to); // readers close a book before it has settled
  });
  reader.on('settled', ([place]) => {
    if (place === undefined) return;
    // A second page of a spread that the address names stays named.
    if (!reader.places.includes(placeOfAddress(book) ?? 0)) change('replaceState', place);
    remember(place);
  });
  window.addEventListener(
    'popstate',
    () => {
      const place = placeOfAddress(book);
      if (place && !reader.places.includes(place)) reader.show(place);
    },
    { signal },
  );
}

function change(how: 'replaceState' | 'pushState', place: number): void {
  if (how === 'replaceState' && location.hash === hashOf(place)) return;
  try {
    history[how](null, '', hashOf(place));
  } catch {
    // Browsers refuse when pages turn very fast; the address catches up with the next turn.
  }
}
