// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

const REST_MILLISECONDS = 2500;

/** A black screen over everything, until a key, a click or a page turn ends it. Answers how to switch it. */
export function makeBlackScreen({ root, reader, say, announce }: Ui): () => void {
  const screen = create('div', { className: 'black', hidden: true });
  const show = (visible: boolean) => {
    if (visible !== screen.hidden) return;
    screen.hidden = !visible;
    announce(visible ? say('blackScreen') : '');
  };
  screen.addEventListener('pointerdown', () => show(false));
  reader.on('turned', () => show(false));
  root.addEventListener('keydown', ({ key }) => key === 'Escape' && show(false));
  root.append(screen);
  return () => show(screen.hidden);
}

/** On the full screen the bars are there while the mouse moves; else only the page is seen. */
export function hideBarsAtRest({ root, layer, signal }: Ui): void {
  let timer = 0;
  const awake = () => {
    root.classList.add('awake');
    clearTimeout(timer);
    timer = window.setTimeout(() => root.classList.remove('awake'), REST_MILLISECONDS);
  };
  for (const name of ['pointermove', 'pointerdown'] as const) root.addEventListener(name, awake, { signal });
  // The button that was pressed for it would take the next press of the space bar too.
  const leaveButton = () => document.fullscreenElement === root && layer.focus();
  document.addEventListener('fullscreenchange', leaveButton, { signal });
  signal.addEventListener('abort', () => clearTimeout(timer));
}
