// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { curlOf, farthestReach, projected, reachable, seenAt, strips } from '../src/curl.ts';
import { distance, dot } from '../src/geometry.ts';

const LEAF = { width: 0.75, height: 1 };
const GRABS = [0, 0.3, 0.985].flatMap((y) => [0.75, 0.65].map((x) => ({ x, y })));

/** Points all over where a hand may pull to, reached as far as paper goes. */
function* holds() {
  for (const grabbed of GRABS)
    for (let x = -1.1; x <= 1; x += 0.15)
      for (let y = -0.6; y <= 1.6; y += 0.2) {
        const held = reachable({ x, y }, grabbed, LEAF);
        yield { grabbed, held, curl: curlOf(held, grabbed, LEAF, 0.13) };
      }
}

test('what the hand holds stays where the hand is', () => {
  for (const { grabbed, held, curl } of holds())
    assert.ok(distance(seenAt(grabbed, curl), held) < 0.005, JSON.stringify({ grabbed, held, curl }));
});

test('the hinge stays on the ground', () => {
  for (const { curl } of holds())
    for (const y of [0, 0.5, 1])
      assert.ok(dot(curl.direction, { x: 0, y }) - curl.line < 0.01, JSON.stringify(curl));
});

test('paper is neither stretched nor torn', () => {
  const radius = 0.1;
  for (let reach = -0.2; reach < 1; reach += 0.01) {
    const step = Math.abs(projected(reach + 0.01, radius) - projected(reach, radius));
    assert.ok(step <= 0.01 + 1e-9);
  }
});

test('a leaf at rest is flat on either side', () => {
  const grabbed = { x: 0.75, y: 0.985 };
  assert.ok(farthestReach(curlOf(grabbed, grabbed, LEAF, 0.13), LEAF) < 0);
  const turned = curlOf({ x: -0.75, y: 0.985 }, grabbed, LEAF, 0.13);
  assert.ok(turned.radius < 1e-6 && Math.abs(turned.line) < 1e-6);
  for (const corner of [{ x: 0.75, y: 0 }, { x: 0.75, y: 1 }])
    assert.ok(distance(seenAt(corner, turned), { x: -0.75, y: corner.y }) < 1e-6);
});

test('strips follow each other without a gap and end with the leaf', () => {
  for (const { curl } of holds()) {
    const all = strips(curl, LEAF, 5);
    const end = farthestReach(curl, LEAF);
    if (end <= 0) continue;
    assert.ok(Math.abs(all[0]!.from) < 1e-9);
    assert.ok(Math.abs(all[all.length - 1]!.to - end) < 1e-9);
    all.slice(1).forEach((strip, index) => {
      assert.ok(Math.abs(strip.from - all[index]!.to) < 1e-9);
      assert.ok(Math.abs(strip.seenFrom - all[index]!.seenTo) < 1e-9);
    });
    assert.ok(all.length <= 11);
  }
});
