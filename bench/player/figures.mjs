// SPDX-License-Identifier: MIT
// What is measured of a player. Each function answers figures { name: number } of one kind.
import { setTimeout as sleep } from 'node:timers/promises';

const IDLE_SECONDS = 5;
const MEMORY_TURNS = 20;
const PAUSE_MILLISECONDS = 400;
const QUICK_PRESSES = 5;
const PRESS_MILLISECONDS = 120;

export const quantile = (values, share) =>
  [...values].sort((one, other) => one - other)[Math.max(Math.ceil(share * values.length) - 1, 0)];

export async function loading(open, rounds) {
  await (await open()).close(); // the browser starts its processes, and reads this player's files, once for all rounds
  const first = { local: [], slow: [] };
  let before;
  for (const kind of ['local', 'slow'])
    for (let round = 0; round < rounds; round++) {
      const session = await open({ slow: kind === 'slow' });
      first[kind].push(await session.evaluate('bench.ready'));
      if (!before) {
        await session.quiet();
        before = { megabytes: session.bytes / 1e6, requests: session.requests };
      }
      await session.close();
    }
  return {
    firstPage: quantile(first.local, 0.5),
    firstPageSlow: quantile(first.slow, 0.5),
    megabytesBefore: before.megabytes,
    requestsBefore: before.requests,
  };
}

/** Turns on, and back again where the book ends. */
async function turnOften(session, pageCount, turns) {
  const reach = Math.max(Math.floor(pageCount / 2) - 1, 1);
  let done = 0;
  for (let turn = 0; turn < turns; turn++)
    if (await session.turn(Math.floor(turn / reach) % 2 === 0 ? 'next' : 'previous')) done++;
  await session.quiet(500);
  return done;
}

export async function memory(open, pageCount) {
  const session = await open();
  await session.quiet();
  const heapBefore = await session.heapMegabytes();
  const loaded = await session.processes();
  const idle = await idling(session);
  await turnOften(session, pageCount, MEMORY_TURNS);
  const heap = await session.heapMegabytes();
  const turned = await session.processes();
  await turnOften(session, pageCount, MEMORY_TURNS);
  await session.heapMegabytes();
  const later = await session.processes();
  const elements = await session.evaluate(`document.getElementsByTagName('*').length`);
  const quick = await quickPresses(session);
  await session.close();
  return {
    heap,
    heapBefore,
    elements,
    memory: loaded.megabytes,
    growth: turned.megabytes - loaded.megabytes,
    growthLater: later.megabytes - turned.megabytes,
    ...idle,
    ...quick,
  };
}

async function idling(session) {
  const [frames, { seconds }] = [await session.evaluate('bench.frames'), await session.processes()];
  await sleep(IDLE_SECONDS * 1000);
  const after = await session.processes();
  return { idleFrames: await session.evaluate('bench.frames') - frames, idle: (after.seconds - seconds) * 1000 };
}

/** A short book has no five turns left elsewhere. */
async function turnToStart(session, place) {
  for (let last; last !== (last = await place()); ) await session.turn('previous');
}

/** How many of five quick presses became turns: so many slow ones lead back. */
async function quickPresses(session) {
  const place = () => session.evaluate(session.player.place);
  await turnToStart(session, place);
  const from = await place();
  for (let press = 0; press < QUICK_PRESSES; press++) {
    await session.evaluate(`(${session.player.next}, 1)`);
    await sleep(PRESS_MILLISECONDS);
  }
  await sleep(PAUSE_MILLISECONDS);
  await session.until(session.player.idle);
  let turns = 0;
  for (; await place() !== from && turns < 2 * QUICK_PRESSES; turns++) await session.turn('previous');
  return { quickTurns: turns };
}

// Runs in the page: the times between frames while pages turn, and from each press to the first frame that moves.
async function timeFrames({ next, idle, turns, pause }) {
  const [press, isIdle] = [new Function(`return (${next}, 1)`), new Function(`return ${idle}`)];
  const frame = () => new Promise((resolve) => { window.bench.request(resolve); });
  const [between, waits] = [[], []];
  for (let turn = 0; turn < turns; turn++) {
    let last = await frame();
    const pressed = performance.now();
    let moving = false;
    press();
    for (;;) {
      const now = await frame();
      between.push(now - last);
      last = now;
      if (!moving && !isIdle()) {
        waits.push(performance.now() - pressed);
        moving = true;
      } else if (moving && isIdle()) break;
      if (now - pressed > 5000) break;
    }
    await new Promise((resolve) => { setTimeout(resolve, pause); });
  }
  return { between, waits };
}

export async function frames(open, { turns, slowdown, profile }) {
  const session = await open();
  await session.quiet();
  await session.turn();
  await session.slowDown(slowdown);
  if (profile) await startProfile(session);
  const { next, idle } = session.player;
  const { between, waits } = await session.page.evaluate(timeFrames, { next, idle, turns, pause: PAUSE_MILLISECONDS });
  if (profile) await profile(session);
  await session.close();
  const name = slowdown > 1 ? 'Slow' : '';
  return {
    [`frame${name}`]: quantile(between, 0.5),
    [`frame95${name}`]: quantile(between, 0.95),
    [`frameMax${name}`]: quantile(between, 1),
    [`press${name}`]: quantile(waits, 0.5),
  };
}

async function startProfile(session) {
  await session.protocol.send('Profiler.enable');
  await session.protocol.send('Profiler.start');
}

/** The functions that took most of the processor themselves, as lines. */
export async function profileLines(session, count = 15) {
  const { profile } = await session.protocol.send('Profiler.stop');
  const own = new Map();
  const nodes = new Map(profile.nodes.map((node) => [node.id, node.callFrame]));
  profile.samples.forEach((id, at) => {
    const { functionName, lineNumber } = nodes.get(id);
    const name = `${functionName || '(anonymous)'}${lineNumber >= 0 ? `:${lineNumber + 1}` : ''}`;
    own.set(name, (own.get(name) ?? 0) + profile.timeDeltas[at] / 1000);
  });
  const top = [...own].sort((one, other) => other[1] - one[1]).slice(0, count);
  return top.map(([name, milliseconds]) => `${milliseconds.toFixed(0).padStart(8)} ms  ${name}`);
}
