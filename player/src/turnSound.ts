// SPDX-License-Identifier: MIT
import { changeTool, makeTool, setPressed } from './tool.ts';
import type { Ui } from './ui.ts';

const SECONDS = 0.34;

/** The rustle of a leaf, made of filtered noise; no file is needed for it. */
export function makeTurnSound({ reader, say, signal }: Ui): HTMLButtonElement {
  let isOn = reader.settings.sound;
  let audio: AudioContext | undefined;
  let shown = String(reader.settings.sound);
  const tool = makeTool('silence', say('sound'), () => turnOn(!isOn));
  const turnOn = (wanted: boolean) => {
    isOn = wanted;
    setPressed(tool, isOn);
    changeTool(tool, isOn ? 'sound' : 'silence', say('sound'));
  };
  turnOn(isOn);
  reader.on('turned', (places) => {
    const turned = places.join();
    if (!isOn || turned === shown) return;
    shown = turned;
    audio ??= new AudioContext();
    // Browsers let a page sound only after its reader has pressed something.
    if (audio.state === 'suspended') void audio.resume();
    rustle(audio);
  });
  signal.addEventListener('abort', () => void audio?.close());
  return tool;
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
