// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookView } from './bookView.ts';
import { Hands } from './hands.ts';
import type { Settings } from './settings.ts';
import { ScrollHands } from './scrollHands.ts';
import { ScrollView } from './scrollView.ts';
import { SlideHands } from './slideHands.ts';
import { SlideView } from './slideView.ts';
import type { View, ViewEvents, ViewKind } from './view.ts';

const PAPER_INK = 'rgba(0, 0, 0, 0.32)';

/** A view on a stage that has its size, with the hands that move it. */
export function makeView(
  kind: ViewKind,
  stage: HTMLElement,
  book: Book,
  settings: Settings,
  standIn: (place: number) => CanvasImageSource | undefined,
  events: ViewEvents,
  place: number,
): View {
  const options = { ...settings, paper: { colour: settings.paperColour, ink: PAPER_INK }, standIn };
  if (kind === 'slide') {
    const view = new SlideView(stage, book, options, events, place);
    new SlideHands(view);
    return view;
  }
  if (kind === 'scroll') {
    const view = new ScrollView(stage, book, options, events, place);
    new ScrollHands(view);
    return view;
  }
  const view = new BookView(stage, book, options, events, place);
  new Hands(view);
  return view;
}
