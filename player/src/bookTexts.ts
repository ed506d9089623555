// SPDX-License-Identifier: MIT
import type { Book, TextLine } from './book.ts';
import { loadTextFile, type PageTexts } from './textFile.ts';

export interface PageText {
  readonly place: number;
  readonly lines: readonly TextLine[]; // in reading order
}

const MOST_FILES = 8;
const FILES_AHEAD = 3;

/**
 * The text of the pages, which lies in files of its own and is loaded where it is wanted. Few files
 * are held, those used last. The text of a file that can't be loaded is empty; the next call tries
 * again.
 */
export class BookTexts {
  private readonly files = new Map<number, Promise<PageTexts>>(); // in order of use, the last one last

  constructor(
    private readonly book: Pick<Book, 'pages' | 'textStarts'>,
    private readonly folder = 'files/search/',
    private readonly load = loadTextFile,
  ) {}

  /** Whether any page has text; else there is nothing to search, read out or show. */
  get hasText(): boolean {
    return this.book.textStarts.length > 0;
  }

  async linesOf(place: number): Promise<readonly TextLine[]> {
    if (!this.hasText) return [];
    const file = this.fileOf(place);
    const pages = await this.file(file);
    return pages[place - this.book.textStarts[file - 1]!] ?? [];
  }

  /** Page by page in book order, without ever holding all of it; stop by leaving the loop. */
  async *all(): AsyncGenerator<PageText, void, undefined> {
    const { pages, textStarts } = this.book;
    for (let place = 1; this.hasText && place <= pages.length; place++) {
      const file = this.fileOf(place);
      if (textStarts[file - 1] === place) this.fetchAhead(file);
      yield { place, lines: await this.linesOf(place) };
    }
  }

  /** The number of the file that holds a page's text, from 1. */
  private fileOf(place: number): number {
    const { textStarts } = this.book;
    let [low, high] = [1, textStarts.length];
    while (low < high) {
      const middle = Math.ceil((low + high) / 2);
      if (textStarts[middle - 1]! <= place) low = middle;
      else high = middle - 1;
    }
    return low;
  }

  private fetchAhead(file: number): void {
    const last = Math.min(file + FILES_AHEAD, this.book.textStarts.length);
    for (let ahead = file; ahead <= last; ahead++) void this.file(ahead);
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
