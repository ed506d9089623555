// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import type { OutlineItem } from '../src/book.ts';
import { pathTo } from '../src/contentsPanel.ts';
import { addressOf, snippet } from '../src/shareDialog.ts';

const item = (title: string, place: number, ...items: OutlineItem[]): OutlineItem => ({ title, place, items });
const OUTLINE = [
  item('Cover', 1),
  item('Part one', 0, item('Apples', 3, item('Sorts', 5)), item('Not in this book', 0)),
  item('Part two', 8, item('Pears', 8)),
];
const path = (place: number) =>
  pathTo(OUTLINE, place)
    .map(({ title }) => title)
    .join(' / ');

test('the open chapter is the last and deepest one that starts before the page ends', () => {
  assert.equal(path(1), 'Cover');
  assert.equal(path(2), 'Cover');
  assert.equal(path(4), 'Part one / Apples');
  assert.equal(path(7), 'Part one / Apples / Sorts');
  assert.equal(path(8), 'Part two / Pears');
  assert.deepEqual(pathTo([item('Later', 4)], 2), []);
  assert.equal(pathTo([{ title: 'Alone', place: 1 } as OutlineItem], 2).length, 1);
});

test('what is shared leads to the page, whatever stood behind the address', () => {
  assert.equal(addressOf('https://example.org/a/?b=1#page/3', 12), 'https://example.org/a/?b=1#page/12');
  assert.equal(addressOf('www.example.org/a', 1), 'https://www.example.org/a#page/1');
});

test('no address or title can break out of the code for a web page', () => {
  const code = snippet('https://example.org/?a=1&b="><script>', 'Tom & "Jerry" <i>');
  assert.match(code, /src="https:\/\/example\.org\/\?a=1&amp;b=&quot;>&lt;script>"/);
  assert.match(code, /title="Tom &amp; &quot;Jerry&quot; &lt;i>"/);
});
