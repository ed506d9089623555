// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Pictures } from '../src/pictures.ts';

const SIZE = { width: 100, height: 140 };
const request = (place: number, seen = true) => ({ place, size: SIZE, seen });

/** Pictures whose files come when they are told to. */
function makePictures(mostBitmaps = 4) {
  const waiting = new Map<number, { come(): void; fail(): void; signal: AbortSignal }>();
  const [told, forgotten, closed]: number[][] = [[], [], []];
  const files = {
    decode: (place: number, _size: unknown, signal: AbortSignal) =>
      new Promise<ImageBitmap>((resolve, reject) => {
        const come = () => resolve({ close: () => closed!.push(place) } as ImageBitmap);
        waiting.set(place, { come, fail: () => reject(new Error('damaged')), signal });
      }),
    forget: (place: number) => void forgotten!.push(place),
  };
  const pictures = new Pictures(files, (place) => told!.push(place), mostBitmaps);
  const end = async (place: number, how: 'come' | 'fail') => {
    const file = waiting.get(place)!;
    waiting.delete(place);
    file[how]();
    await new Promise(setImmediate);
  };
  return { pictures, waiting, told: told!, forgotten: forgotten!, closed: closed!, end };
}

test('two pages are loaded at once, and those out of sight wait for those in sight', async () => {
  const { pictures, waiting, told, end } = makePictures();
  pictures.want([request(1), request(2), request(3), request(4, false)]);
  assert.deepEqual([...waiting.keys()], [1, 2]);
  await end(1, 'come');
  assert.deepEqual([...waiting.keys()], [2, 3]);
  await end(2, 'come');
  assert.deepEqual([...waiting.keys()], [3]);
  await end(3, 'come');
  assert.deepEqual([...waiting.keys()], [4]);
  assert.deepEqual(told, [1, 2, 3]);
});

test('a page that is given up and wanted again comes, even when the first load ended well', async () => {
  const { pictures, waiting, told, closed, end } = makePictures();
  pictures.want([request(1)]);
  pictures.want([request(2)]);
  assert.ok(waiting.get(1)!.signal.aborted);
  pictures.want([request(1)]);
  await end(1, 'come');
  assert.deepEqual([told, closed], [[], [1]], 'what was given up is not kept');
  await end(1, 'come');
  assert.deepEqual(told, [1]);
  assert.ok(pictures.get(1));
});

test('a damaged page is forgotten, and loaded anew when asked for or looked at again', async () => {
  const { pictures, waiting, forgotten, end } = makePictures();
  pictures.want([request(1)]);
  await end(1, 'fail');
  assert.ok(pictures.hasFailed(1));
  assert.deepEqual(forgotten, [1]);
  pictures.want([request(1)]);
  assert.equal(waiting.size, 0, 'not over and over while it is looked at');
  pictures.retry(1);
  await end(1, 'fail');
  pictures.want([request(1, false)]);
  assert.equal(waiting.size, 0);
  pictures.want([request(1)]);
  await end(1, 'come');
  assert.ok(!pictures.hasFailed(1));
});

test('few pictures are held, and none after the end', async () => {
  const { pictures, closed, end } = makePictures(2);
  for (const place of [1, 2, 3]) {
    pictures.want([request(place)]);
    await end(place, 'come');
  }
  assert.deepEqual(closed, [1]);
  pictures.close();
  assert.deepEqual(closed, [1, 2, 3]);
});
