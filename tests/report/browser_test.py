#!/usr/bin/env python3
"""Reads the HTML report of a site as people do: browser_test.py FIRECHECK SITE."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

from webdriver import Browser

FIRECHECK, SITE = sys.argv[1:3]
TAB, ENTER = "\ue004", "\ue007"


def checked(form):
    run = subprocess.run([FIRECHECK, "check", SITE, "--format", form], capture_output=True, check=False)
    return run.stdout.decode()


class ReportTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.site = json.loads(checked("json"))["sites"][0]
        cls.directory = tempfile.TemporaryDirectory()
        page = pathlib.Path(cls.directory.name) / "report.html"
        page.write_text(checked("html"), encoding="utf-8")
        cls.url = page.as_uri()

    @classmethod
    def tearDownClass(cls):
        cls.directory.cleanup()

    def page(self, **settings):
        browser = self.enterContext(Browser(**settings))
        browser.open(self.url)
        return browser

    def finding(self, rule):
        """Number and record of the first finding of a rule."""
        for number, finding in enumerate(self.site["findings"], start=1):
            if finding["rule"] == rule:
                return number, finding
        raise AssertionError(rule)

    def lit(self, page):
        return {element.attribute("data-handle") for element in page.all(".element.lit")}

    def test_shows_the_counts_of_the_json(self):
        page = self.page()
        self.assertEqual(len(page.all(".finding")), self.site["violations"])
        self.assertTrue(page.one(".verdict").text.startswith(f"{self.site['violations']} violations"))
        shown = [(rule.text.split()[0], int(count.text))
                 for rule, count in zip(page.all(".rule .source"), page.all(".rule .count"))]
        self.assertEqual(shown, [(count["rule"], count["violations"]) for count in self.site["countsByRule"]])

    def test_a_click_lights_up_the_elements_and_the_other_way_round(self):
        page = self.page()
        number, finding = self.finding("Distant_PrefabHouseToPrefabHouse")
        whole = page.one("svg.plan").attribute("viewBox")
        page.one(f"#s1-f{number} .sentence").click()
        self.assertEqual(self.lit(page), {finding["handle"], *finding["relatedHandles"]})
        self.assertEqual(len(page.all(".measure.lit")), 1)
        self.assertNotEqual(page.one("svg.plan").attribute("viewBox"), whole)

        page.one(".zoom-all").click()
        self.assertEqual(page.one("svg.plan").attribute("viewBox"), whole)
        other, finding = self.finding("Self_PrefabHouseFloorArea")
        page.one(f"#s1-e{finding['handle']} path:last-child").click()
        self.assertIn("current", page.one(f"#s1-f{other}").classes)
        self.assertNotIn("current", page.one(f"#s1-f{number}").classes)
        self.assertEqual(self.lit(page), {finding["handle"]})

    def test_filters_by_rule_and_by_element(self):
        page = self.page()
        rule = next(i for i, count in enumerate(self.site["countsByRule"]) if count["rule"] == "Self_RoadMinWidth")
        page.one(f"select[name=rule] option[value='{rule}']").click()
        shown = [finding for finding in page.all(".finding") if finding.is_shown]
        self.assertEqual([finding.attribute("data-rule") for finding in shown], [str(rule)])
        self.assertEqual(page.one("output").text, f"Showing 1 of {self.site['violations']} violations")
        self.assertEqual(len([group for group in page.all(".rule") if group.is_shown]), 1)

        page.one("button[type=reset]").click()
        handle = self.finding("Position_WireToWoodYard")[1]["handle"]
        concerned = [finding for finding in self.site["findings"]
                     if handle in (finding["handle"], *finding["relatedHandles"])]
        page.one(f"select[name=element] option[value='{handle}']").click()
        self.assertEqual(len([finding for finding in page.all(".finding") if finding.is_shown]), len(concerned))

    def test_works_from_the_keyboard(self):
        page = self.page()
        for _ in range(60):
            page.press(TAB)
            if "sentence" in page.active().classes:
                break
        page.press(TAB, ENTER)
        self.assertIn("current", page.one("#s1-f2").classes)
        self.assertTrue(self.lit(page))

        before = page.one("svg.plan").attribute("viewBox")
        for _ in range(120):
            page.press(TAB)
            if page.active().value("tagName") == "svg":
                break
        page.press("+")
        self.assertNotEqual(page.one("svg.plan").attribute("viewBox"), before)

    def test_reads_the_same_without_scripts(self):
        page = self.page(scripts=False)
        self.assertFalse(page.one(".filters").is_shown)
        shown = [finding for finding in page.all(".finding") if finding.is_shown]
        self.assertEqual(len(shown), self.site["violations"])
        number, finding = self.finding("Self_PrefabHouseFloorArea")
        page.one(f"#s1-f{number} .sentence").click()
        self.assertEqual(page.one(f"#s1-e{finding['handle']} path:last-child").css("stroke-width"), "5px")

    def test_fits_a_phone_and_lets_no_label_hide_another(self):
        for width in (390, 1280):
            page = self.page(width=width, height=800)
            document = page.one("html")
            self.assertLessEqual(document.value("scrollWidth"), width)
            boxes = page.run("""
                const shown = [...document.querySelectorAll('.labels text')].filter(
                    (label) => getComputedStyle(label).display !== 'none');
                return shown.map((label) => {
                    const box = label.getBoundingClientRect();
                    return [box.left, box.top, box.right, box.bottom, label.textContent];
                });""")
            self.assertGreater(len(boxes), 20)
            hidden = [(a[4], b[4]) for i, a in enumerate(boxes) for b in boxes[:i]
                      if a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]]
            self.assertEqual(hidden, [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
