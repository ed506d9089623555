// SPDX-License-Identifier: MIT
import { type BookConfig, isOn } from './book.ts';
import type { Mode } from './layout.ts';

/**
 * What the template's properties say, read once. Each reader names the property, and what counts
 * when a book of another template or an older one does not have it.
 */
export interface Settings {
  readonly title: string;
  readonly language: string;
  readonly mode: Mode;
  readonly coverAlone: boolean;
  readonly hardCovers: boolean;
  readonly rightToLeft: boolean;
  readonly turnSeconds: number;
  readonly paperColour: string;
  readonly pageEdges: boolean;
  readonly keyboard: boolean;
  readonly wheelTurns: boolean;
  readonly remembersPage: boolean;
  readonly linkTarget: '_blank' | '_self';
  readonly sound: boolean;
  readonly autoTurnSeconds: number;
  readonly logo: string;
  readonly logoLink: string;
  readonly shareAddress: string;
  readonly toolbar: boolean;
  /** Which buttons and fields there are. */
  readonly shows: Readonly<Record<Control, boolean>>;
}

export const CONTROLS = [
  'turnButtons',
  'pageField',
  'slider',
  'thumbnails',
  'contents',
  'search',
  'textView',
  'zoom',
  'viewMode',
  'fullScreen',
  'print',
  'share',
  'autoTurn',
  'sound',
  'motion',
  'help',
] as const;

export type Control = (typeof CONTROLS)[number];

const keyOf = (control: Control): string =>
  control === 'fullScreen' ? 'fullScreenButtonVisible' : `${control}Visible`;

const MODES: Readonly<Record<string, Mode>> = { Single: 'single', Double: 'double' };
const SHORTEST_TURN_SECONDS = 0.15;

export function readSettings(config: BookConfig): Settings {
  const text = (key: string) => String(config[key] ?? '').trim();
  const flag = (key: string, otherwise: boolean) => (text(key) === '' ? otherwise : isOn(text(key)));
  const number = (key: string, otherwise: number) => {
    const value = Number(text(key));
    return text(key) !== '' && Number.isFinite(value) && value >= 0 ? value : otherwise;
  };
  return {
    title: text('bookTitle'),
    language: text('languageSetting'),
    mode: MODES[text('viewMode')] ?? 'auto',
    coverAlone: flag('coverAlone', true),
    hardCovers: flag('hardCover', false),
    rightToLeft: flag('rightToLeft', false),
    turnSeconds: Math.max(number('turnDuration', 800) / 1000, SHORTEST_TURN_SECONDS),
    paperColour: text('pageColor') || '#ffffff',
    pageEdges: flag('pageEdges', true),
    keyboard: flag('keyboardControl', true),
    wheelTurns: flag('wheelTurns', true),
    remembersPage: flag('rememberLastPage', true),
    linkTarget: /self$/i.test(text('OpenWindow')) ? '_self' : '_blank',
    sound: flag('turnSound', false),
    autoTurnSeconds: Math.max(number('autoTurnSeconds', 6), 1),
    logo: text('LogoFile'),
    logoLink: text('appLogoLinkURL'),
    shareAddress: text('shareURL'),
    toolbar: flag('toolBarVisible', true),
    shows: Object.fromEntries(CONTROLS.map((name) => [name, flag(keyOf(name), true)])) as Record<Control, boolean>,
  };
}
