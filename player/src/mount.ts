// SPDX-License-Identifier: MIT
import { type BookConfig, type BookData, readBook } from './book.ts';
import { configIn, filesIn } from './bookFolder.ts';
import { BookTexts } from './bookTexts.ts';
import { CharacterKeys } from './characterKeys.ts';
import { create } from './dom.ts';
import { makeDots } from './dots.ts';
import { firstPlace, keepAddress } from './history.ts';
import { inNextFrame } from './idle.ts';
import { listenToKeys } from './keys.ts';
import { colourBrowser, dress, followSize, rememberLook } from './look.ts';
import { PageLayer } from './pageLayer.ts';
import { makePageField } from './pageField.ts';
import { PageNames } from './pageNames.ts';
import { hideBarsAtRest } from './presenter.ts';
import { printOpenPages } from './paper.ts';
import { Reader } from './reader.ts';
import { readSettings, type Settings } from './settings.ts';
import { SidePanel } from './sidePanel.ts';
import { makeSlider } from './slider.ts';
import { chooseLanguage, sayIn, type Say } from './texts.ts';
import { makeToolbar, type RankedTool } from './toolbar.ts';
import { makeTools } from './tools.ts';
import { makeTurnButtons } from './turnButtons.ts';
import { TurnSound } from './turnSound.ts';
import type { Ui } from './ui.ts';
import { type ViewKind, viewKind } from './view.ts';
import { followMotionPreference } from './viewTools.ts';

export interface MountOptions {
  /** Whether the page is the book's own: then its address, its language and its keys are too. */
  readonly ownsPage?: boolean;
  /** The page to open at, when the address names none. */
  readonly place?: number;
  /** The address of the folder that the book's files lie in; otherwise the page's own. */
  readonly folder?: string;
  /** Otherwise the element's attribute `data-view` says it. */
  readonly view?: ViewKind;
}

export interface MountedBook {
  /** Nothing when the book has no pages. */
  readonly reader: Reader | undefined;
  readonly signal: AbortSignal;
  /** Takes all of it off the element again, which looks as it did before. */
  destroy(): void;
}

/** Of the books that are mounted, by their element: how to take them off. */
const mounted = new WeakMap<HTMLElement, () => void>();

/** Shows a book in an element that has a size; what the element holds is replaced, another book too. */
export function mountBook(
  root: HTMLElement,
  given: BookConfig,
  data: BookData | undefined,
  options: MountOptions = {},
): MountedBook {
  mounted.get(root)?.();
  const taken = new AbortController();
  const restoreLook = rememberLook(root);
  const kind = viewKind(options.view ?? root.dataset.view);
  const fileAt = filesIn(options.folder);
  const config = configIn(given, fileAt);
  // The wheel is for the page around the book.
  const settings = readSettings(options.ownsPage ? config : { wheelTurns: 'NO', ...config }, kind);
  const book = readBook(config, data, fileAt);
  const say = speak(root, settings, options);
  root.classList.add('leafcast');
  root.classList.toggle('embedded', !options.ownsPage);
  root.dataset.view = kind;
  dress(root, config);
  if (options.ownsPage) colourBrowser(config);
  followSize(root, taken.signal);
  const takeOff = (reader?: Reader) => () => {
    if (taken.signal.aborted) return;
    mounted.delete(root);
    taken.abort();
    reader?.destroy();
    reader = undefined; // who keeps the way to take it off keeps no more than that
    if (document.fullscreenElement === root) void document.exitFullscreen();
    root.replaceChildren();
    restoreLook();
  };
  const mountedWith = (reader?: Reader): MountedBook => {
    const destroy = takeOff(reader);
    mounted.set(root, destroy);
    return { reader, signal: taken.signal, destroy };
  };
  if (book.pages.length === 0) {
    root.replaceChildren(create('p', { className: 'notice', role: 'status' }, say('empty')));
    return mountedWith();
  }
  const stage = makeStage(root, settings, options);
  const reader = new Reader(
    stage,
    book,
    settings,
    options.ownsPage ? firstPlace(book, settings) : (options.place ?? 1),
    kind,
  );
  furnishSoon(root, reader, say, options, taken.signal);
  return mountedWith(reader);
}

function speak(root: HTMLElement, settings: Settings, { ownsPage }: MountOptions): Say {
  const language = chooseLanguage(settings.language, navigator.languages);
  Object.assign(root, { lang: language.code, dir: language.rightToLeft ? 'rtl' : 'ltr' });
  if (ownsPage) document.documentElement.lang = language.code;
  return sayIn(language.texts);
}

/** The first page is loaded meanwhile, and a caller can listen before anything is told. */
function furnishSoon(root: HTMLElement, reader: Reader, say: Say, options: MountOptions, signal: AbortSignal): void {
  inNextFrame(() => {
    if (signal.aborted) return;
    furnish(root, reader, say, options, signal);
    reader.start();
  });
}

let stageCount = 0;

/** It has its size before the bars around it are made, because the book is laid out in it. */
function makeStage(root: HTMLElement, { toolbar, shows }: Settings, { ownsPage }: MountOptions): HTMLElement {
  root.classList.toggle('no-bar', !toolbar);
  root.classList.toggle('no-foot', !shows.slider && !shows.pageField && !shows.dots);
  root.classList.toggle('no-turns', !shows.turnButtons);
  const stage = create('div', { className: 'stage', id: `leafcast-stage-${++stageCount}` });
  // Inside another page the landmark is that page's, and a click must lead the keys to the book.
  root.replaceChildren(create(ownsPage ? 'main' : 'div', { className: 'middle' }, stage));
  if (!ownsPage) root.tabIndex = -1;
  return stage;
}

function furnish(root: HTMLElement, reader: Reader, say: Say, { ownsPage = false, folder }: MountOptions, signal: AbortSignal): void {
  const { settings, book } = reader;
  const status = create('p', { className: 'spoken', role: 'status', 'aria-live': 'polite' });
  const names = new PageNames(book.pages, say);
  const texts = new BookTexts(book, filesIn(folder)('files/search/'));
  const ui: Ui = {
    root,
    reader,
    say,
    names,
    texts,
    layer: new PageLayer(reader, texts, names, say, ownsPage),
    thumbnails: reader.thumbnails,
    panel: new SidePanel(root, say),
    sound: new TurnSound(reader, signal),
    characterKeys: new CharacterKeys(() => localStorage),
    ownsPage,
    announce: (text) => (status.textContent = text),
    signal,
  };
  const middle = root.querySelector('.middle')!;
  const tools = makeTools(ui);
  const stage = root.querySelector('.stage')!;
  root.prepend(skipLink(ui, stage.id), makeToolbar(ui, settings.title || document.title || say('pages'), tools));
  if (settings.shows.turnButtons) {
    const { back, on } = makeTurnButtons(ui);
    middle.prepend(back);
    middle.append(on);
  }
  root.append(...foot(ui), status);
  announcePages(ui);
  followMotionPreference(reader, signal);
  reader.on('zoomed', ({ scale }) => root.classList.toggle('zoomed', scale > 1));
  if (reader.kind === 'slide') hideBarsAtRest(ui);
  // What the focus can be on needs a name.
  if (reader.kind === 'scroll') nameStage(stage, say('pages'));
  if (settings.keyboard) listenToKeys(ui, ownsPage ? document : root, searchOpener(root, tools));
  if (ownsPage) {
    keepAddress(reader, signal);
    printOpenPages(ui);
  }
}

function searchOpener(root: HTMLElement, tools: readonly RankedTool[]): (() => void) | undefined {
  const search = tools.find(({ tool }) => tool.classList.contains('search-tool'));
  if (!search) return undefined;
  return () => {
    const query = root.querySelector<HTMLElement>('.query');
    if (query) query.focus();
    else search.tool.click();
  };
}

function skipLink({ say, layer }: Ui, target: string): HTMLElement {
  const link = create('a', { className: 'skip', href: `#${target}` }, say('skip'));
  link.addEventListener('click', (event) => {
    event.preventDefault();
    layer.focus();
  });
  return link;
}

function foot(ui: Ui): HTMLElement[] {
  const { slider, dots, pageField } = ui.reader.settings.shows;
  if (!slider && !dots && !pageField) return [];
  const [name, role] = ui.ownsPage ? (['nav', undefined] as const) : (['div', 'group'] as const);
  const element = create(name, { className: 'foot', role, 'aria-label': ui.say('finding') });
  if (slider) element.append(makeSlider(ui));
  if (dots) element.append(makeDots(ui));
  if (pageField) element.append(makePageField(ui));
  return [element];
}

/** Only what is new is said: a window that changes its size settles the book again. */
function announcePages({ reader, names, announce }: Ui): void {
  let last = '';
  reader.on('settled', (places) => {
    const spoken = names.spoken(places);
    if (spoken !== last) announce(spoken);
    last = spoken;
  });
}

function nameStage(stage: Element, name: string): void {
  stage.setAttribute('role', 'group');
  stage.setAttribute('aria-label', name);
}
