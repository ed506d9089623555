// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { renameSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { faults } from './axe.mjs';
import { fingersOn } from './fingers.mjs';
import {
  changedBook, destination, openBook, openPages, publishColours, publishMagazine, removeBook, scriptWith, stays, turnWith,
  waitForDestination, zoomOf,
} from './support.mjs';

const COUNT = 5000;
const SLIDE = { width: 640, height: 360 };
const COLOURS = [[200, 40, 40], [40, 160, 60], [40, 70, 200], [220, 180, 30]];
const TOUCH = { hasTouch: true, width: 820, height: 1180 };

let browser;
const books = [];
const kept = (book) => books[books.push(book) - 1];
const press = (key) => (page) => page.keyboard.press(key);
const counts = (...selectors) => (page) =>
  Promise.all(selectors.map((selector) => page.locator(selector).filter({ visible: true }).count()));
const elements = (page) => page.evaluate(() => document.querySelectorAll('*').length);
const liesInStage = (part) => part.evaluate((element) => {
  const [inner, outer] = [element, document.querySelector('.stage')].map((each) => each.getBoundingClientRect());
  return inner.top >= outer.top && inner.bottom <= outer.bottom && inner.left >= outer.left && inner.right <= outer.right;
});
const focusedName = (page) => page.evaluate(() => document.activeElement.getAttribute('aria-label'));

/** The same few pictures over and over. */
function thousandsOf(book) {
  const pages = Array.from({ length: COUNT }, (_, index) => (
    { number: index + 1, label: String(index + 1), image: `files/page/${1 + (index % COLOURS.length)}.jpg`, width: 1333, height: 750, links: [] }));
  const data = JSON.stringify({ version: 2, textStarts: [], pages, outline: [] });
  return kept(changedBook(book, { files: { 'files/search/book.js': `var bookData = ${data};\n` } }));
}

async function open(book, options) {
  const page = await openBook(browser, book, options);
  await openPages(page);
  return page;
}

async function openWithFingers(book, options) {
  const page = await open(book, { ...TOUCH, ...options });
  return { page, fingers: await fingersOn(page) };
}

/** A page whose picture is away can be asked for again when it is back. */
async function loseAndFindPicture(book, place) {
  const [picture, aside] = [join(book, `files/page/${place}.jpg`), join(book, 'aside.jpg')];
  renameSync(picture, aside);
  const page = await openBook(browser, book, { hash: `#page/${place}` });
  await page.locator('.missing').waitFor();
  renameSync(aside, picture);
  await page.getByRole('button', { name: 'Try again' }).click();
  await page.locator(`.side[data-drawn="${place}"]`).waitFor();
  assert.equal(await page.locator('.missing').count(), 0);
}

/** Settings, what is looked at, what that is without them, and with them. */
async function findSettingsDo(book, table) {
  for (const [settings, look, without, with_] of table)
    for (const [given, expected] of [[{}, without], [settings, with_]]) {
      const page = await open(settingsOf(book, given));
      assert.deepEqual(await look(page), expected, JSON.stringify(given));
      await page.context().close();
    }
}

const settingsOf = (book, settings) => kept(changedBook(book, { files: { 'javascript/main.js': scriptWith(book, settings) } }));

/** Black, at rest, zoomed, with the list of keys and with the overview. */
async function findNoFaults(book) {
  const page = await open(book, { hash: '#page/4' });
  for (const key of ['b', 'b', '+', '0', '?']) {
    await page.keyboard.press(key);
    assert.deepEqual(await faults(page), [], key);
  }
  await page.keyboard.press('Escape');
  await page.getByRole('button', { name: 'Page overview' }).click();
  assert.deepEqual(await faults(page), []);
}

before(async () => {
  browser = await launchBrowser();
});

afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

after(async () => {
  await browser?.close();
  books.forEach(removeBook);
});

describe('slides', () => {
  const ARABIC = { languageSetting: 'Arabic' };
  let quick;

  before(() => {
    quick = kept(publishMagazine('--template', 'slide', '--set', 'turnDuration=150'));
  });

  const changed = (settings) => settingsOf(quick, settings);

  it('change by the keys of presenters and clickers, and the back button undoes a jump', async () => {
    const page = await open(quick);
    const steps = [
      [press('PageDown'), [2]], [press('Space'), [3]], [press('ArrowDown'), [4]], [press('ArrowRight'), [5]],
      [press('Shift+Space'), [4]], [press('PageUp'), [3]], [press('Backspace'), [2]], [press('End'), [16]],
      [() => page.goBack(), [2]], [(at) => at.keyboard.type('12\n'), [12]], [() => page.goBack(), [2]],
    ];
    for (const [step, places] of steps) assert.deepEqual(await turnWith(page, () => step(page)), places);
    for (let turn = 0; turn < 5; turn++) await page.keyboard.press('PageDown');
    assert.equal(await destination(page), '7');
    await page.waitForFunction(() => location.hash === '#page/7');
    assert.deepEqual(page.troubles, []);
  });

  it('have no fault that axe finds', () => findNoFaults(quick));

  it('hide behind a black screen until something is shown again', async () => {
    const page = await open(quick);
    const isBlack = () => page.locator('.black').isVisible();
    for (const [dark, light] of [['b', 'b'], ['.', '.'], ['b', 'Escape'], ['b', 'PageDown']]) {
      await page.keyboard.press(dark);
      assert.equal(await isBlack(), true, dark);
      await page.keyboard.press(light);
      assert.equal(await isBlack(), false, light);
    }
  });

  it('follow the finger, and fall to the side that it means', async () => {
    const { page, fingers } = await openWithFingers(quick, { hash: '#page/4' });
    await fingers.down([600, 500]);
    await fingers.along([[600, 500]], [[400, 510]]);
    await page.waitForFunction(() => {
      const shifts = [...document.querySelectorAll('.side:not([hidden])')].map((side) => Math.round(new DOMMatrix(side.style.transform).e));
      return shifts.sort((one, other) => one - other).join(' ') === '-200 620';
    });
    await fingers.lose();
    assert.deepEqual(await openPages(page), [4]);
    assert.deepEqual(await turnWith(page, () => fingers.stroke([600, 500], [100, 500])), [5]);
    assert.deepEqual(await turnWith(page, () => fingers.stroke([200, 500], [300, 500])), [4]);
    assert.deepEqual(await turnWith(page, () => fingers.tap(790, 200)), [5]);
    await fingers.stroke([400, 300], [420, 700]);
    await stays(page, [5]);
  });

  it('go from right to left', async () => {
    const book = changed({ rightToLeft: 'YES' });
    const { page, fingers } = await openWithFingers(book, { hash: '#page/4' });
    const ways = [
      [press('ArrowLeft'), [5]], [press('ArrowRight'), [4]], [press('PageDown'), [5]],
      [() => fingers.stroke([200, 500], [700, 500]), [6]], [() => fingers.tap(30, 200), [7]], [() => fingers.tap(790, 200), [6]],
      [() => page.locator('.turn.next').click(), [7]],
    ];
    for (const [way, places] of ways) assert.deepEqual(await turnWith(page, () => way(page)), places);
    const [first, last] = [await page.locator('.dots li:not(.far) button').first().boundingBox(), await page.locator('.dots li:not(.far) button').last().boundingBox()];
    assert.ok(first.x > last.x, 'the dots run from right to left');
  });

  it('are enlarged about the fingers, sharply, and whole again after a change', async () => {
    const { page, fingers } = await openWithFingers(quick, { hash: '#page/4' });
    await fingers.down([350, 500], [450, 500]);
    await fingers.along([[350, 500], [450, 500]], [[300, 500], [500, 500]]);
    await fingers.up();
    const { scale, x } = await zoomOf(page);
    assert.ok(Math.abs(scale - 2) < 0.05 && Math.abs(400 * scale + x - 400) < 4, 'what lay between the fingers stays there');
    await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('PageDown')), [5]);
    assert.equal((await zoomOf(page)).scale, 1);
  });

  it('stay enlarged while the window changes, and move to what was searched for', async () => {
    const page = await open(quick, { hash: '#page/4' });
    for (let step = 0; step < 3; step++) await page.keyboard.press('+');
    const { width } = await page.locator('.side:not([hidden])').boundingBox();
    await page.setViewportSize({ width: 900, height: 700 });
    await page.waitForFunction((before) => document.querySelector('.side:not([hidden])').getBoundingClientRect().width < before, width);
    assert.equal((await zoomOf(page)).scale, 3);
    await page.keyboard.press('/');
    await page.keyboard.type('anthocyanins');
    await page.locator('.hits button').first().click();
    await page.locator('.mark.chosen').waitFor();
    assert.ok(await liesInStage(page.locator('.mark.chosen')));
  });

  it('fade or are there at once where that is wished', async () => {
    for (const [settings, reducedMotion, copies] of [
      [{ slideEffect: 'Fade' }, 'no-preference', 1], [{ slideEffect: 'None' }, 'no-preference', 0], [{}, 'reduce', 1],
    ]) {
      const page = await open(changed(settings), { reducedMotion });
      await page.evaluate(() => {
        const held = new CSSStyleSheet();
        held.replaceSync('.fading { animation-play-state: paused !important }');
        document.adoptedStyleSheets = [held];
      });
      await page.keyboard.press('PageDown');
      assert.equal(await page.locator('.fading').count(), copies);
      assert.deepEqual(await openPages(page), [2]);
    }
  });

  it('are alone on the full screen but for the bars of a moving mouse', async () => {
    const page = await open(quick, { hash: '#page/4' });
    await page.getByRole('button', { name: 'Full screen' }).click();
    await page.waitForFunction(() => document.fullscreenElement && !document.querySelector('.awake'));
    const { y, height } = await page.locator('.side:not([hidden])').boundingBox();
    assert.ok(y < 1 && height > 799, 'as large as the screen');
    const opacity = (value) => page.waitForFunction((wanted) => getComputedStyle(document.querySelector('.bar')).opacity === wanted, value);
    await opacity('0');
    // Space is for the page, not for the button that was pressed.
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('Space')), [5]);
    await page.mouse.move(300, 300);
    await opacity('1');
  });

  it('have dots that lead to the pages around the open one, and stay few', async () => {
    const page = await open(quick, { hash: '#page/8' });
    const names = () => page.locator('.dots button').evaluateAll((dots) => dots.map((dot) => Number(dot.dataset.place)));
    assert.deepEqual(await names(), [4, 5, 6, 7, 8, 9, 10, 11, 12]);
    assert.equal(await page.locator('.dots [aria-current="page"]').getAttribute('aria-label'), 'Page 8');
    const dot = page.getByRole('button', { name: 'Page 11', exact: true });
    assert.ok((await dot.boundingBox()).width >= 24);
    assert.deepEqual(await turnWith(page, () => dot.click()), [11]);
    assert.deepEqual(await names(), [7, 8, 9, 10, 11, 12, 13, 14, 15]);
    assert.deepEqual(await turnWith(page, () => page.goBack()), [8]);
  });

  it('do what their settings say', () => {
    const afterKey = (page) => page.keyboard.press('Space').then(() => destination(page));
    const afterWheel = async (page) => {
      await page.evaluate(() => { window.wheel = new Promise((resolve) => addEventListener('wheel', resolve, { once: true })); });
      await page.mouse.move(640, 400);
      await page.mouse.wheel(0, 240);
      await page.evaluate(() => window.wheel);
      return destination(page);
    };
    const movesLong = async (page) => {
      await page.clock.install();
      await page.keyboard.press('PageDown');
      await page.clock.runFor(1200);
      return page.locator('.sheet.moving').count();
    };
    return findSettingsDo(quick, [
      [{ keyboardControl: 'NO' }, afterKey, 'ii', 'Cover'],
      [{ wheelTurns: 'NO' }, afterWheel, 'ii', 'Cover'],
      [{ turnDuration: 4000 }, movesLong, 0, 1],
      [
        { dotsVisible: 'NO', sliderVisible: 'YES', pageFieldVisible: 'NO', turnButtonsVisible: 'NO', toolBarVisible: 'NO' },
        counts('.dots button', '.range', '.page-field', '.turn', '.bar'), [9, 0, 1, 2, 1], [0, 1, 0, 0, 0],
      ],
    ]);
  });

  it('play by themselves as a slide show', async () => {
    const page = await openBook(browser, quick);
    await openPages(page);
    await page.clock.install();
    await page.getByRole('button', { name: 'Turn pages automatically' }).click();
    await page.clock.runFor(6500);
    await waitForDestination(page, 'ii');
    await page.clock.runFor(6500);
    await waitForDestination(page, 'iii');
  });

  it('are few elements however many there are, and offer a missing one again', async () => {
    const colours = kept(publishColours(COLOURS.map((colour) => ({ ...SLIDE, colour })), '--template', 'slide', '--set', 'turnDuration=150'));
    const page = await open(thousandsOf(colours));
    for (const [key, places] of [['End', [COUNT]], ['PageUp', [COUNT - 1]], ['Home', [1]]]) {
      assert.deepEqual(await turnWith(page, () => page.keyboard.press(key)), places);
      assert.ok(await elements(page) < 400);
    }
    await loseAndFindPicture(colours, 3);
  });

  it('speak the language of the interface from right to left without turning the pages round', async () => {
    const page = await open(changed(ARABIC), { hash: '#page/4' });
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('ArrowRight')), [5]);
    assert.equal(await page.locator('#book').getAttribute('dir'), 'rtl');
  });
});

describe('pages below each other', () => {
  let report;

  before(() => {
    report = kept(publishMagazine('--template', 'scroll'));
  });

  const scrolled = (page) => page.locator('.stage').evaluate((stage) => stage.scrollTop);
  const scrollTo = (page, top) => page.locator('.stage').evaluate((stage, to) => { stage.scrollTop = to; }, top);
  const settledAt = (page, place) => page.waitForFunction((hash) => location.hash === hash, `#page/${place}`);
  const topOf = (page, place) => page.locator(`.page[data-place="${place}"]`).evaluate((each) => each.getBoundingClientRect().top - document.querySelector('.stage').getBoundingClientRect().top);

  it('are scrolled, and what is in view is the place', async () => {
    const page = await open(report);
    assert.equal(await destination(page), 'Cover');
    const entries = await page.evaluate(() => history.length);
    await page.mouse.move(640, 400);
    await page.mouse.wheel(0, 3900);
    await settledAt(page, 4);
    assert.equal(await destination(page), '4');
    assert.equal(await page.locator('.range').inputValue(), '4');
    assert.equal(await page.getByRole('status').textContent(), 'Page 4 of 16');
    assert.equal(await page.evaluate(() => history.length), entries, 'scrolling leaves no trace');
    await scrollTo(page, 1e9);
    await settledAt(page, 16);
    assert.deepEqual(page.troubles, []);
  });

  it('have no fault that axe finds', () => findNoFaults(report));

  it('are jumped to at once, and the back button undoes that', async () => {
    const page = await open(report, { hash: '#page/3' });
    await page.getByRole('button', { name: 'Contents' }).click();
    await page.locator('.contents a[href="#page/10"]').first().click();
    await settledAt(page, 10);
    assert.ok(Math.abs(await topOf(page, 10)) < 30);
    await page.waitForFunction(() => document.activeElement.dataset.place === '10');
    await page.goBack();
    await settledAt(page, 3);
    assert.ok(Math.abs(await topOf(page, 3)) < 30);
    const field = page.getByRole('textbox', { name: 'Page number' });
    await field.fill('16');
    await field.press('Enter');
    await settledAt(page, 16);
  });

  it('bring what was searched for into view, on the open page too', async () => {
    const page = await open(report, { hash: '#page/5' });
    await page.keyboard.press('/');
    await page.keyboard.type('leaf');
    for (const hit of [4, 6, 9]) {
      await page.locator('.hits button').nth(hit).click();
      const box = await page.locator('.mark.chosen').first().boundingBox();
      assert.ok(box.y > 52 && box.y < 750, `hit ${hit}`);
    }
  });

  it('are scrolled by keys, wherever the focus is', async () => {
    const page = await open(report);
    for (const focus of [() => {}, () => page.locator('.stage').focus(), () => page.getByRole('button', { name: 'Share' }).focus()]) {
      await scrollTo(page, 0);
      await focus();
      let before = await scrolled(page);
      for (const key of ['PageDown', 'ArrowDown']) {
        await page.keyboard.press(key);
        await page.waitForFunction((top) => document.querySelector('.stage').scrollTop > top, before);
        before = await scrolled(page);
      }
    }
    await page.keyboard.press('End');
    await settledAt(page, 16);
    assert.equal(await page.getByRole('group', { name: 'Pages of the book' }).count(), 1);
  });

  it('grow wider about the middle or the fingers, sharply, and scroll both ways then', async () => {
    const { page, fingers } = await openWithFingers(report, { hash: '#page/5' });
    const before = await topOf(page, 5);
    await fingers.down([360, 500], [460, 500]);
    await fingers.along([[360, 500], [460, 500]], [[310, 500], [510, 500]]);
    await fingers.up();
    const { scale } = await zoomOf(page);
    assert.ok(Math.abs(scale - 2) < 0.05);
    // The stage begins below the bar.
    const finger = 500 - (await page.locator('.stage').boundingBox()).y;
    assert.ok(Math.abs(await topOf(page, 5) - (finger - (finger - before) * scale)) < 3, 'what lay under the fingers stays there');
    await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
    assert.ok(await page.locator('.stage').evaluate((stage) => stage.scrollWidth > stage.clientWidth * 1.9));
    await page.getByRole('button', { name: 'More tools' }).click();
    await page.getByRole('button', { name: 'Fit to window' }).click();
    assert.equal((await zoomOf(page)).scale, 1);
  });

  it('do what their settings say', async () => {
    const widthOfPage = async (page) => Math.round((await page.locator('.page').first().boundingBox()).width);
    const afterKey = async (page) => {
      await page.keyboard.press('End');
      return destination(page);
    };
    await findSettingsDo(report, [
      [{ readingWidth: 600 }, widthOfPage, 900, 600],
      [{ readingWidth: 0 }, widthOfPage, 900, 1280 - 2 * 16],
      [{ keyboardControl: 'NO' }, afterKey, 'Back', 'Cover'],
      [{ pageShadow: 'NO', toolBarVisible: 'NO' }, counts('.shadowed', '.bar'), [1, 1], [0, 0]],
    ]);
  });

  it('keep their place when the window changes', async () => {
    const page = await open(report);
    await scrollTo(page, 5500);
    await settledAt(page, 5);
    await page.setViewportSize({ width: 500, height: 900 });
    await page.waitForFunction(() => document.querySelector('.stage').scrollTop < 4000);
    assert.equal(await destination(page), '5');
    const isWithin = await page.locator('.stage').evaluate((stage) => stage.scrollWidth <= stage.clientWidth);
    assert.ok(isWithin, 'nothing to scroll sideways');
  });

  it('are few elements however many there are, and offer a missing one again', async () => {
    const colours = kept(publishColours(COLOURS.map((colour) => ({ ...SLIDE, colour })), '--template', 'scroll'));
    const page = await open(thousandsOf(colours));
    for (const place of [1, 2500, COUNT]) {
      const field = page.getByRole('textbox', { name: 'Page number' });
      await field.fill(String(place));
      await field.press('Enter');
      await settledAt(page, place);
      await page.locator(`.side[data-drawn="${place}"]`).waitFor();
      assert.ok(await elements(page) < 400);
      assert.ok(await page.locator('.side').count() < 9);
    }
    for (let top = 0; top < 4e5; top += 9000) await scrollTo(page, top);
    await openPages(page);
    assert.ok(await page.locator('.side').count() < 9);
    for (let step = 0; step < 6; step++) await page.keyboard.press('+');
    assert.ok(await page.locator('.stage').evaluate((stage) => stage.scrollHeight) <= 16e6);
    assert.deepEqual(page.troubles, []);
    await loseAndFindPicture(colours, 3);
  });

  it('take the focus along to a page that is jumped to', async () => {
    const page = await open(report);
    await page.getByRole('link', { name: 'Skip to the pages' }).focus();
    await page.keyboard.press('Enter');
    assert.equal(await focusedName(page), 'Page Cover');
    await page.getByRole('slider').focus();
    await page.locator('.stage').evaluate((stage) => stage.focus());
    await page.keyboard.press('/');
    await page.keyboard.press('Escape');
    assert.equal(await focusedName(page), 'Pages of the book');
  });
});
