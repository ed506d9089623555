// SPDX-License-Identifier: MIT
// Draws the pictures of the template "float" and the background textures of its styles.
import { fileURLToPath } from 'node:url';
import { drawHtml, launchBrowser } from './browser.mjs';

const APP_FILES = fileURLToPath(new URL('../resources/AppFiles/', import.meta.url));
const TEMPLATE = APP_FILES + 'Templates/float/';
const STYLES = APP_FILES + 'Styles/float/';

const LEAF = 'M0 -30 C20 -22 26 2 0 30 C-26 2 -20 -22 0 -30Z M0 -16 V40';

const openBook = (stroke) => `
  <g fill="#fff" stroke="${stroke}" stroke-width="3" stroke-linejoin="round">
    <path d="M64 34 C50 24 30 22 14 26 V98 C30 94 50 96 64 106Z"/>
    <path d="M64 34 C78 24 98 22 114 26 V98 C98 94 78 96 64 106Z"/>
  </g>`;

const icon = `
  <svg viewBox="0 0 128 128" width="128" height="128">
    <rect width="128" height="128" rx="28" fill="#2f7d4f"/>
    ${openBook('#1d5235')}
    <g transform="translate(89 60) rotate(24) scale(.62)" fill="#e0a83a" stroke="#9a6b14" stroke-width="3"><path d="${LEAF}"/></g>
    <g stroke="#b9c7bd" stroke-width="4" stroke-linecap="round"><path d="M26 46h24M26 58h24M26 70h24M26 82h16"/></g>
  </svg>`;

const demo = `
  <svg viewBox="0 0 320 200" width="320" height="200">
    <rect width="320" height="200" fill="#e9e7e2"/>
    <rect width="320" height="18" fill="#fbfaf8"/>
    <g transform="translate(64 18) scale(1.5)">${openBook('#c9c5bc')}</g>
    <g transform="translate(202 112) rotate(24)" fill="#2f7d4f" stroke="#1d5235" stroke-width="2"><path d="${LEAF}"/></g>
    <g stroke="#c9c5bc" stroke-width="4" stroke-linecap="round"><path d="M100 84h44M100 98h44M100 112h44M100 126h30"/></g>
    <g fill="none" stroke="#77756f" stroke-width="3" stroke-linecap="round" stroke-linejoin="round">
      <path d="M34 100l-8 8 8 8M286 100l8 8-8 8"/>
    </g>
  </svg>`;

// The edges of a stack of pages, seen from the side.
const thickness = `
  <div style="width:24px;height:400px;background:
    repeating-linear-gradient(90deg, #d9d5cb 0 1px, #faf8f3 1px 3px),
    linear-gradient(#fff, #e4e0d6)"></div>`;

const wall = `
  <svg width="96" height="192">
    <rect width="96" height="192" fill="#e6e1d6"/>
    <g stroke="#d8d1c2" stroke-width="1"><path d="M12.5 0V192M36.5 0V192M60.5 0V192M84.5 0V192"/></g>
    <g stroke="#eee9df" stroke-width="1"><path d="M13.5 0V192M37.5 0V192M61.5 0V192M85.5 0V192"/></g>
    <g stroke="#dcd5c7" stroke-width="1" stroke-opacity=".55"><path d="M24.5 0V192M48.5 0V192M72.5 0V192M.5 0V192"/></g>
  </svg>`;

const night = `
  <div style="width:1600px;height:1000px;background:
    radial-gradient(60% 70% at 50% 42%, #33465a 0, transparent 100%),
    linear-gradient(#1a2531, #111922)"></div>`;

const PICTURES = [
  { file: TEMPLATE + 'icon.png', html: icon, width: 128, height: 128, transparent: true },
  { file: TEMPLATE + 'demo.png', html: demo, width: 320, height: 200 },
  { file: TEMPLATE + 'thickness.png', html: thickness, width: 24, height: 400 },
  { file: STYLES + 'Wall-line/wall.png', html: wall, width: 96, height: 192 },
  { file: STYLES + 'Night/sky.jpg', html: night, width: 1600, height: 1000 },
];

const browser = await launchBrowser();
for (const { file, transparent = false, ...picture } of PICTURES) {
  const quality = file.endsWith('.jpg') ? { type: 'jpeg', quality: 88 } : { omitBackground: transparent };
  await drawHtml(browser, picture, { path: file, ...quality });
}
await browser.close();
