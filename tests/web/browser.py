"""A browser without a display."""
import time

from selenium import webdriver
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

KEYS = {"Enter": Keys.ENTER, "Escape": Keys.ESCAPE, "ArrowUp": Keys.ARROW_UP, "F1": Keys.F1}


class Browser(webdriver.Chrome):
    """One session of Chromium."""

    def __init__(self):
        options = webdriver.ChromeOptions()
        for argument in ("headless=new", "no-sandbox", "use-angle=swiftshader",
                         "enable-unsafe-swiftshader", "window-size=1000,900"):
            options.add_argument(f"--{argument}")
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        super().__init__(options=options)

    def run(self, script, *arguments):
        """Returns what the script returns; waits for it if that is a promise."""
        return self.execute_script(script, *arguments)

    def wait(self, condition, seconds=30):
        """Waits until the JavaScript expression is true."""
        end = time.monotonic() + seconds
        while not self.run(f"return Boolean({condition})"):
            if time.monotonic() > end:
                page = self.run("return document.body.innerText")
                messages = self.get_log("browser")
                raise AssertionError(f"after {seconds} s still not: {condition}\n{messages}\n{page}")
            time.sleep(0.1)

    def press(self, *names):
        for name in names:
            key = KEYS.get(name, name)
            ActionChains(self).key_down(key).pause(0.05).key_up(key).perform()

    def before_each_page(self, script):
        """Runs the script in every page before its own."""
        self.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": script})
