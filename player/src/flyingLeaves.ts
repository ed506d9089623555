// SPDX-License-Identifier: MIT
import { AirView, type LeafInTheAir } from './airView.ts';
import type { BookPlan, Step } from './bookPlan.ts';
import { FaceCache } from './faceCache.ts';
import { type FaceSource, type Paper, paintFace } from './facePainter.ts';
import type { Box } from './geometry.ts';
import type { Quality } from './governor.ts';
import { cancelIdle, whenIdle } from './idle.ts';
import type { LeafFaces, PaintedFace } from './leafPainter.ts';
import type { Ground } from './leafShadow.ts';
import type { Face, Side } from './spreads.ts';
import type { FlyingLeaf, Turning } from './turning.ts';

/** Paints the leaves that are in the air, with the pages on them. */
export class FlyingLeaves {
  private readonly air = new AirView();
  private readonly faces = new FaceCache();
  private preparation = 0;

  constructor(
    private readonly source: FaceSource,
    private readonly paper: Paper,
    private readonly rightToLeft: boolean,
  ) {}

  get element(): HTMLElement {
    return this.air.element;
  }

  clear(): void {
    this.air.clear();
  }

  /** In the space given, which is that of the window with what may come into it. */
  paint(plan: BookPlan, turning: Turning, space: Box, quality: Quality): void {
    const leaves = turning.leaves.map((leaf) => this.inTheAir(plan, turning, leaf));
    this.air.paint(leaves, plan.layout, space, this.rightToLeft, quality);
    this.faces.sweep();
  }

  /** While nothing else is to be done, so that the first frame of the next turn does not have to paint its leaf. */
  prepareSoon(plan: BookPlan, step: Step, isWanted: () => boolean): void {
    cancelIdle(this.preparation);
    if (!plan.spreads[step.from] || !plan.spreads[step.to]) return;
    this.preparation = whenIdle(() => {
      if (!isWanted()) return;
      this.painted(plan, step);
      this.faces.sweep();
    });
  }

  private inTheAir(plan: BookPlan, turning: Turning, leaf: FlyingLeaf): LeafInTheAir {
    return {
      curl: leaf.mover.curl,
      opening: leaf.mover.opening,
      stiff: plan.isBoard(leaf),
      faces: this.painted(plan, leaf),
      ground: groundBelow(plan, turning, leaf),
    };
  }

  private painted(plan: BookPlan, step: Step): LeafFaces {
    const { front, back } = plan.facesOf(step);
    return { front: this.face(plan, front, 'end'), back: this.face(plan, back, 'start') };
  }

  private face(plan: BookPlan, face: Face | undefined, side: Side): PaintedFace {
    const key = `${side} ${face?.place} ${face?.part}`;
    const picture = face && this.source.picture(face.place);
    return this.faces.painted(key, picture, plan.layout.leaf, plan.pixelRatioOf(face), (context, leaf) => {
      if (this.rightToLeft) context.transform(-1, 0, 0, 1, leaf.width, 0);
      paintFace(context, leaf, face, plan.hingeOf(side), this.source, this.paper);
    });
  }
}

/** Without a page on the ground and no leaf below, the background takes no shadow. */
const groundBelow = ({ spreads }: BookPlan, { lowest, highest }: Turning, leaf: Step): Ground => ({
  start: leaf.from !== lowest || spreads[lowest]?.start !== undefined,
  end: leaf.to !== highest || spreads[highest]?.end !== undefined,
});
