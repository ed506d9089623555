// SPDX-License-Identifier: MIT
import { propertyTree } from './properties.mjs';

const SLIDES_ONLY = ['slideEffect', 'dotsVisible'];

/** `view` names the player's view of the pages; without one it is the book whose leaves turn. */
export const TEMPLATES = [
  { name: 'float', defaultStyle: 'Wall-line', themeColor: '#fbfaf8', properties: propertyTree(SLIDES_ONLY) },
];
