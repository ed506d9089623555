// SPDX-License-Identifier: MIT
import type { BookConfig, BookData } from './book.ts';
import { answerMessages } from './messages.ts';
import { type MountedBook, mountBook, type MountOptions } from './mount.ts';

/**
 * The same player for any page: `leafcastBook.mount(element, config, data)` shows a book in an
 * element that has a size. Paths of its files count from the folder given, or else from the page's
 * address. The answer turns the book and tells of it:
 *
 *     const book = leafcastBook.mount(element, bookConfig, bookData, { place: 4, view: 'scroll' });
 *     book.on('settled', (places) => ...);    // or 'turned', at once
 *     book.goTo(12); book.next(); book.previous(); book.destroy();
 *
 * In a frame the page around it can do the same by messages (messages.ts).
 */
export interface EmbeddedBook {
  goTo(place: number): void;
  next(): void;
  previous(): void;
  on(name: 'turned' | 'settled', listener: (places: readonly number[]) => void): () => void;
  destroy(): void;
}

function mount(
  element: HTMLElement,
  config: BookConfig,
  data?: BookData,
  options: Pick<MountOptions, 'place' | 'view' | 'folder'> = {},
): EmbeddedBook {
  const { signal, destroy, reader }: MountedBook = mountBook(element, config, data, options);
  let shown = reader;
  if (shown) answerMessages(shown, signal);
  signal.addEventListener('abort', () => (shown = undefined));
  return {
    goTo: (place) => shown?.goTo(place),
    next: () => void shown?.next(),
    previous: () => void shown?.previous(),
    on: (name, listener) => shown?.on(name, listener) ?? (() => {}),
    destroy,
  };
}

Object.assign(window, { leafcastBook: { mount } });
