// SPDX-License-Identifier: MIT
import type { Reader } from './reader.ts';

let answering: AbortSignal | undefined; // aborted when the book that answers is taken down

/**
 * Lets the page around a frame with a book turn it and follow it, by messages. To the frame:
 *
 *     { leafcast: 'listen' }              from then on it sends events
 *     { leafcast: 'goTo', place: 12 }
 *     { leafcast: 'next' }
 *     { leafcast: 'previous' }
 *
 * From it: { leafcast: 'turned' | 'settled', places: [12, 13], pageCount: 200 }.
 *
 * Only the page around it is answered, and events go to the origin that asked for them; to any, when
 * that page is one from a file, which has none that could be named. None of the commands can do more
 * than a reader's hand. Of several books on one page the one that was there first answers.
 */
export function answerMessages(reader: Reader, signal: AbortSignal): void {
  if (window.parent === window || answering?.aborted === false) return;
  answering = signal;
  let listener = '';
  const send = (name: string, places: readonly number[]) => {
    if (listener)
      window.parent.postMessage({ leafcast: name, places: [...places], pageCount: reader.pageCount }, listener);
  };
  const commands: Readonly<Record<string, (message: Command, origin: string) => void>> = {
    listen: (_, origin) => {
      listener = origin === 'null' ? '*' : origin;
      send('settled', reader.places);
    },
    goTo: ({ place }) => {
      if (typeof place === 'number') reader.goTo(place);
    },
    next: () => void reader.next(),
    previous: () => void reader.previous(),
  };
  reader.on('turned', (places) => send('turned', places));
  reader.on('settled', (places) => send('settled', places));
  window.addEventListener(
    'message',
    ({ source, data, origin }: MessageEvent<unknown>) => {
      if (source !== window.parent || !isCommand(data) || !Object.keys(commands).includes(data.leafcast)) return;
      commands[data.leafcast]!(data, origin);
    },
    { signal },
  );
}

interface Command {
  readonly leafcast: string;
  readonly place?: unknown;
}

const isCommand = (data: unknown): data is Command =>
  typeof data === 'object' && data !== null && typeof (data as Command).leafcast === 'string';
