const LENGTH = 10000; // mm, of what is new
const DEPTH = 6000;
const SIZES = { length: LENGTH, depth: DEPTH, height: 3000, jibHeight: 30000, frontJibLength: 30000, radius: 3000 };

function valueOf({ key, kind, names }, [x, y], others) {
  if (["center", "position", "start", "end"].includes(key)) {
    return [x + ({ start: -LENGTH / 2, end: LENGTH / 2 }[key] ?? 0), y];
  }
  if (kind === "code") return names[0];
  if (kind === "flag") return false;
  if (kind === "text") return others.find((object) => object[key])?.[key] ?? "";
  return SIZES[key] ?? 0;
}

/** An object of that class in the middle of the plan: what the class requires, and no more. */
export function newObject(site, name, at) {
  const { keys } = site.classes.get(name);
  const others = [...site.objects.values()].map((entry) => entry.object).filter((object) => object.class === name);
  const isRectangle = ["center", "length", "depth"].every((key) => keys.some((shape) => shape.key === key));
  const asked = keys.filter((shape) => !["class", "handle"].includes(shape.key)
    && (shape.required || (isRectangle && ["center", "length", "depth"].includes(shape.key))));
  const object = { class: name };
  for (const shape of asked) object[shape.key] = valueOf(shape, at, others);
  return object;
}
