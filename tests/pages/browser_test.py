#!/usr/bin/python3
"""Opens the pages in a real browser and does with them what players do.

usage: browser_test.py ORBCTL DATA EXAMPLES"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

from browser import Browser, check, check_tree

ORBCTL, DATA, EXAMPLES = map(pathlib.Path, sys.argv[1:4])


def orbctl(*arguments):
    return subprocess.run([ORBCTL, "--data", DATA, *map(str, arguments)], check=True, capture_output=True).stdout


SEASONS = ("1901-1-spring", "1901-2-autumn", "1902-1-spring")


def make_season_page(folder, seasons=SEASONS):
    """Seasons of the example, each from the files that a game master has of it."""
    games = []
    for season in seasons:
        start = folder / f"{season}.orb"
        shutil.copy(EXAMPLES / f"{season}-0-start.orb", start)
        shutil.copy(EXAMPLES / f"{season}-1-moves.txt", folder / f"{season}.txt")
        games.append(start)
    page = folder / "seasons.html"
    orbctl("publish", "--yes", "--orders", folder, "-o", page, *games)
    return page


def check_season_page_at(browser, page, width):
    browser.open(page, width)
    check(browser.script(f"return document.documentElement.scrollWidth <= {width}"), f"scrolls sideways at {width}")
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

    # On the map afterwards an order lights up where its unit came to stand, and its helper where that is now.
    lit = browser.script("""
        const section = document.querySelector(".season:not([hidden])");
        section.querySelector(".view.result").click();
        Array.from(section.querySelectorAll("button.order-text")).find(b => b.textContent === "FRA A(Par) - Bur").click();
        return Array.from(section.querySelectorAll(".area.chosen, .area.with")).map(area => area.dataset.place + area.classList);""")
    check("Burarea chosen" in lit and "Mararea with" in lit, f"lit afterwards: {lit}")
    browser.script("document.querySelector('.season:not([hidden]) .view.orders').click()")

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
        result = "document.querySelector('.season:not([hidden]) .view.result').checked"
        if motion:
            browser.wait("document.querySelectorAll('.season:not([hidden]) .unit[transform]').length > 5", "nothing moves")
            browser.wait(result, "playing does not end")
        check(browser.script("return " + result), "no result after playing")
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


def check_printed_page(browser, page, sheets):
    """One sheet of paper a season, and one for the chart of several."""
    browser.open(page, 1280)
    import base64
    pdf = base64.b64decode(browser.command("Page.printToPDF", preferCSSPageSize=True, printBackground=True)["data"])
    count = pdf.count(b"/Type /Page\n") + pdf.count(b"/Type /Page ") + pdf.count(b"/Type /Page/")
    check(count == sheets, f"{count} sheets, not {sheets}")


# A stage that is ordered by tapping: the game, the power, what is tapped, and the lines that must come of it. A word in
# capitals after ":" is a button.
STAGES = (
    ("1901-1-spring-0-start.orb", "FRA",
     ("Par", "Bur", "Mar", ":Support", "Par", "Bur", "Bre", ":Move", "MAO"),
     ("FRA A(Par) - Bur", "FRA A(Mar) S A(Par) - Bur", "FRA F(Bre) - MAO")),
    ("1902-2-autumn-1-moves.orb", "FRA", ("Bel", "Ruh"), ("FRA A(Bel) retreat Ruh",)),
    ("1902-2-autumn-2-retreats.orb", "GER", ("Kie", ":F(Kie)", "Ber", ":A(Ber)"), ("GER build F(Kie)", "GER build A(Ber)")),
    ("1902-2-autumn-2-retreats.orb", "FRA", ("Mar",), ("FRA disband A(Mar)",)),
)


def tried(game, *orders):
    """What the program makes of orders: its report, and what it has to say about them."""
    done = subprocess.run([ORBCTL, "--data", DATA, "resolve", "--try", *map(str, orders), str(game)], capture_output=True)
    return done.stdout, done.stderr.decode("latin-1")


def check_sheet(browser, folder, width, stage):
    game, power, taps, lines = stage
    sheet = folder / "sheet.html"
    # A sheet for all has a chooser; one for a single power has none.
    own = () if width < 600 else ("--power", power)
    orbctl("sheet", *own, "--mail", "gm@example.org", "-o", sheet, EXAMPLES / game)

    def open_sheet():
        browser.open(sheet, width)
        if not own:
            browser.script("const p = document.getElementById('power'); p.value = arguments[0]; p.dispatchEvent(new Event('change'))", power)

    open_sheet()
    check(browser.script(f"return document.documentElement.scrollWidth <= {width}"), f"the sheet scrolls sideways at {width}")
    for tap in taps:
        if tap.startswith(":"):
            found = browser.script(
                "const b = Array.from(document.querySelectorAll('#actions button')).find(b => b.textContent === arguments[0]); if (b) b.click(); return !!b", tap[1:])
            check(found, f"no button {tap[1:]} in {game}: " + browser.script("return document.getElementById('steps').innerText"))
        else:
            browser.tap_place(tap)
    text = browser.script("return document.getElementById('result').value")
    for line in lines:
        check(line in text.split("\n"), f"{line} is not in: {text}")
    check(browser.script("return document.querySelectorAll('.drawn path').length") > 0, "nothing is drawn")
    check_tree(browser.tree())
    mail = browser.script("return decodeURIComponent(document.getElementById('mail').href)")
    check(mail.startswith("mailto:gm@example.org?subject=") and lines[0] in mail, f"the mail is {mail}")

    # What was entered is still there when the page is opened again.
    open_sheet()
    check(browser.script("return document.getElementById('result').value") == text, "the sheet forgets")
    check(browser.complaints() == [], f"the browser complains: {browser.complaints()}")
    browser.script("localStorage.clear()")

    # The program reads just these orders, without a word.
    (folder / "pasted.txt").write_text(text)
    (folder / "exact.txt").write_text("\n".join(lines) + "\n")
    pasted = tried(EXAMPLES / game, "--loose", "--orders", folder / "pasted.txt")
    exact = tried(EXAMPLES / game, "--orders", folder / "exact.txt")
    check(pasted == exact, f"read as {pasted}, not {exact}")


def check_sheet_by_lists(browser, folder):
    """Without the map: a list for each unit; what does not fit is said at once."""
    sheet = folder / "sheet.html"
    orbctl("sheet", "--power", "FRA", "-o", sheet, EXAMPLES / "1901-1-spring-0-start.orb")
    browser.open(sheet, 1280)
    said = browser.script("""
        localStorage.clear();
        const choose = (unit, order) => {
          const select = document.querySelector(`select[data-key=${unit}]`);
          select.value = order;
          select.dispatchEvent(new Event("change"));
        };
        choose("Mar", "S A(Par) - Bur");
        choose("Par", "hold");
        return document.getElementById("doubts").innerText;""")
    check("No order yet: F(Bre)." in said and "A(Mar) matches nothing" in said, f"the doubts are: {said}")

    # Read for another season or power, the sheet itself is doubted.
    text = browser.script("return document.getElementById('result').value")
    (folder / "pasted.txt").write_text(text)
    _, said = tried(EXAMPLES / "1902-1-spring-0-start.orb", "--loose", "--power", "GER", "--orders", folder / "pasted.txt")
    check("The order sheet of FRA is of Spring 1901; the game is in Spring 1902." in said, f"said: {said}")
    check("The order sheet is of FRA, not of GER." in said, f"said: {said}")

    # No more builds are asked for than the home centres have room for.
    crowded = folder / "crowded.orb"
    crowded.write_bytes((EXAMPLES / "1902-2-autumn-2-retreats.orb").read_bytes().replace(b'"GER","F","Den"', b'"GER","F","Kie"'))
    orbctl("sheet", "--power", "GER", "-o", sheet, crowded)
    browser.open(sheet, 1280)
    count = browser.script("return document.getElementById('count').textContent")
    check(count.startswith("0 of 1 "), f"due is: {count}")

    # Without a script there is nothing to choose.
    orbctl("sheet", "-o", sheet, crowded)
    browser.open(sheet, 360, scripts=False)
    check(not any(role == "combobox" for role, _ in browser.tree()), "without scripts a power can be chosen")


def main():
    browser = Browser()
    try:
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            page = make_season_page(folder)
            for width in (360, 1280):
                check_season_page_at(browser, page, width)
            check_season_page_without_scripts(browser, page)
            check_printed_page(browser, page, len(SEASONS) + 1)
            check_printed_page(browser, make_season_page(folder, SEASONS[-1:]), 1)
            check(not any(role == "slider" for role, _ in browser.tree()), "one season has something to slide")
            for width in (360, 1280):
                for stage in STAGES:
                    check_sheet(browser, folder, width, stage)
            check_sheet_by_lists(browser, folder)
    finally:
        browser.close()


main()
