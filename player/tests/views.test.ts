// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { anchorAt, heightOf, layoutColumn, placeAt, placesBetween, readingHeight, scrolledTo } from '../src/column.ts';
import { dotPlaces } from '../src/dots.ts';
import { readSettings } from '../src/settings.ts';
import { landing, SlideMotion } from '../src/slideMotion.ts';
import { stiffnessOf } from '../src/spring.ts';

const page = (width: number, height: number) => ({ width, height });
const report = (count: number) => Array.from({ length: count }, () => page(1000, 1400));

test('pages lie below each other, no wider than the window and the reading width', () => {
  for (const windowWidth of [320, 820, 1280, 3000])
    for (const readingWidth of [0, 600, 900]) {
      const pages = [...report(3), page(2000, 1400), page(500, 700), page(100, 140), page(0, 0)];
      const { boxes, width, height } = layoutColumn(pages, 1000 / 1400, windowWidth, readingWidth);
      assert.ok(width <= windowWidth);
      assert.ok(boxes[0]!.width <= (readingWidth || Infinity));
      boxes.forEach((box, index) => {
        assert.ok(box.x >= 0 && box.x + box.width <= width, 'inside');
        assert.ok(index === 0 || box.y > boxes[index - 1]!.y + boxes[index - 1]!.height, 'below the one before');
        const { width: across, height: down } = pages[index]!.width ? pages[index]! : page(1000, 1400);
        assert.ok(Math.abs(box.height - (box.width * down) / across) <= 1, 'in its shape');
      });
      assert.ok(height > boxes[6]!.y + boxes[6]!.height);
      assert.ok(boxes[3]!.width >= boxes[0]!.width && boxes[5]!.width === boxes[4]!.width, 'as in the document, within limits');
      assert.equal(boxes[6]!.width, boxes[0]!.width);
    }
});

test('the pages near a window are found, and none beside them', () => {
  const column = layoutColumn([...report(40), page(1000, 90), page(1000, 90), ...report(4958)], 0.7, 1000, 0);
  for (const top of [0, 5, 1300, 30_000, 60_111, 3e6, column.height - 700, column.height])
    for (const height of [1, 700, 3000]) {
      const [first, last] = placesBetween(column, top, top + height);
      const seen = column.boxes.flatMap((box, index) => (box.y < top + height && box.y + box.height > top ? [index + 1] : []));
      if (seen.length > 0) assert.deepEqual([first, last], [seen[0], seen[seen.length - 1]], `${top} ${height}`);
      else assert.equal(first, last, 'between two pages or beyond the last one');
    }
});

test('a place in the document stays where it is when the window changes its width', () => {
  const [wide, narrow] = [layoutColumn(report(9), 0.7, 1200, 0), layoutColumn(report(9), 0.7, 500, 0)];
  for (const y of [0, 100, 2500, 9000]) {
    const anchor = anchorAt(wide, y);
    assert.equal(placeAt(narrow, heightOf(narrow, anchor)), anchor.place);
    assert.ok(Math.abs(heightOf(wide, anchor) - y) <= 18, 'but for the gaps');
  }
});

test('every page gets its turn of being read, from the first to the last', () => {
  const column = layoutColumn([page(1000, 100), ...report(3), page(1000, 100), page(1000, 100)], 0.7, 1000, 0);
  const windowHeight = 900;
  const places = new Set<number>();
  for (let scrolled = 0; scrolled <= column.height - windowHeight; scrolled++)
    places.add(placeAt(column, readingHeight(scrolled, windowHeight, column.height)));
  assert.deepEqual([...places], [1, 2, 3, 4, 5, 6]);
  assert.equal(readingHeight(0, 900, 500), 0, 'all of it is seen');
  for (const whole of [1000, 1700, 2700, 9000])
    for (let scrolled = 0; scrolled <= whole - windowHeight; scrolled += 50)
      assert.ok(Math.abs(scrolledTo(readingHeight(scrolled, windowHeight, whole), windowHeight, whole) - scrolled) < 1e-6, 'and back');
  assert.equal(readingHeight(3000, 900, 9000), 3450, 'the middle of the window');
});

test('dots are those around the open page, as many as there may be', () => {
  const cases: [number, number, number[]][] = [
    [1, 3, [1, 2, 3]],
    [1, 5, [1, 2, 3, 4, 5]],
    [1, 100, [1, 2, 3, 4, 5]],
    [50, 100, [48, 49, 50, 51, 52]],
    [99, 100, [96, 97, 98, 99, 100]],
    [2, 4, [1, 2, 3, 4]],
    [1, 0, []],
  ];
  for (const [place, count, dots] of cases) assert.deepEqual(dotPlaces(place, count, 5), dots);
});

test('a slide that is let go falls to where it was going, one page at most', () => {
  const cases: [from: number, position: number, velocity: number, isStroke: boolean, to: number][] = [
    [3, 3.3, 0, false, 3],
    [3, 3.6, 0, false, 4],
    [3, 3.3, 2, false, 4],
    [3, 3.6, -2, false, 3],
    [3, 3.05, 0.3, true, 4],
    [3, 2.95, -0.3, true, 2],
    [3, 3.9, 40, false, 4],
  ];
  for (const [from, position, velocity, isStroke, to] of cases) assert.equal(landing(from, position, velocity, isStroke), to);
});

function rest(motion: SlideMotion): number[] {
  const seen = [];
  for (let frame = 0; frame < 600 && !motion.isStill; frame++) {
    motion.step(1 / 60);
    seen.push(motion.position);
  }
  assert.ok(motion.isStill, 'comes to rest');
  return seen;
}

test('slides pass one after the other, and those that are jumped over are not seen', () => {
  const motion = new SlideMotion(100, 1, stiffnessOf(0.5));
  for (let press = 0; press < 5; press++) motion.turn(1);
  const way = rest(motion);
  assert.equal(motion.destination, 6);
  assert.ok(way.every((position, index) => index === 0 || position >= way[index - 1]! - 1e-9), 'without swinging');
  motion.jump(80);
  assert.deepEqual([...motion.slots, motion.destination].map((slot) => motion.placeIn(slot)), [6, 80], 'the page left beside the one to come');
  rest(motion);
  assert.equal(motion.position, 80);
  assert.equal(motion.turn(50), true);
  assert.equal(motion.turn(1), false, 'there is no more');
  rest(motion);
  assert.equal(motion.destination, 100);
});

test('a jump that is turned back on its way leads to where it came from', () => {
  const motion = new SlideMotion(100, 6, stiffnessOf(0.5));
  motion.jump(80);
  motion.step(1 / 60);
  motion.hold();
  motion.release(-1, true);
  rest(motion);
  assert.equal(motion.destination, 6);
  assert.deepEqual(motion.slots, [6]);
  motion.turn(1);
  rest(motion);
  assert.equal(motion.destination, 7);
  motion.jump(80);
  motion.step(1 / 60);
  motion.turn(-1);
  assert.equal(motion.destination, 79, 'the page before the one jumped to, not the one that was left');
});

test('the strip gives a little beyond its ends and comes back', () => {
  const motion = new SlideMotion(3, 3, stiffnessOf(0.5));
  motion.hold();
  motion.drag(3.5);
  assert.ok(motion.position > 3 && motion.position < 3.3);
  assert.deepEqual(motion.slots, [3]);
  motion.release(2, true);
  rest(motion);
  assert.equal(motion.destination, 3);
});

test('paper is white unless a colour is configured', () => {
  for (const [pageColor, colour] of [['#F0e0d0', '#F0e0d0'], ['', '#ffffff'], ['sand', '#ffffff'], ['#12', '#ffffff']])
    assert.equal(readSettings({ pageColor }).paperColour, colour);
});

test('a view has the controls that it has a use for, unless they are switched off', () => {
  const shown = (kind: 'book' | 'slide' | 'scroll', config = {}) => {
    const { dots, viewMode, turnButtons, search } = readSettings(config, kind).shows;
    return { dots, viewMode, turnButtons, search };
  };
  assert.deepEqual(shown('book'), { dots: false, viewMode: true, turnButtons: true, search: true });
  assert.deepEqual(shown('slide'), { dots: true, viewMode: false, turnButtons: true, search: true });
  assert.deepEqual(shown('scroll'), { dots: false, viewMode: false, turnButtons: false, search: true });
  assert.deepEqual(shown('slide', { dotsVisible: 'NO' }), { dots: false, viewMode: false, turnButtons: true, search: true });
});
