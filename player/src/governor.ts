// SPDX-License-Identifier: MIT

/** How much work a frame may be. Steps down while frames come late, and one up after many turns. */
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
/** A display that shows few frames a second is not late, unless they take so long to paint. */
const LATE_FRAMES_LONG = 1.5;
const LATE_FRAMES = 2;
/** Each trial of a better level that is too much shows as a stumble. */
const TURNS_BEFORE_A_TRIAL = 16;

export class Governor {
  private level = 0;
  private late = 0;
  private shortest = Infinity;
  private turns = 0; // since the level has changed

  get quality(): Quality {
    return LEVELS[this.level]!;
  }

  /** To be told the time since the frame before, 0 when there was none, and how much of it painting took; in seconds. */
  frame(elapsed: number, painting = 0): void {
    if (elapsed > 0) this.shortest = Math.min(this.shortest, elapsed);
    const isLate = elapsed > LATE_SECONDS && (elapsed > LATE_FRAMES_LONG * this.shortest || painting > LATE_SECONDS);
    this.late = isLate ? this.late + 1 : 0;
    if (this.late < LATE_FRAMES) return;
    this.setLevel(Math.min(this.level + 1, LEVELS.length - 1));
  }

  /** To be told when all has come to rest: a machine that was busy once is not judged by it for ever. */
  rest(): void {
    this.late = 0;
    if (++this.turns >= TURNS_BEFORE_A_TRIAL) this.setLevel(Math.max(this.level - 1, 0));
  }

  private setLevel(level: number): void {
    this.level = level;
    this.late = this.turns = 0;
  }
}
