import { anchor, moved, turned } from "./edits.js";
import { newObject } from "./new_object.js";
import { doorChanges, withoutDoors } from "./wall_doors.js";

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

  /**
   * Keeps what `make` answers for the site as it is then, as one step. `refused`, if given, hears why it was not kept,
   * in place of a message.
   */
  async change(make, refused = (refusal) => this.tellRefusal(refusal)) {
    this.trial.end();
    let made = [];
    try {
      return await this.site.change((site) => {
        made = make(site);
        return made;
      });
    } catch (refusal) {
      for (const { handle } of made) if (this.site.objects.has(handle)) this.elements.show(this.site.objects.get(handle));
      this.site.endTrial();
      refused(refusal);
      return null;
    }
  }

  /** Keeps what `edit` makes of the object as it is then, after whatever was changed before; null changes nothing. */
  changeObject(handle, edit, refused) {
    return this.change((site) => {
      const before = site.object(handle);
      const object = before && edit(before);
      return object ? this.changesWith(handle, object) : [];
    }, refused);
  }

  /** The object put in the place of the one it has, and what goes with it. */
  changesWith(handle, object) {
    const { site } = this;
    return [{ handle, object }, ...doorChanges(site.object(handle), object, (door) => site.object(door))];
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

  /** Of the process. What is not saved is asked about first. */
  async end() {
    const { site, words, messages } = this;
    await this.finishNudge();
    await site.last;
    const question = words.say("Changes are not saved, and would be lost. End all the same?");
    if (site.isChanged && !window.confirm(question)) return;
    if (await this.attempt(() => site.end().then(() => true))) {
      messages.warn(words.say("The program has ended; this page can be closed."));
    }
  }

  async add(name) {
    await this.finishNudge();
    const object = newObject(this.site, name, this.snapping.toGrid(this.view.centre));
    await this.#selectNew(await this.change(() => [{ object }]));
  }

  async copy() {
    await this.finishNudge();
    const { handle } = this.selection;
    if (!handle) return;
    await this.#selectNew(await this.change((site) => {
      const copy = withoutDoors(moved(site.object(handle), COPY_BESIDE, -COPY_BESIDE));
      delete copy.handle;
      return [{ object: copy }];
    }));
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
    if (await this.change(() => [{ handle, object: null }])) this.messages.tell(this.words.say("Removed: %1", entry.title));
  }

  async turn(degrees) {
    await this.finishNudge();
    const { handle } = this.selection;
    const hasAngle = this.selection.hasKey("angle");
    if (handle) await this.changeObject(handle, (object) => turned(object, degrees, hasAngle));
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
    this.trial.ask(this.changesWith(nudge.handle, object), ({ shapes }) => {
      for (const { handle, shape } of shapes) this.elements.preview(handle, shape);
    });
  }

  async finishNudge() {
    const { nudge } = this;
    if (!nudge) return;
    clearTimeout(nudge.timer);
    this.nudge = null;
    await this.changeObject(nudge.handle, (object) => moved(object, nudge.dx, nudge.dy));
  }
}
