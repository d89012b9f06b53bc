import { linesOf } from "./MarkLayer.js";
import { Suggestions } from "./Suggestions.js";

function made(parent, name, classes, text = "") {
  const node = document.createElement(name);
  node.className = classes;
  node.textContent = text;
  parent.append(node);
  return node;
}

/** The findings by rule, kept up to date by changing only what changed. Dispatches "choose" with a finding. */
export class FindingList extends EventTarget {
  constructor(root, page) {
    super();
    Object.assign(this, page); // site, selection, words, colours, editor, marks, view
    this.root = root;
    this.form = root.querySelector(".filters");
    this.groups = root.querySelector(".groups");
    this.rules = new Map(); // name to its group
    this.items = new Map(); // finding to its entry
    this.current = null;
    this.suggestions = new Suggestions(page);
    for (const type of ["input", "change"]) this.form.addEventListener(type, () => this.filter());
    this.form.addEventListener("submit", (event) => event.preventDefault());
    this.selection.addEventListener("select", () => this.filter());
    this.site.addEventListener("verdict", () => this.update());
  }

  update() {
    const { findings } = this.site.verdict;
    const wanted = new Set(findings.map((finding) => finding.id));
    for (const [id, item] of this.items) if (!wanted.has(id)) this.#remove(id, item);
    let before = null; // entries stand in the order of the verdict
    for (const finding of findings) {
      const item = this.items.get(finding.id) ?? this.#add(finding);
      if (item.text !== finding.text) {
        item.text = finding.text;
        item.sentence.textContent = finding.text;
      }
      item.finding = finding;
      const { list } = this.rules.get(finding.rule);
      const place = before?.node.parentNode === list ? before.node.nextSibling : list.firstChild;
      if (place !== item.node) list.insertBefore(item.node, place);
      before = item;
    }
    this.#orderGroups();
    this.filter();
  }

  #add(finding) {
    if (!this.rules.has(finding.rule)) this.#addGroup(finding.rule);
    const node = made(this.rules.get(finding.rule).list, "li", "finding");
    node.dataset.id = finding.id;
    const sentence = made(node, "button", "sentence");
    sentence.type = "button";
    const item = { node, sentence, text: null, finding };
    sentence.addEventListener("click", () => this.choose(item.finding));
    this.suggestions.offer(node, () => item.finding);
    this.items.set(finding.id, item);
    return item;
  }

  #remove(id, item) {
    const hadFocus = item.node.contains(document.activeElement);
    if (this.current === id) this.current = null;
    this.suggestions.forget(item.node);
    item.node.remove();
    this.items.delete(id);
    if (hadFocus) this.root.querySelector("h2").focus();
  }

  #addGroup(rule) {
    const node = made(this.groups, "section", `rule ${this.colours(rule)}`);
    const head = made(node, "h3", "");
    made(head, "span", "badge");
    made(head, "span", "name", this.site.verdict.rules.find((entry) => entry.rule === rule)?.text ?? rule);
    const count = made(head, "span", "count");
    this.rules.set(rule, { node, count, list: made(node, "ol", "findings") });
    const select = this.form.elements.rule;
    if (![...select.options].some((option) => option.value === rule)) select.append(new Option(head.textContent, rule));
  }

  /** In the order of the rule file; a rule without findings keeps its filter. */
  #orderGroups() {
    const order = this.site.verdict.rules.map((entry) => entry.rule);
    const groups = [...this.rules].sort(([a], [b]) => order.indexOf(a) - order.indexOf(b)).map(([, group]) => group);
    let place = this.groups.firstChild;
    for (const group of groups) {
      if (group.node === place) place = place.nextSibling;
      else this.groups.insertBefore(group.node, place);
      group.count.textContent = group.list.childElementCount;
    }
  }

  filter() {
    const { rule, search, own } = this.form.elements;
    const sought = search.value.trim().toLowerCase();
    const { handle } = this.selection;
    let shown = 0;
    for (const { node, finding } of this.items.values()) {
      const isShown = (rule.value === "" || finding.rule === rule.value)
        && (!own.checked || !handle || finding.handles.includes(handle))
        && (sought === "" || finding.text.toLowerCase().includes(sought));
      if (node.hidden === isShown) node.hidden = !isShown;
      node.classList.toggle("own", handle !== null && finding.handles.includes(handle));
      shown += isShown ? 1 : 0;
    }
    for (const { node, list } of this.rules.values()) node.hidden = list.querySelector(".finding:not([hidden])") === null;
    this.form.querySelector("output").textContent = this.words.say("Showing %1 of %2", shown, this.items.size);
  }

  /** Goes to a finding: its element is selected and the plan shows what it is about. */
  choose(finding) {
    this.items.get(this.current)?.node.classList.remove("current");
    this.current = finding.id;
    this.items.get(finding.id).node.classList.add("current");
    this.selection.select(finding.handles[0] ?? null);
    const shapes = finding.handles.map((handle) => this.site.objects.get(handle)?.shape).filter(Boolean);
    const lines = linesOf(finding).map((points) => ({ paths: [{ points, closed: false }] }));
    this.view.fit(shapes.length > 2 && lines.length > 0 ? lines : [...shapes, ...lines]);
    this.dispatchEvent(new Event("choose"));
  }

  /** The next finding of the list as it stands, or with -1 the one before. */
  step(by) {
    const shown = [...this.groups.querySelectorAll(".rule:not([hidden]) .finding:not([hidden])")];
    if (shown.length === 0) return;
    const at = shown.findIndex((node) => node.dataset.id === this.current);
    const next = shown[at < 0 ? (by > 0 ? 0 : shown.length - 1) : (at + by + shown.length) % shown.length];
    next.scrollIntoView({ block: "nearest" });
    this.choose(this.items.get(next.dataset.id).finding);
    this.messages.say(next.querySelector(".sentence").textContent);
  }
}
