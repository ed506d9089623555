// SPDX-License-Identifier: MIT

/**
 * The book as the player sees it, read from what the writer put into it: the configuration, which
 * every book has, and the reader data, which a template asks for (docs/book-format.md).
 */
export type BookConfig = Readonly<Record<string, string | number | undefined>>;

export interface PageLink {
  /** Fractions of the page as it is displayed, origin top-left. */
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
  readonly url?: string;
  readonly place?: number;
}

export type WordBox = readonly [x: number, y: number, width: number, height: number];

export interface TextLine {
  readonly text: string;
  readonly boxes: readonly WordBox[]; // one a word
}

export interface Page {
  readonly label: string;
  readonly image: string;
  readonly width: number; // pixels; 0 when there is no picture
  readonly height: number;
  readonly links: readonly PageLink[];
}

export interface OutlineItem {
  readonly title: string;
  readonly place: number; // 0: leads nowhere in this book
  readonly items: readonly OutlineItem[];
}

export interface BookData {
  readonly version: number;
  readonly textStarts: readonly number[];
  readonly pages: readonly Page[];
  readonly outline: readonly OutlineItem[];
}

export interface Book {
  readonly pages: readonly Page[]; // a page's place is its position here, from 1
  /** Without it all pages are taken to have the size of the first, which is in points then. */
  readonly hasPageList: boolean;
  readonly outline: readonly OutlineItem[];
  readonly textStarts: readonly number[]; // the first place of each text file (bookTexts.ts)
  readonly shape: number; // width over height of a leaf
}

/** A page this much wider than a leaf takes both sides of a spread. */
const WIDE_PAGE = 1.3;

/** `fileAt` answers where a file of the book lies. */
export function readBook(config: BookConfig, data: BookData | undefined, fileAt = (path: string) => path): Book {
  const known = isOn(config.readerData) && isWhole(data);
  const { pages, outline, textStarts } = known ? data : { pages: plainPages(config), outline: [], textStarts: [] };
  const found = pages.map((page) => ({ ...page, image: fileAt(page.image) }));
  return { pages: found, hasPageList: known, outline, textStarts, shape: leafShape(pages, config) };
}

/** A file that was changed by hand, or is another writer's, is as good as none. */
function isWhole(data: BookData | undefined): data is BookData {
  if (data?.version !== 2 || ![data.pages, data.outline, data.textStarts].every(Array.isArray)) return false;
  return data.pages.every(isPage);
}

const isPage = (page: Page | null): boolean =>
  typeof page?.image === 'string' &&
  typeof page.label === 'string' &&
  page.label !== '' &&
  Array.isArray(page.links) &&
  page.links.every(Boolean);

export const isOn = (value: unknown): boolean => /^(yes|true|show|enable|1)$/i.test(String(value));

export function isWide(page: Page | undefined, leafShape: number): boolean {
  return page !== undefined && page.height > 0 && page.width / page.height > WIDE_PAGE * leafShape;
}

/** Without the page list the names of the pictures can only be guessed. */
function plainPages(config: BookConfig): Page[] {
  const [width, height] = [positive(config.largePageWidth), positive(config.largePageHeight)];
  return Array.from({ length: positive(config.totalPageCount) }, (_, index) => ({
    label: String(index + 1),
    image: `${config.normalPath ?? 'files/page/'}${index + 1}.jpg`,
    width,
    height,
    links: [],
  }));
}

/** The shape that most pages have; with none of known size, the one that is configured. */
function leafShape(pages: readonly Page[], config: BookConfig): number {
  const alike = new Map<string, { count: number; shape: number }>();
  for (const page of pages)
    if (page.width > 0 && page.height > 0) {
      const shape = page.width / page.height;
      const others = alike.get(shape.toFixed(2));
      alike.set(shape.toFixed(2), { count: (others?.count ?? 0) + 1, shape: others?.shape ?? shape });
    }
  const [commonest] = [...alike.values()].sort((one, other) => other.count - one.count);
  if (commonest) return commonest.shape;
  const [width, height] = [positive(config.pageWidth), positive(config.pageHeight)];
  return width && height ? width / height : 3 / 4;
}

const positive = (value: unknown): number => (Number(value) > 0 ? Number(value) : 0);
