// SPDX-License-Identifier: MIT
// The books that are measured: the sample magazine, and one with many heavy pages that is drawn here once.
import { execFileSync } from 'node:child_process';
import { existsSync, mkdirSync, readFileSync, renameSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';

const ROOT = fileURLToPath(new URL('../../', import.meta.url));
const CORPUS = join(ROOT, 'build/bench-corpus');
const PAGE = { width: 1224, height: 1584 };
const PAGE_COUNT = 200;

// Runs in the browser: a heading and two columns of words; on every other spread more of them, and a photograph's
// worth of detail. Always the same; 40 MB in all, the first pages lighter than most, as in the book that the budgets
// were set with.
async function drawPage({ number, width, height }) {
  let seed = number * 7919;
  const random = () => ((seed = (seed * 48271) % 2147483647) / 2147483647);
  const canvas = new OffscreenCanvas(width, height);
  const context = canvas.getContext('2d');
  const fill = (colour, ...box) => { context.fillStyle = colour; context.fillRect(...box); };
  fill('#fff', 0, 0, width, height);
  const hue = random() * 360;
  const hasPhotograph = number > 1 && number % 4 < 2;
  for (let spot = 0; hasPhotograph && spot < 1500; spot++)
    fill(`hsl(${hue + random() * 50} 45% ${25 + random() * 55}%)`, 90 + random() * 1020, 190 + random() * 470, 24, 10);
  context.fillStyle = '#222';
  context.font = '56px serif';
  context.fillText(`Page ${number}`, 90, 140);
  context.font = '19px serif';
  const word = () => Array.from({ length: 2 + random() * 8 }, () => String.fromCharCode(97 + random() * 26)).join('');
  for (let line = 0; line < (hasPhotograph ? 24 : 14); line++)
    for (const x of [90, 630])
      context.fillText(Array.from({ length: 9 }, word).join(' ').slice(0, 52), x, 730 + line * 32, 500);
  const blob = await canvas.convertToBlob({ type: 'image/jpeg', quality: 0.72 });
  return new Promise((resolve) => {
    const reader = new FileReader();
    reader.onload = () => resolve(reader.result.split(',')[1]);
    reader.readAsDataURL(blob);
  });
}

async function drawPictures(browser) {
  const folder = join(CORPUS, 'pages-40-mb');
  if (existsSync(folder)) return folder;
  const unfinished = `${folder}.part`;
  mkdirSync(unfinished, { recursive: true });
  const page = await browser.newPage();
  for (let number = 1; number <= PAGE_COUNT; number++) {
    const name = `${String(number).padStart(3, '0')}.jpg`;
    writeFileSync(join(unfinished, name), Buffer.from(await page.evaluate(drawPage, { number, ...PAGE }), 'base64'));
  }
  await page.close();
  renameSync(unfinished, folder);
  return folder;
}

const dataFile = (folder) => join(folder, 'files/search/book.js');
const readData = (folder) => JSON.parse(readFileSync(dataFile(folder), 'utf8').replace(/^var bookData = |;\s*$/g, ''));

function publish(program, source, folder) {
  execFileSync(program, ['publish', source, folder, '--quiet'], { stdio: 'inherit' });
  const { pages } = readData(folder);
  return { folder, pageCount: pages.length, width: pages[0].width, height: pages[0].height };
}

/** { name: book }, published below a folder with the program. */
export async function publishBooks(browser, program, folder) {
  const heavy = publish(program, await drawPictures(browser), join(folder, 'heavy'));
  const sample = publish(program, join(ROOT, 'samples/magazine.pdf'), join(folder, 'sample'));
  return { '200 pages': heavy, sample };
}

/** The same book with its page list repeated until it is so many pages longer. */
export function lengthen(book, by, folder) {
  execFileSync('cp', ['-r', book.folder, folder]);
  const data = readData(folder);
  const { pages } = data;
  data.pages = Array.from({ length: pages.length + by }, (_, at) => ({ ...pages[at % pages.length], label: String(at + 1) }));
  writeFileSync(dataFile(folder), `var bookData = ${JSON.stringify(data)};\n`);
  return { ...book, folder, pageCount: data.pages.length };
}
