"""The page of `firecheck edit` in a headless browser."""

import json
import pathlib
import re
import signal
import subprocess
import sys

from selenium import webdriver
from selenium.webdriver.support.ui import WebDriverWait

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))

from browser_window import BrowserWindow  # noqa: E402 pylint: disable=wrong-import-position

PATIENCE = 10  # s, far more than anything takes


class Process:
    """`firecheck edit` with a site. Use it in a with statement."""

    def __init__(self, firecheck, *arguments):
        self.process = subprocess.Popen([firecheck, "edit", *map(str, arguments)], stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        self.address = None
        while self.address is None:
            line = self.process.stdout.readline()
            assert line, "the process ended without an address"
            found = re.search(r"http://\S+", line)
            self.address = found and found[0]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end(signal.SIGTERM)

    def end(self, how):
        self.process.send_signal(how)
        self.process.wait()
        self.process.stdout.close()


class Page(BrowserWindow):
    """A window with the page."""

    def open(self, address, width=1280, height=800):
        self.resize(width, height)
        self.get(address)
        self.wait(lambda: self.execute_script("return document.documentElement.classList.contains('ready')"))

    def wait(self, condition):
        """Until the condition holds; answers what it answers."""
        return WebDriverWait(self, PATIENCE, poll_frequency=0.02).until(lambda _: condition())

    def press_together(self, held, key):
        webdriver.ActionChains(self, duration=0).key_down(held).send_keys(key).key_up(held).perform()

    def drag(self, selector):
        """Takes hold of the middle of a drawn thing; the answer moves it by pixels, and lets go."""
        return Drag(self, self.one(selector))

    def pixels_per_metre(self):
        return float(re.findall(r"[\d.e-]+", self.one(".ground").get_dom_attribute("transform"))[0]) * 1000

    def texts(self):
        """What the list says, in its order."""
        return self.execute_script(
            "return [...document.querySelectorAll('.finding .sentence')].map((sentence) => sentence.textContent);")

    def findings(self):
        return set(self.execute_script(
            "return [...document.querySelectorAll('.finding')].map((finding) => finding.dataset.id);"))

    def asked(self, path, body=None):
        """What the process answers to the page: status and JSON."""
        return self.execute_async_script("""
            const [path, body, done] = arguments;
            const request = body === null ? {}
                : { method: "POST", headers: { "Content-Type": "application/json" }, body: JSON.stringify(body) };
            fetch(path, request).then(async (answer) => done([answer.status, await answer.json()]));""", path, body)

    def object(self, handle):
        """An object as the process holds it."""
        _, site = self.asked("api/site")
        return next((entry["object"] for entry in site["objects"] if entry["handle"] == handle), None)

    def faults(self):
        """What the browser complains of, refused requests aside."""
        return [entry["message"] for entry in self.get_log("browser") if "Failed to load resource" not in entry["message"]]


class Drag:
    def __init__(self, page, element):
        self.page = page
        webdriver.ActionChains(page, duration=0).move_to_element(element).click_and_hold().perform()

    def by(self, right, down):
        webdriver.ActionChains(self.page, duration=0).move_by_offset(right, down).perform()
        return self

    def drop(self):
        webdriver.ActionChains(self.page, duration=0).release().perform()


def checked(firecheck, site):
    """The report that the checker writes of a site file."""
    run = subprocess.run([firecheck, "check", str(site), "--format", "json"], capture_output=True, check=False)
    return json.loads(run.stdout)["sites"][0]
