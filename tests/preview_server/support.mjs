// SPDX-License-Identifier: MIT
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { request } from 'node:http';
import { createConnection } from 'node:net';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { createInterface } from 'node:readline';

/** The preview server that lies beside the program that LEAFCAST names, as in every book. */
export const PROGRAM = join(dirname(process.env.LEAFCAST ?? ''), '../share/leafcast/Lib/iPadPreview');

/** Makes a folder with the files { path: content }; the test that makes it removes it. */
export function makeFolder(files) {
  const folder = mkdtempSync(join(tmpdir(), 'leafcast-server-'));
  for (const [path, content] of Object.entries(files)) {
    mkdirSync(dirname(join(folder, path)), { recursive: true });
    writeFileSync(join(folder, path), content);
  }
  return folder;
}

export const removeFolder = (folder) => rmSync(folder, { recursive: true, force: true });

/** The first line that a started program prints; null when it ends without one. */
export async function firstLine(process) {
  const lines = createInterface({ input: process.stdout });
  const [line] = await Promise.race([once(lines, 'line'), once(lines, 'close')]);
  return line ?? null;
}

/** Serves a folder until stop(). */
export async function startServer(folder, ...options) {
  const process = spawn(PROGRAM, options, { cwd: folder, stdio: ['ignore', 'pipe', 'inherit'] });
  const { port, addresses } = JSON.parse(await firstLine(process));
  const ended = once(process, 'exit');
  return { port, addresses, process, ended, stop: () => (process.kill(), ended) };
}

/** Asks for a path; answers the status, the header and the bytes as they came. */
export async function ask(port, path, headers = {}, method = 'GET') {
  const asked = request({ host: '127.0.0.1', port, path, method, headers, agent: false }).end();
  const [reply] = await once(asked, 'response');
  const body = Buffer.concat(await reply.toArray());
  return { status: reply.statusCode, fields: reply.headers, body };
}

/** Sends bytes and no more; answers everything that comes until the server closes. */
export function exchange(port, bytes, host = '127.0.0.1') {
  return new Promise((resolve) => {
    const socket = createConnection({ port, host });
    let received = '';
    socket.setEncoding('latin1');
    socket.on('data', (text) => (received += text));
    socket.on('error', () => {}); // the server may close before everything is sent
    socket.on('close', () => resolve(received));
    socket.end(bytes, 'latin1');
  });
}

/** The statuses of all the answers in what was received. */
export const statusesOf = (received) =>
  [...received.matchAll(/HTTP\/1\.[01] (\d{3}) /g)].map(([, status]) => Number(status));
