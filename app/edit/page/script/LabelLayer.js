import { boundsOf } from "./plane.js";
import { drawn } from "./svg.js";

const HEIGHT = 15; // pixels of a line
const LATIN = 6.6;
const WIDE = 12.5; // a Chinese character

function textWidth(text) {
  let width = 0;
  for (const sign of text) width += sign.codePointAt(0) > 0x2e7f ? WIDE : LATIN;
  return width;
}

/** Names on elements, as many as do not hide one another; large elements go first. */
export class LabelLayer {
  constructor(root, view) {
    this.root = drawn(root, "g", { class: "labels" });
    this.view = view;
    this.labels = new Map(); // by handle
    view.addEventListener("view", () => this.#show());
  }

  clear() {
    for (const handle of [...this.labels.keys()]) this.remove(handle);
  }

  set({ handle, shape }) {
    this.remove(handle);
    const bounds = boundsOf([shape]);
    if (!bounds || !shape.label) return;
    const size = Math.max(bounds.right - bounds.left, bounds.top - bounds.bottom);
    const at = [(bounds.left + bounds.right) / 2, (bounds.bottom + bounds.top) / 2];
    this.labels.set(handle, { at, text: shape.label, size, width: textWidth(shape.label), node: null });
    this.#askForShow();
  }

  /** With an element that is dragged, whatever it then hides. */
  move(handle, shape) {
    const label = this.labels.get(handle);
    const bounds = boundsOf([shape]);
    if (!label || !bounds) return;
    label.at = [(bounds.left + bounds.right) / 2, (bounds.bottom + bounds.top) / 2];
    if (label.node) this.#put(label, true, ...this.view.toScreen(label.at));
  }

  remove(handle) {
    this.labels.get(handle)?.node?.remove();
    this.labels.delete(handle);
  }

  #askForShow() {
    if (this.isAsked) return;
    this.isAsked = true;
    requestAnimationFrame(() => this.#show());
  }

  /** Texts out of sight, or larger than what they name by far, are taken out: to lay texts out is slow. */
  #show() {
    this.isAsked = false;
    const seen = this.view.seen(40);
    const taken = [];
    for (const label of [...this.labels.values()].sort((a, b) => b.size - a.size)) {
      const [x, y] = this.view.toScreen(label.at);
      const box = { left: x - label.width / 2, right: x + label.width / 2, top: y - HEIGHT / 2, bottom: y + HEIGHT / 2 };
      const isIn = label.at[0] > seen.left && label.at[0] < seen.right && label.at[1] > seen.bottom && label.at[1] < seen.top;
      const fits = isIn && label.width < 1.6 * label.size * this.view.scale && !taken.some((other) => (
        box.left < other.right && other.left < box.right && box.top < other.bottom && other.top < box.bottom));
      if (fits) taken.push(box);
      this.#put(label, fits, x, y);
    }
  }

  #put(label, isShown, x, y) {
    if (!isShown) {
      label.node?.remove();
      label.node = null;
      return;
    }
    label.node ??= drawn(this.root, "text", {}, label.text);
    label.node.setAttribute("transform", `translate(${x} ${y})`);
  }
}
