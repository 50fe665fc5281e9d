"""The first minutes: open a sample by its icon, walk up and down the folders, slide along the menu, leave by Exit.

None of this changes a database."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

MENUS = {
    "File": ["New", "Open...", "Print...", "Exit"],
    "Card": ["Add Card...", "Delete Card", "Design Cards...", "Arrange Cards...", "Find..."],
    "Data": ["Sort...", "Group...", "Make Graph...", "Report...", "Statistics..."],
    "Help": ["Help"],
}
MOST_CLICKS_TO_A_SAMPLE = 5


def stands_in(tour, place):
    """Waits until the file dialog shows that place."""
    box = tour.find("text", "Folder")
    tour.wait_until(lambda: box.text == place, f'the dialog to stand in "{place}"')


def enter(tour, name, kind="folder"):
    tour.double_click(tour.find("check box", f"{name}, {kind}"))


def walk_up(tour, places):
    for place in places:
        tour.click(tour.find("push button", "Up a Level"))
        stands_in(tour, place)


def see_menu(tour, heading):
    panel = tour.find("frame", heading)
    lines = [caption.name for caption in tour.all("push button", within=panel)]
    tour.check(lines == MENUS[heading], f"the menu {heading} has {lines}")
    tour.picture(f"menu-{heading}")


with Tour("open") as tour:
    before = tour.contents(tour.program / "samples")
    tour.start()
    tour.begin_with("Open an existing Database")
    tour.dialog("Open Database")
    stands_in(tour, "samples")
    tour.find("check box", "Little Monsters, database")
    tour.picture("samples")
    enter(tour, "Little Monsters", "database")
    tour.window("60 Card\\(s\\)")
    tour.wait_until(lambda: len(tour.all("list item")) == 60, "sixty monsters")
    tour.picture("monsters")
    print(f"{tour.clicks} clicks to a sample")
    tour.check(tour.clicks <= MOST_CLICKS_TO_A_SAMPLE, f"a sample took {tour.clicks} clicks")

    # Up to the computer, and down again through the home folder
    tour.choose("File", "Open...")
    tour.dialog("Open Database")
    stands_in(tour, "samples")
    desk = tour.desk.folder
    walk_up(tour, ["Tallymoor", desk.name, desk.parent.name, "(COMPUTER)", "My Computer"])
    tour.find("check box", "(HOME), drive")
    tour.picture("computer")
    enter(tour, "(HOME)", "drive")
    stands_in(tour, "(HOME)")
    tour.picture("home")
    tour.click(tour.find("push button", "Up a Level"))
    stands_in(tour, "My Computer")
    enter(tour, "(COMPUTER)", "drive")
    stands_in(tour, "(COMPUTER)")
    tour.picture("root")
    tour.answer("Open Database", "Cancel")

    # By a click and OK
    tour.choose("File", "Open...")
    tour.dialog("Open Database")
    chosen = tour.find("text", "Chosen")
    tour.click(tour.find("check box", "Amazing Animals, database"))
    tour.wait_until(lambda: chosen.text == "Amazing Animals", "the animals to be chosen")
    tour.picture("chosen")
    tour.answer("Open Database", "OK")
    tour.window("Amazing Animals - 24 Card\\(s\\)")

    # Along the menu and back
    tour.click(tour.find("push button", "File"))
    see_menu(tour, "File")
    for heading in ("Card", "Data", "Help"):
        tour.point(tour.find("push button", heading))
        see_menu(tour, heading)
    tour.point(tour.find("push button", "File"))
    tour.click(tour.find("push button", "Exit", within=tour.find("frame", "File")))
    tour.end()
    tour.check(tour.settings.get("Last DB", "Path") == str(tour.program / "samples" / "Amazing Animals"),
               "the animals are not the last database")
    tour.check_same(before, tour.contents(tour.program / "samples"))
