// SPDX-License-Identifier: MIT
// Charts and explanations: colours in a leaf, a line of years, the tree year, leaf printing.
import { AUTUMN, along, at, many, polyline, range, round, svg } from './drawing.mjs';
import { leaf } from './leaves.mjs';
import { ringWidths } from './patterns.mjs';

const INK = '#2b2f28';
const label = (x, y, text, { size = 15, anchor = 'middle', fill = INK, weight = 400 } = {}) =>
  `<text x="${round(x)}" y="${round(y)}" font-size="${size}" text-anchor="${anchor}" fill="${fill}" font-weight="${weight}">${text}</text>`;

/** How much of each pigment a leaf holds from August to November, 640 by 330. */
export function pigments() {
  const curves = [
    { name: 'Chlorophyll', colour: '#5d7a3a', value: (t) => 1 / (1 + Math.exp((t - 0.42) * 13)) * 0.92, at: 0.13, lift: -14 },
    { name: 'Carotenes', colour: '#d99a2b', value: (t) => 0.44 - 0.2 * t * t, at: 0.9, lift: -14 },
    { name: 'Anthocyanins', colour: '#a8412c', value: (t) => 0.74 * Math.exp(-Math.pow((t - 0.66) / 0.17, 2)), at: 0.66, lift: -14 },
  ];
  const [left, right, bottom, height] = [16, 624, 276, 240];
  const point = (value, t) => [left + (right - left) * t, bottom - height * value(t)];
  const area = ({ value, colour }) => {
    const line = range(61, (step) => point(value, step / 60));
    return `<path d="${polyline([[left, bottom], ...line, [right, bottom]])}Z" fill="${colour}" fill-opacity=".2"/><path d="${polyline(line)}" fill="none" stroke="${colour}" stroke-width="3.5"/>`;
  };
  const names = curves.map((curve) => {
    const [x, y] = point(curve.value, curve.at);
    return label(x, y + curve.lift, curve.name, { size: 16, fill: curve.colour, weight: 700 });
  });
  const months = ['August', 'September', 'October', 'November'].map((month, index) => label(left + 76 + 152 * index, 306, month, { size: 14 }));
  const grid = many(5, (index) => `<path d="M${left + 152 * index} ${bottom - height}V${bottom}" stroke="#cbbf9f" stroke-dasharray="2 5"/>`);
  return svg(640, 330, `${grid}${curves.map(area).join('')}<path d="M${left} ${bottom}H${right}" stroke="${INK}" stroke-width="1.5"/>${names.join('')}${months.join('')}`, 'xMidYMid meet');
}

/** The rings of the log as a bar from the heart to the bark, 640 by 150. */
export function ringLine() {
  const widths = ringWidths();
  const total = widths.reduce((sum, width) => sum + width, 0);
  let x = 10;
  const bars = widths.map((width, year) => {
    const shown = (620 * width) / total;
    const bar = `<rect x="${round(x)}" y="20" width="${round(shown - 0.9)}" height="58" fill="${along(['#e8c58c', '#dcae6c', '#c68d4c', '#8a5a34'], year / 62)}"/>`;
    x += shown;
    return bar;
  });
  const place = (year) => 10 + (620 * widths.slice(0, year).reduce((sum, width) => sum + width, 0)) / total;
  const notes = [[1, 'Acorn', 'start'], [19, 'Neighbours felled'], [39, 'Six dry years'], [51, 'The great storm'], [62, 'Felled', 'end']];
  const marks = notes.map(([year, text, anchor = 'middle']) =>
    `<path d="M${round(place(year))} 84V100" stroke="#b5512a" stroke-width="2"/>${label(place(year), 118, text, { anchor, size: 14 })}${label(place(year), 136, 'Year ' + year, { anchor, size: 12, fill: '#7a7362' })}`);
  return svg(640, 150, `${bars.join('')}${marks.join('')}`, 'xMidYMid meet');
}

const MONTHS = ['Jan', 'Feb', 'Mar', 'Apr', 'May', 'Jun', 'Jul', 'Aug', 'Sep', 'Oct', 'Nov', 'Dec'];
const onCircle = (radius, turns) => [radius * Math.sin(2 * Math.PI * turns), -radius * Math.cos(2 * Math.PI * turns)];

function ringSector(inner, outer, from, to, fill) {
  const [a, b, c, d] = [onCircle(outer, from), onCircle(outer, to), onCircle(inner, to), onCircle(inner, from)].map((point) => point.map(round).join(' '));
  const large = to - from > 0.5 ? 1 : 0;
  return `<path d="M${a}A${outer} ${outer} 0 ${large} 1 ${b}L${c}A${inner} ${inner} 0 ${large} 0 ${d}Z" fill="${fill}"/>`;
}

/** The year of a tree as a wheel: daylight, leaves, and what to do, 640 by 640. */
export function treeYear() {
  const leafColours = ['#d9cfb8', '#d9cfb8', '#c9cf9a', '#a5bd6a', '#7fa04a', '#5f8a3f', '#567d3b', '#6f8b3c', '#a9a53f', '#e0ac39', '#c4612f', '#c9b79a'];
  const daylight = MONTHS.map((_, index) => 0.5 - 0.36 * Math.cos((2 * Math.PI * (index + 0.85)) / 12));
  const sectors = MONTHS.map((month, index) => {
    const [from, to] = [index / 12 + 0.002, (index + 1) / 12 - 0.002];
    const [x, y] = onCircle(291, (from + to) / 2);
    const day = round(96 + 62 * daylight[index]);
    return ringSector(176, 262, from, to, leafColours[index]) + ringSector(92, day, from, to, '#e7b54a') + ringSector(day, 166, from, to, '#2d4a52') +
      label(x, y + 6, month, { size: 19, weight: index >= 8 && index <= 10 ? 700 : 400, fill: index >= 8 && index <= 10 ? '#b5512a' : INK });
  });
  const marks = [[2.5, 'Buds'], [3.5, 'Leaves'], [5.5, 'Blossom'], [8.5, 'Acorns'], [9.5, 'Colour'], [10.5, 'Fall']].map(([month, text]) => {
    const [x, y] = onCircle(219, month / 12);
    const turn = (month * 30) % 360;
    return at(x, y, label(0, 6, text, { size: 16, fill: month > 4.5 && month < 8 ? '#fff' : INK }), { turn: turn > 90 && turn < 270 ? turn + 180 : turn });
  });
  return svg(640, 640, at(320, 320, `${sectors.join('')}${marks.join('')}<circle r="84" fill="#fbf7ee"/>${at(0, 40, leaf('hornbeam', { fill: '#c4612f', vein: '#fbf7ee' }), { scale: 0.95, turn: 8 })}`), 'xMidYMid meet');
}

const hand = (x, y, turn) => at(x, y, '<path d="M-9 40V6Q-10 -6 -2 -12L22 -30Q30 -35 33 -28Q34 -24 29 -19L16 -6H24Q31 -5 30 3L24 34V44Z" fill="#e9c9a6" stroke="#9a7350" stroke-width="2" stroke-linejoin="round"/>', { turn, scale: 1.1 });
const PAPER = '<rect x="-66" y="-48" width="132" height="96" rx="2" fill="#fffdf6" stroke="#cbbf9f" stroke-width="2"/>';
const GREEN = { fill: '#5d7a3a', vein: '#f4ead6' };
const INKED = { fill: '#b5512a', vein: '#f4ead6' };

const STEPS = [
  `<rect x="-58" y="-46" width="116" height="26" rx="3" fill="#6a2f3a"/><rect x="-52" y="-41" width="110" height="16" fill="#fffdf6"/>${many(2, (row) => `<path d="M-52 ${-36 + 6 * row}H58" stroke="#cbbf9f"/>`)}${many(5, (row) => `<rect x="${-70 + 3 * (row % 2)}" y="${-18 + 14 * row}" width="136" height="8" rx="1" fill="#d9d5cb" stroke="#a9a496"/>`)}${many(4, (row) => at(-30 + 24 * row, -6 + 14 * row, '<path d="M-26 0Q0 -7 26 0Q0 5 -26 0Z" fill="#5d7a3a"/>'))}`,
  `<rect x="-70" y="-6" width="120" height="56" rx="4" fill="#8a5a34"/><rect x="-62" y="0" width="104" height="44" fill="#b5512a"/>${at(46, -20, '<rect x="-26" y="-11" width="52" height="22" rx="9" fill="#3a3f3a"/><path d="M0 -11V-24H30V-46" fill="none" stroke="#6b5a44" stroke-width="6" stroke-linejoin="round"/>', { turn: -14 })}`,
  `${at(-4, 44, leaf('beech', INKED), { scale: 0.95, turn: 10 })}${at(34, -30, '<rect x="-26" y="-11" width="52" height="22" rx="9" fill="#3a3f3a"/>', { turn: 28 })}`,
  `${PAPER}${at(0, 40, leaf('beech', INKED), { scale: 0.8, turn: 8 })}`,
  `${PAPER}<rect x="-50" y="-36" width="100" height="72" fill="#efe4cc" stroke="#cbbf9f" stroke-width="2"/>${hand(4, 26, -8)}`,
  `${PAPER}${at(0, 40, `<g opacity=".8">${leaf('beech', INKED)}</g>`, { scale: 0.8, turn: 8 })}${at(52, -18, leaf('beech', GREEN), { scale: 0.62, turn: 56 })}`,
];

/** Step 1 to 6 of printing with leaves, 200 by 150. */
export const printStep = (number) => svg(200, 150, at(100, 74, STEPS[number - 1]), 'xMidYMid meet');

/** A row of single leaves as an ornament, 640 by 80. */
export const leafRow = (species, count = 9) =>
  svg(640, 80, many(count, (index) => {
    const colours = { fill: along(AUTUMN, index / (count - 1)), vein: '#fbf7ee' };
    return at(40 + (560 * index) / (count - 1), 40, at(0, 46, leaf(species, colours)), { scale: 0.56, turn: index % 2 ? 22 : -12 });
  }), 'xMidYMid meet');
