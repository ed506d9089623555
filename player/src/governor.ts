// SPDX-License-Identifier: MIT

/** How much work a frame may be. Steps down while frames come late, and one up when all has come to rest. */
export interface Quality {
  readonly mostPixels: number; // of the canvas, for each CSS pixel across
  readonly stripsPerQuarter: number; // 0: a flat fold
}

/** Pixels weigh most, also on screens that have but one to a CSS pixel: moving paper may be soft. */
const LEVELS: readonly Quality[] = [
  { mostPixels: Infinity, stripsPerQuarter: 5 },
  { mostPixels: 1, stripsPerQuarter: 3 },
  { mostPixels: 0.65, stripsPerQuarter: 3 },
  { mostPixels: 0.65, stripsPerQuarter: 0 },
];
const LATE_SECONDS = 0.02;
/** A display that shows few frames a second is not late. */
const LATE_FRAMES_LONG = 1.5;
const LATE_FRAMES = 2;

export class Governor {
  private level = 0;
  private late = 0;
  private shortest = Infinity;

  get quality(): Quality {
    return LEVELS[this.level]!;
  }

  /** To be told the time since the frame before, in seconds; 0 when there was none. */
  frame(elapsed: number): void {
    if (elapsed > 0) this.shortest = Math.min(this.shortest, elapsed);
    this.late = elapsed > LATE_SECONDS && elapsed > LATE_FRAMES_LONG * this.shortest ? this.late + 1 : 0;
    if (this.late < LATE_FRAMES) return;
    this.late = 0;
    this.level = Math.min(this.level + 1, LEVELS.length - 1);
  }

  /** One step up, so that a machine that was busy once is not judged by it for ever. */
  rest(): void {
    this.late = 0;
    this.level = Math.max(this.level - 1, 0);
  }
}
