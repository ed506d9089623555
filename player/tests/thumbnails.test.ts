// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Thumbnails } from '../src/thumbnails.ts';

const page = { label: '1', image: '1.jpg', width: 300, height: 400, links: [] };

/** What the browser has, as far as thumbnails need it. */
function makeBrowser() {
  const [bitmaps, drawn] = [[] as { closed: boolean; close(): void }[], [] as unknown[]];
  const createImageBitmap = () => {
    const bitmap = { closed: false, close: () => void (bitmap.closed = true) };
    bitmaps.push(bitmap);
    return Promise.resolve(bitmap);
  };
  const fetch = () => Promise.resolve({ ok: true, blob: () => ({}) });
  Object.assign(globalThis, { location: { protocol: 'http:' }, fetch, createImageBitmap });
  const canvas = () =>
    ({ isConnected: true, dataset: {}, getContext: () => ({ drawImage: (bitmap: unknown) => drawn.push(bitmap) }) }) as unknown as HTMLCanvasElement;
  return { bitmaps, drawn, canvas };
}

const settled = () => new Promise((resolve) => setTimeout(resolve));

test('a page that two canvases ask for at once is loaded once', async () => {
  const { bitmaps, drawn, canvas } = makeBrowser();
  const thumbnails = new Thumbnails([page]);
  thumbnails.draw(1, canvas());
  thumbnails.draw(1, canvas());
  await settled();
  assert.equal(bitmaps.length, 1);
  assert.deepEqual(drawn, [bitmaps[0], bitmaps[0]]);
});

test('nothing is kept of what comes when it is over', async () => {
  const { bitmaps, drawn, canvas } = makeBrowser();
  const thumbnails = new Thumbnails([page]);
  thumbnails.draw(1, canvas());
  thumbnails.destroy();
  await settled();
  assert.deepEqual([bitmaps.map(({ closed }) => closed), drawn, thumbnails.get(1)], [[true], [], undefined]);
});
