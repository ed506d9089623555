// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { changedBook, openBook, openPages, publishMagazine, removeBook, scriptWith, stays, turnWith } from './support.mjs';
import { fingersOn } from './fingers.mjs';

const position = (page) => page.locator('.page-field .total').textContent();

describe('a published book', () => {
  let browser, book;
  const books = [];

  function published(...options) {
    books.push(publishMagazine(...options));
    return books.at(-1);
  }

  before(async () => {
    book = published('--set', 'turnDuration=150');
    browser = await launchBrowser();
  });

  afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

  after(async () => {
    await browser?.close();
    books.forEach(removeBook);
  });

  const open = (options) => openBook(browser, book, options);

  function openChanged(changes, options) {
    books.push(changedBook(book, changes));
    return openBook(browser, books.at(-1), options);
  }

  it('opens at its cover, with its title, without a request that leaves the folder', async () => {
    const page = await open();
    assert.deepEqual(await openPages(page), [1]);
    assert.equal(await position(page), '(1 / 16)');
    assert.equal(await page.title(), 'Hornbeam No. 7: Trees, leaves and things made by hand');
    await page.waitForLoadState('networkidle');
    assert.deepEqual(page.troubles, []);
  });

  it('turns to the last page with the keys, back and forth with the buttons', async () => {
    const page = await open();
    const seen = [await openPages(page)];
    while (seen.at(-1).at(-1) < 16) {
      seen.push(await turnWith(page, () => page.keyboard.press('ArrowRight')));
      assert.ok(seen.length < 17, 'every press must turn a page');
    }
    assert.deepEqual(seen, [[1], [2, 3], [4, 5], [6, 7], [8], [9], [10, 11], [12, 13], [14, 15], [16]]);
    assert.equal(await page.locator('.next').getAttribute('aria-disabled'), 'true');
    for (let turns = 1; turns < seen.length; turns++) await page.locator('.previous').click();
    await page.waitForFunction(() => document.querySelector('.page-field .field').value === 'Cover');
    assert.deepEqual(await openPages(page), [1]);
    for (let turns = 1; turns < seen.length; turns++) await page.locator('.next').click();
    await page.waitForFunction(() => document.querySelector('.page-field .field').value === 'Back');
    assert.deepEqual(await openPages(page), [16]);
    assert.deepEqual(page.troubles, []);
  });

  it('turns when a finger swipes across, not when it moves down', async () => {
    const page = await open({ hasTouch: true });
    await openPages(page);
    const fingers = await fingersOn(page);
    const swipe = (across, down) => fingers.stroke([640, 300], [640 + across, 300 + down]);
    await swipe(-40, 200);
    await stays(page, [1]);
    assert.deepEqual(await turnWith(page, () => swipe(-300, 10)), [2, 3]);
    assert.deepEqual(await turnWith(page, () => swipe(300, 10)), [1]);
  });

  it('follows links inside the book, undoes that with the back button, and marks links to the web', async () => {
    const page = await open({ hash: '#page/2' });
    await openPages(page);
    const jump = () => page.locator('.page').first().getByRole('link', { name: /^12 The willow year .*: Go to page 12$/ }).click();
    assert.deepEqual(await turnWith(page, jump), [12, 13]);
    assert.match(page.url(), /#page\/12$/);
    assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Page 12');
    const webLink = page.getByRole('link', { name: /https:\/\/www\.example\.org\/aldermoor \(new window\)/ });
    assert.equal(await webLink.getAttribute('target'), '_blank');
    assert.match(await webLink.getAttribute('rel'), /noopener/);
    assert.deepEqual(await turnWith(page, () => page.goBack()), [2, 3]);
  });

  it('tells screen readers the place and the text of the pages', async () => {
    const page = await open({ hash: '#page/4' });
    assert.deepEqual(await openPages(page), [4, 5]);
    assert.equal(await page.getByRole('status').textContent(), 'Pages 4 and 5 of 16');
    const spoken = page.getByRole('group', { name: 'Page 5', exact: true }).locator('.spoken');
    assert.match(await spoken.textContent(), /Why bother\?/);
    assert.equal(await page.getByRole('button', { name: 'Next page' }).count(), 1);
  });

  it('shows one page at a time in an upright window', async () => {
    const page = await open({ width: 768, height: 1024, hash: '#page/3' });
    assert.deepEqual(await openPages(page), [3]);
    await page.setViewportSize({ width: 1280, height: 800 });
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 2);
    assert.deepEqual(await openPages(page), [2, 3]);
    await page.setViewportSize({ width: 768, height: 1024 });
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 1);
    assert.deepEqual(await openPages(page), [3], 'the page that was read');
  });

  it('shows the pages in pairs, or one by one, as its reader chooses', async () => {
    const page = await open({ hash: '#page/3' });
    const seen = [await openPages(page)];
    for (const view of ['automatic', 'single page', 'two pages'])
      seen.push(await turnWith(page, () => page.getByRole('button', { name: `View: ${view}` }).click()));
    assert.deepEqual(seen, [[2, 3], [3], [2, 3], [3, 4]]);
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [5, 6]);
    const chosenByWindow = await turnWith(page, () => page.getByRole('button', { name: 'View: other pairs of pages' }).click());
    assert.deepEqual(chosenByWindow, [4, 5]);
    assert.deepEqual(page.troubles, []);
  });

  it('opens where its reader left it, unless the address names a page', async () => {
    const page = await open();
    await openPages(page);
    await turnWith(page, () => page.keyboard.press('End'));
    const [address] = page.url().split('#');
    await page.goto('about:blank');
    await page.goto(address);
    assert.deepEqual(await openPages(page), [16]);
    await page.goto('about:blank');
    await page.goto(`${address}#page/iii`);
    assert.deepEqual(await openPages(page), [2, 3]);
  });

  it('finds words, and marks them on the page', async () => {
    const page = await open();
    await openPages(page);
    await page.keyboard.press('/');
    await page.keyboard.type('ANTHOCYANINS');
    const hits = page.locator('.hits button');
    await hits.first().waitFor();
    assert.deepEqual(await turnWith(page, () => hits.first().click()), [4, 5]);
    assert.equal(await page.locator('.mark.chosen').count(), 1);
    assert.ok(await page.locator('.mark').count() > 1);
    await page.keyboard.press('Escape');
    assert.equal(await page.locator('.mark, .panel').count(), 0);
  });

  it('leaves the focus alone when a search ends that its reader has left', async () => {
    const text = readFileSync(join(book, 'files/search/text-1.js'), 'utf8');
    // The text cannot be had when the book is opened, and comes late to the search.
    const files = { 'files/search/text-1.js': '', 'files/search/late-1.js': text };
    const page = await openChanged({ files }, { hash: '#page/4' });
    await openPages(page);
    await page.waitForFunction(() => document.querySelector('.page').dataset.text === '' && !document.querySelector('script[src*="text-"]'));
    await page.evaluate(() => {
      window.late = [];
      document.head.append = (script) => {
        script.src = script.src.replace('text-1', 'late-1');
        window.late.push(script);
      };
    });
    await page.keyboard.press('/');
    await page.keyboard.type('anthocyanins');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Tab');
    const focused = await page.evaluateHandle(() => document.activeElement);
    await page.evaluate(() => Element.prototype.append.call(document.head, ...window.late));
    await page.locator('.mark').first().waitFor({ state: 'attached' });
    assert.equal(await page.evaluate((before) => document.activeElement === before, focused), true);
    await page.locator('.query').press('Enter');
    await page.waitForFunction(() => document.activeElement.closest('.hits'));
  });

  it('keeps nothing of the overview when that is closed', async () => {
    const page = await open();
    await openPages(page);
    await page.evaluate(() => {
      window.listeners = new Map(); // by signal
      for (const [name, step] of [['addEventListener', 1], ['removeEventListener', -1]]) {
        const known = AbortSignal.prototype[name];
        AbortSignal.prototype[name] = function (...given) {
          window.listeners.set(this, (window.listeners.get(this) ?? 0) + step);
          return known.apply(this, given);
        };
      }
    });
    const tool = page.getByRole('button', { name: 'Page overview' });
    for (const state of ['attached', 'detached', 'attached', 'detached']) {
      await tool.click();
      await page.locator('.thumbnails').waitFor({ state });
    }
    // Each picture that was loaded has a signal of its own.
    assert.ok(await page.evaluate(() => Math.max(...window.listeners.values())) < 2);
  });

  it('tells in the contents which chapter lies open, also after a turn', async () => {
    const page = await open();
    await openPages(page);
    await page.getByRole('button', { name: 'Contents' }).click();
    const current = () => page.locator('.contents [aria-current]').allTextContents();
    const before = await current();
    await page.locator('.stage').click({ position: { x: 5, y: 5 } });
    await page.locator('.next').click();
    for (let turn = 0; turn < 3; turn++) await turnWith(page, () => page.locator('.next').click());
    const after = await current();
    assert.deepEqual([before.length, after.length], [1, 1]);
    assert.notDeepEqual(after, before);
  });

  it('jumps to where the slider is let go, whatever turns meanwhile', async () => {
    const page = await open();
    await openPages(page);
    await turnWith(page, () => page.keyboard.press('End'));
    const slider = page.getByRole('slider');
    const { x, y, width, height } = await slider.boundingBox();
    await page.mouse.move(x + width - 9, y + height / 2);
    await page.mouse.down();
    await page.mouse.move(x + width / 2, y + height / 2, { steps: 3 });
    const held = await slider.inputValue();
    await turnWith(page, () => page.goBack());
    assert.equal(await slider.inputValue(), held);
    await turnWith(page, () => page.mouse.up());
    assert.ok((await openPages(page)).includes(Number(held)));
    await page.mouse.click(x + width / 2, y + height / 2);
    const entries = await page.evaluate(() => history.length);
    await turnWith(page, () => slider.press('ArrowRight'));
    assert.equal(await page.evaluate(() => history.length), entries, 'a key is no jump');
  });

  it('has no edges of other pages when it has one page', async () => {
    const page = await openBook(browser, published('--pages', '1'));
    assert.deepEqual(await openPages(page), [1]);
    assert.equal(await page.locator('.edge').filter({ visible: true }).count(), 0);
    assert.equal(await page.locator('.next').getAttribute('aria-disabled'), 'true');
    assert.deepEqual(page.troubles, []);
  });

  it('leads through contents, overview and page field', async () => {
    const page = await open();
    await openPages(page);
    await page.getByRole('button', { name: 'Contents' }).click();
    assert.deepEqual(await turnWith(page, () => page.getByRole('link', { name: 'Making' }).click()), [10, 11]);
    await page.getByRole('button', { name: 'Page overview' }).click();
    assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Page 10');
    await page.keyboard.press('ArrowUp');
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('Enter')), [8]);
    const field = page.getByRole('textbox', { name: 'Page number' });
    await field.fill('iii');
    const typedMeanwhile = () => page.keyboard.press('Enter').then(() => field.fill('4'));
    assert.deepEqual(await turnWith(page, typedMeanwhile), [2, 3]);
    await page.waitForFunction(() => document.querySelector('[role=status]').textContent.includes('iii'));
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('Enter')), [4, 5]);
    assert.deepEqual(page.troubles, []);
  });

  it('holds the chosen pages only, and the links that lead to them', async () => {
    const page = await openBook(browser, published('--pages', '2,12-14', '--title', 'A & B'));
    assert.equal(await page.title(), 'A & B');
    assert.deepEqual(await openPages(page), [1]);
    assert.equal(await page.locator('.page').getAttribute('aria-label'), 'Page ii');
    assert.equal(await position(page), '(1 / 4)');
    const targets = await page.locator('.link').evaluateAll((links) => links.map((link) => link.getAttribute('href')));
    assert.deepEqual(targets, ['#page/2', '#page/3', '#page/4']);
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [2, 3]);
    assert.deepEqual(page.troubles, []);
  });

  it('works from the configuration script alone, and offers to load a missing page again', async () => {
    const page = await openChanged({ files: { 'files/search/book.js': '' }, removed: ['files/page/5.jpg'] });
    assert.deepEqual(await openPages(page), [1]);
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowRight');
    await page.locator('.missing').waitFor();
    assert.equal(await page.locator('.missing .label').textContent(), '5');
    await page.getByRole('button', { name: 'Try again' }).click();
    await page.locator('.missing').waitFor();
    await page.keyboard.press('End');
    assert.deepEqual(await openPages(page), [16]);
    assert.equal(await position(page), '/ 16');
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
});
