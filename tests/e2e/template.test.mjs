// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { existsSync, readdirSync, readFileSync, statSync } from 'node:fs';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from '../../tools/browser.mjs';
import { description } from '../../tools/templates/description.mjs';
import { page } from '../../tools/templates/page.mjs';
import { TEMPLATES } from '../../tools/templates/templates.mjs';
import { pathOf } from './support.mjs';

const LIBRARY = pathOf('resources/AppFiles/Templates/');
const STYLE_LIBRARY = pathOf('resources/AppFiles/Styles/');
const PLAYER = pathOf('player/src/');
const PARTS = ['key', 'title', 'desc', 'value', 'valueSource', 'defalutValue'];

// Runs in the browser, which brings the XML parser.
function readProperties(text) {
  const nodes = new DOMParser().parseFromString(text, 'application/xml').querySelectorAll('property');
  const partsOf = (node) => Object.fromEntries([...node.children].map((part) => [part.tagName, part.textContent]));
  return [...nodes].map((node) => ({ type: node.getAttribute('type'), ...partsOf(node) }));
}

/** Of two colours 0xrrggbb, as WCAG defines it. */
function contrast(...colours) {
  const luminance = (colour) => [16, 8, 0].map((shift) => ((Number(colour) >> shift) & 255) / 255)
    .map((channel) => (channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4))
    .reduce((sum, channel, index) => sum + channel * [0.2126, 0.7152, 0.0722][index], 0);
  const [dark, light] = colours.map(luminance).sort((one, other) => one - other);
  return (light + 0.05) / (dark + 0.05);
}

describe('the templates', () => {
  it('have every setting that the player knows between them', () => {
    const descriptions = TEMPLATES.map(description).join();
    const settings = readFileSync(PLAYER + 'settings.ts', 'utf8');
    const known = [...settings.matchAll(/\b(?:text|flag|number)\('(\w+)'/g)].map(([, key]) => key);
    assert.ok(known.length > 10);
    assert.deepEqual(known.filter((key) => !descriptions.includes(`<key>${key}</key>`)), []);
  });

  it('have no setting that the guide to templates does not name', () => {
    const guide = readFileSync(pathOf('docs/templates.md'), 'utf8');
    const keys = TEMPLATES.flatMap(({ properties }) => properties.flatMap(({ children }) => children.map(({ key }) => key)));
    assert.deepEqual(keys.filter((key) => !guide.includes(`\`${key}\``)), []);
  });

  it('are described by what they are made from', () => {
    for (const template of TEMPLATES) {
      assert.equal(readFileSync(`${LIBRARY}${template.name}/flashTemplate.xml`, 'utf8'), description(template));
      assert.equal(readFileSync(`${LIBRARY}${template.name}/index.html`, 'utf8'), page(template));
    }
  });
});

for (const { name, defaultStyle } of TEMPLATES)
  describe(`the template ${name}`, () => {
    const folder = `${LIBRARY}${name}/`;
    const styles = `${STYLE_LIBRARY}${name}/`;
    let browser, properties;

    before(async () => {
      browser = await launchBrowser();
      const page = await browser.newPage();
      properties = await page.evaluate(readProperties, readFileSync(folder + 'flashTemplate.xml', 'utf8'));
    });

    after(() => browser?.close());

    it('declares complete properties that can stand in a script', () => {
      assert.ok(properties.length > 20);
      const keys = properties.map((property) => property.key);
      assert.deepEqual(keys, [...new Set(keys)]);
      for (const property of properties) {
        for (const part of PARTS) assert.notEqual(property[part], undefined, `${property.key} has no ${part}`);
        assert.match(property.key, /^[A-Za-z_$][\w$]*$/);
        assert.doesNotMatch(property.value, /["\\\n]/);
        assert.equal(property.value, property.defalutValue, property.key);
        assert.ok(property.title && property.desc, property.key);
      }
    });

    it('starts with a style that there is', () => assert.ok(readdirSync(styles).includes(defaultStyle)));

    it('gives each property a value of its type', () => {
      const valid = {
        pt_number: ({ value }) => /^\d+(\.\d+)?$/.test(value),
        pt_color: ({ value }) => /^0x[0-9a-f]{6}$/.test(value),
        pt_list: ({ value, valueSource }) => valueSource.split(',').includes(value),
        pt_bool: ({ value, aTitle }) => /^(YES|NO)$/.test(value) && Boolean(aTitle),
        pt_file: ({ valueSource }) => /^\w+\|\*\.\w+(;\*\.\w+)*$/.test(valueSource),
        pt_text: () => true,
        pt_composite: () => true,
      };
      assert.deepEqual([...new Set(properties.map(({ type }) => type))].sort(), Object.keys(valid).sort());
      for (const property of properties) assert.ok(valid[property.type](property), property.key);
    });

    it('has no setting that the reader ignores', () => {
      const sources = readdirSync(PLAYER).filter((name) => name.endsWith('.ts'));
      const comments = /\/\*[\s\S]*?\*\/|\/\/ .*/g;
      const reader = sources.map((name) => readFileSync(PLAYER + name, 'utf8').replace(comments, '')).join('\n');
      // Controls are named in the player's table without the word that ends their keys.
      const isRead = (key) => new RegExp(`\\b${key}\\b|'${key.replace(/Visible$/, '')}',`).test(reader);
      const ignored = properties.filter(({ type, key }) => type !== 'pt_composite' && !isRead(key));
      assert.deepEqual(ignored.map(({ key }) => key), []);
    });

    for (const style of readdirSync(styles)) {
      it(`has in the style ${style} colours that can be told apart`, () => {
        const records = readFileSync(`${styles}${style}/tmplSetting.txt`, 'utf8').split('\n').map((record) => record.split('='));
        const { toolBarColor, toolBarTextColor, linkColor } = Object.fromEntries(records);
        assert.ok(contrast(toolBarColor, toolBarTextColor) >= 4.5, 'text on the bar');
        assert.ok(contrast(linkColor, 0xffffff) >= 3, 'the mark of a link, and of the focus, on paper');
      });

      it(`has in the style ${style} only settings and files that exist`, () => {
        const records = readFileSync(`${styles}${style}/tmplSetting.txt`, 'utf8').split('\n').filter(Boolean);
        for (const record of records) {
          const [key, value] = record.split(/=(.*)/s);
          assert.ok(properties.some((property) => property.key === key), key);
          const file = /STYLE_RESOURCE:(.*)/.exec(value)?.[1];
          if (file) assert.ok(existsSync(`${styles}${style}/${file}`), file);
        }
        assert.ok(existsSync(`${styles}${style}/shot.jpg`), 'a picture for the template chooser');
        const bytes = readdirSync(styles + style).reduce((sum, name) => sum + statSync(`${styles}${style}/${name}`).size, 0);
        assert.ok(bytes < 150_000, 'readers on slow lines wait for it');
      });
    }
  });
