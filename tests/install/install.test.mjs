// SPDX-License-Identifier: MIT
// What an installation holds, and what desktops and package managers are told of it.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { existsSync, lstatSync, mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { fileURLToPath } from 'node:url';
import { BUILD, PROGRAM, run } from './support.mjs';

const PROJECT = fileURLToPath(new URL('../../', import.meta.url));
const version = run(PROGRAM, ['--version']).trim().split(' ')[1];
const pngSize = (file) => ['width', 'height'].map((_, i) => readFileSync(file).readUInt32BE(16 + 4 * i));

describe('an installation', () => {
  const root = mkdtempSync(join(tmpdir(), 'leafcast-install-'));
  const at = (path) => join(root, 'usr', path);
  before(() => execFileSync('cmake', ['--install', BUILD, '--prefix', join(root, 'usr')]));
  after(() => rmSync(root, { recursive: true }));

  it('publishes a book that has its own preview server', () => {
    const book = join(root, 'book');
    const env = { ...process.env, LEAFCAST_RESOURCES: '', LEAFCAST_PDF_SERVICE: '' };
    run(at('bin/leafcast'), ['publish', join(PROJECT, 'samples/magazine.pdf'), book, '--pages', '1', '--quiet'], { env });
    const server = lstatSync(join(book, 'iPadPreview'));
    assert.ok(server.isFile() && (server.mode & 0o111) === 0o111, 'a program, not a link out of the book');
  });

  const metainfo = () => at(`share/metainfo/${readdirSync(at('share/metainfo'))[0]}`);

  it('has an entry, a description and icons for desktops', () => {
    const entry = at('share/applications/leafcast-desktop.desktop');
    run('desktop-file-validate', [entry]);
    run('appstreamcli', ['validate', '--no-net', metainfo()]);
    const [program] = /^Exec=(\S+)/m.exec(readFileSync(entry, 'utf8')).slice(1);
    assert.ok(existsSync(at(`bin/${program}`)));

    const [icon] = /^Icon=(\S+)/m.exec(readFileSync(entry, 'utf8')).slice(1);
    const themes = readdirSync(at('share/icons/hicolor'));
    for (const size of themes.filter((each) => each !== 'scalable'))
      assert.equal(pngSize(at(`share/icons/hicolor/${size}/apps/${icon}.png`)).join('x'), size);
    assert.ok(existsSync(at(`share/icons/hicolor/scalable/apps/${icon}.svg`)));
    assert.ok(themes.includes('16x16') && themes.includes('512x512'));
  });

  it('tells of the version that the program has', () => {
    assert.equal(/<release version="([^"]+)"/.exec(readFileSync(metainfo(), 'utf8'))[1], version);
    const changelog = readFileSync(join(PROJECT, 'packaging/debian/changelog'), 'utf8');
    assert.equal(/^leafcast \(([^)]+)\)/.exec(changelog)[1], version);
  });
});
