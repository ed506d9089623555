// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { doubleClick, fingersOn } from './fingers.mjs';
import {
  changedBook, destination, openBook, openPages, publishMagazine, removeBook, scriptWith, stays, turnWith,
  waitForDestination, zoomOf,
} from './support.mjs';

const OPEN_AT = { hash: '#page/4' };
/** The reader data of a book whose page 7 leads to the cover wherever its outer edge is pressed. */
function linksAtTheEdge(book) {
  const data = new Function(`${readFileSync(join(book, 'files/search/book.js'), 'utf8')}; return bookData`)();
  data.pages[6].links = [{ x: 0.8, y: 0, width: 0.2, height: 1, place: 1 }];
  return `var bookData = ${JSON.stringify(data)};`;
}

const inAir = (page) => page.waitForFunction(() => !document.querySelector('.air').hidden);

describe('the book in hands', () => {
  let browser, quick, slow, linked;

  before(async () => {
    quick = publishMagazine('--set', 'turnDuration=150');
    // So slow that a leaf is still in the air whenever a test takes hold of it.
    slow = changedBook(quick, { files: { 'javascript/main.js': scriptWith(quick, { turnDuration: 60000 }) } });
    linked = changedBook(slow, { files: { 'files/search/book.js': linksAtTheEdge(slow) } });
    browser = await launchBrowser();
  });

  afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

  after(async () => {
    await browser?.close();
    [quick, slow, linked].filter(Boolean).forEach(removeBook);
  });

  async function open(book, options = OPEN_AT) {
    const page = await openBook(browser, book, options);
    await openPages(page);
    // Where the pages lie in the window, and points on them.
    const [left, right] = [await page.locator('.side').first().boundingBox(), await page.locator('.side').nth(1).boundingBox()];
    const at = (x, y) => [left.x + x * (right.x + right.width - left.x), left.y + y * left.height];
    return { page, at };
  }

  async function openWithFingers(book, options = OPEN_AT) {
    const opened = await open(book, { ...options, hasTouch: true });
    return { ...opened, fingers: await fingersOn(opened.page) };
  }

  describe('a mouse', () => {
    const drag = async (page, ...points) => {
      await page.mouse.move(...points[0]);
      await page.mouse.down();
      for (const point of points.slice(1)) await page.mouse.move(...point, { steps: 4 });
    };

    it('drags a corner over, or lets it fall back', async () => {
      const { page, at } = await open(quick);
      await drag(page, at(0.98, 0.98), at(0.9, 0.9), at(0.98, 0.95));
      await inAir(page);
      await page.mouse.up();
      assert.deepEqual(await openPages(page), [4, 5]);
      const over = async (...points) => {
        await drag(page, ...points);
        await page.mouse.up();
      };
      assert.deepEqual(await turnWith(page, () => over(at(0.98, 0.98), at(0.3, 0.8), at(0.05, 0.95))), [6, 7]);
      assert.deepEqual(await turnWith(page, () => over(at(0.02, 0.5), at(0.6, 0.5), at(0.95, 0.5))), [4, 5]);
      assert.deepEqual(page.troubles, []);
    });

    it('turns by a click on an edge, zooms by a double click elsewhere and back by another', async () => {
      const { page, at } = await open(quick);
      assert.deepEqual(await turnWith(page, () => page.mouse.click(...at(0.97, 0.2))), [6, 7]);
      assert.deepEqual(await turnWith(page, () => page.mouse.click(...at(0.03, 0.2))), [4, 5]);
      await doubleClick(page, ...at(0.3, 0.5));
      assert.equal((await zoomOf(page)).scale, 2.5);
      await doubleClick(page, ...at(0.3, 0.5));
      assert.equal((await zoomOf(page)).scale, 1);
      assert.deepEqual(await openPages(page), [4, 5]);
    });

    it('turns at each of several quick clicks on an edge, and enlarges nothing beside the book', async () => {
      const { page, at } = await open(quick);
      await turnWith(page, () => page.mouse.click(...at(0.97, 0.5), { clickCount: 3, delay: 20 }));
      assert.deepEqual(await openPages(page), [9]);
      await doubleClick(page, 4, 400);
      assert.equal((await zoomOf(page)).scale, 1);
    });

    it('lets a leaf fall that was let go outside the window', async () => {
      const { page, at } = await open(quick);
      await page.mouse.move(...at(0.98, 0.5));
      await page.mouse.down();
      // No pointerup: the button went up over something else.
      await page.locator('.stage').dispatchEvent('pointermove', {
        pointerId: 1, pointerType: 'mouse', buttons: 0, clientX: at(0.5, 0.5)[0], clientY: at(0.5, 0.5)[1], bubbles: true,
      });
      await stays(page, [4, 5]);
      assert.equal(await destination(page), '4–5');
    });

    it('never presses what lies under the leaves in the air', async () => {
      const { page, at } = await open(linked);
      for (const wanted of ['6–7', '8', '9']) {
        await page.mouse.click(...at(0.97, 0.5));
        await waitForDestination(page, wanted);
        await inAir(page);
        assert.equal(await page.locator('.pages').evaluate((pages) => getComputedStyle(pages).opacity), '0');
      }
    });

    it('has turned nothing while a leaf is in the hand', async () => {
      const { page, at } = await open(slow);
      await drag(page, at(0.98, 0.5), at(0.3, 0.5));
      await inAir(page);
      await page.setViewportSize({ width: 390, height: 844 });
      await page.waitForFunction(() => document.querySelectorAll('.page').length === 1);
      assert.deepEqual(await openPages(page), [4], 'a leaf in the hand is not turned');
    });

    it('turns one page with a push of the wheel, and zooms about itself with Control', async () => {
      const { page, at } = await open(quick);
      const [x, y] = at(0.25, 0.5);
      await page.mouse.move(x, y);
      assert.deepEqual(await turnWith(page, () => page.mouse.wheel(0, 300)), [6, 7]);
      await page.keyboard.down('Control');
      await page.mouse.wheel(0, -300);
      await page.keyboard.up('Control');
      await page.waitForFunction(() => document.querySelector('.sheet').style.transform !== '');
      const zoom = await zoomOf(page);
      assert.ok(zoom.scale > 1.5);
      const stage = await page.locator('.stage').boundingBox();
      const under = (point, start, offset) => (point - start - offset) / zoom.scale;
      assert.ok(Math.abs(under(x, stage.x, zoom.x) - (x - stage.x)) < 1, 'what lies under the pointer stays there');
      assert.ok(Math.abs(under(y, stage.y, zoom.y) - (y - stage.y)) < 1);
    });
  });

  it('turns five times when a key is pressed five times quickly', async () => {
    const { page } = await open(quick, {});
    await page.evaluate(() => {
      window.seen = new Set();
      const note = () => document.querySelectorAll('.page').forEach((each) => window.seen.add(Number(each.dataset.place)));
      new MutationObserver(note).observe(document.querySelector('.pages'), { childList: true });
    });
    for (let press = 1; press <= 5; press++) await page.keyboard.press('ArrowRight');
    await waitForDestination(page, '9');
    await page.locator('.page[data-place="9"]').waitFor();
    assert.deepEqual(await openPages(page), [9]);
    const seen = await page.evaluate(() => [...window.seen]);
    assert.deepEqual([3, 5, 7, 8, 9].filter((place) => !seen.includes(place)), [], 'each leaf lays its next page open');
    for (let press = 1; press <= 2; press++) await page.keyboard.press('ArrowLeft');
    await waitForDestination(page, '6–7');
    await page.locator('.page[data-place="6"]').waitFor();
    assert.deepEqual(await openPages(page), [6, 7]);
  });

  it('takes hold of a leaf in flight, and lays it on either side', async () => {
    const { page, at } = await open(slow);
    const stroke = async (from, to) => {
      await page.mouse.move(...from);
      await page.mouse.down();
      await page.mouse.move(...to, { steps: 5 });
      await page.mouse.up();
    };
    await page.keyboard.press('ArrowRight');
    await inAir(page);
    assert.equal(await destination(page), '6–7');
    await stroke(at(0.6, 0.5), at(0.95, 0.5));
    await waitForDestination(page, '4–5');
    await stroke(at(0.95, 0.5), at(0.1, 0.5));
    await waitForDestination(page, '6–7');
    assert.equal(await page.locator('.air').isVisible(), true);
    await page.keyboard.press('ArrowLeft');
    await waitForDestination(page, '4–5');
    assert.deepEqual(page.troubles, []);
  });

  it('lands a turn at once when the window changes its shape meanwhile', async () => {
    const { page } = await open(slow);
    await page.keyboard.press('ArrowRight');
    await inAir(page);
    await page.setViewportSize({ width: 390, height: 844 });
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 1);
    assert.deepEqual(await openPages(page), [6]);
    await page.keyboard.press('ArrowLeft');
    await waitForDestination(page, '5');
  });

  it('shows the pages that come sharp when a zoomed book is turned', async () => {
    const { page } = await open(quick);
    await page.keyboard.press('+');
    await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
    await page.locator('.sharp canvas').evaluateAll((crops) => crops.forEach((crop) => crop.classList.add('old')));
    assert.deepEqual(await turnWith(page, () => page.keyboard.press('PageDown')), [6, 7]);
    await page.waitForFunction(() => document.querySelectorAll('.sharp canvas').length === 2);
    assert.equal(await page.locator('.sharp .old').count(), 0);
  });

  /** Enlarged, with sharp pictures; those that are asked for from here on do not come. */
  async function openEnlarged(book, options) {
    const opened = await open(book, { ...OPEN_AT, ...options });
    await opened.page.keyboard.press('+');
    await opened.page.locator('.sharp canvas').nth(1).waitFor({ state: 'attached' });
    await opened.page.evaluate(() => {
      const make = createImageBitmap;
      const crop = () => new Promise(() => { window.crops = (window.crops ?? 0) + 1; });
      window.createImageBitmap = (...given) => (given.length > 2 ? crop() : make(...given));
    });
    return opened;
  }

  it('never lays a sharp picture of one page over another', async () => {
    const sharp = (page) => page.locator('.sharp canvas').count();
    const faded = (await openEnlarged(quick, { reducedMotion: 'reduce' })).page;
    assert.deepEqual(await turnWith(faded, () => faded.keyboard.press('PageDown')), [6, 7]);
    assert.equal(await sharp(faded), 0);
    const { page } = await openEnlarged(quick);
    await page.getByRole('button', { name: 'View: automatic' }).click();
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 1);
    assert.equal(await sharp(page), 0);
    const turned = (await openEnlarged(slow)).page;
    await turned.clock.install();
    await turned.keyboard.press('PageDown');
    await turned.clock.runFor(100);
    await inAir(turned);
    await turned.keyboard.press('ArrowLeft');
    await turned.clock.runFor(500);
    assert.equal(await turned.evaluate(() => window.crops), undefined, 'none is made of pages below a leaf in the air');
  });

  it('keeps looking at the page that is enlarged when the window changes its shape', async () => {
    const { page } = await open(quick);
    for (let press = 0; press < 3; press++) await page.keyboard.press('+');
    for (let press = 0; press < 3; press++) await page.keyboard.press('ArrowRight');
    assert.deepEqual(await openPages(page), [4, 5]);
    await page.setViewportSize({ width: 500, height: 900 });
    await page.waitForFunction(() => document.querySelectorAll('.page').length === 1);
    assert.deepEqual(await openPages(page), [5]);
    assert.equal((await zoomOf(page)).scale, 3);
  });

  it('moves an enlarged book to what was searched for on another page', async () => {
    const { page } = await open(quick, { hash: '#page/10' });
    for (let press = 0; press < 5; press++) await page.keyboard.press('+');
    await page.keyboard.press('/');
    await page.keyboard.type('anthocyanins');
    assert.deepEqual(await turnWith(page, () => page.locator('.hits button').first().click()), [4, 5]);
    const isInSight = () => {
      const [mark, stage] = ['.mark.chosen', '.stage'].map((each) => document.querySelector(each).getBoundingClientRect());
      return mark.top >= stage.top && mark.bottom <= stage.bottom;
    };
    await page.waitForFunction(isInSight);
  });

  it('goes over a zoomed page with the arrow keys, and turns it where it ends', async () => {
    const { page } = await open(quick);
    for (let press = 0; press < 3; press++) await page.keyboard.press('+');
    const middle = await zoomOf(page);
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('ArrowRight');
    const moved = await zoomOf(page);
    assert.ok(moved.x < middle.x && moved.y < middle.y);
    assert.deepEqual(await openPages(page), [4, 5]);
    const start = await destination(page);
    for (let press = 0; press < 9 && (await destination(page)) === start; press++) await page.keyboard.press('ArrowRight');
    await page.locator('.page[data-place="6"]').waitFor();
    assert.deepEqual(await openPages(page), [6, 7]);
    assert.ok((await zoomOf(page)).x > middle.x, 'it is read on from the left');
  });

  describe('fingers', () => {
    it('turn by a tap on an edge or a swipe anywhere, and do nothing by a tap in the middle', async () => {
      const { page, at, fingers } = await openWithFingers(quick);
      assert.deepEqual(await turnWith(page, () => fingers.tap(...at(0.97, 0.5))), [6, 7]);
      assert.deepEqual(await turnWith(page, () => fingers.tap(...at(0.03, 0.5))), [4, 5]);
      await fingers.tap(...at(0.7, 0.7));
      await stays(page, [4, 5]);
      assert.deepEqual(await turnWith(page, () => fingers.stroke(at(0.7, 0.5), at(0.3, 0.52))), [6, 7]);
      assert.deepEqual(await turnWith(page, () => fingers.stroke(at(0.3, 0.5), at(0.7, 0.52))), [4, 5]);
    });

    it('turn nothing when a second one makes a pinch of a drag', async () => {
      const { page, at, fingers } = await openWithFingers(quick);
      await fingers.down(at(0.97, 0.5));
      await fingers.along([at(0.97, 0.5)], [at(0.6, 0.5)]);
      await inAir(page);
      const [first, second] = [at(0.6, 0.5), at(0.4, 0.5)];
      await fingers.down(first, second);
      await fingers.along([first, second], [at(0.75, 0.5), at(0.25, 0.5)]);
      await fingers.up();
      assert.ok((await zoomOf(page)).scale > 1.8);
      await page.locator('.sharp canvas').first().waitFor({ state: 'attached' });
      assert.deepEqual(await openPages(page), [4, 5]);
      assert.equal(await destination(page), '4–5');
    });

    it('drop the leaf where it was when the system takes them away', async () => {
      const { page, at, fingers } = await openWithFingers(quick);
      await fingers.down(at(0.97, 0.5));
      await fingers.along([at(0.97, 0.5)], [at(0.2, 0.5)]);
      await inAir(page);
      await fingers.lose();
      assert.deepEqual(await openPages(page), [4, 5]);
    });

    it('move a zoomed book, and turn it where they pull on beyond its edge', async () => {
      const { page, at, fingers } = await openWithFingers(quick);
      await page.keyboard.press('+');
      await page.keyboard.press('+');
      const middle = await zoomOf(page);
      assert.equal(middle.scale, 2);
      await fingers.stroke(at(0.7, 0.5), at(0.6, 0.4));
      const moved = await zoomOf(page);
      assert.ok(moved.x < middle.x && moved.y < middle.y);
      await fingers.stroke(at(0.95, 0.5), at(0.05, 0.5));
      assert.ok((await zoomOf(page)).x < moved.x);
      assert.equal(await destination(page), '4–5', 'reaching the edge is not going beyond it');
      assert.deepEqual(await turnWith(page, () => fingers.stroke(at(0.8, 0.5), at(0.5, 0.5))), [6, 7]);
      const turned = await zoomOf(page);
      assert.equal(turned.scale, 2);
      assert.ok(turned.x > middle.x, 'it is read on from the left');
      assert.deepEqual(await turnWith(page, () => fingers.stroke(at(0.2, 0.5), at(0.5, 0.5))), [4, 5]);
    });
  });
});
