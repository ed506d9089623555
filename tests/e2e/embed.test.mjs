// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { launchBrowser } from '../../tools/browser.mjs';
import { changedBook, publishMagazine, removeBook, RESOURCES } from './support.mjs';

const FRAME = `<!DOCTYPE html><title>host</title>
<iframe src="index.html" width="900" height="600"></iframe>
<script>
  const told = [];
  addEventListener('message', ({ data }) => told.push(data));
  const tell = (message) => frames[0].postMessage(message, '*');
</script>`;

const ELEMENT = `<!DOCTYPE html><title>host</title><link rel="stylesheet" href="style/player.css">
<button>outside</button><div id="catalogue" style="width: 900px; height: 600px"></div>
<script src="files/search/book.js"></script><script src="flipBook.min.js"></script>
<script>
  const told = [];
  const book = leafcastBook.mount(document.getElementById('catalogue'), { readerData: 'YES' }, bookData, { place: 4 });
  book.on('settled', (places) => told.push(places.join()));
</script>`;

describe('a book in another page', () => {
  let browser, book, page;

  before(async () => {
    const published = publishMagazine();
    const script = readFileSync(join(RESOURCES, 'AppFiles/Templates/float/javascript/flipBook.min.js'), 'utf8');
    book = changedBook(published, { files: { 'frame.html': FRAME, 'element.html': ELEMENT, 'flipBook.min.js': script } });
    removeBook(published);
    browser = await launchBrowser();
    page = await browser.newPage({ viewport: { width: 1000, height: 700 } });
  });

  after(async () => {
    await browser?.close();
    if (book) removeBook(book);
  });

  const open = (name) => page.goto(pathToFileURL(join(book, name)).href);
  const told = (wanted) => page.waitForFunction((text) => told.some((each) => JSON.stringify(each) === text), JSON.stringify(wanted));

  it('answers the page around its frame once that has asked', async () => {
    await open('frame.html');
    await page.frameLocator('iframe').locator('.page').first().waitFor();
    assert.deepEqual(await page.evaluate(() => told), []);
    await page.evaluate(() => tell({ leafcast: 'listen' }));
    await told({ leafcast: 'settled', places: [1], pageCount: 16 });
    await page.evaluate(() => [null, 'next', { leafcast: 'constructor' }, { leafcast: 'goTo', place: '12' }].forEach(tell));
    await page.evaluate(() => tell({ leafcast: 'goTo', place: 12 }));
    await told({ leafcast: 'turned', places: [12, 13], pageCount: 16 });
    await told({ leafcast: 'settled', places: [12, 13], pageCount: 16 });
  });

  it('is mounted into an element, and leaves the page around it alone', async () => {
    await open('element.html');
    await told('4,5');
    await page.getByRole('button', { name: 'outside' }).focus();
    await page.keyboard.press('ArrowRight');
    await page.evaluate(() => book.goTo(12));
    await told('12,13');
    await page.evaluate(() => book.previous());
    await told('10,11');
    assert.equal(await page.evaluate(() => document.activeElement.textContent), 'outside');
    assert.equal(await page.evaluate(() => location.hash + document.documentElement.lang), '');
    await page.evaluate(() => book.destroy());
    assert.equal(await page.locator('#catalogue > *').count(), 0);
  });

  it('is shown in the view that is asked for', async () => {
    await open('element.html');
    for (const view of ['slide', 'scroll']) {
      await page.evaluate((kind) => {
        book.destroy();
        const { mount } = leafcastBook;
        const other = mount(document.getElementById('catalogue'), { readerData: 'YES' }, bookData, { place: 3, view: kind });
        other.on('settled', (places) => told.push(`${kind} ${places}`));
      }, view);
      await told(`${view} 3`);
      assert.equal(await page.locator('#catalogue').getAttribute('data-view'), view);
    }
  });
});
