// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { isBroken, paragraphsOf } from '../src/paragraphs.ts';

const HEIGHT = 0.02;

/** A line of one box, at a place in lines and columns of text. */
const at = (text: string, line: number, left = 0.1, height = HEIGHT) => ({
  text,
  boxes: [[left, line * HEIGHT * 1.3, 0.3, height] as const],
});

const read = (...lines: ReturnType<typeof at>[]) => paragraphsOf(lines, 0.77);

test('lines below each other are one paragraph', () => {
  assert.deepEqual(read(at('A year', 1), at('and a', 2), at('day.', 3)), ['A year and a day.']);
});

test('a gap, an indent and another size begin a new one', () => {
  assert.deepEqual(read(at('One.', 1), at('Two.', 3)), ['One.', 'Two.']);
  assert.deepEqual(read(at('One.', 1), at('Two', 2, 0.13), at('goes on.', 3)), ['One.', 'Two goes on.']);
  assert.deepEqual(read(at('Title', 1, 0.1, 0.03), at('Text.', 2.6)), ['Title', 'Text.']);
});

test('a sentence goes on in the next column, a finished one does not', () => {
  assert.deepEqual(read(at('the first', 30), at('column ends', 1, 0.5)), ['the first column ends']);
  assert.deepEqual(read(at('It ends.', 30), at('Another', 1, 0.5)), ['It ends.', 'Another']);
});

test('words cut at the end of a line are whole again', () => {
  assert.deepEqual(read(at('under the horn-', 1), at('beam', 2)), ['under the hornbeam']);
  assert.deepEqual(read(at('from 1914-', 1), at('1918', 2)), ['from 1914- 1918']);
  assert.equal(isBroken('well-', 'Known'), false);
});

test('lines in scripts without blanks are joined without one', () => {
  assert.deepEqual(read(at('新しい東京', 1), at('都庁へ、', 2), at('2026年', 3)), ['新しい東京都庁へ、 2026年']);
  assert.deepEqual(read(at('一片树叶', 1), at('落下。', 2)), ['一片树叶落下。']);
});

test('a large initial belongs to its word', () => {
  assert.deepEqual(read(at('T', 1, 0.1, 0.05), at('he willow', 1, 0.16), at('beds lie', 2, 0.16), at('low.', 3)), [
    'The willow beds lie low.',
  ]);
});

test('lines without places stay as they are', () => {
  assert.deepEqual(
    paragraphsOf(
      [
        { text: 'a', boxes: [] },
        { text: 'b', boxes: [] },
      ],
      1,
    ),
    ['a', 'b'],
  );
});
