"""The first lesson: open the last database, move a card, listen to another, and close the window.

Looking at cards and moving them changes nothing on the disk."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

with Tour("board") as tour:
    database, card = tour.database_with_sound()
    tour.settings.set("Last DB", "Path", str(database))
    before = tour.contents(database)

    tour.start()
    tour.window("Welcome to Tallymoor")
    tour.find("radio button", "Open last Database")
    tour.picture("welcome")
    tour.open_last()
    board = tour.find("list", "Board")
    moved = tour.wait_until(lambda: tour.all("list item", within=board), "the cards")[0]
    left, top, width, height = moved.rectangle
    tour.drag(moved, by=(636, 310))
    tour.wait_until(lambda: moved.rectangle == (left + 636, top + 310, width, height), "the card to lie where it was put")
    tour.picture("dragged")

    with tour.listen() as ear:
        tour.check(ear.seconds() == 0, "something sounded before a card was asked")
        tour.right_click(tour.find("list item", card, within=board))
        tour.wait_until(lambda: ear.seconds() > 0.2, "the card's sound")
        tour.check(ear.loudness() > 0.01, f"the card's sound is too soft: {ear.loudness()}")

    tour.close_by_frame(database.name)
    tour.end()
    tour.check(tour.settings.get("Last DB", "Path") == str(database), "the last database is not kept")
    tour.check_same(before, tour.contents(database))
