// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { delimiter, dirname, join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { openBook, openPages, pathOf, RESOURCES } from './support.mjs';

const INSTALLED = '/usr/local/share/leafcast';

/** The commands of the guide, on a machine where the resources lie elsewhere. */
function guideCommands(book) {
  const [, commands] = /```sh\n(.*?)```/s.exec(readFileSync(pathOf('docs/templates.md'), 'utf8'));
  assert.ok(commands.includes(INSTALLED) && commands.includes(' book '));
  return commands.replace(INSTALLED, RESOURCES).replace(' book ', ` ${book} `);
}

describe('the example of the guide to templates', () => {
  let home, browser;

  before(async () => {
    home = mkdtempSync(join(tmpdir(), 'leafcast-guide-'));
    browser = await launchBrowser();
  });

  after(async () => {
    await browser?.close();
    rmSync(home, { recursive: true });
  });

  it('becomes a book whose own setting, style and player work, by the commands that the guide gives', async () => {
    const book = join(home, 'book');
    const PATH = [dirname(process.env.LEAFCAST), process.env.PATH].join(delimiter);
    execFileSync('sh', ['-ec', guideCommands(book)], { cwd: pathOf(''), env: { ...process.env, HOME: home, PATH }, stdio: 'pipe' });
    const page = await openBook(browser, book);
    assert.deepEqual(await openPages(page), [1]);
    const line = page.locator('#bulletin');
    assert.match(await line.textContent(), /^New: all prices/);
    assert.equal(await line.evaluate((element) => getComputedStyle(element).backgroundColor), 'rgb(179, 38, 30)', 'as the style has it');
    const [below, bookBox] = [await line.boundingBox(), await page.locator('#book').boundingBox()];
    assert.equal(below.y, bookBox.y + bookBox.height, 'bulletinPlace=Bottom');
    assert.equal(below.y + below.height, 800);
    assert.ok(await page.getByRole('button', { name: 'Search' }).isVisible(), 'the text of the document is there');
    assert.deepEqual(page.troubles, []);
  });
});
