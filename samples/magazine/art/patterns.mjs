// SPDX-License-Identifier: MIT
// Growth rings, a leaf as a mosaic, bark rubbings in grey, and repeating leaf patterns.
import { AUTUMN, along, at, many, mix, polygon, polyline, random, range, round, softPolygon, svg } from './drawing.mjs';
import { beechHalfWidth, leaf, PLAIN_LEAF, SPECIES_NAMES } from './leaves.mjs';

const RING_COUNT = 62;

/**
 * How much the oak of the story grew in each of its years: little in the shade of its neighbours, up to
 * the 18th, and little in the dry years from the 34th to the 39th.
 */
export function ringWidths() {
  const next = random(12);
  const growth = (year) => (year <= 18 ? 0.62 : year >= 34 && year <= 39 ? 0.4 : 1);
  return range(RING_COUNT, (index) => (4.4 + 5.4 * next()) * growth(index + 1));
}

/** The end of a log, 840 by 1120, with a red line where the dry years end. */
export function growthRings() {
  const next = random(2);
  const waves = range(7, (index) => ({ count: index + 1, phase: next() * 6.283, size: (index < 2 ? 0.035 : 0.014) / (index * 0.4 + 1) }));
  const outline = (radius) => softPolygon(range(96, (step) => {
    const angle = (6.283 * step) / 96;
    const grown = Math.min(radius / 300, 1.1);
    const bend = 1 + grown * waves.reduce((total, w) => total + w.size * Math.sin(angle * w.count + w.phase), 0);
    return [430 + radius * bend * Math.cos(angle) * 0.99, 560 + radius * bend * Math.sin(angle)];
  }));
  let reached = 8;
  const radii = ringWidths().map((width) => (reached += width));
  const largest = radii[RING_COUNT - 1];
  const ring = (radius, index) => {
    const wood = along(['#e8c58c', '#dcae6c', '#c68d4c', '#b87f45', '#8a5a34'], radius / largest);
    return `<path d="${outline(radius)}" fill="${mix(wood, '#ffffff', 0.1 * next())}" stroke="${mix(wood, '#4a2a14', 0.55)}" stroke-width="${round(0.9 + 1.3 * next())}"/>` +
      (index === 38 ? `<path d="${outline(radius)}" fill="none" stroke="#b9502b" stroke-width="3.5"/>` : '');
  };
  const crack = polyline([[430, 560], [520, 521], [610, 492], [700, 452], [776, 428]]);
  return svg(840, 1120, `<rect width="840" height="1120" fill="#1d3329"/>
    <path d="${outline(largest + 26)}" fill="#3b2819"/><path d="${outline(largest + 15)}" fill="#5a3c25"/>
    ${radii.map(ring).reverse().join('')}
    <path d="${crack}" fill="none" stroke="#4a2a14" stroke-width="3" stroke-linecap="round"/>
    <circle cx="430" cy="560" r="6" fill="#6b4526"/>`);
}

/** One beech leaf whose fields turn from green to red, 840 by 1120. */
export function mosaicLeaf() {
  const next = random(5);
  const [rows, columns] = [26, 9];
  const edge = (t, u) => [2.7 * 100 * u * (beechHalfWidth(t) / 33) * 0.94, -1000 * Math.min(t + 0.1 * Math.abs(u) * (1 - t), 1)];
  const field = (row, column) => {
    const corner = (r, c) => edge((0.015 + (0.97 * r) / rows), c / columns);
    const points = [corner(row, column), corner(row, column + 1), corner(row + 1, column + 1), corner(row + 1, column)];
    const middle = points.reduce(([x, y], [px, py]) => [x + px / 4, y + py / 4], [0, 0]);
    const inset = points.map(([x, y]) => [x + (middle[0] - x) * 0.1, y + (middle[1] - y) * 0.1]);
    const share = 0.1 + (0.72 * row) / rows + 0.2 * Math.abs(column / columns) + 0.26 * (next() - 0.5);
    return `<path d="${polygon(inset)}" fill="${along(['#4f7a3a', ...AUTUMN], share)}"/>`;
  };
  const fields = many(rows, (row) => many(2 * columns, (column) => field(row, column - columns)));
  return svg(840, 1120, `<rect width="840" height="1120" fill="#1b2b25"/>
    ${at(552, 968, `${fields}<path d="M0 70Q6 34 0 0V-975" fill="none" stroke="#1b2b25" stroke-width="9"/><path d="M4 80Q8 34 0 0V-930" fill="none" stroke="#e0ac39" stroke-width="3.5" stroke-linecap="round"/>`, { turn: 6, scale: 0.9 })}`);
}

const grey = (value) => '#' + Math.round(value).toString(16).padStart(2, '0').repeat(3);

const BARKS = {
  oak(next) {
    return many(26, (index) => {
      const x = 6 + index * 11.6;
      const points = range(26, (step) => [x + 5 * Math.sin(step * 0.9 + index * 1.7) + 5 * next(), -10 + step * 16]);
      return `<path d="${polyline(points)}" fill="none" stroke="${grey(60 + 80 * next())}" stroke-width="${round(4 + 5 * next())}" stroke-linejoin="round"/>`;
    });
  },
  birch(next) {
    return many(150, () => {
      const [x, y, length] = [320 * next() - 20, 400 * next(), 8 + 60 * next() * next()];
      return `<path d="M${round(x)} ${round(y)}q${round(length / 2)} ${round(3 * next())} ${round(length)} 0" fill="none" stroke="${grey(40 + 90 * next())}" stroke-width="${round(1 + 4 * next() * next())}" stroke-linecap="round"/>`;
    });
  },
  plane(next) {
    return many(64, () => {
      const [x, y, size] = [300 * next(), 390 * next(), 12 + 34 * next()];
      const points = range(9, (step) => [x + size * (0.6 + 0.6 * next()) * Math.cos(step * 0.698), y + 1.4 * size * (0.6 + 0.6 * next()) * Math.sin(step * 0.698)]);
      return `<path d="${softPolygon(points)}" fill="${grey(110 + 120 * next())}" stroke="${grey(90)}" stroke-width="1"/>`;
    });
  },
  pine(next) {
    return many(9, (row) => many(7, (column) => {
      const [x, y] = [column * 50 - 24 + (row % 2) * 25, row * 47 - 14];
      const points = range(7, (step) => [x + 27 * (0.82 + 0.22 * next()) * Math.cos(step * 0.898), y + 30 * (0.82 + 0.22 * next()) * Math.sin(step * 0.898)]);
      const chip = points.map(([px, py]) => [x + 3 + (px - x) * 0.55, y - 4 + (py - y) * 0.5]);
      const shade = 105 + 80 * next();
      return `<path d="${polygon(points)}" fill="${grey(shade)}"/><path d="${polygon(chip)}" fill="${grey(shade + 24)}"/>`;
    }));
  },
  cherry(next) {
    const bands = many(24, (index) => `<rect x="-5" y="${index * 16.4}" width="310" height="${round(5 + 8 * next())}" fill="${grey(105 + 60 * next())}"/>`);
    return bands + many(120, () => `<path d="M${round(300 * next())} ${round(390 * next())}h${round(6 + 26 * next())}" stroke="${grey(215)}" stroke-width="${round(1.5 + 2.5 * next())}" stroke-linecap="round"/>`);
  },
  hornbeam(next) {
    return many(30, (index) => {
      const x = index * 10.4 - 4;
      const points = range(30, (step) => [x + 26 * Math.sin(step * 0.16 + 0.4) + 7 * Math.sin(step * 0.42 + index * 0.34), -10 + step * 14.4]);
      return `<path d="${polyline(points)}" fill="none" stroke="${grey(70 + 120 * Math.abs(Math.sin(index * 0.42)) + 20 * next())}" stroke-width="${round(2 + 3.4 * Math.abs(Math.cos(index * 0.3)))}"/>`;
    });
  },
};

const BARK_GROUNDS = { oak: 34, birch: 232, plane: 168, pine: 46, cherry: 84, hornbeam: 214 };

/** The bark of a tree as a rubbing in grey, 300 by 390. */
export function rubbing(name) {
  return svg(300, 390, `<rect width="300" height="390" fill="${grey(BARK_GROUNDS[name])}"/>${BARKS[name](random(name.length * 31))}`);
}

/** A block print of single leaves, each in one ink. */
export function leafPrint(columns = 4, rows = 5) {
  const inks = ['#b5512a', '#2f5a45', '#d99a2b', '#6a2f3a', '#5d7a3a'];
  const prints = many(rows, (row) => many(columns, (column) => {
    const index = row * columns + column;
    const ink = inks[(column + 2 * row) % inks.length];
    return at(105 + column * 210, 175 + row * 212, leaf(SPECIES_NAMES[(index * 5) % 12], { fill: ink, vein: '#f4ead6' }), { scale: 1.45, turn: (index % 2 ? 1 : -1) * 9 });
  }));
  return svg(210 * columns, 212 * rows + 20, prints, 'xMidYMid meet');
}

/** A repeating cloth of leaves, 840 by 1120. */
export function cloth(ground = '#1d3b2e') {
  const colours = ['#d99a2b', '#c4612f', '#7d9150', '#efe0bd'];
  const motif = (colour) => many(6, (index) => `<path d="${PLAIN_LEAF}" fill="${colour}" transform="rotate(${index * 60}) translate(0 -9) scale(1.2)"/>`) + `<circle r="4.5" fill="${colour}"/>`;
  const cells = many(13, (row) => many(10, (column) => {
    const x = column * 92 + (row % 2) * 46 - 8;
    return at(x, row * 92 + 6, motif(colours[(column + row * 3) % 4]), { turn: row % 2 ? 30 : 0, scale: 0.92 });
  }));
  return svg(840, 1120, `<rect width="840" height="1120" fill="${ground}"/>${cells}`);
}
