// SPDX-License-Identifier: MIT

/** How much work a frame may be. Steps down while frames come late; a new turn starts at the top. */
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
const LATE_FRAMES = 2;

export class Governor {
  private level = 0;
  private late = 0;

  get quality(): Quality {
    return LEVELS[this.level]!;
  }

  frame(seconds: number): void {
    this.late = seconds > LATE_SECONDS ? this.late + 1 : 0;
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
