"""What the tests of pages share."""

from selenium import webdriver
from selenium.webdriver.common.by import By


class BrowserWindow(webdriver.Chrome):
    """A headless window. Scripts of pages run unless told otherwise."""

    def __init__(self, scripts=True):
        self.runs_scripts = scripts
        options = webdriver.ChromeOptions()
        for argument in ("headless=new", "no-sandbox", "disable-dev-shm-usage", "disable-background-networking"):
            options.add_argument("--" + argument)
        if not scripts:
            options.add_experimental_option("prefs", {"profile.managed_default_content_settings.javascript": 2})
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        super().__init__(options=options)

    def resize(self, width, height):
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
