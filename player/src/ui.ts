// SPDX-License-Identifier: MIT
import type { BookTexts } from './bookTexts.ts';
import type { CharacterKeys } from './characterKeys.ts';
import type { PageLayer } from './pageLayer.ts';
import type { PageNames } from './pageNames.ts';
import type { Reader } from './reader.ts';
import type { SidePanel } from './sidePanel.ts';
import type { Say } from './texts.ts';
import type { Thumbnails } from './thumbnails.ts';
import type { TurnSound } from './turnSound.ts';

/** What every part of the interface is given. */
export interface Ui {
  readonly root: HTMLElement;
  readonly reader: Reader;
  readonly say: Say;
  readonly names: PageNames;
  readonly layer: PageLayer;
  readonly texts: BookTexts;
  readonly thumbnails: Thumbnails;
  readonly panel: SidePanel;
  readonly sound: TurnSound;
  readonly characterKeys: CharacterKeys;
  /** Whether the page is the book's own: its address and its keys too. */
  readonly ownsPage: boolean;
  /** Says something to screen readers, once nothing else is being said. */
  readonly announce: (text: string) => void;
  /** Aborted when the book is taken down. */
  readonly signal: AbortSignal;
}
