// SPDX-License-Identifier: MIT
import type { Reader } from './reader.ts';

const SECONDS = 0.34;

/** The rustle of a leaf, made of filtered noise; no file is needed for it. */
export class TurnSound {
  isOn: boolean;
  private audio: AudioContext | undefined;
  private shown = '';

  constructor(reader: Reader, signal: AbortSignal) {
    this.isOn = reader.settings.sound;
    reader.on('settled', (places) => (this.shown = places.join()));
    reader.on('turned', (places) => this.hear(places.join()));
    signal.addEventListener('abort', () => void this.audio?.close());
  }

  private hear(turned: string): void {
    if (!this.isOn || turned === this.shown) return;
    this.shown = turned;
    this.audio ??= makeAudio();
    // Browsers let a page sound only after its reader has pressed something.
    if (this.audio?.state === 'suspended') void this.audio.resume();
    if (this.audio) rustle(this.audio);
  }
}

/** Without a sound card, or with too many of them in use, there is none. */
function makeAudio(): AudioContext | undefined {
  try {
    return new AudioContext();
  } catch {
    return undefined;
  }
}

function rustle(audio: AudioContext): void {
  const source = audio.createBufferSource();
  source.buffer = noise(audio);
  const filter = audio.createBiquadFilter();
  filter.type = 'bandpass';
  filter.Q.value = 0.7;
  filter.frequency.setValueAtTime(900, audio.currentTime);
  filter.frequency.exponentialRampToValueAtTime(3800, audio.currentTime + SECONDS * 0.55);
  filter.frequency.exponentialRampToValueAtTime(1400, audio.currentTime + SECONDS);
  const volume = audio.createGain();
  volume.gain.setValueAtTime(0.001, audio.currentTime);
  volume.gain.exponentialRampToValueAtTime(0.16, audio.currentTime + SECONDS * 0.35);
  volume.gain.exponentialRampToValueAtTime(0.001, audio.currentTime + SECONDS);
  source.connect(filter).connect(volume).connect(audio.destination);
  source.start();
}

/** Paper crackles: the noise comes in small bursts. */
function noise(audio: AudioContext): AudioBuffer {
  const buffer = audio.createBuffer(1, Math.round(audio.sampleRate * SECONDS), audio.sampleRate);
  const samples = buffer.getChannelData(0);
  let burst = 0;
  for (let index = 0; index < samples.length; index++) {
    burst = Math.random() < 0.004 ? 1 : burst * 0.995;
    samples[index] = (Math.random() * 2 - 1) * (0.35 + 0.65 * burst);
  }
  return buffer;
}
