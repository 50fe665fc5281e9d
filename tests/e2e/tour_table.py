"""The table of the monsters: scrolled by wheel, bar and keys, with a picture dropped on a row; then the bin.

One deletion is cancelled, one is confirmed, and the files agree with the table."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

CARDS = 60
ROW_WITH_DROP = 3


def first_cell(tour, table):
    return tour.wait_until(lambda: next(part for part in table.below() if part.role == "table cell"), "the first cell")


def shows_first(tour, table, number):
    """Waits until the table's first row is that card's."""
    tour.wait_until(lambda: first_cell(tour, table).name == str(number), f"card {number} in the first row")


def scroll(tour, table):
    x, y = first_cell(tour, table).centre
    tour.click((x, y), button=5, times=3)  # the wheel
    shows_first(tour, table, 4)
    tour.click((x, y), button=4, times=2)
    shows_first(tour, table, 2)

    bar = tour.find("scroll bar", "Scroll the table")
    left, top, width, height = bar.rectangle
    tour.drag((left + width // 2, top + 20), by=(0, height // 2))
    tour.wait_until(lambda: 25 < bar.value < 45, "the middle of the table")
    tour.picture("middle")

    tour.click((x, y))
    tour.key("End")
    shows_first(tour, table, CARDS)
    tour.picture("end")
    tour.key("Home")
    shows_first(tour, table, 1)
    tour.key("Next")
    tour.wait_until(lambda: bar.value > 5, "the next page")
    tour.key("Prior")
    shows_first(tour, table, 1)


def drop_on_row(tour, table, database, picture):
    """Drops the picture on a row's face, and checks that it becomes that card's, and nothing else changes."""
    before = tour.contents(database)
    name = list(tour.card_labels(database))[ROW_WITH_DROP - 1]
    x, y = first_cell(tour, table).centre
    tour.drop_file(picture, (x + 160, y), "refused")  # beside the pictures
    tour.drop_file(picture, (x + 60, y + 60 * (ROW_WITH_DROP - 1)))
    tour.wait_until(lambda: (database / f"{name}.bmp").read_bytes()[54:] == picture.read_bytes()[54:],
                    "the picture to be the card's")
    tour.window("Tallymoor Release")
    tour.picture("dropped")
    after = tour.contents(database)
    del before[f"{name}.bmp"], after[f"{name}.bmp"]
    tour.check_same(before, after)


def put_in_bin(tour, label, answer):
    tour.drag_onto(tour.card(label), tour.find("push button", "Bin"))
    question = tour.dialog("Delete Card")
    tour.find("label", f"Delete {label} ?", within=question)
    tour.picture(f"question-{answer}")
    tour.answer("Delete Card", answer)


with Tour("table") as tour:
    database = tour.program / "samples" / "Little Monsters"
    tour.settings.set("Last DB", "Path", str(database))
    tour.start()
    tour.open_last()
    tour.click(tour.find("check box", "Table Mode"))
    table = tour.find("table", "Table")
    shows_first(tour, table, 1)
    tour.picture("table")
    scroll(tour, table)
    drop_on_row(tour, table, database, next((tour.program / "samples" / "Amazing Animals").glob("*.bmp")))

    tour.click(tour.find("check box", "Card Mode"))
    tour.choose("Card", "Delete Card")
    (spared, spared_label), (deleted, deleted_label) = list(tour.card_labels(database).items())[10:12]
    before = tour.contents(database)
    put_in_bin(tour, spared_label, "No")
    tour.check(tour.contents(database).keys() == before.keys(), "sparing a card took files away")
    put_in_bin(tour, deleted_label, "Yes")
    tour.window(f"{CARDS - 1} Card\\(s\\)")
    tour.wait_until(lambda: len(tour.all("list item", within=tour.board())) == CARDS - 1, "one card less on the board")
    tour.card(spared_label)
    tour.check(not tour.all("list item", deleted_label, within=tour.board()), f"{deleted_label} is still on the board")
    gone = before.keys() - tour.contents(database).keys()
    tour.check(gone == {name for name in before if name.startswith(deleted)}, f"deleting took {sorted(gone)} away")
    tour.picture("deleted")
    tour.close_by_frame("Little Monsters")
    tour.end()
