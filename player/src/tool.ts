// SPDX-License-Identifier: MIT
import { create } from './dom.ts';
import { changeIcon, icon, type Icon } from './icons.ts';
import type { PanelContent } from './sidePanel.ts';
import type { Ui } from './ui.ts';

/** A button of the tool bar: a picture there, a picture and its name in the menu of a narrow one. */
export function makeTool(picture: Icon, name: string, press: () => void): HTMLButtonElement {
  const tool = create('button', { type: 'button', className: 'tool', title: name });
  tool.append(icon(picture), create('span', { className: 'name' }, name));
  tool.addEventListener('click', press);
  return tool;
}

export function changeTool(tool: HTMLButtonElement, picture: Icon, name: string): void {
  changeIcon(tool.firstElementChild!, picture);
  tool.title = name;
  tool.lastElementChild!.textContent = name;
}

export const setPressed = (tool: HTMLElement, isPressed: boolean): void =>
  tool.setAttribute('aria-pressed', String(isPressed));

export function makePanelTool(ui: Ui, picture: Icon, name: string, build: () => PanelContent): HTMLButtonElement {
  const tool: HTMLButtonElement = makeTool(picture, name, () => ui.panel.toggle(tool, name, build));
  tool.setAttribute('aria-expanded', 'false');
  return tool;
}
