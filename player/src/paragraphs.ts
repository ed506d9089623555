// SPDX-License-Identifier: MIT
import type { TextLine } from './book.ts';

/** Where a line lies, in heights of the page. */
interface PlacedLine {
  readonly text: string;
  readonly left: number;
  readonly top: number;
  readonly height: number;
}

const LARGEST_GAP = 0.9; // between lines of a paragraph, of a line's height
const LEAST_INDENT = 0.7;
const DIFFERENT_SIZE = 1.25;
const INITIAL_SIZE = 1.6; // of the lines beside it

/** Whether a hyphen at the end of a line cuts a word in two. */
export const isBroken = (text: string, next: string): boolean =>
  /\p{L}[-\u00ad‐]$/u.test(text) && /^\p{Ll}/u.test(next);

const UNSPACED = String.raw`[\p{Script=Han}\p{Script=Hiragana}\p{Script=Katakana}\u3000-\u303f\uff00-\uffef]`;
const ENDS_UNSPACED = new RegExp(`${UNSPACED}$`, 'u');
const BEGINS_UNSPACED = new RegExp(`^${UNSPACED}`, 'u');

/** What stands for the end of a line: nothing in scripts that are written without blanks. */
export const lineGap = (text: string, next: string): string =>
  ENDS_UNSPACED.test(text) && BEGINS_UNSPACED.test(next) ? '' : ' ';

/** Lines of a page put together as they are read; `shape` is the page's width over its height. */
export function paragraphsOf(lines: readonly TextLine[], shape: number): string[] {
  const paragraphs: string[] = [];
  let previous: PlacedLine | undefined;
  for (const line of lines) {
    const placed = placedLine(line, shape);
    const last = paragraphs.length - 1;
    if (previous && placed && goesOn(previous, placed, paragraphs[last]!))
      paragraphs[last] = joined(paragraphs[last]!, previous, placed);
    else paragraphs.push(line.text);
    previous = placed;
  }
  return paragraphs;
}

function placedLine({ text, boxes }: TextLine, shape: number): PlacedLine | undefined {
  if (boxes.length === 0) return undefined;
  const top = Math.min(...boxes.map(([, y]) => y));
  const bottom = Math.max(...boxes.map(([, y, , height]) => y + height));
  return { text, left: Math.min(...boxes.map(([x]) => x)) * shape, top, height: bottom - top };
}

function goesOn(previous: PlacedLine, next: PlacedLine, paragraph: string): boolean {
  if (isInitial(previous, next)) return true;
  const [small, large] = [previous.height, next.height].sort((one, other) => one - other);
  // Beside an initial the lines are indented.
  const hasInitial = paragraph.length <= previous.text.length + 1 && paragraph !== previous.text;
  if (!hasInitial && large! > small! * DIFFERENT_SIZE) return false;
  // A new column goes on with what the last one did not end.
  if (next.top < previous.top) return !/[.!?:;”"»。！？]$/.test(previous.text) && /^\p{Ll}/u.test(next.text);
  const gap = next.top - (previous.top + previous.height);
  return gap <= large! * LARGEST_GAP && next.left - previous.left <= large! * LEAST_INDENT;
}

const isInitial = (previous: PlacedLine, next: PlacedLine): boolean =>
  /^\p{Lu}$/u.test(previous.text) && previous.height > next.height * INITIAL_SIZE;

function joined(paragraph: string, previous: PlacedLine, next: PlacedLine): string {
  if (isInitial(previous, next)) return paragraph + next.text;
  if (isBroken(previous.text, next.text)) return paragraph.slice(0, -1) + next.text;
  return paragraph + lineGap(previous.text, next.text) + next.text;
}
