// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { execFileSync, spawn } from 'node:child_process';
import { accessSync, constants, cpSync, existsSync, mkdirSync, mkdtempSync, readFileSync, realpathSync, rmSync, symlinkSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { delimiter, join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { publishMagazine, removeBook } from './support.mjs';

const ODD_NAME = '-"a" \'book\' 100% #1? \\ ü\n$HOME';
const NEEDED = ['sh', 'awk', 'basename', 'dirname', 'find', 'nohup', 'od', 'readlink', 'sleep', 'tail', 'uname'];

const commandPath = (name) => process.env.PATH.split(delimiter).map((folder) => join(folder, name)).find(existsSync);

/** A PATH of its own: what the launcher needs, and `commands` { name: script }, in which "record" notes the call. */
function makeDesktop(folder, commands) {
  const [bin, record] = [join(folder, 'bin'), join(folder, 'record')];
  mkdirSync(bin);
  for (const name of NEEDED.filter((needed) => !(needed in commands))) symlinkSync(commandPath(name), join(bin, name));
  for (const [name, script] of Object.entries(commands)) {
    const note = `record() { printf '%s\\0' ${name} "$@" >>'${record}'; }`;
    writeFileSync(join(bin, name), `#!/bin/sh\n${note}\n${script}\n`, { mode: 0o755 });
  }
  return { PATH: bin, DISPLAY: ':0', record };
}

function run(command, { record, cwd, ...env }) {
  return new Promise((resolve) => {
    const child = spawn(command[0], command.slice(1), { cwd, env });
    let words = '';
    child.stderr.on('data', (chunk) => { words += chunk; });
    child.on('close', (status) => {
      const calls = existsSync(record) ? readFileSync(record, 'utf8').split('\0').slice(0, -1) : [];
      resolve({ status, words, calls });
    });
  });
}

// As a file manager runs it, with the words it puts in for the place of the desktop file.
function desktopCommand(file, place) {
  const [, exec] = /^Exec=(.*)$/m.exec(readFileSync(file, 'utf8'));
  assert.doesNotMatch(exec, /[\\$`]/, 'some desktops do not undo these escapes');
  return [commandPath('sh'), '-c', exec.replace('%k', () => place)];
}

const inQuotes = (text) => `'${text.replaceAll("'", "'\\''")}'`;

describe('a package', { concurrency: true }, () => {
  let book, contents;
  const folders = [];

  before(() => {
    book = publishMagazine('--pages', '1', '--app', '--name', 'Album');
    contents = join(book, 'Album.app/Contents');
  });

  after(() => {
    removeBook(book);
    folders.forEach((folder) => rmSync(folder, { recursive: true }));
  });

  function place(name = 'plain') {
    folders.push(realpathSync(mkdtempSync(join(tmpdir(), 'leafcast-package-'))));
    const folder = folders.at(-1);
    const copy = join(folder, name, 'Album.app/Contents');
    cpSync(contents, copy, { recursive: true });
    const inCopy = (path) => join(copy, path);
    return {
      folder, contents: copy, launcher: inCopy('MacOS/open-book'), page: inCopy('Resources/index.html'),
      desktopFile: inCopy('open-book.desktop'),
    };
  }

  it('describes itself to macOS and has what it names', () => {
    const binary = execFileSync('plistutil', ['-i', join(contents, 'Info.plist')]);
    const asJSON = 'import json, plistlib, sys; json.dump(plistlib.loads(sys.stdin.buffer.read()), sys.stdout)';
    const info = JSON.parse(execFileSync('python3', ['-c', asJSON], { input: binary }));
    accessSync(join(contents, 'MacOS', info.CFBundleExecutable), constants.X_OK);
    assert.equal(readFileSync(join(contents, 'Resources', `${info.CFBundleIconFile}.icns`)).toString('latin1', 0, 4), 'icns');
    assert.equal(readFileSync(join(contents, 'PkgInfo'), 'latin1'), info.CFBundlePackageType + info.CFBundleSignature);
    for (const key of ['CFBundleName', 'CFBundleDisplayName']) assert.ok(!(key in info), 'the Finder shows the file name');
  });

  it('describes its launcher to Linux desktops', () => {
    execFileSync('desktop-file-validate', [join(contents, 'open-book.desktop')]);
    accessSync(join(contents, 'open-book.desktop'), constants.X_OK);
  });

  const starts = {
    'by its full path': ({ launcher }) => [launcher],
    'by a relative path': () => [join(ODD_NAME, 'Album.app/Contents/MacOS/open-book')],
    'by the shell': ({ launcher }) => [commandPath('sh'), launcher],
    'through links': ({ folder, launcher }) => {
      symlinkSync(launcher, join(folder, 'absolute'));
      symlinkSync('../absolute', join(folder, 'bin/relative'));
      return [join(folder, 'bin/relative')];
    },
    'by its desktop file': ({ desktopFile }) => desktopCommand(desktopFile, inQuotes(desktopFile)),
    'by its desktop file, whose place is not told,': ({ contents: at, desktopFile }) =>
      [commandPath('sh'), '-c', `cd ${inQuotes(at)} && ${desktopCommand(desktopFile, '')[2]}`],
  };
  for (const [way, command] of Object.entries(starts))
    it(`opens in a window of its own, started ${way} at an odd place`, async () => {
      const odd = place(ODD_NAME);
      const desktop = makeDesktop(odd.folder, { chromium: 'record "$@"' });
      const { status, calls: [browser, option, ...more], words } = await run(command(odd), { cwd: odd.folder, ...desktop });
      assert.deepEqual([status, words, browser, more], [0, '', 'chromium', []]);
      assert.equal(fileURLToPath(option.replace(/^--app=/, '')), odd.page);
    });

  const openers = { chromium: 'record "$@"', 'xdg-open': 'record "$@"' };
  const choices = {
    'the default browser before another Chromium': [
      { ...openers, 'vivaldi-stable': 'record "$@"', 'xdg-settings': 'echo vivaldi-stable.desktop' }, (url) => ['vivaldi-stable', `--app=${url}`]],
    'a Chromium before a default browser without such windows': [
      { ...openers, 'xdg-settings': 'echo firefox-esr.desktop' }, (url) => ['chromium', `--app=${url}`]],
    'the default browser where there is no Chromium': [{ 'xdg-open': openers['xdg-open'] }, (url) => ['xdg-open', url]],
    'the next browser when one does not start': [{ ...openers, chromium: 'exit 1' }, (url) => ['xdg-open', url]],
    'Chrome on macOS': [
      { uname: 'echo Darwin', osascript: 'echo /Applications/Safari.app', open: 'record "$@"' },
      (url) => ['open', '-na', 'Google Chrome', '--args', `--app=${url}`]],
    'the default browser on macOS': [
      { uname: 'echo Darwin', osascript: 'echo /Applications/Safari.app', open: '[ "$1" = -a ] && record "$@"' },
      (url) => ['open', '-a', '/Applications/Safari.app', url]],
  };
  for (const [choice, [commands, expected]] of Object.entries(choices))
    it(`opens in ${choice}`, async () => {
      const { folder, launcher, page } = place();
      const { status, calls } = await run([launcher], makeDesktop(folder, commands));
      assert.deepEqual([status, calls], [0, expected(pathToFileURL(page).href)]);
    });

  it('opens from where it was put when macOS runs it elsewhere', async () => {
    const { folder, contents: original, page } = place();
    const elsewhere = join(folder, 'AppTranslocation/Album.app/Contents');
    cpSync(original, elsewhere, { recursive: true });
    const security = `printf 'Original Path: (...)\\n    %s\\n' '${join(original, '..')}'`;
    const commands = { uname: 'echo Darwin', osascript: 'exit 1', security, open: 'record "$@"' };
    const { calls } = await run([join(elsewhere, 'MacOS/open-book')], makeDesktop(folder, commands));
    assert.equal(calls.at(-1), `--app=${pathToFileURL(page).href}`);
  });

  const failures = {
    'no browser': [{}, /no web browser/],
    'no display': [{ DISPLAY: '' }, /no display/],
    'no page': [{ removed: true }, /index\.html is not there/],
  };
  for (const [lack, [{ removed, ...environment }, reason]] of Object.entries(failures))
    it(`says so when there is ${lack}`, async () => {
      const { folder, launcher, page } = place();
      if (removed) rmSync(page);
      const desktop = makeDesktop(folder, { zenity: 'record "$@"' });
      const { status, words, calls } = await run([launcher], { ...desktop, ...environment });
      assert.equal(status, 1);
      assert.match(words, reason);
      assert.equal(calls.at(-1), `--text=${words.trim()}`);
    });
});
