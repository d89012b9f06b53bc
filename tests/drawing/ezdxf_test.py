#!/usr/bin/python3
"""Drawings as an independent library writes them, and what it finds in those that the checker writes.

ezdxf_test.py FIRECHECK EXAMPLES_DIRECTORY
"""

import json
import logging
import math
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import ezdxf

FIRECHECK, EXAMPLES = sys.argv[1], pathlib.Path(sys.argv[2])
VERSIONS = ["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]


def run(*words, status=0):
    done = subprocess.run([FIRECHECK, *map(str, words)], capture_output=True, encoding="utf-8")
    if done.returncode != status:
        raise AssertionError(f"{words}: status {done.returncode}\n{done.stdout[-2000:]}{done.stderr}")
    return done


def audited(name):
    document = ezdxf.readfile(name)
    auditor = document.audit()
    return document, [error.message for error in auditor.errors + auditor.fixes]


class InADirectory(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.path = pathlib.Path(directory.name)

    def results(self, site):
        return json.loads(run("check", site, "--format", "json", status=1).stdout)["sites"][0]["results"]

    def site(self, document, *options, encoding=None):
        """What is imported of a drawing, by handle, and what is told about it."""
        name = self.path / "drawing.dxf"
        document.saveas(name, encoding=encoding)
        done = run("import", name, *options)
        return {row.pop("handle"): row for row in json.loads(done.stdout)["objects"]}, done.stderr


class Exported(InADirectory):
    def test_reads_back_equal_from_every_version(self):
        table = EXAMPLES / "layers/chinese.json"
        for options in [[], ["--layers", table]]:
            for name in ["tower-site", "every-rule-offends"]:
                site = EXAMPLES / f"{name}.json"
                drawing = self.path / "site.dxf"
                run("export", site, "-o", drawing, *options)
                document, complaints = audited(drawing)
                self.assertEqual(complaints, [])
                expected = self.results(site)
                for version in VERSIONS:
                    document.dxfversion = version
                    document.saveas(self.path / "saved.dxf")
                    with self.subTest(site=name, version=version, options=options):
                        self.assertEqual(self.results(self.path / "saved.dxf"), expected)
                        imported = json.loads(run("import", self.path / "saved.dxf").stdout)
                        self.assertEqual(imported, json.loads(site.read_text("utf-8")))

    def test_edited_shapes_go_before_what_was_exported(self):
        (self.path / "site.json").write_text(json.dumps({"objects": [
            {"class": "prefabHouse", "handle": 20, "use": "office", "floors": 3, "name": "A", "center": [8000, 3000],
             "length": 6000, "depth": 16000, "angle": 450},
            {"class": "building", "handle": 21, "identifier": "NUX_ELEMENT_TYPE_PARK", "shapeKind": "polyline",
             "polyline": [[0, 0], [9000, 0], [9000, 5000], [0, 5000]]}]}))
        run("export", self.path / "site.json", "-o", self.path / "site.dxf")
        document = ezdxf.readfile(self.path / "site.dxf")
        for entity in document.modelspace().query("POLYLINE"):
            for vertex in entity.vertices:
                vertex.dxf.location += (1000, 0, 0)
        site, _ = self.site(document)
        self.assertEqual(site[20], {"class": "prefabHouse", "name": "A", "center": [9000, 3000], "length": 6000,
                                    "depth": 16000, "angle": 450, "use": "office", "floors": 3})
        self.assertEqual(site[21]["polyline"][0], [1000, 0])
        self.assertNotIn("center", site[21])


class Overlay(InADirectory):
    def test_is_a_sound_drawing_of_the_findings(self):
        site = EXAMPLES / "tower-site.json"
        run("check", site, "--format", "dxf", "-o", self.path / "found.dxf", status=1)
        document, complaints = audited(self.path / "found.dxf")
        self.assertEqual(complaints, [])
        report = json.loads(run("check", site, "--format", "json", status=1).stdout)["sites"][0]
        layers = {layer.dxf.name for layer in document.layers if layer.dxf.name.startswith("FC-")}
        rules = {record["name"] for filed in report["results"] for record in filed["records"]}
        self.assertEqual(len(layers), len(rules) + 1)
        texts = [text.dxf.text for text in document.modelspace().query("TEXT")]
        for expected in ["3.50 m (at least 4.00 m)", "21"]:
            self.assertIn(expected, texts)
        # The gap between two dormitories of 6 m depth, 10 m apart, and their outlines with gallery.
        line = next(line for line in document.modelspace().query("LINE")
                    if line.dxf.layer.endswith("-PrefabHouseToPrefabHouse"))
        self.assertAlmostEqual((line.dxf.start - line.dxf.end).magnitude, 3500, places=5)

    def test_rules_have_the_colours_of_the_page(self):
        light = (EXAMPLES / "../app/report/plan/plan.css").read_text("utf-8").split("@media")[0]
        palette = re.findall(r"\.c\d \{ --rule: #([0-9a-f]{6}); \}", light)
        run("check", EXAMPLES / "every-rule-offends.json", "--format", "dxf", "-o", self.path / "found.dxf", status=1)
        document = ezdxf.readfile(self.path / "found.dxf")
        colours = {int(layer.dxf.name[3:5]): "%02x%02x%02x" % layer.rgb
                   for layer in document.layers if re.match("FC-(?!00)", layer.dxf.name)}
        self.assertGreater(len(colours), len(palette))
        self.assertEqual(colours, {rule: palette[(rule - 1) % len(palette)] for rule in colours})

    def test_has_the_unit_of_the_drawing(self):
        document = ezdxf.new("R2010")
        document.header["$INSUNITS"] = 6
        space = document.modelspace()
        for y in [0, 8]:
            space.add_lwpolyline([(0, y), (16, y), (16, y + 6), (0, y + 6)], close=True, dxfattribs={"layer": "DORMITORIES"})
        document.saveas(self.path / "metres.dxf")
        run("check", self.path / "metres.dxf", "--format", "dxf", "-o", self.path / "found.dxf", status=1)
        found, complaints = audited(self.path / "found.dxf")
        self.assertEqual((complaints, found.header["$INSUNITS"]), ([], 6))
        outline = found.modelspace().query('POLYLINE[layer ? ".*PrefabHouseToPrefabHouse$"]').first
        self.assertLess(max(vertex.dxf.location.x for vertex in outline.vertices), 20)


class Drawn(InADirectory):
    """Each drawing means what its lines say, whoever draws it."""

    def test_blocks_mirrored_turned_and_nested(self):
        document = ezdxf.new("R2010", units=1)  # inches
        house = document.blocks.new("Office 8x5", base_point=(0, 0))
        house.add_lwpolyline([(0, 0), (315, 0), (315, 197), (0, 197)], close=True)
        house.add_attdef("FLOORS", (0, 0))
        box = document.blocks.new("EXTINGUISHER")
        box.add_lwpolyline([(-12, -5), (12, -5), (12, 5), (-12, 5)], close=True)
        group = document.blocks.new("CORNER")
        group.add_blockref("EXTINGUISHER", (100, 0), dxfattribs={"rotation": 90})
        group.add_lwpolyline([(0, 0, 1), (200, 0, 0), (200, 100, 0), (0, 100, 0)], format="xyb", close=True,
                             dxfattribs={"layer": "LAWN"})
        space = document.modelspace()
        for at, scale, rotation in [((0, 0), (1, 1), 0), ((2000, 0), (-1, 1), 0), ((4000, 0), (1, 1), 90)]:
            insert = space.add_blockref("Office 8x5", at, dxfattribs={
                "xscale": scale[0], "yscale": scale[1], "rotation": rotation, "layer": "0"})
            insert.add_attrib("FLOORS", "2")
            insert.add_attrib("LEAF", "x")
        mirrored = space.add_blockref("CORNER", (0, 5000), dxfattribs={"extrusion": (0, 0, -1)})
        site, told = self.site(document)
        houses = [row for row in site.values() if row["class"] == "prefabHouse"]
        self.assertEqual([row.get("angle", 0) for row in houses], [0, 0, 90])
        self.assertEqual([row["center"] for row in houses], [[4000.5, 2501.9], [46799.5, 2501.9], [99098.1, 4000.5]])
        self.assertEqual({(row["length"], row["depth"], row["floors"]) for row in houses}, {(8001, 5003.8, 2)})
        lawn = next(row for row in site.values() if row["class"] == "building")
        self.assertEqual(lawn["polyline"], [[0, 127000, -1], [-5080, 127000], [-5080, 129540], [0, 129540]])
        fire = next(row for row in site.values() if row["class"] == "extinguisherBox")
        self.assertEqual((fire["position"], fire["length"], fire["depth"]), ([-2540, 127000], 609.6, 254))
        self.assertIn('3 attributes "LEAF" of block "Office 8x5"', told)
        self.assertTrue(mirrored.dxf.handle)

    def test_routes_walls_and_doors(self):
        document = ezdxf.new("R2000", units=4)
        space = document.modelspace()
        road = space.add_lwpolyline([(0, 0, 0), (20000, 0, math.tan(math.pi / 8)), (30000, 10000, 0)], format="xyb",
                                    dxfattribs={"layer": "FIRE-ROADS", "const_width": 5000})
        arc = space.add_arc((0, 0), 10000, 300, 390, dxfattribs={"layer": "ROADS"})
        wall = space.add_polyline2d([(0, 50000), (60000, 50000), (60000, 90000)], dxfattribs={"layer": "围墙"})
        gate = space.add_line((27000, 50000), (33000, 50000), dxfattribs={"layer": "大门"})
        symbol = document.blocks.new("GATE")
        symbol.add_line((0, 0), (4000, 0))
        symbol.add_arc((0, 0), 4000, 0, 90)
        swung = space.add_blockref("GATE", (60300, 70000), dxfattribs={"rotation": 90})
        site, told = self.site(document)
        number = lambda entity: int(entity.dxf.handle, 16)
        self.assertEqual(site[number(road)], {"class": "road", "fireRoad": True, "start": [0, 0], "end": [20000, 0],
                                              "width": 5000})
        bend = next(row for row in site.values() if row.get("end") == [30000, 10000])
        self.assertAlmostEqual(bend["through"][0], 20000 + 10000 * math.sin(math.pi / 4), places=5)
        for row, key, degrees in [(site[number(arc)], "start", 300), (site[number(arc)], "end", 30),
                                  (site[number(arc)], "through", 345)]:
            self.assertAlmostEqual(row[key][0], 10000 * math.cos(math.radians(degrees)), places=5)
            self.assertAlmostEqual(row[key][1], 10000 * math.sin(math.radians(degrees)), places=5)
        self.assertEqual(site[number(wall)]["doors"], [{"distance": 30000, "width": 6000, "door": number(gate)}])
        side = next(row for row in site.values() if row.get("start") == [60000, 50000])
        self.assertEqual(side["doors"][0]["door"], number(swung))
        self.assertEqual((site[number(swung)]["position"], site[number(swung)]["angle"]), ([60000, 72000], 90))
        self.assertEqual(told, "")

    def test_names_and_what_is_not_taken_up(self):
        document = ezdxf.new("R2010", units=4)
        space = document.modelspace()
        cosine, sine = 0.8, 0.6
        corners = [(x * cosine - y * sine, x * sine + y * cosine) for x, y in [(0, 0), (0, 6000), (16000, 6000), (16000, 0)]]
        house = space.add_lwpolyline(corners, close=True, dxfattribs={"layer": "宿舍"})
        space.add_mtext(r"{\fSimSun|b0;\H700;3\~号\P宿舍}", dxfattribs={"insert": (5000, 6000), "layer": "文字",
                                                                  "char_height": 700})
        space.add_text("small", dxfattribs={"insert": (5500, 6500), "height": 200, "layer": "文字"})
        for start, end in [((50000, 0), (59000, 0)), ((59000, 6000), (59000, 0)), ((50000, 6000), (59000, 6000)),
                           ((50000, 6000), (50000, 0))]:
            space.add_line(start, end, dxfattribs={"layer": "HOUSES"})
        space.add_text("食堂", dxfattribs={"insert": (52000, 3000), "height": 500})
        space.add_hatch(dxfattribs={"layer": "宿舍"})
        space.add_circle((0, 0), 50, dxfattribs={"layer": "trees"})
        space.add_line((0, 0), (1, 1), dxfattribs={"layer": "Defpoints"})
        document.layers.add("old").off()
        space.add_line((0, 0), (1, 1), dxfattribs={"layer": "old"})
        site, told = self.site(document)
        row = site[int(house.dxf.handle, 16)]
        self.assertEqual((row["name"], row["length"], row["depth"], row["angle"]), ("3 号 宿舍", 16000, 6000, 36.869897646))
        canteen = next(row for row in site.values() if row["class"] == "closedHouse")
        self.assertEqual((canteen["use"], canteen["center"], canteen["length"]), ("食堂", [54500, 3000], 9000))
        for expected in ["1 HATCH on layer \"宿舍\"", "1 CIRCLE on layer \"trees\"", "1 TEXT on layer \"文字\"",
                         "1 LINE on layer \"old\""]:
            self.assertIn(expected, told)
        self.assertNotIn("Defpoints", told)

    def test_planners_table_and_extended_data(self):
        document = ezdxf.new("R2010", units=6)
        document.appids.add("FIRECHECK")
        space = document.modelspace()
        square = lambda x: space.add_lwpolyline([(x, 0), (x + 9, 0), (x + 9, 6), (x, 6)], close=True,
                                                dxfattribs={"layer": "A-1"})
        plain, told = square(0), square(20)
        told.set_xdata("FIRECHECK", [(1000, "CLASS=closedHouse"), (1000, "USE=厕所"), (1000, "ELEVATION=3")])
        (self.path / "map.json").write_text(json.dumps({"rows": [
            {"layers": "a_?", "class": "prefabHouse", "use": "dormitory", "floors": 2}]}))
        site, _ = self.site(document, "--layers", self.path / "map.json")
        self.assertEqual(site[int(plain.dxf.handle, 16)],
                         {"class": "prefabHouse", "center": [4500, 3000], "length": 9000, "depth": 6000,
                          "use": "dormitory", "floors": 2})
        self.assertEqual(site[int(told.dxf.handle, 16)],
                         {"class": "closedHouse", "center": [24500, 3000], "length": 9000, "depth": 6000,
                          "elevation": 3000, "use": "厕所"})

    def test_texts_in_every_encoding(self):
        # What the header says, and the bytes that are saved.
        for version, said, saved in [("R12", "gbk", None), ("R2000", "gbk", None), ("R2000", "cp1252", None),
                                     ("R2018", "utf-8", None), ("R2000", "cp1252", "gbk"), ("R2004", "cp1252", "utf-8"),
                                     ("R2004", "gbk", "utf-8"), ("R2018", "utf-8", "gbk")]:
            with self.subTest(version=version, said=said, saved=saved):
                document = ezdxf.new(version, units=4)
                document.encoding = said
                if version != "R12":
                    document.header["$INSUNITS"] = 4
                document.modelspace().add_circle((0, 0), 4000, dxfattribs={"layer": "消防水池"})
                document.modelspace().add_text("一号水池", dxfattribs={"insert": (0, 0), "height": 500})
                site, told = self.site(document, encoding=saved)
                self.assertEqual([row["name"] for row in site.values()], ["一号水池"])
                self.assertEqual(next(iter(site.values()))["circle"], {"center": [0, 0], "radius": 4000})
                self.assertEqual("--encoding decides" in told, saved is not None)

    def test_wrong_code_page_and_wrong_unit_are_doubted(self):
        document = ezdxf.new("R2000", units=4)
        document.header["$DWGCODEPAGE"] = "ANSI_1252"
        document.modelspace().add_lwpolyline([(0, 0), (16, 0), (16, 6), (0, 6)], close=True,
                                             dxfattribs={"layer": "宿舍"})
        document.encoding = "gbk"
        name = self.path / "doubtful.dxf"
        document.saveas(name)
        text = name.read_bytes().replace(b"ANSI_936", b"ANSI_1252")
        name.write_bytes(text)
        done = run("import", name)
        self.assertIn("GB18030", done.stderr)
        self.assertIn('did you mean "m"?', done.stderr)
        self.assertEqual([row["class"] for row in json.loads(done.stdout)["objects"]], ["prefabHouse"])
        self.assertNotIn("encod", run("import", name, "--encoding", "GBK").stderr)


logging.disable(logging.WARNING)
unittest.main(argv=sys.argv[:1])
