// SPDX-License-Identifier: MIT
// Prints samples/magazine/ to samples/magazine.pdf. Needs Chromium, qpdf and the font Vollkorn.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launchBrowser } from '../tools/browser.mjs';
import { draw } from './magazine/art/index.mjs';

const RESULT = fileURLToPath(new URL('magazine.pdf', import.meta.url));

// Cover, two pages in roman numerals, arabic numerals that count on, back cover.
const PAGE_LABELS = {
  '/Nums': [0, { '/P': 'u:Cover' }, 1, { '/S': '/r', '/St': 2 }, 3, { '/S': '/D', '/St': 4 }, 15, { '/P': 'u:Back' }],
};

async function print(file) {
  const browser = await launchBrowser();
  const page = await browser.newPage();
  await page.goto(new URL('magazine/magazine.html', import.meta.url).href);
  const places = page.locator('[data-art]');
  const drawings = draw(await places.evaluateAll((nodes) => nodes.map((node) => node.dataset.art)));
  await places.evaluateAll((nodes, made) => {
    for (const node of nodes) node.innerHTML = made[node.dataset.art];
  }, drawings);
  const titles = await page.locator('h1, h2').evaluateAll((nodes) => nodes.map((node) => node.textContent));
  await page.pdf({ path: file, outline: true, tagged: true, preferCSSPageSize: true, printBackground: true });
  await browser.close();
  return titles;
}

function readObjects(file) {
  const text = execFileSync('qpdf', ['--json', '--json-key=qpdf', file], { encoding: 'utf8', maxBuffer: 1 << 28 });
  const [header, objects] = JSON.parse(text).qpdf;
  return { header, valueOf: (reference) => objects[reference === 'trailer' ? reference : `obj:${reference}`].value };
}

// References of all entries of the outline, in reading order.
function outlineEntries(valueOf, parent) {
  const entries = [];
  for (let entry = valueOf(parent)['/First']; entry; entry = valueOf(entry)['/Next'])
    entries.push(entry, ...outlineEntries(valueOf, entry));
  return entries;
}

// Chromium takes the outline's texts as they are set, in capitals and with words joined at line ends.
// It writes no page labels, and the time and its own version, which would change every print.
function finish(printed, titles, folder) {
  const { header, valueOf } = readObjects(printed);
  const { '/Root': root, '/Info': info } = valueOf('trailer');
  const changes = {
    [`obj:${root}`]: { value: { ...valueOf(root), '/PageLabels': PAGE_LABELS } },
    [`obj:${info}`]: { value: { '/Title': valueOf(info)['/Title'], '/Author': 'u:The Hornbeam workshop' } },
  };
  outlineEntries(valueOf, valueOf(root)['/Outlines']).forEach((entry, index) => {
    changes[`obj:${entry}`] = { value: { ...valueOf(entry), '/Title': `u:${titles[index]}` } };
  });
  const update = join(folder, 'changes.json');
  writeFileSync(update, JSON.stringify({ qpdf: [header, changes] }));
  execFileSync('qpdf', [
    `--update-from-json=${update}`, '--object-streams=generate', '--recompress-flate', '--compression-level=9',
    '--deterministic-id', printed, RESULT,
  ]);
}

const folder = mkdtempSync(join(tmpdir(), 'magazine-'));
try {
  const printed = join(folder, 'printed.pdf');
  finish(printed, await print(printed), folder);
} finally {
  rmSync(folder, { recursive: true });
}
