// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { createInterface } from 'node:readline';

const BIN = dirname(process.env.LEAFCAST ?? '');
const SCREEN = ['-a', '-s', '-screen 0 1280x800x24'];

/** A home of its own: no settings, no preview and no running instance of the user's. */
function environment(home) {
  const folders = { XDG_DATA_HOME: 'data', XDG_CONFIG_HOME: 'config', XDG_CACHE_HOME: 'cache', TMPDIR: 'tmp' };
  for (const [variable, name] of Object.entries(folders)) mkdirSync((folders[variable] = join(home, name)));
  const dataFolders = [join(home, 'shared'), process.env.XDG_DATA_DIRS || '/usr/local/share:/usr/share'].join(':');
  return {
    ...process.env, ...folders, XDG_DATA_DIRS: dataFolders,
    LC_ALL: 'C.UTF-8', LANGUAGE: '', QT_QPA_PLATFORM: 'xcb', QT_QPA_GENERIC_PLUGINS: 'leafcast-driver', QT_PLUGIN_PATH: join(BIN, '../tests/plugins'),
    QTWEBENGINE_CHROMIUM_FLAGS: '--disable-gpu',
    // Chromium's sandbox is not for the root of a container.
    ...(process.getuid() === 0 && { QTWEBENGINE_DISABLE_SANDBOX: '1' }),
  };
}

/** Starts the desktop application on a screen of its own, with the plugin that takes commands. */
export function startDesktop(...files) {
  const home = mkdtempSync(join(tmpdir(), 'leafcast-desktop-'));
  const program = spawn('xvfb-run', [...SCREEN, join(BIN, 'leafcast-desktop'), ...files],
    { env: environment(home), stdio: ['pipe', 'pipe', 'inherit'], detached: true });
  const ended = once(program, 'exit').then(([status]) => status);
  const answers = createInterface({ input: program.stdout })[Symbol.asyncIterator]();

  /** Does one thing, as soon as the program lets it; see tests/driver. */
  async function act(command) {
    program.stdin.write(`${JSON.stringify(command)}\n`);
    const { value, done } = await answers.next();
    assert.ok(!done, `the program ended during ${JSON.stringify(command)}`);
    const answer = JSON.parse(value);
    assert.equal(answer.error, undefined, JSON.stringify(command));
    return answer;
  }

  /** Ends what a failed test has left. */
  function remove() {
    if (program.exitCode === null && program.signalCode === null) process.kill(-program.pid, 'SIGKILL');
    rmSync(home, { recursive: true, force: true });
  }
  return { home, act, ended, remove };
}
