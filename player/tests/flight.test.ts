// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Flight } from '../src/flight.ts';

/** A leaf that moves at an even speed. */
interface Even {
  progress: number;
}

const SECONDS_OF_A_TURN = 0.6;
const FRAME = 1 / 60;

class Flown {
  readonly flight: Flight<Even>;
  mostInTheAir = 0;
  readonly launched: string[] = [];

  constructor(spreads: number, start = 0) {
    const launch = (from: number, to: number, side: 0 | 1) => {
      this.launched.push(`${from}-${to}`);
      return { progress: side };
    };
    this.flight = new Flight(spreads, { launch }, start);
  }

  fly(seconds: number): this {
    for (let time = 0; time < seconds; time += FRAME) {
      this.flight.advance(FRAME);
      for (const leaf of this.flight.leaves)
        if (!leaf.held) {
          const step = Math.sign(leaf.target - leaf.mover.progress) * (FRAME / SECONDS_OF_A_TURN);
          leaf.mover.progress = Math.min(Math.max(leaf.mover.progress + step, 0), 1);
        }
      this.flight.land((leaf) => leaf.mover.progress === leaf.target);
      this.mostInTheAir = Math.max(this.mostInTheAir, this.flight.leaves.length);
      const chain = this.flight.leaves;
      chain.slice(1).forEach((leaf, index) => assert.equal(leaf.from, chain[index]!.to));
    }
    return this;
  }
}

test('five quick presses are five turns, three leaves in the air at most', () => {
  const book = new Flown(10);
  for (let press = 0; press < 5; press++) book.flight.turn(1);
  assert.equal(book.flight.destination, 5);
  book.fly(4);
  assert.deepEqual(book.launched, ['0-1', '1-2', '2-3', '3-4', '4-5']);
  assert.equal(book.mostInTheAir, 3);
  assert.equal(book.flight.lowest, 5);
  assert.equal(book.flight.isMoving, false);
});

test('a press the other way turns the leaf in flight round', () => {
  const book = new Flown(10, 4);
  book.flight.turn(1);
  book.fly(0.3);
  book.flight.turn(-1);
  assert.equal(book.flight.destination, 4);
  book.fly(2);
  assert.deepEqual(book.launched, ['4-5']);
  assert.equal(book.flight.lowest, 4);
});

test('nothing turns beyond the covers', () => {
  const book = new Flown(3, 2);
  assert.equal(book.flight.turn(1), false);
  assert.equal(book.flight.hold(1), undefined);
  assert.equal(book.flight.turn(-9), true);
  book.fly(4);
  assert.equal(book.flight.lowest, 0);
});

test('a jump is one leaf, both ways and out of flight', () => {
  for (const [start, to, leaf] of [
    [1, 7, '1-7'],
    [7, 1, '1-7'],
  ] as const) {
    const book = new Flown(10, start);
    book.flight.jump(to);
    book.fly(2);
    assert.deepEqual(book.launched, [leaf]);
    assert.equal(book.flight.lowest, to);
  }
  const busy = new Flown(10);
  busy.flight.turn(2);
  busy.fly(0.3);
  busy.flight.jump(8);
  assert.equal(busy.flight.destination, 8);
  busy.fly(4);
  assert.equal(busy.flight.lowest, 8);
});

test('a held leaf waits for its hand, and others wait with it', () => {
  const book = new Flown(10);
  const leaf = book.flight.hold(1)!;
  book.flight.turn(2);
  book.fly(1);
  assert.deepEqual(book.launched, ['0-1']);
  leaf.held = false;
  leaf.target = 0;
  book.fly(4);
  assert.equal(book.flight.isMoving, false);
});

test('a leaf in flight is caught instead of a new one', () => {
  const book = new Flown(10);
  book.flight.turn(1);
  book.fly(0.3);
  assert.equal(book.flight.hold(-1), book.flight.leaves[0]);
  assert.deepEqual(book.launched, ['0-1']);
});
