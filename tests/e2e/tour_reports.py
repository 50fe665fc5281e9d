"""Reports and the jotter: a sentence about every monster, copied and printed; notes saved twice and looked at with
another program; clues that stay above other programs."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

NAME, COLOUR = 0, 2  # among the values of a monster
HEADING = b"=" * 20 + b"\r\nTallymoor Jotter\r\n" + b"=" * 20 + b"\r\n\r\n"
VIEWER = "[Desktop Entry]\nType=Application\nName=Viewer\nExec=cp %f {}\nMimeType=text/plain;\n"


def open_reports(tour, tab):
    tour.choose("Data", "Report...")
    window = tour.dialog("Reports")
    tour.click(tour.find("page tab", tab, within=window))
    return window


def report(tour, monsters):
    window = open_reports(tour, "Design Report")
    sentence = tour.find("text", "Sentence about a card", within=window)
    tour.click(sentence)
    tour.type("My ")
    tour.double_click(tour.find("list item", "Name", within=window))
    tour.wait_until(lambda: sentence.text == "My <<Name>>", "the field that was double-clicked")
    tour.type(" is ")
    tour.click(tour.find("list item", "Colour", within=window))
    tour.click(tour.find("push button", "Insert", within=window))
    tour.wait_until(lambda: sentence.text == "My <<Name>> is <<Colour>>", "the field that was inserted")
    tour.picture("sentence", of="^Reports$")
    tour.click(tour.find("page tab", "View Report", within=window))
    expected = "".join(f"My {monster[NAME]} is {monster[COLOUR]} \n" for monster in monsters)
    box = tour.find("text", "Report", within=window)
    tour.wait_until(lambda: box.text == expected, "the report")
    tour.picture("report", of="^Reports$")
    tour.click(tour.find("push button", "Copy Report", within=window))
    tour.answer("Information", "OK")
    tour.check(tour.pasted("UTF8_STRING").decode() == expected.replace("\n", "\r\n"), "another text was copied")
    tour.answer("Reports", "OK")


def jotter(tour, database):
    notes, copy = database / "Questions.txt", database / "Qa.txt"
    bytes_ = "Wie groß?".encode("cp1252")
    for cycle in range(2):
        window = open_reports(tour, "Jotter")
        if cycle == 0:
            tour.check(notes.read_bytes() == b"", "the jotter has made no empty file")
            tour.click(tour.find("push button", "View Questions", within=window))
            tour.answer("Warning", "OK")
            tour.click(tour.find("text", "Questions / Comments", within=window))
            tour.type("Wie groß?")
        tour.click(tour.find("push button", "Save Questions", within=window))
        tour.answer("Information", "OK")
        bytes_ += b"\r\n"
        tour.check(notes.read_bytes() == bytes_ and copy.read_bytes() == HEADING + bytes_, f"saved: {notes.read_bytes()}")
        if cycle == 0:
            tour.picture("jotter", of="^Reports$")
            tour.answer("Reports", "Cancel")
    view(tour, window, copy)
    tour.answer("Reports", "OK")


def view(tour, window, copy):
    """Hands the notes to a viewer of its own; without one it is told."""
    shown = tour.desk.folder / "shown.txt"
    programs = tour.desk.folder / "home" / ".local" / "share" / "applications"
    programs.mkdir(parents=True)
    tour.click(tour.find("push button", "View Questions", within=window))
    tour.find("label", 'Sorry! This computer has no program to show "Qa.txt".', within=tour.dialog("Error"))
    tour.answer("Error", "OK")
    (programs / "viewer.desktop").write_text(VIEWER.format(shown))
    tour.click(tour.find("push button", "View Questions", within=window))
    tour.wait_until(lambda: shown.exists() and shown.read_bytes() == copy.read_bytes(), "the viewer")


def clues(tour, database):
    button = tour.find("push button", "Show Clues")
    for text in ("Wie groß?", "How tall?"):
        (database / "Questions.txt").write_text(text, encoding="cp1252")
        tour.click(button)
        box = tour.find("text", "Clues", within=tour.dialog("Clues"))
        tour.wait_until(lambda box=box, text=text: box.text == text, f'the clue "{text}"')
    tour.desk.start("xev", "-geometry", "1200x700+0+0", "-name", "Other program")
    other, clue = tour.window("Other program"), tour.window("^Clues$")
    tour.window("Other program")
    tour.wait_until(lambda: stacked(tour, other, clue), "the clues above the other program")
    tour.picture("clues")
    tour.window("Card\\(s\\)")
    tour.choose("Data", "Sort...")
    tour.wait_until(lambda: stacked(tour, clue, tour.window("^Sort Cards$")), "the dialog above the clues")
    tour.picture("clues-below")
    tour.answer("Sort Cards", "Cancel")
    tour.window("Other program")
    tour.wait_until(lambda: stacked(tour, other, clue), "the clues above the other program again")
    tour.click(tour.find("push button", "OK", within=tour.dialog("Clues")))
    tour.wait_until(lambda: "Clues" not in tour.windows(), "the clues to go")


def stacked(tour, lower, upper):
    order = tour.desk.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").partition("#")[2].split(",")
    return [number for number in (int(word, 16) for word in order) if number in (int(lower), int(upper))] == [
        int(lower), int(upper)]


with Tour("reports") as tour:
    database = tour.program / "samples" / "Little Monsters"
    tour.settings.set("Last DB", "Path", str(database))
    tour.settings.set("Clue", "Status", "1")
    share = tour.desk.folder / "share"  # knows kinds of files, but none of the machine's programs
    share.mkdir()
    (share / "mime").symlink_to("/usr/share/mime")
    tour.desk.environment["XDG_DATA_DIRS"] = str(share)
    tour.start()
    tour.open_last()
    report(tour, list(tour.card_values(database).values()))
    jotter(tour, database)
    clues(tour, database)
    tour.close_by_frame("Little Monsters")
    tour.end()
    tour.check(not (database / "Answers.txt").exists(), "answers are left")
