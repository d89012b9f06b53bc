#!/usr/bin/python3
"""Distance rules between plain footprints as people write them with common tools: distance_rules.py FIRECHECK SITE...

Runs six rules of the shipped file on each site by the checker, by Shapely with its tree and by PostGIS with its index,
each as one process from the site file to the offending pairs, and compares the pairs. Prints a row of a Markdown table for
each site: milliseconds, the median of five runs. A tool that is not installed has no figure. Shapely and PostGIS take arcs
as 64 chords a quarter. Exit status 1 when pairs differ.
"""
import json
import math
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
import warnings

REFERENCES = {"woodYard": "NUX_EDO_TYPE_WOODYARD", "templateYard": "NUX_EDO_TYPE_TEMPLATEYARD",
              "electricalMechanicalYard": "NUX_EDO_TYPE_ELECTRICALMECHANICALYARD"}
FIRSTS = {"futureHouse": "NUX_ELEMENT_TYPE_FUTUREHOUSE",
          "transformerSubstation": "NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION"}
METRES = {"futureHouse": {"woodYard": 10, "templateYard": 10, "electricalMechanicalYard": 6},
          "transformerSubstation": {"woodYard": 7, "templateYard": 7, "electricalMechanicalYard": 4}}
RULES = [(first, other, metres) for first, others in METRES.items() for other, metres in others.items()]
RUNS = 5
CHORDS = 64


def rule_file():
    rows = [f'<Distant_{first}To{other} Type="distant" ElementType="{FIRSTS[first]}" ReferenceElementType="'
            f'{REFERENCES[other]}" ConstraintCondition="less" DistantValue="{metres}"/>' for first, other, metres in RULES]
    return "<Rules><Distances>" + "".join(rows) + "</Distances></Rules>"


def chord_points(start, end, bulge):
    """The points of an edge but its end."""
    if bulge == 0:
        return [start]
    middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
    off = (1 - bulge * bulge) / (4 * bulge)
    centre = (middle[0] - (end[1] - start[1]) * off, middle[1] + (end[0] - start[0]) * off)
    radius = math.dist(centre, start)
    first = math.atan2(start[1] - centre[1], start[0] - centre[0])
    sweep = 4 * math.atan(bulge)
    count = max(2, math.ceil(abs(sweep) / (math.pi / 2) * CHORDS))
    return [(centre[0] + radius * math.cos(first + sweep * i / count), centre[1] + radius * math.sin(first + sweep * i / count))
            for i in range(count)]


def footprint(element):
    """Corners in millimetres."""
    if "circle" in element:
        (x, y), radius = element["circle"]["center"][:2], element["circle"]["radius"]
        return chord_points((x - radius, y), (x + radius, y), 1) + chord_points((x + radius, y), (x - radius, y), 1)
    if "polyline" in element:
        points = element["polyline"]
        return [corner for a, b in zip(points, points[1:] + points[:1])
                for corner in chord_points(a[:2], b[:2], a[2] if len(a) > 2 else 0)]
    x, y = element["center"][:2]
    cosine, sine = math.cos(math.radians(element.get("angle", 0))), math.sin(math.radians(element.get("angle", 0)))
    half = element["length"] / 2, element["depth"] / 2
    return [(x + u * half[0] * cosine - v * half[1] * sine, y + u * half[0] * sine + v * half[1] * cosine)
            for u, v in ((-1, -1), (1, -1), (1, 1), (-1, 1))]


def footprints(site):
    with open(site, encoding="utf-8") as file:
        objects = json.load(file)["objects"]
    return [(each["handle"], each["class"], footprint(each)) for each in objects
            if each["class"] in FIRSTS or each["class"] in REFERENCES]


def by_shapely(site):
    from shapely.geometry import Polygon, box
    from shapely.strtree import STRtree
    warnings.simplefilter("ignore")  # of the next version's ways
    polygons = {}
    for handle, name, corners in footprints(site):
        polygons.setdefault(name, []).append((handle, Polygon(corners)))
    pairs = set()
    trees = {}
    for other in REFERENCES:
        shapes = [shape for _, shape in polygons.get(other, [])]
        trees[other] = STRtree(shapes), {id(shape): handle for handle, shape in polygons.get(other, [])}
    for first, other, metres in RULES:
        reach = metres * 1000
        tree, handles = trees[other]
        for handle, shape in polygons.get(first, []):
            west, south, east, north = shape.bounds
            for near in tree.query(box(west - reach, south - reach, east + reach, north + reach)):
                if shape.distance(near) < reach:
                    pairs.add((handle, handles[id(near)]))
    return pairs


def by_postgis(site):
    lines = ["\\set QUIET on", "\\pset format unaligned", "\\pset tuples_only on", "DROP TABLE IF EXISTS footprint;",
             "CREATE TABLE footprint (handle bigint, class text, shape geometry);", "COPY footprint FROM stdin;"]
    for handle, name, corners in footprints(site):
        ring = ",".join(f"{x!r} {y!r}" for x, y in corners + corners[:1])
        lines.append(f"{handle}\t{name}\tPOLYGON(({ring}))")
    lines += ["\\.", "CREATE INDEX ON footprint USING gist (shape);", "ANALYZE footprint;"]
    for first, other, metres in RULES:
        lines.append(f"SELECT a.handle, b.handle FROM footprint a JOIN footprint b ON ST_DWithin(a.shape, b.shape, {metres * 1000})"
                     f" AND ST_Distance(a.shape, b.shape) < {metres * 1000} WHERE a.class = '{first}' AND b.class = '{other}';")
    result = subprocess.run(["psql", "-q", "-v", "ON_ERROR_STOP=1"], input="\n".join(lines), text=True, check=True,
                            capture_output=True)
    return {tuple(map(int, line.split("|"))) for line in result.stdout.split()}


def by_checker(checker, rules, site):
    result = subprocess.run([checker, "check", site, "--rules", rules, "--format", "json"], text=True, capture_output=True)
    report = json.loads(result.stdout)["sites"][0]
    return {(int(record["handle"]), int(other)) for entry in report["results"] for record in entry["records"]
            for other in record["relatedHandles"]}


def median_milliseconds(command):
    times = []
    for _ in range(RUNS):
        start = time.perf_counter()
        subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        times.append(time.perf_counter() - start)
    return f"{statistics.median(times) * 1000:.0f}"


def has_shapely():
    try:
        import shapely  # noqa: F401
    except ImportError:
        return False
    return True


def has_postgis():
    return bool(shutil.which("psql")) and subprocess.run(
        ["psql", "-qc", "CREATE EXTENSION IF NOT EXISTS postgis"], stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL).returncode == 0


def main(checker, sites):
    peers = {name: way for name, way, is_there in (("shapely", by_shapely, has_shapely()),
                                                   ("postgis", by_postgis, has_postgis())) if is_there}
    same = True
    print("| objects | pairs | checker, ms | Shapely, ms | PostGIS, ms |\n|---|---:|---:|---:|---:|")
    with tempfile.NamedTemporaryFile("w", suffix=".xml") as rules:
        rules.write(rule_file())
        rules.flush()
        for site in sites:
            wanted = by_checker(checker, rules.name, site)
            row = [re.sub(r"\D", "", os.path.basename(os.path.dirname(site))), str(len(wanted)),
                   median_milliseconds([checker, "check", site, "--rules", rules.name, "--format", "json"])]
            for name in ("shapely", "postgis"):
                row.append(median_milliseconds([sys.executable, __file__, "--by", name, site]) if name in peers else "")
                if name in peers and peers[name](site) != wanted:
                    print(f"{site}: {name} finds {sorted(peers[name](site) ^ wanted)} otherwise", file=sys.stderr)
                    same = False
            print("| " + " | ".join(row) + " |")
    return 0 if same else 1


if __name__ == "__main__":
    if len(sys.argv) == 4 and sys.argv[1] == "--by":
        print(len({"shapely": by_shapely, "postgis": by_postgis}[sys.argv[2]](sys.argv[3])))
    elif len(sys.argv) > 2:
        sys.exit(main(sys.argv[1], sys.argv[2:]))
    else:
        sys.exit(__doc__)
