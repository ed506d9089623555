// SPDX-License-Identifier: MIT
import { arabic } from './texts/arabic.ts';
import { chinese } from './texts/chinese.ts';
import { english, type Texts } from './texts/english.ts';
import { french } from './texts/french.ts';
import { german } from './texts/german.ts';
import { japanese } from './texts/japanese.ts';
import { spanish } from './texts/spanish.ts';

export interface Language {
  readonly code: string; // BCP 47
  readonly name: string; // as the property `languageSetting` has it
  readonly rightToLeft: boolean;
  readonly texts: Texts;
}

const language = (code: string, name: string, texts: Texts): Language => ({
  code,
  name,
  rightToLeft: code === 'ar',
  texts,
});

export const LANGUAGES: readonly Language[] = [
  language('en', 'English', english),
  language('de', 'German', german),
  language('fr', 'French', french),
  language('es', 'Spanish', spanish),
  language('zh-Hans', 'Chinese', chinese),
  language('ja', 'Japanese', japanese),
  language('ar', 'Arabic', arabic),
];

/** The language that is set by name or code, else the first one of the browser's that there is. */
export function chooseLanguage(setting: string, ofBrowser: readonly string[]): Language {
  const wanted = setting.toLowerCase();
  const set = LANGUAGES.find(({ code, name }) => [code, name].some((each) => each.toLowerCase() === wanted));
  const known = ofBrowser.map((tag) => LANGUAGES.find(({ code }) => primary(code) === primary(tag)));
  return set ?? known.find((each) => each !== undefined) ?? LANGUAGES[0]!;
}

const primary = (tag: string): string => tag.slice(0, 2).toLowerCase();

export type Say = (key: keyof Texts, ...values: readonly (string | number)[]) => string;

export const sayIn =
  (texts: Texts): Say =>
  (key, ...values) =>
    texts[key].replace(/\{(\d)\}/g, (_, index: string) => String(values[Number(index)] ?? ''));
