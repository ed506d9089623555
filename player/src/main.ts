// SPDX-License-Identifier: MIT
// The book's configuration is appended to this script when a book is written, so nothing of it is
// read before the page is ready.
import type { BookConfig, BookData } from './book.ts';
import { binl2hex, chrsz, core_hx, str2binl } from './digest.ts';
import { answerMessages } from './messages.ts';
import { mountBook } from './mount.ts';

declare global {
  interface Window {
    bookConfig?: BookConfig;
    bookData?: BookData;
  }
}

// The appended code calls these by their names.
Object.assign(window, { binl2hex, core_hx, str2binl, chrsz });

let isStarted = false;

function start(): void {
  if (isStarted) return;
  isStarted = true;
  const root = document.getElementById('book') ?? document.body;
  const { reader, signal } = mountBook(root, window.bookConfig ?? {}, window.bookData, { ownsPage: true });
  if (reader) answerMessages(reader, signal);
}

// A page that is complete already, because the script was added to it late, says so no more.
document.addEventListener('DOMContentLoaded', start);
window.addEventListener('load', start);
if (document.readyState === 'complete') setTimeout(start);
