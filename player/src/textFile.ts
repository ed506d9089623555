// SPDX-License-Identifier: MIT
import type { TextLine } from './book.ts';

/** The lines of each page of one text file. */
export type PageTexts = readonly (readonly TextLine[])[];

declare global {
  interface Window {
    bookText?: (file: number, pages: PageTexts) => void;
  }
}

const received = new WeakMap<Element, PageTexts>();

/** By a script element, because nothing else loads a file beside a page that is opened from `file://`. */
export function loadTextFile(url: string): Promise<PageTexts> {
  return new Promise((resolve, reject) => {
    const script = document.createElement('script');
    const end = () => {
      script.remove();
      const pages = received.get(script);
      if (pages) resolve(pages);
      else reject(new Error(url));
    };
    script.onload = script.onerror = end;
    window.bookText = receive;
    script.src = url;
    document.head.append(script);
  });
}

/** Several books on a page have files of the same number, so that the script itself tells them apart. */
function receive(_file: number, pages: PageTexts): void {
  if (document.currentScript) received.set(document.currentScript, pages);
}
