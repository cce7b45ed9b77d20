"""What a user of a screen reader does in ORB's window to play the first year: everything is found
by role and name on the accessibility bus, and done by its actions."""

import sys
import time

import pyatspi
from gi.repository import Atspi, GLib


# Newer versions of the bus have the second name for the role.
BUTTON = ("push button", "button")


def waited(find, what):
    """The first answer of find() that is not None or False; complaints are left to time."""
    until = time.time() + 40
    while time.time() < until:
        try:
            found = find()
        except Exception:  # what was found has gone meanwhile
            found = None
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"waited in vain: {what}")


def all_of(node, with_menus=False):
    """The node and what is in it and shown; panels of other stages are there too, and hidden."""
    yield node
    # What is looked for is no entry of a list, and the map alone has a place for each of its 81.
    if node.getRoleName() in ("list", "table", "tree"):
        return
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is None:
            continue
        is_menu = "menu" in child.getRoleName()
        if with_menus if is_menu else child.getState().contains(pyatspi.STATE_SHOWING):
            yield from all_of(child, with_menus)


def find(root, name, *roles):
    for node in all_of(root, "menu item" in roles):
        if node.name == name and node.getRoleName() in roles:
            return node
    return None


def act(node, wanted="Press"):
    action = node.queryAction()
    names = [action.getName(index) for index in range(action.nActions)]
    action.doAction(names.index(wanted))


def window():
    desktop = pyatspi.Registry.getDesktop(0)
    for application in desktop:
        if application is not None and application.name == "orb":
            return application
    return None


program = waited(window, "the program")
the_map = waited(lambda: find(program, "Map", "list"), "the map")


places = {node.name.split("(")[1].split(")")[0]: node for node in the_map}


def place(abbreviation):
    return places[abbreviation]


def press(name):
    act(waited(lambda: find(program, name, *BUTTON), name))


def order(*steps):
    for abbreviation, action in steps:
        act(place(abbreviation), action)
    press("OK")
    # A button goes down for a moment before it acts.
    box = find(program, "Order", "text")
    waited(lambda: box.queryText().getText(0, -1) == "", "the order in the list")


def move(unit, to):
    order((unit, "Press"), (to, "Press"))


def status_has(text):
    return any(text in node.name for node in all_of(program) if node.getRoleName() == "label")


def resolve(stage):
    """Resolves, agrees to every question, and hears what came of it."""
    press("Resolve")

    def resolved():
        if status_has(f"{stage} resolved: "):
            return True
        for agreement in ("Yes to all", "Yes"):
            button = find(program, agreement, *BUTTON)
            if button is not None:
                act(button)
                break
        return False

    waited(resolved, f"what came of the {stage}")


london = place("Lon")
assert "England" in london.name, london.name
assert "North Sea" in london.description, london.description

move("Vie", "Gal")
move("Edi", "NWG")
move("Par", "Bur")
move("Kie", "HEL")
assert "AUS A(Vie) - Gal" in place("Vie").description, place("Vie").description
resolve("Moves")
press("Next season")
waited(lambda: find(program, "22 units without an order", "label"), "the next season")
assert "France" in place("Bur").name, place("Bur").name
move("NWG", "Nwy")
move("Bur", "Bel")
move("HEL", "Kie")
resolve("Moves")
resolve("Adjustments")
# The autumn has no file yet. Whoever opens a dialog is answered when it is closed: nobody waits.
Atspi.set_timeout(300, 300)
try:
    act(find(program, "Save", "menu item"))
except GLib.GError:
    pass
Atspi.set_timeout(2000, 10000)
name = waited(lambda: find(program, "File name:", "text"), "the name of the file")
name.queryEditableText().setTextContents(sys.argv[1])
press("Save")
waited(lambda: status_has("The game is in "), "word that the game is saved")
