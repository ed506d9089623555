// SPDX-License-Identifier: MIT

/**
 * MD5 (RFC 1321) over lists of 32-bit little-endian words, by the names by which the code that is
 * appended to the script calls it.
 */
export const chrsz = 8; // bits taken from each character

export function str2binl(text: string): number[] {
  const words: number[] = [];
  for (let bit = 0; bit < text.length * chrsz; bit += chrsz)
    words[bit >> 5]! |= (text.charCodeAt(bit / chrsz) & ((1 << chrsz) - 1)) << (bit % 32);
  return words;
}

export function binl2hex(words: readonly number[]): string {
  const hexByte = (byte: number) => (byte & 0xff).toString(16).padStart(2, '0');
  return Array.from(words, (word) => [0, 8, 16, 24].map((shift) => hexByte(word >>> shift)).join('')).join('');
}

const SHIFTS = [
  [7, 12, 17, 22],
  [5, 9, 14, 20],
  [4, 11, 16, 23],
  [6, 10, 15, 21],
] as const;

type Mixer = (b: number, c: number, d: number) => readonly [mixed: number, factor: number, offset: number];

const MIXERS: readonly Mixer[] = [
  (b, c, d) => [(b & c) | (~b & d), 1, 0],
  (b, c, d) => [(b & d) | (c & ~d), 5, 1],
  (b, c, d) => [b ^ c ^ d, 3, 5],
  (b, c, d) => [c ^ (b | ~d), 7, 0],
];

type State = readonly [a: number, b: number, c: number, d: number];

export function core_hx(words: readonly number[], bits: number): number[] {
  const message = padded(words, bits);
  let state: State = [0x67452301, 0xefcdab89 | 0, 0x98badcfe | 0, 0x10325476];
  for (let block = 0; block < message.length; block += 16) state = digested(state, message, block);
  return [...state];
}

function padded(words: readonly number[], bits: number): number[] {
  const end = (((bits + 64) >>> 9) << 4) + 14;
  const message = Array.from({ length: end + 2 }, (_, index) => words[index]! | 0);
  message[bits >> 5]! |= 0x80 << (bits % 32);
  message[end] = bits;
  return message;
}

function digested(state: State, message: readonly number[], block: number): State {
  let [a, b, c, d] = state;
  for (let step = 0; step < 64; step++) {
    const [mixed, factor, offset] = MIXERS[step >> 4]!(b, c, d);
    const constant = Math.floor(Math.abs(Math.sin(step + 1)) * 4294967296);
    const sum = (a + mixed + constant + message[block + ((factor * step + offset) & 15)]!) | 0;
    const shift = SHIFTS[step >> 4]![step & 3]!;
    [a, d, c, b] = [d, c, b, (b + ((sum << shift) | (sum >>> (32 - shift)))) | 0];
  }
  return [(a + state[0]) | 0, (b + state[1]) | 0, (c + state[2]) | 0, (d + state[3]) | 0];
}
