// SPDX-License-Identifier: MIT
// What all drawings share. Coordinates are SVG user units, y downwards.

/** A repeatable source of fractions from 0 to 1, so that every print of the magazine is the same. */
export function random(seed) {
  let state = seed;
  return () => {
    state = (state + 0x6d2b79f5) | 0;
    let mixed = Math.imul(state ^ (state >>> 15), 1 | state);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296;
  };
}

export const round = (value) => Math.round(value * 100) / 100;

export const range = (count, make) => Array.from({ length: count }, (_, index) => make(index));

/** `make(index)` for `count` drawings, as one text. */
export const many = (count, make) => range(count, make).join('');

export const polyline = (points) => 'M' + points.map(([x, y]) => `${round(x)} ${round(y)}`).join('L');

export const polygon = (points) => polyline(points) + 'Z';

/** A closed curve through the middles of the sides of a polygon: soft, without overshoot. */
export function softPolygon(points) {
  const middle = ([ax, ay], [bx, by]) => `${round((ax + bx) / 2)} ${round((ay + by) / 2)}`;
  const next = (index) => points[(index + 1) % points.length];
  const curves = points.map((_, index) => {
    const corner = next(index);
    return `Q${round(corner[0])} ${round(corner[1])} ${middle(corner, next(index + 1))}`;
  });
  return `M${middle(points[0], points[1])}${curves.join('')}Z`;
}

export const svg = (width, height, content, fit = 'xMidYMid slice') =>
  `<svg viewBox="0 0 ${width} ${height}" preserveAspectRatio="${fit}" aria-hidden="true">${content}</svg>`;

export const at = (x, y, content, { turn = 0, scale = 1 } = {}) =>
  `<g transform="translate(${round(x)} ${round(y)}) rotate(${round(turn)}) scale(${round(scale)})">${content}</g>`;

/** Mixes two colours "#rrggbb". */
export function mix(from, to, share) {
  const channel = (colour, index) => parseInt(colour.slice(1 + 2 * index, 3 + 2 * index), 16);
  const mixed = (index) => Math.round(channel(from, index) * (1 - share) + channel(to, index) * share);
  return '#' + [0, 1, 2].map((index) => mixed(index).toString(16).padStart(2, '0')).join('');
}

/** The colour at `share` (0 to 1) of a row of colours. */
export function along(colours, share) {
  const place = Math.min(Math.max(share, 0), 0.9999) * (colours.length - 1);
  return mix(colours[Math.floor(place)], colours[Math.floor(place) + 1], place % 1);
}

export const AUTUMN = ['#6f8b3c', '#a9a53f', '#e0ac39', '#d9812e', '#b9502b', '#8a3430'];
