/** The list of a site's violations in another order than that in which it was written. */
class FindingOrder {
  constructor(groups, form) {
    this.groups = groups;
    this.noClause = form.dataset.noClause;
    this.rules = [...form.elements.rule.options].slice(1).map((option) => option.dataset);
    this.written = [...groups.children];
    this.home = [...groups.querySelectorAll(".finding")].map((finding) => [finding, finding.parentElement]);
    this.isWrittenByRule = groups.querySelector("h2") !== null;
  }

  get findings() {
    return this.home.map(([finding]) => finding);
  }

  rulesOf(finding) {
    return finding.dataset.rules.split(" ").map((rule) => this.rules[Number(rule)]);
  }

  apply(order) {
    const isAsWritten = order === (this.isWrittenByRule ? "rule" : "missing");
    this.groups.classList.toggle("names-rules", order !== "rule");
    if (order !== "rule") this.nameRules();
    if (isAsWritten) {
      for (const [finding, list] of this.home) list.append(finding);
      this.groups.replaceChildren(...this.written);
    } else if (order === "rule") {
      this.groups.replaceChildren(...this.grouped((finding) => this.rulesOf(finding).map(({ heading }) => heading)));
    } else if (order === "clause") {
      const groups = this.grouped((finding) => [this.clauseOf(finding)]);
      this.groups.replaceChildren(...groups.sort((a, b) => this.compareClauses(a.dataset.title, b.dataset.title)));
    } else {
      const missing = (finding) => Number(finding.dataset.missing ?? -1);
      const sorted = this.findings.sort((a, b) => missing(b) - missing(a));
      this.groups.replaceChildren(FindingOrder.group([], sorted));
    }
  }

  clauseOf(finding) {
    const clauses = new Set(this.rulesOf(finding).map(({ clause }) => clause || this.noClause));
    return [...clauses].join("; ");
  }

  compareClauses(a, b) {
    return Number(a === this.noClause) - Number(b === this.noClause) || a.localeCompare(b, "en", { numeric: true });
  }

  /** One group for each list of titles, in the order of their first findings. */
  grouped(titlesOf) {
    const groups = new Map();
    for (const finding of this.findings) {
      const titles = titlesOf(finding);
      const key = titles.join("\n");
      if (!groups.has(key)) groups.set(key, { titles, findings: [] });
      groups.get(key).findings.push(finding);
    }
    return [...groups.values()].map(({ titles, findings }) => FindingOrder.group(titles, findings));
  }

  static group(titles, findings) {
    const section = document.createElement("section");
    section.className = "rule";
    section.dataset.title = titles.join("\n");
    const heads = document.createElement("div");
    heads.className = "heads";
    for (const title of titles) {
      const head = document.createElement("h2");
      head.textContent = title;
      heads.append(head);
    }
    section.append(heads);
    const list = document.createElement("ol");
    list.className = "findings";
    list.append(...findings);
    section.append(list);
    return section;
  }

  /** Under headings other than their rules, findings name these themselves. */
  nameRules() {
    for (const finding of this.findings) {
      if (finding.querySelector(".of-rule")) continue;
      const names = this.rulesOf(finding).map(({ heading }) => {
        const name = document.createElement("p");
        name.className = "of-rule";
        name.textContent = heading;
        return name;
      });
      finding.querySelector(".sentence").after(...names);
    }
  }
}
