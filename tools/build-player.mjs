// SPDX-License-Identifier: MIT
// Bundles the player into a folder: main_preview.js, the head of every book's script; flipBook.min.js,
// the same player for other pages; player.css. Prints how large they are, and fails when they are
// larger than readers on slow lines should wait for.
//
//   node tools/build-player.mjs FOLDER
import { mkdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

const PLAYER = fileURLToPath(new URL('../player/', import.meta.url));
const LICENCE = '/* Leafcast player. SPDX-License-Identifier: MIT */';
const KILOBYTE = 1024; // as in the benchmark
// The configuration that is appended to the script is not written for strict mode.
const tsconfigRaw = { compilerOptions: { alwaysStrict: false, target: 'es2020' } };
// A page that the player is added to may be in any encoding; a book's own page is in UTF-8.
const PARTS = [
  { file: 'main_preview.js', entry: 'src/main.ts', mostGzipped: 45 * KILOBYTE, charset: 'utf8' },
  { file: 'flipBook.min.js', entry: 'src/embed.ts', mostGzipped: 45 * KILOBYTE, charset: 'ascii' },
  { file: 'player.css', entry: 'css/player.css', mostGzipped: 8 * KILOBYTE, charset: 'utf8' },
];

const { build } = await import('esbuild').catch(() => {
  console.error('The player cannot be bundled without esbuild: run "tools/setup build" first.');
  process.exit(1);
});
const { privateNames } = await import('./privateNames.mjs');
const mangleProps = new RegExp(`^(?:${privateNames(join(PLAYER, 'tsconfig.json')).join('|')})$`);
const [folder] = process.argv.slice(2);
if (!folder) throw new Error('usage: node tools/build-player.mjs FOLDER');
mkdirSync(folder, { recursive: true });

for (const { file, entry, mostGzipped, charset } of PARTS) {
  const outfile = join(folder, file);
  const banner = { [file.endsWith('.css') ? 'css' : 'js']: LICENCE };
  await build({
    entryPoints: [join(PLAYER, entry)], outfile, banner, bundle: true, minify: true, format: 'iife', target: 'es2020',
    charset, mangleProps, legalComments: 'none', tsconfigRaw, logLevel: 'warning',
  });
  const bytes = readFileSync(outfile);
  const gzipped = gzipSync(bytes, { level: 9 }).length;
  console.log(`${file}: ${bytes.length} bytes, ${gzipped} gzipped`);
  if (gzipped > mostGzipped) throw new Error(`${file} is larger than ${mostGzipped} bytes gzipped.`);
}
