import { Api } from "./Api.js";
import { Dragging } from "./Dragging.js";
import { Editor } from "./Editor.js";
import { ElementForm } from "./ElementForm.js";
import { ElementLayer } from "./ElementLayer.js";
import { FindingList } from "./FindingList.js";
import { listenToKeys } from "./keys.js";
import { LabelLayer } from "./LabelLayer.js";
import { linesOf, MarkLayer } from "./MarkLayer.js";
import { Messages } from "./Messages.js";
import { PlanView } from "./PlanView.js";
import { Selection } from "./Selection.js";
import { SideLists } from "./SideLists.js";
import { Site } from "./Site.js";
import { Snapping } from "./Snapping.js";
import { drawn } from "./svg.js";
import { Trial } from "./Trial.js";
import { VerdictNews } from "./VerdictNews.js";
import { Words } from "./Words.js";
import { Zones } from "./Zones.js";

const COLOURS = 10;
const PATTERNS = 8;

function one(selector) {
  return document.querySelector(selector);
}

/** A colour and a pattern for each rule, in the order in which rules are met; kept while the page is open. */
function ruleColours() {
  const numbers = new Map();
  return (rule) => {
    if (!numbers.has(rule)) numbers.set(rule, numbers.size);
    const number = numbers.get(rule);
    return `c${number % COLOURS} k${Math.floor(number / COLOURS) % PATTERNS}`;
  };
}

/** Draws what the process says of the site. */
function listenToSite({ site, view, elements, labels, marks, colours, selection }) {
  site.addEventListener("objects", ({ detail }) => {
    const handles = detail ?? [...site.objects.keys()];
    if (detail === null) {
      elements.clear();
      labels.clear();
      view.setSite([...site.objects.values()].map((entry) => entry.shape));
    }
    for (const handle of handles) {
      const entry = site.objects.get(handle);
      if (entry) {
        elements.show(entry);
        labels.set(entry);
      } else {
        elements.remove(handle);
        labels.remove(handle);
      }
    }
  });
  const showVerdict = () => {
    const { findings } = site.verdict;
    const offending = new Map();
    for (const { rule, handles } of findings) {
      if (handles.length > 0 && !offending.has(handles[0])) offending.set(handles[0], `offends ${colours(rule)}`);
    }
    elements.markOffending(offending);
    const isOwn = ({ handles }) => handles.includes(selection.handle);
    marks.showFindings(findings, ({ rule }) => colours(rule), isOwn);
    marks.showFindingValues(findings.filter(isOwn).flatMap((finding) => (
      finding.measures.flatMap((measure) => linesOf({ measures: [measure] }).map((line) => (
        { line, text: measure.measured, colour: colours(finding.rule) }))))));
  };
  site.addEventListener("verdict", showVerdict);
  selection.addEventListener("select", showVerdict);
}

function listenToSelection({ selection, elements, site, messages, words }) {
  selection.addEventListener("select", () => {
    elements.select(selection.handle);
    const { entry } = selection;
    if (!entry) return;
    const own = site.verdict.findings.filter(({ handles }) => handles.includes(entry.handle));
    messages.say(words.say("Selected: %1. Violations: %2.", entry.title, own.length));
  });
}

function listenToPlan({ view, elements, selection, editor }) {
  view.svg.addEventListener("click", (event) => {
    if (view.gestures.hasMoved || event.target.closest(".grip")) return;
    editor.finishNudge();
    selection.select(elements.handleAt(event.target));
  });
  one(".zoom-in").addEventListener("click", () => view.zoom(1.4));
  one(".zoom-out").addEventListener("click", () => view.zoom(1 / 1.4));
  one(".zoom-all").addEventListener("click", () => view.showAll());
}

function listenToTools({ site, editor, snapping, zones, toggles, selection, words }) {
  const acts = { undo: () => editor.undo(), redo: () => editor.redo(), save: () => editor.save(), end: () => editor.end(), copy: () => editor.copy(),
    remove: () => editor.remove(), "turn-left": () => editor.turn(15), "turn-right": () => editor.turn(-15),
    help: () => one("#help").showModal() };
  for (const [name, act] of Object.entries(acts)) one(`#${name}-button`).addEventListener("click", act);
  one("#step").addEventListener("change", (event) => { snapping.step = Number(event.target.value); });
  toggles.grid.addEventListener("change", () => { snapping.usesGrid = toggles.grid.checked; });
  toggles.distances.addEventListener("change", () => { snapping.usesDistances = toggles.distances.checked; });
  toggles.zones.addEventListener("change", () => zones.show(toggles.zones.checked));
  one("#add").addEventListener("submit", (event) => {
    event.preventDefault();
    editor.add(event.target.elements.class.value);
  });
  site.addEventListener("state", () => {
    one("#undo-button").disabled = !site.canUndo;
    one("#redo-button").disabled = !site.canRedo;
    one("#save-button").classList.toggle("needed", site.isChanged);
    one("#state").textContent = site.isChanged ? words.say("not saved") : "";
    document.title = `${site.isChanged ? "• " : ""}${site.name || site.file}`;
  });
}

function showTitles({ site, words }) {
  one("#site-name").textContent = site.name || site.file;
  one("#file").textContent = site.name ? site.file : "";
  one("#add").elements.class.replaceChildren(...[...site.classes.values()].map(({ name }) => new Option(words.name(name), name)));
}

async function start() {
  const api = new Api();
  const words = new Words(await api.get("words.json"));
  document.documentElement.lang = words.language.replace("_", "-");
  words.fill(document);
  const svg = one("svg.plan");
  const page = { words, site: new Site(api, words), snapping: new Snapping(), colours: ruleColours() };
  page.messages = new Messages(one("#message"), one("#live"));
  page.view = new PlanView(svg, one(".gauge"));
  page.selection = new Selection(page.site);
  page.zones = new Zones(one(".ground"), page);
  page.elements = new ElementLayer(drawn(one(".ground"), "g"), page.view);
  page.marks = new MarkLayer(one(".ground"), one(".texts"), page.view);
  page.labels = new LabelLayer(one(".texts"), page.view);
  page.trial = new Trial(page.site, (refusal) => page.editor.tellRefusal(refusal));
  page.editor = new Editor(page);
  page.toggles = { grid: one("#grid"), distances: one("#distances"), zones: one("#zones") };
  listenToSite(page);
  listenToSelection(page);
  page.dragging = new Dragging(svg, page);
  page.list = new FindingList(one(".list-pane"), page);
  new SideLists(one(".list-pane"), page);
  new ElementForm(one(".form-pane"), page);
  new VerdictNews(one("#verdict"), page);
  listenToPlan(page);
  listenToTools(page);
  listenToKeys(page);
  if (await page.editor.attempt(() => page.site.load().then(() => true))) {
    showTitles(page);
    page.view.showAll();
    document.documentElement.classList.add("ready");
  }
}

start();
