// SPDX-License-Identifier: MIT
import type { Book, TextLine } from './book.ts';
import { loadTextFile, type PageTexts } from './textFile.ts';

export interface PageText {
  readonly place: number;
  readonly lines: readonly TextLine[]; // in reading order
}

const MOST_FILES = 6;
const FILES_AHEAD = 3;

/**
 * The text of the pages, which lies in files of its own and is loaded where it is wanted. Few files
 * are held, those used last. The text of a file that can't be loaded is empty; the next call tries
 * again.
 */
export class BookTexts {
  private readonly files = new Map<number, Promise<PageTexts>>(); // in order of use, the last one last

  constructor(
    private readonly book: Pick<Book, 'pages' | 'textPages'>,
    private readonly folder = 'files/search/',
    private readonly load = loadTextFile,
  ) {}

  /** Whether any page has text; else there is nothing to search, read out or show. */
  get hasText(): boolean {
    return this.book.textPages > 0;
  }

  async linesOf(place: number): Promise<readonly TextLine[]> {
    if (!this.hasText) return [];
    const { textPages } = this.book;
    const pages = await this.file(Math.ceil(place / textPages));
    return pages[(place - 1) % textPages] ?? [];
  }

  /** Page by page in book order, without ever holding all of it; stop by leaving the loop. */
  async *all(): AsyncGenerator<PageText, void, undefined> {
    const { pages, textPages } = this.book;
    for (let place = 1; this.hasText && place <= pages.length; place++) {
      if (place % textPages === 1 || textPages === 1) this.fetchAhead(place);
      yield { place, lines: await this.linesOf(place) };
    }
  }

  private fetchAhead(place: number): void {
    const { pages, textPages } = this.book;
    const last = Math.ceil(pages.length / textPages);
    const file = Math.ceil(place / textPages);
    for (let ahead = file; ahead <= Math.min(file + FILES_AHEAD, last); ahead++) void this.file(ahead);
  }

  private file(number: number): Promise<PageTexts> {
    const texts = this.files.get(number) ?? this.loaded(number);
    this.files.delete(number);
    this.files.set(number, texts);
    for (const [oldest] of this.files) if (this.files.size > MOST_FILES) this.files.delete(oldest);
    return texts;
  }

  private loaded(number: number): Promise<PageTexts> {
    return this.load(`${this.folder}text-${number}.js`).catch(() => {
      this.files.delete(number);
      return [];
    });
  }
}
