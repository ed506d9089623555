// SPDX-License-Identifier: MIT
import { create, putAt } from './dom.ts';
import { clamp } from './geometry.ts';
import { onResize } from './onResize.ts';
import type { PanelContent } from './sidePanel.ts';
import type { Ui } from './ui.ts';

const CELL_WIDTH = 104; // pixels, at least
const LABEL_HEIGHT = 34;
const GAP = 12;
const ROWS_BEYOND = 1; // above and below what is seen

interface Grid {
  readonly columns: number;
  readonly width: number;
  readonly height: number;
}

/** An overview of all pages. Only the rows in sight exist, so a thousand pages cost no more than ten. */
export function thumbnailPanel(ui: Ui): PanelContent {
  const overview = new Overview(ui);
  return {
    element: overview.element,
    shown: () => overview.reveal(ui.reader.place),
    focus: () => overview.focus(ui.reader.place),
    closed: overview.leave,
  };
}

class Overview {
  private readonly list = create('ul', { className: 'thumbnails' });
  readonly element = create('div', { className: 'panel-body' }, this.list);
  private readonly cells = new Map<number, HTMLElement>();
  /** To be called when it is not shown any more. */
  readonly leave: () => void;
  private grid: Grid = { columns: 1, width: CELL_WIDTH, height: CELL_WIDTH };

  constructor(private readonly ui: Ui) {
    this.element.addEventListener('scroll', () => this.show(), { passive: true });
    this.list.addEventListener('keydown', (event) => this.onKey(event));
    const stops = [
      onResize(this.element, () => this.element.isConnected && this.show()),
      ui.reader.on('turned', () => this.markOpenPages()),
    ];
    this.leave = () => {
      stops.forEach((stop) => stop());
      ui.signal.removeEventListener('abort', this.leave);
    };
    ui.signal.addEventListener('abort', this.leave);
  }

  reveal(place: number): void {
    this.show();
    const top = this.topOf(place);
    const { clientHeight, scrollTop } = this.element;
    if (top < scrollTop || top + this.grid.height > scrollTop + clientHeight)
      this.element.scrollTop = top - Math.max((clientHeight - this.grid.height) / 2, 0);
    this.show();
  }

  focus(place: number): void {
    this.reveal(place);
    this.cells.get(place)?.querySelector('button')?.focus({ preventScroll: true });
  }

  private topOf(place: number): number {
    return Math.floor((place - 1) / this.grid.columns) * (this.grid.height + GAP);
  }

  private measured(): Grid {
    const style = getComputedStyle(this.element);
    const space = this.element.clientWidth - parseFloat(style.paddingLeft) - parseFloat(style.paddingRight);
    const columns = Math.max(Math.floor((space + GAP) / (CELL_WIDTH + GAP)), 1);
    const width = Math.floor((space - GAP * (columns - 1)) / columns);
    return { columns, width, height: Math.round(width / Math.min(this.ui.reader.book.shape, 1.6)) + LABEL_HEIGHT };
  }

  private show(): void {
    this.grid = this.measured();
    const { columns, height } = this.grid;
    const { pageCount } = this.ui.reader;
    this.list.style.height = `${Math.ceil(pageCount / columns) * (height + GAP) - GAP}px`;
    const row = (pixels: number) => Math.floor(pixels / (height + GAP));
    const first = Math.max(row(this.element.scrollTop) - ROWS_BEYOND, 0) * columns + 1;
    const last = Math.min(
      (row(this.element.scrollTop + this.element.clientHeight) + 1 + ROWS_BEYOND) * columns,
      pageCount,
    );
    for (const [place, cell] of this.cells) if (place < first || place > last) this.drop(place, cell);
    for (let place = first; place <= last; place++) this.place(place, this.cells.get(place) ?? this.add(place));
    this.markOpenPages();
  }

  private get firstInSight(): number {
    const { columns, height } = this.grid;
    return Math.ceil(this.element.scrollTop / (height + GAP)) * columns + 1;
  }

  private drop(place: number, cell: HTMLElement): void {
    cell.querySelector('canvas')!.width = 0; // frees the pixels at once
    cell.remove();
    this.cells.delete(place);
  }

  private add(place: number): HTMLElement {
    const { reader, names, say, thumbnails, panel } = this.ui;
    const canvas = create('canvas', { 'aria-hidden': 'true' });
    const name = say('page', names.label(place));
    const button = create(
      'button',
      { type: 'button', 'aria-label': name, tabIndex: -1 },
      canvas,
      create('span', {}, names.label(place)),
    );
    button.addEventListener('click', () => {
      panel.makeWay();
      reader.goTo(place);
    });
    const cell = create('li', { 'aria-setsize': reader.pageCount, 'aria-posinset': place }, button);
    this.cells.set(place, cell);
    const after = [...this.cells].filter(([other]) => other > place).sort(([one], [other]) => one - other)[0];
    this.list.insertBefore(cell, after?.[1] ?? null);
    thumbnails.draw(place, canvas);
    return cell;
  }

  private place(place: number, cell: HTMLElement): void {
    const { columns, width, height } = this.grid;
    const column = (place - 1) % columns;
    const fromEnd = this.ui.reader.settings.rightToLeft ? columns - 1 - column : column;
    putAt(cell, { x: fromEnd * (width + GAP), y: this.topOf(place), width, height });
  }

  private markOpenPages(): void {
    const { places } = this.ui.reader;
    const reached = this.list.contains(document.activeElement) ? document.activeElement : undefined;
    const stop = this.cells.has(places[0] ?? 0) ? places[0] : this.firstInSight;
    for (const [place, cell] of this.cells) {
      const button = cell.querySelector('button')!;
      button.setAttribute('aria-current', places.includes(place) ? 'page' : 'false');
      button.tabIndex = (reached ? button === reached : place === stop) ? 0 : -1;
    }
  }

  private onKey(event: KeyboardEvent): void {
    const here = [...this.cells].find(([, cell]) => cell.contains(document.activeElement))?.[0];
    const sideways = this.ui.reader.settings.rightToLeft ? -1 : 1;
    const { columns } = this.grid;
    const { pageCount } = this.ui.reader;
    const steps: Readonly<Record<string, number>> = {
      ArrowRight: sideways,
      ArrowLeft: -sideways,
      ArrowDown: columns,
      ArrowUp: -columns,
      Home: -pageCount,
      End: pageCount,
    };
    const step = steps[event.key];
    if (!here || step === undefined) return;
    event.preventDefault();
    event.stopPropagation();
    this.focus(clamp(here + step, 1, pageCount));
    this.markOpenPages();
  }
}
