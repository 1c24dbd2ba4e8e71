"""A browser without a display, driven over the WebDriver protocol."""
import contextlib
import json
import socket
import subprocess
import time
import urllib.error
import urllib.request

KEYS = {"Enter": "\ue007", "Escape": "\ue00c", "ArrowUp": "\ue013", "ArrowDown": "\ue015", "F1": "\ue031"}


class Browser:
    """One session of Chromium."""

    def __init__(self):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        self.address = f"http://127.0.0.1:{port}"
        self.driver = subprocess.Popen(["chromedriver", f"--port={port}"],
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        arguments = ["--headless=new", "--no-sandbox", "--use-angle=swiftshader",
                     "--enable-unsafe-swiftshader", "--window-size=1000,900"]
        wanted = {"goog:chromeOptions": {"args": arguments}, "goog:loggingPrefs": {"browser": "ALL"}}
        self._wait_for_driver()
        session = self._call("POST", "/session", {"capabilities": {"alwaysMatch": wanted}})
        self.session = f"/session/{session['sessionId']}"

    def close(self):
        with contextlib.suppress(OSError, RuntimeError):
            self._call("DELETE", self.session)
        self.driver.terminate()
        self.driver.wait()

    def go(self, address):
        self._ask("POST", "/url", {"url": address})

    def run(self, script, *arguments):
        """Returns what the script returns; waits for it if that is a promise."""
        return self._ask("POST", "/execute/sync", {"script": script, "args": list(arguments)})

    def wait(self, condition, seconds=30):
        """Waits until the JavaScript expression is true."""
        end = time.monotonic() + seconds
        while not self.run(f"return Boolean({condition})"):
            if time.monotonic() > end:
                page = self.run("return document.body.innerText")
                raise AssertionError(f"after {seconds} s still not: {condition}\n{self.messages()}\n{page}")
            time.sleep(0.1)

    def press(self, *names):
        for name in names:
            key = KEYS.get(name, name)
            actions = [{"type": "keyDown", "value": key}, {"type": "pause", "duration": 50},
                       {"type": "keyUp", "value": key}]
            self._ask("POST", "/actions", {"actions": [{"type": "key", "id": "keys",
                                                        "actions": actions}]})

    def before_each_page(self, script):
        """Runs the script in every page before its own."""
        self._ask("POST", "/goog/cdp/execute", {
            "cmd": "Page.addScriptToEvaluateOnNewDocument", "params": {"source": script}})

    def messages(self):
        """The browser's console since the last call."""
        return [entry["message"] for entry in self._ask("POST", "/se/log", {"type": "browser"})]

    def _ask(self, method, path, body=None):
        return self._call(method, self.session + path, body)

    def _wait_for_driver(self):
        for _ in range(100):
            with contextlib.suppress(OSError):
                if self._call("GET", "/status")["ready"]:
                    return
            time.sleep(0.1)
        raise AssertionError("chromedriver does not start")

    def _call(self, method, path, body=None):
        data = json.dumps(body).encode() if body else None
        headers = {"Content-Type": "application/json"}
        request = urllib.request.Request(self.address + path, data, headers, method=method)
        try:
            with urllib.request.urlopen(request, timeout=120) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise RuntimeError(error.read().decode()[:1000]) from error
