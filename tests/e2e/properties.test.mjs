// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { after, afterEach, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { TEMPLATES } from '../../tools/templates/templates.mjs';
import { colourAt, destination, openBook, openPages, publishMagazine, removeBook, variantOf } from './support.mjs';

const TITLE = 'Hornbeam No. 7: Trees, leaves and things made by hand';

const styles = (selector, name) => (page) => page.locator(selector).evaluateAll((nodes, key) => nodes.map((node) => getComputedStyle(node)[key]), name);
const attributes = (selector, name) => (page) => page.locator(selector).evaluateAll((nodes, key) => nodes.map((node) => node.getAttribute(key)), name);
const count = (selector) => (page) => page.locator(selector).filter({ visible: true }).count();
const press = (key) => (page) => page.keyboard.press(key);
const click = (name) => (page) => page.getByRole('button', { name, exact: true }).click();
/** One after the other; what the last one sees. */
const inTurn = (...steps) => async (page) => {
  let seen;
  for (const step of steps) seen = await step(page);
  return seen;
};
const pressed = (key) => inTurn(press(key), destination);

async function shape(page) {
  const { width, height } = await page.locator('.page').boundingBox();
  return Math.round((width / height) * 100) / 100;
}

async function turnWheel(page) {
  await page.evaluate(() => { window.wheel = new Promise((resolve) => addEventListener('wheel', resolve, { once: true })); });
  await page.mouse.move(640, 400);
  await page.mouse.wheel(0, 240);
  await page.evaluate(() => window.wheel);
}

const stopClock = (page) => page.clock.install();
const runClock = (milliseconds) => (page) => page.clock.runFor(milliseconds);
const isStill = (page) => page.locator('.air').isHidden();

const colourAboveAWidePage = (page) => colourAt(page, 640, 100);

/** What is seen of a cover that is held in mid-turn, once it hangs still. */
async function heldCover(page) {
  const { x, y, width, height } = await page.locator('.page').boundingBox();
  await page.mouse.move(x + width - 8, y + height - 8);
  await page.mouse.down();
  await page.mouse.move(x + width * 0.2, y + height * 0.7, { steps: 8 });
  for (let seen = '', now; ; seen = now) {
    now = (await page.screenshot()).toString('base64');
    if (now === seen) return now;
  }
}

async function reopen(page) {
  await page.keyboard.press('End');
  await openPages(page);
  await page.waitForFunction(() => location.hash === '#page/16');
  const [address] = page.url().split('#');
  await page.goto('about:blank');
  await page.goto(address);
}

const focusPage = (page) => page.locator('.page').first().focus();
const ringOfFocus = (page) => page.evaluate(() => getComputedStyle(document.activeElement).outlineColor);
const sharedAddress = inTurn(click('Share'), (page) => page.locator('dialog .field').first().inputValue());
const rustles = (page) => page.evaluate(() => window.rustles);
/** The book of an interface from right to left goes on to the right all the same. */
const lieOfInterface = (page) => page.evaluate(() => {
  const { left } = document.querySelector('.next').getBoundingClientRect();
  return `${getComputedStyle(document.querySelector('.bar')).direction}, on to the ${left > innerWidth / 2 ? 'right' : 'left'}`;
});
const keysShown = (page) => page.locator('dialog kbd').allTextContents();
const heading = (page) => page.getByRole('heading', { level: 1 }).textContent();

const LOGO = 'files/page/2.jpg';
const NO_PICTURES = { readerData: 'NO', largePageWidth: 0, largePageHeight: 0, pageWidth: 900, pageHeight: 1200 };
const [BAR, INK] = ['rgb(247, 244, 237)', 'rgb(74, 68, 58)'];

const coloursOf = (selector) => [
  ['toolBarColor', '#405060', styles(selector, 'backgroundColor'), BAR, 'rgb(64, 80, 96)'],
  ['toolBarTextColor', '#a0b0c0', styles(selector, 'color'), INK, 'rgb(160, 176, 192)'],
];

/** Key, value, what is looked at, what that is without the value, and with it. All of them are set at once. */
const IN_THE_BOOK = [
  ['bookTitle', 'Herbst', heading, TITLE, 'Herbst'],
  ['pageEdges', 'NO', count('.edge'), 2, 0],
  ['pageShadow', 'NO', styles('.side[data-drawn="12"]', 'boxShadow'), /px/, 'none'],
  ['backgroundColor', '#102030', styles('.leafcast', 'backgroundColor'), 'rgb(230, 225, 214)', 'rgb(16, 32, 48)'],
  ['bgImageURL', LOGO, styles('.leafcast', 'backgroundImage'), /files\/extfile\/bgImageURL\.png/, /files\/page\/2\.jpg/],
  ['bgImagePosition', 'Fill', styles('.leafcast', 'backgroundSize'), 'auto', 'cover'],
  ...['.bar', '.foot'].flatMap(coloursOf),
  ['LogoFile', LOGO, styles('.bar .logo img', 'height'), '', '36px'],
  ['LogoFile', LOGO, attributes('.bar .logo img', 'src'), '', LOGO],
  ['appLogoLinkURL', 'http://www.example.org', attributes('.bar a.logo', 'href'), '', 'http://www.example.org'],
  ['OpenWindow', '_self', attributes('.bar a.logo', 'target'), '', '_self'],
  ['OpenWindow', '_self', attributes('.link[href^=http]', 'target'), '_blank', '_self'],
  ['languageSetting', 'Arabic', attributes('html', 'lang'), 'fr', 'ar'],
];
const BESIDE_THE_BOOK = [
  ...coloursOf('.next'),
  ['languageSetting', 'Arabic', lieOfInterface, 'ltr, on to the right', 'rtl, on to the right'],
];
const AT_THE_COVER = [
  ['coverAlone', 'NO', destination, 'Cover', 'Cover–ii'],
  ['bgImagePosition', 'Center', styles('.leafcast', 'backgroundRepeat'), 'repeat', 'no-repeat'],
  ['keyboardControl', 'NO', count('.tool[title="Keys"]'), 1, 0],
];

/** The same, one by one; then what else is set, and how the book is opened. */
const BY_DEEDS = [
  ['pageWidth', 600, shape, 0.75, 0.5, NO_PICTURES],
  ['pageHeight', 900, shape, 0.75, 1, NO_PICTURES],
  ['viewMode', 'Single', pressed('ArrowRight'), 'ii–iii', 'ii'],
  ['viewMode', 'Double', pressed('ArrowRight'), 'ii', 'ii–iii', {}, { width: 768, height: 1024 }],
  ['hardCover', 'YES', heldCover],
  ['rightToLeft', 'YES', pressed('ArrowLeft'), 'Cover', 'ii–iii'],
  ['pageColor', '#123456', colourAboveAWidePage, '255,255,255', '18,52,86', { viewMode: 'Single' }, { hash: '#page/9' }],
  ['toolBarVisible', 'NO', count('.bar'), 1, 0],
  ['keyboardControl', 'NO', pressed('ArrowRight'), 'ii–iii', 'Cover'],
  ['searchVisible', 'NO', inTurn(press('?'), keysShown), /\//, /^[^/]*$/],
  ['wheelTurns', 'NO', inTurn(turnWheel, destination), 'ii–iii', 'Cover'],
  ['turnDuration', 3000, inTurn(stopClock, press('ArrowRight'), runClock(1200), isStill), true, false],
  ['rememberLastPage', 'NO', inTurn(reopen, openPages, destination), 'Back', 'Cover'],
  ['autoTurnSeconds', 20, inTurn(stopClock, click('Turn pages automatically'), runClock(8000), destination), 'ii–iii', 'Cover'],
  ['turnSound', 'YES', inTurn(press('ArrowRight'), rustles), 0, 1, { soundVisible: 'NO' }],
  ['linkColor', '#ff0000', inTurn(focusPage, press('Tab'), ringOfFocus), 'rgb(176, 103, 42)', 'rgb(255, 0, 0)', {}, { hash: '#page/2' }],
  ['shareURL', 'https://www.example.org/book/', sharedAddress, /^file:/, 'https://www.example.org/book/#page/1'],
  ['readerData', 'NO', count('.link'), 18, 0, {}, { hash: '#page/2' }],
];

const CONTROLS = {
  turnButtonsVisible: ['button', 'Next page'], pageFieldVisible: ['textbox', 'Page number'], sliderVisible: ['slider', 'Place in the book'],
  thumbnailsVisible: ['button', 'Page overview'], contentsVisible: ['button', 'Contents'], searchVisible: ['button', 'Search'],
  textViewVisible: ['button', 'Text of the book'], zoomVisible: ['button', 'Zoom in'], viewModeVisible: ['button', 'View: automatic'],
  printVisible: ['button', 'Print'], shareVisible: ['button', 'Share'], autoTurnVisible: ['button', 'Turn pages automatically'],
  soundVisible: ['button', 'Sound of turning pages'], motionVisible: ['button', 'Less motion'], helpVisible: ['button', 'Keys'],
  fullScreenButtonVisible: ['button', 'Full screen'],
};

/** What a page that is on its way looks like, at its lower left. */
async function colourOfALatePage(page) {
  await page.evaluate(() => {
    window.decode = createImageBitmap;
    window.createImageBitmap = () => new Promise(() => {});
  });
  await page.keyboard.press('End');
  await page.waitForFunction(() => location.hash === '#page/16' && !document.querySelector('.moving'));
  await page.evaluate(() => { window.createImageBitmap = window.decode; });
  const { x, y, height } = await page.locator('.page[data-place="16"]').boundingBox();
  return colourAt(page, x + 12, y + height - 12);
}

/** Properties of the other views that their own tests look at. */
const IN_TESTS_OF_VIEWS = {
  slide: ['slideEffect', 'dotsVisible', 'rightToLeft', 'wheelTurns', 'turnDuration', 'keyboardControl', 'toolBarVisible'],
  scroll: ['readingWidth', 'keyboardControl', 'toolBarVisible'],
};
/** As for "float", with what is to be seen where views differ. */
const DEEDS_IN_VIEWS = ['pageWidth', 'pageHeight', 'rememberLastPage', 'autoTurnSeconds', 'linkColor', 'shareURL', 'readerData'];
const PAPER_IN_VIEWS = ['pageColor', '#123456', colourOfALatePage, '255,255,255', '18,52,86'];

function expect(seen, expected, key) {
  if (expected instanceof RegExp) assert.match(String(seen), expected, key);
  else assert.equal(String(seen), String(expected), key);
}

const leavesOf = (properties) => properties.flatMap(({ key, children }) => (children ? leavesOf(children) : [key]));
const keysOf = (template) => leavesOf(TEMPLATES.find(({ name }) => name === template).properties);

let browser, book;
const books = [];

before(async () => {
  browser = await launchBrowser();
});

afterEach(() => Promise.all(browser.contexts().map((context) => context.close())));

after(async () => {
  await browser?.close();
  books.forEach(removeBook);
});

function publishBook(...options) {
  book = publishMagazine(...options);
  books.push(book);
}

async function see(look, settings, { width = 1280, height = 800, hash, locale } = {}) {
  books.push(variantOf(book, settings));
  const context = await browser.newContext({ viewport: { width, height }, locale });
  await context.addInitScript(() => {
    window.rustles = 0;
    AudioBufferSourceNode.prototype.start = () => window.rustles++;
  });
  const page = await openBook(context, books.at(-1), { hash });
  if (settings.largePageWidth !== 0) await openPages(page);
  const seen = await look(page);
  assert.deepEqual(page.troubles, []);
  return seen;
}

const lookAtAll = (rows) => async (page) => {
  const seen = [];
  for (const [, , look] of rows) seen.push(await look(page));
  return seen;
};

const countControls = (controls) => async (page) => {
  const found = controls.map(async ([key, [role, name]]) => [key, await page.getByRole(role, { name }).count()]);
  return Object.fromEntries(await Promise.all(found));
};

async function findControlsAreSwitched(controls) {
  const each = (value) => Object.fromEntries(controls.map(([key]) => [key, value]));
  assert.deepEqual(await see(countControls(controls), each('YES')), each(1));
  assert.deepEqual(await see(countControls(controls), each('NO')), each(0));
}

describe('each property of the template float does what it says:', () => {
  before(() => publishBook('--style', 'Wall-line'));

  const atRest = { 'what is seen in the book': [[...IN_THE_BOOK, ...BESIDE_THE_BOOK], { hash: '#page/12', locale: 'fr-CA' }], 'what is seen at the cover': [AT_THE_COVER, {}] };
  for (const [name, [rows, options]] of Object.entries(atRest))
    it(name, async () => {
      const [before, changed] = [await see(lookAtAll(rows), {}, options), await see(lookAtAll(rows), Object.fromEntries(rows), options)];
      for (const [index, [key, , , without, with_]] of rows.entries()) {
        expect(before[index], without, key);
        expect(changed[index], with_, key);
      }
    });

  for (const [key, value, look, without, with_, given = {}, options = {}] of BY_DEEDS)
    it(`${key} ${value}`, async () => {
      const [before, changed] = [await see(look, given, options), await see(look, { ...given, [key]: value }, options)];
      if (without === undefined) return assert.ok(before !== changed, 'the same is seen with it and without');
      expect(before, without);
      expect(changed, with_);
    });

  it('every control is shown until it is switched off', async () => {
    const controls = Object.entries(CONTROLS);
    assert.deepEqual(await see(countControls(controls), {}), Object.fromEntries(controls.map(([key]) => [key, 1])));
    await findControlsAreSwitched(controls);
  });

  it('none is left out here', () => {
    const looked = new Set([...IN_THE_BOOK, ...AT_THE_COVER, ...BY_DEEDS].map(([key]) => key).concat(Object.keys(CONTROLS)));
    assert.deepEqual(keysOf('float').filter((key) => !looked.has(key)), []);
  });
});

for (const template of ['slide', 'scroll'])
  describe(`each property of the template ${template} does what it says:`, () => {
    const has = ([key]) => keysOf(template).includes(key);
    const atRest = [...IN_THE_BOOK, ...(template === 'slide' ? BESIDE_THE_BOOK : [])].filter(has);
    const deeds = [...BY_DEEDS.filter(([key]) => DEEDS_IN_VIEWS.includes(key)), PAPER_IN_VIEWS].filter(has);
    const controls = Object.entries(CONTROLS).filter(has);

    before(() => publishBook('--template', template));

    it('what is seen in the book', async () => {
      const options = { hash: '#page/12', locale: 'fr-CA' };
      const settings = Object.fromEntries(atRest);
      const [before, changed] = [await see(lookAtAll(atRest), {}, options), await see(lookAtAll(atRest), settings, options)];
      for (const [index, [key, , , , with_]] of atRest.entries()) {
        assert.notEqual(String(changed[index]), String(before[index]), key);
        expect(changed[index], with_, key);
      }
    });

    for (const [key, value, look, , with_, given = {}, options = {}] of deeds)
      it(`${key} ${value}`, async () => {
        const [before, changed] = [await see(look, given, options), await see(look, { ...given, [key]: value }, options)];
        assert.notEqual(String(changed), String(before));
        expect(changed, with_);
      });

    it('every control can be switched off', () => findControlsAreSwitched(controls));

    it('none is left out here or in the tests of the views', () => {
      const looked = [...atRest, ...deeds, ...controls].map(([key]) => key).concat(IN_TESTS_OF_VIEWS[template]);
      assert.deepEqual(keysOf(template).filter((key) => !looked.includes(key)), []);
    });
  });
