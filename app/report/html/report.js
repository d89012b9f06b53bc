"use strict";

// Everything the page says stands in its markup; this adds choosing, filtering, panning and zooming.
document.documentElement.classList.add("scripted");

const LARGEST_ZOOM = 200;

/** The drawing of one site: which part of it is seen, and how large. */
class Plan {
  constructor(svg) {
    this.svg = svg;
    const box = svg.viewBox.baseVal;
    this.whole = { x: box.x, y: box.y, width: box.width, height: box.height };
    this.seen = { ...this.whole };
    const { labelPixels, narrowest, levels } = svg.dataset;
    this.labels = { pixels: Number(labelPixels), narrowest: Number(narrowest), levels: Number(levels) };
    this.pointers = new Map();
    this.listen();
    new ResizeObserver(() => this.show(this.seen)).observe(svg);
  }

  pixelsPerMetre(box = this.seen) {
    return Math.min(this.svg.clientWidth / box.width, this.svg.clientHeight / box.height) || 1;
  }

  show(box) {
    this.seen = box;
    this.svg.setAttribute("viewBox", `${box.x} ${box.y} ${box.width} ${box.height}`);
    const scale = this.pixelsPerMetre();
    const level = Math.floor(Math.log2((this.whole.width * scale) / this.labels.narrowest));
    this.svg.dataset.level = Math.max(0, Math.min(this.labels.levels - 1, level));
    const largest = (this.whole.width * this.labels.pixels) / this.labels.narrowest;
    this.svg.style.setProperty("--label-size", Math.min(this.labels.pixels / scale, largest));
  }

  showAll() {
    this.show({ ...this.whole });
  }

  /** Magnifies about a point of the screen, or about the middle. */
  zoom(factor, clientX, clientY) {
    const zoomNow = this.whole.width / this.seen.width;
    const by = Math.min(Math.max(zoomNow * factor, 0.5), LARGEST_ZOOM) / zoomNow;
    const { x, y, width, height } = this.seen;
    let at = { x: x + width / 2, y: y + height / 2 };
    if (clientX !== undefined) {
      at = new DOMPoint(clientX, clientY).matrixTransform(this.svg.getScreenCTM().inverse());
    }
    this.show({ x: at.x - (at.x - x) / by, y: at.y - (at.y - y) / by, width: width / by, height: height / by });
  }

  move(pixelsX, pixelsY) {
    const scale = this.pixelsPerMetre();
    this.show({ ...this.seen, x: this.seen.x - pixelsX / scale, y: this.seen.y - pixelsY / scale });
  }

  /** Brings drawn things into view with their surroundings. */
  bringIntoView(things) {
    const boxes = things.map((thing) => thing.getBBox());
    if (boxes.length === 0) {
      this.showAll();
      return;
    }
    const left = Math.min(...boxes.map((box) => box.x));
    const top = Math.min(...boxes.map((box) => box.y));
    const right = Math.max(...boxes.map((box) => box.x + box.width));
    const bottom = Math.max(...boxes.map((box) => box.y + box.height));
    const width = Math.max((right - left) * 1.8, this.whole.width / 6);
    const height = Math.max((bottom - top) * 1.8, this.whole.height / 6);
    this.show({ x: (left + right - width) / 2, y: (top + bottom - height) / 2, width, height });
  }

  listen() {
    const { svg } = this;
    svg.addEventListener("wheel", (event) => {
      event.preventDefault();
      this.zoom(event.deltaY < 0 ? 1.2 : 1 / 1.2, event.clientX, event.clientY);
    }, { passive: false });
    svg.addEventListener("pointerdown", (event) => {
      this.pointers.set(event.pointerId, event);
      this.hasMoved = false;
    });
    svg.addEventListener("pointermove", (event) => this.drag(event));
    for (const end of ["pointerup", "pointercancel", "pointerleave"]) {
      svg.addEventListener(end, (event) => {
        this.pointers.delete(event.pointerId);
        svg.classList.remove("moving");
      });
    }
    svg.addEventListener("dragstart", (event) => event.preventDefault());
  }

  drag(event) {
    const before = this.pointers.get(event.pointerId);
    if (!before) return;
    const movedBy = Math.hypot(event.clientX - before.clientX, event.clientY - before.clientY);
    if (!this.hasMoved && movedBy < 4) return;
    this.hasMoved = true;
    this.svg.classList.add("moving");
    const other = [...this.pointers.values()].find((pointer) => pointer.pointerId !== event.pointerId);
    if (other) {
      const spread = (pointer) => Math.hypot(pointer.clientX - other.clientX, pointer.clientY - other.clientY);
      this.zoom(spread(event) / Math.max(spread(before), 1), (event.clientX + other.clientX) / 2,
        (event.clientY + other.clientY) / 2);
    } else {
      this.move(event.clientX - before.clientX, event.clientY - before.clientY);
    }
    this.pointers.set(event.pointerId, event);
  }

  /** True when the key moved the plan. */
  key(key) {
    const step = 60;
    const acts = {
      "+": () => this.zoom(1.3), "=": () => this.zoom(1.3), "-": () => this.zoom(1 / 1.3), 0: () => this.showAll(),
      ArrowLeft: () => this.move(step, 0), ArrowRight: () => this.move(-step, 0),
      ArrowUp: () => this.move(0, step), ArrowDown: () => this.move(0, -step),
    };
    if (!(key in acts)) return false;
    acts[key]();
    return true;
  }
}

/** The list and the plan of one site, linked both ways. */
class Site {
  constructor(section) {
    this.section = section;
    this.findings = [...section.querySelectorAll(".finding")];
    const svg = section.querySelector("svg.plan");
    this.plan = svg ? new Plan(svg) : null;
    this.listenToList();
    this.listenToFilters();
    if (this.plan) this.listenToPlan();
    this.filter();
  }

  handlesOf(finding, which) {
    return finding.dataset[which].split(" ").filter((handle) => handle !== "");
  }

  drawnElements(handles) {
    const ids = handles.map((handle) => document.getElementById(`${this.section.id}-e${handle}`));
    return ids.filter((element) => element !== null);
  }

  choose(finding, { movesPlan = true } = {}) {
    for (const lit of this.section.querySelectorAll(".lit")) lit.classList.remove("lit");
    for (const other of this.findings) {
      other.classList.toggle("current", other === finding);
      other.querySelector(".sentence").setAttribute("aria-current", other === finding);
    }
    if (!this.plan) return;
    const number = finding.dataset.number;
    const measures = [...this.plan.svg.querySelectorAll(`.measure[data-finding="${number}"]`)];
    const things = [...this.drawnElements(this.handlesOf(finding, "elements")), ...measures];
    for (const thing of things) thing.classList.add("lit");
    this.plan.svg.classList.toggle("chosen", measures.length > 0);
    if (movesPlan) {
      this.plan.bringIntoView([...this.drawnElements(this.handlesOf(finding, "focus")), ...measures]);
    }
  }

  listenToList() {
    for (const finding of this.findings) {
      finding.querySelector(".sentence").addEventListener("click", (event) => {
        event.preventDefault();
        this.choose(finding);
      });
    }
  }

  /** Clicking an element again goes on to its next violation. */
  chooseElement(handle) {
    const shown = this.findings.filter((finding) => !finding.hidden);
    const own = shown.filter((finding) => finding.dataset.handle === handle);
    const related = shown.filter((finding) => this.handlesOf(finding, "elements").includes(handle));
    const candidates = own.length > 0 ? own : related;
    if (candidates.length === 0) return;
    const next = candidates.findIndex((finding) => finding.classList.contains("current")) + 1;
    const finding = candidates[next % candidates.length];
    this.choose(finding, { movesPlan: false });
    finding.scrollIntoView({ block: "nearest" });
  }

  listenToPlan() {
    const { plan } = this;
    plan.svg.addEventListener("click", (event) => {
      const element = event.target.closest(".element") ?? event.target.closest("a")?.querySelector(".element");
      if (!element) return;
      event.preventDefault();
      if (!plan.hasMoved) this.chooseElement(element.dataset.handle);
    });
    plan.svg.setAttribute("tabindex", "0");
    plan.svg.addEventListener("keydown", (event) => {
      if (!event.ctrlKey && !event.metaKey && !event.altKey && plan.key(event.key)) event.preventDefault();
    });
    const tools = { "zoom-in": () => plan.zoom(1.4), "zoom-out": () => plan.zoom(1 / 1.4), "zoom-all": () => plan.showAll() };
    for (const [name, act] of Object.entries(tools)) {
      this.section.querySelector(`.${name}`).addEventListener("click", act);
    }
    window.addEventListener("beforeprint", () => plan.showAll());
  }

  listenToFilters() {
    this.form = this.section.querySelector(".filters");
    if (!this.form) return;
    this.form.addEventListener("change", () => this.filter());
    this.form.addEventListener("reset", () => setTimeout(() => this.filter()));
    this.form.addEventListener("submit", (event) => event.preventDefault());
  }

  filter() {
    if (!this.form) return;
    const rule = this.form.elements.rule.value;
    const element = this.form.elements.element.value;
    const isShown = (finding) => (rule === "" || finding.dataset.rule === rule)
      && (element === "" || this.handlesOf(finding, "elements").includes(element));
    for (const finding of this.findings) finding.hidden = !isShown(finding);
    for (const group of this.section.querySelectorAll(".rule")) {
      group.hidden = group.querySelector(".finding:not([hidden])") === null;
    }
    const shown = this.findings.filter((finding) => !finding.hidden);
    this.form.querySelector("output").textContent = `Showing ${shown.length} of ${this.findings.length} violations`;
    this.mute(shown);
  }

  /** Steps back what the filters leave out. */
  mute(shown) {
    if (!this.plan) return;
    const numbers = new Set(shown.map((finding) => finding.dataset.number));
    const handles = new Set(shown.map((finding) => finding.dataset.handle));
    for (const measure of this.plan.svg.querySelectorAll(".measure")) {
      measure.classList.toggle("muted", !numbers.has(measure.dataset.finding));
    }
    for (const element of this.plan.svg.querySelectorAll(".element.offends")) {
      element.classList.toggle("muted", !handles.has(element.dataset.handle));
    }
  }
}

for (const section of document.querySelectorAll(".site")) new Site(section);
