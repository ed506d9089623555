// SPDX-License-Identifier: MIT
// A few slides for the pictures of the styles that show slides, as a page to be printed.

const bars = [['2021', 34], ['2022', 41], ['2023', 52], ['2024', 49], ['2025', 71]];

const bar = ([year, value], index) => `
  <rect x="${index * 92}" y="${320 - value * 4}" width="58" height="${value * 4}" rx="5" fill="${index === bars.length - 1 ? '#d9822b' : '#8fb59c'}"/>
  <text x="${index * 92 + 29}" y="${304 - value * 4}" text-anchor="middle" font-size="22" font-weight="600">${value}</text>
  <text x="${index * 92 + 29}" y="352" text-anchor="middle" font-size="20" fill="#5d6b62">${year}</text>`;

const tree = (x, y, size, colour) => `
  <g transform="translate(${x} ${y}) scale(${size})"><rect x="-5" y="0" width="10" height="44" fill="#6b4f35"/>
  <path d="M0-110C44-92 56-30 0 8C-56-30-44-92 0-110Z" fill="${colour}"/></g>`;

const SLIDES = [
  `<section class="cover"><svg viewBox="0 0 1280 720">
     <rect width="1280" height="720" fill="#1e4634"/><path d="M0 560C300 500 520 600 800 545S1180 520 1280 540V720H0Z" fill="#16372a"/>
     ${[[840, 520, 2.3, '#3f7d58'], [1010, 540, 2.9, '#5b9a6c'], [1160, 525, 2.1, '#d9a03a']].map((each) => tree(...each)).join('')}</svg>
   <h1>A year among trees</h1><p>Aldermoor Wood, report to its friends</p></section>`,
  `<section><h2>Seventy-one new hedges</h2><p>Planted by hand, one winter after another. The wet spring of 2024 cost us three; the school
   of Alderby made up for them.</p><svg class="chart" viewBox="0 0 430 360">${bars.map(bar).join('')}</svg></section>`,
  `<section><h2>What comes next</h2><ul><li>A pond where the old pit was</li><li>Paths that a wheelchair can take</li>
   <li>Seeds for forty gardens</li></ul></section>`,
  `<section class="cover"><svg viewBox="0 0 1280 720"><rect width="1280" height="720" fill="#d9822b"/></svg><h1>Thank you</h1>
   <p>See you at the hedge</p></section>`,
];

const STYLE = `
  @page { size: 1280px 720px; margin: 0 }
  body { margin: 0; color: #22332a; font: 34px/1.45 "Noto Sans", "Liberation Sans", sans-serif }
  section { position: relative; box-sizing: border-box; width: 1280px; height: 720px; padding: 110px 96px; overflow: hidden; background: #fbfaf5; break-after: page }
  h1, h2 { max-width: 640px; margin: 0 0 28px; font: 700 84px/1.08 "Liberation Serif", serif } h2 { font-size: 64px }
  p { max-width: 520px; margin: 0; color: #44544a } ul { padding-left: 1em }
  .cover { color: #fff } .cover p { color: #fff } .cover svg { position: absolute; inset: 0; width: 100% } .cover :is(h1, p) { position: relative }
  .chart { position: absolute; right: 96px; bottom: 96px; width: 520px }`;

export const deck = `<!DOCTYPE html><title>A year among trees</title><style>${STYLE}</style>${SLIDES.join('')}`;
