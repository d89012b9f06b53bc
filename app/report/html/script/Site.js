/** The list and the plan of one site, linked both ways. */
class Site {
  constructor(section) {
    this.section = section;
    this.findings = [...section.querySelectorAll(".finding")];
    this.byNumber = new Map(this.findings.map((finding) => [finding.dataset.number, finding]));
    this.form = section.querySelector(".filters");
    this.current = null;
    const drawing = section.querySelector(".drawing");
    if (drawing) this.listenToPlan(drawing);
    this.marks = this.marksByNumber();
    this.listenToList();
    if (this.form) this.listenToFilters();
  }

  /** The lines, values and pins of each finding. */
  marksByNumber() {
    const marks = new Map(this.findings.map((finding) => [finding.dataset.number, []]));
    for (const mark of this.plan?.svg.querySelectorAll("[data-finding]") ?? []) marks.get(mark.dataset.finding).push(mark);
    for (const cluster of this.clusters()) {
      for (const number of cluster.dataset.findings.split(" ")) marks.get(number).push(cluster);
    }
    return marks;
  }

  clusters() {
    return this.plan ? [...this.plan.svg.querySelectorAll(".cluster")] : [];
  }

  elementsOf(finding) {
    return finding.dataset.elements.split(" ");
  }

  drawnElements(handles) {
    const drawn = handles.map((handle) => document.getElementById(`${this.section.id}-e${handle}`));
    return drawn.filter((element) => element !== null);
  }

  choose(finding, { movesPlan = true, scrollsList = false } = {}) {
    this.clear();
    this.current = finding;
    finding.classList.add("current");
    finding.querySelector(".sentence").setAttribute("aria-current", "true");
    history.replaceState(null, "", `#${finding.id}`);
    if (scrollsList) finding.scrollIntoView({ block: "nearest" });
    if (!this.plan) return;
    const marks = this.marks.get(finding.dataset.number);
    for (const thing of [...this.drawnElements(this.elementsOf(finding)), ...marks]) thing.classList.add("lit");
    this.plan.svg.classList.toggle("chosen", marks.some((mark) => mark.matches(".measure")));
    if (movesPlan) {
      const focus = finding.dataset.focus?.split(" ") ?? this.elementsOf(finding);
      this.plan.fit([...this.drawnElements(focus), ...marks.filter((mark) => mark.matches(".measure"))]);
    }
  }

  clear() {
    for (const lit of this.section.querySelectorAll(".lit")) lit.classList.remove("lit");
    this.plan?.svg.classList.remove("chosen");
    this.current?.classList.remove("current");
    this.current?.querySelector(".sentence").removeAttribute("aria-current");
    this.current = null;
  }

  shown() {
    return [...this.section.querySelectorAll(".finding:not([hidden])")];
  }

  /** The next violation of the list as it stands, or with -1 the one before. */
  step(by) {
    const shown = this.shown();
    if (shown.length === 0) return;
    const at = shown.indexOf(this.current);
    const next = at < 0 ? (by > 0 ? 0 : shown.length - 1) : (at + by + shown.length) % shown.length;
    this.choose(shown[next], { scrollsList: true });
  }

  listenToList() {
    for (const finding of this.findings) {
      finding.querySelector(".sentence").addEventListener("click", (event) => {
        event.preventDefault();
        this.choose(finding);
      });
    }
  }

  /** Clicking an element again goes on to its next violation. */
  chooseElement(handle, options = { movesPlan: false, scrollsList: true }) {
    const own = this.shown().filter((finding) => finding.dataset.handle === handle);
    const related = this.shown().filter((finding) => this.elementsOf(finding).includes(handle));
    const candidates = own.length > 0 ? own : related;
    if (candidates.length === 0) return;
    this.choose(candidates[(candidates.indexOf(this.current) + 1) % candidates.length], options);
  }

  listenToPlan(drawing) {
    const plan = new Plan(drawing);
    const pins = new Pins(drawing, this);
    this.plan = plan;
    plan.svg.addEventListener("click", (event) => {
      if (event.target.closest("a")) event.preventDefault();
      if (plan.gestures.hasMoved || pins.click(event)) return;
      const element = event.target.closest(".element");
      if (element) this.chooseElement(element.id.slice(this.section.id.length + 2));
    });
    plan.svg.setAttribute("tabindex", "0");
    plan.svg.addEventListener("keydown", (event) => {
      if (!event.ctrlKey && !event.metaKey && !event.altKey && plan.key(event.key)) event.preventDefault();
    });
    const tools = { "zoom-in": () => plan.zoom(1.4), "zoom-out": () => plan.zoom(1 / 1.4), "zoom-all": () => plan.showAll() };
    for (const [name, act] of Object.entries(tools)) {
      drawing.querySelector(`.${name}`).addEventListener("click", act);
    }
  }

  listenToFilters() {
    const order = new FindingOrder(this.section.querySelector(".groups"), this.form);
    const update = () => {
      order.apply(this.form.elements.order.value);
      this.filter();
    };
    this.form.addEventListener("change", update);
    this.form.addEventListener("input", (event) => {
      if (event.target.name === "search") this.filter();
    });
    this.form.addEventListener("reset", () => setTimeout(() => {
      update();
      this.clear();
      this.plan?.showAll();
      history.replaceState(null, "", location.href.split("#")[0]);
    }));
    this.form.addEventListener("submit", (event) => event.preventDefault());
    update();
  }

  filter() {
    const { rule, element, search, open } = this.form.elements;
    const sought = search.value.trim().toLowerCase().replace(/^#/, "");
    const isShown = (finding) => (rule.value === "" || finding.dataset.rules.split(" ").includes(rule.value))
      && (element.value === "" || this.elementsOf(finding).includes(element.value))
      && !(open?.checked && finding.classList.contains("accepted"))
      && (sought === "" || this.holds(finding, sought));
    for (const finding of this.findings) finding.hidden = !isShown(finding);
    for (const group of this.section.querySelectorAll(".rule")) {
      group.hidden = group.querySelector(".finding:not([hidden])") === null;
    }
    const sum = (findings, name) => findings.reduce((all, finding) => all + Number(finding.dataset[name]), 0);
    const shown = this.shown();
    const shownRecords = sum(shown, "records") - (open?.checked ? sum(shown, "accepted") : 0);
    this.form.querySelector("output").textContent = this.form.dataset.shown
      .replace("%1", shownRecords).replace("%2", sum(this.findings, "records"));
    this.mute(shown);
  }

  /** A number is sought among the handles and the numbers of the list, a text in what the list says. */
  holds(finding, sought) {
    if (/^\d+$/.test(sought)) return this.elementsOf(finding).includes(sought);
    return finding.textContent.toLowerCase().includes(sought);
  }

  /** Steps back what the filters leave out. */
  mute(shown) {
    if (!this.plan) return;
    const numbers = new Set(shown.map((finding) => finding.dataset.number));
    const handles = new Set(shown.map((finding) => `${this.section.id}-e${finding.dataset.handle}`));
    for (const mark of this.plan.svg.querySelectorAll("[data-finding]")) {
      mark.classList.toggle("muted", !numbers.has(mark.dataset.finding));
    }
    for (const cluster of this.clusters()) {
      cluster.classList.toggle("muted", !cluster.dataset.findings.split(" ").some((number) => numbers.has(number)));
    }
    for (const element of this.plan.svg.querySelectorAll(".element.offends")) {
      element.classList.toggle("muted", !handles.has(element.id));
    }
  }
}
