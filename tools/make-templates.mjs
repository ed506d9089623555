// SPDX-License-Identifier: MIT
// Writes the description and the page of each of our templates from tools/templates.
import { copyFileSync, mkdirSync, writeFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { description } from './templates/description.mjs';
import { page } from './templates/page.mjs';
import { TEMPLATES } from './templates/templates.mjs';

const LIBRARY = fileURLToPath(new URL('../resources/AppFiles/Templates/', import.meta.url));
const NO_SCRIPT_STYLE = new URL('templates/noscript.css', import.meta.url);

for (const template of TEMPLATES) {
  const folder = `${LIBRARY}${template.name}/`;
  mkdirSync(`${folder}style`, { recursive: true });
  writeFileSync(`${folder}flashTemplate.xml`, description(template));
  writeFileSync(`${folder}index.html`, page(template));
  copyFileSync(NO_SCRIPT_STYLE, `${folder}style/noscript.css`);
}
