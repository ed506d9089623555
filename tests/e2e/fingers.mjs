// SPDX-License-Identifier: MIT

const STEP_SECONDS = 0.016;

/** Two clicks as quick as a hand's, also on a machine that is busy. */
export async function doubleClick(page, x, y) {
  const session = await page.context().newCDPSession(page);
  const start = Date.now() / 1000;
  const events = [['mousePressed', 1], ['mouseReleased', 1], ['mousePressed', 2], ['mouseReleased', 2]];
  for (const [step, [type, clickCount]] of events.entries())
    await session.send('Input.dispatchMouseEvent', { type, x, y, clickCount, button: 'left', timestamp: start + step * STEP_SECONDS });
}

/** Fingers on a touch screen, as the browser itself gets them. Points are [x, y] in the window. */
export async function fingersOn(page) {
  const session = await page.context().newCDPSession(page);
  let time = 0;
  // By their own clock, so that a stroke is as fast on a machine that is busy.
  const send = (type, points) => {
    time = Math.max(time + STEP_SECONDS, type === 'touchStart' ? Date.now() / 1000 : 0);
    return session.send('Input.dispatchTouchEvent', { type, timestamp: time, touchPoints: points.map(([x, y], id) => ({ x, y, id })) });
  };
  const fingers = {
    down: (...points) => send('touchStart', points),
    /** Where all the fingers that are down go, in the order in which they came. */
    to: (...points) => send('touchMove', points),
    up: () => send('touchEnd', []),
    /** The system takes the fingers away, for a gesture of its own. */
    lose: () => send('touchCancel', []),

    /** In a few steps, each with all the fingers: lists of points. */
    async along(from, to) {
      for (const part of [0.25, 0.5, 0.75, 1])
        await fingers.to(...from.map(([x, y], finger) => [x + (to[finger][0] - x) * part, y + (to[finger][1] - y) * part]));
    },

    async stroke(from, to) {
      await fingers.down(from);
      await fingers.along([from], [to]);
      await fingers.up();
    },

    // Sent at once, because a finger that stays down for long does not tap.
    tap: (...point) => Promise.all([fingers.down(point), fingers.up()]),
  };
  return fingers;
}
