// SPDX-License-Identifier: MIT
import { type BookConfig, isOn } from './book.ts';
import { isColour } from './colour.ts';
import type { Mode } from './layout.ts';
import type { ViewKind } from './view.ts';

/** How one slide follows another. */
export type SlideEffect = 'slide' | 'fade' | 'none';

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
  readonly slideEffect: SlideEffect;
  readonly readingWidth: number; // CSS pixels; 0: as wide as the window
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
  'dots',
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

const EFFECTS: Readonly<Record<string, SlideEffect>> = { Fade: 'fade', None: 'none' };
const MODES: Readonly<Record<string, Mode>> = { Single: 'single', Double: 'double' };
const SHORTEST_TURN_SECONDS = 0.15;

/** What a kind of view has no use for is not there, whatever the properties say. */
const USELESS: Readonly<Record<ViewKind, readonly Control[]>> = {
  book: ['dots'],
  slide: ['viewMode', 'sound'],
  scroll: ['viewMode', 'sound', 'dots', 'turnButtons', 'autoTurn', 'motion'],
};

export function readSettings(config: BookConfig, kind: ViewKind = 'book'): Settings {
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
    slideEffect: EFFECTS[text('slideEffect')] ?? 'slide',
    readingWidth: number('readingWidth', 900),
    paperColour: isColour(text('pageColor')) ? text('pageColor') : '#ffffff',
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
    shows: shown(kind, (name) => flag(keyOf(name), true)),
  };
}

const shown = (kind: ViewKind, isWanted: (control: Control) => boolean): Record<Control, boolean> =>
  Object.fromEntries(CONTROLS.map((name) => [name, isWanted(name) && !USELESS[kind].includes(name)])) as Record<
    Control,
    boolean
  >;
