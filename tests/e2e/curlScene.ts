// SPDX-License-Identifier: MIT
// Runs in a browser: a book of two plain pages, drawn with one leaf of it in the air.
import { AirView } from '../../player/src/airView.ts';
import { FaceCache } from '../../player/src/faceCache.ts';
import { layoutBook } from '../../player/src/layout.ts';
import { LeafMotion } from '../../player/src/leafMotion.ts';

export interface Scene {
  /** Where the leaf is taken, and where that point is held, in heights of the leaf from the top of the hinge. */
  readonly from: readonly [number, number];
  readonly to: readonly [number, number];
  readonly stiff?: boolean;
  readonly rightToLeft?: boolean;
  readonly stripsPerQuarter?: number;
  readonly shadow?: boolean;
}

export interface Difference {
  readonly mean: number; // of all channels, from 0 to 255
  readonly largest: number;
}

const SPACE = { width: 400, height: 260 };
const MARGIN = { width: 40, height: 40 };
const SHAPE = 8 / 9;
const STRIPS = 5; // as where the machine keeps up
const [BACKDROP, PAGE] = ['#8a9096', '#fbfaf6'];

/** Stripes across and along, so that paper which is squeezed, moved or mirrored looks different. */
function paintTestFace(paper: string, ink: string) {
  return (context: CanvasRenderingContext2D, { width, height }: { width: number; height: number }) => {
    context.fillStyle = paper;
    context.fillRect(0, 0, width, height);
    context.fillStyle = ink;
    for (let stripe = 0; stripe < 6; stripe++) {
      context.fillRect((width * (2 * stripe + 1)) / 13, height * 0.1, width / 26, height * 0.5);
      context.fillRect(width * 0.1, height * (0.66 + stripe * 0.05), width * (0.15 + stripe * 0.13), height * 0.02);
    }
  };
}

export function draw(scene: Scene): HTMLCanvasElement {
  const { from, to, stiff = false, rightToLeft = false, stripsPerQuarter = STRIPS, shadow = true } = scene;
  const layout = layoutBook(SPACE, MARGIN, SHAPE, 'double', rightToLeft);
  const shape = layout.leaf.width / layout.leaf.height;
  const motion = new LeafMotion({ width: shape, height: 1 }, 0, 1);
  motion.hold({ x: from[0] * shape, y: from[1] }, 0);
  motion.drag({ x: to[0] * shape, y: to[1] });
  const faces = new FaceCache();
  const face = (name: string, paper: string, ink: string) => faces.painted(name, '', layout.leaf, 1, paintTestFace(paper, ink));
  const leaf = {
    curl: motion.curl,
    opening: motion.opening,
    stiff,
    faces: { front: face('front', '#f6efdc', '#b3402a'), back: face('back', '#dfe9f3', '#1f4e79') },
    ground: { start: shadow, end: shadow },
  };
  const air = new AirView();
  air.paint([leaf], layout, { x: 0, y: 0, ...SPACE }, rightToLeft, { mostPixels: 1, stripsPerQuarter });
  return composed(layout.book, air.element);
}

function composed(book: { x: number; y: number; width: number; height: number }, air: HTMLCanvasElement): HTMLCanvasElement {
  const canvas = Object.assign(document.createElement('canvas'), SPACE);
  const context = canvas.getContext('2d')!;
  context.fillStyle = BACKDROP;
  context.fillRect(0, 0, SPACE.width, SPACE.height);
  context.fillStyle = PAGE;
  context.fillRect(book.x, book.y, book.width, book.height);
  context.drawImage(air, parseFloat(air.style.left), parseFloat(air.style.top));
  return canvas;
}

/** At half the size, because how an edge is smoothed is the browser's own. */
export async function compare(seen: HTMLCanvasElement, goldenUrl: string): Promise<Difference> {
  const golden = new Image();
  golden.src = goldenUrl;
  await golden.decode();
  const [one, other] = [halved(seen), halved(golden)];
  let [sum, largest] = [0, 0];
  for (let at = 0; at < one.length; at++) {
    const difference = Math.abs(one[at]! - other[at]!);
    sum += difference;
    largest = Math.max(largest, difference);
  }
  return { mean: sum / ((one.length * 3) / 4), largest }; // the fourth channel is opaque
}

function halved(picture: CanvasImageSource): Uint8ClampedArray {
  const [width, height] = [SPACE.width / 2, SPACE.height / 2];
  const context = Object.assign(document.createElement('canvas'), { width, height }).getContext('2d')!;
  context.imageSmoothingQuality = 'high';
  context.drawImage(picture, 0, 0, width, height);
  return context.getImageData(0, 0, width, height).data;
}
