// SPDX-License-Identifier: MIT
import { makeAutoTurn } from './autoTurn.ts';
import { contentsPanel } from './contentsPanel.ts';
import { openHelpDialog } from './helpDialog.ts';
import { openPrintDialog } from './printDialog.ts';
import { makeSearchPanel } from './searchPanel.ts';
import type { Control } from './settings.ts';
import { openShareDialog } from './shareDialog.ts';
import { makeSoundSwitch } from './soundSwitch.ts';
import { textPanel } from './textPanel.ts';
import { thumbnailPanel } from './thumbnailPanel.ts';
import { makePanelTool, makeTool } from './tool.ts';
import type { RankedTool } from './toolbar.ts';
import type { Ui } from './ui.ts';
import { canBeFullScreen, makeFullScreen, makeMotionSwitch, makeViewMode, makeZoomTools } from './viewTools.ts';

interface ToolKind {
  readonly control: Control;
  readonly rank: number;
  /** Whether this book and this browser have anything for it. */
  readonly suits?: (ui: Ui) => boolean;
  readonly make: (ui: Ui) => HTMLButtonElement | HTMLButtonElement[];
}

/** Inside another page the book has one only when it is told. */
const hasAddress = ({ ownsPage, reader }: Ui): boolean => ownsPage || reader.settings.shareAddress !== '';
const hasText = ({ texts }: Ui): boolean => texts.hasText;

/** In the order in which they stand in the bar. */
const KINDS: readonly ToolKind[] = [
  {
    control: 'contents',
    rank: 1,
    suits: ({ reader }) => reader.book.outline.length > 0,
    make: (ui) => makePanelTool(ui, 'contents', ui.say('contents'), () => contentsPanel(ui)),
  },
  {
    control: 'thumbnails',
    rank: 3,
    make: (ui) => makePanelTool(ui, 'thumbnails', ui.say('thumbnails'), () => thumbnailPanel(ui)),
  },
  { control: 'search', rank: 2, suits: hasText, make: searchTool },
  {
    control: 'textView',
    rank: 9,
    suits: hasText,
    make: (ui) => makePanelTool(ui, 'textView', ui.say('textView'), () => textPanel(ui)),
  },
  { control: 'zoom', rank: 5, make: makeZoomTools },
  { control: 'viewMode', rank: 8, make: makeViewMode },
  { control: 'autoTurn', rank: 11, make: makeAutoTurn },
  { control: 'sound', rank: 10, make: makeSoundSwitch },
  { control: 'motion', rank: 13, make: makeMotionSwitch },
  { control: 'print', rank: 7, make: (ui) => makeTool('print', ui.say('print'), () => openPrintDialog(ui)) },
  { control: 'share', rank: 6, suits: hasAddress, make: (ui) => makeTool('share', ui.say('share'), () => openShareDialog(ui)) },
  {
    control: 'help',
    rank: 12,
    suits: ({ reader }) => reader.settings.keyboard,
    make: (ui) => makeTool('help', ui.say('help'), () => openHelpDialog(ui)),
  },
  { control: 'fullScreen', rank: 4, suits: canBeFullScreen, make: makeFullScreen },
];

function searchTool(ui: Ui): HTMLButtonElement {
  const tool = makePanelTool(ui, 'search', ui.say('search'), makeSearchPanel(ui));
  tool.classList.add('search-tool');
  return tool;
}

export function makeTools(ui: Ui): RankedTool[] {
  const { shows } = ui.reader.settings;
  return KINDS.filter(({ control, suits }) => shows[control] && (!suits || suits(ui))).flatMap(({ rank, make }) =>
    [make(ui)].flat().map((tool) => ({ tool, rank })),
  );
}
