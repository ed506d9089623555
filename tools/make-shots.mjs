// SPDX-License-Identifier: MIT
// Takes the picture of each style that the template chooser shows, and the one of the README, from
// real books: publishes a sample in every style with the program that LEAFCAST names. Arguments are the
// templates to do; without any, all.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { launchBrowser } from './browser.mjs';
import { deck } from './templates/art/deck.mjs';
import { TEMPLATES } from './templates/templates.mjs';

const STYLES = fileURLToPath(new URL('../resources/AppFiles/Styles/', import.meta.url));
const MAGAZINE = fileURLToPath(new URL('../samples/magazine.pdf', import.meta.url));
const PROGRAM = process.env.LEAFCAST || fileURLToPath(new URL('../build/headless/bin/leafcast', import.meta.url));
const README_PICTURE = fileURLToPath(new URL('../docs/images/book.jpg', import.meta.url));
const README_STYLE = 'Wall-line';
const README_WINDOW = { width: 1280, height: 800 };
const WINDOW = { width: 1024, height: 640 };
const SHOT_WIDTH = 640;
/** The page that shows most of a style. */
const PLACES = { float: 4, slide: 2, scroll: 5 };

async function shoot(browser, book, file, place, viewport = WINDOW, deviceScaleFactor = SHOT_WIDTH / WINDOW.width) {
  const page = await browser.newPage({ viewport, deviceScaleFactor, reducedMotion: 'reduce' });
  await page.goto(`${pathToFileURL(join(book, 'index.html'))}#page/${place}`);
  await page.waitForFunction(() => {
    const sides = [...document.querySelectorAll('.side:not([hidden])')];
    return sides.length > 0 && sides.every((side) => side.dataset.drawn);
  });
  await page.waitForLoadState('networkidle');
  await page.screenshot({ path: file, type: 'jpeg', quality: 86 });
  await page.close();
}

/** The magazine, or for slides a deck. */
async function documentFor(template, browser, folder) {
  if (template !== 'slide') return MAGAZINE;
  const file = join(folder, 'deck.pdf');
  const page = await browser.newPage();
  await page.setContent(deck);
  await page.pdf({ path: file, preferCSSPageSize: true, printBackground: true });
  await page.close();
  return file;
}

async function shootStyles(template, browser, folder) {
  const document = await documentFor(template, browser, folder);
  for (const style of readdirSync(STYLES + template)) {
    const book = join(folder, template, style);
    execFileSync(PROGRAM, ['publish', document, book, '--template', template, '--style', style], { stdio: 'inherit' });
    await shoot(browser, book, join(STYLES, template, style, 'shot.jpg'), PLACES[template]);
    if (template === 'float' && style === README_STYLE) await shoot(browser, book, README_PICTURE, PLACES.float, README_WINDOW, 1);
  }
}

const wanted = process.argv.slice(2);
const folder = mkdtempSync(join(tmpdir(), 'shots-'));
const browser = await launchBrowser();
try {
  for (const { name } of TEMPLATES) if (wanted.length === 0 || wanted.includes(name)) await shootStyles(name, browser, folder);
} finally {
  await browser.close();
  rmSync(folder, { recursive: true });
}
