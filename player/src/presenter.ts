// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import type { Ui } from './ui.ts';

const REST_MILLISECONDS = 2500;

/** A black screen over everything, until it is switched off, clicked or another page is shown. */
export class BlackScreen {
  private readonly element = create('div', { className: 'black', hidden: true });

  constructor(private readonly ui: Ui) {
    this.element.addEventListener('pointerdown', () => this.hide());
    ui.reader.on('turned', () => this.hide());
    ui.root.append(this.element);
  }

  toggle(): void {
    if (this.hide()) return;
    this.element.hidden = false;
    this.ui.announce(this.ui.say('blackScreen'));
  }

  /** Answers whether it was there. */
  hide(): boolean {
    const wasThere = !this.element.hidden;
    this.element.hidden = true;
    return wasThere;
  }
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
