import { withValue } from "./edits.js";
import { fieldFor } from "./form_fields.js";

const HEAD = ["class", "handle"];
const RARE = ["identifier", "note", "extents", "refusesToOpen", "secondView", "shapeKind", "footprint", "through",
  "outline", "straight", "parametersKnown", "postWidth", "postDepth", "mastWidth", "jibWidth", "jibDepth", "elevation",
  "circle", "polyline", "drawType", "floorDepth"];

function unitOf({ key, kind }) {
  if (/angle|inclination$/i.test(key)) return "°";
  if (kind === "integer" && key === "floors") return "";
  if (!["number", "integer", "point"].includes(kind)) return "";
  return key.endsWith("Metres") ? "m" : "mm";
}

/** The parameters of the selected element, in a form made from the table of its class. */
export class ElementForm {
  constructor(root, { selection, site, editor, words }) {
    Object.assign(this, { root, selection, site, editor, words });
    this.fields = root.querySelector(".fields");
    this.rare = root.querySelector(".rare .fields");
    this.readAs = new WeakMap(); // the texts of inputs as they were last filled or read
    this.title = root.querySelector("h2");
    this.chooser = root.querySelector("select[name=element]");
    this.chooser.addEventListener("change", () => selection.select(this.chooser.value || null));
    root.addEventListener("submit", (event) => event.preventDefault());
    selection.addEventListener("select", () => this.show());
    site.addEventListener("objects", (event) => {
      this.#listElements();
      if (event.detail === null || event.detail.includes(selection.handle)) this.show();
    });
  }

  /** All elements of the site by their names, those without a shape as well. */
  #listElements() {
    const options = [new Option(this.words.say("no element"), "")];
    for (const entry of this.site.objects.values()) options.push(new Option(entry.title, entry.handle));
    this.chooser.replaceChildren(...options);
    this.chooser.value = this.selection.handle ?? "";
  }

  show() {
    const { object, entry } = this.selection;
    const focused = this.root.contains(document.activeElement) ? document.activeElement.name : null;
    this.root.classList.toggle("empty", !object);
    this.chooser.value = this.selection.handle ?? "";
    for (const button of this.root.querySelectorAll(".acts button")) button.disabled = !object;
    const written = this.#rowBeingWritten();
    this.shown = this.selection.handle;
    this.fields.replaceChildren();
    this.rare.replaceChildren();
    this.title.textContent = entry?.title ?? this.words.say("Nothing selected");
    if (!object) return;
    for (const shape of this.selection.keys) {
      if (HEAD.includes(shape.key)) continue;
      const isRare = RARE.includes(shape.key) && (object[shape.key] === undefined || shape.key === "identifier");
      (isRare ? this.rare : this.fields).append(
        written?.dataset.key === shape.key ? written : this.#row(shape, object));
    }
    if (focused) this.root.querySelector(`[name="${focused}"]`)?.focus();
  }

  /** What somebody is writing stays when an answer to something else arrives. */
  #rowBeingWritten() {
    if (this.shown !== this.selection.handle || !this.root.contains(document.activeElement)) return null;
    const row = document.activeElement.closest(".row");
    const isWritten = (input) => input.value !== this.readAs.get(input);
    return row && [...row.querySelectorAll("input:not([type=checkbox]), textarea")].some(isWritten) ? row : null;
  }

  #rememberAsRead(row) {
    for (const input of row.querySelectorAll("input, textarea")) this.readAs.set(input, input.value);
  }

  #row(shape, object) {
    const row = document.createElement("div");
    row.dataset.key = shape.key;
    row.className = `row of-${shape.kind}`;
    const field = fieldFor(shape, object[shape.key], (code) => this.words.name(code));
    const input = field.input.matches("input, select, textarea") ? field.input : field.input.querySelector("input");
    input.id = `field-${shape.key}`;
    input.name = shape.key;
    const label = document.createElement("label");
    label.htmlFor = input.id;
    label.textContent = this.words.name(shape.key);
    if (this.words.language === "en") label.title = shape.doc; // these are for readers of the file, and not translated
    const unit = document.createElement("span");
    unit.className = "unit";
    unit.textContent = unitOf(shape);
    const problem = document.createElement("p");
    problem.className = "problem";
    problem.id = `problem-${shape.key}`;
    problem.hidden = true;
    input.setAttribute("aria-describedby", problem.id);
    row.append(label, field.input, unit, problem);
    this.#rememberAsRead(row);
    row.addEventListener("change", () => {
      this.#rememberAsRead(row);
      this.#change(shape, field, input, problem);
    });
    return row;
  }

  async #change(shape, field, input, problem) {
    const refuse = (text) => {
      problem.textContent = text;
      problem.hidden = false;
      input.setAttribute("aria-invalid", "true");
    };
    problem.hidden = true;
    input.removeAttribute("aria-invalid");
    let value;
    try {
      value = field.read();
    } catch {
      refuse(this.words.say("This is no value that can be read."));
      return;
    }
    const { handle } = this.selection;
    this.editor.finishNudge();
    await this.editor.changeObject(handle, (object) => withValue(object, shape.key, value), (refusal) => {
      if (refusal.status === 422) refuse(refusal.message);
      else this.editor.tellRefusal(refusal);
    });
  }
}
