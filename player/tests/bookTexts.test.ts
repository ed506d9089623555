// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { BookTexts } from '../src/bookTexts.ts';

/** Texts of so many pages, one in the first file and two in each other; a page has its place as its only line. */
function makeTexts(pageCount: number, failing = new Set<string>()) {
  const asked: string[] = [];
  const textStarts = [1, ...Array.from({ length: Math.floor(pageCount / 2) }, (_, index) => 2 * index + 2)];
  const load = (url: string) => {
    asked.push(url);
    if (failing.has(url)) return Promise.reject(new Error(url));
    const first = textStarts[Number(/text-(\d+)\.js$/.exec(url)![1]) - 1]!;
    return Promise.resolve((first === 1 ? [1] : [first, first + 1]).map((place) => [{ text: String(place), boxes: [] }]));
  };
  const texts = new BookTexts({ pages: new Array(pageCount), textStarts }, 'search/', load);
  const textOf = async (place: number) => (await texts.linesOf(place)).map(({ text }) => text).join();
  return { texts, textOf, asked };
}

test('a page finds its text in the file of its place, which is loaded once', async () => {
  const { textOf, asked } = makeTexts(5);
  assert.deepEqual(await Promise.all([1, 2, 3, 4].map(textOf)), ['1', '2', '3', '4']);
  assert.deepEqual(asked, ['search/text-1.js', 'search/text-2.js', 'search/text-3.js']);
});

test('of a long book the eight files used last are held', async () => {
  const { textOf, asked } = makeTexts(20);
  for (const place of [1, 2, 4, 6, 8, 10, 12, 14, 1, 16]) await textOf(place);
  assert.equal(asked.length, 9);
  await textOf(1);
  assert.equal(asked.length, 9);
  await textOf(2);
  assert.equal(asked.length, 10);
});

test('all pages come in order, and a reader who stops early loads little', async () => {
  const { texts, asked } = makeTexts(19);
  const seen: string[] = [];
  for await (const { place, lines } of texts.all()) seen.push(`${place}:${lines[0]!.text}`);
  assert.deepEqual(seen, Array.from({ length: 19 }, (_, index) => `${index + 1}:${index + 1}`));
  assert.equal(asked.length, 10);
  const other = makeTexts(19);
  for await (const page of other.texts.all()) if (page.place === 1) break;
  assert.equal(other.asked.length, 4);
});

test('a file that fails has no text and is asked for again', async () => {
  const failing = new Set(['search/text-1.js']);
  const { textOf } = makeTexts(4, failing);
  assert.deepEqual(await Promise.all([1, 3].map(textOf)), ['', '3']);
  failing.clear();
  assert.equal(await textOf(1), '1');
});

test('a book without text asks for no file', async () => {
  const load = () => Promise.reject(new Error('asked'));
  const texts = new BookTexts({ pages: new Array(3), textStarts: [] }, '', load);
  assert.equal(texts.hasText, false);
  assert.deepEqual(await texts.linesOf(1), []);
  for await (const page of texts.all()) assert.fail(`page ${page.place}`);
});
