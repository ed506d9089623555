// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { mkdirSync, renameSync, rmSync, symlinkSync, utimesSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import { gunzipSync } from 'node:zlib';
import { ask, makeFolder, removeFolder, startServer } from './support.mjs';

const DIGITS = '0123456789';
const LONG = 'body { color: black }\n'.repeat(500);
const MODIFIED = 'Sun, 06 Nov 2022 08:49:37 GMT';
const EARLIER = 'Sun, 06 Nov 2022 08:49:36 GMT';
const LATER = 'Sun, 06 Nov 2022 08:49:38 GMT';

const RANGES = {
  'bytes=0-3': '0-3', 'bytes=4-6': '4-6', 'bytes=9-9': '9-9', 'bytes=7-': '7-9', 'bytes=-3': '7-9', 'bytes=-99': '0-9', 'bytes=5-99': '5-9', 'BYTES=0-0': '0-0',
  'bytes=0-99999999999999999999': '0-9', 'bytes=-99999999999999999999': '0-9',
  'bytes=10-': '*', 'bytes=10-11': '*', 'bytes=-0': '*', 'bytes=99999999999999999999-': '*', 'bytes=9223372036854775807-': '*',
  'bytes=6-2': null, 'bytes=0-1,3-4': null, 'bytes=': null, 'bytes=-': null, 'bytes=1': null, 'bytes=a-b': null, 'bytes=+1-2': null, 'bytes=--1': null,
  'bytes=0x1-2': null, 'bytes=1-2-3': null, 'lines=0-1': null, '': null,
};

const TYPES = {
  'index.html': 'text/html; charset=utf-8', 'style.css': 'text/css; charset=utf-8', 'book.JS': 'text/javascript; charset=utf-8', 'search.json': 'application/json',
  '1.jpg': 'image/jpeg', 'a.b.png': 'image/png', 'icon.svg': 'image/svg+xml', 'sound.mp3': 'audio/mpeg', 'film.mp4': 'video/mp4', 'font.woff2': 'font/woff2',
  'jpg': 'application/octet-stream', 'file.jpg.exe': 'application/octet-stream',
};

describe('the preview server asked for files', () => {
  let folder, port, server, entityTag;

  before(async () => {
    folder = makeFolder({ 'digits.png': DIGITS, 'empty.png': '', 'long.css': LONG, 'long.png': LONG, 'short.css': 'a {}', 'folder with ü & #/index.html': 'odd', ...TYPES });
    utimesSync(join(folder, 'digits.png'), 0, Date.parse(MODIFIED) / 1000);
    server = await startServer(folder);
    port = server.port;
    entityTag = (await ask(port, '/digits.png')).fields.etag;
  });

  after(async () => {
    await server?.stop();
    removeFolder(folder);
  });

  it('sends the part that is asked for, and the whole when it cannot make it out', async () => {
    for (const [range, expected] of Object.entries(RANGES)) {
      const { status, fields, body } = await ask(port, '/digits.png', { range });
      if (expected === '*') {
        assert.deepEqual([status, fields['content-range']], [416, 'bytes */10'], range);
        continue;
      }
      const [first, last] = (expected ?? '0-9').split('-').map(Number);
      assert.deepEqual([status, body.toString()], [expected ? 206 : 200, DIGITS.slice(first, last + 1)], range);
      assert.equal(fields['content-range'], expected ? `bytes ${expected}/10` : undefined, range);
    }
    assert.equal((await ask(port, '/empty.png', { range: 'bytes=0-' })).fields['content-range'], 'bytes */0');
    assert.equal((await ask(port, '/empty.png', { range: 'bytes=-1' })).status, 416);
    assert.equal((await ask(port, '/digits.png', { range: 'bytes=0-3' }, 'HEAD')).status, 200);
  });

  it('sends a part of the version that the client has, or the whole', async () => {
    const versions = { [entityTag]: 206, [MODIFIED]: 206, '"other"': 200, [`W/${entityTag}`]: 200, [EARLIER]: 200, [LATER]: 200, nonsense: 200 };
    for (const [version, status] of Object.entries(versions)) {
      assert.equal((await ask(port, '/digits.png', { range: 'bytes=2-', 'if-range': version })).status, status, version);
    }
  });

  it('sends nothing that the client has', async () => {
    const conditions = [
      [304, { 'if-none-match': entityTag }], [304, { 'if-none-match': `W/${entityTag}` }], [304, { 'if-none-match': '*' }],
      [304, { 'if-none-match': `"x, y" ,, W/"z",${entityTag}` }], [304, { 'if-none-match': entityTag, 'if-modified-since': EARLIER }],
      [304, { 'if-none-match': entityTag, range: 'bytes=0-1' }], [304, { 'if-modified-since': MODIFIED }], [304, { 'if-modified-since': LATER }],
      [200, { 'if-none-match': '"other"' }], [200, { 'if-none-match': '"other"', 'if-modified-since': LATER }], [200, { 'if-none-match': entityTag.slice(0, -1) }],
      [200, { 'if-none-match': `"x${entityTag.slice(1)}, ""` }], [200, { 'if-none-match': '' }], [200, { 'if-none-match': '"*"' }], [200, { 'if-modified-since': EARLIER }],
      [200, { 'if-modified-since': 'yesterday' }], [200, { 'if-modified-since': `${MODIFIED}x` }],
    ];
    for (const [status, headers] of conditions) {
      for (const method of ['GET', 'HEAD']) {
        const reply = await ask(port, '/digits.png', headers, method);
        const body = method === 'GET' && status === 200 ? DIGITS : '';
        assert.deepEqual([reply.status, reply.body.toString(), reply.fields.etag], [status, body, entityTag], JSON.stringify(headers));
        assert.deepEqual([reply.fields['last-modified'], reply.fields['cache-control']], [MODIFIED, 'no-cache']);
      }
    }
  });

  it('tells a file that is written anew from the one before, even within a second', async () => {
    writeFileSync(join(folder, 'new'), '9876543210');
    utimesSync(join(folder, 'new'), 0, Date.parse(MODIFIED) / 1000);
    renameSync(join(folder, 'new'), join(folder, 'digits.png'));
    const reply = await ask(port, '/digits.png', { 'if-none-match': entityTag });
    assert.deepEqual([reply.status, reply.body.toString()], [200, '9876543210']);
    writeFileSync(join(folder, 'digits.png'), DIGITS);
    utimesSync(join(folder, 'digits.png'), 0, Date.parse(MODIFIED) / 1000);
    entityTag = (await ask(port, '/digits.png')).fields.etag;
  });

  it('compresses text for those who take it', async () => {
    const plain = await ask(port, '/long.css');
    assert.equal(plain.body.toString(), LONG);
    const packed = await ask(port, '/long.css', { 'accept-encoding': 'br, GZIP;q=0.5' });
    assert.equal(packed.fields['content-encoding'], 'gzip');
    assert.equal(gunzipSync(packed.body).toString(), LONG);
    assert.notEqual(packed.fields.etag, plain.fields.etag);
    for (const reply of [plain, packed]) assert.equal(reply.fields.vary, 'Accept-Encoding');
    const gzip = { 'accept-encoding': 'gzip' };
    assert.equal((await ask(port, '/long.css', gzip, 'HEAD')).fields['content-length'], String(packed.body.length));
    assert.equal((await ask(port, '/long.css', { ...gzip, 'if-none-match': packed.fields.etag })).status, 304);
    assert.equal((await ask(port, '/long.css', { ...gzip, 'if-none-match': plain.fields.etag })).status, 200);
    const part = await ask(port, '/long.css', { ...gzip, range: 'bytes=4-9' });
    assert.deepEqual([part.status, part.body.toString(), part.fields['content-encoding']], [206, LONG.slice(4, 10), undefined]);
  });

  it('leaves alone what is no text, too small, or not to be compressed', async () => {
    for (const coding of ['gzip;q=0', 'gzip; q=0.000', 'identity', 'br', 'x-gzip-x', '']) {
      const reply = await ask(port, '/long.css', { 'accept-encoding': coding });
      assert.deepEqual([reply.fields['content-encoding'], reply.body.toString()], [undefined, LONG], coding);
    }
    for (const path of ['/long.png', '/short.css']) {
      assert.equal((await ask(port, path, { 'accept-encoding': 'gzip' })).fields['content-encoding'], undefined, path);
    }
  });

  it('names the type of what it sends, and says that nothing else may be made of it', async () => {
    for (const [name, type] of Object.entries(TYPES)) {
      const { fields } = await ask(port, `/${name}`);
      assert.deepEqual([fields['content-type'], fields['x-content-type-options'], fields['cross-origin-resource-policy']], [type, 'nosniff', 'same-origin'], name);
    }
  });

  it('leads to the page of a folder', async () => {
    const link = '/folder%20with%20%C3%BC%20%26%20%23';
    const { status, fields } = await ask(port, link);
    assert.deepEqual([status, fields.location, fields['cache-control']], [301, `${link}/`, 'no-cache']);
    assert.equal((await ask(port, fields.location)).body.toString(), 'odd');
  });

  it('serves a folder on that is removed and made anew, and no link in its place', async () => {
    const book = makeFolder({ 'index.html': 'the book' });
    const outside = makeFolder({ 'index.html': 'SECRET' });
    const served = await startServer(book);
    removeFolder(book);
    assert.equal((await ask(served.port, '/')).status, 404);
    symlinkSync(outside, book);
    assert.equal((await ask(served.port, '/')).status, 404);
    removeFolder(book);
    mkdirSync(book);
    writeFileSync(join(book, 'index.html'), 'the book again');
    assert.equal((await ask(served.port, '/')).body.toString(), 'the book again');
    await served.stop();
    [book, outside].forEach(removeFolder);
  });

  it('finds the only page of the served folder, whatever its name', async () => {
    rmSync(join(folder, 'index.html'));
    assert.equal((await ask(port, '/')).status, 404);
    writeFileSync(join(folder, 'my book.html'), 'the page');
    assert.equal((await ask(port, '/')).body.toString(), 'the page');
    writeFileSync(join(folder, 'other.html'), 'another');
    assert.equal((await ask(port, '/')).status, 404);
  });
});
