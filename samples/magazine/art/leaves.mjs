// SPDX-License-Identifier: MIT
// Leaves of twelve trees. A leaf stands on the origin: its blade reaches up to y = -100 and its
// stalk down to about y = 25.
import { many, polygon, range, round, softPolygon } from './drawing.mjs';

const wave = (t, count, phase = 0) => Math.sin(2 * Math.PI * (t * count + phase));
const saw = (t, count) => ((t * count) % 1) - 0.5;
const bulge = (t, power) => Math.sin(Math.PI * Math.pow(t, power));

// Half the width of a simple blade at the height t (0 at the stalk, 1 at the tip).
const HALF_WIDTHS = {
  beech: (t) => 33 * Math.pow(bulge(t, 0.86), 0.92) * (1 + 0.03 * wave(t, 8)),
  hornbeam: (t) => 29 * Math.pow(bulge(t, 0.78), 0.85) * (1 - 0.09 * saw(t, 24)),
  birch: (t) => (t < 0.26 ? 38 * Math.pow(t / 0.26, 0.55) : 38 * Math.pow((1 - t) / 0.74, 1.15)) * (1 - 0.16 * saw(t, 15)),
  willow: (t) => 11.5 * Math.pow(bulge(t, 0.8), 0.95) * (1 - 0.08 * saw(t, 30)),
  oak: (t) => 34 * Math.pow(bulge(t, 1.25), 0.8) * (0.78 + 0.3 * wave(t, 5, 0.55)) + 3 * (1 - t),
  leaflet: (t) => 17 * Math.pow(bulge(t, 0.9), 0.85) * (1 - 0.12 * saw(t, 16)),
  fingerlet: (t) => 17 * Math.pow(bulge(t, 1.7), 0.9) * (1 - 0.08 * saw(t, 20)),
};

function bladeOutline(halfWidth) {
  const side = range(121, (step) => [Math.max(halfWidth(step / 120), 0), (-100 * step) / 120]);
  return polygon([...side.map(([x, y]) => [-x, y]), ...side.reverse()]);
}

function rightHalf(halfWidth) {
  return polygon([[0, 0], ...range(121, (step) => [Math.max(halfWidth(step / 120), 0), (-100 * step) / 120])]);
}

function sideVeins(halfWidth, count) {
  return many(count, (index) => {
    const start = 0.06 + (0.8 * index) / count;
    const end = Math.min(start + 0.16, 0.97);
    const reach = 0.86 * halfWidth(end);
    const vein = (side) =>
      `M0 ${round(-100 * start)}Q${round(side * reach * 0.6)} ${round(-100 * (start + 0.06))} ${round(side * reach)} ${round(-100 * end)}`;
    return vein(-1) + vein(1);
  });
}

function simpleLeaf(name, veinCount, { fill, vein }, stalk = 24) {
  const halfWidth = HALF_WIDTHS[name];
  return `<path d="${bladeOutline(halfWidth)}" fill="${fill}"/>
    <path d="${rightHalf(halfWidth)}" fill="#000" fill-opacity=".1"/>
    <path d="M0 ${stalk}Q${stalk / 8} ${stalk / 2} 0 0V-94${sideVeins(halfWidth, veinCount)}" fill="none" stroke="${vein}" stroke-width="1.3" stroke-linecap="round"/>`;
}

function outlinedLeaf(outline, veins, { fill, vein }) {
  return `<path d="${outline}" fill="${fill}" stroke="${fill}" stroke-width="1.5" stroke-linejoin="round"/>
    <path d="M0 26Q3 12 0 0${veins}" fill="none" stroke="${vein}" stroke-width="1.3" stroke-linecap="round"/>`;
}

const LINDEN = 'M0 -2C-10 10 -46 8 -46 -30C-46 -60 -14 -74 2 -104C10 -76 46 -62 44 -30C44 8 10 10 0 -2Z';
const LINDEN_VEINS = 'V-92M0 -2Q-22 -12 -38 -32M0 -2Q22 -12 37 -32M0 -24Q-20 -34 -32 -52M0 -24Q20 -34 31 -52M0 -46Q-12 -54 -20 -68M0 -46Q14 -54 20 -68';

const GINKGO = 'M0 4C-8 -18 -34 -36 -52 -44C-50 -66 -32 -88 -10 -92C-6 -84 -4 -72 -1 -62C1 -72 4 -84 9 -93C32 -88 50 -68 53 -44C34 -36 8 -18 0 4Z';
const ginkgoVeins = many(11, (index) => {
  const angle = (-47 + 9.4 * index) * (Math.PI / 180);
  const reach = [0, 5, 10].includes(index) ? 54 : 76;
  return `M0 0Q${round(12 * Math.sin(angle))} -30 ${round(reach * 0.86 * Math.sin(angle))} ${round(-reach * Math.cos(angle))}`;
});

function aspenOutline() {
  return polygon(range(180, (step) => {
    const angle = (2 * Math.PI * step) / 180;
    const tip = 12 * Math.exp(-Math.pow((Math.min(angle, 2 * Math.PI - angle)) * 5, 2));
    const radius = 43 + 1.6 * Math.sin(angle * 18) + tip;
    return [radius * Math.sin(angle), -42 - radius * Math.cos(angle)];
  }));
}

// Tips and notches of the right half of a lobed leaf, from the top down.
const MAPLE = [
  [0, -104], [6, -88], [14, -86], [12, -72], [17, -62], [30, -78], [33, -68], [48, -74], [45, -60],
  [56, -56], [44, -46], [40, -38], [56, -38], [46, -28], [50, -20], [32, -16], [24, -8], [30, 0], [12, -2], [0, -6],
];
const HAWTHORN = [
  [0, -100], [8, -95], [15, -86], [9, -76], [10, -70], [28, -78], [34, -66], [28, -56], [12, -47], [14, -43],
  [36, -52], [44, -38], [36, -28], [14, -22], [13, -12], [6, -3], [0, 0],
];
const bothHalves = (right) => [...right, ...right.slice(1, -1).reverse().map(([x, y]) => [-x, y])];
const MAPLE_VEINS = 'V-96M0 -4L46 -68M0 -4L-46 -68M0 -4L50 -34M0 -4L-50 -34M0 -40L10 -58M0 -40L-10 -58M24 -38L28 -60M-24 -38L-28 -60';

const HAWTHORN_VEINS = 'V-90M0 -54Q12 -58 26 -68M0 -54Q-12 -58 -26 -68M0 -28Q14 -30 34 -41M0 -28Q-14 -30 -34 -41M0 -76L8 -87M0 -76L-8 -87';

const stalked = (name, x, y, turn, scale, colours) =>
  `<g transform="translate(${round(x)} ${round(y)}) rotate(${round(turn)}) scale(${scale})">${simpleLeaf(name, 7, colours, 0)}</g>`;

function rowan(colours) {
  const pairs = many(6, (index) => {
    const y = -4 - 12.5 * index;
    const scale = round(0.44 - 0.028 * index);
    return stalked('leaflet', -3, y, -68, scale, colours) + stalked('leaflet', 3, y, 68, scale, colours);
  });
  return `<path d="M0 26Q3 10 0 0V-76" fill="none" stroke="${colours.vein}" stroke-width="2"/>${pairs}${stalked('leaflet', 0, -74, 0, 0.32, colours)}`;
}

function horseChestnut(colours) {
  const turns = [[-104, 0.46], [104, 0.46], [-68, 0.66], [68, 0.66], [-34, 0.84], [34, 0.84], [0, 0.92]];
  const leaflets = turns.map(([turn, scale]) => stalked('fingerlet', 0, -8, turn, scale, colours)).join('');
  return `<path d="M0 28Q3 10 0 -8" fill="none" stroke="${colours.vein}" stroke-width="2.4"/>${leaflets}`;
}

const SPECIES = {
  hornbeam: (colours) => simpleLeaf('hornbeam', 11, colours),
  beech: (colours) => simpleLeaf('beech', 7, colours),
  oak: (colours) => simpleLeaf('oak', 5, colours),
  birch: (colours) => simpleLeaf('birch', 7, colours),
  willow: (colours) => simpleLeaf('willow', 10, colours),
  hawthorn: (colours) => outlinedLeaf(softPolygon(bothHalves(HAWTHORN)), HAWTHORN_VEINS, colours),
  linden: (colours) => outlinedLeaf(LINDEN, LINDEN_VEINS, colours),
  aspen: (colours) => outlinedLeaf(aspenOutline(), 'V-84M0 -14L-24 -44M0 -14L24 -44M0 -38L-16 -64M0 -38L16 -64', colours),
  maple: (colours) => outlinedLeaf(polygon(bothHalves(MAPLE)), MAPLE_VEINS, colours),
  ginkgo: (colours) => outlinedLeaf(GINKGO, ginkgoVeins, colours),
  rowan,
  horseChestnut,
};

export const SPECIES_NAMES = Object.keys(SPECIES);

/** The leaf of a species in the colours { fill, vein }. */
export const leaf = (species, colours) => SPECIES[species](colours);

/** Outline of a plain leaf for crowds of leaves: cheap to draw. */
export const PLAIN_LEAF = 'M0 0C-9 -5 -10 -17 0 -26C10 -17 9 -5 0 0Z';

/** Half the width of a beech leaf 100 units long, at the height t from 0 to 1. */
export const beechHalfWidth = HALF_WIDTHS.beech;
