#!/usr/bin/python3
"""Lays out a site in a browser as people do: edit_browser_test.py FIRECHECK SITE PAGE_SOURCES."""

import http.server
import json
import math
import pathlib
import re
import shutil
import signal
import sys
import tempfile
import threading
import unittest
import urllib.request

from edit_page import Page, Process, checked
from selenium.webdriver.common.keys import Keys

FIRECHECK, SITE = sys.argv[1:3]
SOURCES = pathlib.Path(sys.argv[3])
TOO_CLOSE = "Distant_PrefabHouseToPrefabHouse/413"  # dormitory 3 stands 3.5 m from dormitory 4, which is 414
TOO_NARROW = "Self_RoadMinWidth/207"
TOO_FEW_STAIRS = "Self_PrefabHouseStairs/412"


class OtherPage(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Length", "0")
        self.end_headers()

    def log_message(self, *_):
        pass


class EditTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.page = cls.enterClassContext(Page())

    def setUp(self):
        directory = self.enterContext(tempfile.TemporaryDirectory())
        self.file = pathlib.Path(directory) / "site.json"
        shutil.copy(SITE, self.file)

    def tearDown(self):
        self.assertEqual(self.page.faults(), [])

    def open(self, *arguments, **size):
        self.process = self.enterContext(Process(FIRECHECK, self.file, *arguments))
        self.page.open(self.process.address, **size)
        return self.page

    def count(self):
        return int(self.page.one("#verdict").text.split()[0])

    def sentence(self, finding):
        return self.page.one(f".finding[data-id='{finding}'] .sentence")

    def told(self):
        return self.page.one("#message").text

    def choose(self, handle):
        self.page.one(f".choose option[value='{handle}']").click()

    def write(self, key, text):
        field = self.page.one(f"#field-{key}")
        field.click()
        self.page.press_together(Keys.CONTROL, "a")
        self.page.press(text, Keys.TAB)

    def test_a_dragged_dormitory_a_suggestion_and_a_parameter_are_saved_as_the_page_judges_them(self):
        page = self.open()
        before = page.findings()
        self.assertEqual(self.count(), len(checked(FIRECHECK, SITE)["findings"]))

        self.sentence(TOO_CLOSE).click()
        drag = page.drag("#e414 .element").by(0, -4).by(0, -round(0.5 * page.pixels_per_metre()) + 4)
        page.wait(lambda: page.findings() == before - {TOO_CLOSE})
        self.assertEqual(self.count(), len(before) - 1)
        self.assertGreater(len(page.all(".limit")), 0)
        self.assertEqual(page.object("414")["center"], [30000, 118500], "a drag changes nothing before it ends")
        drag.drop()
        page.wait(lambda: page.object("414")["center"] == [30000, 119000])
        self.assertEqual(page.findings(), before - {TOO_CLOSE})
        page.wait(lambda: page.one("#live").text.startswith("Gone: 1."))

        page.one("#undo-button").click()
        page.wait(lambda: page.findings() == before)
        page.one("#redo-button").click()
        page.wait(lambda: page.findings() == before - {TOO_CLOSE})

        page.one(f".finding[data-id='{TOO_NARROW}'] .suggest").click()
        page.wait(lambda: page.all(".ghost"))
        page.one(".take").click()
        page.wait(lambda: TOO_NARROW not in page.findings())

        self.choose(412)
        self.write("floors", "2")
        page.wait(lambda: TOO_FEW_STAIRS not in page.findings())

        page.press_together(Keys.CONTROL, "s")
        page.wait(lambda: page.one("#state").text == "")
        self.assertCountEqual(page.texts(), [finding["sentence"] for finding in checked(FIRECHECK, self.file)["findings"]])
        old, new = (path.read_text().splitlines() for path in (pathlib.Path(SITE), self.file))
        self.assertEqual(len([line for line in new if line not in old]), 3, "the lines of three objects")

    def test_edits_that_follow_at_once_are_kept_and_saved_before_the_end(self):
        page = self.open()
        self.choose(414)
        page.execute_script("document.querySelector('svg.plan').focus();")
        page.press(Keys.ARROW_UP)
        self.write("floors", "2")
        self.write("length", "29000")
        page.one("#field-depth").click()
        page.press_together(Keys.CONTROL, "a")
        page.press("7000")
        page.press_together(Keys.CONTROL, "s")
        wanted = {"center": [30000, 119000], "floors": 2, "length": 29000, "depth": 7000}
        saved = lambda: next(one for one in json.loads(self.file.read_text())["objects"] if one["handle"] == 414)
        page.wait(lambda: {key: saved()[key] for key in wanted} == wanted)
        page.wait(lambda: page.one("#state").text == "")
        page.one("#end-button").click()
        self.assertEqual(self.process.process.wait(timeout=10), 0)

    def test_a_drag_that_comes_close_is_held_just_far_enough(self):
        page = self.open()
        self.sentence(TOO_CLOSE).click()
        page.one("#step option[value='10']").click()
        page.drag("#e414 .element").by(0, -4).by(0, -3).drop()
        page.wait(lambda: page.one("#undo-button").is_enabled())
        held = page.object("414")["center"]
        page.drag("#e414 .element").by(0, 6).by(0, -1).drop()
        self.assertEqual((held[1], page.object("414")["center"][1]), (119000, 119000))

    def test_all_of_it_works_from_the_keyboard(self):
        page = self.open()
        page.execute_script("document.querySelector('svg.plan').focus();")
        page.press(Keys.ENTER)
        first = page.one(".choose select").get_property("value")
        page.press(Keys.TAB)
        self.assertNotEqual(page.one(".choose select").get_property("value"), first)
        self.choose(414)
        page.execute_script("document.querySelector('svg.plan').focus();")
        page.press(Keys.ARROW_UP)
        page.wait(lambda: TOO_CLOSE not in page.findings())
        page.press("r")
        page.wait(lambda: page.object("414").get("angle") == 15)
        self.assertEqual(page.object("414")["center"], [30000, 119000])
        page.press_together(Keys.CONTROL, "d")
        page.wait(lambda: page.one(".choose select").get_property("value") not in ("", "414"))
        copy = page.one(".choose select").get_property("value")
        self.assertEqual(page.object(copy)["class"], "prefabHouse")
        page.press(Keys.DELETE)
        page.wait(lambda: page.object(copy) is None)
        for _ in range(4):
            page.press_together(Keys.CONTROL, "z")
        page.wait(lambda: not page.one("#undo-button").is_enabled())
        self.assertNotIn("angle", page.object("414"))

    def test_turns_resizes_and_adds(self):
        page = self.open()
        self.choose(414)
        page.drag(".grip.turn").by(-40, 20).drop()
        page.wait(lambda: page.object("414").get("angle", 0) > 0)
        page.press_together(Keys.CONTROL, "z")
        page.wait(lambda: "angle" not in page.object("414"))
        page.drag(".grip[data-grip='2']").by(20, 0).by(10, -10).drop()
        page.wait(lambda: page.object("414")["length"] > 30000)
        changed = page.object("414")
        self.assertEqual([changed["center"][0] - changed["length"] / 2, changed["center"][1] - changed["depth"] / 2],
                         [15000, 115500], "the opposite corner stays")

        known = {entry["handle"] for entry in page.asked("api/site")[1]["objects"]}
        page.execute_async_script("""
            const done = arguments[0];
            const chooser = document.querySelector(".choose select");
            const { class: choice } = document.querySelector("#add").elements;
            const names = [...choice.options].map((option) => option.value);
            const add = () => {
                if (names.length === 0) return done();
                choice.value = names.pop();
                new MutationObserver((_, observer) => { observer.disconnect(); add(); }).observe(chooser, { childList: true });
                document.querySelector("#add").requestSubmit();
            };
            add();""")
        _, site = page.asked("api/site")
        added = [entry["object"]["class"] for entry in site["objects"] if entry["handle"] not in known]
        self.assertCountEqual(added, [entry["name"] for entry in site["classes"]])

    def test_a_wall_takes_its_doors_along(self):
        page = self.open()
        self.choose(106)
        page.execute_script("document.querySelector('svg.plan').focus();")
        page.press(Keys.ARROW_RIGHT)
        page.wait(lambda: page.object("114")["position"] == [66500, 112000])
        page.press("r")
        page.wait(lambda: page.object("114")["angle"] == 105)
        start, position = page.object("106")["start"], page.object("114")["position"]
        self.assertAlmostEqual(math.dist(start, position), 32000, delta=0.01)
        page.press_together(Keys.CONTROL, "d")
        page.wait(lambda: page.one(".choose select").get_property("value") not in ("", "106"))
        self.assertEqual(page.object(page.one(".choose select").get_property("value"))["doors"], [])
        for _ in range(3):
            page.press_together(Keys.CONTROL, "z")
        page.wait(lambda: not page.one("#undo-button").is_enabled())
        self.assertEqual(page.object("114")["position"], [66000, 112000])

    def test_the_list_is_filtered_and_leads_to_the_elements(self):
        page = self.open()
        rule = TOO_NARROW.split("/")[0]
        page.one(f".filters option[value='{rule}']").click()
        shown = [item.get_dom_attribute("data-id") for item in page.all(".finding") if item.is_displayed()]
        self.assertEqual(shown, [TOO_NARROW])
        page.one(".filters option[value='']").click()
        page.one(".filters [name=own]").click()
        page.execute_script("document.querySelector('svg.plan').focus();")
        page.press("n")
        handle = page.one(".choose select").get_property("value")
        self.assertTrue(all(item.is_displayed() == ("own" in item.get_dom_attribute("class")) for item in page.all(".finding")))
        self.assertIn(handle, page.one(".finding.current").get_dom_attribute("data-id"))
        page.one(".not-judged summary").click()
        page.one(".not-judged li:first-child .sentence").click()
        self.assertNotEqual(page.one(".choose select").get_property("value"), handle)

    def test_a_wrong_value_is_told_at_its_field(self):
        page = self.open()
        self.choose(412)
        self.write("length", "-5")
        page.wait(lambda: page.one("#problem-length").text != "")
        self.assertEqual(page.object("412")["length"], 30000)

    def test_unsaved_work_survives_a_reload(self):
        page = self.open()
        self.choose(1351)
        page.one("#remove-button").click()
        page.wait(lambda: page.object("1351") is None)
        kept = page.findings()
        page.open(self.process.address)
        self.assertEqual(page.findings(), kept)
        self.assertEqual(page.all("#e1351"), [])
        self.assertEqual(page.one("#state").text, "not saved")

    def test_does_not_overwrite_a_file_that_has_changed(self):
        page = self.open()
        self.choose(1351)
        page.one("#remove-button").click()
        page.wait(lambda: page.one("#state").text == "not saved")
        other = self.file.read_text().replace("Tower site", "Another site")
        self.file.write_text(other)
        page.one("#save-button").click()
        page.wait(lambda: "site.json" in self.told())
        self.assertEqual(self.file.read_text(), other)
        self.assertEqual(page.one("#state").text, "not saved")

    def test_a_killed_process_is_told_and_the_page_keeps_the_site(self):
        page = self.open()
        self.choose(1351)
        page.one("#remove-button").click()
        page.wait(lambda: page.object("1351") is None)
        self.process.process.send_signal(signal.SIGKILL)
        self.process.process.wait()
        self.choose(414)
        page.one("#turn-left-button").click()
        page.wait(lambda: "does not answer" in self.told())
        text = page.execute_async_script("""
            const done = arguments[0];
            HTMLAnchorElement.prototype.click = function () { fetched = this.href; };
            let fetched = null;
            const create = URL.createObjectURL;
            URL.createObjectURL = (blob) => { blob.text().then(done); return create(blob); };
            document.querySelector("#message .actions button:last-child").click();""")
        handles = [thing["handle"] for thing in json.loads(text)["objects"]]
        self.assertIn(414, handles)
        self.assertNotIn(1351, handles)

    def test_other_pages_and_large_bodies_change_nothing(self):
        page = self.open()
        address = self.process.address
        revision = page.asked("api/site")[1]["revision"]
        status, _ = page.asked("../" + "0" * 32 + "/api/site")
        self.assertEqual(status, 404)
        large = page.execute_async_script("""
            const done = arguments[0];
            fetch("api/change", { method: "POST", headers: { "Content-Type": "application/json" }, body: "x".repeat(1e8) })
                .then((answer) => done(answer.status), () => done("ended"));""")
        self.assertIn(large, (413, "ended"))
        other = http.server.ThreadingHTTPServer(("127.0.0.1", 0), OtherPage)
        threading.Thread(target=other.serve_forever, daemon=True).start()
        page.get(f"http://127.0.0.1:{other.server_port}/")
        for kind in ("application/json", "text/plain"):
            refused = page.execute_async_script("""
                const [address, kind, revision, done] = arguments;
                const body = JSON.stringify({ revision, changes: [{ handle: "414", object: null }] });
                fetch(`${address}api/change`, { method: "POST", headers: { "Content-Type": kind }, body })
                    .then((answer) => done(answer.type), () => done("refused"));""", address, kind, revision)
            self.assertEqual(refused, "refused")
        other.shutdown()
        other.server_close()
        page.get_log("browser")  # refusals of another origin are complaints as well
        page.open(address)
        self.assertEqual(page.asked("api/site")[1]["revision"], revision)

    def test_fits_a_phone_in_chinese(self):
        page = self.open("--lang", "zh_CN", width=390, height=800)
        self.choose(412)
        self.assertLessEqual(page.one("html").get_property("scrollWidth"), 390)
        untranslated = page.execute_script("""
            const texts = [...document.querySelectorAll("button, label, #add option, h2, h3, summary, p, td:last-child, output")]
                .flatMap((node) => [node.textContent, node.getAttribute("aria-label") ?? ""]);
            return texts.filter((text) => /[A-Za-z]{2}/.test(text) && text !== document.querySelector("#file").textContent && !/[\u4e00-\u9fff]/.test(text));""")
        self.assertEqual(untranslated, [])

    def test_has_every_sentence_in_its_table(self):
        process = self.enterContext(Process(FIRECHECK, self.file))
        with urllib.request.urlopen(process.address + "words.json") as answer:
            words = json.load(answer)
        used = re.findall(r'data-(?:text|label)="(.+?)"', (SOURCES / "index.html").read_text())
        for script in (SOURCES / "script").glob("*.js"):
            used += re.findall(r'words\.say\("(.+?)"', script.read_text())
        self.assertGreater(len(used), 50)
        self.assertEqual(set(used) - set(words["sentences"]), set())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
