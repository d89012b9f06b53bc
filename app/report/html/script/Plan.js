const SMALLEST_VIEW = 2; // metres
const LARGEST_VIEW = 2; // plans
const LEAST_FITTED = 8; // metres

/** The drawing of one site: which part of it is seen, and how large. */
class Plan {
  constructor(drawing) {
    this.svg = drawing.querySelector("svg");
    this.ground = this.svg.querySelector(".ground");
    this.bar = drawing.querySelector(".bar");
    this.length = drawing.querySelector(".length");
    const { x, y, width, height } = this.svg.viewBox.baseVal;
    this.whole = { x, y, width, height };
    this.seen = { ...this.whole };
    this.labels = new PlanLabels(this.svg);
    this.svg.removeAttribute("viewBox");
    this.gestures = new PlanGestures(this);
    new ResizeObserver(() => this.show(this.seen)).observe(this.svg);
  }

  pixelsPerMetre() {
    return Math.min(this.svg.clientWidth / this.seen.width, this.svg.clientHeight / this.seen.height) || 1;
  }

  /** Only the ground's transform changes: another view box would have every element laid out again. */
  show(box) {
    this.seen = box;
    const scale = this.pixelsPerMetre();
    const visible = this.visible();
    this.ground.setAttribute("transform", `matrix(${scale} 0 0 ${scale} ${-visible.x * scale} ${-visible.y * scale})`);
    this.labels.show(visible, scale);
    this.showScale(scale);
    this.svg.dispatchEvent(new Event("planmove"));
  }

  /** What is really seen: the box lies in the middle of a window of another shape. */
  visible() {
    const scale = this.pixelsPerMetre();
    const width = this.svg.clientWidth / scale;
    const height = this.svg.clientHeight / scale;
    const { seen } = this;
    return { x: seen.x + (seen.width - width) / 2, y: seen.y + (seen.height - height) / 2, width, height };
  }

  /** The whole plan in metres, for paper of any size. */
  beginPrint() {
    const { x, y, width, height } = this.whole;
    this.svg.setAttribute("viewBox", `${x} ${y} ${width} ${height}`);
    this.ground.removeAttribute("transform");
    this.labels.restore();
  }

  endPrint() {
    this.svg.removeAttribute("viewBox");
    this.show(this.seen);
  }

  showScale(scale) {
    const length = roundLength(scale);
    this.bar.style.width = `${length * scale}px`;
    this.length.textContent = this.length.dataset.text.replace("%1", String(length));
  }

  showAll() {
    this.show({ ...this.whole });
  }

  /** Magnifies about a point of the screen, or about the middle. */
  zoom(factor, clientX, clientY) {
    const { x, y, width, height } = this.seen;
    const newWidth = Math.min(Math.max(width / factor, SMALLEST_VIEW), LARGEST_VIEW * this.whole.width);
    const by = width / newWidth;
    let at = { x: x + width / 2, y: y + height / 2 };
    if (clientX !== undefined) {
      const rim = this.svg.getBoundingClientRect();
      const scale = this.pixelsPerMetre();
      const visible = this.visible();
      at = { x: visible.x + (clientX - rim.left) / scale, y: visible.y + (clientY - rim.top) / scale };
    }
    this.show({ x: at.x - (at.x - x) / by, y: at.y - (at.y - y) / by, width: width / by, height: height / by });
  }

  move(pixelsX, pixelsY) {
    const scale = this.pixelsPerMetre();
    this.show({ ...this.seen, x: this.seen.x - pixelsX / scale, y: this.seen.y - pixelsY / scale });
  }

  /** Fits drawn things with a little of what is around them. */
  fit(things) {
    const boxes = things.map((thing) => thing.getBBox());
    if (boxes.length === 0) {
      this.showAll();
      return;
    }
    const left = Math.min(...boxes.map((box) => box.x));
    const top = Math.min(...boxes.map((box) => box.y));
    const right = Math.max(...boxes.map((box) => box.x + box.width));
    const bottom = Math.max(...boxes.map((box) => box.y + box.height));
    const width = Math.max((right - left) * 1.4, LEAST_FITTED);
    const height = Math.max((bottom - top) * 1.4, LEAST_FITTED);
    this.show({ x: (left + right - width) / 2, y: (top + bottom - height) / 2, width, height });
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
