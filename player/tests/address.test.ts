// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { hashOf, LastPage, placeOfHash, type Store } from '../src/address.ts';

const LABELS = ['Cover', 'ii', '1', '2', 'A & B'];

test('every place comes back from its own address', () => {
  for (const place of [1, 2, 3, 4, 5]) assert.equal(placeOfHash(hashOf(place), LABELS), place);
});

test('labels are found in any case and encoding, and numbers are places', () => {
  for (const [hash, place] of [
    ['#page/Cover', 1],
    ['#page/II', 2],
    ['#page/A%20%26%20B', 5],
    ['#page/A & B', 5],
    ['#page/1', 1],
    ['#page/2', 2],
  ] as const)
    assert.equal(placeOfHash(hash, LABELS), place, hash);
});

test('an address that names no page of the book names none', () => {
  assert.equal(placeOfHash('', ['', 'ii']), undefined);
  for (const hash of [
    '',
    '#',
    '#page/',
    '#page/0',
    '#page/6',
    '#page/-1',
    '#page/1.5',
    '#page/iii',
    '#chapter/1',
    '#page/%E0%A4%A',
  ])
    assert.equal(placeOfHash(hash, LABELS), undefined, hash);
});

class Shelf implements Store {
  readonly items = new Map<string, string>();
  getItem = (key: string) => this.items.get(key) ?? null;
  setItem = (key: string, value: string) => void this.items.set(key, value);
}

test('the last page is kept for each book', () => {
  const shelf = new Shelf();
  new LastPage(() => shelf, 'one').write(7);
  assert.equal(new LastPage(() => shelf, 'one').read(10), 7);
  assert.equal(new LastPage(() => shelf, 'other').read(10), undefined);
});

test('a last page that the book does not have any more is forgotten', () => {
  const shelf = new Shelf();
  for (const kept of ['7', '0', '-3', '2.5', 'x', '']) {
    shelf.setItem('book', kept);
    assert.equal(new LastPage(() => shelf, 'book').read(5), undefined, kept);
  }
});

test('storage that is forbidden or full does not matter', () => {
  const forbidden = new LastPage(() => {
    throw new Error('SecurityError');
  }, 'book');
  assert.equal(forbidden.read(5), undefined);
  forbidden.write(3);
});
