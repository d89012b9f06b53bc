#!/usr/bin/python3
"""How long findings take to follow the pointer: pointer_latency.py FIRECHECK [OBJECTS...].

Drags a house through sites of so many objects in headless Chromium, a step each frame, and prints a table: from the time of
the pointer's last event before each question to the next frame that shows the answer, in milliseconds.
"""

import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests/edit"))

from edit_page import Page, Process  # noqa: E402 pylint: disable=wrong-import-position

STEPS = 120
FRAME = 1 / 60  # s

# Times every question of a drag: when the pointer moved, when the answer had arrived, and when a frame had shown it.
WATCH = """
    window.measured = [];
    let pointed = 0;
    addEventListener("pointermove", (event) => { pointed = event.timeStamp; }, { capture: true });
    const ask = window.fetch;
    window.fetch = async (path, request) => {
        const times = { pointed, asked: performance.now() };
        const answer = await ask(path, request);
        if (!path.endsWith("/try")) return answer;
        const body = await answer.json();
        times.answered = performance.now();
        times.judged = body.verdict.judgedMs;
        requestAnimationFrame(() => {
            const channel = new MessageChannel();
            channel.port1.onmessage = () => { times.shown = performance.now(); window.measured.push(times); };
            channel.port2.postMessage(null);
        });
        return { ok: answer.ok, status: answer.status, json: () => Promise.resolve(body) };
    };"""


def pointer(page, kind, x, y):
    page.execute_cdp_cmd("Input.dispatchMouseEvent", {
        "type": kind, "x": x, "y": y, "button": "left", "buttons": 0 if kind == "mouseReleased" else 1, "clickCount": 1})


def drag(page, handle):
    """Times of one drag to and fro."""
    page.one(f".choose option[value='{handle}']").click()
    box = page.one(f"#e{handle} .element").rect
    x, y = box["x"] + box["width"] / 2, box["y"] + box["height"] / 2
    page.execute_script(WATCH)
    pointer(page, "mousePressed", x, y)
    begin = time.monotonic()
    for step in range(STEPS):
        swing = step % 40 if step % 80 < 40 else 40 - step % 40
        pointer(page, "mouseMoved", x + 5 + swing, y + 5)
        time.sleep(max(0, begin + (step + 1) * FRAME - time.monotonic()))
    page.wait(lambda: page.execute_script("return window.measured.length") > 5)
    pointer(page, "mouseReleased", x, y)
    return page.execute_script("return window.measured;")


def row(objects, times):
    def middle(since, to):
        return statistics.median(entry[to] - entry[since] for entry in times)

    total = sorted(entry["shown"] - entry["pointed"] for entry in times)
    return (f"| {objects} | {middle('pointed', 'asked'):.0f} | {middle('asked', 'answered'):.0f} "
            f"| {statistics.median(entry['judged'] for entry in times):.0f} | {middle('answered', 'shown'):.0f} "
            f"| {statistics.median(total):.0f} | {total[len(total) * 9 // 10]:.0f} |")


def main(firecheck, sizes):
    print("| objects | until asked | until answered | of which judging | until shown | pointer to finding | nine in ten below |\n"
          "|---|---:|---:|---:|---:|---:|---:|")
    for objects in sizes:
        with tempfile.TemporaryDirectory() as directory:
            subprocess.run([ROOT / "scripts/make-sites", directory, "1", str(objects)], check=True)
            with Page() as page, Process(firecheck, pathlib.Path(directory) / "site0001.json") as process:
                page.open(process.address)
                handle = page.execute_script("""
                    const houses = document.querySelectorAll(".element.house");
                    return houses[0].closest(".thing").dataset.handle;""")
                print(row(objects, drag(page, handle)), flush=True)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    main(sys.argv[1], [int(size) for size in sys.argv[2:]] or [150, 1000, 3000])
