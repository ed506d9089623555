// SPDX-License-Identifier: MIT
// Trees and landscapes.
import { AUTUMN, along, at, many, mix, polygon, random, range, round, svg } from './drawing.mjs';
import { PLAIN_LEAF } from './leaves.mjs';

function gradient(id, stops, direction = 'x1="0" y1="0" x2="0" y2="1"') {
  const stop = ([offset, colour]) => `<stop offset="${offset}" stop-color="${colour}"/>`;
  return `<linearGradient id="${id}" ${direction}>${stops.map(stop).join('')}</linearGradient>`;
}

function ridge(width, bottom, height, roughness, seed) {
  const next = random(seed);
  const waves = range(5, (index) => ({ count: 0.6 + index * 0.9 + next(), phase: next() * 6, size: roughness / (index + 1.3) }));
  const top = (x) => height + waves.reduce((sum, w) => sum + w.size * Math.sin((x / width) * w.count * 6.28 + w.phase), 0);
  return { top, path: polygon([[0, bottom], ...range(61, (step) => [(width * step) / 60, top((width * step) / 60)]), [width, bottom]]) };
}

// Small round trees along a ridge.
function wood(line, width, colours, count, size, seed) {
  const next = random(seed);
  return many(count, () => {
    const x = next() * width;
    const radius = size * (0.6 + 0.7 * next());
    const y = line.top(x);
    const colour = along(colours, next());
    return `<path d="M${round(x)} ${round(y + 4)}v${round(-radius)}" stroke="#3c3328" stroke-width="${round(radius / 7)}"/>
      <ellipse cx="${round(x)}" cy="${round(y - radius * 1.35)}" rx="${round(radius * 0.72)}" ry="${round(radius)}" fill="${colour}"/>`;
  });
}

function branches(next) {
  const drawn = [];
  const grow = (x, y, angle, length, width, depth) => {
    const endX = x + length * Math.sin(angle);
    const endY = y - length * Math.cos(angle);
    const bend = (next() - 0.5) * length * 0.22;
    drawn.push(`<path d="M${round(x)} ${round(y)}Q${round((x + endX) / 2 + bend)} ${round((y + endY) / 2)} ${round(endX)} ${round(endY)}" stroke-width="${round(width)}"/>`);
    if (depth === 0) return;
    const forks = depth > 3 ? 3 : 2;
    range(forks, (index) => {
      const spread = (index - (forks - 1) / 2) * (0.62 + 0.22 * next()) + (next() - 0.5) * 0.25;
      grow(endX, endY, angle * 0.82 + spread, length * (0.68 + 0.14 * next()), width * 0.62, depth - 1);
    });
  };
  grow(0, 0, 0.02, 170, 44, 5);
  const foot = '<path d="M-21 -60C-22 -20 -34 0 -58 8C-30 6 -14 8 4 14C24 8 40 6 66 8C38 0 26 -20 23 -60Z" fill="#3a2a22"/>';
  return `${foot}<g fill="none" stroke="#3a2a22" stroke-linecap="round">${drawn.join('')}</g>`;
}

// Leaves lie in clouds around the crown; the light comes from the upper left.
function crown(next, count, dark) {
  const clouds = range(26, (index) => {
    const angle = -2.05 + (4.1 * (index % 13)) / 12;
    const reach = index < 13 ? 1 : 0.52;
    return { x: 262 * reach * Math.sin(angle), y: -385 - 190 * reach * Math.cos(angle), size: 88 + 28 * next() };
  });
  return many(count, () => {
    const cloud = clouds[Math.floor(next() * clouds.length)];
    const angle = next() * 6.283;
    const far = Math.sqrt(next()) * cloud.size;
    const [x, y] = [cloud.x + far * Math.cos(angle), cloud.y + far * Math.sin(angle)];
    const light = 0.5 - (x + y + 385) / 900 + (next() - 0.5) * 0.55 - (dark ? 0.35 : 0);
    const fill = along([...AUTUMN].slice(1).reverse(), light);
    return at(x, y, `<path d="${PLAIN_LEAF}" fill="${dark ? mix(fill, '#4a1f1c', 0.45) : fill}"/>`, { turn: next() * 360, scale: 0.62 + 0.5 * next() });
  });
}

function falling(next, count) {
  return many(count, () =>
    at(70 + 700 * next(), 640 + 360 * next(), `<path d="${PLAIN_LEAF}" fill="${along(AUTUMN, 0.25 + 0.6 * next())}"/>`, { turn: 360 * next(), scale: 0.5 + 0.5 * next() }));
}

export function cover() {
  const [width, height] = [840, 1120];
  const next = random(7);
  const sky = gradient('sky', [[0, '#123b3c'], [0.34, '#2d6a63'], [0.58, '#d9a95a'], [0.72, '#f3d493']]);
  const hills = [
    ridge(width, height, 742, 30, 3), ridge(width, height, 800, 26, 11), ridge(width, height, 866, 22, 5), ridge(width, height, 960, 14, 21),
  ];
  const colours = ['#8a9a7a', '#5f7a57', '#3d5b3f', '#1f3b2c'];
  const layers = hills.map((hill, index) =>
    `<path d="${hill.path}" fill="${colours[index]}"/>` +
    (index < 3 ? wood(hill, width, AUTUMN.map((colour) => mix(colour, colours[index], 0.55 - 0.18 * index)), 46 - 10 * index, 9 + 5 * index, 40 + index) : '')).join('');
  return svg(width, height, `<defs>${sky}</defs>
    <rect width="${width}" height="${height}" fill="url(#sky)"/>
    <circle cx="420" cy="640" r="290" fill="#f6dc9f" fill-opacity=".2"/><circle cx="420" cy="640" r="220" fill="#fae6b4" fill-opacity=".8"/>
    ${layers}
    ${at(400, 962, `<ellipse cx="10" cy="4" rx="210" ry="16" fill="#142a20"/>${crown(next, 520, true)}${branches(next)}${crown(next, 1050, false)}`)}
    ${falling(next, 34)}`);
}

export function sapling() {
  const next = random(31);
  const leaves = many(11, (index) => {
    const side = index % 2 ? 1 : -1;
    const y = -46 - 16 * index;
    return at(side * 2, y, `<path d="M0 0V-14" stroke="#5a4a34" stroke-width="1.6"/>${at(0, -10, `<path d="${PLAIN_LEAF}" fill="${along(AUTUMN.slice(0, 4), next())}"/>`, { scale: 1.5 - 0.07 * index })}`, { turn: side * (66 - 4 * index) });
  });
  const roots = many(9, (index) => {
    const x = (index - 4) * 16;
    return `<path d="M0 0Q${x * 0.3} 26 ${x} ${44 + 14 * next()}T${x * 1.35} ${84 + 20 * next()}" stroke-width="${round(1.1 + next())}"/>`;
  });
  return svg(320, 400, `<path d="M0 262Q160 246 320 262V400H0Z" fill="#e9dfc9"/>
    ${at(160, 262, `<g fill="none" stroke="#8a7455" stroke-linecap="round">${roots}</g><path d="M0 2Q4 -110 -1 -226" fill="none" stroke="#5a4a34" stroke-width="4" stroke-linecap="round"/>${leaves}${at(-1, -222, `<path d="${PLAIN_LEAF}" fill="#6f8b3c"/>`, { scale: 1 })}`)}`, 'xMidYMid meet');
}
