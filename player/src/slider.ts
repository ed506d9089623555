// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { clamp } from './geometry.ts';
import type { Reader } from './reader.ts';
import type { Ui } from './ui.ts';

const THUMB_PIXELS = 18; // as in the style sheet

/** Goes through the book; what lies where is seen in a bubble above it. */
export function makeSlider({ reader, say, names, thumbnails }: Ui): HTMLElement {
  const range = create('input', {
    type: 'range',
    min: '1',
    step: '1',
    className: 'range',
    'aria-label': say('slider'),
  });
  range.max = String(Math.max(reader.pageCount, 1));
  range.dir = reader.settings.rightToLeft ? 'rtl' : 'ltr';
  const bubble = new Bubble(range, thumbnails, (place) => say('page', names.label(place)));
  const element = create('div', { className: 'slider' }, range, bubble.element);
  let byPointer = false;

  let shown = 1;

  const show = (places: readonly number[]) => {
    if (byPointer) return; // it is where the pointer holds it
    // At the end of the book the slider is at its end too.
    shown = places.includes(reader.pageCount) ? reader.pageCount : (places[0] ?? 1);
    range.value = String(shown);
    fill(range, names.spoken(places));
  };
  reader.on('turned', show);
  reader.on('settled', show);
  const letGo = () => {
    byPointer = false;
    show(reader.places);
  };
  range.addEventListener('pointerdown', ({ pointerId }) => {
    byPointer = true;
    range.setPointerCapture(pointerId); // it is heard of then wherever it is let go
  });
  for (const name of ['click', 'pointercancel', 'keydown']) range.addEventListener(name, letGo);
  range.addEventListener('pointermove', (event) => bubble.show(placeUnder(range, event.clientX)));
  range.addEventListener('pointerleave', () => bubble.hide());
  range.addEventListener('blur', () => bubble.hide());
  range.addEventListener('input', () => {
    fill(range, say('page', names.label(Number(range.value))));
    bubble.show(Number(range.value));
  });
  range.addEventListener('change', () => {
    const place = Number(range.value);
    if (byPointer) reader.goTo(place);
    else stepTo(reader, place, shown);
    if (byPointer) bubble.hide();
    letGo();
  });
  return element;
}

/** With keys every page on the way is a change; only a jump is worth a step of the history. */
function stepTo(reader: Reader, place: number, shown: number): void {
  if (!reader.places.includes(place)) reader.show(place);
  // The other page of a spread is seen already, so the key means the next spread.
  else if (place > shown) reader.next();
  else if (place < shown) reader.previous();
}

function fill(range: HTMLInputElement, spoken: string): void {
  const part = (Number(range.value) - 1) / Math.max(Number(range.max) - 1, 1);
  range.style.setProperty('--filled', `${part * 100}%`);
  range.setAttribute('aria-valuetext', spoken);
}

function placeUnder(range: HTMLInputElement, clientX: number): number {
  const box = range.getBoundingClientRect();
  const along = clamp((clientX - box.left - THUMB_PIXELS / 2) / (box.width - THUMB_PIXELS), 0, 1);
  return 1 + Math.round((range.dir === 'rtl' ? 1 - along : along) * (Number(range.max) - 1));
}

class Bubble {
  private readonly canvas = create('canvas');
  private readonly label = create('span');
  readonly element = create(
    'div',
    { className: 'bubble', hidden: true, 'aria-hidden': 'true' },
    this.canvas,
    this.label,
  );
  private place = 0;

  constructor(
    private readonly range: HTMLInputElement,
    private readonly thumbnails: { draw(place: number, canvas: HTMLCanvasElement): void },
    private readonly nameOf: (place: number) => string,
  ) {}

  show(place: number): void {
    this.element.hidden = false;
    if (place !== this.place) {
      this.place = place;
      this.label.textContent = this.nameOf(place);
      this.thumbnails.draw(place, this.canvas);
    }
    const part = (place - 1) / Math.max(Number(this.range.max) - 1, 1);
    const along = this.range.dir === 'rtl' ? 1 - part : part;
    const wanted = THUMB_PIXELS / 2 + along * (this.range.clientWidth - THUMB_PIXELS);
    const half = this.element.offsetWidth / 2;
    this.element.style.left = `${clamp(wanted, half - 8, Math.max(this.range.clientWidth - half + 8, half))}px`;
  }

  hide(): void {
    this.element.hidden = true;
    this.place = 0;
  }
}
