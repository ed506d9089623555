// SPDX-License-Identifier: MIT

/** Strokes in a box of 24 units. */
const STROKES = {
  back: 'M15 5l-7 7 7 7',
  on: 'M9 5l7 7-7 7',
  contents: 'M9 6h11M9 12h11M9 18h11M4.5 6h.01M4.5 12h.01M4.5 18h.01',
  thumbnails: 'M4 4h6.5v6.5H4zM13.5 4H20v6.5h-6.5zM4 13.5h6.5V20H4zM13.5 13.5H20V20h-6.5z',
  search: 'M10.5 4a6.5 6.5 0 100 13 6.5 6.5 0 000-13zM15.3 15.3L20 20',
  textView: 'M5 7V5h14v2M12 5v14M9 19h6',
  zoomIn: 'M10.5 4a6.5 6.5 0 100 13 6.5 6.5 0 000-13zM15.3 15.3L20 20M10.5 7.8v5.4M7.8 10.5h5.4',
  zoomOut: 'M10.5 4a6.5 6.5 0 100 13 6.5 6.5 0 000-13zM15.3 15.3L20 20M7.8 10.5h5.4',
  fit: 'M4 8V4h4M16 4h4v4M20 16v4h-4M8 20H4v-4M9 9h6v6H9z',
  single: 'M7 4h10v16H7z',
  double: 'M3 5h9v14H3zM12 5h9v14h-9z',
  other: 'M12 5H3v14h9M12 5h9v14h-9zM8 9l-3 3 3 3',
  auto: 'M3 6h8v12H3zM14 8l3-3 3 3M17 5v5M14 16l3 3 3-3M17 19v-5',
  fullScreen: 'M4 9V4h5M15 4h5v5M20 15v5h-5M9 20H4v-5',
  window: 'M9 4v5H4M20 9h-5V4M15 20v-5h5M4 15h5v5',
  print: 'M7 9V4h10v5M7 17H4v-6.5A1.5 1.5 0 015.5 9h13a1.5 1.5 0 011.5 1.5V17h-3M7 14h10v6H7z',
  share: 'M12 15V4M8 7.5L12 3.5l4 4M6 11H5v9h14v-9h-1',
  play: 'M7 5l11 7-11 7z',
  pause: 'M8 5v14M16 5v14',
  sound: 'M4 10v4h3.5L12 18V6L7.5 10zM15.5 9a4 4 0 010 6M18 6.5a8 8 0 010 11',
  silence: 'M4 10v4h3.5L12 18V6L7.5 10zM16 10l4 4M20 10l-4 4',
  motion: 'M5 4v16M5 5c5-2.5 9-1 13 1v13c-4-2-8-3.5-13-1M10 9c2 0 3 .3 5 1',
  help: 'M3 7h18v10H3zM7 10.5h.01M11 10.5h.01M15 10.5h.01M8 14h8',
  more: 'M5 12h.01M12 12h.01M19 12h.01',
  close: 'M6 6l12 12M18 6L6 18',
  expand: 'M9 6l6 6-6 6',
  retry: 'M19 12a7 7 0 11-2-4.9M19.5 4v4h-4',
} as const;

export type Icon = keyof typeof STROKES;

const SVG = 'http://www.w3.org/2000/svg';

export function icon(name: Icon): SVGSVGElement {
  const svg = document.createElementNS(SVG, 'svg');
  svg.setAttribute('viewBox', '0 0 24 24');
  svg.setAttribute('aria-hidden', 'true');
  svg.append(document.createElementNS(SVG, 'path'));
  changeIcon(svg, name);
  return svg;
}

export function changeIcon(svg: Element, name: Icon): void {
  svg.firstElementChild?.setAttribute('d', STROKES[name]);
}
