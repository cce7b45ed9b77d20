#!/usr/bin/python3
"""Opens the pages in a real browser and does with them what players do.

usage: browser_test.py ORBCTL DATA EXAMPLES"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from browser import Browser, check, check_tree

ORBCTL, DATA, EXAMPLES = map(pathlib.Path, sys.argv[1:4])


def orbctl(*arguments):
    return subprocess.run([ORBCTL, "--data", DATA, *map(str, arguments)], check=True, capture_output=True).stdout


def make_season_page(folder):
    """The example's first seasons, each from the files that a game master has of it."""
    games = []
    for season in ("1901-1-spring", "1901-2-autumn", "1902-1-spring"):
        start = folder / f"{season}.orb"
        shutil.copy(EXAMPLES / f"{season}-0-start.orb", start)
        shutil.copy(EXAMPLES / f"{season}-1-moves.txt", folder / f"{season}.txt")
        games.append(start)
    page = folder / "seasons.html"
    orbctl("publish", "--yes", "--orders", folder, "-o", page, *games)
    return page


def check_season_page_at(browser, page, width):
    browser.open(page, width)
    check(browser.script("return document.documentElement.scrollWidth <= innerWidth"), f"scrolls sideways at {width}")
    check(browser.script("return document.querySelectorAll('.season:not([hidden])').length") == 1, "not one season")
    tree = browser.tree()
    check_tree(tree)
    said = " ".join(name for _, name in tree)
    shown = browser.script("return Array.from(document.querySelectorAll('.season:not([hidden]) .entry')).map(e => e.querySelector('.order-text').textContent)")
    check(len(shown) > 20, "no orders")
    for text in shown + ["Spring 1902", "England", "Zoom in", "Play", "Vienna, Austria-Hungary, AUS A(Vie)"]:
        check(text in said, f"a screen reader is not told: {text}")

    # A tap on a province tells its order and why, and lights it up.
    browser.tap_place("Bur")
    place = browser.script("return document.getElementById('place').textContent")
    check("Burgundy" in place and "GER A(Bur) - Par" in place and "dislodged by" in place, f"Burgundy says: {place}")
    check(browser.script("return document.querySelectorAll('.season:not([hidden]) .order.on').length") >= 1, "no arrow is lit")

    # All by keys: through the seasons, and from province to province.
    body = browser.script("document.activeElement.blur(); return document.body")
    name = "return document.getElementById('season-name').textContent"
    body.send_keys("\ue012")  # left
    check(browser.script(name) == "Autumn 1901", "the left key does not go back")
    body.send_keys("\ue011")  # home
    check(browser.script(name) == "Spring 1901", "the home key does not go to the start")
    area = browser.script("const a = document.querySelector('.season:not([hidden]) .area[data-place=Par]'); a.focus(); return a")
    area.send_keys("\ue015")  # down
    check(browser.script("return document.activeElement.dataset.place") in ("Bur", "Gas", "Mar"), "keys do not walk the map")
    browser.script("return document.activeElement").send_keys("\ue007")  # enter
    check(browser.script("return !document.getElementById('place').hidden"), "enter does not choose a province")

    # The movement ends with the position afterwards; without motion at once.
    for motion in (True, False):
        browser.open(page, width, motion=motion)
        browser.script("document.getElementById('play').click()")
        if motion:
            time.sleep(1.2)
            check(browser.script("return document.querySelectorAll('.season:not([hidden]) .unit[transform]').length") > 5, "nothing moves")
            time.sleep(4)
        check(browser.script("return document.querySelector('.season:not([hidden]) .view.result').checked"), "no result after playing")
        check(browser.script("return document.querySelectorAll('.unit[transform]').length") == 0, "units stay where they were played to")
    check(browser.complaints() == [], f"the browser complains: {browser.complaints()}")


def check_season_page_without_scripts(browser, page):
    browser.open(page, 360, scripts=False)
    tree = browser.tree()
    check_tree(tree)
    said = " ".join(name for _, name in tree)
    for text in ("Spring 1902", "Spring 1901", "England", "It moved"):
        check(text in said, f"without scripts there is no {text}")
    check(not any(role == "slider" for role, _ in tree), "without scripts there is something to steer")


def check_printed_page(browser, page):
    """One sheet of paper a season, and one for the chart."""
    browser.open(page, 1280)
    import base64
    pdf = base64.b64decode(browser.command("Page.printToPDF", preferCSSPageSize=True, printBackground=True)["data"])
    count = pdf.count(b"/Type /Page\n") + pdf.count(b"/Type /Page ") + pdf.count(b"/Type /Page/")
    check(count == 4, f"{count} sheets for three seasons and the chart")


def main():
    browser = Browser()
    try:
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            page = make_season_page(folder)
            for width in (360, 1280):
                check_season_page_at(browser, page, width)
            check_season_page_without_scripts(browser, page)
            check_printed_page(browser, page)
    finally:
        browser.close()


main()
