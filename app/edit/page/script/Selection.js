/** The element that keys, form and handles are about. Dispatches "select". */
export class Selection extends EventTarget {
  constructor(site) {
    super();
    this.site = site;
    this.handle = null;
    site.addEventListener("objects", () => {
      if (this.handle && !site.objects.has(this.handle)) this.select(null);
    });
  }

  select(handle) {
    if (handle === this.handle) return;
    this.handle = handle;
    this.dispatchEvent(new Event("select"));
  }

  get entry() {
    return this.site.objects.get(this.handle) ?? null;
  }

  get object() {
    return this.entry?.object ?? null;
  }

  /** Of the class of the element; null for none. */
  get keys() {
    return this.site.classes.get(this.object?.class)?.keys ?? [];
  }

  /** The value of a key, or the default of the class. */
  value(key) {
    return this.object?.[key] ?? this.keys.find((shape) => shape.key === key)?.default;
  }

  hasKey(key) {
    return this.keys.some((shape) => shape.key === key);
  }

  /** The next element of the drawing, or with -1 the one before. False where there is none. */
  step(by) {
    const handles = [...this.site.objects.values()].filter((entry) => entry.shape.paths.length > 0).map((entry) => entry.handle);
    const at = handles.indexOf(this.handle);
    const next = at < 0 ? (by > 0 ? 0 : handles.length - 1) : at + by;
    if (!(next in handles)) return false;
    this.select(handles[next]);
    return true;
  }
}
