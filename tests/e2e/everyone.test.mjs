// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { faults } from './axe.mjs';
import { changedBook, colourAt, openBook, openPages, publishMagazine, removeBook, turnWith } from './support.mjs';

const PHONE_ACROSS = { width: 844, height: 390, hasTouch: true, isMobile: true };
const PHONE = { width: 390, height: 844, hasTouch: true, isMobile: true };
const SPREAD = { hash: '#page/4' };

/** A tool of the bar, or of its menu where there is no room for it. */
async function press(page, name) {
  const tool = page.locator('.tool', { has: page.getByText(name, { exact: true }) });
  if (!(await tool.isVisible())) await page.getByRole('button', { name: 'More tools' }).click();
  await tool.click();
}

async function searchFor(page, word) {
  await press(page, 'Search');
  await page.keyboard.type(word);
  await page.locator('.hits button').first().waitFor();
}

/** Everything that a reader can have open. */
const STATES = {
  'the cover': () => {},
  'a spread': (page) => turnWith(page, () => page.keyboard.press('ArrowRight')),
  'a zoomed page': async (page) => {
    await page.keyboard.press('+');
    await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
  },
  contents: (page) => press(page, 'Contents'),
  overview: (page) => press(page, 'Page overview'),
  hits: (page) => searchFor(page, 'leaf'),
  'the text of the book': async (page) => {
    await press(page, 'Text of the book');
    await page.locator('.text p').first().waitFor();
  },
  'the print dialog': (page) => press(page, 'Print'),
  'the share dialog': (page) => press(page, 'Share'),
  'the list of keys': (page) => press(page, 'Keys'),
};

/** What can be pressed and is smaller than so many pixels either way; space around a link belongs to it. */
const smallTargets = (page, least) =>
  page.evaluate((pixels) => {
    const sizeOf = (element) => {
      const box = (element.closest('label') ?? element).getBoundingClientRect();
      const area = element.matches('.link') ? getComputedStyle(element, '::before') : box;
      return [area.width, area.height].map(parseFloat);
    };
    const isTarget = (each) => each.checkVisibility() && !each.matches('.skip');
    const targets = [...document.querySelectorAll('a, button, input')].filter(isTarget);
    const small = targets.filter((each) => Math.min(...sizeOf(each)) < pixels - 0.1);
    return small.map((each) => `${each.outerHTML}: ${sizeOf(each).join(' x ')}`);
  }, least);

/** Steps through by Tab to the end; answers what has the focus at each step, and what of it is out of sight. */
async function tabThrough(page, most = 60) {
  const [stops, hidden] = [[], []];
  for (let step = 0; step < most; step++) {
    await page.keyboard.press('Tab');
    const stop = await page.evaluate(() => {
      const focused = document.activeElement;
      const { x, y, width, height } = focused.getBoundingClientRect();
      const top = document.elementFromPoint(x + width / 2, y + height / 2);
      const name = focused.getAttribute('aria-label') || focused.title || focused.textContent.trim();
      const isSeen = (focused.closest('label') ?? focused).contains(top);
      return { name: focused === document.body ? '' : name, isSeen };
    });
    if (!stop.name) return { stops, hidden };
    stops.push(stop.name);
    if (!stop.isSeen) hidden.push(stop.name);
  }
  throw new Error(`Tab never leaves the book: ${stops.join(', ')}`);
}

describe('the book for everyone', () => {
  let browser, book;

  before(async () => {
    book = publishMagazine('--set', 'turnDuration=150');
    browser = await launchBrowser();
  });

  afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

  after(async () => {
    await browser?.close();
    if (book) removeBook(book);
  });

  async function open(options) {
    const page = await openBook(browser, book, options);
    await openPages(page);
    return page;
  }

  for (const [view, options, target] of [['a wide window', {}, 24], ['a phone', PHONE, 44]])
    it(`has no fault that axe finds and no small target on ${view}`, async () => {
      const page = await open(options);
      for (const [name, goThere] of Object.entries(STATES)) {
        await goThere(page);
        assert.deepEqual(await faults(page), [], name);
        assert.deepEqual(await smallTargets(page, target), [], name);
        await page.keyboard.press('Escape');
        await page.locator('.panel, dialog').waitFor({ state: 'detached' });
        await page.keyboard.press('0');
      }
    });

  describe('reached by keys', () => {
    const BAR = ['Contents', 'Page overview', 'Search', 'Text of the book', 'Zoom out', 'Zoom in', 'Fit to window',
      'View: automatic', 'Turn pages automatically', 'Sound of turning pages', 'Less motion', 'Print', 'Share', 'Keys', 'Full screen'];

    it('goes from the bar over the links of the pages to the slider, and out', async () => {
      const page = await open({ hash: '#page/2' });
      const { stops, hidden } = await tabThrough(page);
      const links = stops.filter((stop) => /: (Go to page|https?:|mailto:)/.test(stop));
      assert.equal(links.length, 18);
      const foot = ['Place in the book', 'Page number'];
      assert.deepEqual(stops, ['Skip to the pages', ...BAR, 'Previous page', ...links, 'Next page', ...foot]);
      assert.deepEqual(hidden, []);
    });

    it('brings links into sight that lie outside a zoomed page', async () => {
      const page = await open({ hash: '#page/2' });
      for (let step = 0; step < 3; step++) await page.keyboard.press('+');
      const { hidden } = await tabThrough(page);
      assert.deepEqual(hidden, []);
      assert.deepEqual(await page.locator('.stage').evaluate(({ scrollLeft, scrollTop }) => [scrollLeft, scrollTop]), [0, 0]);
    });

    it('takes what the page field shows for a page, and forgets a wrong number that is left', async () => {
      const page = await open(SPREAD);
      const field = page.getByRole('textbox', { name: 'Page number' });
      const state = () => field.evaluate(({ value, title, ariaInvalid }) => [value, title, ariaInvalid]);
      await field.fill('99');
      await field.press('Enter');
      assert.deepEqual(await state(), ['99', 'There is no page 99.', 'true']);
      await field.blur();
      assert.deepEqual(await state(), ['4–5', '', null]);
      await field.press('Enter');
      assert.deepEqual(await state(), ['4–5', '', null]);
      assert.equal(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), 'Page 4');
    });

    it('leaves letters and signs alone where they are switched off, in the next book too', async () => {
      const page = await open();
      await page.keyboard.press('?');
      await page.getByRole('checkbox', { name: 'Use letters, digits and signs as keys' }).uncheck();
      await page.keyboard.press('Escape');
      await page.reload();
      assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [2, 3]);
      for (const key of ['?', '+', '/']) await page.keyboard.press(key);
      assert.equal(await page.locator('dialog, .panel').count(), 0);
      assert.equal(await page.locator('.sheet').evaluate((sheet) => sheet.style.transform), '');
    });

    it('skips to the page, and goes on there after a turn', async () => {
      const page = await open(SPREAD);
      const focused = () => page.evaluate(() => document.activeElement.getAttribute('aria-label'));
      await page.keyboard.press('Tab');
      await page.keyboard.press('Enter');
      assert.equal(await focused(), 'Page 4');
      await turnWith(page, () => page.keyboard.press('ArrowRight'));
      assert.equal(await focused(), 'Page 6');
    });

    for (const [view, options] of [['wide window', {}], ['phone', PHONE]])
      it(`leaves every panel and dialog, which give the focus back, on a ${view}`, async () => {
        const page = await open(options);
        for (const name of ['Contents', 'Page overview', 'Search', 'Text of the book', 'Print', 'Share', 'Keys']) {
          await press(page, name);
          const { hidden } = await tabThrough(page);
          assert.deepEqual(hidden, [], `${name} covers what has the focus`);
          await page.keyboard.press('Tab');
          await page.locator('.panel .tool, dialog .tool').first().focus();
          await page.keyboard.press('Escape');
          await page.locator('.panel, dialog').waitFor({ state: 'detached' });
          assert.ok([name, 'More tools'].includes(await page.evaluate(() => document.activeElement.title)), name);
        }
      });
  });

  it('has no fault and no small target in the menu, on a phone held either way, and on a page without a picture', async () => {
    const lacking = changedBook(book, { removed: ['files/page/4.jpg'] });
    try {
      for (const view of [PHONE, PHONE_ACROSS]) {
        const page = await openBook(browser, lacking, { ...view, ...SPREAD });
        await page.locator('.missing').waitFor();
        await page.getByRole('button', { name: 'More tools' }).click();
        assert.deepEqual(await faults(page), []);
        assert.deepEqual(await smallTargets(page, 44), []);
      }
    } finally {
      removeBook(lacking);
    }
  });

  it('says once which pages lie open, when the leaf has settled', async () => {
    const page = await open(SPREAD);
    await page.evaluate(() => {
      window.said = [];
      const status = document.querySelector('p[role=status]');
      const note = () => window.said.push(status.textContent);
      new MutationObserver(note).observe(status, { childList: true, characterData: true, subtree: true });
    });
    await turnWith(page, () => page.keyboard.press('ArrowRight'));
    await turnWith(page, () => page.keyboard.press('Home'));
    await turnWith(page, () => page.keyboard.press('End'));
    const { height } = await page.locator('.page').boundingBox();
    await page.setViewportSize({ width: 1200, height: 700 });
    await page.waitForFunction((before) => document.querySelector('.page').getBoundingClientRect().height < before, height);
    await openPages(page);
    assert.deepEqual(await page.evaluate(() => window.said),
      ['Pages 6 and 7 of 16', 'Page Cover, 1 of 16', 'Page Back, 16 of 16']);
    assert.equal(await page.locator('[aria-live]:not([aria-live=off])').count(), 1);
  });

  it('does by single taps what drags and pinches do', async () => {
    const page = await open({ ...PHONE, ...SPREAD });
    const tap = (name) => page.getByRole('button', { name }).tap();
    assert.deepEqual(await turnWith(page, () => tap('Next page')), [5]);
    assert.deepEqual(await turnWith(page, () => tap('Previous page')), [4]);
    const { x, y, width, height } = await page.getByRole('slider').boundingBox();
    assert.deepEqual(await turnWith(page, () => page.touchscreen.tap(x + width - 4, y + height / 2)), [16]);
    for (const [name, zoomed] of [['Zoom in', true], ['Fit to window', false]]) {
      await press(page, name);
      await page.waitForFunction((wanted) => (document.querySelector('.sheet').style.transform !== '') === wanted, zoomed);
      await page.keyboard.press('Escape');
    }
  });

  it('fades instead of curling where less motion is asked for', async () => {
    const page = await open({ ...SPREAD, reducedMotion: 'reduce' });
    await page.evaluate(() => {
      window.seen = { flown: 0, faded: 0 };
      const [sheet, air] = [document.querySelector('.sheet'), document.querySelector('.air')];
      new MutationObserver(() => (window.seen.flown += air.hidden ? 0 : 1)).observe(air, { attributes: true });
      const noteFades = () => (window.seen.faded += sheet.querySelectorAll('.fading').length);
      new MutationObserver(noteFades).observe(sheet, { childList: true });
    });
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [6, 7]);
    await page.waitForFunction(() => window.seen.faded > 0 && !document.querySelector('.fading'));
    assert.equal(await page.evaluate(() => window.seen.flown), 0);
    assert.equal(await page.locator('.tool[title="Less motion"]').getAttribute('aria-pressed'), 'true');
  });

  it('marks what was searched for until the reader is done with it', async () => {
    const page = await open({ ...PHONE, ...SPREAD });
    const marks = () => page.locator('.mark').count();
    const choose = async () => {
      await searchFor(page, 'leaf');
      await page.locator('.hits button').first().tap();
      await page.locator('.panel').waitFor({ state: 'detached' });
      await openPages(page);
      assert.ok(await marks() > 0);
      assert.match(await page.evaluate(() => document.activeElement.getAttribute('aria-label')), /^Page/);
    };
    await choose();
    await page.keyboard.press('Escape');
    assert.equal(await marks(), 0);
    await choose();
    await press(page, 'Contents');
    await page.keyboard.press('Escape');
    assert.equal(await marks(), 0);
  });

  it('can be seen in forced colours', async () => {
    const page = await open({ ...SPREAD, forcedColors: 'active' });
    await press(page, 'Contents');
    const drawn = (selector) => page.locator(selector).first().evaluate((element) => {
      const { borderTopStyle, borderTopWidth, borderTopColor, backgroundColor, outlineStyle } = getComputedStyle(element);
      const hasBorder = borderTopStyle !== 'none' && parseFloat(borderTopWidth) > 0;
      return { hasEdge: hasBorder && borderTopColor !== backgroundColor, outlineStyle };
    });
    for (const selector of ['.panel', '.bar', '.turn', '.tool[aria-expanded=true]', 'a[aria-current]'])
      assert.equal((await drawn(selector)).hasEdge, true, `${selector} has no edge`);
    assert.notEqual((await drawn('.side')).outlineStyle, 'none');
    await page.keyboard.press('Tab');
    assert.notEqual((await drawn(':focus-visible')).outlineStyle, 'none');
    const [x, y] = await page.locator('.side').nth(1).boundingBox().then((box) => [box.x + box.width / 2, box.y + 20]);
    assert.ok(Math.min(...await colourAt(page, x, y)) > 200, 'the page keeps its own colours');
  });

  const noPrinter = () => { window.print = () => (window.printed = document.querySelectorAll('.leafcast-print img').length); };
  const printField = (page) => page.getByRole('textbox', { name: 'These pages' });
  const printNote = (page) => page.getByRole('dialog').getByRole('status');

  it('prints the pages that were asked for, one a sheet', async () => {
    const page = await open({ hash: '#page/2' });
    await page.evaluate(noPrinter);
    await press(page, 'Print');
    const field = printField(page);
    await field.fill('99');
    await page.keyboard.press('Enter');
    assert.equal(await printNote(page).textContent(), 'Write page numbers such as 1-4, 7.');
    await field.fill('5-7, iii');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => window.printed === 4);
    const files = await page.locator('.leafcast-print img').evaluateAll((pictures) => pictures.map((each) => each.src.split('/').at(-1)));
    assert.deepEqual(files, ['3.jpg', '5.jpg', '6.jpg', '7.jpg']);
    const sheets = (await page.pdf({ width: '600px', height: '800px' })).toString('latin1').match(/\/Type\s*\/Page\b/g);
    assert.equal(sheets.length, 4);
    await page.evaluate(() => window.dispatchEvent(new Event('afterprint')));
    await page.waitForFunction(() => !document.querySelector('dialog, .leafcast-print'));
  });

  it('says which pages it could not print', async () => {
    const lacking = changedBook(book, { removed: ['files/page/5.jpg', 'files/page/7.jpg'] });
    try {
      const page = await openBook(browser, lacking);
      await page.evaluate(noPrinter);
      await press(page, 'Print');
      await printField(page).fill('4-7');
      await page.keyboard.press('Enter');
      await page.waitForFunction(() => window.printed === 2);
      await page.evaluate(() => window.dispatchEvent(new Event('afterprint')));
      await page.waitForFunction(() => document.querySelector('dialog [role=status]').textContent.endsWith('missing: 5, 7'));
      await printField(page).fill('7');
      await page.keyboard.press('Enter');
      await page.waitForFunction(() => document.querySelector('dialog [role=status]').textContent.endsWith('missing: 7'));
      assert.equal(await page.evaluate(() => window.printed), 2, 'no empty sheet');
    } finally {
      removeBook(lacking);
    }
  });

  it('prints nothing once the dialog is closed', async () => {
    const page = await open();
    await page.evaluate(noPrinter);
    await page.evaluate(() => {
      const { set } = Object.getOwnPropertyDescriptor(HTMLElement.prototype, 'onload');
      const hold = (listener) => () => { window.arrive = listener; };
      // What is printed has a name, the pictures of the player have none.
      Object.defineProperty(HTMLImageElement.prototype, 'onload', { set(listener) { set.call(this, this.alt ? hold(listener) : listener); } });
    });
    await press(page, 'Print');
    await printField(page).fill('8');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => window.arrive);
    await page.keyboard.press('Escape');
    await page.locator('dialog').waitFor({ state: 'detached' });
    await page.evaluate(() => window.arrive());
    assert.deepEqual(await page.evaluate(() => [window.printed, document.querySelectorAll('.leafcast-print').length]), [undefined, 0]);
  });

  it('prints the open pages, and them alone, by the command of the browser too', async () => {
    const page = await open({ hash: '#page/4' });
    await page.emulateMedia({ media: 'print' });
    await page.evaluate(() => window.dispatchEvent(new Event('beforeprint')));
    const sheets = page.locator('.leafcast-print > *');
    assert.equal(await sheets.count(), 1);
    const { width, height } = await sheets.boundingBox();
    assert.ok(width / height > 1.4 && width <= 1280, 'both pages of the spread');
    assert.ok(await page.locator('#book').isHidden());
    await page.evaluate(() => window.dispatchEvent(new Event('afterprint')));
    assert.ok(await page.locator('#book').isVisible());
  });
});
