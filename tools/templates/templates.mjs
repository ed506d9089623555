// SPDX-License-Identifier: MIT
import { propertyTree } from './properties.mjs';

const BOOK_ONLY = ['viewMode', 'coverAlone', 'hardCover', 'pageEdges', 'viewModeVisible', 'turnSound', 'soundVisible'];
const SLIDES_ONLY = ['slideEffect', 'dotsVisible'];
const COLUMN_ONLY = ['readingWidth'];
const TURNING_ONLY = [
  'rightToLeft', 'turnButtonsVisible', 'wheelTurns', 'turnDuration', 'autoTurnVisible', 'autoTurnSeconds', 'motionVisible',
];

const OWN_SHAPE = { pageColor: { desc: 'Colour of the paper, seen until a page is loaded.' } };

const SLIDES = {
  ...OWN_SHAPE,
  sliderVisible: { value: 'NO' },
  turnDuration: {
    value: '500',
    desc: 'How long a page takes to slide in, in milliseconds. Pages of readers who ask their system for less motion fade in instead.',
  },
  keyboardControl: {
    desc: 'The keys of presenters work: arrows, space bar, Page up, Page down, Home and End change pages, a number and Enter go to that page, B shows a black screen; the question mark shows them all.',
  },
  wheelTurns: { desc: 'The mouse wheel changes pages. Zooming with Ctrl and the wheel stays possible when it is switched off.' },
  rightToLeft: { desc: 'For documents that are read from right to left: the next page comes from the left, and the left arrow goes forward.' },
  autoTurnVisible: { title: 'Slide show', desc: 'Button that makes the pages change by themselves until it is pressed again.' },
  autoTurnSeconds: { title: 'Changes every', desc: 'How long a page stays in the slide show, in seconds.' },
  turnButtonsVisible: { desc: 'Buttons beside the pages that go forward and back.' },
  motionVisible: { desc: 'Switch that lets pages fade in instead of sliding, on from the start for readers who ask their system for less motion.' },
};

const COLUMN = {
  ...OWN_SHAPE,
  toolBarVisible: { desc: 'Shows the tool bar.' },
  toolBarColor: { desc: 'Colour of the tool bar and the panels.' },
  toolBarTextColor: { desc: 'Colour of text and symbols on the tool bar and the panels.' },
  keyboardControl: {
    desc: 'The arrow keys, the space bar, Page up, Page down, Home and End scroll wherever the focus is, and other keys search and zoom; the question mark shows them all. Switched off, only the browser\'s own keys are left.',
  },
};

/** `view` names the player's view of the pages; without one it is the book whose leaves turn. */
export const TEMPLATES = [
  {
    name: 'float', defaultStyle: 'Wall-line', themeColor: '#fbfaf8',
    properties: propertyTree({ without: [...SLIDES_ONLY, ...COLUMN_ONLY] }),
  },
  {
    name: 'slide', view: 'slide', defaultStyle: 'Studio', themeColor: '#ffffff',
    properties: propertyTree({ without: [...BOOK_ONLY, ...COLUMN_ONLY], changes: SLIDES }),
  },
  {
    name: 'scroll', view: 'scroll', defaultStyle: 'Quiet', themeColor: '#fbfbfa',
    properties: propertyTree({ without: [...BOOK_ONLY, ...SLIDES_ONLY, ...TURNING_ONLY], changes: COLUMN }),
  },
];
