import { boundsOf, boxGap, chordsOf, closest } from "./plane.js";

const FINEST = 1; // mm: where an element comes to stand without a grid
const ROUNDS = 4; // of getting out of one zone, and then out of another
const EXACT = 1e-3; // mm: as coordinates are kept
const NEAR = 1500; // mm: how much farther than required still limits a move

/** Where a dragged element comes to stand: on a grid, and just as far from others as the rules require. */
export class Snapping {
  constructor() {
    this.step = 500; // mm
    this.usesGrid = true;
    this.usesDistances = true;
  }

  toGrid([x, y]) {
    const step = this.usesGrid ? this.step : FINEST;
    return [Math.round(x / step) * step, Math.round(y / step) * step];
  }

  /** The move of an element that stands at a point, so that it stands on the grid. */
  moveToGrid([x, y], [dx, dy]) {
    const [toX, toY] = this.toGrid([x + dx, y + dy]);
    return [toX - x, toY - y];
  }
}

/** The required distances of one element to others, as they were when a drag began. */
export class Limits {
  /**
   * `zones` tell what the rules require, and what they measure now: [{rule, other, limit, distance, measured}].
   * `shapeOf` answers the shape of another element.
   */
  constructor(shape, zones, shapeOf) {
    this.chords = chordsOf(shape);
    this.box = boundsOf([shape]);
    this.zones = [];
    for (const zone of this.box ? zones : []) {
      const other = shapeOf(zone.other);
      const box = other && boundsOf([other]);
      if (!box || zone.limit !== "atLeast") continue;
      const entry = { ...zone, box, chords: chordsOf(other), excess: 0 };
      this.#learn(entry, [0, 0], zone.measured);
      this.zones.push(entry);
    }
  }

  /** Rules may measure other outlines than those that are drawn: how much more they measure than lies between these. */
  #learn(zone, move, measured) {
    const gap = measured > 0 ? this.#gap(zone, move) : null;
    const excess = gap ? measured - gap.distance : 0;
    const isNews = Math.abs(excess - zone.excess) > 0.01;
    if (isNews) zone.excess = excess;
    return isNews;
  }

  /** From what was found of the moved element. True when that changes what it is held at. */
  learn(findings, handle, move) {
    let isNews = false;
    for (const { rule, handles, measures } of findings) {
      if (!handles.includes(handle)) continue;
      for (const measure of measures) {
        const other = handles[0] === handle ? measure.other : handles[0];
        const zone = this.zones.find((entry) => entry.rule === rule && entry.other === other);
        if (zone && measure.unit === "m") isNews = this.#learn(zone, move, measure.value * 1000) || isNews;
      }
    }
    return isNews;
  }

  /** The closest points; nothing where the outlines overlap. */
  #gap({ chords, excess }, [dx, dy]) {
    const own = this.chords.map((chord) => chord.map(([x, y]) => [x + dx, y + dy]));
    const gap = closest(own, chords);
    return gap && gap.distance > 0 ? { ...gap, measured: gap.distance + excess } : null;
  }

  /** What is closest to the element once it is moved, within `reach` of the required distance. */
  #near(move, reach) {
    const [dx, dy] = move;
    const box = { left: this.box.left + dx, right: this.box.right + dx, bottom: this.box.bottom + dy, top: this.box.top + dy };
    const near = [];
    for (const zone of this.zones) {
      const farthest = zone.distance + reach;
      if (boxGap(box, zone.box) + Math.min(0, zone.excess) > farthest) continue;
      const gap = this.#gap(zone, move);
      if (gap && gap.measured <= farthest) near.push({ ...gap, rule: zone.rule, required: zone.distance });
    }
    return near;
  }

  /** The move, changed a little so that it keeps just the required distances where it comes within `tolerance` of them. */
  justFarEnough(move, tolerance) {
    let result = move;
    for (let round = 0; round < ROUNDS; round += 1) {
      const lack = ({ measured, required }) => required - measured;
      const [nearest] = this.#near(result, tolerance)
        .filter((gap) => Math.abs(lack(gap)) <= tolerance && (round === 0 || lack(gap) > EXACT))
        .sort((a, b) => Math.abs(lack(a)) - Math.abs(lack(b)));
      if (!nearest) break;
      result = Limits.#away(result, nearest, lack(nearest));
    }
    return Math.hypot(result[0] - move[0], result[1] - move[1]) <= 1.5 * tolerance ? result : move;
  }

  /** The move on the grid, but where a required distance catches the free move: along the others it stays on the grid. */
  hold(free, onGrid, tolerance) {
    const held = this.justFarEnough(free, tolerance);
    if (held === free) return onGrid;
    return this.justFarEnough(held.map((value, i) => (value === free[i] ? onGrid[i] : value)), tolerance);
  }

  /** By so much, rounded to whole millimetres away from what is there. */
  static #away(move, { from, to, distance }, by) {
    return move.map((value, i) => {
      const direction = (from[i] - to[i]) / distance;
      if (Math.abs(direction) < EXACT) return value;
      const moved = Math.round((value + direction * by) * 1000) / 1000;
      return direction > 0 ? Math.ceil(moved) : Math.floor(moved);
    });
  }

  /** Lines to what limits the element there: [{line, rule, measured, required}]. */
  lines(move) {
    return this.#near(move, NEAR).map(({ from, to, ...rest }) => ({ line: [from, to], ...rest }));
  }
}
