// SPDX-License-Identifier: MIT
import { type Curl, seenAt, type Strip, strips } from './curl.ts';
import { scale, type Size } from './geometry.ts';
import { type Ground, paintShadowOnGround } from './leafShadow.ts';
import { besideBack, clippedFrom, type Outline, partOf, path, trace } from './outline.ts';

/** Draws one side of a leaf: the leaf's box from (0, 0), as a reader sees it lying flat. */
export type FacePainter = (context: CanvasRenderingContext2D, leaf: Size) => void;

/** A side of a leaf: a picture of its whole box with any number of pixels, and the same as a colour. */
export interface PaintedFace {
  readonly picture: HTMLCanvasElement;
  /** Made once, because making it copies the picture. */
  readonly paper: CanvasPattern;
}

export interface LeafFaces {
  /** The end side, seen before the turn, and the start side, seen after it. */
  readonly front: PaintedFace;
  readonly back: PaintedFace;
}

export interface PaintQuality {
  readonly stripsPerQuarter: number; // 0: a flat fold without shading along it
}

/** Paper is a little darker where it stands upright, and lighter where the light grazes it. */
const SHADE_OF_UPRIGHT = 0.34;
const SHADE_OF_BACK = 0.05;
const SHINE = 0.16;
const SHINE_ANGLE = 2.45; // radians; where the roll begins to come down
const SHADING_STOPS = 6;
/** Of the leaf's width: a roll that is smaller is all but on the ground, and its shade goes with it. */
const LANDING_RADIUS = 0.05;
/** Neighbouring strips overlap by so much, or the ground shines through between them. */
const SEAM = 0.7;

/**
 * Paints a leaf in leaf coordinates (see curl.ts): the caller has put the origin at the top of the
 * hinge and has mirrored the context for a book that is read from right to left.
 */
export function paintLeaf(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  faces: LeafFaces,
  ground: Ground,
  quality: PaintQuality,
): void {
  paintShadowOnGround(context, leaf, curl, ground);
  const front = laidOn(leaf, faces.front, false);
  const back = laidOn(leaf, faces.back, true);
  fillFlat(context, leaf, curl, faces.front.picture, front);
  const perQuarter = curl.radius > 0 ? quality.stripsPerQuarter : 0;
  const rolled = perQuarter > 0 ? curl : sharp(curl);
  const all = strips(rolled, leaf, perQuarter);
  const shade = Math.min(1, curl.radius / (LANDING_RADIUS * leaf.width));
  // The back lies over the front, so that is finished first.
  for (const showsBack of [false, true]) {
    for (const strip of all) if (strip.showsBack === showsBack) fillStrip(context, leaf, rolled, strip, showsBack ? back : front);
    context.globalAlpha = shade;
    paintShading(context, leaf, rolled, all, showsBack);
    context.globalAlpha = 1;
  }
}

/** What has not left the ground; as much of it as can be as a rectangle, which is copied and not sampled. */
function fillFlat(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  picture: HTMLCanvasElement,
  paper: CanvasPattern,
): void {
  const outline = partOf(leaf, curl, -Infinity, SEAM);
  if (outline.length < 3) return;
  const width = Math.max(0, Math.floor(Math.min(leaf.width, ...outline.filter(({ x }) => x > 0).map(({ x }) => x))) - 1);
  const pixels = (width * picture.width) / leaf.width;
  if (width > 0) context.drawImage(picture, 0, 0, pixels, picture.height, 0, 0, width, leaf.height);
  const rest = clippedFrom(outline, { x: 1, y: 0 }, Math.max(width - 1, 0));
  if (rest.length >= 3) fillPart(context, paper, rest);
}

function fillStrip(context: CanvasRenderingContext2D, leaf: Size, curl: Curl, strip: Strip, paper: CanvasPattern): void {
  const parts = visibleParts(leaf, curl, strip, SEAM);
  if (parts.length === 0) return;
  context.save();
  squeeze(context, curl, strip);
  for (const part of parts) fillPart(context, paper, part);
  context.restore();
}

/** Of a strip's paper, as it would lie flat. */
function visibleParts(leaf: Size, curl: Curl, { from, to, showsBack }: Strip, seam: number): Outline[] {
  const outline = partOf(leaf, curl, from - seam, to + seam);
  return (showsBack ? [outline] : besideBack(outline, curl, leaf)).filter(({ length }) => length >= 3);
}

/** A cylinder without strips is a fold where its back begins to lie flat. */
function sharp(curl: Curl): Curl {
  return { ...curl, line: curl.line + (Math.PI * curl.radius) / 2, radius: 0 };
}

/**
 * A face as the colour of the paper, in leaf coordinates. Filling an outline with it is far cheaper
 * than clipping to the outline and drawing the face.
 */
function laidOn(leaf: Size, { picture, paper }: PaintedFace, isBack: boolean): CanvasPattern {
  const [across, down] = [leaf.width / picture.width, leaf.height / picture.height];
  paper.setTransform(isBack ? { a: -across, d: down, e: leaf.width } : { a: across, d: down });
  return paper;
}

function fillPart(context: CanvasRenderingContext2D, paper: CanvasPattern, outline: Outline): void {
  context.fillStyle = paper;
  path(context, outline);
  context.fill();
}

/** Maps the paper between the strip's reaches to where it is seen, along the curl's direction. */
function squeeze(context: CanvasRenderingContext2D, curl: Curl, strip: Strip): void {
  const factor = (strip.seenTo - strip.seenFrom) / (strip.to - strip.from);
  const start = curl.line + strip.from;
  const moved = curl.line + strip.seenFrom - factor * start;
  const { x, y } = curl.direction;
  const change = factor - 1;
  context.transform(
    1 + change * x * x,
    change * x * y,
    change * x * y,
    1 + change * y * y,
    moved * x,
    moved * y,
  );
}

/** Light and shade along the roll, over all that it shows of a side at once. */
function paintShading(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  all: readonly Strip[],
  showsBack: boolean,
): void {
  const shown = all.filter((strip) => strip.showsBack === showsBack);
  // What lies flat has one shade, which is filled much faster than a gradient.
  const end = Math.PI * curl.radius;
  const flat = shown.filter((strip) => strip.from >= end * 0.999);
  const rolled = shown.filter((strip) => !flat.includes(strip));
  if (rolled.length > 0) fillSeen(context, leaf, curl, rolled, shading(context, curl, showsBack));
  fillSeen(context, leaf, curl, flat, lightAt(Math.PI));
}

function fillSeen(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  parts: readonly Strip[],
  style: string | CanvasGradient,
): void {
  context.beginPath();
  for (const strip of parts)
    for (const part of visibleParts(leaf, curl, strip, 0)) trace(context, part.map((point) => seenAt(point, curl)));
  context.fillStyle = style;
  context.fill();
}

/** From where the roll leaves the ground, or its back comes down, to its crest. */
function shading(
  context: CanvasRenderingContext2D,
  { direction, line, radius }: Curl,
  showsBack: boolean,
): CanvasGradient {
  const flat = scale(direction, line);
  const crest = scale(direction, line + radius);
  const gradient = context.createLinearGradient(flat.x, flat.y, crest.x, crest.y);
  for (let stop = 0; stop <= SHADING_STOPS; stop++) {
    const angle = ((Math.PI / 2) * stop) / SHADING_STOPS;
    gradient.addColorStop(Math.sin(angle), lightAt(showsBack ? Math.PI - angle : angle));
  }
  return gradient;
}

/** Light from above and from the hinge's side, by the angle that the paper has turned through. */
function lightAt(angle: number): string {
  const shine = SHINE * Math.exp(-(((angle - SHINE_ANGLE) / 0.3) ** 2));
  const ofBack = angle > Math.PI / 2 ? SHADE_OF_BACK : 0;
  const light = (angle < Math.PI ? shine - SHADE_OF_UPRIGHT * Math.sin(angle) ** 2 : 0) - ofBack;
  const channel = light > 0 ? 255 : 0;
  return `rgba(${channel}, ${channel}, ${channel}, ${Math.abs(light).toFixed(3)})`;
}
