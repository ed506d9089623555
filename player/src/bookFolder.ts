// SPDX-License-Identifier: MIT
import type { BookConfig } from './book.ts';

/** How to get from the page to a book's file by its path in the book's folder; the page's own one when none is given. */
export function filesIn(folder: string | undefined): (path: string) => string {
  if (folder === undefined) return (path) => path;
  const base = new URL(folder.replace(/\/?$/, '/'), document.baseURI);
  return (path) => new URL(path, base).href;
}

/** Pages have paths of their own (book.ts). */
const PATHS = ['LogoFile', 'bgImageURL'];

/** A configuration whose own files are found by that. */
export function configIn(config: BookConfig, fileAt: (path: string) => string): BookConfig {
  const paths = PATHS.filter((key) => config[key]).map((key) => [key, fileAt(String(config[key]))] as const);
  return { ...config, ...Object.fromEntries(paths) };
}
