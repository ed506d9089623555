// SPDX-License-Identifier: MIT
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { createServer } from 'node:net';

const DRIVER = process.env.WEBKIT_DRIVER || 'WebKitWebDriver';
const KEYS = { ArrowRight: '\uE014', End: '\uE010' };
const LEFT_BUTTON = 0;

/** Starts Debian's WebKit on a screen of its own, and speaks the W3C's WebDriver protocol with it. */
export async function launchWebKit() {
  const port = await freePort();
  const screen = ['-a', '-s', '-screen 0 1400x1000x24'];
  const driver = spawn('xvfb-run', [...screen, DRIVER, `--port=${port}`], { detached: true, stdio: 'ignore' });
  const ended = once(driver, 'exit');
  // It starts other programs, which all belong to its group.
  const stop = () => (process.kill(-driver.pid), ended);
  try {
    await answering(port, ended);
    return await openSession(port, stop);
  } catch (error) {
    if (driver.exitCode === null) await stop();
    throw error;
  }
}

async function freePort() {
  const server = createServer().listen(0, '127.0.0.1');
  await once(server, 'listening');
  const { port } = server.address();
  server.close();
  await once(server, 'close');
  return port;
}

async function answering(port, ended) {
  let hasEnded = false;
  ended.then(() => (hasEnded = true), () => (hasEnded = true));
  while (!hasEnded)
    if (await ask(port, 'GET', '/status').catch(() => false)) return;
    else await new Promise((resolve) => setTimeout(resolve, 50));
  throw new Error(`${DRIVER} did not start.`);
}

async function ask(port, method, path, body) {
  const reply = await fetch(`http://127.0.0.1:${port}${path}`, { method, body: body && JSON.stringify(body) });
  const { value } = await reply.json();
  if (!reply.ok) throw new Error(`${value.error}: ${value.message}`);
  return value;
}

function askUntilTrue(task, ...argsAndDone) {
  const done = argsAndDone.pop();
  const again = () => {
    const answer = task(...argsAndDone);
    if (answer) done(answer);
    else setTimeout(again, 20);
  };
  again();
}

async function openSession(port, stop) {
  const { sessionId } = await ask(port, 'POST', '/session', { capabilities: {} });
  const call = (method, path, body) => ask(port, method, `/session/${sessionId}${path}`, body);
  const evaluate = (task, ...args) => call('POST', '/execute/sync', { script: `return (${task})(...arguments)`, args });
  const act = (source) => call('POST', '/actions', { actions: [source] });
  const mouse = (...actions) => act({ type: 'pointer', id: 'mouse', parameters: { pointerType: 'mouse' }, actions });
  return {
    evaluate,
    open: (url) => call('POST', '/url', { url }),
    resize: (width, height) => call('POST', '/window/rect', { width, height }),
    picture: async () => Buffer.from(await call('GET', '/screenshot'), 'base64'),
    press: (key) =>
      act({ type: 'key', id: 'keys', actions: ['keyDown', 'keyUp'].map((type) => ({ type, value: KEYS[key] })) }),
    hold: ([x, y], [toX, toY]) =>
      mouse(
        { type: 'pointerMove', x, y },
        { type: 'pointerDown', button: LEFT_BUTTON },
        { type: 'pointerMove', x: toX, y: toY, duration: 200 },
      ),
    letGo: () => mouse({ type: 'pointerUp', button: LEFT_BUTTON }),
    /** Asks again and again, in the page itself, until the answer is true; answers it. */
    waitFor: (task, ...args) =>
      call('POST', '/execute/async', { script: `(${askUntilTrue})(${task}, ...arguments)`, args }),
    async close() {
      await call('DELETE', '').catch(() => {}); // what is left ends with the driver
      await stop();
    },
  };
}
