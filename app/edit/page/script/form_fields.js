// Inputs for the values of a site file. Each answers {input, read()}, where read() gives the value, undefined for one
// that is not given, or throws for what cannot be read.

function input(type, attributes = {}) {
  const node = document.createElement("input");
  node.type = type;
  for (const [name, value] of Object.entries(attributes)) node.setAttribute(name, value);
  return node;
}

function numberIn(node) {
  if (node.validity.badInput) throw new SyntaxError();
  return node.value === "" ? undefined : Number(node.value);
}

function number(shape, value) {
  const node = input("number", { step: "any", inputmode: "decimal", placeholder: shape.default ?? "" });
  node.value = value ?? "";
  return { input: node, read: () => numberIn(node) };
}

function text(shape, value) {
  const node = input("text", { placeholder: shape.default ?? "" });
  node.value = value ?? "";
  return { input: node, read: () => (node.value === "" && !shape.required ? undefined : node.value) };
}

function flag(shape, value) {
  const node = input("checkbox");
  node.checked = value ?? shape.default ?? false;
  const isDefault = () => value === undefined && node.checked === (shape.default ?? false);
  return { input: node, read: () => (isDefault() ? undefined : node.checked) };
}

/** A number may stand for a code that has no name. */
function code(shape, value, nameOf) {
  const node = document.createElement("select");
  const options = [...shape.names];
  if (value !== undefined && !options.includes(value)) options.unshift(value);
  if (!shape.required && shape.default === undefined) options.unshift(undefined);
  for (const option of options) node.append(new Option(option === undefined ? "" : nameOf(option), JSON.stringify(option) ?? ""));
  node.value = JSON.stringify(value ?? shape.default) ?? "";
  return { input: node, read: () => {
    const chosen = node.value === "" ? undefined : JSON.parse(node.value);
    return value === undefined && chosen === shape.default ? undefined : chosen;
  } };
}

function point(shape, value) {
  const node = document.createElement("span");
  node.className = "point";
  const coordinates = ["x", "y"].map((name, index) => {
    const part = input("number", { step: "any", inputmode: "decimal", "aria-label": name });
    if (index > 0) part.name = `${shape.key}-${name}`; // the first has the name of the key
    part.value = value?.[index] ?? "";
    node.append(part);
    return part;
  });
  return { input: node, read: () => {
    const [x, y] = coordinates.map(numberIn);
    if (x === undefined && y === undefined) return undefined;
    if (x === undefined || y === undefined) throw new SyntaxError();
    return [x, y, ...(value ?? []).slice(2)];
  } };
}

/** Whatever has no input of its own is written as in the file. */
function json(shape, value) {
  const node = document.createElement("textarea");
  node.rows = 2;
  node.spellcheck = false;
  node.value = value === undefined ? "" : JSON.stringify(value);
  return { input: node, read: () => (node.value.trim() === "" ? undefined : JSON.parse(node.value)) };
}

const MAKERS = { number, integer: number, text, flag, code, point };

/** `nameOf` answers what people call a code. */
export function fieldFor(shape, value, nameOf) {
  const isWritten = value !== null && typeof value === "object" && shape.kind !== "point";
  return (isWritten ? json : MAKERS[shape.kind] ?? json)(shape, value, nameOf);
}
