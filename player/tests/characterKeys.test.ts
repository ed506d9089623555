// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { CharacterKeys, isCharacter } from '../src/characterKeys.ts';

test('letters, digits and signs are characters, keys with names and the blank are not', () => {
  assert.deepEqual(['f', '0', '?', 'ö', 'Enter', 'ArrowLeft', ' '].map(isCharacter), [true, true, true, true, false, false, false]);
});

test('they are off as long as their reader wishes, even where nothing can be stored', () => {
  const items = new Map<string, string>();
  const shelf = { getItem: (key: string) => items.get(key) ?? null, setItem: (key: string, value: string) => void items.set(key, value) };
  const keys = new CharacterKeys(() => shelf);
  assert.equal(keys.areOn, true);
  keys.turn(false);
  assert.deepEqual([keys.areOn, new CharacterKeys(() => shelf).areOn], [false, false]);
  keys.turn(true);
  assert.equal(new CharacterKeys(() => shelf).areOn, true);
  const forbidden = new CharacterKeys(() => {
    throw new Error('SecurityError');
  });
  forbidden.turn(false);
  assert.equal(forbidden.areOn, false);
});
