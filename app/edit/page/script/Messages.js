/** What the page tells: for the eye in a strip at the bottom, for screen readers in live regions. */
export class Messages {
  constructor(root, live) {
    this.root = root;
    this.text = root.querySelector(".text");
    this.actions = root.querySelector(".actions");
    this.live = live;
    root.querySelector(".dismiss").addEventListener("click", () => this.clear());
  }

  /** Goes away on its own. */
  tell(text) {
    this.#show(text, "note");
    this.timer = setTimeout(() => this.clear(), 6000);
  }

  /** Stays until it is dismissed, or until something else is told. `actions`: [{text, act}]. */
  warn(text, actions = []) {
    this.#show(text, "warning");
    for (const { text: name, act } of actions) {
      const button = document.createElement("button");
      button.type = "button";
      button.textContent = name;
      button.addEventListener("click", act);
      this.actions.append(button);
    }
  }

  clear() {
    clearTimeout(this.timer);
    this.root.hidden = true;
  }

  /** To screen readers alone. */
  say(text) {
    this.live.textContent = text;
  }

  #show(text, kind) {
    clearTimeout(this.timer);
    this.actions.replaceChildren();
    this.text.textContent = text;
    this.root.className = kind;
    this.root.hidden = false;
  }
}
