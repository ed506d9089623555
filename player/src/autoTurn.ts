// SPDX-License-Identifier: MIT
import { changeIcon } from './icons.ts';
import { makeTool, setPressed } from './tool.ts';
import type { Ui } from './ui.ts';

/** Turns a page now and then, but not under someone's fingers: a touch or a focused page makes it wait. */
export function makeAutoTurn({ reader, root, say, signal }: Ui): HTMLButtonElement {
  let timer = 0;
  let isOn = false;
  const touches = new Set<number>(); // pointers that are down
  const isBusy = () => touches.size > 0 || document.hidden || focusIsElsewhere(root, tool);
  const wait = () => {
    clearTimeout(timer);
    if (isOn) timer = window.setTimeout(step, reader.settings.autoTurnSeconds * 1000);
  };
  const step = () => {
    if (isBusy() || reader.next()) wait();
    else turnOn(false);
  };
  const turnOn = (wanted: boolean) => {
    isOn = wanted;
    setPressed(tool, isOn);
    changeIcon(tool.firstElementChild!, isOn ? 'pause' : 'play');
    wait();
  };
  const tool = makeTool('play', say('autoTurn'), () => turnOn(!isOn));
  setPressed(tool, false);
  reader.on('settled', wait);
  root.addEventListener('pointerdown', ({ pointerId }) => touches.add(pointerId), { signal });
  const lift = ({ pointerId }: PointerEvent) => touches.delete(pointerId) && wait();
  for (const name of ['pointerup', 'pointercancel'] as const) window.addEventListener(name, lift, { signal });
  // A menu or another window may have seen a mouse button go up.
  window.addEventListener('pointermove', (event) => event.buttons === 0 && lift(event), { signal });
  signal.addEventListener('abort', () => turnOn(false));
  return tool;
}

/** On something of the book that its reader is using; the switch itself stays focused after a press. */
function focusIsElsewhere(root: HTMLElement, tool: HTMLElement): boolean {
  const focused = document.activeElement;
  return (
    focused !== null &&
    focused !== root &&
    focused !== tool &&
    root.contains(focused) &&
    focused.matches(':focus-visible')
  );
}
