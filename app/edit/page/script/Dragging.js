import { anchor, middleOf, moved, turned } from "./edits.js";
import { gripsOf } from "./grips.js";
import { SLIP } from "./PlanGestures.js";
import { movedShape } from "./plane.js";
import { Limits } from "./Snapping.js";
import { drawn } from "./svg.js";

const CATCH = 10; // pixels within which a required distance holds what is dragged
const FARTHEST_CATCH = 1000; // mm, where a pixel stands for much
const TURN_ARM = 34; // pixels from the element to its turning handle
const TURN_STEP = 5; // degrees

/** Moves, turns and resizes the selected element with the pointer, and has it judged on the way. */
export class Dragging {
  constructor(svg, page) {
    Object.assign(this, page); // site, view, elements, labels, selection, trial, snapping, zones, marks, editor
    this.svg = svg;
    this.root = drawn(svg, "g", { class: "grips" });
    this.drag = null;
    svg.addEventListener("pointerdown", (event) => this.#begin(event), { capture: true });
    svg.addEventListener("pointermove", (event) => this.#move(event), { capture: true });
    svg.addEventListener("pointerup", (event) => this.#end(event), { capture: true });
    svg.addEventListener("pointercancel", () => this.cancel(), { capture: true });
    this.view.addEventListener("view", () => this.showGrips());
    this.selection.addEventListener("select", () => this.showGrips());
    this.site.addEventListener("objects", ({ detail }) => {
      if (detail === null) this.cancel();
      this.showGrips();
    });
  }

  get isActive() {
    return this.drag !== null;
  }

  /** Handles at the corners, and one to turn by, with targets that a finger hits. */
  showGrips(object = this.drag?.object ?? this.selection.object) {
    this.root.replaceChildren();
    if (!object) return;
    gripsOf(object, (key) => object[key] ?? this.selection.value(key)).forEach(({ at }, index) => {
      this.#grip(this.view.toScreen(at), `${index}`, "resize");
    });
    if (turned(object, 1, this.selection.hasKey("angle"))) this.#grip(this.#turnGripAt(object), "turn", "turn");
  }

  #grip([x, y], name, kind) {
    const grip = drawn(this.root, "g", { class: `grip ${kind}`, "data-grip": name, transform: `translate(${x} ${y})` });
    drawn(grip, "circle", { class: "reach", r: 16 });
    drawn(grip, "circle", { class: "knob", r: kind === "turn" ? 7 : 5 });
    if (kind === "turn") drawn(grip, "path", { d: "M-3.5 1A3.5 3.5 0 1 1 1 3.5M1 1.2V3.6H-1.4" });
  }

  /** Beyond the element, the way it looks. */
  #turnGripAt(object) {
    const about = this.view.toScreen(middleOf(object));
    const angle = ((object.angle ?? 0) * Math.PI) / 180;
    const value = (key) => object[key] ?? this.selection.value(key) ?? 0;
    const arm = (value("depth") / 2) * this.view.scale + TURN_ARM;
    return [about[0] - Math.sin(angle) * arm, about[1] - Math.cos(angle) * arm];
  }

  #begin(event) {
    if (this.drag) { // a second finger zooms
      const { pointer, last } = this.drag;
      this.cancel();
      this.view.gestures.pointers.set(pointer, last);
      return;
    }
    const isAlone = [...this.view.gestures.pointers.keys()].every((pointer) => pointer === event.pointerId);
    if (event.button !== 0 || !isAlone) return;
    const grip = event.target.closest(".grip")?.dataset.grip;
    const handle = grip ? this.selection.handle : this.elements.handleAt(event.target);
    const isOwn = handle !== null && handle === this.selection.handle;
    if (!handle || (event.pointerType === "touch" && !isOwn)) return; // fingers move what is selected, and else the plan
    event.stopPropagation();
    this.view.gestures.hasMoved = false;
    this.drag = { handle, grip, pointer: event.pointerId, last: event, from: [event.clientX, event.clientY], hasMoved: false };
  }

  #start() {
    const { drag } = this;
    this.selection.select(drag.handle);
    this.svg.setPointerCapture(drag.pointer);
    this.svg.classList.add("dragging");
    this.editor.finishNudge();
    const { object, shape } = this.selection.entry;
    Object.assign(drag, { hasMoved: true, before: object, shape, start: this.view.toSite(...drag.from), object });
    if (drag.grip && drag.grip !== "turn") {
      drag.resizes = Number(drag.grip);
    }
  }

  #limits() {
    const { drag, zones, site } = this;
    if (drag.zones !== zones.list) {
      drag.zones = zones.list;
      drag.limits = new Limits(drag.shape, zones.list, (handle) => site.objects.get(handle)?.shape);
    }
    return drag.limits;
  }

  #move(event) {
    const { drag } = this;
    if (!drag || event.pointerId !== drag.pointer) return;
    event.stopPropagation();
    drag.last = event;
    const slip = Math.hypot(event.clientX - drag.from[0], event.clientY - drag.from[1]);
    if (!drag.hasMoved && slip < SLIP) return;
    if (!drag.hasMoved) this.#start();
    const point = this.view.toSite(event.clientX, event.clientY);
    if (drag.grip === "turn") this.#turn(point, event);
    else if (drag.resizes !== undefined) this.#resize(point);
    else this.#shift(point);
  }

  /** The element follows at once; what the rules say of it follows when they have been asked. */
  #shift(point) {
    const { drag, view, snapping } = this;
    const free = [point[0] - drag.start[0], point[1] - drag.start[1]];
    drag.point = point;
    const place = anchor(drag.before);
    if (!place) return;
    const onGrid = snapping.moveToGrid(place, free);
    const limits = this.#limits();
    const [dx, dy] = snapping.usesDistances ? limits.hold(free, onGrid, Math.min(CATCH / view.scale, FARTHEST_CATCH)) : onGrid;
    this.#draw(drag.handle, movedShape(drag.shape, dx, dy));
    this.marks.showLimits(limits.lines([dx, dy]));
    this.#try((object) => moved(object, dx, dy), ({ shapes, verdict }) => {
      this.#preview(shapes.filter(({ handle }) => handle !== drag.handle));
      if (snapping.usesDistances && limits.learn(verdict.findings, drag.handle, [dx, dy])) this.#shift(drag.point);
    });
  }

  #turn(point, event) {
    const { drag } = this;
    const about = middleOf(drag.before);
    const angleOf = ([x, y]) => (Math.atan2(y - about[1], x - about[0]) * 180) / Math.PI;
    const step = event.shiftKey ? 1 : TURN_STEP;
    const hasAngle = this.selection.hasKey("angle");
    const own = hasAngle ? (drag.before.angle ?? 0) : 0;
    const wanted = own + angleOf(point) - angleOf(drag.start);
    const degrees = Math.round(wanted / step) * step - own;
    this.#try((object) => turned(object, degrees, hasAngle), ({ shapes }) => this.#preview(shapes));
  }

  #resize(point) {
    const { resizes } = this.drag;
    const corner = this.snapping.toGrid(point);
    const edit = (object) => gripsOf(object, (key) => object[key] ?? this.selection.value(key))[resizes].drag(corner);
    this.#try(edit, ({ shapes }) => this.#preview(shapes));
  }

  #preview(shapes) {
    for (const { handle, shape } of shapes) if (shape) this.#draw(handle, shape);
  }

  #draw(handle, shape) {
    this.elements.preview(handle, shape);
    this.labels.move(handle, shape);
  }

  /** What is tried begins from the object as the drag found it; what is kept, from the object as it is by then. */
  #try(edit, answered) {
    const { drag } = this;
    const object = edit(drag.before);
    if (!object || JSON.stringify(object) === JSON.stringify(drag.object)) return;
    Object.assign(drag, { object, edit });
    this.showGrips(object);
    drag.changes = this.editor.changesWith(drag.handle, object);
    this.trial.ask(drag.changes, answered);
  }

  #end(event) {
    const { drag } = this;
    if (!drag || event.pointerId !== drag.pointer) return;
    event.stopPropagation();
    this.#leave();
    if (!drag.hasMoved) return; // a click
    this.view.gestures.hasMoved = true; // and no click
    if (drag.edit) this.editor.changeObject(drag.handle, drag.edit);
  }

  #leave() {
    this.drag = null;
    this.trial.end();
    this.svg.classList.remove("dragging");
    this.marks.showLimits([]);
    this.showGrips();
  }

  /** Everything as it was before. */
  cancel() {
    const { drag } = this;
    if (!drag) return;
    for (const { handle } of drag.changes ?? []) this.#draw(handle, this.site.objects.get(handle).shape);
    this.#leave();
    this.view.gestures.hasMoved = true;
    if (!drag.hasMoved) return;
    this.site.endTrial();
  }
}
