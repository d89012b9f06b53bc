import { PlanGestures } from "./PlanGestures.js";
import { roundLength } from "./plan_scale.js";
import { boundsOf } from "./plane.js";

const SMALLEST_VIEW = 2000; // mm
const LARGEST_VIEW = 3; // sites
const LEAST_FITTED = 12000; // mm
const EMPTY = { left: 0, bottom: 0, right: 50000, top: 40000 };

/** Which part of the site is seen, and how large. Dispatches "view" when that changes. */
export class PlanView extends EventTarget {
  constructor(svg, gauge) {
    super();
    this.svg = svg;
    this.ground = svg.querySelector(".ground");
    this.bar = gauge.querySelector(".bar");
    this.length = gauge.querySelector(".length");
    this.origin = [0, 0]; // where the drawing has its zero, in the site
    this.scale = 0.01; // pixels for a millimetre
    this.centre = [0, 0]; // of what is seen, in the site
    this.gestures = new PlanGestures(this);
    new ResizeObserver(() => {
      this.rim = null;
      this.#show();
    }).observe(svg);
    window.addEventListener("scroll", () => { this.rim = null; }, { capture: true, passive: true });
    window.addEventListener("resize", () => { this.rim = null; });
  }

  setSite(shapes) {
    this.bounds = boundsOf(shapes) ?? EMPTY;
    const { left, right, bottom, top } = this.bounds;
    this.origin = [Math.round((left + right) / 2), Math.round((bottom + top) / 2)];
  }

  showAll() {
    this.#fit(this.bounds, 1.06);
  }

  fit(shapes) {
    const bounds = boundsOf(shapes);
    if (bounds) this.#fit(bounds, 1.8);
  }

  /** Moves the view as little as brings the shapes into it. */
  reveal(shapes) {
    const bounds = boundsOf(shapes);
    if (!bounds) return;
    const [left, top] = this.toScreen([bounds.left, bounds.top]);
    const [right, bottom] = this.toScreen([bounds.right, bounds.bottom]);
    const { width, height } = this.#size();
    if (right - left > width || bottom - top > height) {
      this.#fit(bounds, 1.4);
      return;
    }
    const margin = 12;
    const short = (low, high, size) => Math.max(0, margin - low) + Math.min(0, size - margin - high);
    this.move(short(left, right, width), short(top, bottom, height));
  }

  #fit({ left, right, bottom, top }, room) {
    const { width, height } = this.#size();
    const across = Math.max((right - left) * room, LEAST_FITTED);
    const along = Math.max((top - bottom) * room, LEAST_FITTED);
    this.scale = Math.min(width / across, height / along);
    this.centre = [(left + right) / 2, (bottom + top) / 2];
    this.#show();
  }

  /** Magnifies about a point of the window, or about the middle. */
  zoom(factor, clientX, clientY) {
    const { width } = this.#size();
    const widest = LARGEST_VIEW * Math.max(this.bounds.right - this.bounds.left, LEAST_FITTED);
    const scale = Math.min(Math.max(this.scale * factor, width / widest), width / SMALLEST_VIEW);
    const by = scale / this.scale;
    const at = clientX === undefined ? this.centre : this.toSite(clientX, clientY);
    this.centre = this.centre.map((middle, i) => at[i] - (at[i] - middle) / by);
    this.scale = scale;
    this.#show();
  }

  move(pixelsX, pixelsY) {
    this.centre = [this.centre[0] - pixelsX / this.scale, this.centre[1] + pixelsY / this.scale];
    this.#show();
  }

  toSite(clientX, clientY) {
    const { left, top, width, height } = this.#size();
    return [this.centre[0] + (clientX - left - width / 2) / this.scale,
      this.centre[1] - (clientY - top - height / 2) / this.scale];
  }

  /** In pixels of the plan. */
  toScreen([x, y]) {
    const { width, height } = this.#size();
    return [width / 2 + (x - this.centre[0]) * this.scale, height / 2 - (y - this.centre[1]) * this.scale];
  }

  /** What is seen, in the site, with a margin of pixels around it. */
  seen(margin = 0) {
    const { width, height } = this.#size();
    const across = (width / 2 + margin) / this.scale;
    const along = (height / 2 + margin) / this.scale;
    return { left: this.centre[0] - across, right: this.centre[0] + across,
      bottom: this.centre[1] - along, top: this.centre[1] + along };
  }

  /** Kept, since to ask for it has the whole page laid out. */
  #size() {
    if (!this.rim) {
      const { left, top, width, height } = this.svg.getBoundingClientRect();
      this.rim = { left, top, width: width || 1, height: height || 1 };
    }
    return this.rim;
  }

  #show() {
    const { scale } = this;
    const [x, y] = this.toScreen(this.origin);
    this.ground.setAttribute("transform", `matrix(${scale} 0 0 ${-scale} ${x} ${y})`);
    this.#showScale();
    this.dispatchEvent(new Event("view"));
  }

  #showScale() {
    const length = roundLength(this.scale * 1000);
    this.bar.style.width = `${length * this.scale * 1000}px`;
    this.length.textContent = `${length} m`;
  }
}
