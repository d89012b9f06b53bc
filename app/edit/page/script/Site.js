const NO_SHAPE = { paths: [], label: "", kind: "other" };

/**
 * The site as the process holds it. Every change goes through here, one after the other; the parts of the page listen:
 * "objects" (detail: handles that are new, changed or gone; null for all), "verdict" and "state".
 */
export class Site extends EventTarget {
  constructor(api, words) {
    super();
    this.api = api;
    this.words = words;
    this.objects = new Map(); // by handle, in the order of the file
    this.classes = new Map(); // by name
    this.last = Promise.resolve();
  }

  load() {
    return this.#queued(() => this.#load());
  }

  async #load() {
    const answer = await this.api.get("api/site");
    this.name = answer.name;
    this.file = answer.file;
    this.language = answer.language;
    this.rest = answer.site;
    this.classes = new Map(answer.classes.map((entry) => [entry.name, entry]));
    this.objects = new Map(answer.objects.map((entry) => [entry.handle, this.#complete(entry)]));
    this.#takeState(answer);
    this.#tell("objects", null);
    this.keptVerdict = answer.verdict;
    this.showTrial(answer.verdict);
  }

  object(handle) {
    return this.objects.get(handle)?.object ?? null;
  }

  /** A change that is kept, as one step to undo. `make` is asked for it when all before it are answered. */
  change(make) {
    return this.#next("api/change", () => ({ changes: make(this) }));
  }

  undo() {
    return this.#next("api/undo");
  }

  redo() {
    return this.#next("api/redo");
  }

  /** What the process says of changes that are not kept. */
  async tried(changes) {
    await this.last;
    return this.#sent("api/try", { changes });
  }

  async suggestions(finding) {
    await this.last;
    return this.#sent("api/suggest", { finding });
  }

  async zones(handle) {
    await this.last;
    return (await this.api.get(`api/zones?handle=${encodeURIComponent(handle)}`)).zones;
  }

  /** All that the page knows of the site, as a site file. */
  asFile() {
    const objects = [...this.objects.values()].map((entry) => entry.object);
    return JSON.stringify({ ...this.rest, objects }, null, 2);
  }

  save() {
    return this.#queued(async () => this.#takeState(await this.#sent("api/save", {})));
  }

  /** Ends the process. */
  end() {
    return this.#queued(() => this.#sent("api/quit", {}));
  }

  /** Shows the verdict on a try in place of that on the site as it is kept. */
  showTrial(verdict) {
    this.verdict = verdict;
    this.#tell("verdict");
  }

  endTrial() {
    if (this.verdict !== this.keptVerdict) this.showTrial(this.keptVerdict);
  }

  /** Changes are sent in their order, each on the revision that the one before it made. */
  #next(path, body = () => ({})) {
    return this.#queued(async () => {
      const answer = await this.#sent(path, body());
      this.#take(answer);
      return answer;
    });
  }

  #queued(act) {
    const next = this.last.then(act);
    this.last = next.catch(() => {});
    return next;
  }

  async #sent(path, body) {
    const { revision } = this;
    try {
      return await this.api.post(path, { revision, ...body });
    } catch (refusal) {
      if (refusal.isStaleAfter?.(revision)) await this.#load(); // another window changed the site
      throw refusal;
    }
  }

  #take(answer) {
    for (const handle of answer.removed) this.objects.delete(handle);
    for (const entry of answer.objects) this.objects.set(entry.handle, this.#complete(entry));
    this.#takeState(answer);
    this.#tell("objects", [...answer.removed, ...answer.objects.map((entry) => entry.handle)]);
    this.keptVerdict = answer.verdict;
    this.showTrial(answer.verdict);
  }

  /** What cannot be drawn has a shape without paths. */
  #complete({ handle, object, shape }) {
    const title = shape?.title ?? [this.words.name(object.class), handle, object.name].filter(Boolean).join(" ");
    return { handle, object, title, shape: shape ?? NO_SHAPE };
  }

  #takeState({ revision, canUndo, canRedo, isChanged }) {
    Object.assign(this, { revision, canUndo, canRedo, isChanged });
    this.#tell("state");
  }

  #tell(type, detail) {
    this.dispatchEvent(new CustomEvent(type, { detail }));
  }
}
