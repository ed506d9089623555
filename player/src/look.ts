// SPDX-License-Identifier: MIT
import { type BookConfig, isOn } from './book.ts';
import { isColour, luminance } from './colour.ts';
import { onResize } from './onResize.ts';

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
  signal.addEventListener('abort', onResize(root, measure));
}

const ATTRIBUTES = ['lang', 'dir', 'tabindex', 'data-view', 'data-panel', 'data-tone', 'data-background'];
const CLASSES = ['leafcast', 'embedded', 'zoomed', 'no-bar', 'no-foot', 'no-turns', 'shadowed', 'narrow', 'short', 'awake'];
const STYLES = [...Object.keys(COLOURS), 'background-image'];

/** Answers how to give an element back what of all this it had. */
export function rememberLook(root: HTMLElement): () => void {
  const attributes = ATTRIBUTES.map((name) => [name, root.getAttribute(name)] as const);
  const classes = CLASSES.map((name) => [name, root.classList.contains(name)] as const);
  const styles = STYLES.map((name) => [name, root.style.getPropertyValue(name)] as const);
  return () => {
    for (const [name, had] of classes) root.classList.toggle(name, had);
    for (const [name, value] of styles) root.style.setProperty(name, value);
    for (const [name, value] of attributes)
      if (value === null) root.removeAttribute(name);
      else root.setAttribute(name, value);
  };
}
