// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { cpSync, mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, symlinkSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { colourPdf } from './colourPdf.mjs';

export const pathOf = (name) => fileURLToPath(new URL(`../../${name}`, import.meta.url));

/** Where the program that LEAFCAST names finds its templates. */
export const RESOURCES = process.env.LEAFCAST_RESOURCES || join(dirname(process.env.LEAFCAST ?? ''), '../share/leafcast');

/** Publishes the sample magazine with the program that LEAFCAST names; returns the book's folder. */
export const publishMagazine = (...options) => publish(pathOf('samples/magazine.pdf'), newBookFolder(), options);

/** Publishes pages of one colour each, as colourPdf() takes them. */
export function publishColours(pages, ...options) {
  const folder = newBookFolder();
  const document = join(folder, '../colours.pdf');
  writeFileSync(document, colourPdf(pages), 'latin1');
  return publish(document, folder, options);
}

const newBookFolder = () => join(mkdtempSync(join(tmpdir(), 'leafcast-e2e-')), 'book');

function publish(document, folder, options) {
  const program = process.env.LEAFCAST;
  if (!program) throw new Error('LEAFCAST must name the leafcast program that is to be tested.');
  const run = spawnSync(program, ['publish', document, folder, ...options], { encoding: 'utf8' });
  if (run.status !== 0) throw new Error(`leafcast publish ended with ${run.status ?? run.error}: ${run.stderr}`);
  return folder;
}

export const removeBook = (folder) => rmSync(join(folder, '..'), { recursive: true, force: true });

/** A copy of a book in which `files` { path: text } are replaced and `removed` paths are missing. */
export function changedBook(book, { files = {}, removed = [] }) {
  const folder = join(mkdtempSync(join(tmpdir(), 'leafcast-e2e-')), 'book');
  cpSync(book, folder, { recursive: true });
  for (const [path, text] of Object.entries(files)) writeFileSync(join(folder, path), text);
  for (const path of removed) rmSync(join(folder, path));
  return folder;
}

/** The book's script with other settings, as the property editor would write them. */
export function scriptWith(book, settings) {
  const script = readFileSync(join(book, 'javascript/main.js'), 'utf8');
  const start = script.lastIndexOf('var bookConfig = ');
  return Object.entries(settings).reduce((text, [key, value]) => {
    const entry = new RegExp(`([{,]${key}:)("[^"]*"|[^",]*)(?=,)`);
    if (!entry.test(text)) throw new Error(`The book's script has no setting ${key}.`);
    return text.replace(entry, `$1${JSON.stringify(value)}`);
  }, script.slice(start)).replace(/^/, () => script.slice(0, start));
}

/** The same book with other settings; everything but its script is the book's own. */
export function variantOf(book, settings) {
  const folder = join(mkdtempSync(join(tmpdir(), 'leafcast-e2e-')), 'book');
  mkdirSync(join(folder, 'javascript'), { recursive: true });
  for (const name of readdirSync(book)) if (name !== 'javascript') symlinkSync(join(book, name), join(folder, name));
  writeFileSync(join(folder, 'javascript/main.js'), scriptWith(book, settings));
  return folder;
}

/** Opens a book from its folder. */
export const openBook = (browser, folder, options) => openBookAt(browser, pathToFileURL(folder).href + '/', options);

/** Opens the book at an address that ends with a slash, and collects its troubles. */
export async function openBookAt(browser, home, { width = 1280, height = 800, hash = '', ...context } = {}) {
  const page = await browser.newPage({ viewport: { width, height }, ...context });
  collectTroubles(page, home);
  await page.goto(`${home}index.html${hash}`);
  return page;
}

/** `page.troubles` gets errors, failed requests and requests that leave the book. */
export function collectTroubles(page, home) {
  page.troubles = [];
  page.on('console', (message) => message.type() === 'error' && page.troubles.push(message.text()));
  page.on('pageerror', (error) => page.troubles.push(error.message));
  page.on('requestfailed', (request) => {
    // A jump gives up the pictures that were under way.
    const { errorText } = request.failure();
    if (!/_ABORTED$/.test(errorText)) page.troubles.push(`${errorText}: ${request.url()}`);
  });
  page.on('response', (response) => response.status() >= 400 && page.troubles.push(`${response.status()}: ${response.url()}`));
  page.on('request', (request) => {
    if (!/^(data|blob):/.test(request.url()) && !request.url().startsWith(home)) page.troubles.push(`foreign: ${request.url()}`);
  });
}

/** The places of the pages that lie open with their pictures drawn, once no leaf moves any more. */
export async function openPages(page) {
  const open = await page.waitForFunction(() => {
    const shown = [...document.querySelectorAll('.page')].map((each) => each.dataset.place);
    const drawn = [...document.querySelectorAll('.side:not([hidden])')].map((side) => side.dataset.drawn);
    const isStill = document.querySelector('.air')?.hidden ?? !document.querySelector('.sheet.moving');
    return isStill && shown.length > 0 && shown.every((place) => drawn.includes(place)) && shown.map(Number);
  });
  return open.jsonValue();
}

/** Does what turns pages; answers the places that lie open once other ones do. */
export async function turnWith(page, press) {
  const before = await openPages(page);
  await press();
  await page.waitForFunction((old) => {
    const shown = [...document.querySelectorAll('.page')].map((each) => Number(each.dataset.place));
    const isStill = document.querySelector('.air')?.hidden ?? !document.querySelector('.sheet.moving');
    return isStill && shown.join() !== old;
  }, before.join());
  return openPages(page);
}

/** Whether nothing turns, also in the frames that follow. */
export async function stays(page, places) {
  await page.evaluate(() => new Promise((resolve) => requestAnimationFrame(() => requestAnimationFrame(resolve))));
  assert.deepEqual(await openPages(page), places);
}

/** What the page field says: the pages that will lie open once all leaves have landed. */
export const destination = (page) => page.locator('.page-field .field').inputValue();

export const waitForDestination = (page, pages) =>
  page.waitForFunction((wanted) => document.querySelector('.page-field .field').value === wanted, pages);

/** How the sheet is zoomed: what is laid out at p is seen at p * scale + (x, y). */
export const zoomOf = (page) =>
  page.locator('.sheet').evaluate((sheet) => {
    const { a, e, f } = new DOMMatrix(getComputedStyle(sheet).transform);
    return { scale: a, x: e, y: f };
  });

/** The colour of a pixel of the window, as [red, green, blue]. */
export async function colourAt(page, x, y) {
  const picture = await page.screenshot({ clip: { x, y, width: 1, height: 1 } });
  return page.evaluate(async (base64) => {
    const bytes = Uint8Array.from(atob(base64), (each) => each.charCodeAt(0));
    const canvas = new OffscreenCanvas(1, 1).getContext('2d');
    canvas.drawImage(await createImageBitmap(new Blob([bytes])), 0, 0);
    return [...canvas.getImageData(0, 0, 1, 1).data.slice(0, 3)];
  }, picture.toString('base64'));
}
