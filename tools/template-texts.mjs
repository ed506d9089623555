// SPDX-License-Identifier: MIT
// Prints the texts of our templates' properties in the form in which lupdate finds them.
import { TEMPLATES } from './templates/templates.mjs';

const textsOf = (properties) => properties.flatMap(({ title, desc, aTitle, children = [] }) => [title, desc, aTitle, ...textsOf(children)]);

for (const text of new Set(TEMPLATES.flatMap(({ properties }) => textsOf(properties))))
  if (text) console.log(`qsTranslate('leafcast::TemplateText', ${JSON.stringify(text)});`);
