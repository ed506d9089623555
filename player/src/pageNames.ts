// SPDX-License-Identifier: MIT
import type { Page } from './book.ts';
import type { Say } from './texts.ts';

/**
 * What pages are called. A label is what is printed on a page (v, 12, A-3), most often its place in
 * the book; where it is not, both are told.
 */
export class PageNames {
  constructor(
    private readonly pages: readonly Page[],
    private readonly say: Say,
  ) {}

  label(place: number): string {
    return this.pages[place - 1]?.label || String(place);
  }

  /** "12–13" */
  labels(places: readonly number[]): string {
    return places.map((place) => this.label(place)).join('–');
  }

  /** "12–13 / 200", or with other labels "xii (12 / 200)" */
  total(places: readonly number[]): string {
    return this.areCounted(places) ? `/ ${this.pages.length}` : `(${places.join('–')} / ${this.pages.length})`;
  }

  /** "Pages 12 and 13 of 200" */
  spoken(places: readonly number[]): string {
    const [first = 1, second] = places;
    const [counts, total] = [places.join('–'), this.pages.length];
    if (this.areCounted(places))
      return second ? this.say('pagesOf', first, second, total) : this.say('pageOf', first, total);
    return second
      ? this.say('labelledPagesOf', this.label(first), this.label(second), counts, total)
      : this.say('labelledOf', this.label(first), counts, total);
  }

  /** The place that someone means by a label or, where no page has it, by a number. */
  find(text: string): number | undefined {
    const wanted = text.trim().toLowerCase();
    const labelled = this.pages.findIndex(({ label }) => label.toLowerCase() === wanted) + 1;
    return labelled || this.count(wanted);
  }

  /** Places of "1-4, 7" in ascending order; nothing when a part of it names no page. */
  findRange(text: string): number[] | undefined {
    const found = new Set<number>();
    for (const part of text
      .split(',')
      .map((each) => each.trim())
      .filter(Boolean)) {
      const places = this.findPart(part);
      if (!places) return undefined;
      for (let place = Math.min(...places); place <= Math.max(...places); place++) found.add(place);
    }
    return found.size > 0 ? [...found].sort((one, other) => one - other) : undefined;
  }

  private areCounted(places: readonly number[]): boolean {
    return places.every((place) => this.label(place) === String(place));
  }

  /** Labels may hold hyphens themselves, so the whole part is tried first, then each hyphen as the one between two ends. */
  private findPart(part: string): number[] | undefined {
    const alone = this.find(part);
    if (alone) return [alone];
    for (const { index } of part.matchAll(/[-–]/g)) {
      const [first, last] = [this.find(part.slice(0, index)), this.find(part.slice(index + 1))];
      if (first && last) return [first, last];
    }
    return undefined;
  }

  private count(text: string): number | undefined {
    const place = /^\d+$/.test(text) ? Number(text) : 0;
    return place >= 1 && place <= this.pages.length ? place : undefined;
  }
}
