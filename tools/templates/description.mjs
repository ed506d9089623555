// SPDX-License-Identifier: MIT

const escaped = (text) => text.replaceAll('&', '&amp;').replaceAll('<', '&lt;');
const element = (name, text) => `<${name}>${escaped(text)}</${name}>`;
const indented = (text) => text.replace(/^(?=.)/gm, '  ');

function property({ type, key, title, desc, value, valueSource = '', aTitle, children }) {
  const parts = [
    element('key', key), element('title', title), element('desc', desc), element('value', value),
    element('valueSource', valueSource), element('defalutValue', value),
  ];
  if (aTitle) parts.push(element('aTitle', aTitle));
  if (children) parts.push(inside('childProperties', children.map(property)));
  return inside(`property type="${type}"`, parts);
}

const inside = (tag, parts) => `<${tag}>\n${indented(parts.join('\n'))}\n</${tag.split(' ')[0]}>`;

/** The description file of a template: docs/templates.md. */
export function description({ defaultStyle, properties }) {
  const info = inside('info', [
    element('htmlPath', 'index.html'), element('swfPath', ''), element('defaultStyle', defaultStyle),
    element('macAppFilesFolder', 'TmplData/mac.app/Contents'), element('mobileTmplFilesPath', ''),
  ]);
  const root = inside('flashTemplate', [info, inside('properties', properties.map(property))]);
  return `<?xml version="1.0" encoding="UTF-8"?>\n<!-- SPDX-License-Identifier: MIT -->\n${root}\n`;
}
