// SPDX-License-Identifier: MIT
// Manual pages and completions against what the programs' own help says.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { delimiter, dirname, join } from 'node:path';
import { describe, it } from 'node:test';
import { fileURLToPath } from 'node:url';
import { BUILD, commandsOf, PROGRAM, run } from './support.mjs';

const MANUAL = join(BUILD, 'manual');
const beside = (name) => fileURLToPath(new URL(name, import.meta.url));
const env = { ...process.env, PATH: dirname(PROGRAM) + delimiter + process.env.PATH, HOME: '/nonexistent' };
const lines = (text) => text.split('\n').filter(Boolean).sort();

/** By shell, the candidates for the last of some words. */
const SHELLS = {
  bash: (words) => run(beside('bash-candidates'), [join(MANUAL, 'bash', words[0]), ...words], { env }),
  zsh: (words) => run(beside('zsh-candidates'), [join(MANUAL, 'zsh'), words.join(' ')], { env }),
  fish: (words) => run('fish', ['--no-config', '--command',
    `source ${join(MANUAL, 'fish', `${words[0]}.fish`)}; complete --do-complete=${JSON.stringify(words.join(' '))}`], { env })
    .replace(/\t.*/g, ''),
};

const candidates = (shell, ...words) => lines(SHELLS[shell](words));

const PROGRAMS = ['leafcast', 'leafcast-desktop'];
const commandsOfAll = PROGRAMS.flatMap((program) => commandsOf([program]));
const sharedOptions = ['-v', '--verbose', '--log-file'];

function offeredOptions({ line, options }) {
  const further = line[0] === 'leafcast' ? sharedOptions : [];
  return [...new Set([...options, ...further])].sort();
}

describe('manual pages', () => {
  for (const program of [...PROGRAMS, 'iPadPreview']) {
    it(`are in order: ${program}`, () => {
      const page = join(MANUAL, `${program}.1`);
      assert.equal(run('sh', ['-c', 'groff -man -Tutf8 -ww -z "$1" 2>&1', 'sh', page]), '');
    });
  }

  for (const { line, options, commands } of commandsOfAll) {
    it(`tell of every option and command: ${line.join(' ')}`, () => {
      const page = readFileSync(join(MANUAL, `${line[0]}.1`), 'utf8').replaceAll('\\-', '-');
      const start = page.indexOf(line.length > 1 ? `.SS "${line.join(' ')}"` : '.SH OPTIONS');
      const section = page.slice(start, page.indexOf('\n.S', start + 1));
      if (commands.length === 0 || line.length === 1) {
        assert.ok(start >= 0, 'there is a section');
        for (const option of options.filter((each) => line.length === 1 || !['-h', '--help'].includes(each)))
          assert.ok(section.includes(`\\fB${option}\\fR`), option);
      }
      for (const command of commands) assert.ok(page.includes(`\n\\fB${[...line, command].join(' ')}`), command);
    });
  }
});

for (const shell of Object.keys(SHELLS)) {
  describe(`completions in ${shell}`, () => {
    for (const command of commandsOfAll) {
      it(`offer every option and command: ${command.line.join(' ')}`, () => {
        assert.deepEqual(candidates(shell, ...command.line, '-'), offeredOptions(command));
        if (command.commands.length > 0)
          assert.deepEqual(candidates(shell, ...command.line, ''), [...command.commands].sort());
      });
    }

    it('offer values: qualities, templates, the styles of the template that is typed, files', () => {
      assert.deepEqual(candidates(shell, 'leafcast', 'publish', '--quality', ''),
        ['best', 'high', 'low', 'medium', 'smallest']);
      const templates = lines(run(PROGRAM, ['templates']));
      assert.deepEqual(candidates(shell, 'leafcast', 'styles', ''), templates);
      for (const template of templates)
        assert.deepEqual(candidates(shell, 'leafcast', 'publish', '--template', template, '--style', ''),
          lines(run(PROGRAM, ['styles', template])));
      for (const line of [['leafcast', 'inspect'], ['leafcast', 'publish', '--settings'], ['leafcast-desktop']])
        assert.ok(candidates(shell, ...line, '/etc/hos').some((path) => path.endsWith('hosts')), line.join(' '));
    });
  });
}
