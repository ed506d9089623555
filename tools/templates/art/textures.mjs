// SPDX-License-Identifier: MIT
// Textures that repeat without a seam, as functions from a pixel to its colour.

const mix = (from, to, share) => from.map((channel, index) => channel + (to[index] - channel) * share);
const rgb = (hex) => [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16));
const smooth = (t) => t * t * (3 - 2 * t);
const clamped = (share) => Math.max(0, Math.min(1, share));
const wrapped = (value, period) => ((value % period) + period) % period;

/** From -1 to 1, the same for the same three whole numbers. */
function scattered(x, y, seed) {
  let bits = Math.imul(x, 0x27d4eb2d) ^ Math.imul(y, 0x165667b1) ^ Math.imul(seed + 1, 0x9e3779b1);
  bits = Math.imul(bits ^ (bits >>> 15), 0x85ebca6b);
  bits = Math.imul(bits ^ (bits >>> 13), 0xc2b2ae35);
  return ((bits ^ (bits >>> 16)) >>> 0) / 0x80000000 - 1;
}

/** Smooth noise from -1 to 1; x and y in cells, of which so many lie across and down a tile. */
function noise(x, y, across, down, seed) {
  const [left, top] = [Math.floor(x), Math.floor(y)];
  const at = (dx, dy) => scattered(wrapped(left + dx, across), wrapped(top + dy, down), seed);
  const [toRight, toBottom] = [smooth(x - left), smooth(y - top)];
  const upper = at(0, 0) + (at(1, 0) - at(0, 0)) * toRight;
  const lower = at(0, 1) + (at(1, 1) - at(0, 1)) * toRight;
  return upper + (lower - upper) * toBottom;
}

/** A layer of noise over a tile; u and v run from 0 to 1. */
const layer = (across, down, seed) => (u, v) => noise(u * across, v * down, across, down, seed);

const PLANKS = 4;
const PLANK_LENGTHS = [0.19, 0.62, 0.36, 0.84]; // where a plank ends, of the tile's width

/** Planks of oak, four to a tile; the grain runs across. */
export function wood(u, v) {
  const plank = Math.floor(v * PLANKS);
  const within = v * PLANKS - plank;
  const end = Math.abs(u - PLANK_LENGTHS[plank]);
  const board = plank * 2 + (u > PLANK_LENGTHS[plank] ? 1 : 0);
  const bend = 1.6 * layer(3, 3 * PLANKS, 7)(u, v) + 0.5 * layer(9, 5 * PLANKS, 11)(u, v);
  const rings = Math.sin((within * 5 + bend + board * 1.7) * 2 * Math.PI);
  const grain = layer(14, 96 * PLANKS, 3)(u, v) * 0.6 + layer(60, 160 * PLANKS, 5)(u, v) * 0.4;
  const light = 0.5 + rings * 0.1 + grain * 0.22 + scattered(board, 1, 2) * 0.17;
  const gap = Math.max(0, 1 - (Math.min(within, 1 - within) / 0.016)) + Math.max(0, 1 - end / 0.0016);
  return mix(mix(rgb('#6d4a2d'), rgb('#a87a4e'), light), rgb('#2c1a0e'), Math.min(gap, 1) * 0.8);
}

/** Cloth of short wool, combed in no direction. */
export function felt(u, v) {
  const fluff = layer(6, 6, 1)(u, v) * 0.25 + layer(48, 48, 2)(u, v) * 0.4 + layer(110, 110, 3)(u, v) * 0.5;
  const fibre = layer(20, 140, 4)(u, v) * 0.35 + layer(140, 20, 5)(u, v) * 0.35;
  return mix(rgb('#1c5a3d'), rgb('#2f7a56'), 0.5 + (fluff + fibre) * 0.42);
}

/** Rough white paper. */
export function paper(u, v) {
  const tooth = layer(64, 64, 1)(u, v) * 0.5 + layer(120, 120, 2)(u, v) * 0.5;
  const fibre = Math.max(0, layer(12, 90, 3)(u, v) - 0.55) + Math.max(0, layer(90, 12, 4)(u, v) - 0.55);
  return mix(rgb('#efeeeb'), rgb('#fbfaf8'), 0.5 + tooth * 0.4 - fibre * 0.5);
}

const SHEETS = 2; // of formwork, side by side in a tile
const TIE_HOLES = [0.22, 0.78];
const TIE_HOLE_RADIUS = 0.02;

/** Cast concrete: the clouds of its drying, pores, and the joints and tie holes of the formwork. */
export function concrete(u, v) {
  const clouds = layer(3, 3, 1)(u, v) * 0.4 + layer(7, 9, 2)(u, v) * 0.3 + layer(19, 23, 3)(u, v) * 0.16;
  const sand = layer(180, 180, 4)(u, v) * 0.16;
  const pore = Math.max(0, layer(90, 90, 5)(u, v) - 0.86) * 4;
  const sheet = Math.floor(u * SHEETS);
  const [across, down] = [u * SHEETS - sheet, v];
  const toEdge = Math.min(Math.min(across, 1 - across), Math.min(down, 1 - down));
  const joint = Math.max(0, 1 - toEdge / 0.006);
  const hole = Math.max(...TIE_HOLES.flatMap((x) => TIE_HOLES.map((y) => tieHole(across - x, down - y))));
  const light = 0.5 + (clouds + sand) * 0.5 + scattered(sheet, 1, 6) * 0.1 - pore * 0.25;
  return mix(mix(rgb('#a5a6a5'), rgb('#c9c9c6'), light), rgb('#6d6e6e'), clamped(joint * 0.5 + hole * 0.9));
}

/** Lit from above, so that its upper rim is the darker one. */
const tieHole = (dx, dy) => clamped((TIE_HOLE_RADIUS - Math.hypot(dx, dy)) / 0.004) * (0.72 - (dy / TIE_HOLE_RADIUS) * 0.28);

/** A board that was wiped many times: chalk left in long soft strokes. */
export function chalkboard(u, v) {
  const strokes = layer(3, 9, 1)(u, v) * 0.5 + layer(5, 24, 2)(u, v) * 0.3 + layer(2, 3, 3)(u, v) * 0.4;
  const dust = layer(160, 160, 4)(u, v) * 0.14;
  return mix(rgb('#24443a'), rgb('#3d6356'), 0.4 + strokes * 0.32 + dust);
}

/** Fine cloth of the binder's: threads over and under each other. */
export function weave(u, v) {
  const [x, y] = [u * 64, v * 64];
  const isOver = (Math.floor(x) + Math.floor(y)) % 2 === 0;
  const across = Math.sin((isOver ? y : x) * Math.PI) ** 2;
  const thread = layer(isOver ? 8 : 64, isOver ? 64 : 8, 1)(u, v) * 0.35;
  return mix(rgb('#dfe2e6'), rgb('#f0f2f4'), 0.3 + Math.abs(across) * 0.45 + thread);
}

/** Leather: small swellings with creases between them. */
export function leather(u, v) {
  const cells = 26;
  const [x, y] = [u * cells, v * cells];
  const distances = [-1, 0, 1].flatMap((dy) => [-1, 0, 1].map((dx) => {
    const [left, top] = [Math.floor(x) + dx, Math.floor(y) + dy];
    const at = (seed) => 0.5 + 0.42 * scattered(wrapped(left, cells), wrapped(top, cells), seed);
    return Math.hypot(x - left - at(1), y - top - at(2));
  })).sort((one, other) => one - other);
  const crease = Math.min((distances[1] - distances[0]) / 0.32, 1);
  const wear = layer(4, 4, 3)(u, v) * 0.16 + layer(90, 90, 4)(u, v) * 0.08;
  return mix(rgb('#14271f'), rgb('#2a4a3c'), 0.12 + smooth(crease) * 0.5 + wear);
}

/** Dark slate, hardly more than a colour. */
export function slate(u, v) {
  const layers = layer(4, 30, 1)(u, v) * 0.35 + layer(10, 80, 2)(u, v) * 0.35 + layer(120, 120, 3)(u, v) * 0.3;
  return mix(rgb('#1a1917'), rgb('#25231f'), 0.5 + layers * 0.55);
}

/** The texture as the text of a BMP image's address. */
export function bitmapAddress(texture, width, height) {
  const pixels = Buffer.alloc(54 + width * height * 3); // widths that are multiples of four need no padding
  pixels.write('BM');
  pixels.writeUInt32LE(pixels.length, 2);
  [54, 40, width, height].forEach((value, index) => pixels.writeUInt32LE(value, 10 + index * 4));
  pixels.writeUInt16LE(1, 26);
  pixels.writeUInt16LE(24, 28);
  for (let y = 0; y < height; y++)
    for (let x = 0; x < width; x++) {
      const [red, green, blue] = texture((x + 0.5) / width, (y + 0.5) / height);
      const at = 54 + ((height - 1 - y) * width + x) * 3; // rows run from the bottom up
      pixels.set([blue, green, red].map((channel) => Math.max(0, Math.min(255, Math.round(channel)))), at);
    }
  return `data:image/bmp;base64,${pixels.toString('base64')}`;
}
