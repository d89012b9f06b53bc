"""A headless browser, driven through chromedriver with nothing but Python's own library."""

import json
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"

CHROMIUM_ARGUMENTS = [
    "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
    "--disable-background-networking", "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage",
]


def _free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Browser:
    """One window. Use it in a with statement; scripts of pages run unless told otherwise."""

    def __init__(self, width=1280, height=800, scripts=True, dark=False):
        self._profile = tempfile.TemporaryDirectory()
        port = _free_port()
        self._driver = subprocess.Popen(
            ["chromedriver", f"--port={port}"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._base = f"http://127.0.0.1:{port}"
        arguments = CHROMIUM_ARGUMENTS + [
            f"--user-data-dir={self._profile.name}", f"--window-size={width},{height}"]
        if dark:
            arguments.append("--blink-settings=preferredColorScheme=0")
        preferences = {} if scripts else {"profile.managed_default_content_settings.javascript": 2}
        options = {"args": arguments, "prefs": preferences}
        capabilities = {"alwaysMatch": {"browserName": "chrome", "goog:chromeOptions": options}}
        self._await_driver()
        session = self._call("POST", "/session", {"capabilities": capabilities})
        self._session = "/session/" + session["sessionId"]
        self.command("Emulation.setDeviceMetricsOverride",
                     width=width, height=height, deviceScaleFactor=1, mobile=False)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self._call("DELETE", self._session)
        finally:
            self._driver.terminate()
            self._driver.wait()
            self._profile.cleanup()

    def _await_driver(self, seconds=60):
        end = time.monotonic() + seconds
        while True:
            try:
                if self._call("GET", "/status")["ready"]:
                    return
            except OSError:
                if time.monotonic() > end:
                    raise
            time.sleep(0.1)

    def _call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self._base + path, data, {"Content-Type": "application/json"}, method=method)
        try:
            with urllib.request.urlopen(request, timeout=300) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise RuntimeError(error.read().decode()) from error

    def open(self, url):
        self._call("POST", self._session + "/url", {"url": url})

    def command(self, name, **parameters):
        """A command of the browser's own protocol."""
        return self._call("POST", self._session + "/goog/cdp/execute", {"cmd": name, "params": parameters})

    def all(self, selector):
        found = self._call("POST", self._session + "/elements", {"using": "css selector", "value": selector})
        return [Element(self, one[ELEMENT]) for one in found]

    def one(self, selector):
        found = self.all(selector)
        assert len(found) == 1, f"{len(found)} elements match {selector}"
        return found[0]

    def run(self, script):
        """Runs a function body in the page and answers what it returns."""
        return self._call("POST", self._session + "/execute/sync", {"script": script, "args": []})

    def active(self):
        return Element(self, self._call("GET", self._session + "/element/active")[ELEMENT])

    def press(self, *keys):
        """Presses keys one after another, wherever the focus is."""
        actions = [{"type": kind, "value": key} for key in keys for kind in ("keyDown", "keyUp")]
        self._call("POST", self._session + "/actions",
                   {"actions": [{"type": "key", "id": "keyboard", "actions": actions}]})


class Element:
    def __init__(self, browser, identity):
        self._browser = browser
        self._path = f"{browser._session}/element/{identity}"

    def _get(self, what):
        return self._browser._call("GET", f"{self._path}/{what}")

    def click(self):
        self._browser._call("POST", self._path + "/click", {})

    def attribute(self, name):
        return self._get("attribute/" + name)

    def value(self, name):
        return self._get("property/" + name)

    def css(self, name):
        return self._get("css/" + name)

    @property
    def text(self):
        return self._get("text")

    @property
    def is_shown(self):
        return self._get("displayed")

    @property
    def classes(self):
        return (self.attribute("class") or "").split()
