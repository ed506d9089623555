// SPDX-License-Identifier: MIT
// Fails when modules of the player depend on each other in a circle, by values or by types.
import { readdirSync, readFileSync } from 'node:fs';
import { dirname, join, normalize } from 'node:path';
import { fileURLToPath } from 'node:url';

const FOLDER = fileURLToPath(new URL('../player/src/', import.meta.url));

const importsOf = (file) =>
  [...readFileSync(join(FOLDER, file), 'utf8').matchAll(/ from '(\.[^']+)'/g)].map(([, path]) => normalize(join(dirname(file), path)));

const files = ['', 'texts/'].flatMap((folder) =>
  readdirSync(FOLDER + folder).filter((name) => name.endsWith('.ts')).map((name) => folder + name));
const imports = new Map(files.map((file) => [file, importsOf(file)]));
const seen = new Set();
const circles = [];

function follow(file, way) {
  if (way.includes(file)) return circles.push([...way.slice(way.indexOf(file)), file].join(' > '));
  if (seen.has(file)) return;
  for (const other of imports.get(file)) follow(other, [...way, file]);
  seen.add(file);
}

files.forEach((file) => follow(file, []));
circles.forEach((circle) => console.error(`player/src: ${circle}`));
process.exitCode = circles.length > 0 ? 1 : 0;
