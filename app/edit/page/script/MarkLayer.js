import { pathData } from "./plane.js";
import { drawn } from "./svg.js";

function metres(millimetres) {
  return (millimetres / 1000).toFixed(2);
}

/** The lines between the points that a finding was measured at; a line of no length cannot be seen. */
export function linesOf({ measures }) {
  return measures.map(({ line }) => line).filter((line) => line && (line[0][0] !== line[1][0] || line[0][1] !== line[1][1]));
}

/** What is drawn over the elements: measured distances, distances that limit a move, and what a suggestion would do. */
export class MarkLayer {
  constructor(ground, texts, view) {
    this.view = view;
    this.measures = drawn(ground, "g", { class: "measures" });
    this.limits = drawn(ground, "g", { class: "limits" });
    this.ghosts = drawn(ground, "g", { class: "ghosts" });
    const values = drawn(texts, "g", { class: "labels" });
    this.texts = { findings: drawn(values, "g"), limits: drawn(values, "g") };
    this.lines = new Map(); // by finding
    this.values = { findings: [], limits: [] };
    view.addEventListener("view", () => this.#placeValues());
  }

  /** A line for each finding that was measured between points. `colour` answers the class of a finding. */
  showFindings(findings, colour, isLit) {
    const wanted = new Map();
    for (const finding of findings) if (linesOf(finding).length > 0) wanted.set(finding.id, finding);
    for (const [id, node] of this.lines) {
      if (wanted.has(id)) continue;
      node.remove();
      this.lines.delete(id);
    }
    for (const [id, finding] of wanted) {
      const node = this.lines.get(id) ?? drawn(this.measures, "path");
      this.lines.set(id, node);
      const data = linesOf(finding).map((line) => this.#lineData(line)).join("");
      const names = `measure ${colour(finding)}${isLit(finding) ? " lit" : ""}`;
      if (node.getAttribute("d") !== data) node.setAttribute("d", data);
      if (node.getAttribute("class") !== names) node.setAttribute("class", names);
    }
  }

  /** Lines to what limits a move, with what is measured there: [{line, measured, required}]. */
  showLimits(limits) {
    this.limits.replaceChildren();
    for (const { line, measured, required } of limits) {
      const isKept = measured >= required - 0.01;
      drawn(this.limits, "path", { class: isKept ? "limit" : "limit short", d: this.#lineData(line) });
    }
    this.#setValues("limits", limits.map(({ line, measured, required }) => (
      { line, text: `${metres(measured)} / ${metres(required)} m`, colour: "" })));
  }

  /** What was measured, at its lines: [{line, text, colour}]. */
  showFindingValues(values) {
    this.#setValues("findings", values);
  }

  showGhosts(shapes) {
    this.ghosts.replaceChildren();
    for (const shape of shapes) drawn(this.ghosts, "path", { class: "ghost", d: pathData(shape, this.view.origin) });
  }

  /** Where a move is limited, its own values tell more than those of the findings. */
  #setValues(kind, values) {
    this.texts[kind].replaceChildren();
    if (kind === "limits") this.texts.findings.setAttribute("visibility", values.length > 0 ? "hidden" : "visible");
    this.values[kind] = values.map(({ line, text, colour }) => ({
      at: [(line[0][0] + line[1][0]) / 2, (line[0][1] + line[1][1]) / 2],
      node: drawn(this.texts[kind], "text", { class: `value ${colour}` }, text),
    }));
    this.#placeValues();
  }

  #lineData(line) {
    return pathData({ paths: [{ points: line, closed: false }] }, this.view.origin);
  }

  #placeValues() {
    for (const { at, node } of [...this.values.findings, ...this.values.limits]) {
      const [x, y] = this.view.toScreen(at);
      node.setAttribute("transform", `translate(${x} ${y})`);
    }
  }
}
