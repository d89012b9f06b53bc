/** What is doubtful about the site and what no rule has judged; entries lead to their elements. */
export class SideLists {
  constructor(root, { site, selection, view }) {
    Object.assign(this, { root, site, selection, view });
    site.addEventListener("verdict", () => this.#update());
  }

  #update() {
    this.#fill("doubts", this.site.verdict.doubts);
    this.#fill("not-judged", this.site.verdict.notJudged);
  }

  #fill(name, entries) {
    const details = this.root.querySelector(`.${name}`);
    const text = JSON.stringify(entries);
    if (details.lastText === text) return;
    details.lastText = text;
    details.hidden = entries.length === 0;
    details.querySelector(".count").textContent = entries.length;
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
