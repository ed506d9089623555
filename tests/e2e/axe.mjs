// SPDX-License-Identifier: MIT
import { readFileSync } from 'node:fs';
import { pathOf } from './support.mjs';

const AXE = readFileSync(pathOf('node_modules/axe-core/axe.min.js'), 'utf8');

/** What axe finds wrong for readers with a disability. */
export const faults = async (page) => {
  await page.evaluate(AXE);
  // Preloading would ask for the style sheet, which a page that is a file may not.
  const { violations } = await page.evaluate(() => window.axe.run(document, { resultTypes: ['violations'], preload: false }));
  return violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join(' ')}`);
};
