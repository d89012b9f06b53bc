/** The texts and pins of a plan: how large they are, and which are shown at a magnification and in a view. */
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
    const place = node.getAttribute("transform")?.match(/-?[\d.]+/g) ?? [node.getAttribute("x"), node.getAttribute("y")];
    return { node, x: Number(place[0]), y: Number(place[1]), isOff: false };
  }

  /** What lies out of sight is taken out, because browsers lay out every text again at every zoom. */
  show(box, pixelsPerMetre) {
    const level = Math.floor(Math.log2((this.wholeWidth * pixelsPerMetre) / this.narrowest));
    const shownLevel = Math.max(0, Math.min(this.lastLevel, level));
    const size = Math.min(this.pixels / pixelsPerMetre, (this.wholeWidth * this.pixels) / this.narrowest);
    const margin = 16 * size;
    this.root.style.fontSize = `${size}px`;
    for (const { group, first, last, items } of this.groups) {
      const isOn = first <= shownLevel && shownLevel <= last;
      group.classList.toggle("on", isOn);
      if (!isOn) continue;
      for (const item of items) {
        const isOff = item.x < box.x - margin || item.x > box.x + box.width + margin
          || item.y < box.y - margin || item.y > box.y + box.height + margin;
        if (isOff !== item.isOff) item.node.classList.toggle("off", isOff);
        item.isOff = isOff;
      }
    }
  }
}
