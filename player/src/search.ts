// SPDX-License-Identifier: MIT
import type { TextLine, WordBox } from './book.ts';
import type { PageText } from './bookTexts.ts';
import { isBroken } from './paragraphs.ts';

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

/** What differs in case, accents, ligatures or width only is the same when it is searched for. */
export function fold(text: string): string {
  return text
    .replace(SOFT_HYPHEN, '')
    .normalize('NFKD')
    .replace(/\p{M}/gu, '')
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
    hits.push(hitAt(place, text, at, at + wanted.length));
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
    folded += isCut(word, words[index + 1]) ? fold(word.text.slice(0, -1)) : `${fold(word.text)} `;
  });
  return { folded, starts, words };
}

const isCut = (word: Word, next: Word | undefined): boolean =>
  next !== undefined && next.line !== word.line && isBroken(word.text, next.text);

function hitAt(place: number, text: FoldedText, from: number, to: number): Hit {
  const first = wordAt(text.starts, from);
  const end = wordAt(text.starts, to - 1) + 1;
  const words = (start: number, stop: number) => joined(text.words.slice(Math.max(start, 0), stop));
  return {
    place,
    before: words(first - CONTEXT_WORDS, first),
    match: words(first, end),
    after: words(end, end + CONTEXT_WORDS),
    boxes: boxesOfLines(text.words.slice(first, end)),
  };
}

const joined = (words: readonly Word[]): string => words.map(({ text }) => text).join(' ');

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
