// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { once } from 'node:events';
import { symlinkSync } from 'node:fs';
import { createServer } from 'node:net';
import { hostname } from 'node:os';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { exchange, makeFolder, removeFolder, startServer, statusesOf } from './support.mjs';

const HOST = 'Host: localhost\r\n';
const get = (target, fields = HOST) => `GET ${target} HTTP/1.1\r\n${fields}\r\n`;

const PATHS = {
  200: ['/', '/index.html', '/index%2ehtml?/../x#/..', '//index.html', '/%69ndex.html', 'http://localhost/', 'http://LOCALHOST:1/?x', 'HTTP://localhost/', 'http://localhost', 'http://localhost?/../x'],
  400: ['secret.txt', '../secret.txt', '*', '/%', '/%4', '/%zz', '/%-1', '/a b', '/\0', '/\x7f', 'file:///etc/passwd', 'https://localhost/', 'localhost:80'],
  404: [
    '/../secret.txt', '/./index.html', '/x/../../secret.txt', '/../book/index.html', '/..', '/../', '/...',
    '/%2e%2e/secret.txt', '/%2E%2e%2fsecret.txt', '/..%2fsecret.txt', '/.%2e/secret.txt', '/pages%2f..%2f../secret.txt',
    '/%252e%252e/secret.txt', '/%252e%252e%252fsecret.txt', '/..%255c..%255csecret.txt',
    '/..\\secret.txt', '/\\..\\secret.txt', '/..%5csecret.txt', '/pages\\..\\..\\secret.txt',
    '/%00', '/index.html%00', '/index.html%00.jpg', '/%00/../secret.txt',
    '/%c0%ae%c0%ae/secret.txt', '/%c0%ae%c0%ae%c0%afsecret.txt', '/%e0%80%ae%e0%80%ae/secret.txt', '/\xc0\xae\xc0\xae/secret.txt',
    '/%uff0e%uff0e/secret.txt'.replaceAll('%u', '%25u'), '/;/../secret.txt', '/..;/secret.txt', '/..//secret.txt', '//../secret.txt', '////secret.txt',
    '//etc/passwd', '/etc/passwd', '/C:/secret.txt', '/C:%5csecret.txt', '/con', '/~root/', 'http://localhost/../secret.txt', 'http://localhost//../secret.txt',
    '/link-to-file', '/link-to-folder/secret.txt', '/link-to-folder/', '/link-to-page', '/link-to-pages/1.jpg', '/link-to-itself', '/link-to-proc/self/environ',
    '/pipe', '/pipe/', '/socket', '/pages/', '/index.html/', '/index.html/x', '/.hidden', '/.git/config', '/pages/.hidden', '/%2egit/config',
    `/${'a'.repeat(300)}`, `/${'a/'.repeat(7000)}`, `/${'../'.repeat(4000)}secret.txt`, `/${'%2e%2e/'.repeat(2000)}secret.txt`, `/${'a'.repeat(15000)}`,
  ],
  421: ['http://attacker.example/', 'http://attacker.example/../secret.txt', 'http://localhost@attacker.example/', 'http://localhost.attacker.example/'],
  431: [`/${'a'.repeat(17000)}`],
};

const HOSTS = {
  200: ['localhost', 'LocalHost:8765', 'localhost.', '127.0.0.1', '127.0.0.1:1', '127.1.2.3', '[::1]', '[::1]:8765', hostname().toUpperCase(), `${hostname()}.local:80`],
  400: ['', ' '],
  421: [
    'attacker.example', 'localhost.attacker.example', 'attacker.example:8765', '192.0.2.255', '[2001:db8::1]', '0.0.0.0', '[::]', '[::ffff:127.0.0.1]',
    '2130706433', '127.1', '0x7f.1', ':8765', '[', '[]', '.', 'localhost,attacker.example', 'localhost attacker.example', `${'a'.repeat(9000)}`,
  ],
};

const MESSAGES = {
  200: [`GET / HTTP/1.0\r\n${HOST}\r\n`, `HEAD / HTTP/1.1\r\n${HOST}\r\n`, get('/', `${HOST}Content-Length: 0\r\n`), get('/', `${HOST}Upgrade: h2c\r\nConnection: Upgrade\r\n`), get('/', `${HOST}Expect: 100-continue\r\n`)],
  400: [
    get('/', ''), get('/', `${HOST}${HOST}`), get('/', `${HOST}Host: attacker.example\r\n`), get('/', 'Host : localhost\r\n'), get('/', `${HOST}no colon\r\n`), get('/', `${HOST}: x\r\n`), get('/', `${HOST}X: a\0b\r\n`),
    'GET / HTTP/1.0\r\n\r\n', 'GET /\r\n\r\n', `GET / HTTP/1.2\r\n${HOST}\r\n`, `GET / HTTP/2.0\r\n${HOST}\r\n`, `GET / HTTP/11\r\n${HOST}\r\n`, `GET  / HTTP/1.1\r\n${HOST}\r\n`, `GET / HTTP/1.1 \r\n${HOST}\r\n`,
    'PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n', '\x16\x03\x01\x02\0\x01\0\x01\xfc\x03\x03'.padEnd(300, '\x8f'), '\r\n\r\n', 'GET / HTTP/1.1\nHost: localhost\n\n', `GET / HTTP/1.1\r\nHost: localhost\n\n${get('/')}`,
    get('/', `${HOST}Content-Length: 5\r\n`) + 'hello', get('/', `${HOST}Content-Length: 29\r\n`) + get('/'), get('/', `${HOST}Content-Length: -1\r\n`), get('/', `${HOST}Content-Length: 0, 5\r\n`) + 'hello', get('/', `${HOST}Content-Length: 99999999999999999999\r\n`),
    get('/', `${HOST}Content-Length: 0\r\nContent-Length: 43\r\n`) + get('/'), get('/', `${HOST}Transfer-Encoding: chunked\r\n`) + `0\r\n\r\n${get('/')}`, get('/', `${HOST}Transfer-Encoding: identity\r\n`) + get('/'),
    get('/', `${HOST}Content-Length: 4\r\nTransfer-Encoding: chunked\r\n`) + `0\r\n\r\n${get('/')}`, get('/', `${HOST}Transfer-Encoding: chunked\r\nContent-Length: 0\r\n`) + `0\r\n\r\n${get('/')}`, get('/', `${HOST}Transfer-Encoding:\x0bchunked\r\n`) + `0\r\n\r\n${get('/')}`,
  ],
  405: [
    ...['PUT', 'DELETE', 'PATCH', 'TRACE', 'OPTIONS', 'CONNECT', 'PROPFIND', 'get', 'GETS', 'G'].map((method) => `${method} / HTTP/1.1\r\n${HOST}\r\n`),
    `OPTIONS * HTTP/1.1\r\n${HOST}\r\n`, `CONNECT secret:443 HTTP/1.1\r\nHost: secret:443\r\n\r\n`, `POST / HTTP/1.1\r\n${HOST}Content-Length: 36\r\n\r\n${get('/')}`, `POST / HTTP/1.1\r\n${HOST}Transfer-Encoding: chunked\r\n\r\n0\r\n\r\n${get('/')}`,
  ],
  431: [get('/', `${HOST}X: ${'a'.repeat(17000)}\r\n`), get('/', HOST + 'X: 1\r\n'.repeat(3000)), `GET / HTTP/1.1\r\n${HOST}X: ${'a'.repeat(1 << 20)}`],
  '': ['', 'GET', `GET / HTTP/1.1\r\n${HOST}`, 'GET /'],
};

describe('the preview server asked by somebody hostile', () => {
  let folder, server, socket;

  before(async () => {
    folder = makeFolder({
      'secret.txt': 'the SECRET', 'book/index.html': '<!DOCTYPE html>the page', 'book/pages/1.jpg': 'picture', 'book/pages/.hidden': 'SECRET',
      'book/.hidden': 'SECRET', 'book/.git/config': 'SECRET', 'book/a b\r\nX-Injected: 1/index.html': 'odd', 'book/attacker.example/index.html': 'odd',
    });
    const links = { 'link-to-file': '../secret.txt', 'link-to-folder': '..', 'link-to-page': 'index.html', 'link-to-pages': 'pages', 'link-to-itself': 'link-to-itself', 'link-to-proc': '/proc' };
    for (const [name, target] of Object.entries(links)) symlinkSync(target, join(folder, 'book', name));
    assert.equal(spawnSync('mkfifo', [join(folder, 'book/pipe')]).status, 0);
    socket = createServer().listen(join(folder, 'book/socket'));
    await once(socket, 'listening');
    server = await startServer(join(folder, 'book'));
  });

  after(async () => {
    socket?.close();
    await server?.stop();
    removeFolder(folder);
  });

  async function check(table, toRequest) {
    for (const [status, entries] of Object.entries(table)) {
      for (const entry of entries) {
        const received = await exchange(server.port, toRequest(entry));
        const expected = status === '' ? [] : [Number(status)];
        assert.deepEqual(statusesOf(received), expected, `the answers to ${JSON.stringify(toRequest(entry)).slice(0, 200)}`);
        assert.doesNotMatch(received, /SECRET|root:|[a-z]=\/[a-z]/, entry);
      }
    }
  }

  it('gives nothing from outside the folder', () => check(PATHS, (target) => get(target)));
  it('answers for the names of its machine only', () => check(HOSTS, (host) => get('/', `Host: ${host}\r\n`)));
  it('answers at each of its addresses for all of them', async () => {
    const hosts = server.addresses.map((address) => new URL(address).host);
    for (const host of hosts) {
      const at = new URL(`http://${host}`).hostname.replace(/[[\]]/g, '');
      for (const named of hosts) assert.deepEqual(statusesOf(await exchange(server.port, get('/', `Host: ${named}\r\n`), at)), [200], `${named} at ${at}`);
      assert.deepEqual(statusesOf(await exchange(server.port, get('/', 'Host: 192.0.2.255\r\n'), at)), [421], at);
    }
  });

  it('answers a message once, or refuses it', () => check(MESSAGES, (message) => message));

  it('opens no device', async () => {
    const devices = await startServer('/dev');
    for (const name of ['null', 'zero', 'full', 'random', 'tty']) {
      assert.deepEqual(statusesOf(await exchange(devices.port, get(`/${name}`))), [404], name);
    }
    await devices.stop();
  });

  it('leads nowhere else, and lets nothing into its header', async () => {
    const locationOf = async (target) => /^Location: (.*)\r$/m.exec(await exchange(server.port, get(target)))?.[1];
    assert.equal(await locationOf('//attacker.example'), '/attacker.example/');
    assert.equal(await locationOf('/a%20b%0d%0aX-Injected:%201'), '/a%20b%0D%0AX-Injected%3A%201/');
  });

  it('answers requests that come together in their order', async () => {
    const targets = Array.from({ length: 900 }, (_, i) => ['/', '/none', '/pages/1.jpg'][i % 3]);
    const statuses = statusesOf(await exchange(server.port, targets.map((target) => get(target)).join('')));
    assert.deepEqual(statuses, targets.map((target) => (target === '/none' ? 404 : 200)));
  });
});
