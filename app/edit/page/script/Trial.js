/** Asks what would be, while something is dragged: one question at a time, and the newest one next. */
export class Trial {
  constructor(site, onRefusal) {
    this.site = site;
    this.onRefusal = onRefusal;
    this.waiting = null;
    this.isBusy = false;
    this.round = 0;
  }

  /** `shown` gets the answer, unless the trial has ended by then. */
  ask(changes, shown) {
    this.waiting = { changes, shown, round: this.round };
    if (!this.isBusy) this.#run();
  }

  /** Answers that are still to come are no longer of interest. */
  end() {
    this.round += 1;
    this.waiting = null;
  }

  async #run() {
    this.isBusy = true;
    while (this.waiting) {
      const { changes, shown, round } = this.waiting;
      this.waiting = null;
      try {
        const answer = await this.site.tried(changes);
        if (round !== this.round) continue;
        this.site.showTrial(answer.verdict);
        shown(answer);
      } catch (refusal) {
        if (round === this.round) this.onRefusal(refusal);
      }
    }
    this.isBusy = false;
  }
}
