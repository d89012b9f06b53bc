/** The list of a site's violations in another order than that in which it was written. */
class FindingOrder {
  constructor(groups, form) {
    this.groups = groups;
    this.rules = [...form.elements.rule.options].slice(1).map((option) => option.dataset);
    this.written = [...groups.children];
    this.home = [...groups.querySelectorAll(".finding")].map((finding) => [finding, finding.parentElement]);
    this.writtenOrder = [...form.elements.order.options].find((option) => option.defaultSelected).value;
  }

  get findings() {
    return this.home.map(([finding]) => finding);
  }

  rulesOf(finding) {
    return finding.dataset.rules.split(" ").map((rule) => this.rules[Number(rule)]);
  }

  apply(order) {
    this.groups.classList.toggle("names-rules", order !== "rule");
    if (order !== "rule") this.nameRules();
    if (order === this.writtenOrder) {
      for (const [finding, list] of this.home) list.append(finding);
      this.groups.replaceChildren(...this.written);
    } else if (order === "rule") {
      const sorted = this.findings.sort((a, b) => FindingOrder.ruleOf(a) - FindingOrder.ruleOf(b));
      this.groups.replaceChildren(...FindingOrder.grouped(sorted, (finding) => this.rulesOf(finding).map(({ heading }) => heading)));
    } else if (order === "clause") {
      const sorted = this.findings.sort((a, b) => this.clausePlace(a) - this.clausePlace(b));
      this.groups.replaceChildren(...FindingOrder.grouped(sorted, (finding) => [this.clausesOf(finding)]));
    } else {
      const missing = (finding) => Number(finding.dataset.missing ?? -1);
      const sorted = this.findings.sort((a, b) => missing(b) - missing(a));
      this.groups.replaceChildren(FindingOrder.group([], sorted));
    }
  }

  static ruleOf(finding) {
    return Number(finding.dataset.rules.split(" ")[0]);
  }

  clausesOf(finding) {
    const rules = this.rulesOf(finding).sort((a, b) => a.clausePlace - b.clausePlace);
    return [...new Set(rules.map(({ clause }) => clause))].join("; ");
  }

  clausePlace(finding) {
    return Math.min(...this.rulesOf(finding).map(({ clausePlace }) => Number(clausePlace)));
  }

  /** One group for each list of titles, in the order of their first findings. */
  static grouped(findings, titlesOf) {
    const groups = new Map();
    for (const finding of findings) {
      const titles = titlesOf(finding);
      const key = titles.join("\n");
      if (!groups.has(key)) groups.set(key, { titles, findings: [] });
      groups.get(key).findings.push(finding);
    }
    return [...groups.values()].map((group) => FindingOrder.group(group.titles, group.findings));
  }

  static group(titles, findings) {
    const section = document.createElement("section");
    section.className = "rule";
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
