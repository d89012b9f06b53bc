// Everything the page says stands in its markup; the script adds choosing, filtering, panning and zooming.
document.documentElement.classList.add("scripted");

const sites = [...document.querySelectorAll(".site")].map((section) => new Site(section));

function siteAround(node) {
  return sites.find((site) => site.section.contains(node));
}

/** A link to a violation or an element chooses it. */
function followLink() {
  const target = document.getElementById(location.hash.slice(1));
  const site = siteAround(target);
  if (!site) return;
  const finding = target.closest(".finding");
  if (finding) site.choose(finding, { scrollsList: true });
  else if (target.matches(".element")) site.chooseElement(target.id.slice(site.section.id.length + 2), { scrollsList: true });
}

/** The site that keys are meant for: where the focus is, else what is chosen or seen. */
function siteInUse() {
  const isSeen = (site) => site.section.getBoundingClientRect().bottom > window.innerHeight / 3;
  const { activeElement } = document;
  return (activeElement !== document.body && siteAround(activeElement))
    || sites.find((site) => site.current && isSeen(site)) || sites.find(isSeen) || sites[0];
}

document.addEventListener("keydown", (event) => {
  if (event.ctrlKey || event.metaKey || event.altKey || event.target.closest("input, select, textarea")) return;
  const by = { n: 1, p: -1 }[event.key];
  if (by) siteInUse()?.step(by);
});
window.addEventListener("hashchange", followLink);

// On the screen long tables open on demand; paper holds all.
const foldable = [...document.querySelectorAll("details.foldable")];
for (const details of foldable) details.open = false;
let closed = [];
window.addEventListener("beforeprint", () => {
  closed = foldable.filter((details) => !details.open);
  for (const details of closed) details.open = true;
  for (const site of sites) site.plan?.beginPrint();
});
window.addEventListener("afterprint", () => {
  for (const details of closed) details.open = false;
  for (const site of sites) site.plan?.endPrint();
});

followLink();
