// SPDX-License-Identifier: MIT
import type { PageLink, TextLine, WordBox } from './book.ts';
import type { BookTexts } from './bookTexts.ts';
import { create } from './dom.ts';
import { icon } from './icons.ts';
import { hashOf } from './address.ts';
import type { Box } from './geometry.ts';
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

/**
 * What lies over the pictures of the open pages: their text for screen readers, links, marks of a
 * search, and a card where a picture could not be loaded. Pages that are not seen are not there.
 */
export class PageLayer {
  private readonly element = create('div', { className: 'pages' });
  private readonly shown = new Map<number, ShownPage>();
  private marks: readonly Mark[] = [];
  private chosen: Mark | undefined;
  private focusWanted = 0;
  private readonly pictured = new Set<number>();

  constructor(
    private readonly reader: Reader,
    private readonly texts: BookTexts,
    private readonly names: PageNames,
    private readonly say: Say,
  ) {
    reader.sheet.append(this.element);
    reader.on('placed', (pages) => this.place(pages));
    reader.on('pictured', (place) => {
      this.pictured.add(place);
      this.showFailures();
      this.addTexts();
    });
    reader.on('jumped', ({ to }) => (this.focusWanted = to));
    reader.on('settled', () => {
      this.focusAfterJump();
      this.addTexts();
    });
  }

  /** Puts the focus on a page, from where a screen reader goes on to read it. */
  focus(place = this.reader.place): void {
    this.shown.get(place)?.element.focus({ preventScroll: true });
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
    // The page that comes in its stead takes the focus over, or keys would start from the top.
    if (element.contains(document.activeElement)) this.focusWanted ||= -1;
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

  /** Once the pictures are there, because the text is neither seen nor urgent. */
  private addTexts(): void {
    for (const place of this.shown.keys()) if (!this.pictured.has(place) && !this.reader.hasFailed(place)) return;
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
    const anchor = create('a', { className: 'link' });
    putInside(anchor, [link.x, link.y, link.width, link.height]);
    this.nameLink(anchor, link, '');
    if (isForeign) this.leadAway(anchor, link.url!);
    else this.leadTo(anchor, link.place!);
    return [[anchor, link]];
  }

  private nameLink(anchor: HTMLAnchorElement, link: PageLink, text: string): void {
    const target = link.url ?? this.say('goTo', this.names.label(link.place!));
    const opensWindow = link.url && this.reader.settings.linkTarget === '_blank';
    const title = opensWindow ? this.say('newWindow', target) : target;
    anchor.title = title;
    anchor.setAttribute('aria-label', text ? `${text}: ${title}` : title);
  }

  private leadAway(anchor: HTMLAnchorElement, url: string): void {
    Object.assign(anchor, { href: url, target: this.reader.settings.linkTarget, rel: 'noopener noreferrer' });
  }

  private leadTo(anchor: HTMLAnchorElement, place: number): void {
    anchor.href = hashOf(place);
    anchor.addEventListener('click', (event) => {
      if (event.ctrlKey || event.metaKey || event.shiftKey) return;
      event.preventDefault();
      this.reader.goTo(place);
    });
  }

  private showMarks(place: number, { marks }: ShownPage): void {
    const here = this.marks.filter((mark) => mark.place === place);
    marks.replaceChildren(
      ...here.flatMap((mark) =>
        mark.boxes.map((box) => {
          const element = create('div', { className: mark === this.chosen ? 'mark chosen' : 'mark' });
          putInside(element, box);
          return element;
        }),
      ),
    );
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

  private focusAfterJump(): void {
    if (this.focusWanted === 0) return;
    if (isFocusFree(this.element)) this.focus(this.shown.has(this.focusWanted) ? this.focusWanted : this.reader.place);
    this.focusWanted = 0;
  }
}

/** A book inside another page takes the focus from its own controls only. */
function isFocusFree(element: HTMLElement): boolean {
  const focused = document.activeElement;
  const isOurs =
    focused === null || focused === document.body || focused.closest('.leafcast') === element.closest('.leafcast');
  return document.hasFocus() && isOurs;
}

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

function putAt(element: HTMLElement, box: Box): void {
  const { style } = element;
  [style.left, style.top] = [`${box.x}px`, `${box.y}px`];
  [style.width, style.height] = [`${box.width}px`, `${box.height}px`];
}

/** In fractions of the page. */
function putInside(element: HTMLElement, [x, y, width, height]: WordBox): void {
  const { style } = element;
  [style.left, style.top] = [`${x * 100}%`, `${y * 100}%`];
  [style.width, style.height] = [`${width * 100}%`, `${height * 100}%`];
}
