// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { PageNames } from '../src/pageNames.ts';
import { LANGUAGES, sayIn } from '../src/texts.ts';

const say = sayIn(LANGUAGES[0]!.texts);
const named = (...labels: string[]) =>
  new PageNames(
    labels.map((label) => ({ label, image: '', width: 0, height: 0, links: [] })),
    say,
  );
const counted = named('1', '2', '3', '4', '5', '6');
const labelled = named('Cover', 'i', 'ii', '1', '2', 'A-1');

test('pages that are called by their place are told once, others by both', () => {
  assert.equal(counted.spoken([2, 3]), 'Pages 2 and 3 of 6');
  assert.equal(counted.total([2, 3]), '/ 6');
  assert.equal(labelled.spoken([1]), 'Page Cover, 1 of 6');
  assert.equal(labelled.spoken([2, 3]), 'Pages i and ii, 2–3 of 6');
  assert.equal(labelled.total([2, 3]), '(2–3 / 6)');
});

test('a page is found by its label first, else by its place', () => {
  for (const [text, place] of [
    ['cover', 1],
    [' II ', 3],
    ['1', 4],
    ['2', 5],
    ['3', 3],
    ['6', 6],
  ] as const)
    assert.equal(labelled.find(text), place, text);
  for (const text of ['', '0', '7', 'iii', '-1', '1.5']) assert.equal(labelled.find(text), undefined, text);
});

test('ranges take numbers and labels, in any order, each page once', () => {
  assert.deepEqual(counted.findRange('5, 1-3,2'), [1, 2, 3, 5]);
  assert.deepEqual(counted.findRange('4–2'), [2, 3, 4]);
  assert.deepEqual(labelled.findRange('i-2, A-1'), [2, 3, 4, 5, 6]);
  assert.deepEqual(labelled.findRange('2–A-1'), [5, 6], 'one of the hyphens is the one between');
  for (const text of ['', ',', '1-', '1-2-3', '5-9', 'x']) assert.equal(counted.findRange(text), undefined, text);
});
