// SPDX-License-Identifier: MIT
import { chromium } from 'playwright-core';

const QUIET = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

/** Starts the installed Chromium without a window; CHROMIUM names another one. */
export function launchBrowser() {
  return chromium.launch({ executablePath: process.env.CHROMIUM || '/usr/bin/chromium', args: QUIET });
}

/** Draws a page of HTML and saves what is seen; `options` are those of page.screenshot. */
export async function drawHtml(browser, { html, width, height, scale = 1 }, options) {
  const page = await browser.newPage({ viewport: { width, height }, deviceScaleFactor: scale });
  await page.setContent(`<!DOCTYPE html><style>body{margin:0}svg{display:block}</style>${html}`);
  await page.screenshot(options);
  await page.close();
}
