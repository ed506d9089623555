// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { spawn, spawnSync } from 'node:child_process';
import { once } from 'node:events';
import { writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { createInterface } from 'node:readline';
import { after, before, describe, it } from 'node:test';
import { changedBook, publishMagazine, removeBook } from './support.mjs';

const program = process.env.LEAFCAST;

/** Serves while `use` runs with the book's address; returns the exit status after a polite kill. */
async function serving(book, use) {
  const server = spawn(program, ['serve', book, '--local-only'], { stdio: ['ignore', 'pipe', 'inherit'] });
  const ended = once(server, 'exit');
  const [line] = await once(createInterface(server.stdout), 'line');
  try {
    await use(JSON.parse(line).addresses[0]);
  } finally {
    server.kill('SIGTERM');
  }
  return (await ended)[0];
}

async function expectBook(address) {
  const script = await fetch(new URL('javascript/main.js', address));
  assert.equal(script.status, 200);
  assert.match(await script.text(), /totalPageCount:16/);
  assert.match(await (await fetch(address)).text(), /<title>Hornbeam/);
}

describe('leafcast serve', () => {
  let book, package_;

  before(() => {
    book = publishMagazine();
    package_ = publishMagazine('--app');
  });
  after(() => [book, package_].forEach(removeBook));

  it('serves a book until it is told to end', async () => {
    assert.equal(await serving(book, expectBook), 0);
  });

  it('serves a package', async () => {
    await serving(join(package_, 'magazine.app/'), expectBook);
  });

  it('does not run the program that lies in a book', async () => {
    const foreign = changedBook(book, { files: { iPadPreview: '#!/bin/sh\necho evil; exec sleep 60\n' } });
    await serving(foreign, expectBook);
    removeBook(foreign);
  });

  it('refuses what is no book, in one sentence', () => {
    const file = join(dirname(book), 'words.txt');
    writeFileSync(file, 'words');
    for (const [path, reason] of [[dirname(book), 'is no book'], [file, 'no folder'], [join(book, 'none'), 'not exist']]) {
      const run = spawnSync(program, ['serve', path], { encoding: 'utf8' });
      assert.equal(run.status, 3);
      assert.ok(run.stderr.startsWith(`leafcast: ${path} `) && run.stderr.includes(reason), run.stderr);
      assert.equal(run.stderr.split('\n').length, 2);
    }
  });

  it('leaves refusing an address to the server', () => {
    const run = spawnSync(program, ['serve', book, '--bind', 'nowhere'], { encoding: 'utf8' });
    assert.equal(run.status, 2);
    assert.match(run.stderr, /^iPadPreview: .*nowhere/);
  });
});
