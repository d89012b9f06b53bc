#!/usr/bin/python3
"""Reads the HTML reports of sites as people do: browser_test.py FIRECHECK SITE MAKE_SITES."""

import base64
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.common.keys import Keys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))

from browser_window import BrowserWindow  # noqa: E402 pylint: disable=wrong-import-position

FIRECHECK, SITE, MAKE_SITES = sys.argv[1:4]


def checked(form, *arguments):
    run = subprocess.run([FIRECHECK, "check", "--format", form, *arguments], capture_output=True, check=False)
    return run.stdout.decode()


class Browser(BrowserWindow):
    """A window with a report."""

    def open(self, url, width, height):
        self.resize(width, height)
        self.get("about:blank")  # else another part of the same page would be gone to
        self.get(url)
        if self.runs_scripts:
            self.execute_async_script("requestAnimationFrame(() => requestAnimationFrame(arguments[0]));")

    def view(self):
        return self.one(".ground").get_dom_attribute("transform")

    def current(self):
        return self.data(".finding.current", "number")

    def data(self, selector, name):
        return self.execute_script(
            "return [...document.querySelectorAll(arguments[0])].map((node) => node.dataset[arguments[1]]);", selector, name)

    def wheel(self, delta, ctrl):
        """True when the page was kept from scrolling."""
        return self.execute_script("""
            const svg = document.querySelector(".drawing > svg");
            const { left, top } = svg.getBoundingClientRect();
            return !svg.dispatchEvent(new WheelEvent("wheel", { deltaY: arguments[0], ctrlKey: arguments[1],
                clientX: left + 200, clientY: top + 200, bubbles: true, cancelable: true }));""", delta, ctrl)

    def printed(self, directory):
        """The text of the page on paper."""
        pdf = pathlib.Path(directory) / "page.pdf"
        pages = self.execute_cdp_cmd("Page.printToPDF", {"preferCSSPageSize": True})
        pdf.write_bytes(base64.b64decode(pages["data"]))
        return subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, check=True).stdout.decode()


def shown(elements):
    return [element for element in elements if element.is_displayed()]


def classes(element):
    return (element.get_dom_attribute("class") or "").split()


class ReportTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.directory = tempfile.TemporaryDirectory()
        subprocess.run([MAKE_SITES, cls.directory.name, "1", "1000"], check=True)
        cls.large = str(pathlib.Path(cls.directory.name) / "site0001.json")
        cls.site = json.loads(checked("json", SITE))["sites"][0]
        cls.urls = {site: cls.written(site) for site in (SITE, cls.large)}
        cls.browsers = {scripts: cls.enterClassContext(Browser(scripts)) for scripts in (True, False)}

    @classmethod
    def written(cls, *arguments):
        page = pathlib.Path(cls.directory.name) / f"report{len(list(pathlib.Path(cls.directory.name).iterdir()))}.html"
        page.write_text(checked("html", *arguments), encoding="utf-8")
        return page.as_uri()

    @classmethod
    def tearDownClass(cls):
        cls.directory.cleanup()

    def page(self, site=SITE, url=None, width=1280, height=800, scripts=True):
        browser = self.browsers[scripts]
        browser.open(url or self.urls[site], width, height)
        return browser

    def finding(self, rule):
        """Number and record of the first finding of a rule."""
        for number, finding in enumerate(self.site["findings"], start=1):
            if finding["rule"] == rule:
                return number, finding
        raise AssertionError(rule)

    def lit(self, page):
        return {element.get_dom_attribute("id")[4:] for element in page.all(".element.lit")}

    def test_shows_the_counts_of_the_json(self):
        page = self.page()
        listed = " ".join(page.data(".finding", "rules")).split()
        self.assertEqual(len(listed), self.site["violations"])
        self.assertTrue(page.one(".verdict").text.startswith(f"{self.site['violations']} violations"))
        counts = {rule.text.split()[0]: int(count.text)
                  for rule, count in zip(page.all(".rule .source"), page.all(".rule .count"))}
        self.assertEqual(counts, {count["rule"]: count["violations"] for count in self.site["countsByRule"]})
        shared = [finding.text.split()[0] for finding in page.all(".finding") if " " in finding.get_dom_attribute("data-rules")]
        self.assertEqual(shared, ["11–16"], "one cable over one yard under six rules")

    def click_every_pin(self, page):
        """The numbers that the pins in view choose, each clicked where it is seen."""
        pins = page.execute_script("""
            window.chosen = [];
            Element.prototype.scrollIntoView = () => {};  // so that the pins stay where they are
            document.onclick = () => {
                const links = [...document.querySelectorAll(".opened:not([hidden]) a")];
                const number = document.querySelector(".finding.current")?.dataset.number;
                chosen.push(links.length > 0 ? links.map((link) => link.dataset.finding) : [number]);
            };
            const view = document.querySelector(".drawing > svg").getBoundingClientRect();
            return [...document.querySelectorAll(".labels > .on > .pin:not(.off)")].map((pin) => {
                const { left, right, top, bottom } = pin.querySelector("rect").getBoundingClientRect();
                const isSeen = left > view.left && right < view.right && top > view.top && bottom < view.bottom;
                const { finding, findings } = pin.dataset;
                return isSeen ? [(left + right) / 2, (top + bottom) / 2, finding ? [finding] : findings.split(" ")] : null;
            }).filter((pin) => pin !== null);""")
        for first in range(0, len(pins), 50):
            clicks = webdriver.ActionChains(page, duration=0)
            for x, y, _ in pins[first:first + 50]:
                clicks.w3c_actions.pointer_action.move_to_location(round(x), round(y))
                clicks.click().send_keys(Keys.ESCAPE)
            clicks.perform()
        self.assertEqual(page.execute_script("return chosen"), [numbers for _, _, numbers in pins])
        clustered = page.execute_script("""
            const chosen = [];
            for (const cluster of document.querySelectorAll(".labels > .on > .cluster:not(.off)")) {
                for (const number of cluster.dataset.findings.split(" ")) {
                    cluster.dispatchEvent(new MouseEvent("click", { bubbles: true, cancelable: true }));
                    document.querySelector(`.opened a[data-finding="${number}"]`).click();
                    chosen.push([number, document.querySelector(".finding.current").dataset.number]);
                }
            }
            return chosen;""")
        self.assertEqual([link for link, _ in clustered], [number for _, number in clustered])
        return {number for _, _, numbers in pins for number in numbers}

    def test_every_pin_chooses_its_finding(self):
        for site in (SITE, self.large):
            page = self.page(site)
            located = set(page.data(".finding:not([data-handle='0'])", "number"))
            self.assertEqual(self.click_every_pin(page), located)
        for _ in range(4):
            page.one(".zoom-in").click()
        self.assertTrue(self.click_every_pin(page))

    def test_a_click_lights_up_the_elements_and_the_other_way_round(self):
        page = self.page()
        number, finding = self.finding("Distant_PrefabHouseToPrefabHouse")
        whole = page.view()
        page.one(f"#s1-f{number} .sentence").click()
        self.assertEqual(self.lit(page), {finding["handle"], *finding["relatedHandles"]})
        self.assertEqual(len(page.all(".measure.lit")), 1)
        self.assertNotEqual(page.view(), whole)
        self.assertTrue(page.current_url.endswith(f"#s1-f{number}"))

        page.one(".zoom-all").click()
        self.assertEqual(page.view(), whole)
        other, finding = self.finding("Self_PrefabHouseFloorArea")
        webdriver.ActionChains(page).move_to_element_with_offset(page.one(f"#s1-e{finding['handle']}"), -30, 0).click().perform()
        self.assertEqual(page.current(), [str(other)])
        self.assertEqual(self.lit(page), {finding["handle"]})

        page.one("button[type=reset]").click()
        page.execute_async_script("setTimeout(arguments[0], 50)")
        self.assertEqual((page.current(), self.lit(page), page.view()), ([], set(), whole))
        self.assertNotIn("#", page.current_url)

    def test_a_link_to_any_record_chooses_its_finding(self):
        page = self.page(url=self.urls[SITE] + "#s1-f13")
        self.assertEqual(page.current(), ["11"])
        self.assertTrue(self.lit(page))

    def test_filters_mute_what_they_leave_out(self):
        page = self.page()
        rule = next(i for i, count in enumerate(self.site["countsByRule"]) if count["rule"] == "Self_RoadMinWidth")
        number, finding = self.finding("Self_RoadMinWidth")
        page.one(f"select[name=rule] option[value='{rule}']").click()
        self.assertEqual([one.get_dom_attribute("data-number") for one in shown(page.all(".finding"))], [str(number)])
        self.assertEqual(page.one("output").text, f"Showing 1 of {self.site['violations']} violations")
        for kind in ("pin[data-finding]", "measure", "value"):
            marks = set(page.data(f".drawing .{kind}:not(.muted)", "finding"))
            self.assertLessEqual(marks, {str(number)}, kind)

        page.one("button[type=reset]").click()
        handle = self.finding("Position_WireToWoodYard")[1]["handle"]
        page.one(f"select[name=element] option[value='{handle}']").click()
        concerned = [one for one in self.site["findings"] if handle in (one["handle"], *one["relatedHandles"])]
        self.assertEqual(page.one("output").text, f"Showing {len(concerned)} of {self.site['violations']} violations")

        for sought in (finding["handle"], "to offices and DORMITORIES"):
            page.one("button[type=reset]").click()
            page.one("input[name=search]").send_keys(sought)
            numbers = [one.get_dom_attribute("data-number") for one in shown(page.all(".finding"))]
            self.assertEqual(numbers, [str(number)], sought)

    def test_orders(self):
        page = self.page()
        written = page.data(".finding", "number")

        def ordered(by, name="number"):
            page.one(f"select[name=order] option[value='{by}']").click()
            return page.data(".finding", name)

        shares = [float(share or 0) for share in ordered("missing", "missing")]
        self.assertEqual(shares, sorted(shares, reverse=True))
        self.assertGreater(shares[0], 0.2)
        self.assertTrue(shown(page.all(".finding .of-rule")))
        self.assertEqual(len(ordered("clause")), len(written))
        headings = [heading.text for heading in page.all(".rule h2")]
        self.assertIn("GB 50720-2011, 3.2.2", headings)
        self.assertEqual(len(headings), len(set(headings)))
        self.assertEqual(ordered("rule"), written)

    def test_works_from_the_keyboard(self):
        page = self.page()
        page.press("n", "n")
        self.assertEqual(page.current(), ["2"])
        page.press("p", "p")
        self.assertEqual(page.current(), ["21"])
        page.execute_script("document.querySelector('#s1-f2 .sentence').focus()")
        page.press(Keys.ENTER)
        self.assertEqual(page.current(), ["2"])
        page.one(".zoom-all").click()
        page.execute_script("document.querySelector('.pin[data-finding=\"3\"]').focus()")
        page.press(Keys.ENTER)
        self.assertEqual(page.current(), ["3"])
        before = page.view()
        page.execute_script("document.querySelector('.drawing > svg').focus()")
        page.press("+")
        self.assertNotEqual(page.view(), before)

    def test_the_wheel_scrolls_unless_it_shall_zoom_by_its_size(self):
        page = self.page()
        scale = lambda: float(re.match(r"matrix\(([\d.]+)", page.view())[1])
        whole = scale()
        self.assertFalse(page.wheel(-50, False))
        self.assertEqual(scale(), whole)
        self.assertTrue(page.wheel(-5, True))
        small = scale() / whole
        self.assertTrue(page.wheel(-50, True))
        self.assertGreater(scale() / whole / small, small)
        for _ in range(12):
            page.wheel(-60, True)
            bar = page.one(".bar").get_property("offsetWidth")
            metres = float(page.one(".length").text.split()[0])
            self.assertAlmostEqual(bar / scale() / metres, 1, delta=0.06)

    def test_what_is_accepted_colours_nothing(self):
        accepted = pathlib.Path(self.directory.name) / "accepted.json"
        subprocess.run([FIRECHECK, "check", SITE, "--write-accept", accepted], capture_output=True, check=False)
        accepted.write_text(accepted.read_text().replace('"reason": ""', '"reason": "as built"'))
        page = self.page(url=self.written(SITE, "--accept", str(accepted)))
        self.assertEqual(page.all(".offends, .verdict.offending"), [])
        self.assertEqual(len(shown(page.all(".finding"))), 16)
        page.one("input[name=open]").click()
        self.assertEqual(shown(page.all(".finding")), [])

    def test_several_sites_have_an_overview(self):
        page = self.page(url=self.written(SITE, self.large))
        counts = [int(cell.text) for cell in page.all(".overview td:nth-child(4)")]
        self.assertEqual(counts[0], self.site["violations"])
        links = [link.get_dom_attribute("href") for link in page.all(".overview a")]
        self.assertEqual(links, ["#" + section.get_dom_attribute("id") for section in page.all(".site")])

    def test_reads_the_same_without_scripts(self):
        page = self.page(scripts=False)
        self.assertFalse(page.one(".filters").is_displayed())
        self.assertEqual(len(shown(page.all(".finding"))), 16)
        number, finding = self.finding("Self_PrefabHouseFloorArea")
        page.one(f"#s1-f{number} .sentence").click()
        self.assertEqual(page.one(f"#s1-e{finding['handle']}").value_of_css_property("stroke-width"), "5px")
        page.one(f".pin[data-finding='{number}']").click()
        self.assertTrue(page.current_url.endswith(f"#s1-f{number}"))

    def test_paper_holds_all(self):
        for scripts in (True, False):
            page = self.page(scripts=scripts)
            paper = re.sub(r"\s+", " ", page.printed(self.directory.name))
            for finding in self.site["findings"]:
                words = finding["sentence"].split()
                for word in (words[0][0].upper() + words[0][1:], *words[1:]):
                    self.assertIn(word, paper)
            for judged in self.site["judged"]:
                self.assertIn(judged["rule"], paper.split("What was judged")[1])
            self.assertRegex(paper, r"1 / \d+")
            self.assertGreater(paper.count("Tower site"), 5, "on each page")

    def test_paper_resolves_the_clusters_of_the_plan(self):
        page = self.page(self.large, scripts=False)
        clusters = {cluster.text for cluster in shown(page.all(".cluster"))}
        key = {item.text for item in page.all(".key b")}
        self.assertTrue(clusters)
        self.assertEqual(key, clusters)
        self.assertIn("stands for", page.printed(self.directory.name))

    def test_fits_a_phone_and_lets_no_label_hide_another(self):
        for site, width in ((SITE, 390), (SITE, 1280), (self.large, 1280)):
            page = self.page(site, width=width, height=800)
            self.assertLessEqual(page.one("html").get_property("scrollWidth"), width)
            boxes = page.execute_script("""
                const shown = [...document.querySelectorAll(".labels > .on > :not(.off)")];
                return shown.map((label) => {
                    const box = (label.querySelector("rect") ?? label).getBoundingClientRect();
                    return [box.left, box.top, box.right, box.bottom, label.textContent];
                });""")
            self.assertGreater(len(boxes), 20)
            hidden = [(a[4], b[4]) for i, a in enumerate(boxes) for b in boxes[:i]
                      if a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]]
            self.assertEqual(hidden, [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
