"""Two pupils look at one folder: what one of them, or a third workstation, does is seen by both within a tick; so is
what they delete.

Then the folder goes away and comes back: one message, no card lost."""

import shutil
import sys
import time

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

TICK = 2  # seconds
WITHIN_A_TICK = 2 * TICK  # and the time to read and to be read


def refreshes(tour):
    return tour.find("check box", "Refresh Database").has("checked")


def tick_refresh(tour):
    if not refreshes(tour):
        tour.click(tour.find("check box", "Refresh Database"))
        tour.wait_until(lambda: refreshes(tour), "the refresh to be on")


def card(tour, label):
    """The card with that label on the board, None when there is none."""
    return next(iter(tour.all("list item", label)), None)


def both_see(tour, copies, label, there):
    """Waits until both copies show a card with that label, or none, and returns the slower one's seconds."""
    began = time.monotonic()
    for copy in copies:
        tour.turn_to(copy)
        tour.wait_until(lambda: bool(card(tour, label)) == there, f'"{label}" to be {"seen" if there else "gone"}',
                        WITHIN_A_TICK)
    print(f'"{label}" {"seen" if there else "gone"} in both after {time.monotonic() - began:.1f} s')


def delete_by_bin(tour, label, meanwhile=lambda: None):
    """Drops the card in the bin and says Yes; something may happen while the question is open."""
    tour.choose("Card", "Delete Card")
    tour.drag_onto(tour.card(label), tour.find("push button", "Bin"))
    tour.find("label", f"Delete {label} ?", within=tour.dialog("Delete Card"))
    meanwhile()
    tour.answer("Delete Card", "Yes")
    tick_refresh(tour)  # choosing from the menu has ended it


def remove(database, name):
    for path in database.glob(f"{name}.*"):
        path.unlink()


def rewrite(record, old, new):
    """Changes a record like another workstation: atomically."""
    draft = record.with_suffix(".draft")
    draft.write_bytes(record.read_bytes().replace(old.encode("cp1252"), new.encode("cp1252")))
    draft.replace(record)


with Tour("refresh") as tour:
    database = tour.databases()[0]
    tour.settings.set("Last DB", "Path", str(database))
    names = list(tour.card_labels(database).items())
    copies = []
    for _ in range(2):
        copies.append(tour.start())
        tour.open_last()
        tick_refresh(tour)
    file_heading = tour.find("push button", "File")
    tour.check(file_heading.rectangle[3] == 32, f"the headings are {file_heading.rectangle[3]} pixels high")

    # A new card, a changed one, a deleted one
    (first, first_label), (second, second_label) = names[0], names[1]
    shutil.copy(database / f"{first}.bmp", database / "ZZZZZZZZ.bmp")
    shutil.copy(database / f"{first}.tcd", database / "ZZZZZZZZ.new")
    rewrite(database / "ZZZZZZZZ.new", first_label, "Visitor")
    (database / "ZZZZZZZZ.new").rename(database / "ZZZZZZZZ.tcd")
    both_see(tour, copies, "Visitor", True)
    rewrite(database / f"{second}.tcd", second_label, "Renamed")
    both_see(tour, copies, "Renamed", True)
    remove(database, first)
    both_see(tour, copies, first_label, False)
    tour.picture("changed")

    # A card that is held stays under the mouse while others come and go
    held = card(tour, "Renamed")
    x, y = held.centre
    tour.desk.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1", "mousemove", str(x + 150), str(y + 90),
                  "mousemove", str(x + 300), str(y + 180))
    tour.wait_until(lambda: held.centre == (x + 300, y + 180), "the card to follow the mouse")
    rewrite(database / f"{second}.tcd", "Renamed", "Changed")
    tour.wait_until(lambda: card(tour, "Changed"), "the held card's new label", WITHIN_A_TICK)
    tour.check(card(tour, "Changed").centre == (x + 300, y + 180), "the held card left the mouse")
    tour.desk.run("xdotool", "mouseup", "1")

    # Each copy deletes a card; the one in the question goes, also when an earlier deletion shifts all numbers
    (earlier, earlier_label), (_, early_label), (_, late_label) = names[2], names[-2], names[-1]
    tour.turn_to(copies[0])
    delete_by_bin(tour, early_label, meanwhile=lambda: remove(database, earlier))
    both_see(tour, copies, early_label, False)
    both_see(tour, copies, earlier_label, False)
    delete_by_bin(tour, late_label)
    both_see(tour, copies, late_label, False)
    left = sorted(tour.card_labels(database).values())
    for copy in copies:
        tour.turn_to(copy)
        tour.wait_until(lambda: sorted(part.name for part in tour.all("list item", within=tour.board())) == left,
                        f"the cards {left}", WITHIN_A_TICK)

    # The folder goes away: one message, every card stays; it comes back and can be shown again
    tour.turn_to(copies[0])
    tour.click(tour.find("check box", "Refresh Database"))
    tour.turn_to(copies[1])
    cards = len(tour.all("list item"))
    away = database.with_name("away")
    database.rename(away)
    tour.find("label", "Path not found")
    tour.picture("gone")
    tour.click(tour.find("push button", "OK"))
    tour.wait_until(lambda: not refreshes(tour), "the refresh to be off")
    tour.check(len(tour.all("list item")) == cards, "cards were dropped from the board")
    away.rename(database)
    tick_refresh(tour)
    tour.check(len(tour.all("list item")) == cards, "cards were lost")
    tour.picture("back")
