// SPDX-License-Identifier: MIT
// The pictures that stand for a template.

const LEAF = 'M0 -30 C20 -22 26 2 0 30 C-26 2 -20 -22 0 -30Z M0 -16 V40';

const openBook = (stroke) => `
  <g fill="#fff" stroke="${stroke}" stroke-width="3" stroke-linejoin="round">
    <path d="M64 34 C50 24 30 22 14 26 V98 C30 94 50 96 64 106Z"/>
    <path d="M64 34 C78 24 98 22 114 26 V98 C98 94 78 96 64 106Z"/>
  </g>`;

const icon = (ground, body) => `
  <svg viewBox="0 0 128 128" width="128" height="128">
    <rect width="128" height="128" rx="28" fill="${ground}"/>${body}
  </svg>`;

const leaf = (x, y, size) => `
  <g transform="translate(${x} ${y}) rotate(24) scale(${size})" fill="#e0a83a" stroke="#9a6b14" stroke-width="3"><path d="${LEAF}"/></g>`;

const lines = (path) => `<g stroke="#b9c7bd" stroke-width="4" stroke-linecap="round"><path d="${path}"/></g>`;

const screen = `
  <g fill="#fff" stroke="#123f73" stroke-width="3" stroke-linejoin="round"><rect x="16" y="28" width="96" height="58" rx="5"/></g>
  <path d="M30 72l18-20 14 13 12-16 24 23z" fill="#8fb8ea"/><circle cx="88" cy="44" r="6" fill="#e0a83a"/>
  <g fill="#fff"><circle cx="46" cy="101" r="4" opacity=".6"/><circle cx="64" cy="101" r="5.5"/><circle cx="82" cy="101" r="4" opacity=".6"/></g>`;

const column = `
  <g fill="#fff" stroke="#6a2f1c" stroke-width="3" stroke-linejoin="round">
    <path d="M30 -6H98V36H30Z"/><path d="M30 46H98V136H30Z"/>
  </g>
  <g stroke="#dcc0b4" stroke-width="4" stroke-linecap="round"><path d="M42 10h44M42 22h28M42 90h44M42 102h44M42 114h30"/></g>
  <rect x="42" y="58" width="44" height="20" rx="2" fill="#e6a68c"/>
  <rect x="108" y="40" width="6" height="40" rx="3" fill="#fff"/>`;

export const icons = {
  slide: icon('#2a66b1', screen),
  scroll: `<svg viewBox="0 0 128 128" width="128" height="128"><clipPath id="round"><rect width="128" height="128" rx="28"/></clipPath>
    <g clip-path="url(#round)"><rect width="128" height="128" fill="#b0573a"/>${column}</g></svg>`,
  float: icon('#2f7d4f', openBook('#1d5235') + leaf(89, 60, 0.62) + lines('M26 46h24M26 58h24M26 70h24M26 82h16')),
};

const demo = (body) => `
  <svg viewBox="0 0 320 200" width="320" height="200">
    <rect width="320" height="200" fill="#e9e7e2"/>${body}
    <rect width="320" height="18" fill="#fbfaf8"/>
  </svg>`;

export const demos = {
  float: demo(`
    <g transform="translate(64 18) scale(1.5)">${openBook('#c9c5bc')}</g>
    <g transform="translate(202 112) rotate(24)" fill="#2f7d4f" stroke="#1d5235" stroke-width="2"><path d="${LEAF}"/></g>
    <g stroke="#c9c5bc" stroke-width="4" stroke-linecap="round"><path d="M100 84h44M100 98h44M100 112h44M100 126h30"/></g>
    <g fill="none" stroke="#77756f" stroke-width="3" stroke-linecap="round" stroke-linejoin="round">
      <path d="M34 100l-8 8 8 8M286 100l8 8-8 8"/>
    </g>`),
  slide: demo(`
    <rect x="50" y="36" width="220" height="124" rx="3" fill="#fff" stroke="#c9c5bc" stroke-width="2"/>
    <path d="M78 138l42-46 30 28 26-34 58 52z" fill="#8fb8ea"/><circle cx="214" cy="66" r="11" fill="#e0a83a"/>
    <g fill="#77756f"><circle cx="144" cy="180" r="4" opacity=".5"/><circle cx="160" cy="180" r="5.5"/><circle cx="176" cy="180" r="4" opacity=".5"/></g>`),
  scroll: demo(`
    <g fill="#fff" stroke="#c9c5bc" stroke-width="2"><path d="M92 0H228V88H92ZM92 100H228V210H92Z"/></g>
    <g stroke="#c9c5bc" stroke-width="5" stroke-linecap="round"><path d="M110 38h100M110 52h100M110 66h60M110 168h100M110 182h100"/></g>
    <rect x="108" y="114" width="104" height="38" rx="2" fill="#e6a68c"/>
    <rect x="304" y="60" width="7" height="44" rx="3.5" fill="#77756f"/>`),
};

// The edges of a stack of pages, seen from the side.
export const thickness = `
  <div style="width:24px;height:400px;background:
    repeating-linear-gradient(90deg, #d9d5cb 0 1px, #faf8f3 1px 3px),
    linear-gradient(#fff, #e4e0d6)"></div>`;
