// SPDX-License-Identifier: MIT
import type { Store } from './address.ts';

const NAME = 'leafcast:character-keys';
const OFF = 'off';

/**
 * Whether single letters, digits and signs do something. Who speaks to the computer instead of
 * typing may switch them off, for all books of a site. Storage may be full, forbidden or absent.
 */
export class CharacterKeys {
  private isOn: boolean;

  constructor(private readonly store: () => Store) {
    this.isOn = this.read() !== OFF;
  }

  get areOn(): boolean {
    return this.isOn;
  }

  turn(on: boolean): void {
    this.isOn = on;
    try {
      this.store().setItem(NAME, on ? 'on' : OFF);
    } catch {
      // They are as they are wished until the page is left.
    }
  }

  private read(): string | null {
    try {
      return this.store().getItem(NAME);
    } catch {
      return null;
    }
  }
}

/** A blank is none of them, by which pages are scrolled and buttons pressed everywhere. */
export const isCharacter = (key: string): boolean => key.length === 1 && key !== ' ';
