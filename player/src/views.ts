// SPDX-License-Identifier: MIT
import type { Book } from './book.ts';
import { BookView } from './bookView.ts';
import { Hands } from './hands.ts';
import type { Settings } from './settings.ts';
import type { View, ViewEvents } from './view.ts';

const PAPER_INK = 'rgba(0, 0, 0, 0.32)';

/** A view of the book on a stage that has its size, with the hands that move it. */
export function makeView(
  stage: HTMLElement,
  book: Book,
  settings: Settings,
  events: ViewEvents,
  place: number,
): View {
  const options = { ...settings, paper: { colour: settings.paperColour, ink: PAPER_INK } };
  const view = new BookView(stage, book, options, events, place);
  new Hands(view);
  return view;
}
