// SPDX-License-Identifier: MIT
// Takes the picture of each style that the template chooser shows, and the one of the README, from
// real books: publishes the sample magazine in every style with the program that LEAFCAST names.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { launchBrowser } from './browser.mjs';

const STYLES = fileURLToPath(new URL('../resources/AppFiles/Styles/float/', import.meta.url));
const MAGAZINE = fileURLToPath(new URL('../samples/magazine.pdf', import.meta.url));
const PROGRAM = process.env.LEAFCAST || fileURLToPath(new URL('../build/release/bin/leafcast', import.meta.url));
const README_PICTURE = fileURLToPath(new URL('../docs/images/book.jpg', import.meta.url));
const README_STYLE = 'Wall-line';
const README_WINDOW = { width: 1280, height: 800 };
const WINDOW = { width: 1024, height: 640 };
const SHOT_WIDTH = 640;
const PLACE = 4;

async function shoot(browser, book, file, viewport = WINDOW, deviceScaleFactor = SHOT_WIDTH / WINDOW.width) {
  const page = await browser.newPage({ viewport, deviceScaleFactor, reducedMotion: 'reduce' });
  await page.goto(`${pathToFileURL(join(book, 'index.html'))}#page/${PLACE}`);
  await page.waitForFunction(() => {
    const sides = [...document.querySelectorAll('.side:not([hidden])')];
    return sides.length > 0 && sides.every((side) => side.dataset.drawn);
  });
  await page.waitForLoadState('networkidle');
  await page.screenshot({ path: file, type: 'jpeg', quality: 86 });
  await page.close();
}

const folder = mkdtempSync(join(tmpdir(), 'shots-'));
const browser = await launchBrowser();
try {
  for (const style of readdirSync(STYLES)) {
    const book = join(folder, style);
    execFileSync(PROGRAM, ['publish', MAGAZINE, book, '--style', style], { stdio: 'inherit' });
    await shoot(browser, book, join(STYLES, style, 'shot.jpg'));
    if (style === README_STYLE) await shoot(browser, book, README_PICTURE, README_WINDOW, 1);
  }
} finally {
  await browser.close();
  rmSync(folder, { recursive: true });
}
