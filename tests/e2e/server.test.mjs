// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { startServer } from '../preview_server/support.mjs';
import { colourAt, openBookAt, openPages, publishMagazine, removeBook } from './support.mjs';

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

  it('shows the number of a page whose picture is late, never another page', async () => {
    const page = await openBookAt(browser, server.addresses.find((address) => address.includes('127.0.0.1')));
    await openPages(page);
    let release;
    const late = new Promise((resolve) => (release = resolve));
    await page.route('**/files/page/12.jpg', (route) => late.then(() => route.continue()));
    await page.getByRole('textbox', { name: 'Page number' }).fill('12');
    await page.keyboard.press('Enter');
    await page.locator('.side[data-drawn="13"]').waitFor();
    await page.waitForFunction(() => document.querySelector('.air').hidden);
    assert.equal(await page.locator('.side:not([hidden])[data-drawn=""]').count(), 1);
    assert.equal(await page.locator('.missing').count(), 0);
    const { x, y } = await page.locator('.page[data-place="12"]').boundingBox();
    assert.deepEqual(await colourAt(page, x + 20, y + 20), [255, 255, 255]);
    release();
    assert.deepEqual(await openPages(page), [12, 13]);
    assert.deepEqual(page.troubles, []);
  });
});
