// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, afterEach, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';
import { startServer } from '../preview_server/support.mjs';
import { collectTroubles, openPages, publishMagazine, removeBook, turnWith } from './support.mjs';

const PROGRAM = process.env.FIREFOX || '/usr/bin/firefox-esr';

describe('a book in Firefox', () => {
  let browser, book, server, page;

  before(async () => {
    book = publishMagazine('--set', 'turnDuration=150');
    server = await startServer(book);
    browser = await puppeteer.launch({ browser: 'firefox', executablePath: PROGRAM, headless: true });
  });

  afterEach(() => page?.close());

  after(async () => {
    await browser?.close();
    await server?.stop();
    if (book) removeBook(book);
  });

  const addresses = {
    'from its folder': () => `${pathToFileURL(book).href}/`,
    'from the preview server': () => server.addresses.find((address) => address.includes('127.0.0.1')),
  };

  async function open(home, hash) {
    page = await browser.newPage();
    await page.setViewport({ width: 1280, height: 800 });
    collectTroubles(page, home);
    await page.goto(`${home}index.html${hash}`);
    return openPages(page);
  }

  for (const [name, home] of Object.entries(addresses))
    it(`turns, jumps, goes back, searches and zooms ${name}`, async () => {
      assert.deepEqual(await open(home(), '#page/iii'), [2, 3]);
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [4, 5]);
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('End')), [16]);
      assert.deepEqual(await turnWith(page, () => page.goBack()), [4, 5]);
      await page.keyboard.press('/');
      await page.keyboard.type('chestnut');
      const hit = await page.waitForFunction(() =>
        [...document.querySelectorAll('.hits button')].find(({ textContent }) => textContent.startsWith('Page 13')));
      assert.deepEqual(await turnWith(page, () => hit.click()), [12, 13]);
      assert.ok((await page.$$('.mark')).length > 0);
      await page.keyboard.press('+');
      await page.waitForSelector('.sharp canvas');
      assert.deepEqual(page.troubles, []);
    });

  for (const template of ['slide', 'scroll'])
    it(`moves through pages of the template ${template}`, async () => {
      const other = publishMagazine('--template', template, ...(template === 'slide' ? ['--set', 'turnDuration=150'] : []));
      try {
        await open(`${pathToFileURL(other).href}/`, '#page/4');
        const isAt = (place) => page.waitForFunction((hash) => location.hash === hash, {}, `#page/${place}`);
        for (const [key, place] of [['End', 16], ['Home', 1], ...(template === 'slide' ? [['PageDown', 2]] : [])]) {
          await page.keyboard.press(key);
          await isAt(place);
        }
        if (template === 'scroll') {
          await page.keyboard.press('PageDown');
          await page.waitForFunction(() => document.querySelector('.stage').scrollTop > 100);
        }
        await page.goBack();
        await isAt(16);
        await page.keyboard.press('+');
        await page.waitForSelector('.sharp canvas');
        assert.deepEqual(page.troubles, []);
      } finally {
        removeBook(other);
      }
    });

  it('draws a leaf that a mouse holds in the air', async () => {
    await open(addresses['from the preview server'](), '#page/4');
    const { x, y, width, height } = await (await page.$('.side + .side')).boundingBox();
    await page.mouse.move(x + width - 8, y + height - 12);
    await page.mouse.down();
    await page.mouse.move(x + width * 0.3, y + height * 0.8, { steps: 6 });
    await page.waitForFunction(() => !document.querySelector('.air').hidden);
    const opaque = await page.waitForFunction(() => {
      const air = document.querySelector('.air');
      const { data } = air.getContext('2d').getImageData(0, 0, air.width, air.height);
      let count = 0;
      for (let at = 3; at < data.length; at += 4) count += data[at] === 255;
      return count / (air.width * air.height) > 0.05 && count;
    });
    assert.ok(await opaque.jsonValue());
    if (process.env.PICTURES) await page.screenshot({ path: `${process.env.PICTURES}/firefox.png` });
    await page.mouse.up();
    await openPages(page);
    assert.deepEqual(page.troubles, []);
  });
});
