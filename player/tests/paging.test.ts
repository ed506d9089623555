// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { layoutBook } from '../src/layout.ts';
import { hasArrived, springTo } from '../src/spring.ts';
import { arrange, placesOf, spreadOf } from '../src/spreads.ts';
import { keptInSight, middleOf, MOST_SCALE, NO_ZOOM, panBy, zoomAbout, zoomOn } from '../src/zoom.ts';

const MARGIN = { width: 20, height: 10 };

const spreadsOf = (pageCount: number, options: { single?: boolean; noCover?: boolean; wide?: number[] } = {}) =>
  arrange({
    pageCount,
    double: !options.single,
    coverAlone: !options.noCover,
    isWide: (place) => options.wide?.includes(place) ?? false,
  });

test('pages are paired as in a bound book', () => {
  const cases: [Parameters<typeof spreadsOf>, number[][]][] = [
    [[5], [[1], [2, 3], [4, 5]]],
    [[4], [[1], [2, 3], [4]]],
    [[1], [[1]]],
    [[0], []],
    [[4, { noCover: true }], [[1, 2], [3, 4]]],
    [[3, { single: true }], [[1], [2], [3]]],
    [[6, { wide: [3] }], [[1], [2], [3], [4, 5], [6]]],
    [[5, { wide: [1, 4, 5] }], [[1], [2, 3], [4], [5]]],
  ];
  for (const [input, expected] of cases) assert.deepEqual(spreadsOf(...input).map(placesOf), expected);
});

test('every page lies on exactly one spread, which is found by its place', () => {
  for (const pageCount of [1, 2, 7, 40])
    for (const wide of [[], [2], [1, 7], [6, 7]]) {
      const spreads = spreadsOf(pageCount, { wide });
      assert.deepEqual(spreads.flatMap(placesOf), Array.from({ length: pageCount }, (_, index) => index + 1));
      for (let place = 1; place <= pageCount; place++)
        assert.ok(placesOf(spreads[spreadOf(spreads, place)]!).includes(place));
    }
  assert.equal(spreadOf(spreadsOf(5), 99), 2);
});

test('the book is as large as its space allows, in whole pixels, about its hinge', () => {
  for (const space of [{ width: 1200, height: 700 }, { width: 701, height: 1100 }, { width: 300, height: 500 }])
    for (const mode of ['auto', 'single', 'double'] as const)
      for (const rightToLeft of [false, true]) {
        const { book, leaf, double, hingeX } = layoutBook(space, MARGIN, 0.77, mode, rightToLeft);
        assert.ok(book.x >= MARGIN.width && book.x + book.width <= space.width - MARGIN.width);
        assert.ok(book.y >= MARGIN.height && book.y + book.height <= space.height - MARGIN.height);
        assert.ok(book.width > space.width - 44 || book.height > space.height - 24, 'no more is left free');
        for (const value of [book.x, book.y, leaf.width, leaf.height]) assert.equal(value, Math.round(value));
        assert.equal(hingeX, double ? book.x + leaf.width : rightToLeft ? book.x + leaf.width : book.x);
      }
  assert.equal(layoutBook({ width: 1200, height: 700 }, MARGIN, 0.77, 'auto', false).double, true);
  assert.equal(layoutBook({ width: 800, height: 1100 }, MARGIN, 0.77, 'auto', false).double, false);
});

test('a spring reaches its target without passing it, in few frames as in many', () => {
  const target = { x: -1, y: 0 };
  let motion = { position: { x: 1, y: 0 }, velocity: { x: 0, y: 0 } };
  const inOne = springTo(motion, target, 12, 0.5);
  for (let frame = 0; frame < 50; frame++) {
    motion = springTo(motion, target, 12, 0.01);
    assert.ok(motion.position.x >= -1);
  }
  assert.ok(Math.abs(motion.position.x - inOne.position.x) < 1e-9);
  assert.equal(hasArrived(motion, target, 0.001, 12), false);
  assert.equal(hasArrived(springTo(motion, target, 12, 2), target, 0.001, 12), true);
});

test('what is looked at stays in the middle of a window of another shape', () => {
  const [wide, upright] = [{ width: 1200, height: 800 }, { width: 800, height: 1200 }];
  const [before, after] = [{ x: 100, y: 50, width: 1000, height: 700 }, { x: 0, y: 320, width: 800, height: 560 }];
  const at = { x: 0.8, y: 0.25 };
  for (const [box, space] of [[before, wide], [after, upright]] as const) {
    const found = middleOf(zoomOn(2.5, at, box, space), box, space);
    assert.ok(Math.hypot(found.x - at.x, found.y - at.y) < 1e-9);
  }
});

test('zooming keeps what is under the finger, and the book in sight', () => {
  const point = { x: 300, y: 200 };
  const zoomed = zoomAbout(zoomAbout(NO_ZOOM, { x: 10, y: 20 }, 2), point, 3.5);
  const before = zoomAbout(NO_ZOOM, { x: 10, y: 20 }, 2);
  const under = { x: (point.x - before.offset.x) / 2, y: (point.y - before.offset.y) / 2 };
  assert.ok(Math.abs(under.x * 3.5 + zoomed.offset.x - point.x) < 1e-9);
  assert.ok(Math.abs(under.y * 3.5 + zoomed.offset.y - point.y) < 1e-9);
  assert.equal(zoomAbout(NO_ZOOM, point, 99).scale, MOST_SCALE);
  const book = { x: 100, y: 50, width: 800, height: 500 };
  const space = { width: 1000, height: 600 };
  const far = keptInSight(panBy(zoomAbout(NO_ZOOM, point, 3), { x: 9999, y: -9999 }), book, space);
  assert.equal(book.x * 3 + far.offset.x, 0);
  assert.equal((book.y + book.height) * 3 + far.offset.y, space.height);
  const small = keptInSight(zoomAbout(NO_ZOOM, point, 0.5), book, space);
  assert.equal((book.x + book.width / 2) * 0.5 + small.offset.x, space.width / 2);
});
