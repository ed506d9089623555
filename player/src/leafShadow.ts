// SPDX-License-Identifier: MIT
import { type Curl, farthestReach, projected } from './curl.ts';
import { add, dot, length, type Point, scale, type Size, subtract } from './geometry.ts';
import { backPart, band, type Outline, path } from './outline.ts';

/** On which sides other paper lies below, where a shadow can fall. */
export interface Ground {
  readonly start: boolean;
  readonly end: boolean;
}

const SHADOW_UNDER_LEAF = 0.3;

/** The leaf in the air darkens what lies beside its roll and around the part that has come over. */
export function paintShadowOnGround(context: CanvasRenderingContext2D, leaf: Size, curl: Curl, ground: Ground): void {
  if (!Number.isFinite(curl.line)) return;
  const reach = Math.min(farthestReach(curl, leaf) * 0.25, leaf.width * 0.1) + curl.radius * 0.6;
  const edge = outermostSeen(curl, leaf);
  context.save();
  context.beginPath();
  if (ground.start) context.rect(-leaf.width, 0, leaf.width, leaf.height);
  if (ground.end) context.rect(0, 0, leaf.width, leaf.height);
  context.clip();
  paintShadowAlong(context, leaf, curl, edge, edge + reach);
  paintShadowAround(context, backPart(curl, leaf), Math.min(reach, curl.radius + leaf.width * 0.02), isAtRoll(curl));
  context.restore();
}

/** Where the back comes down from the roll, which covers what lies beside it there. */
const isAtRoll =
  ({ direction, line }: Curl) =>
  (point: Point): boolean =>
    Math.abs(dot(direction, point) - line) < 0.5;

/** Fades outwards from the sides of an outline, and round its corners. */
function paintShadowAround(
  context: CanvasRenderingContext2D,
  outline: Outline,
  width: number,
  isHidden: (point: Point) => boolean,
): void {
  if (width < 0.5) return;
  outline.forEach((point, index) => {
    const next = outline[(index + 1) % outline.length]!;
    const along = subtract(next, point);
    const side = length(along);
    if (side < 0.5) return;
    // Seen from above the paper lies on its face, so its outline runs the other way round.
    const outwards = scale({ x: -along.y, y: along.x }, width / side);
    if (!isHidden(point) || !isHidden(next)) {
      const end = add(point, outwards);
      context.fillStyle = fading(context.createLinearGradient(point.x, point.y, end.x, end.y));
      path(context, [point, next, add(next, outwards), end]);
      context.fill();
    }
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
  path(context, band(curl, leaf, curl.line + dark, curl.line + clear));
  context.fill();
}
