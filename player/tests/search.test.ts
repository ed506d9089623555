// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import type { TextLine } from '../src/book.ts';
import { fold, type Hit, search } from '../src/search.ts';

const WORD_WIDTH = 0.1;
const LINE_HEIGHT = 0.05;

/** Lines in which every word is as wide as the others. */
const pageOf = (...lines: string[]): TextLine[] =>
  lines.map((text, line) => ({
    text,
    boxes: text.split(' ').map((_, word) => [word * WORD_WIDTH, line * LINE_HEIGHT, WORD_WIDTH, LINE_HEIGHT] as const),
  }));

async function* inOrder(pages: TextLine[][]) {
  for (const [index, lines] of pages.entries()) yield { place: index + 1, lines };
}

async function find(query: string, ...pages: TextLine[][]): Promise<Hit[]> {
  const all: Hit[] = [];
  for await (const hits of search(query, inOrder(pages))) all.push(...hits);
  return all;
}

const matches = async (query: string, ...lines: string[]) =>
  (await find(query, pageOf(...lines))).map(({ match }) => match);

test('case, accents, ligatures and width make no difference', async () => {
  for (const [query, text] of [
    ['cafe', 'Café'],
    ['CAFÉ', 'cafe'],
    ['office', 'oﬃce'],
    ['strasse', 'Straße'],
    ['Straße', 'STRASSE'],
    ['abc', 'ＡＢＣ'],
    ['leaf', 'le\u00adaf'],
    ["it's", 'it’s'],
    ['カ', 'ｶ'],
    ['محمد', 'مُحَمَّد'],
  ])
    assert.deepEqual(await matches(query!, text!), [text], `${query} in ${text}`);
});

test('marks that make another letter make a difference', async () => {
  for (const [query, text] of [
    ['か', 'が'],
    ['ハ', 'バ'],
    ['कल', 'कला'],
    ['कम', 'कुम'],
    ['กน', 'กิน'],
  ])
    assert.deepEqual(await matches(query!, text!), [], `${query} is not in ${text}`);
  assert.deepEqual(await matches('ガ', 'ｶﾞ'), ['ｶﾞ']);
  assert.deepEqual(await matches('שלום', 'שָׁלוֹם'), ['שָׁלוֹם']);
});

test('scripts without blanks have none at the end of a line', async () => {
  assert.deepEqual(await matches('東京都庁', '新しい東京', '都庁へ'), ['新しい東京都庁へ']);
  assert.deepEqual(await matches('树叶', '一片树', '叶。'), ['一片树叶。']);
  assert.deepEqual(await matches('나무 잎', '큰 나무', '잎이'), ['나무 잎이']);
});

test('a query of blanks, or of what is not there, finds nothing', async () => {
  for (const query of ['', '  ', '\t', 'maple', 'oak tree leaf'])
    assert.deepEqual(await matches(query, 'The oak tree'), []);
});

test('phrases are found across lines, however they are spaced in the query', async () => {
  assert.deepEqual(await matches(' old   oak ', 'A very old', 'oak stands'), ['old oak']);
});

test('a word that is cut at the end of a line is found whole', async () => {
  assert.deepEqual(await matches('hornbeam', 'under the horn-', 'beam hedge'), ['horn- beam']);
  assert.deepEqual(await matches('well-known', 'a well-known tree'), ['well-known']);
  assert.deepEqual(await matches('1914- 1918', 'from 1914-', '1918 on'), ['1914- 1918'], 'numbers keep their hyphen');
});

test('hits come in reading order, with their page', async () => {
  const hits = await find('oak', pageOf('no tree'), pageOf('oak and oak', 'soaked'), pageOf('Oak'));
  assert.deepEqual(
    hits.map(({ place, match }) => [place, match]),
    [
      [2, 'oak'],
      [2, 'oak'],
      [2, 'soaked'],
      [3, 'Oak'],
    ],
  );
});

test('a hit knows the words around it', async () => {
  const [hit] = await find('seven', pageOf('one two three four five', 'six seven eight nine'));
  assert.deepEqual([hit!.before, hit!.match, hit!.after], ['one two three four five six', 'seven', 'eight nine']);
});

test('there is one box for each line that a hit touches, around all of its words', async () => {
  const [hit] = await find('two three four five', pageOf('one two three', 'four five six'));
  assert.deepEqual(
    hit!.boxes.map((box) => box.map((each) => Math.round(each * 100))),
    [
      [10, 0, 20, 5],
      [0, 5, 20, 5],
    ],
  );
});

test('text without boxes is found too', async () => {
  const hits = await find('words', [{ text: 'only words', boxes: [] }]);
  assert.deepEqual(
    hits.map(({ boxes }) => boxes),
    [[]],
  );
});

test('folding twice changes nothing more', () => {
  for (const text of ['Ärger  im Straßenverkehr', 'ﬁne “quotes”', 'ÅNGSTRÖM'])
    assert.equal(fold(fold(text)), fold(text));
});
