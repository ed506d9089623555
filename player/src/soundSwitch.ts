// SPDX-License-Identifier: MIT
import { changeTool, makeTool, setPressed } from './tool.ts';
import type { Ui } from './ui.ts';

export function makeSoundSwitch({ sound, say }: Ui): HTMLButtonElement {
  const tool = makeTool('silence', say('sound'), () => turnOn(!sound.isOn));
  const turnOn = (wanted: boolean) => {
    sound.isOn = wanted;
    setPressed(tool, wanted);
    changeTool(tool, wanted ? 'sound' : 'silence', say('sound'));
  };
  turnOn(sound.isOn);
  return tool;
}
