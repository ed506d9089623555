// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { HtmlValidate, StaticConfigLoader } from 'html-validate';
import { launchBrowser } from '../../tools/browser.mjs';
import { TEMPLATES } from '../../tools/templates/templates.mjs';
import { changedBook, openBook, openPages, pathOf, publishMagazine, removeBook } from './support.mjs';

const TITLE = 'Hornbeam No. 7: Trees, leaves and things made by hand';
const KEYWORDS = 'Leafcast,page flip,flipping-book';
const ESCAPED = '&quot;A&quot; &lt;b&gt; &amp; it&#39;s';

const PAGES = {
  ...Object.fromEntries(TEMPLATES.map(({ name }) => [name, `resources/AppFiles/Templates/${name}/index.html`])),
  bulletin: 'docs/example-template/Templates/bulletin/index.html',
};

const validator = new HtmlValidate(new StaticConfigLoader({ root: true, extends: ['html-validate:standard'] }));

async function faultsOf(html) {
  const { results } = await validator.validateString(html);
  return results.flatMap(({ messages }) => messages.map(({ line, message }) => `${line}: ${message}`));
}

const filled = (template, title, description, keywords) => template
  .replaceAll('${index.title}', title).replaceAll('${meta.description}', description).replaceAll('${meta.keywords}', keywords);

/** What the tags of the head say, by the name that each goes by. */
const tagsOf = (page) => page.evaluate(() => Object.fromEntries(
  [...document.head.querySelectorAll('meta[name], meta[property]')].map((tag) => [tag.name || tag.getAttribute('property'), tag.content])));

describe('the page of a book', () => {
  let browser, book;
  const books = [];

  before(async () => {
    book = publishMagazine();
    books.push(book);
    browser = await launchBrowser();
  });

  after(async () => {
    await browser?.close();
    books.forEach(removeBook);
  });

  it('is valid HTML', async () => {
    assert.deepEqual(await faultsOf(readFileSync(join(book, 'index.html'), 'utf8')), []);
    assert.notDeepEqual(await faultsOf('<!DOCTYPE html><title>x</title><p><p foo="'), [], 'the validator finds faults');
  });

  for (const [name, file] of Object.entries(PAGES)) {
    const template = readFileSync(pathOf(file), 'latin1');

    it(`stays valid in the template ${name} with empty values and escaped ones`, async () => {
      assert.deepEqual(await faultsOf(filled(template, 'T', '', '')), []);
      assert.deepEqual(await faultsOf(filled(template, ESCAPED, ESCAPED, ESCAPED)), []);
    });

    it(`has in the template ${name} placeholders that can all be filled, and nothing from elsewhere`, () => {
      const placeholders = template.match(/\$\{.*?\}/g);
      assert.deepEqual([...new Set(placeholders)].sort(), ['${index.title}', '${meta.description}', '${meta.keywords}']);
      assert.doesNotMatch(template, /\}\s*\$\{/);
      assert.doesNotMatch(template, /[^\x00-\x7f]/, 'its encoding is not declared to its reader');
      assert.doesNotMatch(template, /(src|href|data)="(?!data:)(\w+:)?\/\//);
    });
  }

  it('says the same to search engines and to those who share it', async () => {
    const page = await openBook(browser, book);
    const { description, keywords, ...tags } = await tagsOf(page);
    assert.equal(keywords, KEYWORDS);
    const expected = { 'og:title': TITLE, 'twitter:title': TITLE, 'og:description': description, 'twitter:description': description, 'book:tag': keywords };
    for (const [name, content] of Object.entries(expected)) assert.equal(tags[name], content, name);
  });

  it('runs no script but the book\'s own, and gives the browser the colour of its bar', async () => {
    const page = await openBook(browser, book);
    await openPages(page);
    assert.deepEqual(page.troubles, []);
    assert.equal((await tagsOf(page))['theme-color'], '#fbfaf8');
    const refused = await page.evaluate(async () => {
      const directives = [];
      document.addEventListener('securitypolicyviolation', ({ effectiveDirective }) => directives.push(effectiveDirective));
      const script = Object.assign(document.createElement('script'), { textContent: 'window.hasRun = true' });
      const foreign = Object.assign(new Image(), { src: 'https://www.example.org/pixel.gif' });
      document.body.append(script, foreign);
      document.body.insertAdjacentHTML('beforeend', '<i style="color: red" onclick="0"></i>');
      await new Promise((resolve) => foreign.addEventListener('error', resolve));
      return { directives: directives.sort(), hasRun: window.hasRun };
    });
    assert.deepEqual(refused, { directives: ['img-src', 'script-src-attr', 'script-src-elem', 'style-src-attr'], hasRun: undefined });
  });

  it('keeps its head and shows nothing beside the book when a title has quotes', async () => {
    books.push(publishMagazine('--title', '"A" <b> & "c" > d'));
    const page = await openBook(browser, books.at(-1));
    assert.deepEqual(await openPages(page), [1]);
    assert.equal(await page.title(), '"A" <b> & "c" > d');
    const covers = await page.evaluate(() => [[1, 1], [innerWidth / 2, 20], [20, innerHeight - 1]]
      .every(([x, y]) => document.getElementById('book').contains(document.elementFromPoint(x, y))));
    assert.ok(covers);
    assert.equal(await page.evaluate(() => document.scrollingElement.scrollHeight), 800);
    assert.deepEqual(page.troubles, []);
  });

  describe('without script', () => {
    const seen = async (folder) => {
      const context = await browser.newContext({ javaScriptEnabled: false, viewport: { width: 800, height: 900 } });
      const page = await context.newPage();
      await page.goto(pathToFileURL(join(folder, 'index.html')).href);
      const pictures = await page.locator('noscript > object').evaluateAll((objects) => objects.map(({ offsetHeight }) => offsetHeight > 100));
      const text = await page.locator('body').innerText();
      assert.match(text, /^Hornbeam No\. 7.*JavaScript.*in the folder files\/page\.$/s);
      await context.close();
      return pictures;
    };

    it('shows the first pages', async () => {
      assert.deepEqual(await seen(book), [true, true, true, true]);
    });

    it('shows those that are there, of either kind', async () => {
      const removed = [1, 2, 4].map((number) => `files/page/${number}.jpg`);
      books.push(changedBook(book, { removed, files: { 'files/page/2.png': readFileSync(pathOf('resources/AppFiles/Templates/float/demo.png')) } }));
      assert.deepEqual(await seen(books.at(-1)), [false, true, true, false]);
    });
  });
});
