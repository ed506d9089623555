// SPDX-License-Identifier: MIT

/** Tells listeners of events; the map names each event's argument. One that throws is reported and silences no other. */
export class Emitter<Events extends object> {
  private readonly listeners = new Map<keyof Events, Set<(value: never) => void>>();

  /** Answers how to stop listening. */
  on<Name extends keyof Events>(name: Name, listener: (value: Events[Name]) => void): () => void {
    const set = this.listeners.get(name) ?? new Set();
    this.listeners.set(name, set.add(listener));
    return () => set.delete(listener);
  }

  /** Nobody is told any more. */
  protected clear(): void {
    this.listeners.clear();
  }

  protected emit<Name extends keyof Events>(name: Name, value: Events[Name]): void {
    for (const listener of this.listeners.get(name) ?? [])
      try {
        (listener as (value: Events[Name]) => void)(value);
      } catch (error) {
        reportError(error);
      }
  }
}
