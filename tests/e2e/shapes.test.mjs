// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { changedBook, colourAt, openBook, openPages, publishColours, removeBook, turnWith } from './support.mjs';

const PORTRAIT = { width: 300, height: 400 };
const COLOURS = [
  [200, 40, 40], [40, 160, 60], [40, 70, 200], [220, 180, 30], [150, 50, 170],
  [30, 170, 180], [110, 110, 110], [240, 120, 40], [20, 30, 80],
];
const coloured = (index) => COLOURS[index % COLOURS.length];
const isNear = (seen, wanted) => wanted.every((channel, index) => Math.abs(channel - seen[index]) < 12);

/** Which of the colours the open pages show, away from the fold; 0 for none. */
async function coloursOf(page) {
  const seen = [];
  for (const element of await page.locator('.page').all()) {
    const box = await element.boundingBox();
    const colour = await colourAt(page, box.x + box.width * 0.3, box.y + 12);
    seen.push(COLOURS.findIndex((wanted) => isNear(colour, wanted)) + 1);
  }
  return seen;
}

describe('a book of other shapes', () => {
  let browser;
  const books = [];

  before(async () => {
    browser = await launchBrowser();
  });

  afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

  after(async () => {
    await browser?.close();
    books.forEach(removeBook);
  });

  const kept = (book) => books[books.push(book) - 1];
  const quick = (pages, ...options) => kept(publishColours(pages, '--set', 'turnDuration=150', ...options));

  it('shows each page of a range in its place, and the numbers of the document beside the count', async () => {
    const book = quick(COLOURS.map((colour) => ({ ...PORTRAIT, colour })), '--pages', '5-9');
    const page = await openBook(browser, book);
    const spreads = [await openPages(page)];
    const colours = [await coloursOf(page)];
    while (spreads.at(-1).at(-1) < 5) {
      spreads.push(await turnWith(page, () => page.keyboard.press('ArrowRight')));
      colours.push(await coloursOf(page));
    }
    assert.deepEqual(spreads, [[1], [2, 3], [4, 5]]);
    assert.deepEqual(colours, [[5], [6, 7], [8, 9]]);
    assert.equal(await page.locator('.page-field .field').inputValue(), '8–9');
    assert.equal(await page.locator('.page-field .total').textContent(), '(4–5 / 5)');
    await page.getByRole('textbox', { name: 'Page number' }).fill('6');
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('Enter')), [2, 3]);
    assert.deepEqual(page.troubles, []);
  });

  it('keeps the shape of each page without reader data too, once it was seen', async () => {
    const shapes = [PORTRAIT, { width: 200, height: 400 }, { width: 300, height: 200 }];
    const pages = shapes.map((size, index) => ({ ...size, colour: coloured(index) }));
    for (const template of ['float', 'slide']) {
      const page = await openBook(browser, quick(pages, '--template', template, '--set', 'readerData=NO'), { width: 600 });
      const seen = [];
      for (const place of [1, 2, 3]) {
        assert.deepEqual(place === 1 ? await openPages(page) : await turnWith(page, () => page.keyboard.press('PageDown')), [place]);
        const { width, height } = await page.locator('.page').boundingBox();
        seen.push(width / height);
      }
      for (const [index, { width, height }] of shapes.entries()) assert.ok(Math.abs(seen[index] - width / height) < 0.02, `${template} ${seen}`);
      assert.deepEqual(await coloursOf(page), [3]);
    }
  });

  it('keeps the shape of each page, at the fold, and opens a double page over both sides', async () => {
    const [slip, double, square] = [{ width: 200, height: 400 }, { width: 600, height: 400 }, { width: 300, height: 300 }];
    const sizes = [PORTRAIT, PORTRAIT, slip, double, square, PORTRAIT, PORTRAIT];
    const book = quick(sizes.map((size, index) => ({ ...size, colour: coloured(index) })));
    const page = await openBook(browser, book);
    await openPages(page);
    const seen = {};
    const note = async () => {
      const hinge = await page.locator('.sheet').evaluate((sheet) => sheet.getBoundingClientRect().x + sheet.clientWidth / 2);
      for (const element of await page.locator('.page').all()) {
        const { x, width, height } = await element.boundingBox();
        seen[await element.getAttribute('data-place')] = { shape: width / height, left: x - hinge, right: x + width - hinge };
      }
    };
    await note();
    const spreads = [];
    for (let turn = 1; turn <= 5 && !spreads.flat().includes(7); turn++) {
      spreads.push(await turnWith(page, () => page.keyboard.press('ArrowRight')));
      assert.deepEqual(await coloursOf(page), spreads.at(-1));
      await note();
    }
    assert.deepEqual(spreads, [[2, 3], [4], [5], [6, 7]]);
    for (const [index, { width, height }] of sizes.entries())
      assert.ok(Math.abs(seen[index + 1].shape - width / height) < 0.02, `page ${index + 1} has its shape`);
    assert.ok(Math.abs(seen[3].left) < 1.5, 'a narrow page lies at the fold');
    assert.ok(Math.abs(seen[4].left + seen[4].right) < 1.5, 'a double page lies over the fold');
    assert.deepEqual(page.troubles, []);
  });

  describe('of a thousand pages', () => {
    const FILES = 4;
    let book;

    before(() => {
      const small = quick(COLOURS.slice(0, FILES).map((colour) => ({ ...PORTRAIT, colour })));
      const links = [{ x: 0.1, y: 0.9, width: 0.2, height: 0.05, place: 7 }];
      const pages = Array.from({ length: 1000 }, (_, index) => (
        { number: index + 1, label: String(index + 1), image: `files/page/${1 + (index % FILES)}.jpg`, ...PORTRAIT, links }));
      // Thirty lines a page, of ten words.
      const words = Array.from({ length: 10 }, (_, word) => [word / 10, 0.5, 0.08, 0.02]);
      const lines = Array.from({ length: 30 }, () => ({ text: 'e e e e e e e e e e', boxes: words }));
      const text = `bookText(1, ${JSON.stringify(Array.from({ length: 1000 }, () => lines))});\n`;
      const chapterAt = (place) => ({ title: `Chapter at ${place}`, page: place, place, items: [] });
      const outline = Array.from({ length: 200 }, (_, index) => chapterAt(5 * index + 1));
      const data = { version: 2, textStarts: [1], pages, outline };
      const script = `var bookData = ${JSON.stringify(data)};\n`;
      book = kept(changedBook(small, { files: { 'files/search/book.js': script, 'files/search/text-1.js': text } }));
    });

    const nodes = (page) => page.evaluate(() => document.querySelectorAll('*').length);
    const fileOf = (place) => 1 + ((place - 1) % FILES);

    it('has few elements, and shows the right page after each jump', async () => {
      const page = await openBook(browser, book);
      await openPages(page);
      assert.ok(await nodes(page) < 400);
      const jumps = {
        End: [1000], Home: [1], 517: [516, 517], 2: [2, 3], 999: [998, 999],
      };
      for (const [place, wanted] of Object.entries(jumps)) {
        const field = page.getByRole('textbox', { name: 'Page number' });
        const jump = Number(place) ? () => field.fill(place).then(() => field.press('Enter')) : () => page.keyboard.press(place);
        await page.locator('.page').first().focus();
        assert.deepEqual(await turnWith(page, jump), wanted);
        assert.deepEqual(await coloursOf(page), wanted.map(fileOf));
        assert.ok(await nodes(page) < 400);
      }
      assert.deepEqual(page.troubles, []);
    });

    it('is searched for one letter without many more', async () => {
      const page = await openBook(browser, book, { hash: '#page/500' });
      await openPages(page);
      await page.keyboard.press('/');
      await page.keyboard.type('e');
      await page.waitForFunction(() => document.querySelector('.count').textContent === '300000 hits' && document.querySelector('.mark'));
      assert.ok(await nodes(page) < 1000);
      assert.deepEqual(page.troubles, []);
    });

    it('shows only what is in sight of its overview', async () => {
      const page = await openBook(browser, book, { hash: '#page/500' });
      assert.deepEqual(await openPages(page), [500, 501]);
      await page.getByRole('button', { name: 'Page overview' }).click();
      await page.keyboard.press('End');
      await page.locator('.thumbnails button[aria-label="Page 1000"]').waitFor();
      assert.ok(await nodes(page) < 400);
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('Enter')), [1000]);
      assert.deepEqual(page.troubles, []);
    });
  });
});
