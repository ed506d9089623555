// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Emitter } from '../src/emitter.ts';

class Bell extends Emitter<{ rung: number }> {
  ring = (count: number) => this.emit('rung', count);
  silence = () => this.clear();
}

test('a listener that throws is reported, and silences no other', () => {
  const [bell, heard, reported] = [new Bell(), [] as number[], [] as unknown[]];
  Object.assign(globalThis, { reportError: (error: unknown) => reported.push(error) });
  const fault = new Error('of the page around the book');
  bell.on('rung', () => {
    throw fault;
  });
  bell.on('rung', (count) => heard.push(count));
  bell.ring(1);
  bell.ring(2);
  assert.deepEqual([heard, reported], [[1, 2], [fault, fault]]);
});

test('who has stopped to listen, or is not wanted any more, hears nothing', () => {
  const [bell, heard] = [new Bell(), [] as string[]];
  const stop = bell.on('rung', () => heard.push('one'));
  bell.on('rung', () => heard.push('other'));
  stop();
  bell.ring(1);
  bell.silence();
  bell.ring(2);
  assert.deepEqual(heard, ['other']);
});
