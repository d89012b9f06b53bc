/** The texts and pins of a plan: which are shown at a magnification, and where they stand in a view. */
class PlanLabels {
  constructor(svg) {
    const { labelPixels, narrowest, levels } = svg.dataset;
    this.pixels = Number(labelPixels);
    this.narrowest = Number(narrowest);
    this.lastLevel = Number(levels) - 1;
    this.wholeWidth = svg.viewBox.baseVal.width;
    this.root = svg.querySelector(".labels");
    this.groups = [...this.root.children].map((group) => {
      const [first, last] = group.getAttribute("class").match(/\d+/g).map(Number);
      return { group, first, last, items: [...group.children].map(PlanLabels.itemOf) };
    });
  }

  static itemOf(node) {
    const [x, y] = node.getAttribute("transform").match(/-?[\d.]+/g).map(Number);
    return { node, x, y, isOff: false };
  }

  /** `box` is what is seen. Texts only move, and those out of sight are taken out: to lay texts out is slow. */
  show(box, pixelsPerMetre) {
    const level = Math.floor(Math.log2((this.wholeWidth * pixelsPerMetre) / this.narrowest));
    const shownLevel = Math.max(0, Math.min(this.lastLevel, level));
    const size = Math.min(this.pixels, (this.wholeWidth * pixelsPerMetre * this.pixels) / this.narrowest);
    const margin = (16 * size) / pixelsPerMetre;
    this.root.style.fontSize = `${size}px`;
    for (const { group, first, last, items } of this.groups) {
      const isOn = first <= shownLevel && shownLevel <= last;
      group.classList.toggle("on", isOn);
      for (const item of isOn ? items : []) {
        const isOff = item.x < box.x - margin || item.x > box.x + box.width + margin
          || item.y < box.y - margin || item.y > box.y + box.height + margin;
        if (isOff !== item.isOff) item.node.classList.toggle("off", isOff);
        item.isOff = isOff;
        if (!isOff) PlanLabels.put(item, (item.x - box.x) * pixelsPerMetre, (item.y - box.y) * pixelsPerMetre);
      }
    }
  }

  /** As they stand in the markup, in metres. */
  restore() {
    this.root.style.fontSize = "";
    for (const { items } of this.groups) for (const item of items) PlanLabels.put(item, item.x, item.y);
  }

  static put({ node }, x, y) {
    node.setAttribute("transform", `translate(${x} ${y})`);
  }
}
