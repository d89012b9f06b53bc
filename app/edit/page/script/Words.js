const NAMES = { floors: "number of floors" };

/** The sentences of the page in the language of the process, by their English. */
export class Words {
  constructor({ language, sentences }) {
    this.language = language;
    this.sentences = sentences;
  }

  /** All places are filled at once, since a name may hold a "%1" of its own. */
  say(sentence, ...values) {
    return (this.sentences[sentence] ?? sentence).replace(/%(\d)/g, (place, number) => values[number - 1] ?? place);
  }

  /** What people call a class, a key or a code of site files: "frontJibLength" is the front jib length. */
  name(identifier) {
    return this.say(NAMES[identifier] ?? String(identifier).replace(/Metres$/, "").replace(/[A-Z]/g, (letter) => ` ${letter.toLowerCase()}`));
  }

  /** Fills what the markup asks for: texts, names for screen readers, and hints. */
  fill(root) {
    for (const node of root.querySelectorAll("[data-text]")) node.textContent = this.say(node.dataset.text);
    for (const node of root.querySelectorAll("[data-label]")) node.setAttribute("aria-label", this.say(node.dataset.label));
    for (const node of root.querySelectorAll("[data-hint]")) node.title = this.say(node.dataset.hint);
  }
}
