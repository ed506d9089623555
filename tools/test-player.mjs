// SPDX-License-Identifier: MIT
// Runs the tests of the player's pure modules. They are bundled first, because the oldest Node.js
// that will do does not read TypeScript.
import { spawnSync } from 'node:child_process';
import { mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';

const TESTS = fileURLToPath(new URL('../player/tests/', import.meta.url));

const outdir = mkdtempSync(join(tmpdir(), 'leafcast-player-tests-'));
try {
  const names = readdirSync(TESTS).filter((name) => name.endsWith('.test.ts'));
  await build({
    entryPoints: names.map((name) => join(TESTS, name)), outdir, outExtension: { '.js': '.mjs' },
    bundle: true, platform: 'node', format: 'esm', target: 'node18', sourcemap: 'inline', logLevel: 'warning',
  });
  const files = readdirSync(outdir).map((name) => join(outdir, name));
  process.exitCode = spawnSync(process.execPath, ['--enable-source-maps', '--test', ...files], { stdio: 'inherit' }).status ?? 1;
} finally {
  rmSync(outdir, { recursive: true });
}
