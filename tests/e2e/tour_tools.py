"""The tools at work on the monsters: find, Venn, sort, group, arrange. Cards fly at three speeds and end in place.

At the end of each the board is read like a screen reader and compared with the files' values."""

import math
import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

NAME, COLOUR, HEIGHT, FLIES = 0, 2, 7, 8  # among the values of a monster
MIDDLE, SLOW, FAST = 5, 1, 9
RUN_TIME = 120  # seconds for sixty flights


def places(tour):
    """The middle of each card on the board by its label."""
    return {card.name: card.centre for card in tour.all("list item", within=tour.board())}


def captions(tour):
    """The middle of each caption on the board by its text."""
    return {caption.name: caption.centre for caption in tour.all("label", within=tour.board())}


def sees_flight(tour, end=lambda tour: False):
    """Sees a card fly, or that the run has come to its end in the meantime."""
    before = places(tour)
    tour.wait_until(lambda: places(tour) != before or end(tour), "a card to fly")


def watch(tour, tool, end=lambda tour: "Speed" not in tour.windows()):
    """Watches a run at its initial speed, then slow, then fast to its end."""
    slider = tour.find("slider", "Speed", within=tour.dialog("Speed"))
    tour.check(slider.value == MIDDLE, f"{tool} begins at speed {slider.value}")
    sees_flight(tour)
    for position, pixels in ((SLOW, -120), (FAST, 240)):
        x, y = slider.centre
        tour.drag((x if position == SLOW else slider.rectangle[0] + 20, y), by=(pixels, 0))
        tour.wait_until(lambda position=position: slider.value == position, f"speed {position}")
        sees_flight(tour, end if position == FAST else lambda tour: False)
        if position == SLOW:
            tour.picture(f"{tool}-flying")
    tour.wait_until(lambda: end(tour), f"the end of {tool}", RUN_TIME)


def ask(tour, row, field, comparison, value):
    finder = tour.dialog("Find")
    tour.pick(tour.find("combo box", f"Field of condition {row}", within=finder), field)
    tour.pick(tour.find("combo box", f"Comparison of condition {row}", within=finder), comparison)
    box = tour.find("text", f"Value of condition {row}", within=finder)
    tour.click(box)
    tour.type(value)
    tour.wait_until(lambda: box.text == value, f'"{value}" to be typed')


def find(tour, monsters):
    tour.choose("Card", "Find...")
    ask(tour, 1, "Colour", "is", "Green")
    tour.picture("find-asked")
    tour.answer("Find", "OK")
    watch(tour, "find", lambda tour: "Find Results" in tour.windows())
    green = [monster for monster in monsters if monster[COLOUR] == "Green"]
    tour.find("label", f"Number of cards found: {len(green)}")
    tour.picture("found")
    tour.answer("Find Results", "OK")
    lie, (_, top, _, height) = places(tour), tour.board().rectangle
    for monster in monsters:
        found = lie[monster[NAME]][1] < top + height / 2
        tour.check(found == (monster in green), f"{monster[NAME]}, {monster[COLOUR]}, lies at {lie[monster[NAME]]}")


def venn(tour, monsters):
    tour.choose("Card", "Find...")
    ask(tour, 1, "Colour", "is", "Green")
    tour.pick(tour.all("combo box", " ", within=tour.dialog("Find"))[0], "and")
    ask(tour, 2, "Can fly", "is", "Yes")
    tour.click(tour.find("check box", "Make a Venn Diagram"))
    tour.picture("venn-asked")
    tour.answer("Find", "OK")
    watch(tour, "venn")
    tour.picture("venn")
    lie, titles = places(tour), captions(tour)
    left, top, width, height = tour.board().rectangle
    radius = (height - 55 - 90) / 2
    middle = top + 48 + 73 + radius
    for monster in monsters:
        x, y = lie[monster[NAME]]
        for title, holds in (("Colour is Green", monster[COLOUR] == "Green"), ("Can fly is Yes", monster[FLIES] == "Yes")):
            inside = math.hypot(x - titles[title][0], y - middle) < radius
            tour.check(inside == holds, f"{monster[NAME]} lies at {x}, {y}, and {title}: {holds}")


def opens_where_it_did(tour):
    places = []
    for _ in range(2):
        tour.choose("Data", "Sort...")
        places.append(tour.dialog("Sort Cards").rectangle)
        tour.answer("Sort Cards", "Cancel")
    tour.check(places[0] == places[1], f"the dialog opened at {places}")


def see_whole_list(tour, box, count):
    """Opens a drop-down list: all lines are in view, and the last one isn't cut off."""
    tour.click(box)
    lines = tour.wait_until(lambda: tour.all("list item", within=box), "the list to open")
    _, top, _, height = tour.find("list", within=box).rectangle
    bottom = max(line.rectangle[1] + line.rectangle[3] for line in lines)
    tour.check(len(lines) == count and bottom <= top + height, f"{len(lines)} lines of {count} end at {bottom}, "
               f"the list at {top + height}")
    tour.key("Return")
    tour.wait_until(lambda: box.has("focused"), "the list to close")


def sort(tour, monsters):
    tour.choose("Data", "Sort...")
    dialog = tour.dialog("Sort Cards")
    see_whole_list(tour, tour.find("combo box", within=dialog), len(monsters[0]))
    tour.pick(tour.find("combo box", within=dialog), "Height cm")
    tour.click(tour.find("radio button", "Going Down", within=dialog))
    tour.picture("sort-asked")
    tour.answer("Sort Cards", "OK")
    watch(tour, "sort")
    tour.picture("sorted")
    lie, height = places(tour), {monster[NAME]: float(monster[HEIGHT]) for monster in monsters}
    down_the_line = sorted(lie, key=lambda label: lie[label])
    heights = [height[label] for label in down_the_line]
    tour.check(heights == sorted(heights, reverse=True), f"the heights go {heights}")
    tour.check([lie[label][1] for label in down_the_line] == sorted(y for _, y in lie.values()), "the line bends")


def group(tour, monsters):
    tour.choose("Data", "Group...")
    tour.pick(tour.find("combo box", within=tour.dialog("Group Cards")), "Colour")
    tour.picture("group-asked")
    tour.answer("Group Cards", "OK")
    watch(tour, "group")
    tour.picture("grouped")
    lie, columns = places(tour), captions(tour)
    for monster in monsters:
        aside = lie[monster[NAME]][0] - columns[monster[COLOUR]][0]
        tour.check(abs(aside) <= 2, f"{monster[NAME]}, {monster[COLOUR]}, lies {aside} pixels beside its column")


def arrange(tour, monsters):
    tour.choose("Card", "Arrange Cards...")
    tour.pick(tour.find("combo box", within=tour.dialog("Arrange Cards")), "Left")
    tour.picture("arrange-asked")
    tour.answer("Arrange Cards", "OK")
    lie = places(tour)
    column = [lie[monster[NAME]] for monster in monsters]
    tour.check(len({x for x, _ in column}) == 1 and column == sorted(column), f"the cards lie at {column}")
    tour.picture("arranged")


with Tour("tools") as tour:
    database = tour.program / "samples" / "Little Monsters"
    tour.settings.set("Last DB", "Path", str(database))
    monsters = list(tour.card_values(database).values())
    before = tour.contents(database)
    tour.start()
    tour.open_last()
    opens_where_it_did(tour)
    for tool in (find, venn, sort, group, arrange):
        tool(tour, monsters)
    tour.check_same(before, tour.contents(database))
    tour.close_by_frame("Little Monsters")
    tour.end()
