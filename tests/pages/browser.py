"""A browser without a window, as the tests of the pages use it."""

import pathlib
import sys
import time

SKIPPED = 77

# What a person can work with; each must tell what it is and what it is called.
CONTROLS = {"button", "radio", "slider", "link", "textbox", "combobox", "checkbox", "listbox", "DisclosureTriangle"}


def need(condition, reason):
    """Skips all tests, with a reason, where something is not installed."""
    if not condition:
        print("skipped: " + reason)
        sys.exit(SKIPPED)


try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service
except ImportError:
    need(False, "python3-selenium is not installed")

CHROMIUM = next((path for path in map(pathlib.Path, ("/usr/bin/chromium", "/usr/bin/chromium-browser")) if path.exists()), None)
DRIVER = pathlib.Path("/usr/bin/chromedriver")
need(CHROMIUM, "chromium is not installed")
need(DRIVER.exists(), "chromium-driver is not installed")


class Browser:
    """One page at a time, at a size in pixels, with or without scripts."""

    def __init__(self):
        options = webdriver.ChromeOptions()
        options.binary_location = str(CHROMIUM)
        # Tests may run as root, where Chromium has no sandbox of its own.
        for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--force-device-scale-factor=1"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service(str(DRIVER)), options=options)
        self.command("Accessibility.enable")

    def command(self, name, **arguments):
        return self.driver.execute_cdp_cmd(name, arguments)

    def open(self, path, width, scripts=True, motion=True):
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=800, deviceScaleFactor=1, mobile=width < 600)
        self.command("Emulation.setTouchEmulationEnabled", enabled=width < 600)
        self.command("Emulation.setScriptExecutionDisabled", value=not scripts)
        self.command("Emulation.setEmulatedMedia", features=[
            {"name": "prefers-reduced-motion", "value": "no-preference" if motion else "reduce"}])
        self.driver.get(pathlib.Path(path).absolute().as_uri())

    def script(self, text, *arguments):
        return self.driver.execute_script(text, *arguments)

    def wait(self, text, what):
        """Waits until an expression of the page is true."""
        until = time.time() + 20
        while not self.script("return " + text):
            check(time.time() < until, what)
            time.sleep(0.05)

    def complaints(self):
        """What the browser had to say: errors, and what the page's policy forbade."""
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] in ("SEVERE", "WARNING")]

    def tree(self):
        """What a screen reader is told: (role, name) of everything in the page."""
        nodes = []
        for node in self.command("Accessibility.getFullAXTree")["nodes"]:
            if not node.get("ignored"):
                nodes.append((node["role"]["value"], node.get("name", {}).get("value", "").strip()))
        return nodes

    def tap(self, x, y):
        """A finger, or where there is none a mouse, at a point of the window."""
        if self.script("return navigator.maxTouchPoints > 0"):
            self.command("Input.dispatchTouchEvent", type="touchStart", touchPoints=[{"x": x, "y": y}])
            self.command("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])
        else:
            for kind in ("mousePressed", "mouseReleased"):
                self.command("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def tap_place(self, place):
        """Taps a province on the map that is shown, at the point where its unit is drawn."""
        x, y = self.script(
            """const board = Array.from(document.querySelectorAll(".board")).find(b => b.getClientRects().length > 0);
               const at = JSON.parse(document.getElementById("data").textContent).places[arguments[0]].u;
               const client = () => new DOMPoint(at[0], at[1]).matrixTransform(board.getScreenCTM());
               let point = client();
               if (point.y < 70 || point.y > innerHeight - 150) {
                 window.scrollBy({top: point.y - innerHeight / 2, behavior: "instant"});
                 point = client();
               }
               return [point.x, point.y];""", place)
        self.tap(x, y)

    def close(self):
        self.driver.quit()


def check(condition, text):
    if not condition:
        raise AssertionError(text)


def check_tree(tree):
    """Every control has a name."""
    for role, name in tree:
        check(role not in CONTROLS or name, f"a {role} without a name")
    for role in ("main", "heading"):
        check(any(kind == role for kind, _ in tree), f"no {role}")
