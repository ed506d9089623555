// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { spawn, spawnSync } from 'node:child_process';
import { once } from 'node:events';
import { chmodSync, existsSync, readFileSync, truncateSync } from 'node:fs';
import { createConnection, createServer } from 'node:net';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { setTimeout as pause } from 'node:timers/promises';
import { PROGRAM, ask, exchange, firstLine, makeFolder, removeFolder, startServer, statusesOf } from './support.mjs';

const GET = 'GET / HTTP/1.1\r\nHost: localhost\r\n\r\n';
const run = (...options) => spawnSync(PROGRAM, options, { cwd: '/tmp', encoding: 'utf8' });

// Unlike once(), which takes a connection that the server resets for a failure.
const firstOf = (socket, ...events) => new Promise((resolve) => events.forEach((event) => socket.once(event, resolve)));

// An open connection that has been answered once.
async function connect(port, options) {
  const socket = createConnection({ port, host: '127.0.0.1', ...options }).on('error', () => {});
  socket.write(GET);
  await firstOf(socket, 'data', 'close');
  return socket;
}

describe('the life of the preview server', { concurrency: true }, () => {
  let folder;

  before(() => {
    folder = makeFolder({ 'index.html': 'the page', 'large.jpg': '' });
    truncateSync(join(folder, 'large.jpg'), 64 << 20);
  });

  after(() => removeFolder(folder));

  for (const signal of ['SIGTERM', 'SIGINT', 'SIGHUP']) {
    it(`ends with ${signal}, open connections or not`, async () => {
      const server = await startServer(folder);
      await connect(server.port);
      server.process.kill(signal);
      assert.deepEqual(await server.ended, [0, null]);
    });
  }

  it('ends together with the process that started it', async () => {
    const parent = spawn('sh', ['-c', '"$0" & wait', PROGRAM], { cwd: folder, stdio: ['ignore', 'pipe', 'inherit'] });
    const { port } = JSON.parse(await firstLine(parent));
    assert.equal((await ask(port, '/')).status, 200);
    parent.kill('SIGKILL');
    await once(parent, 'close'); // comes when the last process that holds the pipe has ended
    await assert.rejects(ask(port, '/'), /ECONNREFUSED/);
  });

  it('takes the next free port, or says that it cannot have the wanted one', async () => {
    const other = createServer().listen(8765);
    await once(other, 'listening').catch(() => {}); // somebody else has it
    const server = await startServer(folder);
    other.close();
    assert.ok(server.port > 8765 && server.port <= 8865);
    assert.ok(server.addresses.includes(`http://127.0.0.1:${server.port}/`));
    const second = run('--port', server.port);
    assert.deepEqual([second.status, second.stdout], [4, '']);
    assert.equal(second.stderr, `iPadPreview: it can't listen at port ${server.port}: Address already in use\n`);
    await server.stop();
  });

  it('listens where it is told to', async () => {
    const server = await startServer(folder, '--bind', '127.0.0.2');
    assert.deepEqual(server.addresses, [`http://127.0.0.2:${server.port}/`]);
    assert.deepEqual(statusesOf(await exchange(server.port, GET, '127.0.0.2')), [200]);
    await assert.rejects(ask(server.port, '/'), /ECONNREFUSED/);
    await server.stop();
  });

  it('refuses options that it does not know', () => {
    const wrong = [['--prot'], ['--port'], ['--port', '0'], ['--port', '65536'], ['--port', '80x'], ['--port='], ['--bind', 'here'], ['--quiet=1'], ['-xy'], ['folder'], ['--', 'x'], ['--bind', '::1', '--local-only']];
    for (const options of wrong) {
      const { status, stdout, stderr } = run(...options);
      assert.deepEqual([status, stdout], [2, ''], options);
      assert.match(stderr, /^iPadPreview: .+\n$/);
      if (options.length === 1) assert.ok(stderr.includes(options[0].replace('=1', '').replace('=', '')), stderr);
    }
    assert.match(run('--help').stdout, /^Usage: /);
  });

  it('opens the browser apart from itself', async () => {
    const tools = makeFolder({ 'xdg-open': '#!/bin/sh\n{ echo "$1"; ls -l /proc/self/fd; ps -o sid= -p $$; } > "$0.said"\nmv "$0.said" "$0.done"\n' });
    chmodSync(join(tools, 'xdg-open'), 0o755);
    const server = spawn(PROGRAM, ['--open'], { cwd: folder, env: { PATH: `${tools}:${process.env.PATH}` }, stdio: ['ignore', 'pipe', 'ignore'] });
    const { port } = JSON.parse(await firstLine(server));
    while (!existsSync(join(tools, 'xdg-open.done'))) await pause(20);
    const said = readFileSync(join(tools, 'xdg-open.done'), 'utf8');
    assert.ok(said.startsWith(`http://127.0.0.1:${port}/\n`), said);
    assert.doesNotMatch(said, /socket:/);
    assert.notEqual(said.trim().split(/\s+/).at(-1), spawnSync('ps', ['-o', 'sid=', '-p', server.pid], { encoding: 'utf8' }).stdout.trim());
    server.kill();
    removeFolder(tools);
  });

  it('ends a header that comes too slowly, however many bytes it has', { timeout: 60_000 }, async () => {
    const server = await startServer(folder);
    const socket = createConnection({ port: server.port, host: '127.0.0.1' }).on('error', () => {});
    socket.write('GET / HTTP/1.1\r\nHost: localhost\r\nX: ');
    const drip = setInterval(() => socket.write('x'), 500);
    socket.resume();
    await firstOf(socket, 'close');
    clearInterval(drip);
    assert.equal(socket.bytesRead, 0);
    assert.equal((await ask(server.port, '/')).status, 200);
    await server.stop();
  });

  it('ends a header that is too long, in whatever pieces it comes', async () => {
    const server = await startServer(folder);
    const socket = createConnection({ port: server.port, host: '127.0.0.1', noDelay: true }).on('error', () => {});
    socket.write('GET / HTTP/1.1\r\nX');
    let answer = '';
    socket.on('data', (bytes) => (answer += bytes));
    for (let pieces = 0; pieces < 200 && !answer; pieces++) {
      socket.write(`: ${'a'.repeat(900)}\r\nX`); // a whole field, and one byte of the next
      await pause(5);
    }
    assert.match(answer, /^HTTP\/1\.1 431 /);
    socket.destroy();
    await server.stop();
  });

  it('leaves connections to others when one client takes all it gets', { timeout: 60_000 }, async () => {
    const server = await startServer(folder);
    const sockets = await Promise.all(Array.from({ length: 128 }, () => connect(server.port)));
    assert.ok(sockets.every((socket) => socket.bytesRead > 0));
    assert.equal((await connect(server.port)).bytesRead, 0);
    assert.ok((await connect(server.port, { localAddress: '127.0.0.2' })).bytesRead > 0);
    sockets.splice(0, 5).forEach((socket) => socket.destroy());
    while ((await connect(server.port)).bytesRead === 0) await pause(20);
    await server.stop();
  });

  it('breaks off when a file is cut while it is sent', async () => {
    const server = await startServer(folder);
    const socket = createConnection({ port: server.port, host: '127.0.0.1' }).on('error', () => {});
    socket.write(GET.replace('/', '/large.jpg'));
    await firstOf(socket, 'readable');
    truncateSync(join(folder, 'large.jpg'), 0);
    socket.resume();
    await firstOf(socket, 'close');
    assert.ok(socket.bytesRead > 0 && socket.bytesRead < 64 << 20);
    assert.equal((await ask(server.port, '/')).status, 200);
    await server.stop();
  });
});
