// SPDX-License-Identifier: MIT
import { execFileSync } from 'node:child_process';
import { dirname, resolve } from 'node:path';

export const PROGRAM = process.env.LEAFCAST;
export const BUILD = resolve(dirname(PROGRAM), '..');

export function run(program, args, options = {}) {
  return execFileSync(program, args, { encoding: 'utf8', ...options });
}

// "-q,--quiet" is one entry of a list, "--pages RANGE=ALL" another.
const ENTRY = /^ {2}(-[\w,-]+|[a-z]\S*)/;

function entries(help, heading) {
  const lines = help.slice(help.indexOf(`\n${heading}:\n`)).split('\n').slice(2);
  const end = lines.indexOf('');
  return lines.slice(0, end).map((line) => ENTRY.exec(line)?.[1]).filter(Boolean);
}

/** What the help of a program says of itself and of every command below it: line, options, commands. */
export function commandsOf(line = ['leafcast']) {
  const [name, ...below] = line;
  const help = run(resolve(dirname(PROGRAM), name), [...below, '--help']);
  const options = entries(help, 'Options').flatMap((entry) => entry.split(','));
  const commands = help.includes('\nSubcommands:\n') ? entries(help, 'Subcommands') : [];
  return [{ line, options, commands }, ...commands.flatMap((command) => commandsOf([...line, command]))];
}
