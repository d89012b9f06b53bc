/** What is doubtful about the site and what no rule has judged; entries lead to their elements. */
export class SideLists {
  constructor(root, { site, selection, view }) {
    Object.assign(this, { site, selection, view });
    this.doubts = root.querySelector(".doubts");
    this.notJudged = root.querySelector(".not-judged");
    for (const details of [this.doubts, this.notJudged]) details.addEventListener("toggle", () => this.#update());
    site.addEventListener("verdict", () => this.#update());
  }

  #update() {
    this.#show(this.doubts, this.site.verdict.doubts);
    this.#show(this.notJudged, this.site.verdict.notJudged);
  }

  /** Entries are made while they can be seen: there may be thousands. */
  #show(details, entries) {
    details.hidden = entries.length === 0;
    const count = details.querySelector(".count");
    if (count.textContent !== String(entries.length)) count.textContent = entries.length;
    if (!details.open || details.shown === entries) return;
    details.shown = entries;
    details.querySelector("ul").replaceChildren(...entries.map((entry) => this.#item(entry)));
  }

  #item({ handle, text, rules }) {
    const item = document.createElement("li");
    const node = document.createElement(handle ? "button" : "span");
    node.textContent = text;
    if (rules) node.title = rules;
    if (handle) {
      node.type = "button";
      node.className = "sentence";
      node.addEventListener("click", () => this.#goTo(handle));
    }
    item.append(node);
    return item;
  }

  #goTo(handle) {
    this.selection.select(handle);
    const entry = this.site.objects.get(handle);
    if (entry) this.view.fit([entry.shape]);
  }
}
