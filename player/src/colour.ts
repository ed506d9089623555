// SPDX-License-Identifier: MIT

/** As a book's configuration has them: #rrggbb. */
export const isColour = (text: string): boolean => /^#[\da-f]{6}$/i.test(text);

/** Relative luminance as WCAG defines it, of a colour #rrggbb. */
export function luminance(colour: string): number {
  const linear = [1, 3, 5].map((at) => {
    const channel = parseInt(colour.slice(at, at + 2), 16) / 255;
    return channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * linear[0]! + 0.7152 * linear[1]! + 0.0722 * linear[2]!;
}
