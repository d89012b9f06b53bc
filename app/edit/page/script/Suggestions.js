/** The changes of all steps as one: each step holds what those before it did to an object. */
function together(steps) {
  const changed = new Map();
  const added = [];
  for (const change of steps.flatMap((step) => step.changes)) {
    if (change.handle) changed.set(change.handle, change);
    else added.push(change);
  }
  return [...changed.values(), ...added];
}

/** What would remove a finding: asked for, shown as a ghost, and taken. */
export class Suggestions {
  constructor({ site, editor, marks, words, view }) {
    Object.assign(this, { site, editor, marks, words, view });
    this.open = null; // the entry of the list whose suggestions are shown
    site.addEventListener("objects", () => this.close());
  }

  /** Adds the button to the entry of a finding. */
  offer(node, finding) {
    const button = this.#button(node, "suggest", this.words.say("Suggest"), () => this.#ask(node, finding()));
    button.title = this.words.say("Look for a change that would remove this");
  }

  forget(node) {
    if (this.open === node) this.close();
  }

  close() {
    this.open?.querySelector(".steps")?.remove();
    this.open = null;
    this.marks.showGhosts([]);
  }

  async #ask(node, finding) {
    const wasOpen = this.open === node;
    this.close();
    if (wasOpen) return;
    const button = node.querySelector(".suggest");
    button.disabled = true;
    await this.editor.finishNudge();
    const answer = await this.editor.attempt(() => this.site.suggestions(finding.id));
    button.disabled = false;
    if (!answer || !node.isConnected) return;
    this.open = node;
    const panel = document.createElement("div");
    panel.className = "steps";
    panel.setAttribute("role", "group");
    panel.setAttribute("aria-label", button.textContent);
    node.append(panel);
    const sentences = answer.steps.map((step) => step.sentence);
    if (sentences.length === 0) sentences.push(answer.obstacle || this.words.say("Nothing was found that would help."));
    for (const sentence of sentences) panel.append(Object.assign(document.createElement("p"), { textContent: sentence }));
    this.editor.messages.say(sentences.join(" "));
    if (answer.steps.length > 0) {
      const changes = together(answer.steps);
      this.#button(panel, "take", this.words.say("Take it"), () => this.#take(changes, sentences)).focus({ preventScroll: true });
      await this.#showGhosts(node, changes);
    }
    panel.scrollIntoView({ block: "nearest" });
  }

  async #showGhosts(node, changes) {
    const answer = await this.editor.attempt(() => this.site.tried(changes));
    if (!answer || this.open !== node) return;
    const shapes = answer.shapes.map((entry) => entry.shape).filter(Boolean);
    this.marks.showGhosts(shapes);
    const before = changes.map(({ handle }) => this.site.objects.get(handle)?.shape).filter(Boolean);
    this.view.reveal([...shapes, ...before]);
  }

  async #take(changes, sentences) {
    this.close();
    if (await this.editor.change(() => changes)) this.editor.messages.tell(this.words.say("Done: %1", sentences.join(" ")));
  }

  #button(parent, name, text, act) {
    const button = document.createElement("button");
    button.type = "button";
    button.className = name;
    button.textContent = text;
    button.addEventListener("click", act);
    parent.append(button);
    return button;
  }
}
