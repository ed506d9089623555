// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { runInNewContext } from 'node:vm';
import { type BookData, readBook } from '../src/book.ts';
import { BookTexts } from '../src/bookTexts.ts';
import type { PageTexts } from '../src/textFile.ts';

/** What the writer's tests write, run as the scripts that they are; tests run where the project lies. */
const written = (name: string): string => readFileSync(`tests/fixtures/reader-data/${name}`, 'utf8');
const readData = (): BookData => runInNewContext(`${written('book.js')};bookData`);
const load = (url: string): Promise<PageTexts> =>
  new Promise((resolve) => runInNewContext(written(url), { bookText: (_file: number, pages: PageTexts) => resolve(pages) }));

test('the player reads what the writer writes', async () => {
  const book = readBook({ readerData: 'YES' }, readData());
  assert.deepEqual(Array.from(book.pages, ({ label }) => label), ['v', '6', '7']);
  assert.deepEqual(Array.from(book.pages[0]!.links, ({ url, place }) => url ?? place), ['https://leaf.example/?a=1&b=<2>', 3, 0]);
  assert.equal(book.outline[0]!.items[0]!.place, 3);
  const texts = new BookTexts(book, '', load);
  assert.equal(texts.hasText, true);
  const [hello, hostile] = await texts.linesOf(1);
  assert.deepEqual([hello!.text, hello!.boxes.length], ['Hello world', 2]);
  assert.equal(hostile!.text, '"\u00c9t\u00e9\\</script>\u2028\u2029\u{1f343}');
  assert.equal((await texts.linesOf(2))[0]!.text, 'Landscape');
  assert.deepEqual(Array.from(await texts.linesOf(3)), []);
});

test('reader data that is switched off, of another version or damaged is left alone', () => {
  const config = { totalPageCount: 2, normalPath: 'files/page/' };
  const data = readData();
  const page = { label: '1', image: 'files/page/1.jpg', links: [] };
  const pages = [undefined, [null], [{ label: '1' }], [{ ...page, label: '' }], [{ ...page, label: 1 }], [{ ...page, links: [null] }]];
  const damaged = [{ version: 1 }, { outline: {} }, { textStarts: undefined }, ...pages.map((each) => ({ pages: each }))];
  const read = damaged.map((fault) => readBook({ ...config, readerData: 'YES' }, { ...data, ...fault } as unknown as BookData));
  for (const book of [readBook({ ...config, readerData: 'NO' }, data), ...read]) {
    assert.deepEqual(book.pages.map(({ image }) => image), ['files/page/1.jpg', 'files/page/2.jpg']);
    assert.deepEqual(book.textStarts, []);
  }
});
