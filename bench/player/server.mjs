// SPDX-License-Identifier: MIT
import { readFile } from 'node:fs/promises';
import { createServer } from 'node:http';
import { extname, join } from 'node:path';

const TYPES = {
  '.css': 'text/css', '.html': 'text/html; charset=utf-8', '.jpg': 'image/jpeg', '.js': 'text/javascript',
  '.png': 'image/png', '.svg': 'image/svg+xml',
};

/** Serves `folders` { '/prefix/': folder } and `pages` { '/path': html }; answers its address and how to end it. */
export async function serve(folders, pages) {
  const server = createServer(async (request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://local').pathname);
    const [status, body] = await answer(path, folders, pages);
    const type = TYPES[pages[path] ? '.html' : extname(path)] ?? 'application/octet-stream';
    response.writeHead(status, { 'content-type': type, 'cache-control': 'max-age=3600' }).end(body);
  });
  await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });
  return { address: `http://127.0.0.1:${server.address().port}`, close: () => server.close() };
}

async function answer(path, folders, pages) {
  if (pages[path]) return [200, pages[path]];
  const prefix = Object.keys(folders).find((start) => path.startsWith(start));
  if (!prefix || path.includes('..')) return [404, ''];
  return readFile(join(folders[prefix], path.slice(prefix.length))).then((data) => [200, data], () => [404, '']);
}
