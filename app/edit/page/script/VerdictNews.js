const REST = 500; // ms: while something is dragged, only what has come to rest is told

/** The counts at the top, and what came and went in a live region. */
export class VerdictNews {
  constructor(output, { site, messages, words }) {
    Object.assign(this, { output, site, messages, words });
    this.told = null; // findings that have been told of, by id
    site.addEventListener("verdict", () => this.#update());
  }

  #update() {
    const count = this.site.verdict.findings.length;
    this.output.textContent = this.#counted(count);
    this.output.className = count > 0 ? "verdict offending" : "verdict clean";
    clearTimeout(this.timer);
    if (this.told === null) this.#keep();
    else this.timer = setTimeout(() => this.#tell(), REST);
  }

  #counted(count) {
    if (count === 0) return this.words.say("no violations");
    return count === 1 ? this.words.say("1 violation") : this.words.say("%1 violations", count);
  }

  #tell() {
    const before = this.told;
    const now = this.#keep();
    const gone = [...before.keys()].filter((id) => !now.has(id)).length;
    const come = [...now.keys()].filter((id) => !before.has(id));
    if (gone === 0 && come.length === 0) return;
    const parts = [];
    if (gone > 0) parts.push(this.words.say("Gone: %1.", gone));
    if (come.length > 0) parts.push(this.words.say("New: %1.", come.length), now.get(come[0]));
    this.messages.say([...parts, this.#counted(now.size)].join(" "));
  }

  #keep() {
    this.told = new Map(this.site.verdict.findings.map((finding) => [finding.id, finding.text]));
    return this.told;
  }
}
