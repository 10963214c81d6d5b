"""Drives a headless Chromium over the WebDriver protocol, with the standard library alone."""
import json
import pathlib
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # the key that the protocol gives to references
STARTS_WITHIN = 60  # seconds; a hang guard


class Browser:
    """One browser with one window and a profile of its own. To be closed."""

    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.log = open(pathlib.Path(self.profile.name) / "driver.log", "w+b")
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdin=subprocess.DEVNULL, stdout=self.log,
                                       stderr=subprocess.STDOUT)
        try:
            self.address = f"http://127.0.0.1:{self._port()}/session"
            self.session = ""
            # Without a sandbox, which root has none of; what the browser opens here is only our own pages.
            arguments = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                         "--disable-background-networking", "--hide-scrollbars", f"--user-data-dir={self.profile.name}/user"]
            options = {"goog:chromeOptions": {"args": arguments}, "goog:loggingPrefs": {"browser": "ALL"}}
            created = self._send("POST", "", {"capabilities": {"alwaysMatch": options}})
            self.session = "/" + created["sessionId"]
        except BaseException:
            self.close()
            raise

    def _port(self):
        deadline = time.monotonic() + STARTS_WITHIN
        while time.monotonic() < deadline and self.driver.poll() is None:
            for line in pathlib.Path(self.log.name).read_text(errors="replace").splitlines():
                if "started successfully on port" in line:
                    return int(line.rstrip(".").rsplit(" ", 1)[1])
            time.sleep(0.05)
        raise RuntimeError("chromedriver did not start: " + pathlib.Path(self.log.name).read_text(errors="replace"))

    def _send(self, method, path, body=None):
        request = urllib.request.Request(self.address + self.session + path, method=method,
                                         data=None if body is None else json.dumps(body).encode(),
                                         headers={"Content-Type": "application/json"})
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))  # no proxy leads to this machine
        try:
            with opener.open(request, timeout=100) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise RuntimeError(error.read().decode(errors="replace")) from error

    def close(self):
        try:
            if getattr(self, "session", ""):
                self._send("DELETE", "")
        finally:
            self.driver.terminate()
            self.driver.wait()
            self.log.close()
            self.profile.cleanup()

    def open(self, address):
        self._send("POST", "/url", {"url": str(address)})

    def run(self, script, *arguments):
        """What the script returns in the page."""
        return self._send("POST", "/execute/sync", {"script": script, "args": list(arguments)})

    def devtools(self, command, **parameters):
        return self._send("POST", "/goog/cdp/execute", {"cmd": command, "params": parameters})

    def resize(self, width, height, is_phone=False):
        self.devtools("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=2 if is_phone else 1,
                      mobile=is_phone)

    def find(self, selector):
        return self._send("POST", "/element", {"using": "css selector", "value": selector})[ELEMENT]

    def click(self, selector):
        self._send("POST", f"/element/{self.find(selector)}/click", {})

    def type(self, selector, text):
        self._send("POST", f"/element/{self.find(selector)}/value", {"text": text})

    def act(self, *sources):
        """Pointer, wheel and key actions, as the protocol describes them."""
        self._send("POST", "/actions", {"actions": list(sources)})

    def complaints(self):
        """What the page said on its console since the last call: errors, and what its policy refused."""
        return [entry["message"] for entry in self._send("POST", "/se/log", {"type": "browser"})]

    def screenshot(self):
        """A PNG file, in base 64."""
        return self._send("GET", "/screenshot")
