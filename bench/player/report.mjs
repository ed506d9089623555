// SPDX-License-Identifier: MIT
// Budgets of our player, and the table in which the figures stand side by side.

/** What is printed, in order: name, unit, figure, the most that ours may have, and on which book alone that holds. */
const ROWS = [
  ['first page', 'ms', 'firstPage', 200],
  ['first page at 10 Mbit', 'ms', 'firstPageSlow', 700, '200 pages'],
  ['loaded before interaction', 'MB', 'megabytesBefore', 0.6, '200 pages'],
  ['requests before interaction', '', 'requestsBefore', 8],
  ['frame of a turn, median', 'ms', 'frame', 16.7],
  ['frame of a turn, 95th of 100', 'ms', 'frame95', 17],
  ['frame of a turn, longest', 'ms', 'frameMax', 34],
  ['press to first moving frame', 'ms', 'press', 33],
  ['frame at 4x slower, median', 'ms', 'frameSlow'],
  ['frame at 4x slower, 95th of 100', 'ms', 'frame95Slow', 50],
  ['frame at 4x slower, longest', 'ms', 'frameMaxSlow'],
  ['five quick presses, turns made', '', 'quickTurns', { exactly: 5 }],
  ['processor in 5 s at rest', 'ms', 'idle', 20],
  ['animation frames in 5 s at rest', '', 'idleFrames', 0],
  ['heap after 20 turns', 'MB', 'heap', 3],
  ['elements of the page', '', 'elements', 400],
  ['memory after load', 'MB', 'memory'],
  ['memory growth over 20 turns', 'MB', 'growth', 100],
  ['and over 20 more', 'MB', 'growthLater', 20],
];

// Clocks and displays round: 16.7 ms are sometimes 16.8.
const ROUNDING = 0.1;

function verdict(value, budget) {
  if (budget === undefined) return '';
  if (value === undefined) return 'NOT MET'; // what could not be measured is not good
  const met = typeof budget === 'object' ? value === budget.exactly : value <= budget + ROUNDING;
  return met ? 'met' : 'NOT MET';
}

const shown = (value) => (value === undefined ? '-' : value.toFixed(value < 10 && !Number.isInteger(value) ? 2 : 0));
const line = (cells) => cells.map((cell, at) => (at === 0 ? cell.padEnd(38) : cell.padStart(at < 3 ? 10 : 20))).join('');

/** `figures` { player: { figure: value } }, ours first. Returns the budgets that are not met. */
export function printTable(title, bookName, figures) {
  const [[, ours], ...others] = Object.entries(figures);
  console.log(`\n${title}\n${line(['', 'ours', 'budget', '', ...others.map(([name]) => name)])}`);
  const missed = [];
  for (const [name, unit, figure, budget, only] of ROWS) {
    const limit = only && only !== bookName ? undefined : budget;
    const judged = verdict(ours[figure], limit);
    if (judged === 'NOT MET') missed.push(`${title}: ${name} ${shown(ours[figure])} ${unit}, budget ${shownLimit(limit)}`);
    const beside = others.map(([, theirs]) => `${shown(theirs[figure])}${ratio(ours[figure], theirs[figure])}`);
    console.log(line([unit ? `${name}, ${unit}` : name, shown(ours[figure]), shownLimit(limit), judged, ...beside]));
  }
  return missed;
}

const shownLimit = (limit) => (limit === undefined ? '' : String(limit.exactly ?? limit));
const ratio = (ours, theirs) => (ours > 0 && theirs > 0 ? ` (x${(theirs / ours).toFixed(1)})` : '');

export function printBudget(name, value, budget, unit) {
  const judged = verdict(value, budget);
  console.log(line([`${name}, ${unit}`, shown(value), String(budget), judged]));
  return judged === 'NOT MET' ? [`${name}: ${shown(value)} ${unit}, budget ${budget}`] : [];
}
