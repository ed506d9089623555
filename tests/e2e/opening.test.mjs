// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { renameSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { launchBrowser } from '../../tools/browser.mjs';
import { startServer } from '../preview_server/support.mjs';
import { openBookAt, openPages, publishMagazine, removeBook, turnWith } from './support.mjs';

const WAYS = { 'from its folder': ({ folder }) => folder, 'from the preview server': ({ server }) => server };

for (const [name, addressIn] of Object.entries(WAYS))
  describe(`a book opened ${name}`, () => {
    let browser, book, server, home;

    before(async () => {
      book = publishMagazine('--set', 'turnDuration=150');
      server = await startServer(book);
      const local = server.addresses.find((address) => address.includes('127.0.0.1'));
      home = addressIn({ folder: `${pathToFileURL(book).href}/`, server: local });
      browser = await launchBrowser();
    });

    afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

    after(async () => {
      await browser?.close();
      await server?.stop();
      if (book) removeBook(book);
    });

    const open = (options) => openBookAt(browser, home, options);

    it('turns, jumps, searches and goes back without an error or a request outside it', async () => {
      const page = await open({ hash: '#page/iii' });
      assert.deepEqual(await openPages(page), [2, 3]);
      const steps = await page.evaluate(() => history.length);
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [4, 5]);
      assert.match(page.url(), /#page\/4$/);
      assert.equal(await page.evaluate(() => history.length), steps, 'a turn is no step of the history');
      await page.keyboard.press('/');
      await page.keyboard.type('chestnut');
      const hit = page.getByRole('button', { name: /^Page 13/ }).first();
      assert.deepEqual(await turnWith(page, () => hit.click()), [12, 13]);
      assert.ok(await page.locator('.mark').count() > 0);
      await page.keyboard.press('Escape');
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('End')), [16]);
      assert.deepEqual(await turnWith(page, () => page.goBack()), [12, 13]);
      assert.deepEqual(await turnWith(page, () => page.goBack()), [4, 5]);
      await page.keyboard.press('+');
      await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
      assert.deepEqual(page.troubles, []);
    });

    it('gives the text of a page to who does not see it, whenever its picture comes', async () => {
      const page = await browser.newPage();
      await page.addInitScript(() => { window.createImageBitmap = () => new Promise(() => {}); });
      await page.goto(`${home}index.html#page/4`);
      await page.locator('.page[data-place="4"] .spoken p').first().waitFor({ state: 'attached' });
      await page.locator('.page[data-place="5"] .spoken p').first().waitFor({ state: 'attached' });
    });

    for (const fault of ['missing', 'damaged']) it(`offers a page whose picture is ${fault} anew, and shows it when it is there`, async () => {
      const [picture, aside] = [join(book, 'files/page/5.jpg'), join(book, 'aside.jpg')];
      renameSync(picture, aside);
      if (fault === 'damaged') writeFileSync(picture, 'Service is not available.');
      const page = await open({ hash: '#page/4' });
      await page.locator('.missing').waitFor();
      assert.equal(await page.locator('.missing .label').textContent(), '5');
      renameSync(aside, picture);
      await page.getByRole('button', { name: 'Try again' }).click();
      assert.deepEqual(await openPages(page), [4, 5]);
      await page.locator('.missing').waitFor({ state: 'detached' });
      assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Page 5');
    });
  });
