// SPDX-License-Identifier: MIT
// Prints docs/guide/*.md, in the order of their names, to resources/help/help.pdf. Needs Chromium, qpdf and
// the fonts Vollkorn and Inter. The pictures of the windows are those of tools/screenshots/pick.
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { marked } from 'marked';
import { launchBrowser } from './browser.mjs';

const GUIDE = fileURLToPath(new URL('../docs/guide/', import.meta.url));
const ICON = readFileSync(new URL('../resources/images/leafcast.svg', import.meta.url), 'utf8');
const STYLE = readFileSync(new URL('guide.css', import.meta.url), 'utf8');
const RESULT = fileURLToPath(new URL('../resources/help/help.pdf', import.meta.url));

const FOOT = `<style>p{width:100%;margin:0 16mm;font:8px Inter;color:#75736b;text-align:right}</style>
  <p><span class="pageNumber"></span></p>`;

const pages = readdirSync(GUIDE)
  .filter((name) => name.endsWith('.md'))
  .sort((a, b) => a.localeCompare(b, 'en', { numeric: true }))
  .map((name) => marked.parse(readFileSync(join(GUIDE, name), 'utf8')));

/** A list of the pages, each a link, from their headings. */
function contents() {
  const entries = pages.map((page, index) => {
    const title = /<h1>(.*?)<\/h1>/.exec(page)[1];
    return `<li><a href="#part-${index + 1}">${title}</a></li>`;
  });
  return `<ol>${entries.join('')}</ol>`;
}

function html() {
  const parts = pages.map((page, index) => `<section id="part-${index + 1}">${page}</section>`);
  return `<!DOCTYPE html><html lang="en"><meta charset="utf-8"><title>Leafcast Guide</title>
    <base href="${pathToFileURL(GUIDE)}"><style>${STYLE}</style>
    <header>${ICON}<p class="name">Leafcast</p><p>From a PDF to a page-turning book</p>${contents()}</header>
    ${parts.join('')}</html>`;
}

async function print(file, folder) {
  const source = join(folder, 'guide.html');
  writeFileSync(source, html());
  const browser = await launchBrowser();
  const page = await browser.newPage();
  await page.goto(pathToFileURL(source).href);
  const missing = await page.$$eval('img', (images) => images.filter((image) => !image.naturalWidth).map(({ src }) => src));
  if (missing.length > 0) throw new Error(`missing: ${missing.join(', ')}; run tools/screenshots/pick first`);
  await page.pdf({
    path: file, outline: true, tagged: true, preferCSSPageSize: true, printBackground: true,
    displayHeaderFooter: true, headerTemplate: '<span></span>', footerTemplate: FOOT,
  });
  await browser.close();
}

/** Without the time and the browser's version, which would change every print. */
function finish(printed, folder) {
  const text = execFileSync('qpdf', ['--json', '--json-key=qpdf', printed], { encoding: 'utf8', maxBuffer: 1 << 28 });
  const [header, objects] = JSON.parse(text).qpdf;
  const { '/Info': info } = objects.trailer.value;
  const update = join(folder, 'changes.json');
  writeFileSync(update, JSON.stringify({ qpdf: [header, { [`obj:${info}`]: { value: { '/Title': 'u:Leafcast Guide' } } }] }));
  execFileSync('qpdf', [
    `--update-from-json=${update}`, '--object-streams=generate', '--recompress-flate', '--compression-level=9',
    '--deterministic-id', printed, RESULT,
  ]);
}

const folder = mkdtempSync(join(tmpdir(), 'guide-'));
try {
  const printed = join(folder, 'printed.pdf');
  await print(printed, folder);
  mkdirSync(fileURLToPath(new URL('.', pathToFileURL(RESULT))), { recursive: true });
  finish(printed, folder);
} finally {
  rmSync(folder, { recursive: true });
}
