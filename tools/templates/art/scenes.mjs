// SPDX-License-Identifier: MIT
// Backgrounds that are drawn, as HTML of a given size.

/** Grain that keeps a picture's gradients from showing steps. */
const grain = (strength) => `
  <filter id="grain" x="0" y="0" width="100%" height="100%">
    <feTurbulence type="fractalNoise" baseFrequency=".9" numOctaves="2" seed="4"/>
    <feColorMatrix values="0 0 0 0 .5  0 0 0 0 .5  0 0 0 0 .5  0 0 0 ${strength} 0"/>
  </filter>`;

const picture = (width, height, defs, body) =>
  `<svg width="${width}" height="${height}" viewBox="0 0 ${width} ${height}"><defs>${defs}</defs>${body}</svg>`;

const gradient = (id, ...stops) => `
  <linearGradient id="${id}" x2="0" y2="1">
    ${stops.map(([offset, colour]) => `<stop offset="${offset}" stop-color="${colour}"/>`).join('')}
  </linearGradient>`;

/** A row of numbers from 0 to 1 that look drawn by lot and are always the same. */
function lots(seed) {
  let state = seed;
  return () => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return state / 0x100000000;
  };
}

export function wallLines() {
  const lines = (places, colour, opacity = 1) => `
    <path stroke="${colour}" stroke-opacity="${opacity}" d="${places.map((x) => `M${x} 0V192`).join('')}"/>`;
  return picture(96, 192, '', `
    <rect width="96" height="192" fill="#e6e1d6"/>
    ${lines([12.5, 36.5, 60.5, 84.5], '#d8d1c2')}
    ${lines([13.5, 37.5, 61.5, 85.5], '#eee9df')}
    ${lines([0.5, 24.5, 48.5, 72.5], '#dcd5c7', 0.55)}`);
}

export function nightSky() {
  const lot = lots(11);
  const star = () => {
    const [x, y, size] = [lot() * 1600, lot() ** 1.5 * 900, 0.5 + lot() ** 3 * 1.3];
    return `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${size.toFixed(2)}" opacity="${(0.25 + lot() * 0.55).toFixed(2)}"/>`;
  };
  const glow = '<radialGradient id="glow" cx=".5" cy=".46" r=".62"><stop stop-color="#35506b"/><stop offset="1" stop-color="#35506b" stop-opacity="0"/></radialGradient>';
  return picture(1600, 1000, gradient('sky', [0, '#0e1620'], [0.65, '#182533'], [1, '#1d2b38']) + glow + grain(0.05), `
    <rect width="1600" height="1000" fill="url(#sky)"/>
    <rect width="1600" height="1000" fill="url(#glow)"/>
    <g fill="#dfe9f2">${Array.from({ length: 150 }, star).join('')}</g>
    <rect width="1600" height="1000" filter="url(#grain)"/>`);
}

/** Hills in the haze after sunset, the nearer the darker. */
export function blueHour() {
  const ridge = (level, height, length, phase, colour) => {
    const points = Array.from({ length: 101 }, (_, index) => {
      const x = index * 16;
      const wave = Math.sin(x / length + phase) + 0.45 * Math.sin(x / (length * 0.37) + phase * 2.3) + 0.16 * Math.sin(x / (length * 0.11) + phase * 5);
      return `${x} ${(level - wave * height).toFixed(1)}`;
    });
    return `<path fill="${colour}" d="M0 1000L${points.join('L')}L1600 1000Z"/>`;
  };
  const sky = gradient('dusk', [0, '#1f3566'], [0.38, '#4a6397'], [0.6, '#9c9bb8'], [0.7, '#dcb0a0'], [0.78, '#e9c3a0']);
  return picture(1600, 1000, sky + grain(0.07), `
    <rect width="1600" height="1000" fill="url(#dusk)"/>
    ${ridge(690, 26, 260, 0.4, '#8b90b4')}
    ${ridge(745, 32, 210, 2.1, '#6a77a3')}
    ${ridge(805, 36, 180, 4.4, '#4c5c8c')}
    ${ridge(868, 34, 230, 1.2, '#334371')}
    ${ridge(935, 28, 170, 3.3, '#212e55')}
    <rect width="1600" height="1000" filter="url(#grain)"/>`);
}

const STAR = 'M0-18L5.3-5.8 18-4.6 8.4 4.2 11.2 17 0 10.2-11.2 17-8.4 4.2-18-4.6-5.3-5.8Z';
const CLOUD = 'M-34 14a14 14 0 0 1 2-27 20 20 0 0 1 37-6 15 15 0 0 1 24 12 11 11 0 0 1 3 21Z';
const HEART = 'M0 16C-22 0-18-17-8-17-3-17 0-12 0-10 0-12 3-17 8-17 18-17 22 0 0 16Z';
const KITE = 'M0-24L17 0 0 24-17 0ZM0-24V24M-17 0H17M0 24q10 8 0 16t0 16';
const SCRIBBLE = 'M-30 8l12-16 12 16 12-16 12 16 12-16';
const RING = 'M0-15a15 15 0 1 0 .1 0Z';

export function playroom() {
  const doodle = (path, x, y, turn, colour, filled = true) => `
    <path d="${path}" transform="translate(${x} ${y}) rotate(${turn})"
      ${filled ? `fill="${colour}" stroke="none"` : `fill="none" stroke="${colour}" stroke-width="6"`}
      stroke-linecap="round" stroke-linejoin="round"/>`;
  return picture(480, 480, '', `
    <rect width="480" height="480" fill="#bfe6f5"/>
    ${doodle(CLOUD, 90, 70, 0, '#ffffff')}${doodle(CLOUD, 330, 300, 0, '#ffffff')}
    ${doodle(STAR, 236, 62, 12, '#ffd34d')}${doodle(STAR, 60, 330, -10, '#ffd34d')}${doodle(STAR, 420, 190, 8, '#ffd34d')}
    ${doodle(HEART, 404, 64, 14, '#f58ba0')}${doodle(HEART, 210, 240, -14, '#f58ba0')}
    ${doodle(KITE, 320, 150, 24, '#4fb0a5', false)}${doodle(KITE, 130, 400, -28, '#f2935c', false)}
    ${doodle(SCRIBBLE, 90, 200, -16, '#8fb8ea', false)}${doodle(SCRIBBLE, 400, 420, 18, '#8fb8ea', false)}
    ${doodle(RING, 250, 380, 0, '#9fd08a', false)}${doodle(RING, 160, 130, 0, '#f2935c', false)}`);
}

const SCREEN_PITCH = 22; // pixels from dot to dot
const SCREEN_ANGLE = Math.PI / 4;

/** Two lit balls in a halftone screen: round dots on a turned grid, the darker the place the larger. */
export function halftone() {
  const [width, height] = [1600, 1000];
  const ball = (x, y, centreX, centreY, radius) => {
    const [dx, dy] = [(x - centreX) / radius, (y - centreY) / radius];
    const depth = 1 - dx * dx - dy * dy;
    return depth < 0 ? 0 : Math.max(0.1, 0.95 - Math.max(0, Math.sqrt(depth) * 0.62 - dx * 0.5 - dy * 0.58));
  };
  const tone = (x, y) => Math.max(ball(x, y, 1330, 760, 560), ball(x, y, 210, 130, 330), 0.16 - y / 9000);
  const [cosine, sine] = [Math.cos(SCREEN_ANGLE) * SCREEN_PITCH, Math.sin(SCREEN_ANGLE) * SCREEN_PITCH];
  const steps = Math.ceil((width + height) / SCREEN_PITCH);
  const dots = [];
  for (let row = -steps; row <= steps; row++)
    for (let column = -steps; column <= steps; column++) {
      const [x, y] = [column * cosine - row * sine, column * sine + row * cosine];
      if (x < -SCREEN_PITCH || x > width + SCREEN_PITCH || y < -SCREEN_PITCH || y > height + SCREEN_PITCH) continue;
      dots.push(`<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${(SCREEN_PITCH * 0.62 * Math.sqrt(tone(x, y))).toFixed(1)}"/>`);
    }
  return picture(width, height, '', `
    <rect width="${width}" height="${height}" fill="#e23b3f"/>
    <g fill="#b01e33">${dots.join('')}</g>`);
}

const radial = (id, cx, cy, r, ...stops) => `
  <radialGradient id="${id}" cx="${cx}" cy="${cy}" r="${r}">
    ${stops.map(([offset, colour, opacity = 1]) => `<stop offset="${offset}" stop-color="${colour}" stop-opacity="${opacity}"/>`).join('')}
  </radialGradient>`;

/** A photographer's white sweep: wall and floor without an edge. */
export function studio() {
  const light = radial('light', 0.5, 0.4, 0.75, [0, '#ffffff'], [0.55, '#ffffff', 0.35], [1, '#ffffff', 0]);
  const wall = gradient('wall', [0, '#d4dae2'], [0.62, '#e9edf1'], [0.74, '#dde2e8'], [1, '#c7ced7']);
  return picture(1600, 1000, wall + light + grain(0.05), `
    <rect width="1600" height="1000" fill="url(#wall)"/>
    <rect width="1600" height="1000" fill="url(#light)"/>
    <rect width="1600" height="1000" filter="url(#grain)"/>`);
}

/** A curtain in the light of a single lamp. */
export function curtain() {
  const lot = lots(5);
  const folds = [];
  for (let x = -40; x < 1640; x += 46 + lot() * 60) folds.push(x);
  const fold = (x, index) => {
    const width = (folds[index + 1] ?? 1700) - x;
    return `<rect x="${x.toFixed(1)}" y="0" width="${(width + 1).toFixed(1)}" height="1000" fill="url(#fold)" opacity="${(0.75 + lot() * 0.25).toFixed(2)}"/>`;
  };
  const cloth = `<linearGradient id="fold"><stop stop-color="#2a060d"/><stop offset=".32" stop-color="#7c1a29"/>
    <stop offset=".5" stop-color="#8f2432"/><stop offset=".78" stop-color="#4d0f1a"/><stop offset="1" stop-color="#22050a"/></linearGradient>`;
  const lamp = radial('lamp', 0.5, 0.42, 0.7, [0, '#ffd9a8', 0.28], [0.5, '#3a0a10', 0.1], [1, '#0a0204', 0.86]);
  return picture(1600, 1000, cloth + lamp + grain(0.05), `
    <rect width="1600" height="1000" fill="#3a0a13"/>
    ${folds.map(fold).join('')}
    <rect width="1600" height="1000" fill="url(#lamp)"/>
    <rect width="1600" height="1000" filter="url(#grain)"/>`);
}
