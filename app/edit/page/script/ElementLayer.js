import { pathData } from "./plane.js";
import { drawn } from "./svg.js";

// Later kinds lie above earlier ones.
const KINDS = ["road", "fire-road", "yard", "house", "shed", "station", "other", "crane", "door", "wall", "cable", "poster", "model"];

/** The elements of the site in plan, by handle. */
export class ElementLayer {
  constructor(root, view) {
    this.view = view;
    this.nodes = new Map();
    const resting = drawn(root, "g");
    this.layers = new Map(KINDS.map((kind) => [kind, drawn(resting, "g")]));
    this.top = drawn(root, "g"); // what is dragged changes alone, and lies above all
    this.selected = null;
  }

  clear() {
    for (const handle of [...this.nodes.keys()]) this.remove(handle);
  }

  /** `entry` is an object with its shape; one that has nothing to draw is left out. */
  show(entry) {
    this.remove(entry.handle);
    const data = pathData(entry.shape, this.view.origin);
    if (data === "") return;
    const { kind } = entry.shape;
    const node = drawn(this.#layerOf(entry.handle, kind), "g", { class: "thing", "data-handle": entry.handle, role: "img", "aria-label": entry.title });
    drawn(node, "path", { class: "grasp", d: data });
    drawn(drawn(node, "g", { class: `element ${kind}` }), "path", { d: data });
    drawn(node, "title", {}, entry.title);
    node.id = `e${entry.handle}`;
    node.kind = kind;
    this.nodes.set(entry.handle, node);
    this.#markSelected(entry.handle);
  }

  remove(handle) {
    this.nodes.get(handle)?.remove();
    this.nodes.delete(handle);
  }

  /** As it would be drawn, while it is dragged. */
  preview(handle, shape) {
    const data = pathData(shape, this.view.origin);
    const node = this.nodes.get(handle);
    if (!node) return;
    for (const path of node.querySelectorAll("path")) path.setAttribute("d", data);
  }

  select(handle) {
    const before = this.selected;
    this.selected = handle;
    if (before) this.#markSelected(before);
    if (handle) this.#markSelected(handle);
  }

  #layerOf(handle, kind) {
    return handle === this.selected ? this.top : this.layers.get(kind) ?? this.layers.get("other");
  }

  #markSelected(handle) {
    const node = this.nodes.get(handle);
    if (!node) return;
    node.classList.toggle("selected", handle === this.selected);
    const layer = this.#layerOf(handle, node.kind);
    if (node.parentNode !== layer) layer.append(node);
  }

  /** Class names of what offends, by handle. */
  markOffending(marks) {
    for (const [handle, node] of this.nodes) {
      const wanted = marks.get(handle) ?? "";
      if ((node.lastMarks ?? "") === wanted) continue;
      node.lastMarks = wanted;
      const element = node.querySelector(".element");
      const [base, kind] = element.classList;
      element.setAttribute("class", `${base} ${kind} ${wanted}`.trim());
    }
  }

  handleAt(target) {
    return target.closest(".thing")?.dataset.handle ?? null;
  }
}
