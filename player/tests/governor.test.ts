// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Governor } from '../src/governor.ts';

function levelAfter(...milliseconds: number[]): number {
  const governor = new Governor();
  const best = governor.quality;
  for (const each of milliseconds) governor.frame(each / 1000);
  return governor.quality === best ? 0 : governor.quality.mostPixels < 1 ? 2 : 1;
}

test('two late frames in a row lower the quality, one alone does not', () => {
  assert.equal(levelAfter(0, 17, 33, 17, 33, 17), 0);
  assert.equal(levelAfter(0, 17, 33, 33), 1);
  assert.equal(levelAfter(0, 17, 33, 33, 50, 50), 2);
});

test('a machine that is too slow for every frame is not taken for such a display', () => {
  const governor = new Governor();
  const best = governor.quality;
  for (let frame = 0; frame < 3; frame++) governor.frame(0.04, 0.03);
  assert.notEqual(governor.quality, best);
});

test('a better level is tried again after many turns, and not sooner', () => {
  const governor = new Governor();
  const best = governor.quality;
  for (const each of [0, 17, 33, 33]) governor.frame(each / 1000);
  for (let turn = 0; turn < 10; turn++) governor.rest();
  assert.notEqual(governor.quality, best);
  for (let turn = 0; turn < 10; turn++) governor.rest();
  assert.equal(governor.quality, best);
});

test('a display of few frames a second is not late', () => {
  assert.equal(levelAfter(0, 33, 33, 33, 33, 34), 0);
  assert.equal(levelAfter(0, 33, 67, 67), 1);
});
