// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { cpSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { launchBrowser } from '../../tools/browser.mjs';
import { faults } from './axe.mjs';
import { changedBook, publishMagazine, removeBook, RESOURCES } from './support.mjs';

const FRAME = `<!DOCTYPE html><title>host</title>
<iframe src="index.html" width="900" height="600"></iframe>
<script>
  const told = [];
  addEventListener('message', ({ data }) => told.push(data));
  const tell = (message) => frames[0].postMessage(message, '*');
</script>`;

const EMPTY = '<div id="catalogue" lang="nl" class="mine" style="width: 900px; height: 600px; color: red"></div>';
const ELEMENT = `<!DOCTYPE html><title>host</title><link rel="stylesheet" href="style/player.css">
<button>outside</button>${EMPTY}
<p style="height: 2000px">below</p>
<script src="files/search/book.js"></script><script src="flipBook.min.js"></script>
<script>
  const told = [];
  const book = leafcastBook.mount(document.getElementById('catalogue'), { readerData: 'YES' }, bookData, { place: 4 });
  book.on('settled', (places) => told.push(places.join()));
</script>`;

/** Neither book lies where the page does; both are called bookData. */
const TWO = `<!DOCTYPE html><html lang="en"><title>host</title><link rel="stylesheet" href="../style/player.css">
<main><h1>Two books</h1><div id="one" style="width: 900px; height: 600px"></div><div id="other" style="width: 900px; height: 600px"></div></main>
<script src="../flipBook.min.js"></script>
<script src="../files/search/book.js"></script><script>const one = bookData;</script>
<script src="second/files/search/book.js"></script><script>const other = bookData;</script>
<script>
  const show = (id, data, options) => leafcastBook.mount(document.getElementById(id), { readerData: 'YES' }, data, options);
  show('one', one, { folder: '../' });
  show('other', other, { folder: 'second', place: 2 });
</script></html>`;

describe('a book in another page', () => {
  let browser, book, page;

  before(async () => {
    const published = publishMagazine();
    const script = readFileSync(join(RESOURCES, 'AppFiles/Templates/float/javascript/flipBook.min.js'), 'utf8');
    book = changedBook(published, { files: { 'frame.html': FRAME, 'element.html': ELEMENT, 'flipBook.min.js': script } });
    removeBook(published);
    mkdirSync(join(book, 'deeper'));
    writeFileSync(join(book, 'deeper/two.html'), TWO);
    const second = publishMagazine('--pages', '3-6');
    cpSync(second, join(book, 'deeper/second'), { recursive: true });
    removeBook(second);
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
    assert.deepEqual(await page.evaluate(() => told), ['4,5', '12,13', '10,11'], 'the key was not for the book');
    assert.equal(await page.evaluate(() => document.activeElement.textContent), 'outside');
    await page.evaluate(() => {
      document.activeElement.blur();
      book.goTo(2);
    });
    await told('2,3');
    assert.equal(await page.evaluate(() => document.activeElement.tagName), 'BODY', 'nobody asked for the focus');
    assert.equal(await page.evaluate(() => location.hash + document.documentElement.lang), '');
  });

  it('hears keys once it was clicked', async () => {
    await open('element.html');
    await told('4,5');
    await page.mouse.click(450, 300);
    await page.keyboard.press('ArrowRight');
    await told('6,7');
  });

  it('shows two books from their own folders, without a fault that axe finds', async () => {
    await open('deeper/two.html');
    await page.waitForFunction(() => document.querySelectorAll('.side[data-drawn]:not([hidden], [data-drawn=""])').length === 3);
    await page.waitForFunction(() => document.querySelectorAll('.spoken[lang]').length === 3);
    const [one, other] = await page.locator('.leafcast').evaluateAll((books) => books.map((each) => each.querySelector('.pages').textContent));
    assert.match(one, /HORNBEAM/i);
    assert.notEqual(one, other);
    assert.deepEqual(await faults(page), []);
  });

  it('hears keys that come while its leaves fly', async () => {
    await open('element.html');
    await told('4,5');
    await page.evaluate(() => book.goTo(12));
    await told('12,13');
    await page.locator('.page').first().focus();
    for (let press = 0; press < 4; press++) await page.keyboard.press('ArrowLeft');
    await told('6,7');
    assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Page 6');
  });

  it('lets the page around it be scrolled, and has no address to give away', async () => {
    await open('element.html');
    await told('4,5');
    const scrolled = () => page.evaluate(() => scrollY);
    await page.getByRole('button', { name: 'Contents' }).click();
    await page.locator('.contents a[aria-current]').waitFor();
    assert.equal(await scrolled(), 0);
    assert.equal(await page.locator('.contents [href], .link:not([href^=http], [href^=mailto])[href]').count(), 0);
    assert.equal(await page.getByRole('button', { name: 'Share' }).count(), 0);
    await page.getByRole('link', { name: 'Back' }).press('Enter');
    await told('16');
    await page.mouse.move(450, 300);
    await page.mouse.wheel(0, 240);
    await page.waitForFunction(() => scrollY > 100);
    assert.equal(await page.locator('.stage').evaluate((stage) => getComputedStyle(stage).touchAction), 'pan-y');
  });

  it('takes the wheel where that is asked for, until there is nothing to turn', async () => {
    await open('element.html');
    await page.evaluate(() => {
      const config = { readerData: 'YES', wheelTurns: 'YES' };
      leafcastBook.mount(document.getElementById('catalogue'), config, bookData, { place: 15 }).on('settled', (places) => told.push(`wheel ${places}`));
    });
    await told('wheel 14,15');
    await page.mouse.move(450, 300);
    await page.mouse.wheel(0, 240);
    await told('wheel 16');
    assert.equal(await page.evaluate(() => scrollY), 0);
    const isLeftAlone = (deltaY) => page.locator('.stage').evaluate((stage, pixels) =>
      stage.dispatchEvent(new WheelEvent('wheel', { deltaY: pixels, bubbles: true, cancelable: true })), deltaY);
    await page.waitForTimeout(300); // or it would be the same push
    assert.deepEqual([await isLeftAlone(240), await isLeftAlone(-1)], [true, false]);
  });

  it('is taken off whole, and can be put there again', async () => {
    await open('element.html');
    const element = page.locator('#catalogue');
    await told('4,5');
    await page.getByRole('button', { name: 'Contents' }).click();
    await page.setViewportSize({ width: 700, height: 700 });
    const after = await page.evaluate(async () => {
      book.on('turned', (places) => told.push(`turned ${places}`));
      book.next();
      book.destroy();
      const last = told.length;
      book.next();
      await new Promise((resolve) => setTimeout(resolve, 300)); // for what must not come
      return { more: told.slice(last), html: document.getElementById('catalogue').outerHTML };
    });
    assert.deepEqual(after, { more: [], html: EMPTY });
    await page.evaluate(() => {
      const mount = (place) => leafcastBook.mount(document.getElementById('catalogue'), { readerData: 'YES' }, bookData, { place });
      mount(8).on('settled', (places) => told.push(`first ${places}`));
      mount(10).on('settled', (places) => told.push(`second ${places}`));
    });
    await told('second 10,11');
    assert.equal(await page.evaluate(() => told.some((each) => each.startsWith('first'))), false);
    assert.equal(await page.locator('.stage').isVisible(), true);
    assert.equal(await element.getAttribute('data-panel'), null);
    await page.setViewportSize({ width: 1000, height: 700 });
  });

  it('goes to a page of a column that has no size yet', async () => {
    await open('element.html');
    await page.evaluate(() => {
      book.destroy();
      const element = document.getElementById('catalogue');
      element.style.display = 'none';
      const column = leafcastBook.mount(element, { readerData: 'YES' }, bookData, { view: 'scroll' });
      column.on('settled', (places) => told.push(`column ${places}`));
      setTimeout(() => {
        column.goTo(6);
        column.next();
        element.style.display = '';
      }, 200); // once it is furnished
    });
    await told('column 7');
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
