// SPDX-License-Identifier: MIT
import { type Curl, farthestReach, projected, seenAt, type Strip, strips } from './curl.ts';
import { add, clamp, dot, length, type Point, scale, type Size, subtract } from './geometry.ts';

/** Draws one side of a leaf: the leaf's box from (0, 0), as a reader sees it lying flat. */
export type FacePainter = (context: CanvasRenderingContext2D, leaf: Size) => void;

export interface LeafFaces {
  /** The end side, seen before the turn, and the start side, seen after it. */
  readonly front: FacePainter;
  readonly back: FacePainter;
}

/** On which sides other paper lies below, where a shadow can fall. */
export interface Ground {
  readonly start: boolean;
  readonly end: boolean;
}

export interface PaintQuality {
  readonly stripsPerQuarter: number; // 0: a flat fold without shading along it
}

/** Paper is a little darker where it stands upright, and lighter where the light grazes it. */
const SHADE_OF_UPRIGHT = 0.34;
const SHADE_OF_BACK = 0.05;
const SHINE = 0.16;
const SHINE_ANGLE = 2.45; // radians; where the roll begins to come down
const SHADOW_UNDER_LEAF = 0.3;
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
  paintFlatPart(context, leaf, curl, faces.front);
  const perQuarter = curl.radius > 0 ? quality.stripsPerQuarter : 0;
  for (const strip of strips(perQuarter > 0 ? curl : sharp(curl), leaf, perQuarter))
    paintStrip(context, leaf, curl, strip, faces);
}

/** A cylinder without strips is a fold where its back begins to lie flat. */
function sharp(curl: Curl): Curl {
  return { ...curl, line: curl.line + (Math.PI * curl.radius) / 2, radius: 0 };
}

function paintFlatPart(context: CanvasRenderingContext2D, leaf: Size, curl: Curl, front: FacePainter): void {
  context.save();
  clipBetween(context, leaf, curl, -Infinity, SEAM);
  front(context, leaf);
  context.restore();
}

function paintStrip(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  strip: Strip,
  faces: LeafFaces,
): void {
  context.save();
  squeeze(context, curl, strip);
  clipBetween(context, leaf, curl, strip.from - SEAM, strip.to + SEAM);
  if (strip.showsBack) {
    context.save();
    context.transform(-1, 0, 0, 1, leaf.width, 0);
    faces.back(context, leaf);
    context.restore();
  } else faces.front(context, leaf);
  context.fillStyle = shading(context, curl, strip);
  context.fillRect(0, 0, leaf.width, leaf.height);
  context.restore();
}

/** Runs on from strip to strip without a step. */
function shading(context: CanvasRenderingContext2D, curl: Curl, strip: Strip): CanvasGradient {
  const from = scale(curl.direction, curl.line + strip.from);
  const to = scale(curl.direction, curl.line + strip.to);
  const gradient = context.createLinearGradient(from.x, from.y, to.x, to.y);
  for (const stop of [0, 0.5, 1]) {
    const reach = strip.from + (strip.to - strip.from) * stop;
    gradient.addColorStop(stop, lightAt(curl.radius > 0 ? reach / curl.radius : Math.PI));
  }
  return gradient;
}

/** Light from above and from the hinge's side, by the angle that the paper has turned through. */
function lightAt(angle: number): string {
  if (angle >= Math.PI) return `rgba(0, 0, 0, ${SHADE_OF_BACK})`;
  const shine = SHINE * Math.exp(-(((angle - SHINE_ANGLE) / 0.3) ** 2));
  const light = shine - SHADE_OF_UPRIGHT * Math.sin(angle) ** 2 - (angle > Math.PI / 2 ? SHADE_OF_BACK : 0);
  const channel = light > 0 ? 255 : 0;
  return `rgba(${channel}, ${channel}, ${channel}, ${Math.abs(light).toFixed(3)})`;
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

/** Clips to a band across the paper, in reaches behind the line. */
function clipBetween(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  from: number,
  to: number,
): void {
  const far = 2 * (leaf.width + leaf.height);
  path(context, band(curl, clamp(curl.line + from, -far, far), clamp(curl.line + to, -far, far), far));
  context.clip();
}

function band(curl: Curl, from: number, to: number, far: number): Point[] {
  const across = { x: -curl.direction.y, y: curl.direction.x };
  const corner = (along: number, side: number) =>
    add(scale(curl.direction, along), scale(across, side * far));
  return [corner(from, -1), corner(to, -1), corner(to, 1), corner(from, 1)];
}

function path(context: CanvasRenderingContext2D, points: readonly Point[]): void {
  context.beginPath();
  for (const point of points) context.lineTo(point.x, point.y);
  context.closePath();
}

/** The leaf in the air darkens what lies beside its roll and around the part that has come over. */
function paintShadowOnGround(context: CanvasRenderingContext2D, leaf: Size, curl: Curl, ground: Ground): void {
  if (!Number.isFinite(curl.line)) return;
  const reach = Math.min(farthestReach(curl, leaf) * 0.25, leaf.width * 0.1) + curl.radius * 0.6;
  const edge = outermostSeen(curl, leaf);
  context.save();
  context.beginPath();
  if (ground.start) context.rect(-leaf.width, 0, leaf.width, leaf.height);
  if (ground.end) context.rect(0, 0, leaf.width, leaf.height);
  context.clip();
  paintShadowAlong(context, leaf, curl, edge, edge + reach);
  paintShadowAround(context, backPart(curl, leaf), Math.min(reach, curl.radius + leaf.width * 0.02));
  context.restore();
}

/** The outline of what lies on its face behind the roll, as it is seen. */
function backPart(curl: Curl, leaf: Size): Point[] {
  const corners = [
    { x: 0, y: 0 },
    { x: leaf.width, y: 0 },
    { x: leaf.width, y: leaf.height },
    { x: 0, y: leaf.height },
  ];
  const start = curl.line + Math.PI * curl.radius;
  return clippedFrom(corners, curl.direction, start).map((point) => seenAt(point, curl));
}

/** The part of a convex outline whose points are at least so far along a direction. */
function clippedFrom(outline: readonly Point[], direction: Point, least: number): Point[] {
  const result: Point[] = [];
  outline.forEach((point, index) => {
    const next = outline[(index + 1) % outline.length]!;
    const [here, there] = [dot(point, direction) - least, dot(next, direction) - least];
    if (here >= 0) result.push(point);
    if (here * there < 0) result.push(add(point, scale(subtract(next, point), here / (here - there))));
  });
  return result;
}

/** Fades outwards from the sides of an outline, and round its corners. */
function paintShadowAround(context: CanvasRenderingContext2D, outline: readonly Point[], width: number): void {
  if (width < 0.5) return;
  outline.forEach((point, index) => {
    const next = outline[(index + 1) % outline.length]!;
    const along = subtract(next, point);
    const side = length(along);
    if (side < 0.5) return;
    // Seen from above the paper lies on its face, so its outline runs the other way round.
    const outwards = scale({ x: -along.y, y: along.x }, width / side);
    context.fillStyle = fading(context.createLinearGradient(point.x, point.y, point.x + outwards.x, point.y + outwards.y));
    path(context, [point, next, add(next, outwards), add(point, outwards)]);
    context.fill();
    const corner = context.createRadialGradient(next.x, next.y, 0, next.x, next.y, width);
    context.fillStyle = fading(corner);
    const after = subtract(outline[(index + 2) % outline.length]!, next);
    context.beginPath();
    context.moveTo(next.x, next.y);
    context.arc(next.x, next.y, width, angleOf(outwards), angleOf({ x: -after.y, y: after.x }), true);
    context.fill();
  });
}

const angleOf = (direction: Point): number => Math.atan2(direction.y, direction.x);

function fading(gradient: CanvasGradient): CanvasGradient {
  gradient.addColorStop(0, `rgba(0, 0, 0, ${SHADOW_UNDER_LEAF})`);
  gradient.addColorStop(0.35, `rgba(0, 0, 0, ${SHADOW_UNDER_LEAF * 0.45})`);
  gradient.addColorStop(1, 'rgba(0, 0, 0, 0)');
  return gradient;
}

/** The farthest along the direction at which anything of the curl is seen. */
function outermostSeen(curl: Curl, leaf: Size): number {
  const end = farthestReach(curl, leaf);
  return end < (Math.PI / 2) * curl.radius ? projected(end, curl.radius) : curl.radius;
}

/** Fades between two places, both along the curl's direction from its line. */
function paintShadowAlong(
  context: CanvasRenderingContext2D,
  leaf: Size,
  curl: Curl,
  dark: number,
  clear: number,
): void {
  if (clear - dark < 0.5) return;
  const from = scale(curl.direction, curl.line + dark);
  const to = scale(curl.direction, curl.line + clear);
  context.fillStyle = fading(context.createLinearGradient(from.x, from.y, to.x, to.y));
  const far = 2 * (leaf.width + leaf.height);
  path(context, band(curl, curl.line + dark, curl.line + clear, far));
  context.fill();
}
