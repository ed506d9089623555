// SPDX-License-Identifier: MIT
// Draws the icons of the viewer package and of the desktop application from resources/images.
// Needs Chromium, icnsutils and pngquant.
import { execFileSync } from 'node:child_process';
import { copyFileSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { drawHtml, launchBrowser } from './browser.mjs';

const RESOURCES = fileURLToPath(new URL('../resources/', import.meta.url));
const RESULT = RESOURCES + 'AppFiles/TmplData/mac.app/Contents/Resources/viewer.icns';
const DESKTOP_ICONS = fileURLToPath(new URL('../packaging/desktop/icons/', import.meta.url));
const LARGEST_SMALL_DRAWING = 32;

// Element types of the icon file that hold PNG, by pixels; ic11 and ic12 are 16 and 32 points on a fine display.
const PNG_ELEMENTS = { ic11: 32, ic12: 64, ic07: 128, ic08: 256, ic09: 512, ic10: 1024 };
// What icon themes ask for.
const DESKTOP_SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512];
const SIZES = new Set([...DESKTOP_SIZES, ...Object.values(PNG_ELEMENTS)]);

function drawing(size) {
  const name = size > LARGEST_SMALL_DRAWING ? 'leafcast.svg' : 'leafcast-small.svg';
  const svg = readFileSync(`${RESOURCES}images/${name}`, 'utf8').replace(/^<\?xml.*\?>/, '');
  return svg.replace('<svg ', `<svg width="${size}" height="${size}" `);
}

// 256 colours are plenty, and a quarter of the bytes.
function quantize(file) {
  execFileSync('pngquant', ['--force', '--strip', '--speed', '1', '--quality', '80-100', '--output', file, file]);
}

// As PNG the two smallest sizes are not shown for an application, so they are packed as plain pixels.
function plainElements(folder) {
  const file = join(folder, 'plain.icns');
  execFileSync('png2icns', [file, join(folder, '16.png'), join(folder, '32.png')]);
  return readFileSync(file).subarray(8);
}

function element(type, content) {
  const header = Buffer.alloc(8);
  header.write(type);
  header.writeUInt32BE(header.length + content.length, 4);
  return Buffer.concat([header, content]);
}

const folder = mkdtempSync(join(tmpdir(), 'icons-'));
try {
  const browser = await launchBrowser();
  for (const size of SIZES) {
    const path = join(folder, `${size}.png`);
    await drawHtml(browser, { html: drawing(size), width: size, height: size }, { path, omitBackground: true });
    if (size > LARGEST_SMALL_DRAWING) quantize(path);
  }
  await browser.close();
  for (const size of DESKTOP_SIZES) copyFileSync(join(folder, `${size}.png`), `${DESKTOP_ICONS}${size}.png`);
  const pngs = Object.entries(PNG_ELEMENTS).map(([type, size]) => element(type, readFileSync(join(folder, `${size}.png`))));
  writeFileSync(RESULT, element('icns', Buffer.concat([plainElements(folder), ...pngs])));
} finally {
  rmSync(folder, { recursive: true });
}
