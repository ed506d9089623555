// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { chooseLanguage, LANGUAGES, sayIn } from '../src/texts.ts';

const codeOf = (setting: string, ...ofBrowser: string[]) => chooseLanguage(setting, ofBrowser).code;
const holesOf = (text: string) => [...text.matchAll(/\{\d\}/g)].map(([hole]) => hole).sort();

test('what is set goes before what the browser asks for', () => {
  assert.equal(codeOf('German', 'fr'), 'de');
  assert.equal(codeOf('ar', 'fr'), 'ar');
  assert.equal(codeOf('Browser', 'fr-CA'), 'fr');
  assert.equal(codeOf('', 'sv', 'ja-JP', 'de'), 'ja');
  assert.equal(codeOf('', 'zh-CN'), 'zh-Hans');
  assert.equal(codeOf('Klingon'), 'en');
});

test('every language fills in the same things', () => {
  const [english] = LANGUAGES;
  for (const { name, texts } of LANGUAGES)
    for (const [key, text] of Object.entries(english!.texts)) {
      const translated = texts[key as keyof typeof texts];
      assert.ok(translated.trim(), `${name}: ${key}`);
      assert.deepEqual(holesOf(translated), holesOf(text), `${name}: ${key}`);
    }
});

test('values are filled in by their number', () => {
  const say = sayIn(LANGUAGES[1]!.texts);
  assert.equal(say('pagesOf', 12, 13, 200), 'Seiten 12 und 13 von 200');
});
