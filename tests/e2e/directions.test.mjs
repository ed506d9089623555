// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { fingersOn } from './fingers.mjs';
import { openBook, openPages, publishMagazine, removeBook, turnWith } from './support.mjs';

const LEFT_TO_RIGHT = { rightToLeft: 'NO', onSide: 1, keyOn: 'ArrowRight', keyBack: 'ArrowLeft' };
const RIGHT_TO_LEFT = { rightToLeft: 'YES', onSide: -1, keyOn: 'ArrowLeft', keyBack: 'ArrowRight' };

/** Each goes on (step 1) or back (step -1). `at` takes points with the end of the book at 1 and its start at 0. */
const WAYS = {
  arrows: ({ page, direction }, step) => page.keyboard.press(step > 0 ? direction.keyOn : direction.keyBack),
  'page keys': ({ page }, step) => page.keyboard.press(step > 0 ? 'PageDown' : 'PageUp'),
  buttons: ({ page }, step) => page.getByRole('button', { name: step > 0 ? 'Next page' : 'Previous page' }).click(),
  'clicks on an edge': ({ page, at }, step) => page.mouse.click(...at(step > 0 ? 0.97 : 0.03)),
  wheel: async ({ page, at }, step) => {
    await page.mouse.move(...at(0.5));
    await page.mouse.wheel(0, 300 * step);
  },
  swipes: ({ fingers, at }, step) => (step > 0 ? fingers.stroke(at(0.8), at(0.3)) : fingers.stroke(at(0.2), at(0.7))),
  'drags of a corner': async ({ page, at }, step) => {
    await page.mouse.move(...at(step > 0 ? 0.98 : 0.02));
    await page.mouse.down();
    await page.mouse.move(...at(step > 0 ? 0.05 : 0.95), { steps: 6 });
    await page.mouse.up();
  },
  slider: async ({ page, direction }, step) => {
    await page.getByRole('slider').focus();
    await page.keyboard.press(step > 0 ? direction.keyOn : direction.keyBack);
  },
};

for (const [name, direction] of Object.entries({ 'left to right': LEFT_TO_RIGHT, 'right to left': RIGHT_TO_LEFT }))
  describe(`a book read from ${name}`, () => {
    const { onSide } = direction;
    let browser, book, page, at, fingers;

    before(async () => {
      book = publishMagazine('--set', 'turnDuration=150', '--set', `rightToLeft=${direction.rightToLeft}`);
      browser = await launchBrowser();
      page = await openBook(browser, book, { hasTouch: true, hash: '#page/4' });
      await openPages(page);
      fingers = await fingersOn(page);
      const boxes = await Promise.all((await page.locator('.side').all()).map((side) => side.boundingBox()));
      const hinge = Math.max(...boxes.map(({ x }) => x));
      const { width, y, height } = boxes[0];
      at = (along) => [hinge + (2 * along - 1) * width * onSide, y + height * 0.45];
    });

    after(async () => {
      await browser?.close();
      if (book) removeBook(book);
    });

    for (const [way, go] of Object.entries(WAYS))
      it(`goes on and back by ${way}`, async () => {
        const hand = { page, at, fingers, direction };
        assert.deepEqual(await turnWith(page, () => go(hand, 1)), [6, 7]);
        assert.deepEqual(await turnWith(page, () => go(hand, -1)), [4, 5]);
      });

    const middleOf = async (locator) => {
      const { x, width } = await locator.boundingBox();
      return x + width / 2;
    };
    const isOnSide = async (locator, other) => Math.sign((await middleOf(locator)) - (await middleOf(other))) === onSide;

    it('lays its pages, buttons and edges on the side where they belong', async () => {
      const place = (number) => page.locator(`.page[data-place="${number}"]`);
      assert.ok(await isOnSide(place(5), place(4)), 'the second page lies farther on');
      assert.ok(await isOnSide(page.locator('.next'), page.locator('.previous')));
      assert.ok(await isOnSide(page.locator('.edge.end'), page.locator('.edge.start')));
    });

    it('has its ends at the ends of the slider, and its covers in the middle with the other pages on one side', async () => {
      const tap = async (isEnd) => {
        const { x, y, width, height } = await page.getByRole('slider').boundingBox();
        await page.mouse.click(x + (isEnd === (onSide > 0) ? width - 3 : 3), y + height / 2);
      };
      const stage = page.locator('.stage');
      for (const [isEnd, place] of [[true, 16], [false, 1]]) {
        assert.deepEqual(await turnWith(page, () => tap(isEnd)), [place]);
        await page.waitForFunction(() => document.querySelector('.sheet').getAnimations().length === 0);
        assert.ok(Math.abs((await middleOf(page.locator('.page'))) - (await middleOf(stage))) < 2);
        const edge = page.locator('.edge:not([hidden])');
        assert.equal(await edge.count(), 1);
        assert.equal(Math.sign((await middleOf(edge)) - (await middleOf(page.locator('.page')))), isEnd ? -onSide : onSide);
      }
      assert.deepEqual(page.troubles, []);
    });
  });
