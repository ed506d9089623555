// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { pauseNowAndThen } from './idle.ts';
import type { PanelContent } from './sidePanel.ts';
import { type Hit, search } from './search.ts';
import type { Ui } from './ui.ts';

const TYPING_MILLISECONDS = 180;
const HITS_AT_ONCE = 40;

/** Searches the text of the book without a server; what was searched for stays for the next time. */
export function makeSearchPanel(ui: Ui): () => PanelContent {
  let query = '';
  return () => {
    const panel = new SearchPanel(ui, query, (changed) => (query = changed));
    const { element } = panel;
    return { element, shown: () => panel.start(), focus: () => panel.focus(), closed: () => ui.layer.mark([]) };
  };
}

class SearchPanel {
  private readonly field = create('input', { type: 'search', className: 'query' });
  private readonly count = create('p', { className: 'count' });
  private readonly list = create('ol', { className: 'hits' });
  private readonly more: HTMLButtonElement;
  readonly element: HTMLElement;
  private readonly hits: Hit[] = [];
  private chosen: Hit | undefined;
  private run = 0; // of the search that is under way; older ones stop
  private wanted = HITS_AT_ONCE;
  private timer = 0;

  constructor(
    private readonly ui: Ui,
    query: string,
    private readonly changed: (query: string) => void,
  ) {
    this.field.setAttribute('aria-label', ui.say('searchFor'));
    this.field.placeholder = ui.say('searchFor');
    this.field.value = query;
    this.more = create('button', { type: 'button', className: 'plain', hidden: true }, ui.say('moreHits'));
    this.more.addEventListener('click', () => this.showMore());
    const form = create('form', { role: 'search', className: 'search' }, this.field, this.count);
    form.addEventListener('submit', (event) => {
      event.preventDefault();
      void this.search().then((isDone) => {
        if (isDone && document.activeElement === this.field) this.list.querySelector('button')?.focus();
      });
    });
    this.field.addEventListener('input', () => {
      clearTimeout(this.timer);
      this.timer = window.setTimeout(() => void this.search(), TYPING_MILLISECONDS);
    });
    this.element = create('div', { className: 'panel-body searching' }, form, this.list, this.more);
  }

  /** Searches for what is remembered. */
  start(): void {
    if (this.field.value) void this.search();
  }

  focus(): void {
    this.field.focus();
    this.field.select();
  }

  /** Answers whether it came to its end. */
  private async search(): Promise<boolean> {
    clearTimeout(this.timer);
    const run = ++this.run;
    this.changed(this.field.value);
    this.hits.length = 0;
    this.chosen = undefined;
    this.wanted = HITS_AT_ONCE;
    this.list.replaceChildren();
    this.show();
    const pause = pauseNowAndThen();
    for await (const hits of search(this.field.value, this.ui.texts.all())) {
      if (this.isOver(run)) return false;
      this.hits.push(...hits);
      if (hits.length > 0) this.show();
      await pause();
    }
    if (this.isOver(run)) return false;
    this.tell();
    return true;
  }

  /** Another query was typed, or the panel was left. */
  private isOver(run: number): boolean {
    return run !== this.run || !this.element.isConnected;
  }

  private tell(): void {
    const { say, announce, layer } = this.ui;
    const { length } = this.hits;
    const found = length === 0 ? say('noHits') : length === 1 ? say('hit') : say('hits', length);
    this.count.textContent = this.field.value.trim() ? found : '';
    announce(this.count.textContent);
    layer.mark(this.hits, this.chosen);
  }

  private show(): void {
    const from = this.list.children.length;
    this.list.append(...this.hits.slice(from, this.wanted).map((hit) => this.entry(hit)));
    this.more.hidden = this.list.children.length >= this.hits.length;
    this.count.textContent = this.hits.length > 0 ? this.ui.say('hits', this.hits.length) : '';
  }

  private showMore(): void {
    const from = this.list.children.length;
    this.wanted += HITS_AT_ONCE;
    this.show();
    this.list.children[from]?.querySelector('button')?.focus();
  }

  private entry(hit: Hit): HTMLElement {
    const { reader, names, say, layer, panel } = this.ui;
    const page = create('span', { className: 'number' }, say('page', names.label(hit.place)));
    const context = create(
      'span',
      { className: 'context' },
      `${hit.before} `,
      create('mark', {}, hit.match),
      ` ${hit.after}`,
    );
    const button = create('button', { type: 'button' }, page, context);
    button.addEventListener('click', () => {
      this.list.querySelector('[aria-current]')?.removeAttribute('aria-current');
      button.setAttribute('aria-current', 'true');
      this.chosen = hit;
      layer.mark(this.hits, hit);
      panel.makeWay();
      reader.goTo(hit.place, hit.boxes[0]?.[1]);
    });
    return create('li', {}, button);
  }
}
