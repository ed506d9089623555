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

export const icons = {
  float: icon('#2f7d4f', openBook('#1d5235') + leaf(89, 60, 0.62) + lines('M26 46h24M26 58h24M26 70h24M26 82h16')),
};

export const demo = `
  <svg viewBox="0 0 320 200" width="320" height="200">
    <rect width="320" height="200" fill="#e9e7e2"/>
    <rect width="320" height="18" fill="#fbfaf8"/>
    <g transform="translate(64 18) scale(1.5)">${openBook('#c9c5bc')}</g>
    <g transform="translate(202 112) rotate(24)" fill="#2f7d4f" stroke="#1d5235" stroke-width="2"><path d="${LEAF}"/></g>
    <g stroke="#c9c5bc" stroke-width="4" stroke-linecap="round"><path d="M100 84h44M100 98h44M100 112h44M100 126h30"/></g>
    <g fill="none" stroke="#77756f" stroke-width="3" stroke-linecap="round" stroke-linejoin="round">
      <path d="M34 100l-8 8 8 8M286 100l8 8-8 8"/>
    </g>
  </svg>`;

// The edges of a stack of pages, seen from the side.
export const thickness = `
  <div style="width:24px;height:400px;background:
    repeating-linear-gradient(90deg, #d9d5cb 0 1px, #faf8f3 1px 3px),
    linear-gradient(#fff, #e4e0d6)"></div>`;
