// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { startServer } from '../preview_server/support.mjs';
import { openBookAt, publishMagazine, removeBook } from './support.mjs';

describe('a book on the preview server', () => {
  let book, browser, server;

  before(async () => {
    book = publishMagazine();
    server = await startServer(book);
    browser = await launchBrowser();
  });

  after(async () => {
    await browser?.close();
    await server?.stop();
    removeBook(book);
  });

  it('opens and turns to its last page', async () => {
    const page = await openBookAt(browser, server.addresses.find((address) => address.includes('127.0.0.1')));
    while ((await page.locator('#position').textContent()) !== '16 / 16') {
      const before = await page.locator('#position').textContent();
      await page.keyboard.press('ArrowRight');
      await page.waitForFunction((text) => document.querySelector('#position').textContent !== text, before);
    }
    await page.waitForFunction(() => [...document.querySelectorAll('.page img')].every((image) => image.complete && image.naturalWidth > 0));
    await page.waitForLoadState('networkidle');
    if (process.env.SHOT) await page.screenshot({ path: process.env.SHOT });
    assert.deepEqual(page.troubles, []);
  });
});
