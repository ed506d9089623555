// SPDX-License-Identifier: MIT
import { BlackScreen } from './presenter.ts';
import type { Ui } from './ui.ts';
import type { ViewKind } from './view.ts';

/** What keys do, by their names; that of a blank is "Space". */
export type Actions = Readonly<Record<string, () => void>>;

export const keyName = ({ key, shiftKey }: KeyboardEvent): string =>
  key === ' ' ? `${shiftKey ? 'Shift ' : ''}Space` : key.length === 1 ? key.toLowerCase() : key;

const KEYS: Readonly<Record<ViewKind, (ui: Ui) => Actions>> = { book: turnKeys, slide: presenterKeys, scroll: scrollKeys };

/** The keys by which a reader moves through the kind of view that there is. */
export const viewKeys = (ui: Ui): Actions => KEYS[ui.reader.kind](ui);

const PAN_PART = 0.2; // of the stage
const WHOLE_PAGE = 10; // more than any zoom makes of it

/** Arrows move over a zoomed page first, and turn it where it ends. */
function turnKeys({ reader }: Ui): Actions {
  const on = () => void reader.next();
  const back = () => void reader.previous();
  const { rightToLeft } = reader.settings;
  const sideways = (side: 1 | -1, turn: () => void) => {
    if (reader.pan(side * PAN_PART, 0)) return;
    turn();
    reader.pan(-side * WHOLE_PAGE, 0); // where the next page is read from
  };
  return {
    ArrowRight: () => sideways(1, rightToLeft ? back : on),
    ArrowLeft: () => sideways(-1, rightToLeft ? on : back),
    ArrowDown: () => void reader.pan(0, PAN_PART),
    ArrowUp: () => void reader.pan(0, -PAN_PART),
    PageDown: on,
    PageUp: back,
    Home: () => reader.goTo(1),
    End: () => reader.goTo(reader.pageCount),
  };
}

/** As in programs that show slides; clickers send these keys. */
function presenterKeys(ui: Ui): Actions {
  const keys = turnKeys(ui);
  const [on, back] = [keys.PageDown!, keys.PageUp!];
  const black = new BlackScreen(ui);
  const toggle = () => black.toggle();
  return {
    ...keys,
    ...numberKeys(ui),
    ArrowDown: () => ui.reader.pan(0, PAN_PART) || on(),
    ArrowUp: () => ui.reader.pan(0, -PAN_PART) || back(),
    Space: on,
    'Shift Space': back,
    Backspace: back,
    b: toggle,
    '.': toggle,
    Escape: () => void (black.hide() || ui.panel.close()),
  };
}

const NUMBER_MILLISECONDS = 3000; // a number that is not ended is forgotten

/** A number and Enter go to that page. */
function numberKeys({ reader, names, say, announce }: Ui): Actions {
  let digits = '';
  let timer = 0;
  const type = (digit: string) => {
    if (digits === '' && digit === '0') return reader.zoomTo(1);
    digits += digit;
    clearTimeout(timer);
    timer = window.setTimeout(() => (digits = ''), NUMBER_MILLISECONDS);
  };
  const go = () => {
    const place = names.find(digits);
    if (place) reader.goTo(place);
    else if (digits) announce(say('noSuchPage', digits));
    digits = '';
  };
  return { ...Object.fromEntries([...'0123456789'].map((digit) => [digit, () => type(digit)])), Enter: go };
}

const LINE_PIXELS = 60;
const WINDOW_PART = 0.9;

/** For when the focus is not on the pages, and the browser does not know what to scroll. */
function scrollKeys({ root, reader }: Ui): Actions {
  const stage = root.querySelector<HTMLElement>('.stage')!;
  const by = (pixels: () => number) => () => {
    stage.scrollBy({ top: pixels() });
  };
  const windows = (count: number) => by(() => count * WINDOW_PART * stage.clientHeight);
  const keys: Actions = {
    ArrowDown: by(() => LINE_PIXELS),
    ArrowUp: by(() => -LINE_PIXELS),
    PageDown: windows(1),
    PageUp: windows(-1),
    Space: windows(1),
    'Shift Space': windows(-1),
  };
  stage.addEventListener('keydown', (event) => {
    if (keyName(event) in keys) event.stopPropagation();
  });
  // Far enough to be undone by the back button.
  return { ...keys, Home: () => reader.goTo(1), End: () => reader.goTo(reader.pageCount, 1) };
}
