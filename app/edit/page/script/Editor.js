import { anchor, moved, turned } from "./edits.js";
import { newObject } from "./new_object.js";

const COPY_BESIDE = 2000; // mm
const NUDGE_ENDS = 700; // ms after the last arrow key

/** What people do to the site, whatever they do it with; tells them where it fails. */
export class Editor {
  constructor({ site, view, elements, selection, trial, snapping, messages, words }) {
    Object.assign(this, { site, view, elements, selection, trial, snapping, messages, words });
    this.nudge = null;
  }

  /** Runs an act that the process may refuse. Answers what it answers, or null. */
  async attempt(act) {
    try {
      const answer = await act();
      if (this.isGone) {
        this.isGone = false;
        this.messages.clear();
      }
      return answer;
    } catch (refusal) {
      this.tellRefusal(refusal);
      return null;
    }
  }

  tellRefusal(refusal) {
    const { words, messages } = this;
    if (refusal.status === undefined) throw refusal; // a fault of the page
    if (refusal.isGone) {
      this.isGone = true;
      messages.warn(words.say("The process that holds the site does not answer any more. Changes that were not saved are lost with it when it has ended; the page still has a copy of them."), [
        { text: words.say("Try again"), act: () => this.attempt(() => this.site.load()) },
        { text: words.say("Download a copy"), act: () => this.download() },
      ]);
    } else {
      messages.warn(refusal.message || words.say("This could not be done (%1)", refusal.status));
    }
  }

  /** What the page still holds when the process has ended. */
  download() {
    const link = document.createElement("a");
    link.href = URL.createObjectURL(new Blob([this.site.asFile()], { type: "application/json" }));
    link.download = "site-copy.json";
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 60000);
  }

  /** Kept as one step. `refused`, if given, hears why it was not, in place of a message. */
  async change(changes, refused = (refusal) => this.tellRefusal(refusal)) {
    this.trial.end();
    try {
      return await this.site.change(changes);
    } catch (refusal) {
      for (const { handle } of changes) if (this.site.objects.has(handle)) this.elements.show(this.site.objects.get(handle));
      this.site.endTrial();
      refused(refusal);
      return null;
    }
  }

  changeSelected(object) {
    return this.change([{ handle: this.selection.handle, object }]);
  }

  async undo() {
    await this.finishNudge();
    if (!this.site.canUndo) return;
    if (await this.attempt(() => this.site.undo())) this.messages.say(this.words.say("Undone."));
  }

  async redo() {
    await this.finishNudge();
    if (!this.site.canRedo) return;
    if (await this.attempt(() => this.site.redo())) this.messages.say(this.words.say("Done again."));
  }

  async save() {
    await this.finishNudge();
    if (await this.attempt(() => this.site.save().then(() => true))) this.messages.tell(this.words.say("Saved."));
  }

  async add(name) {
    await this.finishNudge();
    const object = newObject(this.site, name, this.snapping.toGrid(this.view.centre));
    await this.#selectNew(await this.change([{ object }]));
  }

  async copy() {
    await this.finishNudge();
    const { object } = this.selection;
    if (!object) return;
    const { handle, ...rest } = moved(object, COPY_BESIDE, -COPY_BESIDE);
    await this.#selectNew(await this.change([{ object: rest }]));
  }

  #selectNew(answer) {
    if (!answer) return;
    const [{ handle }] = answer.objects;
    this.selection.select(handle);
    this.view.reveal([this.site.objects.get(handle).shape]);
  }

  async remove() {
    await this.finishNudge();
    const { handle, entry } = this.selection;
    if (!handle) return;
    if (await this.change([{ handle, object: null }])) this.messages.tell(this.words.say("Removed: %1", entry.title));
  }

  async turn(degrees) {
    await this.finishNudge();
    const { object } = this.selection;
    const result = object && turned(object, degrees, this.selection.hasKey("angle"));
    if (result) await this.changeSelected(result);
  }

  /** Arrow keys: judged at every step, kept as one change when they rest. */
  nudgeBy(stepsX, stepsY, step) {
    const { entry } = this.selection;
    if (!entry || !anchor(entry.object)) return;
    this.nudge ??= { handle: entry.handle, before: entry.object, dx: 0, dy: 0 };
    const { nudge } = this;
    nudge.dx += stepsX * step;
    nudge.dy += stepsY * step;
    clearTimeout(nudge.timer);
    nudge.timer = setTimeout(() => this.finishNudge(), NUDGE_ENDS);
    const object = moved(nudge.before, nudge.dx, nudge.dy);
    this.trial.ask([{ handle: nudge.handle, object }], ({ shapes }) => {
      for (const { handle, shape } of shapes) this.elements.preview(handle, shape);
    });
  }

  async finishNudge() {
    const { nudge } = this;
    if (!nudge) return;
    clearTimeout(nudge.timer);
    this.nudge = null;
    await this.change([{ handle: nudge.handle, object: moved(nudge.before, nudge.dx, nudge.dy) }]);
  }
}
