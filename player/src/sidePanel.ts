// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { panelHead } from './panelHead.ts';
import type { Say } from './texts.ts';

export interface PanelContent {
  readonly element: HTMLElement;
  /** What takes the focus; the panel itself when there is nothing to. */
  readonly focus?: () => void;
  /** Called once the panel is in the document. */
  readonly shown?: () => void;
  /** Called when a reader is done with it, and with what was chosen in it. */
  readonly closed?: () => void;
}

interface OpenPanel {
  readonly button: HTMLElement;
  readonly element: HTMLElement;
  readonly content: PanelContent;
  readonly opener: HTMLElement | undefined;
}

/** The place beside the book for one panel at a time, made when it is opened and dropped after it. */
export class SidePanel {
  private open: OpenPanel | undefined;
  private chosen: PanelContent | undefined; // what made way for the page

  constructor(
    private readonly root: HTMLElement,
    private readonly say: Say,
  ) {}

  toggle(button: HTMLElement, title: string, build: () => PanelContent): void {
    if (this.open?.button === button) return void this.close();
    const opener = this.open?.opener ?? focused();
    this.remove()?.closed?.();
    this.leaveChosen();
    const content = build();
    const element = this.frame(title, content.element);
    this.open = { button, element, content, opener };
    button.setAttribute('aria-expanded', 'true');
    this.root.querySelector('.middle')!.before(element);
    this.root.dataset.panel = 'open';
    content.shown?.();
    if (content.focus) content.focus();
    else element.focus();
  }

  /** Answers whether there was one, or something that was chosen in one before. */
  close(): boolean {
    if (!this.open) return this.leaveChosen();
    const { opener } = this.open;
    this.remove()?.closed?.();
    opener?.focus();
    return true;
  }

  /** Something was chosen in it: makes way for the page where it covers that. */
  makeWay(): void {
    if (!this.open || !this.root.classList.contains('narrow')) return;
    const { opener } = this.open;
    this.chosen = this.remove();
    // A page takes the focus over, but only from what is the book's.
    opener?.focus();
  }

  private leaveChosen(): boolean {
    const { chosen } = this;
    this.chosen = undefined;
    chosen?.closed?.();
    return chosen !== undefined;
  }

  private remove(): PanelContent | undefined {
    const { open } = this;
    open?.element.remove();
    open?.button.setAttribute('aria-expanded', 'false');
    this.open = undefined;
    delete this.root.dataset.panel;
    return open?.content;
  }

  private frame(title: string, body: HTMLElement): HTMLElement {
    const head = panelHead(title, this.say('close'), () => this.close());
    const element = create('aside', { className: 'panel', 'aria-label': title, tabIndex: -1 }, head, body);
    element.addEventListener('keydown', (event) => {
      if (event.key !== 'Escape' || event.isComposing) return;
      event.stopPropagation();
      this.close();
    });
    return element;
  }
}

const focused = (): HTMLElement | undefined =>
  document.activeElement instanceof HTMLElement ? document.activeElement : undefined;
