// What keys do. Those of the plan hold where the focus is on it; the others wherever no text is being written.

const ARROWS = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1] };
const PAN = 60; // pixels
const FINE = 10; // mm
const TURN = 15; // degrees

function isWriting(target) {
  return target.closest("input:not([type=checkbox]), textarea, select") !== null;
}

/** Arrows move the selected element by a step of the grid, or else the plan. */
function arrow(event, { editor, selection, snapping, view }) {
  const [x, y] = ARROWS[event.key];
  if (!selection.handle) view.move(-x * PAN, y * PAN);
  else editor.nudgeBy(x, y, event.shiftKey ? FINE : snapping.step);
}

/** Tab goes from element to element once one is selected, and leaves the plan when none is. */
function tab(event, { selection, view, editor }) {
  if (!selection.handle || !selection.step(event.shiftKey ? -1 : 1)) return false;
  editor.finishNudge();
  view.reveal([selection.entry.shape]);
  return true;
}

function planKey(event, page) {
  const { editor, selection, view } = page;
  if (event.key in ARROWS) arrow(event, page);
  else if (event.key === "Tab") return tab(event, page);
  else if (event.key === "Enter" || event.key === " ") {
    if (selection.handle) document.querySelector(".form-pane .fields :is(input, select, textarea)")?.focus();
    else selection.step(1);
  } else if (event.key === "+" || event.key === "=") view.zoom(1.3);
  else if (event.key === "-") view.zoom(1 / 1.3);
  else if (event.key === "0") view.showAll();
  else if (event.key === "Delete" || event.key === "Backspace") editor.remove();
  else return false;
  return true;
}

/** A field tells what is written in it when it is left. */
function saveWhatIsWritten(editor) {
  const field = document.activeElement;
  field?.blur();
  editor.save();
  field?.focus({ preventScroll: true });
}

function commandKey(event, { editor }) {
  const acts = {
    z: () => (event.shiftKey ? editor.redo() : editor.undo()),
    y: () => editor.redo(),
    s: () => saveWhatIsWritten(editor),
    d: () => editor.copy(),
  };
  const name = event.key.toLowerCase();
  if (!(name in acts) || ("zy".includes(name) && isWriting(event.target))) return false;
  acts[name]();
  return true;
}

function pageKey(event, page) {
  const { editor, list, selection, dragging, toggles } = page;
  const acts = {
    Escape: () => (dragging.isActive ? dragging.cancel() : selection.select(null)),
    r: () => editor.turn(event.shiftKey ? -TURN : TURN),
    g: () => toggles.grid.click(),
    j: () => toggles.distances.click(),
    z: () => toggles.zones.click(),
    n: () => list.step(1),
    p: () => list.step(-1),
    "?": () => document.querySelector("#help").showModal(),
  };
  const name = event.key.length === 1 ? event.key.toLowerCase() : event.key;
  if (!(name in acts)) return false;
  acts[name]();
  return true;
}

export function listenToKeys(page) {
  document.addEventListener("keydown", (event) => {
    if (document.querySelector("dialog[open]") || event.altKey) return;
    const isCommand = event.ctrlKey || event.metaKey;
    const isInPlan = event.target === page.view.svg;
    const isTaken = isCommand ? commandKey(event, page)
      : !isWriting(event.target) && ((isInPlan && planKey(event, page)) || pageKey(event, page));
    if (isTaken) event.preventDefault();
  });
}
