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
    const page = await open();
    const release = await jumpToLatePage(page);
    assert.equal(await page.locator('.missing').count(), 0);
    const { x, y } = await page.locator('.page[data-place="12"]').boundingBox();
    assert.deepEqual(await colourAt(page, x + 20, y + 20), [255, 255, 255]);
    release();
    assert.deepEqual(await openPages(page), [12, 13]);
    assert.deepEqual(page.troubles, []);
  });

  it('shows the small picture of a page that is late, when there is one', async () => {
    const page = await open();
    await page.getByRole('button', { name: 'Page overview' }).click();
    const isDrawn = (canvas) => canvas.getContext('2d').getImageData(104, 104, 1, 1).data[3] > 0;
    const small = page.getByRole('button', { name: 'Page 12', exact: true }).locator('canvas');
    await page.keyboard.press('End');
    await page.waitForFunction(isDrawn, await small.elementHandle());
    await page.keyboard.press('Escape');
    const release = await jumpToLatePage(page);
    const { x, y, width, height } = await page.locator('.page[data-place="12"]').boundingBox();
    const look = () => colourAt(page, x + width / 2, y + height / 2);
    const before = await look();
    release();
    await openPages(page);
    const after = await look();
    assert.notDeepEqual(before, [255, 255, 255]);
    before.forEach((channel, at) => assert.ok(Math.abs(channel - after[at]) < 30, `${before}, ${after}`));
  });

  it('makes sharp what is there of an enlarged spread, and asks once for what is late', async () => {
    const page = await open();
    const asked = [];
    page.on('request', (request) => asked.push(request.url().split('/').at(-1)));
    await page.keyboard.press('+');
    const release = await jumpToLatePage(page);
    const sharp = (count) => page.waitForFunction((wanted) => document.querySelectorAll('.sharp canvas').length === wanted, count);
    await sharp(1);
    release();
    await sharp(2);
    assert.equal(asked.filter((name) => name === '12.jpg').length, 1);
  });

  it('loads two spreads ahead once a page was turned, also where pages fade', async () => {
    const page = await open({ reducedMotion: 'reduce', hash: '#page/4' });
    const [request] = await Promise.all([page.waitForRequest('**/files/page/9.jpg'), page.keyboard.press('ArrowRight')]);
    assert.ok(request);
  });

  async function open(options) {
    const page = await openBookAt(browser, server.addresses.find((address) => address.includes('127.0.0.1')), options);
    await openPages(page);
    return page;
  }

  /** Answers how to let the picture come. */
  async function jumpToLatePage(page) {
    let release;
    const late = new Promise((resolve) => (release = resolve));
    await page.route('**/files/page/12.jpg', (route) => late.then(() => route.continue()));
    await page.getByRole('textbox', { name: 'Page number' }).fill('12');
    await page.keyboard.press('Enter');
    await page.locator('.side[data-drawn="13"]').waitFor();
    await page.waitForFunction(() => document.querySelector('.air').hidden);
    assert.equal(await page.locator('.side:not([hidden])[data-drawn=""]').count(), 1);
    return release;
  }
});
