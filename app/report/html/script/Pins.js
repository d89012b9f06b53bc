/** The numbers on a plan: each chooses its finding, and a cluster opens into its numbers. */
class Pins {
  constructor(drawing, site) {
    this.drawing = drawing;
    this.site = site;
    this.panel = document.createElement("div");
    this.panel.className = "opened";
    this.panel.hidden = true;
    drawing.append(this.panel);
    this.panel.addEventListener("click", (event) => {
      const link = event.target.closest("a");
      if (!link) return;
      event.preventDefault();
      this.site.choose(this.site.byNumber.get(link.dataset.finding), { movesPlan: false, scrollsList: true });
      this.close();
    });
    drawing.querySelector("svg").addEventListener("planmove", () => this.close());
    drawing.addEventListener("keydown", (event) => {
      if (event.key === "Escape") this.close();
    });
  }

  /** True when the click was meant for a pin. */
  click(event) {
    const pin = event.target.closest(".pin");
    if (!pin) {
      this.close();
      return false;
    }
    if (pin.dataset.finding) {
      this.close();
      this.site.choose(this.site.byNumber.get(pin.dataset.finding), { movesPlan: false, scrollsList: true });
    } else {
      this.open(pin);
    }
    return true;
  }

  open(cluster) {
    const links = cluster.dataset.findings.split(" ").map((number) => {
      const finding = this.site.byNumber.get(number);
      const link = document.createElement("a");
      link.className = finding.querySelector(".number").className;
      link.classList.remove("number");
      link.classList.toggle("accepted", finding.classList.contains("accepted"));
      link.classList.toggle("muted", finding.hidden);
      link.href = `#${finding.id}`;
      link.dataset.finding = number;
      link.textContent = finding.querySelector(".number").textContent;
      link.title = finding.querySelector(".sentence").textContent;
      return link;
    });
    this.panel.replaceChildren(...links);
    this.panel.hidden = false;
    this.opener = cluster;
    const around = this.drawing.getBoundingClientRect();
    const at = cluster.getBoundingClientRect();
    const left = (at.left + at.right) / 2 - around.left - this.panel.offsetWidth / 2;
    const top = at.bottom - around.top + 4;
    this.panel.style.left = `${Math.max(4, Math.min(left, around.width - this.panel.offsetWidth - 4))}px`;
    this.panel.style.top = `${Math.max(4, Math.min(top, around.height - this.panel.offsetHeight - 4))}px`;
    links[0].focus({ preventScroll: true });
  }

  close() {
    if (this.panel.hidden) return;
    const hadFocus = this.panel.contains(document.activeElement);
    this.panel.hidden = true;
    if (hadFocus) this.opener.focus({ preventScroll: true });
  }
}
