// SPDX-License-Identifier: MIT
import type { TextLine, WordBox } from './book.ts';
import type { PageText } from './bookTexts.ts';
import { isBroken, lineGap } from './paragraphs.ts';

/** A place in the text that matches, with the words around it as they are printed. */
export interface Hit {
  readonly place: number;
  readonly before: string;
  readonly match: string;
  readonly after: string;
  readonly boxes: readonly WordBox[]; // one for each line that the match touches
}

interface Word {
  readonly text: string;
  readonly line: number;
  readonly box: WordBox | undefined;
}

/** A page's text without case and accents, and which word each of its characters comes from. */
interface FoldedText {
  readonly folded: string;
  readonly starts: readonly number[]; // of each word in `folded`
  readonly words: readonly Word[];
}

const CONTEXT_WORDS = 7;
const SOFT_HYPHEN = /\u00ad/g;
/** Not the marks that make another letter: voiced kana, vowels of Indic scripts and Thai. */
const ACCENT = /(?![\u3099\u309a])(?=\p{M})[\p{Script=Inherited}\p{Script=Arabic}\p{Script=Hebrew}]/gu;

const CHANGES_LETTER = /\p{M}/u; // of those that folding leaves

/** What differs in case, accents and vowel points, ligatures or width only is the same when it is searched for. */
export function fold(text: string): string {
  return text
    .replace(SOFT_HYPHEN, '')
    .normalize('NFKD')
    .replace(ACCENT, '')
    .toLowerCase()
    .replace(/ß/g, 'ss')
    .replace(/[‘’]/g, "'")
    .replace(/[“”„]/g, '"')
    .replace(/\s+/g, ' ');
}

/** The hits of one page after another, in reading order; none for a query of blanks. */
export async function* search(query: string, pages: AsyncIterable<PageText>): AsyncGenerator<Hit[], void, undefined> {
  const wanted = fold(query).trim();
  if (wanted === '') return;
  for await (const { place, lines } of pages) yield hitsOn(place, foldedText(lines), wanted);
}

function hitsOn(place: number, text: FoldedText, wanted: string): Hit[] {
  const hits: Hit[] = [];
  for (let at = text.folded.indexOf(wanted); at >= 0; at = text.folded.indexOf(wanted, at + wanted.length))
    if (!CHANGES_LETTER.test(text.folded.charAt(at + wanted.length))) hits.push(new FoundHit(place, text, at, at + wanted.length));
  return hits;
}

function foldedText(lines: readonly TextLine[]): FoldedText {
  const words = lines.flatMap(({ text, boxes }, line) =>
    text.split(' ').map((word, index) => ({ text: word, line, box: boxes[index] })),
  );
  const starts: number[] = [];
  let folded = '';
  words.forEach((word, index) => {
    starts.push(folded.length);
    const next = words[index + 1];
    folded += isCut(word, next) ? fold(word.text.slice(0, -1)) : fold(word.text) + gapAfter(word, next);
  });
  return { folded, starts, words };
}

const isCut = (word: Word, next: Word | undefined): boolean =>
  next !== undefined && next.line !== word.line && isBroken(word.text, next.text);

/** Of the many hits of a short query few are ever looked at; only those are put into words. */
class FoundHit implements Hit {
  private readonly first: number; // word
  private readonly end: number; // behind the last one

  constructor(
    readonly place: number,
    private readonly page: FoldedText,
    from: number,
    to: number,
  ) {
    this.first = wordAt(page.starts, from);
    this.end = wordAt(page.starts, to - 1) + 1;
  }

  get before(): string {
    return joined(this.words(this.first - CONTEXT_WORDS, this.first));
  }

  get match(): string {
    return joined(this.words(this.first, this.end));
  }

  get after(): string {
    return joined(this.words(this.end, this.end + CONTEXT_WORDS));
  }

  get boxes(): WordBox[] {
    return boxesOfLines(this.words(this.first, this.end));
  }

  private words(start: number, stop: number): readonly Word[] {
    return this.page.words.slice(Math.max(start, 0), stop);
  }
}

/** As they are printed: a cut word keeps its hyphen. */
const joined = (words: readonly Word[]): string =>
  words.map((word, index) => word.text + (index + 1 < words.length ? gapAfter(word, words[index + 1]) : '')).join('');

const gapAfter = (word: Word, next: Word | undefined): string =>
  next && next.line !== word.line ? lineGap(word.text, next.text) : ' ';

/** The last word that starts at or before a character. */
function wordAt(starts: readonly number[], character: number): number {
  let [low, high] = [0, starts.length - 1];
  while (low < high) {
    const middle = Math.ceil((low + high) / 2);
    if (starts[middle]! <= character) low = middle;
    else high = middle - 1;
  }
  return low;
}

function boxesOfLines(words: readonly Word[]): WordBox[] {
  const boxes = new Map<number, WordBox>();
  for (const { line, box } of words) {
    const grown = boxes.get(line);
    if (box) boxes.set(line, grown ? around(grown, box) : box);
  }
  return [...boxes.values()];
}

function around(one: WordBox, other: WordBox): WordBox {
  const x = Math.min(one[0], other[0]);
  const y = Math.min(one[1], other[1]);
  const right = Math.max(one[0] + one[2], other[0] + other[2]);
  const bottom = Math.max(one[1] + one[3], other[1] + other[3]);
  return [x, y, right - x, bottom - y];
}
