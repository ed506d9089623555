// SPDX-License-Identifier: MIT
const LONGEST_STEP_SECONDS = 0.05; // after a pause the motion goes on from where it was
const FIRST_STEP_SECONDS = 1 / 60;

/** Animation frames for as long as something moves. */
export class Ticker {
  private request = 0;
  private last = 0;

  /** The step answers whether another one is wanted. */
  constructor(private readonly step: (seconds: number) => boolean) {}

  wake(): void {
    if (this.request) return;
    this.last = 0;
    this.request = requestAnimationFrame((now) => this.tick(now));
  }

  private tick(now: number): void {
    const seconds = this.last ? (now - this.last) / 1000 : FIRST_STEP_SECONDS;
    this.last = now;
    this.request = 0;
    if (this.step(Math.min(seconds, LONGEST_STEP_SECONDS))) this.request = requestAnimationFrame((next) => this.tick(next));
  }
}
