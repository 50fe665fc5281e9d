"""A Wayland desktop: no dialog gets lost when a child clicks beside it, and Return in a list doesn't close the dialog.

A program can't tell where its windows lie there, so the tour works by keys and as assistive technology does."""

import sys

sys.dont_write_bytecode = True
from desk import Failed  # noqa: E402
from driver import Tour  # noqa: E402

BESIDE = (1200, 740)  # on the main window, and on no dialog
ICONS = 6000  # pixels: more than move in the icons of OK and Cancel, and far fewer than a dialog has


def click_beside(tour, part, name):
    """Clicks on the main window behind the dialog, which keeps the keyboard and stays in front."""
    before = tour.picture(name)
    tour.click(BESIDE)
    tour.key("Tab")
    tour.wait_until(lambda: not part.has("focused"), f"{name} to take a key after a click beside it")
    tour.key("shift+Tab")
    tour.wait_until(lambda: part.has("focused"), f"{name} to have the focus where it was")
    tour.wait_until(lambda: tour.pixels_changed(before) < ICONS, f"{name} to lie in front")


def welcome(tour):
    option = tour.find("radio button", "Open last Database")
    first = tour.find("radio button", "Start a new Database")
    tour.wait_until(lambda: first.has("focused"), "the dialog to have the keyboard")
    click_beside(tour, first, "welcome")
    option.press()
    tour.wait_until(lambda: option.has("checked"), "the option to be chosen")
    tour.find("push button", "OK").press()
    tour.wait_until(lambda: tour.all("list item", within=tour.board()), "the cards")


def choose(tour, heading, line):
    tour.find("push button", heading).press()
    tour.find("push button", line, within=tour.find("frame", heading)).press()


def walk_in_list(tour, field):
    """Opens the list and moves to its second line. Weston closes a list at once when the key that opened it has been let go
    before the program asks for the list, as on a busy machine; Down then works on the closed list."""
    for _ in range(5):
        name = field.name
        tour.key("space")
        line = tour.find("list item", "Group", within=field)
        tour.key("Down")
        tour.wait_until(lambda: field.name != name or line.has("selected"), "the second line")
        if field.name == name and line.has("showing"):
            return
        print("the list was closed")
    raise Failed("no list stayed open")


def find(tour):
    choose(tour, "Card", "Find...")
    field = tour.find("combo box", "Field of condition 1")
    tour.wait_until(lambda: field.has("focused"), "the field to have the focus")
    click_beside(tour, field, "find")
    walk_in_list(tour, field)
    unchosen = field.name
    tour.key("Return")
    tour.wait_until(lambda: field.name != unchosen, "a field to be chosen")
    tour.picture("picked")
    tour.wait_until(lambda: field.has("focused"), "the dialog to stay")
    tour.key("Escape")
    tour.wait_until(lambda: not tour.all("push button", "Cancel"), "the dialog to go")


def editor(tour):
    choose(tour, "Card", "Add Card...")
    box = tour.find("text", "Name")
    tour.wait_until(lambda: box.has("focused"), "the first box to have the focus")
    click_beside(tour, box, "editor")
    tour.key("Escape")
    tour.wait_until(lambda: not tour.all("push button", "Cancel"), "the editor to go")


with Tour("wayland", wayland=True) as tour:
    tour.settings.set("Last DB", "Path", str(tour.program / "samples" / "Amazing Animals"))
    database = tour.program / "samples" / "Amazing Animals"
    labels = tour.card_labels(database)
    tour.start()
    welcome(tour)
    find(tour)
    editor(tour)
    tour.check(tour.card_labels(database) == labels, "a card came or went")
    choose(tour, "File", "Exit")
    tour.end()
