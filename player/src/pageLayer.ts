// SPDX-License-Identifier: MIT
import type { PageLink, TextLine, WordBox } from './book.ts';
import type { BookTexts } from './bookTexts.ts';
import { create, putAt } from './dom.ts';
import { icon } from './icons.ts';
import { makePageLink } from './pageLink.ts';
import type { PageNames } from './pageNames.ts';
import type { Reader } from './reader.ts';
import type { PlacedPage } from './sharpView.ts';
import type { Say } from './texts.ts';

export interface Mark {
  readonly place: number;
  readonly boxes: readonly WordBox[];
}

interface ShownPage {
  readonly element: HTMLElement;
  readonly marks: HTMLElement;
  readonly links: ReadonlyMap<HTMLAnchorElement, PageLink>;
}

const SAFE_ADDRESS = /^(https?:|mailto:|tel:)/i;
/** Text is worth waiting for pictures, which all readers see, but not longer. */
const TEXT_WAIT_MILLISECONDS = 1000;
const MOST_MARKS = 100; // on a page; a search for one letter has more hits than anyone looks at

/**
 * What lies over the pictures of the open pages: their text for screen readers, links, marks of a
 * search, and a card where a picture could not be loaded. Pages that are not seen are not there.
 */
export class PageLayer {
  private readonly element = create('div', { className: 'pages', tabIndex: -1 });
  private readonly shown = new Map<number, ShownPage>();
  private marks: readonly Mark[] = [];
  private chosen: Mark | undefined;
  private focusWanted = 0; // of a page that was jumped to
  private textTimer = 0;

  constructor(
    private readonly reader: Reader,
    private readonly texts: BookTexts,
    private readonly names: PageNames,
    private readonly say: Say,
    private readonly ownsPage: boolean,
  ) {
    reader.sheet.append(this.element);
    reader.on('placed', (pages) => this.place(pages));
    reader.on('pictured', () => {
      this.showFailures();
      this.addTextsBehindPictures();
    });
    reader.on('jumped', ({ to }) => (this.focusWanted = to));
    reader.on('revealed', (place) => {
      this.focusWanted = place;
      if (this.shown.has(place)) this.settleFocus();
    });
    reader.on('settled', () => {
      this.settleFocus();
      this.addTextsBehindPictures();
    });
    this.element.addEventListener('focusin', ({ target }) => this.bringIntoSight(target as Element));
  }

  /** Puts the focus on a page, from where a screen reader goes on to read it. */
  focus(place = this.reader.place): void {
    this.shown.get(place)?.element.focus({ preventScroll: true });
  }

  /** Where it is, for who has gone on typing since a jump. */
  leaveFocus(): void {
    this.focusWanted = 0;
  }

  mark(marks: readonly Mark[], chosen?: Mark): void {
    this.marks = marks;
    this.chosen = chosen;
    for (const [place, page] of this.shown) this.showMarks(place, page);
  }

  private place(pages: readonly PlacedPage[]): void {
    const places = pages.map(({ place }) => place);
    for (const [place, page] of this.shown) if (!places.includes(place)) this.remove(place, page);
    for (const { place, picture } of pages) putAt(this.pageAt(place).element, picture);
    // In reading order, which is the order in which they are reached by keys.
    const inOrder = [...new Set(places)].map((place) => this.shown.get(place)!.element);
    inOrder.forEach((element, index) => {
      if (this.element.children[index] !== element)
        this.element.insertBefore(element, this.element.children[index] ?? null);
    });
    this.showFailures();
  }

  private remove(place: number, { element }: ShownPage): void {
    if (element.contains(document.activeElement)) {
      // The page that comes in its stead takes the focus over once it lies still. Till then keys are heard here.
      this.element.focus({ preventScroll: true });
    }
    element.remove();
    this.shown.delete(place);
  }

  private pageAt(place: number): ShownPage {
    const known = this.shown.get(place);
    if (known) return known;
    const page = this.reader.book.pages[place - 1]!;
    const marks = create('div', { className: 'marks', 'aria-hidden': 'true' });
    const name = this.say('page', this.names.label(place));
    const element = create('div', { className: 'page', role: 'group', tabIndex: -1, 'aria-label': name }, marks);
    element.dataset.place = String(place);
    const links = new Map(page.links.flatMap((link) => this.link(link) ?? []));
    element.append(...links.keys());
    const shown = { element, marks, links };
    this.shown.set(place, shown);
    this.showMarks(place, shown);
    return shown;
  }

  private addTextsBehindPictures(): void {
    const isWaiting = [...this.shown.keys()].some((place) => !this.reader.hasPicture(place) && !this.reader.hasFailed(place));
    clearTimeout(this.textTimer);
    if (isWaiting) this.textTimer = window.setTimeout(() => this.addTexts(), TEXT_WAIT_MILLISECONDS);
    else this.addTexts();
  }

  private addTexts(): void {
    if (!this.element.isConnected) return; // taken off meanwhile
    for (const [place, page] of this.shown)
      if (page.element.dataset.text === undefined) {
        page.element.dataset.text = '';
        void this.texts.linesOf(place).then((lines) => this.addText(page, lines));
      }
  }

  private addText({ element, marks, links }: ShownPage, lines: readonly TextLine[]): void {
    if (!element.isConnected || lines.length === 0) return;
    // One element a line, so that a screen reader can be moved through it line by line; the language of
    // the interface is not that of the book.
    marks.after(create('div', { className: 'spoken', lang: '' }, ...lines.map(({ text }) => create('p', {}, text))));
    for (const [anchor, link] of links) this.nameLink(anchor, link, textUnder(link, lines));
  }

  private link(link: PageLink): [readonly [HTMLAnchorElement, PageLink]] | undefined {
    const isForeign = SAFE_ADDRESS.test(link.url ?? '');
    if (!isForeign && !link.place) return undefined;
    const anchor = isForeign ? this.leadAway(link.url!) : this.leadTo(link.place!);
    putInside(anchor, [link.x, link.y, link.width, link.height]);
    this.nameLink(anchor, link, '');
    return [[anchor, link]];
  }

  private nameLink(anchor: HTMLAnchorElement, link: PageLink, text: string): void {
    const target = link.url ?? this.say('goTo', this.names.label(link.place!));
    const opensWindow = link.url && this.reader.settings.linkTarget === '_blank';
    const title = opensWindow ? this.say('newWindow', target) : target;
    anchor.title = title;
    anchor.setAttribute('aria-label', text ? `${text}: ${title}` : title);
  }

  private leadAway(href: string): HTMLAnchorElement {
    const target = this.reader.settings.linkTarget;
    return create('a', { className: 'link', href, target, rel: 'noopener noreferrer' });
  }

  private leadTo(place: number): HTMLAnchorElement {
    const link = makePageLink(place, this.ownsPage, () => this.reader.goTo(place));
    link.className = 'link';
    return link;
  }

  private showMarks(place: number, { marks }: ShownPage): void {
    const here = this.marks.filter((mark) => mark.place === place && mark !== this.chosen).slice(0, MOST_MARKS);
    const chosen = this.chosen?.place === place ? markElements(this.chosen, 'mark chosen') : [];
    marks.replaceChildren(...here.flatMap((mark) => markElements(mark, 'mark')), ...chosen);
  }

  private showFailures(): void {
    for (const [place, { element }] of this.shown) {
      const card = element.querySelector('.missing');
      const hasFailed = this.reader.hasFailed(place);
      if (hasFailed && !card) element.append(this.failureCard(place));
      else if (!hasFailed) card?.remove();
    }
  }

  private failureCard(place: number): HTMLElement {
    const page = this.reader.book.pages[place - 1]!;
    const label = create('p', { className: 'label', 'aria-hidden': 'true' }, this.names.label(place));
    const reason = create('p', { className: 'reason' });
    const card = create('div', { className: 'missing' }, label, reason);
    // A page that was never given a picture cannot be had by asking again.
    reason.textContent = page.width === 0 ? this.say('missing', page.image) : this.say('failed');
    if (page.width > 0) card.append(this.retryButton(place));
    return card;
  }

  private retryButton(place: number): HTMLElement {
    const retry = create('button', { type: 'button', className: 'plain' }, icon('retry'), this.say('retry'));
    retry.addEventListener('click', () => {
      this.focus(place);
      this.reader.retry(place);
      this.showFailures();
    });
    return retry;
  }

  private settleFocus(): void {
    const isBetweenPages = document.activeElement === this.element;
    if (isBetweenPages || (this.focusWanted !== 0 && this.isFocusFree()))
      this.focus(this.shown.has(this.focusWanted) ? this.focusWanted : this.reader.place);
    this.focusWanted = 0;
  }

  /** A book inside another page takes the focus from its own controls only. */
  private isFocusFree(): boolean {
    const focused = document.activeElement;
    const isOurs = focused?.closest('.leafcast') === this.element.closest('.leafcast');
    const isNobodys = focused === null || focused === document.body;
    return document.hasFocus() && (isOurs || (isNobodys && this.ownsPage));
  }

  /** A zoomed page lies partly beyond the stage, where nothing scrolls to what keys reach. */
  private bringIntoSight(focused: Element): void {
    if (!focused.matches('.link:focus-visible')) return;
    const [box, space] = [focused, this.element.closest('.stage')!].map((each) => each.getBoundingClientRect());
    const across = beyond(box!.left, box!.right, space!.left, space!.right) / space!.width;
    const down = beyond(box!.top, box!.bottom, space!.top, space!.bottom) / space!.height;
    if (across !== 0 || down !== 0) this.reader.pan(across, down);
  }
}

/** How far from..to reaches beyond low..high; negative before it. */
function beyond(from: number, to: number, low: number, high: number): number {
  if (from < low) return from - low;
  return to > high ? Math.min(to - high, from - low) : 0;
}

const markElements = ({ boxes }: Mark, className: string): HTMLElement[] =>
  boxes.map((box) => {
    const element = create('div', { className });
    putInside(element, box);
    return element;
  });

/** The words that lie mostly inside a link; they are its name. */
function textUnder(link: PageLink, lines: readonly TextLine[]): string {
  const isInside = ([x, y, width, height]: WordBox) => {
    const [across, down] = [x + width / 2 - link.x, y + height / 2 - link.y];
    return across >= 0 && across <= link.width && down >= 0 && down <= link.height;
  };
  return lines
    .flatMap(({ text, boxes }) => text.split(' ').filter((_, index) => boxes[index] && isInside(boxes[index]!)))
    .join(' ');
}

/** In fractions of the page. */
function putInside(element: HTMLElement, [x, y, width, height]: WordBox): void {
  putAt(element, { x: x * 100, y: y * 100, width: width * 100, height: height * 100 }, '%');
}
