// SPDX-License-Identifier: MIT
import { readFileSync } from 'node:fs';
import { setTimeout as sleep } from 'node:timers/promises';

const POLL_MILLISECONDS = 25;
const LONGEST_WAIT_MILLISECONDS = 30_000;
const TEN_MEGABIT = { offline: false, latency: 40, downloadThroughput: 10e6 / 8, uploadThroughput: 5e6 / 8 };

// Runs in the page before anything else: notes when the player is ready, and counts the frames that it asks for.
function watch(ready) {
  const request = window.requestAnimationFrame.bind(window);
  window.bench = { frames: 0, ready: undefined, request };
  window.requestAnimationFrame = (callback) => { window.bench.frames++; return request(callback); };
  const isReady = new Function(`try { return ${ready}; } catch { return false; }`);
  const look = () => { if (isReady()) window.bench.ready = performance.now(); else request(look); };
  request(look);
}

/** A player on a page of its own, in a fresh context. */
export class Session {
  requests = 0;
  bytes = 0;
  failures = [];
  #open = new Set();

  static async open(browser, address, player, window, { slow = false } = {}) {
    const session = new Session();
    session.browser = browser;
    session.player = player;
    session.context = await browser.newContext({ deviceScaleFactor: 1, ...window.context });
    session.page = await session.context.newPage();
    session.protocol = await session.context.newCDPSession(session.page);
    await session.#listen(slow);
    await session.page.addInitScript(watch, player.ready);
    await session.page.goto(address + player.address, { waitUntil: 'commit' });
    if (!await session.until('bench.ready')) throw new Error(`${player.name} was never ready: ${session.failures}`);
    return session;
  }

  async #listen(slow) {
    this.page.on('pageerror', ({ message }) => this.failures.push(message));
    this.protocol.on('Network.requestWillBeSent', ({ requestId, request }) => {
      if (/^(data|blob):/.test(request.url)) return;
      this.requests++;
      this.#open.add(requestId);
    });
    this.protocol.on('Network.loadingFinished', ({ requestId, encodedDataLength }) => {
      if (this.#open.delete(requestId)) this.bytes += encodedDataLength;
    });
    this.protocol.on('Network.loadingFailed', ({ requestId }) => this.#open.delete(requestId));
    await this.protocol.send('Network.enable');
    await this.protocol.send('Performance.enable');
    if (slow) await this.protocol.send('Network.emulateNetworkConditions', TEN_MEGABIT);
  }

  close() {
    return this.context.close();
  }

  evaluate(expression) {
    return this.page.evaluate(`(() => { try { return ${expression}; } catch { return undefined; } })()`);
  }

  async until(expression) {
    const end = Date.now() + LONGEST_WAIT_MILLISECONDS;
    while (Date.now() < end) {
      if (await this.evaluate(expression)) return true;
      await sleep(POLL_MILLISECONDS);
    }
    return false;
  }

  /** Until nothing has been loaded for so long. */
  async quiet(milliseconds = 1000) {
    let [last, since] = ['', Date.now()];
    for (const end = since + LONGEST_WAIT_MILLISECONDS; Date.now() < end; await sleep(POLL_MILLISECONDS)) {
      const state = `${this.requests} ${this.bytes}`;
      if (state !== last || this.#open.size > 0) [last, since] = [state, Date.now()];
      if (Date.now() - since >= milliseconds) return;
    }
  }

  async turn(direction = 'next') {
    await this.evaluate(`(${this.player[direction]}, 1)`);
    await sleep(60);
    return this.until(this.player.idle);
  }

  slowDown(rate) {
    return this.protocol.send('Emulation.setCPUThrottlingRate', { rate });
  }

  async heapMegabytes() {
    await this.protocol.send('HeapProfiler.collectGarbage');
    const { metrics } = await this.protocol.send('Performance.getMetrics');
    return metrics.find(({ name }) => name === 'JSHeapUsedSize').value / 2 ** 20;
  }

  /**
   * Processor seconds of the processes that run and draw pages, and the memory of all of the browser's, with shared
   * pages split between them. The browser's own process keeps house, for an empty page too.
   */
  async processes() {
    const protocol = await this.browser.newBrowserCDPSession();
    const { processInfo } = await protocol.send('SystemInfo.getProcessInfo');
    await protocol.detach();
    const sum = (values) => values.reduce((total, value) => total + value, 0);
    const ofPages = processInfo.filter(({ type }) => ['renderer', 'GPU'].includes(type));
    return { seconds: sum(ofPages.map(({ cpuTime }) => cpuTime)), megabytes: sum(processInfo.map(({ id }) => ownMemory(id))) };
  }
}

function ownMemory(process) {
  try {
    return Number(/^Pss:\s+(\d+)/m.exec(readFileSync(`/proc/${process}/smaps_rollup`, 'utf8'))[1]) / 1024;
  } catch {
    return 0; // it has ended meanwhile
  }
}
