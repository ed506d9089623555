#!/usr/bin/env node
// SPDX-License-Identifier: MIT
// Measures our player beside others; see README.md.
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { loadavg, tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';
import { gzipSync } from 'node:zlib';
import { launchBrowser } from '../../tools/browser.mjs';
import { lengthen, publishBooks } from './book.mjs';
import { frames, loading, memory, profileLines } from './figures.mjs';
import { PLAYERS } from './players.mjs';
import { printBudget, printTable } from './report.mjs';
import { serve } from './server.mjs';
import { Session } from './session.mjs';

const ROOT = fileURLToPath(new URL('../../', import.meta.url));
const MODULES = fileURLToPath(new URL('node_modules/', import.meta.url));
const RESULTS = join(ROOT, 'build/bench/player.json');
const WINDOWS = {
  '1280 x 800': { context: { viewport: { width: 1280, height: 800 } } },
  '820 x 1180': { context: { viewport: { width: 820, height: 1180 } } },
  '820 x 1180 at 2x, touch': { context: { viewport: { width: 820, height: 1180 }, deviceScaleFactor: 2, hasTouch: true } },
};
const SLOWDOWN = 4;
const MORE_PAGES = 1000;

const { values: options } = parseArgs({ options: {
  quick: { type: 'boolean', default: false },
  profile: { type: 'boolean', default: false },
  book: { type: 'string' },
  window: { type: 'string' },
  player: { type: 'string' },
  program: { type: 'string', default: process.env.LEAFCAST ?? join(ROOT, 'build/release/bin/leafcast') },
} });
const chosen = (name, wanted) => !wanted || name.startsWith(wanted);
const effort = options.quick ? { rounds: 1, turns: 4 } : { rounds: 5, turns: 10 };

async function measure(browser, player, window, book) {
  const pages = player.page ? { [player.address]: player.page(book) } : {};
  const { address, close } = await serve({ '/ours/': book.folder, '/modules/': MODULES }, pages);
  const open = (how) => Session.open(browser, address, player, window, how);
  const printProfile = async (session) => console.log((await profileLines(session)).join('\n'));
  try {
    return {
      ...await loading(open, effort.rounds),
      ...await memory(open, book.pageCount),
      ...await frames(open, { turns: effort.turns, slowdown: 1 }),
      ...await frames(open, { turns: effort.turns, slowdown: SLOWDOWN, profile: options.profile && printProfile }),
    };
  } catch (error) {
    console.log(`  ${player.name}: ${error.message.split('\n')[0]}`);
    return {};
  } finally {
    close();
  }
}

async function heapOf(browser, book) {
  const { address, close } = await serve({ '/ours/': book.folder }, {});
  const session = await Session.open(browser, address, PLAYERS[0], WINDOWS['1280 x 800']);
  await session.quiet();
  const heap = await session.heapMegabytes();
  await session.close();
  close();
  return heap;
}

/** What the book's length and the player's own weight are, whatever the window. */
async function printWeights(browser, book, folder) {
  const longer = lengthen(book, MORE_PAGES, join(folder, 'longer'));
  const added = await heapOf(browser, longer) - await heapOf(browser, book);
  const script = readFileSync(join(book.folder, 'javascript/main.js'));
  const zipped = (data) => gzipSync(data, { level: 9 }).length / 1024;
  console.log('\nWhatever the window');
  return [
    ...printBudget('script, gzip', zipped(script.subarray(0, script.indexOf('function orgt'))), 45, 'KB'),
    ...printBudget('style, gzip', zipped(readFileSync(join(book.folder, 'style/player.css'))), 8, 'KB'),
    ...printBudget('heap for 1,000 more pages', added, 1, 'MB'),
  ];
}

async function run(folder) {
  const browser = await launchBrowser();
  const books = await publishBooks(browser, options.program, folder);
  console.log(`Chromium ${browser.version()}, load ${loadavg()[0].toFixed(1)}${options.quick ? ', quick' : ''}`);
  const missed = [];
  const results = {};
  for (const [windowName, window] of Object.entries(WINDOWS).filter(([name]) => chosen(name, options.window)))
    for (const [bookName, book] of Object.entries(books).filter(([name]) => chosen(name, options.book))) {
      const figures = {};
      for (const player of PLAYERS.filter(({ name }) => chosen(name, options.player)))
        figures[player.name] = await measure(browser, player, window, book);
      missed.push(...printTable(`${windowName}, ${bookName}`, bookName, figures));
      results[`${windowName}, ${bookName}`] = figures;
    }
  missed.push(...await printWeights(browser, books['200 pages'], folder));
  await browser.close();
  return { missed, results };
}

const folder = mkdtempSync(join(tmpdir(), 'bench-player-'));
try {
  const { missed, results } = await run(folder);
  console.log(`\n${missed.length === 0 ? 'All budgets are met.' : `NOT MET:\n  ${missed.join('\n  ')}`}`);
  process.exitCode = missed.length === 0 ? 0 : 1;
  mkdirSync(join(RESULTS, '..'), { recursive: true });
  writeFileSync(RESULTS, JSON.stringify({ load: loadavg()[0], missed, results }, null, 2));
} finally {
  rmSync(folder, { recursive: true });
}
