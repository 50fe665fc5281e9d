"""The teacher's switches: the chord on four keyboards, every page, what OK writes, and what the program does then."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

TITLE = "Teacher Options"
PAGES = ["Folder Settings", "Reporting", "Colours", "Misc.", "Printer", " Database Options", "About..."]
CHORD = "ctrl+shift+k"
TICKS = {  # each with its page
    "Disable Folder Access & Browse Network Button in Open Dialogue Box": PAGES[0],
    "Disable View Button": PAGES[1], "Disable Print Button": PAGES[1], "Show Database Clues Button": PAGES[1],
    "Card border: Green": PAGES[2], "Card caption: Blue": PAGES[2],
    "Enable Case Sensitivity": PAGES[3], "Show Add Sound Option": PAGES[3], "Scatter cards after deletion": PAGES[3],
    "Hide Refresh Option": PAGES[5], "Enable Read Only Option": PAGES[5], "Lock Database": PAGES[5],
}
WRITTEN = {
    ("UpLevel", "Status"): "True", ("NotePad", "Opt1"): "1", ("NotePad", "Opt2"): "0", ("Report", "Opt"): "1",
    ("Clue", "Status"): "", ("Border", "Colour"): "65280", ("Cards", "Colour"): "16711680",
    ("CaseSens", "Status"): "True", ("Sound", "Status"): "1", ("DeleteCard", "Random"): "0",
    ("Refresh", "Visible"): "1", ("RO", "Status"): "RO", ("LockDB", "Status"): "1", ("Keys", "Value"): "Q",
    ("Working Dir", "Path"): "samples", ("Printer", "Name"): "-1", ("Background", "Colour"): "14078140",
}


def no_options(tour):
    tour.check(TITLE not in tour.windows(), "the options are open")


def open_options(tour, chord=CHORD):
    tour.window("Tallymoor Release")
    no_options(tour)  # nothing before has opened them
    tour.key(chord)
    return tour.dialog(TITLE)


def turn_to(tour, page):
    tour.click(tour.find("page tab", page))
    tour.wait_until(lambda: tour.find("page tab list").name == page, f"the page {page}")


def see_pages(tour):
    for page in PAGES:
        turn_to(tour, page)
        tour.picture(page.strip(" .").lower().replace(" ", "-"))


def compare(tour, table):
    for (section, key), value in table.items():
        found = tour.settings.get(section, key)
        tour.check(found == value, f"[{section}] {key} is {found!r}, not {value!r}")


def change_everything(tour):
    for name, page in TICKS.items():
        turn_to(tour, page)
        box = tour.find("check box", name)
        was = box.has("checked")
        tour.click(box)
        tour.wait_until(lambda box=box, was=was: box.has("checked") != was, f"{name} to change")
    turn_to(tour, "Misc.")
    letter = tour.find("text", "Letter pressed together with Ctrl and Shift")
    tour.click(letter, times=2)
    tour.type("Q")
    tour.wait_until(lambda: letter.text == "Q", "the new letter")
    tour.picture("changed")


def see_effects(tour):
    """On the board, in the card editor and in the file dialog."""
    tour.wait_until(lambda: not tour.all("check box", "Refresh Database"), "the refresh to be hidden")
    tour.picture("board")
    tour.double_click(tour.all("list item", within=tour.board())[-1])
    editor = tour.dialog("Edit Card 24")
    tour.find("page tab", "Add/Edit Sound", within=editor)
    ok = tour.find("push button", "OK", within=editor)
    tour.wait_until(lambda: not ok.has("enabled"), "OK to be locked")
    tour.key(CHORD, "ctrl+shift+q")  # not under another window
    tour.picture("locked")
    tour.answer("Edit Card 24", "Cancel")
    no_options(tour)
    tour.choose("File", "Open...")
    files = tour.dialog("Open Database")
    for button in ("Up a Level", "Browse Network"):
        tour.check(not tour.find("push button", button, within=files).has("enabled"), f"{button} is not disabled")
    tour.picture("files")
    tour.answer("Open Database", "Cancel")


def by_keyboard_alone(tour):
    """Unlocks the database, and finds the guide missing."""
    open_options(tour, "ctrl+shift+q")
    tour.key(*["Right"] * 5)  # the pages' names have the focus
    lock = tour.find("check box", "Lock Database")
    tour.wait_until(lambda: lock.has("checked"), "the lock's tick")
    tour.key("alt+f")
    tour.find("menu item", "View Help file...")
    tour.key("v")
    tour.find("label", "User Guide not found! Please Re-install Tallymoor.", within=tour.dialog("Error"))
    tour.picture("no-guide")
    tour.key("Return")
    tour.dialog(TITLE)
    tour.key(*["Tab"] * 3, "space", "Return")
    tour.wait_until(lambda: tour.settings.get("LockDB", "Status") == "0", "the lock to be written")


def stop_a_run(tour):
    tour.choose("Data", "Sort...")
    tour.pick(tour.find("combo box", within=tour.dialog("Sort Cards")), "Home")
    tour.answer("Sort Cards", "OK")
    tour.window("Speed")
    open_options(tour, "ctrl+shift+q")
    tour.check("Speed" not in tour.windows(), "the run goes on")
    tour.picture("stopped")
    tour.answer(TITLE, "Cancel")


def try_keyboards(tour):
    """The key that bears a Q; xdotool presses it by its place where the map has no Latin letters."""
    for layout, chord in (("us", "ctrl+shift+q"), ("fr", "ctrl+shift+q"), ("ru", "ctrl+shift+24"), ("de", "ctrl+shift+q")):
        tour.desk.run("setxkbmap", layout)
        open_options(tour, chord)
        tour.answer(TITLE, "Cancel")
        tour.key(chord.replace("ctrl", "ctrl+alt"))
        no_options(tour)


with Tour("options") as tour:
    tour.settings.set("Last DB", "Path", "samples/Amazing Animals")
    (tour.program / "Help" / "Topts.pdf").unlink()
    tour.start()
    tour.open_last()
    before = tour.settings.path.read_bytes()
    open_options(tour)
    see_pages(tour)
    change_everything(tour)
    tour.answer(TITLE, "Cancel")
    tour.check(tour.settings.path.read_bytes() == before, "Cancel wrote something")

    open_options(tour)
    change_everything(tour)
    tour.answer(TITLE, "OK")
    compare(tour, WRITTEN)
    see_effects(tour)
    open_options(tour)  # the old letter works until the new one is read
    turn_to(tour, "Reporting")
    tour.check(not tour.find("check box", "Disable Print Button").has("checked"), "the tick was read from the written key")
    tour.answer(TITLE, "Cancel")
    by_keyboard_alone(tour)
    tour.key(CHORD)
    stop_a_run(tour)
    try_keyboards(tour)

    # Without a folder
    open_options(tour, "ctrl+shift+q")
    for choice in ('"My Documents" Folder of this Computer', "Custom Folder"):
        tour.click(tour.find("radio button", choice))
    turn_to(tour, "Reporting")
    tour.click(tour.find("check box", "Show Database Clues Button"))
    tour.answer(TITLE, "OK")
    tour.find("push button", "Show Clues")
    compare(tour, WRITTEN | {("Clue", "Status"): "1", ("Report", "Opt"): "0", ("LockDB", "Status"): "0",
                             ("Working Dir", "Path"): str(tour.desk.folder / "home" / "Documents")})
    tour.choose("File", "Exit")
    tour.end()

    # The next day
    tour.start()
    tour.open_last()
    tour.find("push button", "Show Clues")
    tour.check(not tour.all("check box", "Refresh Database"), "the refresh is back")
