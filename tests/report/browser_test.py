#!/usr/bin/python3
"""Reads the HTML report of a site as people do: browser_test.py FIRECHECK SITE."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

FIRECHECK, SITE = sys.argv[1:3]


def checked(form):
    run = subprocess.run([FIRECHECK, "check", SITE, "--format", form], capture_output=True, check=False)
    return run.stdout.decode()


class Browser(webdriver.Chrome):
    """A headless window. Use it in a with statement; scripts of pages run unless told otherwise."""

    def __init__(self, width=1280, height=800, scripts=True):
        options = webdriver.ChromeOptions()
        for argument in ("headless=new", "no-sandbox", "disable-dev-shm-usage", "disable-background-networking"):
            options.add_argument("--" + argument)
        if not scripts:
            options.add_experimental_option("prefs", {"profile.managed_default_content_settings.javascript": 2})
        super().__init__(options=options)
        self.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                             {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": False})

    def all(self, selector):
        return self.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        found = self.all(selector)
        assert len(found) == 1, f"{len(found)} elements match {selector}"
        return found[0]

    def press(self, *keys):
        webdriver.ActionChains(self, duration=0).send_keys(*keys).perform()


def shown(elements):
    return [element for element in elements if element.is_displayed()]


def classes(element):
    return (element.get_dom_attribute("class") or "").split()


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
        browser.get(self.url)
        return browser

    def finding(self, rule):
        """Number and record of the first finding of a rule."""
        for number, finding in enumerate(self.site["findings"], start=1):
            if finding["rule"] == rule:
                return number, finding
        raise AssertionError(rule)

    def lit(self, page):
        return {element.get_dom_attribute("data-handle") for element in page.all(".element.lit")}

    def test_shows_the_counts_of_the_json(self):
        page = self.page()
        self.assertEqual(len(page.all(".finding")), self.site["violations"])
        self.assertTrue(page.one(".verdict").text.startswith(f"{self.site['violations']} violations"))
        counts = [(rule.text.split()[0], int(count.text))
                  for rule, count in zip(page.all(".rule .source"), page.all(".rule .count"))]
        self.assertEqual(counts, [(count["rule"], count["violations"]) for count in self.site["countsByRule"]])

    def test_a_click_lights_up_the_elements_and_the_other_way_round(self):
        page = self.page()
        number, finding = self.finding("Distant_PrefabHouseToPrefabHouse")
        whole = page.one("svg.plan").get_dom_attribute("viewBox")
        page.one(f"#s1-f{number} .sentence").click()
        self.assertEqual(self.lit(page), {finding["handle"], *finding["relatedHandles"]})
        self.assertEqual(len(page.all(".measure.lit")), 1)
        self.assertNotEqual(page.one("svg.plan").get_dom_attribute("viewBox"), whole)

        page.one(".zoom-all").click()
        self.assertEqual(page.one("svg.plan").get_dom_attribute("viewBox"), whole)
        other, finding = self.finding("Self_PrefabHouseFloorArea")
        page.one(f"#s1-e{finding['handle']} path:last-child").click()
        self.assertIn("current", classes(page.one(f"#s1-f{other}")))
        self.assertNotIn("current", classes(page.one(f"#s1-f{number}")))
        self.assertEqual(self.lit(page), {finding["handle"]})

    def test_filters_by_rule_and_by_element(self):
        page = self.page()
        rule = next(i for i, count in enumerate(self.site["countsByRule"]) if count["rule"] == "Self_RoadMinWidth")
        page.one(f"select[name=rule] option[value='{rule}']").click()
        rules = [finding.get_dom_attribute("data-rule") for finding in shown(page.all(".finding"))]
        self.assertEqual(rules, [str(rule)])
        self.assertEqual(page.one("output").text, f"Showing 1 of {self.site['violations']} violations")
        self.assertEqual(len(shown(page.all(".rule"))), 1)

        page.one("button[type=reset]").click()
        handle = self.finding("Position_WireToWoodYard")[1]["handle"]
        concerned = [finding for finding in self.site["findings"]
                     if handle in (finding["handle"], *finding["relatedHandles"])]
        page.one(f"select[name=element] option[value='{handle}']").click()
        self.assertEqual(len(shown(page.all(".finding"))), len(concerned))

    def test_works_from_the_keyboard(self):
        page = self.page()
        for _ in range(60):
            page.press(Keys.TAB)
            if "sentence" in classes(page.switch_to.active_element):
                break
        page.press(Keys.TAB, Keys.ENTER)
        self.assertIn("current", classes(page.one("#s1-f2")))
        self.assertTrue(self.lit(page))

        before = page.one("svg.plan").get_dom_attribute("viewBox")
        for _ in range(120):
            page.press(Keys.TAB)
            if page.switch_to.active_element.tag_name == "svg":
                break
        page.press("+")
        self.assertNotEqual(page.one("svg.plan").get_dom_attribute("viewBox"), before)

    def test_reads_the_same_without_scripts(self):
        page = self.page(scripts=False)
        self.assertFalse(page.one(".filters").is_displayed())
        self.assertEqual(len(shown(page.all(".finding"))), self.site["violations"])
        number, finding = self.finding("Self_PrefabHouseFloorArea")
        page.one(f"#s1-f{number} .sentence").click()
        mark = page.one(f"#s1-e{finding['handle']} path:last-child")
        self.assertEqual(mark.value_of_css_property("stroke-width"), "5px")

    def test_fits_a_phone_and_lets_no_label_hide_another(self):
        for width in (390, 1280):
            page = self.page(width=width, height=800)
            self.assertLessEqual(page.one("html").get_property("scrollWidth"), width)
            boxes = page.execute_script("""
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
