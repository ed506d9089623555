// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { changedBook, openBook, publishMagazine, removeBook, scriptWith } from './support.mjs';

const position = (page) => page.locator('#position').textContent();

// The pictures of the pages in sight, by file name, once all of them have been drawn.
async function drawnPages(page) {
  await page.waitForFunction(() =>
    [...document.querySelectorAll('.page img')].every((image) => image.complete && image.naturalWidth > 0));
  const sources = await page.locator('.page img').evaluateAll((images) => images.map((image) => image.src));
  return sources.map((source) => Number(/(\d+)\.jpg$/.exec(source)[1]));
}

describe('a published book', () => {
  let browser, book;
  const books = [];

  function published(...options) {
    books.push(publishMagazine(...options));
    return books.at(-1);
  }

  before(async () => {
    book = published();
    browser = await launchBrowser();
  });

  afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

  after(async () => {
    await browser?.close();
    books.forEach(removeBook);
  });

  const open = (options) => openBook(browser, book, options);

  function openChanged(changes) {
    books.push(changedBook(book, changes));
    return openBook(browser, books.at(-1));
  }

  it('opens at its cover, with its title, without a request that leaves the folder', async () => {
    const page = await open();
    assert.deepEqual(await drawnPages(page), [1]);
    assert.equal(await position(page), '1 / 16');
    assert.equal(await page.title(), 'Hornbeam No. 7: Trees, leaves and things made by hand');
    await page.waitForLoadState('networkidle');
    assert.deepEqual(page.troubles, []);
  });

  it('turns to the last page with the keys, back and forth with the buttons', async () => {
    const page = await open();
    const seen = [await drawnPages(page)];
    while (seen.at(-1).at(-1) < 16) {
      await page.keyboard.press('ArrowRight');
      seen.push(await drawnPages(page));
      assert.ok(seen.length < 17, 'every press must turn a page');
    }
    assert.deepEqual(seen, [[1], [2, 3], [4, 5], [6, 7], [8], [9], [10, 11], [12, 13], [14, 15], [16]]);
    await page.keyboard.press('ArrowRight');
    assert.equal(await position(page), '16 / 16');
    for (let turns = 1; turns < seen.length; turns++) await page.locator('#previous').click();
    assert.equal(await position(page), '1 / 16');
    for (let turns = 1; turns < seen.length; turns++) await page.locator('#next').click();
    assert.deepEqual(await drawnPages(page), [16]);
    assert.equal(await page.locator('#next').getAttribute('aria-disabled'), 'true');
    assert.deepEqual(page.troubles, []);
  });

  it('turns when a finger swipes across, not when it moves down', async () => {
    const page = await open({ hasTouch: true });
    const swipe = (across, down) => page.locator('#stage').evaluate((stage, [x, y]) => {
      const touch = (dx, dy) => new Touch({ identifier: 1, target: stage, clientX: 600 + dx, clientY: 400 + dy });
      stage.dispatchEvent(new TouchEvent('touchstart', { touches: [touch(0, 0)] }));
      stage.dispatchEvent(new TouchEvent('touchend', { changedTouches: [touch(x, y)] }));
    }, [across, down]);
    await swipe(-60, 200);
    assert.equal(await position(page), '1 / 16');
    await swipe(-120, 10);
    assert.equal(await position(page), '2–3 / 16');
    await swipe(120, 10);
    assert.equal(await position(page), '1 / 16');
  });

  it('follows links inside the book and marks links to the web', async () => {
    const page = await open({ hash: '#page/2' });
    await page.locator('.page').first().getByRole('link', { name: 'Go to page 12' }).click();
    assert.deepEqual(await drawnPages(page), [12, 13]);
    const webLink = page.getByRole('link', { name: 'https://www.example.org/aldermoor' });
    assert.equal(await webLink.getAttribute('target'), '_blank');
    assert.match(await webLink.getAttribute('rel'), /noopener/);
    assert.match(page.url(), /#page\/12$/);
  });

  it('tells screen readers the place and the page', async () => {
    const page = await open({ hash: '#page/4' });
    assert.equal(await page.getByRole('status').textContent(), 'Pages 4 and 5 of 16');
    assert.equal(await page.getByRole('group', { name: 'Page 5' }).count(), 1);
    assert.equal(await page.getByRole('button', { name: 'Next page' }).count(), 1);
  });

  it('has the text of its pages for whoever asks, without a server', async () => {
    const page = await open();
    const text = await page.evaluate(() => new Promise((resolve, reject) => {
      window.bookText = (file, pages) => resolve(pages[4].map((line) => line.text).join('\n'));
      const script = Object.assign(document.createElement('script'), { src: 'files/search/text-1.js', onerror: reject });
      document.head.append(script);
    }));
    assert.match(text, /Why bother\?/);
    assert.deepEqual(page.troubles, []);
  });

  it('shows one page at a time in an upright window', async () => {
    const page = await open({ width: 768, height: 1024, hash: '#page/3' });
    assert.deepEqual(await drawnPages(page), [3]);
    await page.setViewportSize({ width: 1280, height: 800 });
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 2);
    assert.equal(await position(page), '2–3 / 16');
  });

  it('holds the chosen pages only, and the links that lead to them', async () => {
    const page = await openBook(browser, published('--pages', '2,12-14', '--title', 'A & B'));
    assert.equal(await page.title(), 'A & B');
    assert.equal(await position(page), '1 / 4');
    assert.deepEqual(await drawnPages(page), [2]);
    const targets = await page.locator('.link').evaluateAll((links) => links.map((link) => link.getAttribute('href')));
    assert.deepEqual(targets, ['#page/2', '#page/3', '#page/4']);
    await page.keyboard.press('ArrowRight');
    assert.deepEqual(await drawnPages(page), [12, 13]);
    assert.deepEqual(page.troubles, []);
  });

  it('works from the configuration script alone', async () => {
    const page = await openChanged({ files: { 'files/search/book.js': '' }, removed: ['files/page/5.jpg'] });
    assert.deepEqual(await drawnPages(page), [1]);
    for (let turns = 0; turns < 2; turns++) await page.keyboard.press('ArrowRight');
    await page.locator('.missing').waitFor();
    assert.equal(await page.locator('.missing .label').textContent(), '5');
    await page.keyboard.press('End');
    assert.equal(await position(page), '16 / 16');
  });

  it('names the pictures it looked for when it has no page list to go by', async () => {
    const page = await openBook(browser, published('--pages', '5-6', '--set', 'readerData=NO', '--set', 'coverAlone=NO'));
    await page.waitForFunction(() => document.querySelectorAll('.missing').length === 2);
    assert.deepEqual(await page.locator('.missing .reason').allTextContents(),
      ['There is no picture files/page/1.jpg.', 'There is no picture files/page/2.jpg.']);
  });

  it('says so when it has no pages', async () => {
    const page = await openChanged({
      files: { 'files/search/book.js': '', 'javascript/main.js': scriptWith(book, { totalPageCount: 0 }) },
    });
    assert.equal(await page.getByRole('status').textContent(), 'This book has no pages.');
    assert.deepEqual(page.troubles, []);
  });

  it('defines the digest that the configuration script calls', async () => {
    const page = await open();
    const digests = await page.evaluate(() => ['', 'abc', 'a'.repeat(119), 'a'.repeat(120)].map((text) => window.orgt(text)));
    assert.deepEqual(digests, [
      'd41d8cd98f00b204e9800998ecf8427e', '900150983cd24fb0d6963f7d28e17f72',
      '8a7bd0732ed6a28ce75f6dabc90e1613', '5f61c0ccad4cac44c75ff505e1f1e537',
    ]);
  });

  describe('does what its settings say:', () => {
    const checks = {
      'right to left': [{ rightToLeft: 'YES' }, async (page) => {
        await page.keyboard.press('ArrowLeft');
        const [second, third] = await page.locator('.page').all();
        assert.ok((await second.boundingBox()).x > (await third.boundingBox()).x);
        assert.ok((await page.locator('#next').boundingBox()).x < 640);
      }],
      'single pages': [{ viewMode: 'Single' }, async (page) => {
        await page.keyboard.press('ArrowRight');
        assert.equal(await position(page), '2 / 16');
      }],
      'no cover': [{ coverAlone: 'NO' }, async (page) => assert.equal(await position(page), '1–2 / 16')],
      'no keys': [{ keyboardControl: 'NO' }, async (page) => {
        await page.keyboard.press('ArrowRight');
        assert.equal(await position(page), '1 / 16');
      }],
      'no links and text': [{ readerData: 'NO' }, async (page) => {
        await page.keyboard.press('ArrowRight');
        assert.equal(await page.locator('.link, .spoken').count(), 0);
      }],
      'language and title': [{ languageSetting: 'German', bookTitle: 'Herbst' }, async (page) => {
        assert.equal(await page.getByRole('button', { name: 'Nächste Seite' }).count(), 1);
        assert.equal(await page.getByRole('heading').textContent(), 'Herbst');
        assert.equal(await page.locator('html').getAttribute('lang'), 'de');
      }],
      'no tool bar': [{ toolBarVisible: 'NO' }, async (page) => assert.equal(await page.locator('#toolbar').isVisible(), false)],
      'no full screen': [{ fullScreenButtonVisible: 'NO' }, async (page) => assert.equal(await page.locator('#fullScreen').isVisible(), false)],
      'colours': [{ backgroundColor: '#102030', toolBarColor: '#405060', toolBarTextColor: '#a0b0c0' }, async (page) => {
        const style = (selector, name) => page.locator(selector).evaluate((node, key) => getComputedStyle(node)[key], name);
        assert.equal(await style('body', 'backgroundColor'), 'rgb(16, 32, 48)');
        assert.equal(await style('#toolbar', 'backgroundColor'), 'rgb(64, 80, 96)');
        assert.equal(await style('#next', 'color'), 'rgb(160, 176, 192)');
      }],
      'background image': [{ bgImageURL: 'files/page/2.jpg', bgImagePosition: 'Fill' }, async (page) => {
        const { backgroundImage, backgroundSize } = await page.evaluate(() => ({ ...getComputedStyle(document.body) }));
        assert.match(backgroundImage, /files\/page\/2\.jpg/);
        assert.equal(backgroundSize, 'cover');
      }],
      'logo and link': [{ LogoFile: 'files/page/2.jpg', appLogoLinkURL: 'http://example.org', OpenWindow: '_self' }, async (page) => {
        const logo = page.getByRole('link', { name: 'http://example.org' });
        assert.equal(await logo.getAttribute('target'), '_self');
        assert.ok((await logo.boundingBox()).height < 60);
      }],
      'no shadow': [{ pageShadow: 'NO' }, async (page) =>
        assert.equal(await page.locator('.page').evaluate((node) => getComputedStyle(node).boxShadow), 'none')],
      'shape without images': [{ pageWidth: 500, pageHeight: 1000, largePageWidth: 0, largePageHeight: 0, readerData: 'NO' }, async (page) => {
        const { width, height } = await page.locator('.page').boundingBox();
        assert.ok(Math.abs(width / height - 0.5) < 0.01);
      }],
    };
    for (const [name, [settings, check]] of Object.entries(checks))
      it(name, async () => {
        const page = await openChanged({ files: { 'javascript/main.js': scriptWith(book, settings) } });
        await drawnPages(page);
        await check(page);
        assert.deepEqual(page.troubles, []);
      });
  });
});
