// SPDX-License-Identifier: MIT
import type { Icon } from './icons.ts';
import type { Mode } from './layout.ts';
import type { Reader } from './reader.ts';
import type { Texts } from './texts/english.ts';
import { changeTool, makeTool, setPressed } from './tool.ts';
import type { Ui } from './ui.ts';
import { LEAST_SCALE, MOST_SCALE } from './zoom.ts';

const ZOOM_STEPS = [LEAST_SCALE, 0.75, 1, 1.5, 2, 3, 4, MOST_SCALE];

export function zoomBy(ui: Ui, direction: 1 | -1): void {
  const { scale } = ui.reader;
  const beyond = ZOOM_STEPS.filter((step) => (step - scale) * direction > 0.01);
  const next = direction > 0 ? beyond[0] : beyond[beyond.length - 1];
  if (next) ui.reader.zoomTo(next);
}

export function makeZoomTools(ui: Ui): HTMLButtonElement[] {
  const { reader, say } = ui;
  const zoomOut = makeTool('zoomOut', say('zoomOut'), () => zoomBy(ui, -1));
  const fit = makeTool('fit', say('fit'), () => reader.zoomTo(1));
  const zoomIn = makeTool('zoomIn', say('zoomIn'), () => zoomBy(ui, 1));
  const show = (scale: number) => {
    zoomOut.setAttribute('aria-disabled', String(scale <= LEAST_SCALE));
    fit.setAttribute('aria-disabled', String(scale === 1));
    zoomIn.setAttribute('aria-disabled', String(scale >= reader.mostScale));
  };
  reader.on('zoomed', ({ scale }) => show(scale));
  show(1);
  return [zoomOut, zoomIn, fit];
}

const VIEWS: readonly { readonly mode: Mode; readonly picture: Icon; readonly name: keyof Texts }[] = [
  { mode: 'auto', picture: 'auto', name: 'viewAuto' },
  { mode: 'single', picture: 'single', name: 'viewSingle' },
  { mode: 'double', picture: 'double', name: 'viewDouble' },
  { mode: 'other', picture: 'other', name: 'viewOther' },
];

/** Each press shows the next way of looking at the pages. */
export function makeViewMode({ reader, say, announce }: Ui): HTMLButtonElement {
  let at = Math.max(
    VIEWS.findIndex(({ mode }) => mode === reader.settings.mode),
    0,
  );
  const view = () => VIEWS[at]!;
  const tool: HTMLButtonElement = makeTool(view().picture, say(view().name), () => {
    at = (at + 1) % VIEWS.length;
    changeTool(tool, view().picture, say(view().name));
    reader.setMode(view().mode);
    announce(say(view().name));
  });
  return tool;
}

/** Does what readers have asked their system for, whether or not there is a switch. */
export function followMotionPreference(reader: Reader, signal: AbortSignal): void {
  const preference = matchMedia('(prefers-reduced-motion: reduce)');
  reader.setReducedMotion(preference.matches);
  preference.addEventListener('change', ({ matches }) => reader.setReducedMotion(matches), { signal });
}

export function makeMotionSwitch({ reader, say }: Ui): HTMLButtonElement {
  const tool = makeTool('motion', say('lessMotion'), () => reader.setReducedMotion(!reader.hasReducedMotion));
  setPressed(tool, reader.hasReducedMotion);
  reader.on('motionReduced', (isReduced) => setPressed(tool, isReduced));
  return tool;
}

export const canBeFullScreen = (): boolean => document.fullscreenEnabled === true;

export function toggleFullScreen(root: HTMLElement): void {
  const change = document.fullscreenElement === root ? document.exitFullscreen() : root.requestFullscreen();
  change.catch(() => {}); // the browser may refuse, and says so itself
}

export function makeFullScreen({ root, say, signal }: Ui): HTMLButtonElement {
  const tool = makeTool('fullScreen', say('fullScreen'), () => toggleFullScreen(root));
  setPressed(tool, false);
  const show = () => {
    const isFull = document.fullscreenElement === root;
    setPressed(tool, isFull);
    changeTool(tool, isFull ? 'window' : 'fullScreen', say('fullScreen'));
  };
  document.addEventListener('fullscreenchange', show, { signal });
  return tool;
}
