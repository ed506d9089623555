// SPDX-License-Identifier: MIT
// Fails when a translation lacks a placeholder (%1) or the key of a menu entry (&) of its text, or has one too many.
import { readdirSync, readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';

const FOLDER = fileURLToPath(new URL('../resources/translations/', import.meta.url));
const marksOf = (text) => [...text.matchAll(/%\d|&amp;(?=\S)/g)].map(([mark]) => mark).sort().join(' ');

for (const file of readdirSync(FOLDER))
  for (const [, source, translation] of readFileSync(FOLDER + file, 'utf8').matchAll(/<source>(.*?)<\/source>\s*<translation>(.*?)<\/translation>/gs))
    if (marksOf(source) !== marksOf(translation)) {
      console.error(`${file}: “${translation}” has other placeholders or keys than “${source}”.`);
      process.exitCode = 1;
    }
