// SPDX-License-Identifier: MIT

/**
 * A page in the address bar: `#page/12` is the twelfth page of the book, `#page/xii` the one with
 * that label. Links and the history use places, because these are unique.
 */
export const hashOf = (place: number): string => `#page/${place}`;

export function placeOfHash(hash: string, labels: readonly string[]): number | undefined {
  const name = decoded(/^#page\/(.+)$/.exec(hash)?.[1] ?? '').toLowerCase();
  if (name === '') return undefined;
  const place = /^\d+$/.test(name) ? Number(name) : labels.findIndex((label) => label.toLowerCase() === name) + 1;
  return place >= 1 && place <= labels.length ? place : undefined;
}

/** People type addresses by hand, with a stray percent sign too. */
function decoded(text: string): string {
  try {
    return decodeURIComponent(text);
  } catch {
    return text;
  }
}

export interface Store {
  getItem(key: string): string | null;
  setItem(key: string, value: string): void;
}

/** The page that a reader left a book at. Storage may be full, forbidden or absent. */
export class LastPage {
  constructor(
    private readonly store: () => Store,
    private readonly bookKey: string,
  ) {}

  read(pageCount: number): number | undefined {
    try {
      const place = Number(this.store().getItem(this.bookKey));
      return Number.isInteger(place) && place >= 1 && place <= pageCount ? place : undefined;
    } catch {
      return undefined;
    }
  }

  write(place: number): void {
    try {
      this.store().setItem(this.bookKey, String(place));
    } catch {
      // The book opens at its first page then.
    }
  }
}
