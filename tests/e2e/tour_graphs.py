"""Graphs and figures of the monsters: each kind that is offered, read from the screen's pixels and from the bus.

Heights of bars, places of points and angles of slices are compared with what the tour counts itself. A second program
takes the chart and the statistics from the clipboard; 0, 40 and 41 cards, and cards of zeros, are tried as well."""

import collections
import math
import re
import statistics
import subprocess
import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

NAME, COLOUR, HEIGHT = 0, 2, 7  # among the values of a monster
SKY, CURVE = (0x4F, 0xB3, 0xE8), (0x1B, 0x62, 0x99)
SLICES = [(0x4F, 0xB3, 0xE8), (0xFF, 0xD8, 0x4D), (0xE8, 0x55, 0x7A), (0xBF, 0xE7, 0x9C),
          (0xF2, 0xA2, 0x4B), (0xF9, 0xC6, 0xD3), (0x7A, 0xC9, 0x43), (0xBF, 0xE3, 0xF7)]
TITLE = "Our monsters"


class Pixels:
    """The screen within a part of a window."""

    def __init__(self, tour, part):
        tour.pictures.mkdir(parents=True, exist_ok=True)
        path = tour.desk.folder / "pixels.png"
        tour.desk.picture(path)
        self.left, self.top, self.width, self.height = part.rectangle
        crop = f"{self.width}x{self.height}+{self.left}+{self.top}"
        self.data = subprocess.run(("convert", str(path), "-crop", crop, "+repage", "-depth", "8", "rgb:-"),
                                   stdout=subprocess.PIPE, check=True).stdout

    def at(self, x, y):
        place = 3 * (y * self.width + x)
        return tuple(self.data[place:place + 3])

    def columns(self, colour):
        """The longest upright run of the colour in each column, as top and bottom, where there is one."""
        found = {}
        for x in range(self.width):
            run, best = 0, None
            for y in range(self.height + 1):
                if y < self.height and self.at(x, y) == colour:
                    run += 1
                else:
                    if run > 1 and (best is None or run > best[1] - best[0]):
                        best = (y - run, y)
                    run = 0
            if best:
                found[x] = best
        return found

    def groups(self, colour):
        """Neighbouring columns of the colour together."""
        together = []
        for x, run in self.columns(colour).items():
            if together and x - together[-1][-1][0] == 1:
                together[-1].append((x, run))
            else:
                together.append([(x, run)])
        return together


def values_read_out(tour):
    """What a screen reader gets of the chart: name and number of each value."""
    chart = tour.find("list", TITLE)
    found = {}
    for item in chart.children:
        name, number = re.match(r"(.*): (-?[\d.]+)(?: \(\d+ %\))?$", item.name).groups()
        found[name] = float(number)
    return chart, found


def make_graph(tour, field, kind, group=None):
    tour.choose("Data", "Make Graph...")
    wizard = tour.dialog("Make Graph")
    tab = tour.find("page tab", "Graph", within=wizard)
    if kind == "3D Bar Chart":
        tab.press()  # as a screen reader does: this kind comes into view
    else:
        tour.click(tab)
    fields = tour.find("combo box", within=wizard)
    if fields.name != field:
        tour.pick(fields, field)
    tour.click(tour.find("push button", "Next >", within=wizard))
    option = tour.find("radio button", kind, within=wizard)
    tour.click(option)
    tour.wait_until(lambda: option.has("checked"), f"{kind} to be chosen")
    tour.picture(f"{kind}-asked", of="^Make Graph$")
    tour.click(tour.find("push button", "Next >", within=wizard))
    if group:
        tour.click(tour.find("radio button", group, within=wizard))
        tour.click(tour.find("push button", "Next >", within=wizard))
    title = tour.find("text", "Title", within=wizard)
    tour.click(title)
    tour.wait_until(lambda: title.text == "", "a click to empty the title")
    tour.type(TITLE)
    tour.wait_until(lambda: title.text == TITLE, "the title to be typed")
    tour.answer("Make Graph", "OK")


def check_proportional(tour, measured, expected, what, slack=2.0):
    """Measured pixels are one multiple of the expected numbers."""
    tour.check(len(measured) == len(expected), f"{what}: {len(measured)} found, {len(expected)} expected")
    unit = statistics.median(pixels / number for pixels, number in zip(measured, expected) if number)
    for pixels, number in zip(measured, expected):
        tour.check(abs(pixels - unit * number) <= slack, f"{what}: {pixels} pixels for {number}, {unit} for one")


def check_bars(tour, chart, counts):
    """Front by front from left to right; the legend's square stands on no axis."""
    groups = Pixels(tour, chart).groups(SKY)
    bottom = collections.Counter(run[1] for group in groups for _, run in group).most_common(1)[0][0]
    heights = [max(bottom - run[0] for _, run in group if run[1] == bottom)
               for group in groups if any(run[1] == bottom for _, run in group)]
    check_proportional(tour, [height + 2 for height in heights], counts, "bars")  # with half of each outline


def check_points(tour, chart, counts):
    """The middles of the points lie on a straight scale."""
    groups = Pixels(tour, chart).groups(SKY)
    middles = [statistics.mean((top + bottom) / 2 for _, (top, bottom) in group) for group in groups]
    tour.check(len(middles) == len(counts), f"{len(middles)} points for {counts}")
    lowest, highest = counts.index(min(counts)), counts.index(max(counts))
    unit = (middles[lowest] - middles[highest]) / (counts[highest] - counts[lowest])
    for middle, count in zip(middles, counts):
        expected = middles[lowest] - unit * (count - counts[lowest])
        tour.check(abs(middle - expected) <= 2, f"a point for {count} at {middle} instead of {expected}")


def check_slices(tour, chart, counts):
    """The colour at the rim in each direction from the middle, half a degree at a time."""
    pixels = Pixels(tour, chart)
    edges = [item.rectangle for item in chart.children]
    left, top = min(e[0] for e in edges) - pixels.left, min(e[1] for e in edges) - pixels.top
    right, bottom = (max(e[0] + e[2] for e in edges) - pixels.left, max(e[1] + e[3] for e in edges) - pixels.top)
    radius, x, y = (right - left) / 2, (left + right) / 2, (top + bottom) / 2
    tour.check(abs((bottom - top) / 2 - radius) <= 2, "the pie is no circle")
    steps = collections.Counter()
    for step in range(720):
        angle = math.radians((step + 0.5) / 2)
        seen = collections.Counter(pixels.at(round(x + math.sin(angle) * r), round(y - math.cos(angle) * r))
                                   for r in range(round(radius * 0.75), round(radius * 0.97)))
        mostly = max(range(len(counts)), key=lambda i: seen[SLICES[i]])
        steps[mostly] += seen[SLICES[mostly]] > 0  # nothing but outline lies between two slices
    for i, count in enumerate(counts):
        degrees, expected = 360 * steps[i] / steps.total(), 360 * count / sum(counts)
        tour.check(abs(degrees - expected) <= 2, f"slice {i} has {degrees} degrees instead of {expected}")


def kinds(tour, monsters):
    counted = collections.Counter(monster[COLOUR] for monster in monsters)
    names = sorted(counted)
    counts = [counted[name] for name in names]
    for kind, check in (("Bar Chart", check_bars), ("3D Bar Chart", check_bars), ("Line Chart", check_points),
                        ("Pie Chart", check_slices)):
        make_graph(tour, "Colour", kind)
        chart, read = tour.wait_until(lambda: values_read_out(tour), "the chart")
        tour.check(list(read) == names and list(read.values()) == counts, f"{kind} reads {read}")
        tour.point((5, 5))
        tour.picture(kind)
        check(tour, chart, counts)
    # Only the chart is read out, not what lies beneath.
    tour.check(not tour.all("list item", within=tour.board()), "cards are read out under the chart")


def by_keys(tour, monsters):
    """All monsters' heights by keyboard alone, named by the monsters."""
    tour.key("alt+d")
    tour.find("frame", "Data")
    tour.key("Down", "Down", "Return")
    wizard = tour.dialog("Make Graph")
    fields = tour.find("combo box", within=wizard)
    tour.wait_until(lambda: fields.has("focused"), "the list of fields to have the focus")
    tour.type("Height")
    tour.wait_until(lambda: fields.name == "Height cm", "the field to be picked")
    tour.key("Return")
    option = tour.find("radio button", "Pie Chart", within=wizard)
    tour.wait_until(lambda: option.has("focused"), "the kind of the last graph to have the focus")
    tour.key("alt+b", "Return")
    groups = tour.find("radio button", "Count in Groups", within=wizard)
    tour.wait_until(lambda: groups.has("focused"), "the question about groups")
    tour.key("Down", "Return")
    title = tour.find("text", "Title", within=wizard)
    tour.wait_until(lambda: title.has("focused"), "the titles")
    tour.type(TITLE)
    tour.wait_until(lambda: title.text == TITLE, "the title to be typed")
    tour.key("Return")
    for_card = {monster[NAME]: float(monster[HEIGHT]) for monster in monsters}
    _, read = tour.wait_until(lambda: values_read_out(tour), "the chart")
    expected = {name: for_card[name] for name in sorted(for_card)}
    tour.check(list(read.items()) == list(expected.items()), f"the heights read {read}")
    tour.picture("keys")
    tour.key("Home", "Right")
    second = list(expected)[1]
    tour.wait_until(lambda: any(item.name.startswith(f"{second}: ") and item.has("focused")
                                for item in tour.find("list", TITLE).children), f"{second} to have the focus")


def copy(tour):
    chart = tour.find("list", TITLE)
    _, _, width, height = chart.rectangle
    tour.click(tour.find("push button", "Copy Graph"))
    tour.answer("Notice", "OK")
    path = tour.pictures / "pasted.png"
    path.write_bytes(tour.pasted("image/png"))
    size = tour.desk.run("identify", "-format", "%w %h", str(path)).split()
    tour.check(size == [str(2 * width), str(2 * height)], f"the pasted picture is {size}, the chart {width} {height}")


def calculate(tour, monsters):
    tour.choose("Data", "Statistics...")
    screen = tour.dialog("Statistics")
    field, function = tour.all("combo box", within=screen)
    roll = tour.find("text", "Results", within=screen)
    heights = [float(monster[HEIGHT]) for monster in monsters]
    counted = collections.Counter(monster[COLOUR] for monster in monsters)
    mean = f"{math.floor(sum(heights) / len(heights) * 100 + 0.5) / 100:.15g}"
    groups = "".join(f"{name} = {count}\n" for name, count in counted.items())
    for number, (name, word, result) in enumerate((
            ("Height cm", "Mean", f"Height cm Mean = {mean}\n"),
            ("Height cm", "Range", f"Height cm Range = {max(heights) - min(heights):.15g}\n"),
            ("Colour", "Count", f"Colour Count groups:\n{groups}\n"))):
        before = roll.text
        tour.pick(field, name)
        tour.pick(function, word)
        tour.click(tour.find("push button", "=", within=screen))
        tour.wait_until(lambda before=before, result=result: roll.text == before + result, f"{result!r} on the roll")
    tour.picture("statistics", of="^Statistics$")
    text = roll.text
    tour.click(tour.find("push button", "Copy Data", within=screen))
    tour.answer("Information", "OK")
    found = tour.pasted("UTF8_STRING").decode()
    tour.check(re.fullmatch(r"\[Data generated by and copied from Tallymoor on [^\]\r\n]+\]\r\n\r\n.*", found, re.DOTALL)
               and found.split("\r\n\r\n", 1)[1] == text.replace("\n", "\r\n"), f"the clipboard has {found!r}")
    tour.answer("Statistics", "OK")
    tour.check(tour.all("list", TITLE), "the statistics have hidden the chart")


def gone_after_sort(tour):
    tour.choose("Data", "Sort...")
    tour.dialog("Sort Cards")
    tour.wait_until(lambda: not tour.all("list", TITLE), "the chart to go")
    tour.check(not tour.all("push button", "Copy Graph"), "a chart that is gone can be copied")
    tour.answer("Sort Cards", "Cancel")


def database_of(tour, cards):
    """A database of that many cards, all of them zeros."""
    folder = tour.program / f"zeros{cards}"
    folder.mkdir()
    fields = '"Name"\r\n"Abc"\r\nFalse\r\n"Legs"\r\n"123"\r\nFalse\r\n'
    (folder / "db-info.tdb").write_bytes(f' 2 \r\n 2 \r\n"none"\r\n{fields}RW\r\nVER="1.1.0"\r\n'.encode())
    for card in range(1, cards + 1):
        (folder / f"CARD{card:04}.tcd").write_bytes(f'"01000200"\r\n"Card {card:02}"\r\n"0"\r\n'.encode())
    return folder


def sizes(tour):
    few = "Sorry! You need to add a card or enter values before you can make {}."
    many = "Sorry! You can make graphs up to 40 cards. Delete some cards and try again."
    for cards, graph_refused in ((0, few.format("Graphs")), (41, many)):
        begin_with(tour, database_of(tour, cards))
        tour.choose("Data", "Make Graph...")
        tour.find("label", graph_refused, within=tour.dialog("Making Graphs"))
        tour.answer("Making Graphs", "OK")
        tour.choose("Data", "Statistics...")
        if cards:  # only the calculation is refused
            tour.click(tour.find("push button", "=", within=tour.dialog("Statistics")))
        tour.find("label", few.format("Statistics"), within=tour.dialog("Making Statistics"))
        tour.answer("Making Statistics", "OK")
        if cards:
            tour.answer("Statistics", "Cancel")
        finish(tour)
    begin_with(tour, database_of(tour, 40))
    make_graph(tour, "Legs", "Bar Chart", "Show All Data")
    tour.find("label", "You need to have values in the fields to make graphs.", within=tour.dialog("Error"))
    tour.answer("Error", "OK")
    tour.check(not tour.all("list", TITLE) and not tour.all("push button", "Copy Graph"), "zeros are shown as a chart")
    make_graph(tour, "Name", "Bar Chart")
    _, read = tour.wait_until(lambda: values_read_out(tour), "the chart of forty")
    tour.check(read == {f"Card {card:02}": 1 for card in range(1, 41)}, f"forty cards read {read}")
    tour.picture("forty")
    finish(tour)


def begin_with(tour, database):
    tour.settings.set("Last DB", "Path", str(database))
    tour.start()
    tour.open_last()


def finish(tour):
    tour.close_by_frame("Card\\(s\\)")
    tour.end()


with Tour("graphs") as tour:
    # A graph takes forty cards at most.
    database = tour.program / "samples" / "Little Monsters"
    for record in sorted(database.glob("*.tcd"))[40:]:
        record.unlink()
    monsters = list(tour.card_values(database).values())
    before = tour.contents(database)
    begin_with(tour, database)
    kinds(tour, monsters)
    by_keys(tour, monsters)
    copy(tour)
    calculate(tour, monsters)
    gone_after_sort(tour)
    tour.check_same(before, tour.contents(database))
    finish(tour)
    sizes(tour)
