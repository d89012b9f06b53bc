export const SLIP = 4; // pixels that a click may move

/** A drag moves what is seen of a plan; two fingers, and the wheel with Ctrl, zoom it. */
export class PlanGestures {
  /** `view` has the plan's `svg`, `move` by pixels, and `zoom` by a factor about a point of the window. */
  constructor(view) {
    this.view = view;
    this.pointers = new Map();
    this.hasMoved = false; // since the pointer went down, so that it was no click
    const { svg } = view;
    svg.addEventListener("wheel", (event) => this.#wheel(event), { passive: false });
    svg.addEventListener("pointerdown", (event) => {
      this.pointers.set(event.pointerId, event);
      this.hasMoved = false;
    });
    svg.addEventListener("pointermove", (event) => this.#drag(event));
    for (const end of ["pointerup", "pointercancel"]) {
      svg.addEventListener(end, (event) => {
        this.pointers.delete(event.pointerId);
        svg.classList.remove("moving");
      });
    }
    svg.addEventListener("dragstart", (event) => event.preventDefault());
  }

  /** By the size of the step; a pinch on a touch pad comes as small steps with Ctrl. Else the page scrolls. */
  #wheel(event) {
    if (!event.ctrlKey && !event.metaKey) return;
    event.preventDefault();
    const pixels = event.deltaY * [1, 20, 400][event.deltaMode];
    const step = Math.min(Math.max(pixels, -60), 60);
    this.view.zoom(Math.exp(-step * 0.006), event.clientX, event.clientY);
  }

  #drag(event) {
    const before = this.pointers.get(event.pointerId);
    if (!before) return;
    const movedBy = Math.hypot(event.clientX - before.clientX, event.clientY - before.clientY);
    if (!this.hasMoved && movedBy < SLIP) return;
    if (!this.hasMoved) this.view.svg.setPointerCapture(event.pointerId);
    this.hasMoved = true;
    this.view.svg.classList.add("moving");
    const other = [...this.pointers.values()].find((pointer) => pointer.pointerId !== event.pointerId);
    if (other) {
      const spread = (pointer) => Math.hypot(pointer.clientX - other.clientX, pointer.clientY - other.clientY);
      this.view.zoom(spread(event) / Math.max(spread(before), 1), (event.clientX + other.clientX) / 2,
        (event.clientY + other.clientY) / 2);
    } else {
      this.view.move(event.clientX - before.clientX, event.clientY - before.clientY);
    }
    this.pointers.set(event.pointerId, event);
  }
}
