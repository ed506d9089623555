// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { startServer } from '../preview_server/support.mjs';
import { publishMagazine, removeBook } from './support.mjs';
import { launchWebKit } from './webkit.mjs';

// The protocol tells of no script errors, so the book's script notes them itself.
const NOTE_ERRORS = `var troubles = [];
addEventListener('error', function (event) { troubles.push(event.message || event.target.src); }, true);
addEventListener('unhandledrejection', function (event) { troubles.push(String(event.reason)); });
`;

// These run in the page.
const openPages = () => {
  const shown = [...document.querySelectorAll('.page')].map((each) => each.dataset.place);
  const drawn = [...document.querySelectorAll('.side:not([hidden])')].map((side) => side.dataset.drawn);
  const isDrawn = shown.length > 0 && shown.every((place) => drawn.includes(place));
  return document.querySelector('.air').hidden && isDrawn && shown.join();
};
const otherPages = (old) => {
  const shown = [...document.querySelectorAll('.page')].map((each) => each.dataset.place).join();
  return document.querySelector('.air').hidden && shown !== old && shown;
};
const isLeafDrawn = () => {
  const air = document.querySelector('.air');
  if (air.hidden) return false;
  const { data } = air.getContext('2d').getImageData(0, 0, air.width, air.height);
  let opaque = 0;
  for (let at = 3; at < data.length; at += 4) opaque += data[at] === 255;
  return opaque > 0.05 * air.width * air.height;
};
const boxOf = (selector) => document.querySelector(selector).getBoundingClientRect().toJSON();

describe('a book in WebKit', () => {
  let browser, book, server;

  before(async () => {
    book = publishMagazine('--set', 'turnDuration=150');
    const script = join(book, 'javascript/main.js');
    writeFileSync(script, NOTE_ERRORS + readFileSync(script, 'utf8'));
    server = await startServer(book);
    browser = await launchWebKit();
    await browser.resize(1280, 800);
  });

  after(async () => {
    await browser?.close();
    await server?.stop();
    if (book) removeBook(book);
  });

  const addresses = {
    'from its folder': () => `${pathToFileURL(book).href}/`,
    'from the preview server': () => server.addresses.find((address) => address.includes('127.0.0.1')),
  };

  for (const [name, home] of Object.entries(addresses))
    it(`opens, turns, jumps and goes back ${name}`, async () => {
      await browser.open(`${home()}index.html#page/4`);
      assert.equal(await browser.waitFor(openPages), '4,5');
      await browser.press('ArrowRight');
      assert.equal(await browser.waitFor(otherPages, '4,5'), '6,7');
      await browser.press('End');
      assert.equal(await browser.waitFor(otherPages, '6,7'), '16');
      await browser.evaluate(() => history.back());
      assert.equal(await browser.waitFor(otherPages, '16'), '6,7');
      assert.equal(await browser.waitFor(openPages), '6,7');
      assert.deepEqual(await browser.evaluate(() => window.troubles), []);
    });

  it('draws a leaf that a mouse holds in the air', async () => {
    await browser.open(`${addresses['from the preview server']()}index.html?anew#page/4`);
    await browser.waitFor(openPages);
    const { x, y, width, height } = await browser.evaluate(boxOf, '.side + .side');
    const at = (across, down) => [Math.round(x + width * across), Math.round(y + height * down)];
    await browser.hold(at(0.98, 0.98), at(0.3, 0.8));
    assert.equal(await browser.waitFor(isLeafDrawn), true);
    if (process.env.PICTURES) writeFileSync(join(process.env.PICTURES, 'webkit.png'), await browser.picture());
    await browser.letGo();
    await browser.waitFor(openPages);
    assert.deepEqual(await browser.evaluate(() => window.troubles), []);
  });
});
