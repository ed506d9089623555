// SPDX-License-Identifier: MIT
// The guide as it is printed says what its source says, and every picture and chapter is there.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync, readdirSync, readFileSync } from 'node:fs';
import test from 'node:test';
import { fileURLToPath } from 'node:url';
import { marked } from 'marked';

const GUIDE = fileURLToPath(new URL('../../docs/guide/', import.meta.url));
const PRINTED = fileURLToPath(new URL('../../resources/help/help.pdf', import.meta.url));

const chapters = readdirSync(GUIDE).map((name) => readFileSync(GUIDE + name, 'utf8'));
// Where lines end, and what signs stand for dashes and blanks, is the business of print.
const letters = (text) => text.replace(/[^\p{L}\p{N}]/gu, '');

test('the printed guide says what its source says', () => {
  const printed = letters(execFileSync('pdftotext', ['-raw', PRINTED, '-'], { encoding: 'utf8' }));
  for (const chapter of chapters)
    for (const block of marked.parse(chapter).split(/<\/(?:p|li|h1|td|th)>/)) {
      const text = letters(block.replace(/<[^>]*>/g, '').replace(/&[a-z]+;|&#\d+;/g, ''));
      assert.ok(printed.includes(text), `print it anew with make guide, for this is missing: ${block}`);
    }
});

test('every picture of the guide is there', () => {
  for (const chapter of chapters)
    for (const [, picture] of chapter.matchAll(/!\[[^\]]*\]\(([^)]*)\)/g)) assert.ok(existsSync(GUIDE + picture), picture);
});
