// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { BookTexts } from '../src/bookTexts.ts';

/** Texts of so many pages, two in a file; each page has its place as its only line. */
function makeTexts(pageCount: number, failing = new Set<string>()) {
  const asked: string[] = [];
  const load = (url: string) => {
    asked.push(url);
    if (failing.has(url)) return Promise.reject(new Error(url));
    const first = (Number(/text-(\d+)\.js$/.exec(url)![1]) - 1) * 2 + 1;
    return Promise.resolve([first, first + 1].map((place) => [{ text: String(place), boxes: [] }]));
  };
  const texts = new BookTexts({ pages: new Array(pageCount), textPages: 2 }, 'search/', load);
  const textOf = async (place: number) => (await texts.linesOf(place)).map(({ text }) => text).join();
  return { texts, textOf, asked };
}

test('a page finds its text in the file of its place, which is loaded once', async () => {
  const { textOf, asked } = makeTexts(5);
  assert.deepEqual(await Promise.all([1, 2, 3, 5].map(textOf)), ['1', '2', '3', '5']);
  assert.deepEqual(asked, ['search/text-1.js', 'search/text-2.js', 'search/text-3.js']);
});

test('of a long book the six files used last are held', async () => {
  const { textOf, asked } = makeTexts(20);
  for (const place of [1, 3, 5, 7, 9, 11, 1, 13]) await textOf(place);
  assert.equal(asked.length, 7);
  await textOf(1);
  assert.equal(asked.length, 7);
  await textOf(3);
  assert.equal(asked.length, 8);
});

test('all pages come in order, and a reader who stops early loads little', async () => {
  const { texts, asked } = makeTexts(19);
  const seen: string[] = [];
  for await (const { place, lines } of texts.all()) seen.push(`${place}:${lines[0]!.text}`);
  assert.deepEqual(seen, Array.from({ length: 19 }, (_, index) => `${index + 1}:${index + 1}`));
  assert.equal(asked.length, 10);
  const other = makeTexts(19);
  for await (const page of other.texts.all()) if (page.place === 2) break;
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
  const texts = new BookTexts({ pages: new Array(3), textPages: 0 }, '', load);
  assert.equal(texts.hasText, false);
  assert.deepEqual(await texts.linesOf(1), []);
  for await (const page of texts.all()) assert.fail(`page ${page.place}`);
});
