// SPDX-License-Identifier: MIT
// Draws the pictures of the templates and the backgrounds of their styles. Needs Chromium and pngquant.
import { execFileSync } from 'node:child_process';
import { fileURLToPath } from 'node:url';
import { drawHtml, launchBrowser } from './browser.mjs';
import { demos, icons, thickness } from './templates/art/icons.mjs';
import * as scenes from './templates/art/scenes.mjs';
import * as textures from './templates/art/textures.mjs';

const RESOURCES = fileURLToPath(new URL('../resources/', import.meta.url));
const TEMPLATES = RESOURCES + 'AppFiles/Templates/';
const STYLES = RESOURCES + 'AppFiles/Styles/';

const tile = (file, texture, width, height, quality) => ({
  file: STYLES + file, html: `<img src="${textures.bitmapAddress(texture, width, height)}">`, width, height, quality,
});
const scene = (file, html, width, height, quality) => ({ file: STYLES + file, html, width, height, quality });

const iconOf = (name) => (
  { file: `${TEMPLATES}${name}/icon.png`, html: icons[name], width: 128, height: 128, transparent: true });

const demoOf = (name) => ({ file: `${TEMPLATES}${name}/demo.png`, html: demos[name], width: 320, height: 200 });

const PICTURES = [
  ...Object.keys(icons).map(iconOf),
  ...Object.keys(demos).map(demoOf),
  { file: TEMPLATES + 'float/thickness.png', html: thickness, width: 24, height: 400 },
  scene('float/Wall-line/wall.png', scenes.wallLines(), 96, 192),
  scene('float/Night/sky.jpg', scenes.nightSky(), 1600, 1000, 84),
  scene('float/Blue-hour/hills.jpg', scenes.blueHour(), 1600, 1000, 84),
  scene('float/Kids/playroom.png', scenes.playroom(), 480, 480),
  { ...scene('float/Magazine/screen.png', scenes.halftone(), 1600, 1000), colours: 6 },
  tile('float/Concrete/concrete.jpg', textures.concrete, 1024, 512, 82),
  tile('float/Wood-desk/desk.jpg', textures.wood, 1024, 512, 82),
  tile('float/Green-felt/felt.jpg', textures.felt, 256, 256, 84),
  tile('float/Paper-white/paper.jpg', textures.paper, 256, 256, 86),
  scene('slide/Studio/sweep.jpg', scenes.studio(), 1600, 1000, 80),
  scene('slide/Theatre/curtain.jpg', scenes.curtain(), 1600, 1000, 80),
  tile('slide/Chalkboard/board.jpg', textures.chalkboard, 640, 640, 78),
  tile('scroll/Quiet/cloth.png', textures.weave, 128, 128),
  tile('scroll/Library/leather.jpg', textures.leather, 384, 384, 82),
  tile('scroll/Evening/slate.jpg', textures.slate, 384, 384, 84),
];

const only = process.argv.slice(2);
const browser = await launchBrowser();
for (const { file, transparent = false, quality, colours, ...picture } of PICTURES) {
  const format = quality ? { type: 'jpeg', quality } : { omitBackground: transparent };
  await drawHtml(browser, picture, { path: file, ...format });
  if (colours) execFileSync('pngquant', ['--force', '--strip', '--speed', '1', '--nofs', '--output', file, String(colours), file]);
}
await browser.close();
