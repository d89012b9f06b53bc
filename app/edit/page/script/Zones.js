import { boundsOf, boxGap, pathData } from "./plane.js";
import { drawn } from "./svg.js";

const AROUND = 25000; // mm: zones farther away than this are not drawn

/** The distances that rules require of the selected element, and where they reach around the others. */
export class Zones {
  constructor(ground, { site, selection, view, colours }) {
    this.root = drawn(ground, "g", { class: "zones" });
    Object.assign(this, { site, selection, view, colours });
    this.isShown = false;
    this.list = [];
    this.asked = 0; // the latest answer counts, whatever comes when
    selection.addEventListener("select", () => this.fetch());
    site.addEventListener("objects", () => this.fetch());
  }

  show(isShown) {
    this.isShown = isShown;
    this.#draw();
  }

  async fetch() {
    const { handle } = this.selection;
    this.asked += 1;
    const { asked } = this;
    this.list = [];
    if (handle) {
      const list = await this.site.zones(handle).catch(() => []);
      if (asked !== this.asked) return;
      this.list = list;
    }
    this.#draw();
  }

  /** A line of twice the distance along the outline covers all that lies too close to it. */
  #draw() {
    this.root.replaceChildren();
    const own = this.selection.entry && boundsOf([this.selection.entry.shape]);
    if (!this.isShown || !own) return;
    for (const { rule, other, limit, distance } of this.list) {
      if (limit !== "atLeast") continue;
      const shape = this.site.objects.get(other)?.shape;
      const box = shape && boundsOf([shape]);
      if (!box || boxGap(own, box) > distance + AROUND) continue;
      drawn(this.root, "path", { class: this.colours(rule), d: pathData(shape, this.view.origin), "stroke-width": 2 * distance });
    }
  }
}
