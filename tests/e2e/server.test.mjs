// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { startServer } from '../preview_server/support.mjs';
import { openBookAt, openPages, publishMagazine, removeBook } from './support.mjs';

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
    await openPages(page);
    await page.keyboard.press('End');
    await page.waitForFunction(() => document.querySelector('.page[data-place="16"]'));
    assert.deepEqual(await openPages(page), [16]);
    await page.waitForLoadState('networkidle');
    assert.deepEqual(page.troubles, []);
  });
});
