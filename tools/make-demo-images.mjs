// SPDX-License-Identifier: MIT
// Makes the pages of the book that a new user sees first, from the sample magazine. Needs pdftoppm.
import { execFileSync } from 'node:child_process';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';

const MAGAZINE = fileURLToPath(new URL('../samples/magazine.pdf', import.meta.url));
const FOLDER = fileURLToPath(new URL('../resources/DemoImgs/', import.meta.url));
const PAGES = [1, 2, 3, 4, 5, 6, 7, 16];
const DRAWN_DPI = 96;
const STATED_DPI = 72;

// With 72 dpi in its header an image has as many points as pixels, like the pages of an import.
// The density stands at a fixed place of the JFIF header: one byte for the unit (1: dots per inch),
// two each for the horizontal and the vertical value.
function stateDensity(jpeg) {
  if (jpeg.toString('latin1', 6, 11) !== 'JFIF\0') throw new Error('The drawn page has no JFIF header.');
  jpeg.writeUInt8(1, 13);
  jpeg.writeUInt16BE(STATED_DPI, 14);
  jpeg.writeUInt16BE(STATED_DPI, 16);
  return jpeg;
}

function drawPage(number) {
  const page = ['-f', number, '-l', number, '-singlefile'].map(String);
  const format = ['-jpeg', '-jpegopt', 'quality=78,optimize=y', '-r', String(DRAWN_DPI)];
  return execFileSync('pdftoppm', [...page, ...format, MAGAZINE], { maxBuffer: 1 << 26 });
}

mkdirSync(FOLDER, { recursive: true });
PAGES.forEach((number, index) => {
  writeFileSync(`${FOLDER}${index + 1}.jpg`, stateDensity(drawPage(number)));
});
