// SPDX-License-Identifier: MIT
const LONGEST_STEP_SECONDS = 0.05; // after a pause the motion goes on from where it was
const FIRST_STEP_SECONDS = 1 / 60;

/** Animation frames for as long as something moves. */
export class Ticker {
  private request = 0;
  private last = 0;

  /**
   * The step answers whether another one is wanted. `elapsed` is the time since the frame before, in
   * seconds, 0 for the first one; `seconds` is how far the motion is to go on.
   */
  constructor(private readonly step: (seconds: number, elapsed: number) => boolean) {}

  wake(): void {
    if (this.request) return;
    this.last = 0;
    this.request = requestAnimationFrame((now) => this.tick(now));
  }

  stop(): void {
    cancelAnimationFrame(this.request);
    this.request = 0;
  }

  private tick(now: number): void {
    const elapsed = this.last ? (now - this.last) / 1000 : 0;
    this.last = now;
    this.request = 0;
    const goesOn = this.step(Math.min(elapsed || FIRST_STEP_SECONDS, LONGEST_STEP_SECONDS), elapsed);
    if (goesOn && !this.request) this.request = requestAnimationFrame((next) => this.tick(next));
  }
}
