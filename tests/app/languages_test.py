#!/usr/bin/python3
"""That every sentence is translated, and that the Chinese rule file judges like the English one."""

import html.parser
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

FIRECHECK = sys.argv.pop(1)
ROOT = pathlib.Path(__file__).resolve().parents[2]
TRANSLATION = ROOT / "data/firecheck_zh_CN.ts"
# Latin letters that stand in a Chinese report: identifiers, rule names, keys, units, clauses and names of files.
TECHNICAL = re.compile(
    r"NUX_\w+|“\w+”|\([a-zA-Z]+\)|/objects/[\w/]+|(?:Self|Distant|Position|Without)_\w+|\S+\.(?:json|xml)|GB 50720|UTF-8|Ctrl|firecheck|lint-\w+|\b[a-z]+[A-Z]\w*|\bm\b|\bmm\b"
)


# One rule for each fixed limit that the linter names, and what else it finds.
WRONG_RULES = "<R><G>" + "".join(
    f'<{name} Type="{name.split("_")[0].lower()}" ElementType="NUX_EDO_TYPE_ROAD" DistantValue="7"/>'
    for name in ["Self_RoadMinWidth", "Self_RoadLoop", "Self_OneDoorToRoadLoop", "Self_PrefabHouseFloorArea",
                 "Self_PrefabHouseStairs", "Position_FireRoad", "Position_DoorToDoor", "Position_WireToWoodYard",
                 "Position_FireExtinguisherBoxToWoodYard", "Distant_FireRoadToWoodYard"]) + "<!-- --></G></R>"


def run(*arguments):
    done = subprocess.run([FIRECHECK, *arguments], capture_output=True, text=True, check=False)
    return done.stdout + done.stderr


class PageWords(html.parser.HTMLParser):
    """What a page says: its texts, and the attributes that are read out or that its scripts say."""

    def __init__(self):
        super().__init__()
        self.words, self.is_code = [], False

    def handle_starttag(self, tag, attrs):
        self.is_code = tag in ("style", "script")
        self.words += [value for name, value in attrs
                       if name in ("aria-label", "title", "placeholder", "alt") or name.startswith("data-")]

    def handle_endtag(self, tag):
        self.is_code = False

    def handle_data(self, data):
        self.words += [] if self.is_code else [data]


def words_of_page(page):
    parser = PageWords()
    parser.feed(page)
    return "\n".join(parser.words)


def rules(name):
    """Group and rule elements with what the library judges by, and the texts beside them."""
    judged, texts = [], []
    for group in ElementTree.parse(ROOT / "data" / name).getroot():
        for rule in group:
            attributes = dict(rule.attrib)
            standard = attributes.pop("Standard")
            judged.append((group.tag, rule.tag, attributes, re.findall(r"[\d.-]+", standard), [text.tag for text in rule]))
            texts += [text.text for text in rule]
    return judged, texts


class Languages(unittest.TestCase):
    def test_translation_is_up_to_date_and_complete(self):
        with tempfile.TemporaryDirectory() as directory:
            copy = pathlib.Path(directory) / "copy.ts"
            copy.write_bytes(TRANSLATION.read_bytes())
            subprocess.run([ROOT / "scripts/update-translations", copy], check=True, capture_output=True)
            self.assertEqual(copy.read_text(), TRANSLATION.read_text(), "run scripts/update-translations")
        messages = list(ElementTree.parse(TRANSLATION).iter("message"))
        self.assertGreater(len(messages), 300)
        for message in messages:
            source = message.find("source").text
            translation = message.find("translation")
            text = "".join(translation.itertext())
            self.assertNotIn("type", translation.attrib, source)
            self.assertTrue(text.strip(), source)
            self.assertEqual(set(re.findall(r"%[n\d]", text)), set(re.findall(r"%[n\d]", source)), source)

    def test_chinese_rule_file_differs_in_texts_alone(self):
        english, _ = rules("FireStandardCheck.xml")
        chinese, texts = rules("FireStandardCheck.zh_CN.xml")
        self.assertEqual(chinese, english)
        for text in texts:
            self.assertRegex(text, "[\u4e00-\u9fff]")
            self.assertIsNone(re.search("[A-Za-z]{3}", text), text)

    def test_chinese_example_differs_in_texts_alone(self):
        def objects(name):
            site = json.loads((ROOT / "examples" / name).read_text())["objects"]
            return [{key: value for key, value in thing.items() if key != "name"} for thing in site]

        self.assertEqual(objects("small-yard.zh_CN.json"), objects("small-yard.json"))

    def test_no_english_in_chinese_reports(self):
        with tempfile.TemporaryDirectory() as directory:
            for example in ["tower-site", "every-rule-offends"]:
                site = json.loads((ROOT / f"examples/{example}.json").read_text())
                site["name"] = "工地"
                for thing in site["objects"]:
                    thing["name"] = "某处"
                site["objects"].append({"class": "futureHouse", "handle": 99999, "polyline": [
                    [0, 0], [20000, 0], [0, 10000], [20000, 10000]]})
                # Kinds without a noun of their own are called by the end of their identifier.
                ends = {thing.get("identifier", "").split("_")[-1].lower() for thing in site["objects"]} - {""}
                classes = "|".join({thing["class"] for thing in site["objects"]} | ends)
                path = pathlib.Path(directory) / f"{example}.json"
                path.write_text(json.dumps(site))
                reports = {form: run("check", path, "--lang", "zh_CN", "--format", form, "--unjudged")
                           for form in ["text", "csv", "html"]}
                reports["csv"] = reports["csv"].split("\n", 1)[1]  # the columns keep their names
                self.assertIn('<html lang="zh-CN">', reports["html"])
                reports["html"] = words_of_page(reports["html"])
                reports["lint"] = run("lint-site", path, "--lang", "zh_CN")
                rules = pathlib.Path(directory) / "rules.xml"
                rules.write_text(WRONG_RULES)
                reports["rules"] = run("lint-rules", rules, "--lang", "zh_CN").replace(str(rules), "")
                for form, report in reports.items():
                    report = report.replace(str(path), "")
                    for line in report.splitlines():
                        left = re.sub(rf"\[[a-z-]+\]$|\b(?:{classes})\b", "", TECHNICAL.sub("", line))
                        self.assertIsNone(re.search("[A-Za-z]{2}.*[A-Za-z]{2}", left), f"{example}, {form}: {line}")


if __name__ == "__main__":
    unittest.main()
