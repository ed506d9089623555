// SPDX-License-Identifier: MIT
import { type BookConfig, isOn } from './book.ts';

const COLOURS = {
  '--bar': 'toolBarColor',
  '--bar-text': 'toolBarTextColor',
  '--link': 'linkColor',
  '--backdrop': 'backgroundColor',
} as const;

/** Puts the configured colours and the background where the style sheet looks for them. */
export function dress(root: HTMLElement, config: BookConfig): void {
  const text = (key: string) => String(config[key] ?? '').trim();
  for (const [name, key] of Object.entries(COLOURS)) if (isColour(text(key))) root.style.setProperty(name, text(key));
  if (isColour(text('toolBarColor'))) {
    const isDark = luminance(text('toolBarColor')) < 0.3;
    root.dataset.tone = isDark ? 'dark' : 'light';
    if (!isColour(text('toolBarTextColor'))) root.style.setProperty('--bar-text', isDark ? '#f2f2f0' : '#2b2b28');
  }
  if (text('bgImageURL')) root.style.backgroundImage = `url(${JSON.stringify(text('bgImageURL'))})`;
  root.dataset.background = text('bgImagePosition').toLowerCase() || 'tile';
  root.classList.toggle('shadowed', text('pageShadow') === '' || isOn(text('pageShadow')));
}

/** The browser's own bars take the colour of the book's, where they take one from a page. */
export function colourBrowser(config: BookConfig): void {
  const colour = String(config.toolBarColor ?? '').trim();
  if (isColour(colour)) document.querySelector('meta[name="theme-color"]')?.setAttribute('content', colour);
}

const NARROW_PIXELS = 720;
const SHORT_PIXELS = 480;

/** The style sheet arranges the book by its own size, because it may be a part of a larger page. */
export function followSize(root: HTMLElement, signal: AbortSignal): void {
  const measure = () => {
    root.classList.toggle('narrow', root.clientWidth < NARROW_PIXELS);
    root.classList.toggle('short', root.clientHeight <= SHORT_PIXELS);
  };
  measure();
  const observer = new ResizeObserver(measure);
  observer.observe(root);
  signal.addEventListener('abort', () => observer.disconnect());
}

const isColour = (text: string): boolean => /^#[\da-f]{6}$/i.test(text);

/** Relative luminance as WCAG defines it, of a colour #rrggbb. */
function luminance(colour: string): number {
  const linear = [1, 3, 5].map((at) => {
    const channel = parseInt(colour.slice(at, at + 2), 16) / 255;
    return channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * linear[0]! + 0.7152 * linear[1]! + 0.0722 * linear[2]!;
}
