#!/usr/bin/python3
"""What firecheck compare says of two checks of a site that has changed in between."""

import collections
import json
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest

FIRECHECK = sys.argv.pop(1)

RULES = """<R><G>
<Distant_FutureHouseToWoodYard Type="distant" ElementType="NUX_ELEMENT_TYPE_FUTUREHOUSE"
  ReferenceElementType="NUX_EDO_TYPE_WOODYARD" ConstraintCondition="less" DistantValue="7"/>
<Self_RoadMinWidth Type="self" ElementType="NUX_EDO_TYPE_ROAD"/>
<Position_DoorToDoor Type="position" ElementType="NUX_EDO_TYPE_DOOR" ReferenceElementType="NUX_EDO_TYPE_DOOR"/>
</G></R>"""


def yard(handle, x):
    return {"class": "woodYard", "handle": handle, "center": [x, 0], "length": 4000, "depth": 4000}


def site(*further, house=0, length=6000, width=3000):
    """A house 3 m west of a wood yard, and a narrow fire road far away."""
    return [{"class": "futureHouse", "handle": 1, "center": [house, 0], "length": length, "depth": 6000},
            yard(2, 8000),
            {"class": "road", "handle": 3, "fireRoad": True, "start": [0, 90000], "end": [50000, 90000], "width": width},
            *further]


def star(count, without=()):
    """Site walls from one corner, a gate in each, but for those of some gates."""
    objects = []
    for i in range(count):
        if 100 + i in without:
            continue
        x, y = 20000 * math.cos(2.4 * i), 20000 * math.sin(2.4 * i)
        objects += [{"class": "wall", "handle": 1000 + i, "start": [0, 0], "end": [x, y],
                     "doors": [{"distance": 10000, "door": 100 + i, "width": 900}]},
                    {"class": "door", "handle": 100 + i, "position": [x / 2, y / 2], "angle": 0, "leafWidth": 900}]
    return objects


class Compare(unittest.TestCase):
    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)
        self.write("rules.xml", RULES)

    def path(self, name):
        return str(pathlib.Path(self.directory.name) / name)

    def write(self, name, text):
        pathlib.Path(self.path(name)).write_text(text)

    def run_firecheck(self, *arguments):
        return subprocess.run([FIRECHECK, *arguments], capture_output=True, text=True, check=False, cwd=self.directory.name)

    def report(self, name, sites, *options):
        files = []
        for file, objects in sites.items():
            self.write(file, json.dumps({"objects": objects}))
            files.append(file)
        self.run_firecheck("check", *files, "--rules", "rules.xml", "--format", "json", "--output", name, *options)
        return name

    def compare(self, before, after):
        done = self.run_firecheck("compare", before, after, "--format", "json")
        counts = [{kind: value if kind == "unchanged" else len(value) for kind, value in one.items()
                   if kind not in ("file", "name") and value} for one in json.loads(done.stdout)["sites"]]
        return counts, done.returncode

    def test_changes(self):
        crossing = {"class": "futureHouse", "handle": 1, "polyline": [[0, 0], [20000, 0], [0, 10000], [20000, 10000]]}
        table = [
            ("nothing", site(), [{"unchanged": 2}], 0),
            ("closer", site(house=500), [{"worse": 1, "unchanged": 1}], 1),
            ("further, not far enough", site(house=-500), [{"better": 1, "unchanged": 1}], 0),
            ("far enough", site(house=-9000), [{"gone": 1, "unchanged": 1}], 0),
            ("a second yard", site(yard(4, -8000)), [{"worse": 1, "unchanged": 1}], 1),
            ("a wide road", site(width=4000), [{"gone": 1, "unchanged": 1}], 0),
            ("a second house", site({"class": "futureHouse", "handle": 5, "center": [16000, 0],
                                     "length": 6000, "depth": 6000}), [{"new": 1, "unchanged": 2}], 1),
            ("no house to speak of", [crossing, *site()[1:]], [{"noLongerJudged": 1, "unchanged": 1}], 1),
        ]
        before = self.report("before.json", {"plot.json": site()})
        for name, objects, expected, status in table:
            with self.subTest(name):
                after = self.report("after.json", {"plot-2.json": objects})
                self.assertEqual(self.compare(before, after), (expected, status))

    def test_sites_and_rules_that_one_report_lacks(self):
        both = self.report("both.json", {"a.json": site(), "b.json": site(house=500)})
        less = self.report("less.json", {"b.json": site(house=500), "c.json": site(width=5000)})
        self.assertEqual(self.compare(both, less), ([{"unchanged": 2}, {"new": 1}, {"noLongerJudged": 2}], 1))
        whole = self.report("whole.json", {"a.json": site()}, "--no-results")
        part = self.report("part.json", {"a.json": site()}, "--ignore", "Distant_*", "--no-results")
        self.assertEqual(self.compare(whole, part), ([{"noLongerJudged": 1, "unchanged": 1}], 1))

    def test_accepted_findings_do_not_count(self):
        before = self.report("before.json", {"a.json": site(house=-9000, width=5000)})
        self.write("accepted.json", json.dumps({"accepted": [
            {"rule": "Self_RoadMinWidth", "handles": ["3"], "reason": "short"}]}))
        after = self.report("after.json", {"a.json": site(house=-9000)}, "--accept", "accepted.json")
        self.assertEqual(self.compare(before, after), ([{"new": 1}], 0))

        self.report("all.json", {"a.json": star(24)}, "--write-accept", "empty.json")
        entries = json.loads(pathlib.Path(self.path("empty.json")).read_text())["accepted"]
        agreed = [{**entry, "reason": "agreed"} for entry in entries if entry["handles"] != ["100", "107"]]
        self.assertEqual(len(agreed), len(entries) - 1)  # one of the many by gate 107 is open before and after
        self.write("gates.json", json.dumps({"accepted": agreed}))
        for options in ((), ("--no-results",)):
            accept = ("--accept", "gates.json", *options)
            before = self.report("before.json", {"a.json": star(24, without=[103])}, *accept)
            after = self.report("after.json", {"a.json": star(24)}, *accept)
            self.assertEqual(self.compare(before, after)[1], 0)
            after = self.report("after.json", {"a.json": star(24)}, *options)
            self.assertEqual(self.compare(before, after)[1], 1)

    def test_elements_with_more_violations_than_are_told(self):
        reports = {}
        for name, gates in [("all", star(24)), ("mended", star(24, without=[103]))]:
            reports[name] = self.report(f"{name}.json", {"plot.json": gates})
            reports[f"{name} counted"] = self.report(f"{name}-counted.json", {"plot.json": gates}, "--no-results")
        sites = {name: json.loads(pathlib.Path(self.path(file)).read_text())["sites"][0] for name, file in reports.items()}
        violations = {name: one["violations"] for name, one in sites.items()}
        by_gate = {name: collections.Counter() for name in sites}
        for name, one in sites.items():
            for finding in one["findings"]:
                by_gate[name][finding["handle"]] += 1 + finding.get("further", 0)
        fewer = sum(0 < now < by_gate["all"][gate] for gate, now in by_gate["mended"].items())
        removed = violations["all"] - violations["mended"]
        of_gate = by_gate["all"]["103"]
        self.assertGreater(of_gate, 5)
        table = [
            ("all", "mended", {"gone": removed, "unchanged": violations["mended"]}, 0),
            ("mended", "all", {"new": removed, "unchanged": violations["mended"]}, 1),
            ("all", "all counted", {"unchanged": violations["all"]}, 0),
            ("all counted", "mended counted", {"better": fewer, "gone": 5, "unchanged": violations["mended"]}, 0),
            ("mended counted", "all counted", {"worse": fewer, "new": 5, "unchanged": violations["mended"]}, 1),
            ("all counted", "mended", {"better": fewer, "gone": 5, "unchanged": violations["mended"]}, 0),
        ]
        for before, after, expected, status in table:
            with self.subTest(f"{before}, {after}"):
                self.assertEqual(self.compare(reports[before], reports[after]), ([expected], status))
        text = self.run_firecheck("compare", reports["all counted"], reports["mended counted"]).stdout
        self.assertIn(f" {of_gate} gone", text)
        self.assertIn(f"\n    {of_gate - 5} more violations", text)

    def test_wrong_input(self):
        report = self.report("report.json", {"a.json": site()})
        self.write("other.json", '{"sites": [{"file": "a", "name": 7}]}')
        for arguments, expected in [((report,), "two JSON reports"), ((report, "other.json"), "other.json: /sites/0/name"),
                                    ((report, "a.json"), "a.json: /sites"), ((report, "none.json"), "none.json")]:
            done = self.run_firecheck("compare", *arguments)
            self.assertEqual((done.returncode, done.stdout), (2, ""))
            self.assertIn(expected, done.stderr)


if __name__ == "__main__":
    unittest.main()
