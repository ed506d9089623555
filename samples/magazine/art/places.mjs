// SPDX-License-Identifier: MIT
// The map of the walk, the basket and the chestnuts.
import { along, at, many, polygon, polyline, random, range, round, softPolygon, svg } from './drawing.mjs';

const HILLS = [[180, 190, 150, 1], [470, 130, 120, 0.8], [520, 420, 170, 1.05], [120, 520, 130, 0.7], [330, 330, 90, -0.35]];
const heightAt = (x, y) => HILLS.reduce((sum, [cx, cy, size, peak]) => sum + peak * Math.exp(-((x - cx) ** 2 + (y - cy) ** 2) / (2 * (size / 1.5) ** 2)), 0);

// Marching squares: the pieces of the contour line at `level`, cell by cell.
function contour(level, step = 10) {
  const pieces = [];
  const cross = (ax, ay, av, bx, by, bv) => {
    const share = (level - av) / (bv - av);
    return [ax + (bx - ax) * share, ay + (by - ay) * share];
  };
  for (let x = -80; x < 720; x += step)
    for (let y = 0; y < 640; y += step) {
      const corners = [[x, y], [x + step, y], [x + step, y + step], [x, y + step]].map(([cx, cy]) => [cx, cy, heightAt(cx, cy)]);
      const hits = corners.flatMap((corner, index) => {
        const next = corners[(index + 1) % 4];
        return corner[2] > level !== next[2] > level ? [cross(...corner, ...next)] : [];
      });
      for (let index = 0; index + 1 < hits.length; index += 2) pieces.push(polyline([hits[index], hits[index + 1]]));
    }
  return pieces.join('');
}

const WALK = 'M96 566C120 500 70 440 110 380S210 330 214 262S170 170 236 128S380 150 420 196S400 300 452 348S580 400 556 470S420 560 330 540S180 600 96 566';
const STOPS = [[96, 566], [112, 378], [236, 128], [424, 204], [556, 462], [332, 540]];

function mapTrees(next) {
  return many(150, () => {
    const [x, y] = [800 * next() - 80, 640 * next()];
    if (heightAt(x, y) < 0.42 || heightAt(x, y) > 0.95) return '';
    return `<path d="M${round(x)} ${round(y)}v7" stroke="#6b5a44" stroke-width="2"/><circle cx="${round(x)}" cy="${round(y - 4)}" r="7" fill="${along(['#7d9150', '#a9a53f', '#d99a2b', '#c4612f'], next())}"/>`;
  });
}

/** The map of a circular walk with six numbered stops, 800 by 640. */
export function walkMap() {
  const levels = range(9, (index) => 0.14 + 0.12 * index);
  const stops = STOPS.map(([x, y], index) => at(x, y, `<circle r="17" fill="#b5512a" stroke="#fbf7ee" stroke-width="3"/><text y="7" font-size="20" font-weight="700" text-anchor="middle" fill="#fff">${index + 1}</text>`));
  return svg(800, 640, `<rect width="800" height="640" fill="#eef0dc"/>${at(80, 0, `
    <g fill="none" stroke="#b9bf8f" stroke-linecap="round">${levels.map((level, index) => `<path d="${contour(level)}" stroke-width="${index % 3 ? 1.1 : 2}"/>`).join('')}</g>
    <path d="M-90 306C60 290 150 300 240 340S380 270 450 290S600 250 740 262" fill="none" stroke="#8fb7b8" stroke-width="17" stroke-linecap="round"/>
    <path d="M262 330Q320 288 372 300Q382 330 340 352Q290 366 262 330Z" fill="#8fb7b8"/>
    ${mapTrees(random(9))}
    <path d="${WALK}" fill="none" stroke="#fbf7ee" stroke-width="9"/><path d="${WALK}" fill="none" stroke="#b5512a" stroke-width="4.5" stroke-dasharray="13 8"/>
    <g fill="#5a4a34"><path d="M70 596h34v-18l-17-12-17 12z"/><path d="M300 578h26v-14l-13-9-13 9zM332 584h22v-14l-11-8-11 8z"/></g>
    ${at(652, 98, '<path d="M0 -40L11 0H-11Z" fill="#2b2f28"/><path d="M0 40L11 0H-11Z" fill="#c9bfa4"/><text y="-48" font-size="20" text-anchor="middle" font-weight="700" fill="#2b2f28">N</text>')}
    ${stops.join('')}`)}`);
}

function weave(next) {
  const rows = 15;
  const halfWidth = (row) => 150 + 52 * Math.sin((row / (rows - 1)) * 2.1 + 0.25);
  const side = (sign) => range(rows, (row) => [sign * (halfWidth(row) - 6), -row * 15.5 + 4]);
  const inside = `<path d="${polygon([...side(-1), ...side(1).reverse()])}" fill="#5a3a20"/>`;
  return inside + many(rows, (row) => {
    const [half, y] = [halfWidth(row), -row * 15.5];
    return many(17, (column) => {
      const over = (row + column) % 2 === 0;
      const [x, width] = [-half + (2 * half * column) / 17, (2 * half) / 17];
      const bend = 15 * (1 - Math.pow((column - 8) / 8.5, 2));
      const fill = along(over ? ['#c9985a', '#e2bd83'] : ['#7a4f2c', '#93653b'], next());
      return over
        ? `<rect x="${round(x - 3)}" y="${round(y + bend - 7)}" width="${round(width + 6)}" height="13" rx="6" fill="${fill}" stroke="#5a3a20" stroke-width="1"/>`
        : `<rect x="${round(x + width / 2 - 5)}" y="${round(y + bend - 9)}" width="10" height="18" rx="3" fill="${fill}"/>`;
    });
  });
}

/** A willow basket, 640 by 520. */
export function basket() {
  const rim = '<ellipse cx="0" cy="-226" rx="188" ry="30" fill="#4b3220"/>';
  const edge = many(44, (index) => {
    const angle = (6.283 * index) / 44;
    return at(188 * Math.cos(angle), -226 + 30 * Math.sin(angle), '<ellipse rx="17" ry="8" fill="#d9ae70" stroke="#5a3a20"/>', { turn: 24 + 12 * Math.sin(angle) });
  });
  const handle = ['#7a4f2c', '#d9ae70'].map((colour, index) => `<path d="M-176 -232C-180 -470 180 -470 176 -232" fill="none" stroke="${colour}" stroke-width="${16 - 8 * index}" ${index ? 'stroke-dasharray="16 7"' : ''}/>`);
  const rods = many(9, (index) => `<path d="M${-250 + index * 11} 34Q-60 ${58 + index} ${200 + index * 7} ${20 + 2 * index}" fill="none" stroke="${along(['#8d9a5a', '#b9854a'], index / 8)}" stroke-width="4" stroke-linecap="round"/>`);
  return svg(640, 520, at(320, 446, `<ellipse cx="0" cy="26" rx="240" ry="22" fill="#ddd0b4"/>${rods}${handle.join('')}${rim}${weave(random(4))}${edge}`), 'xMidYMid meet');
}

function husk(next, size) {
  const spikes = range(90, (index) => {
    const angle = (6.283 * index) / 90;
    const reach = size * (index % 2 ? 1.22 + 0.14 * next() : 0.96);
    return [reach * Math.cos(angle), reach * Math.sin(angle)];
  });
  return `<path d="${polygon(spikes)}" fill="#8d9a4c"/><circle r="${size * 0.92}" fill="#a5b05e"/>`;
}

const nut = (tone) => `<path d="M0 -52C30 -40 54 -8 44 24C34 46 -34 46 -44 24C-54 -8 -30 -40 0 -52Z" fill="${tone}"/>
  <path d="M-42 22C-24 8 24 8 42 22C32 46 -32 46 -42 22Z" fill="#d8b588"/>
  <path d="M-14 -32C-30 -20 -34 -6 -32 8" fill="none" stroke="#fff" stroke-opacity=".35" stroke-width="6" stroke-linecap="round"/><path d="M0 -52V-64" stroke="#e6d3b0" stroke-width="4"/>`;

/** Chestnuts, closed and open, 640 by 360. */
export function chestnuts() {
  const next = random(17);
  const opening = softPolygon(range(10, (index) => [70 * Math.cos(index * 0.628), 46 * Math.sin(index * 0.628)]));
  return svg(640, 360, `<ellipse cx="320" cy="312" rx="270" ry="26" fill="#e6d9bd"/>
    ${at(190, 190, `${husk(next, 104)}<path d="${opening}" fill="#efe6c8"/>${at(-26, 4, nut('#6b3320'), { scale: 0.62, turn: -10 })}${at(26, 2, nut('#7d3f26'), { scale: 0.62, turn: 12 })}`)}
    ${at(468, 214, husk(next, 78))}
    ${at(330, 262, nut('#7d3f26'), { scale: 0.92, turn: -14 })}${at(404, 292, nut('#5f2c1c'), { scale: 0.72, turn: 24 })}${at(560, 292, nut('#6b3320'), { scale: 0.7, turn: -32 })}${at(88, 298, nut('#7d3f26'), { scale: 0.6, turn: 18 })}`, 'xMidYMid meet');
}
