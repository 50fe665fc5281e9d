"""Paper: the board, its captions, a card and a graph come out of a private printer, and as PDF files.

Each sheet is read back by other programs and compared with what the screen shows. Then the printer is disabled, rejects
jobs and vanishes, and its server with it: each time a box says so and nothing is printed."""

import re
import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402
from printshop import PrintShop, Sheet  # noqa: E402

MENU_BAND = 38  # pixels over the board
SLACK = 25  # twips: two dots of the sheet's picture, and rounding of cards to whole pixels
CARDS = [("Żółw", "grün", "4"), ("Bär", "żółty", "4"), ("Ähre", "grün", "0"), ("Igel", "grün", "4"),
         ("Łoś", "żółty", "4"), ("Emu", "blau", "2")]


def make_database(tour):
    folder = tour.program / "Zoo"
    folder.mkdir()
    fields = "".join(f'"{name}"\r\n"{kind}"\r\nFalse\r\n'
                     for name, kind in (("Name", "Abc"), ("Farbe", "Abc"), ("Beine", "123")))
    (folder / "db-info.tdb").write_bytes(f' 3 \r\n 1 \r\n"none"\r\n{fields}RW\r\nVER="1.1.0"\r\n'.encode())
    for number, values in enumerate(CARDS):
        name = f"CARD{number:04}"
        (folder / f"{name}.tcd").write_bytes("".join(f'"{text}"\r\n' for text in ("01000200", *values)).encode())
        tour.desk.run("convert", "-size", "159x120", "gradient:skyblue-khaki", f"BMP3:{folder / name}.bmp")
    return folder


class PrintTour(Tour):
    HARMLESS = re.compile(r"^QAccessibleTable::child: Invalid index")  # Qt, of the list of files in its save dialog


class Formulas:
    """Where a place on the board lies on a sheet, in twips."""

    def __init__(self, board, sheet):
        self._left, self._top, self._wide, height = board
        self.margin = 0.08 * sheet.height
        down = 0.88 * (sheet.height - 2 * self.margin)
        across = down * self._wide / (height - MENU_BAND)
        fit = min(1, (sheet.width - 2 * self.margin) / across)
        self.width, self._scale_x, self._scale_y = across * fit, across * fit / self._wide, down * fit / (height - MENU_BAND)

    def place(self, x, y):
        return self.margin + (x - self._left) * self._scale_x, self.margin + (y - self._top) * self._scale_y


def ask_for(tour, option, printer="Hall"):
    tour.choose("File", "Print...")
    dialog = tour.dialog("Print")
    tour.click(tour.find("radio button", option, within=dialog))
    printers = tour.find("combo box", within=dialog)
    if printers.name != printer:
        tour.pick(printers, printer)
    tour.picture(option, of="^Print$")
    return dialog


def printed(tour, shop, option, landscape=True):
    before = len(shop.jobs())
    ask_for(tour, option)
    tour.answer("Print", "OK")
    jobs = tour.wait_until(lambda: shop.jobs()[before:], f"a sheet of {option}")
    tour.check(len(jobs) == 1 and len(shop.job_numbers()) == before + 1, f"{option} came as {len(jobs)} jobs")
    return read(tour, jobs[0], option, landscape)


def read(tour, path, option, landscape):
    sheet = Sheet(path, landscape)
    tour.desk.run("cp", str(sheet.picture), str(tour.pictures / f"paper-{option}-{path.stem[:2].strip()}.png"))
    tour.check(sheet.pages == 1, f"{option} has {sheet.pages} pages")
    tour.check(sheet.leaves_room(300), f"{option} leaves its sheet")
    return sheet


def check_rectangles(tour, sheet):
    """Each edge of each card is a line on the paper, with nothing just outside it."""
    formulas = Formulas(tour.board().rectangle, sheet)
    for card in tour.all("list item", within=tour.board()):
        left, top, width, height = card.rectangle
        (west, north), (east, south) = formulas.place(left, top), formulas.place(left + width, top + height)
        for part in (0.3, 0.5, 0.7):
            x, y = west + part * (east - west), north + part * (south - north)
            for name, (at_x, at_y), (out_x, out_y) in (("left", (west, y), (-1, 0)), ("right", (east, y), (1, 0)),
                                                       ("top", (x, north), (0, -1)), ("bottom", (x, south), (0, 1))):
                tour.check(sheet.dark(at_x, at_y, 2), f"{card.name} has no {name} edge at {at_x:.0f}, {at_y:.0f}")
                away = 3 * SLACK
                tour.check(not sheet.dark(at_x + out_x * away, at_y + out_y * away), f"{card.name} goes on to the {name}")


def check_words(tour, sheet, expected):
    for word, times in expected.items():
        found = sheet.text.split().count(word)
        tour.check(found == times, f"{word!r} stands {found} times on the paper, not {times}: {sheet.text!r}")


def run_to_end(tour):
    slider = tour.find("slider", "Speed", within=tour.dialog("Speed"))
    x, y = slider.centre
    tour.drag((x, y), by=(120, 0))
    tour.wait_until(lambda: "Speed" not in tour.windows(), "the end of the run", 60)


def board(tour, shop):
    sheet = printed(tour, shop, "Print Screen")
    check_rectangles(tour, sheet)
    tour.choose("Data", "Group...")
    tour.pick(tour.find("combo box", within=tour.dialog("Group Cards")), "Farbe")
    tour.answer("Group Cards", "OK")
    run_to_end(tour)
    grouped = printed(tour, shop, "Print Screen")
    check_words(tour, grouped, {"grün": 1, "żółty": 1, "blau": 1, "Other": 0})
    tour.picture("grouped")


def venn(tour, shop):
    tour.choose("Card", "Find...")
    finder = tour.dialog("Find")
    for row, (field, value) in enumerate((("Farbe", "grün"), ("Beine", "4")), 1):
        tour.pick(tour.find("combo box", f"Field of condition {row}", within=finder), field)
        comparison = tour.find("combo box", f"Comparison of condition {row}", within=finder)
        tour.pick(comparison, "is" if field == "Farbe" else "=")
        tour.click(tour.find("text", f"Value of condition {row}", within=finder))
        tour.type(value)
        if row == 1:
            tour.pick(tour.all("combo box", " ", within=finder)[0], "and")
    tour.click(tour.find("check box", "Make a Venn Diagram"))
    tour.answer("Find", "OK")
    run_to_end(tour)
    sheet = printed(tour, shop, "Print Screen")
    check_words(tour, sheet, {"grün": 1})
    formulas = Formulas(tour.board().rectangle, sheet)
    x, y = formulas.place(8 + tour.board().rectangle[0], 300 + tour.board().rectangle[1])
    tour.check(sheet.dark(x, y, 2), "the frame of the Venn display is not printed")
    tour.picture("venn")


def card(tour, shop):
    tour.click(tour.card("Łoś"))
    sheet = printed(tour, shop, "Print Card", landscape=False)
    check_words(tour, sheet, {"Name": 1, "Farbe": 1, "Beine": 1, "Łoś": 1, "żółty": 1, "4": 1})
    margin = 0.08 * sheet.height
    for x, y in ((margin, margin * 1.3), (0.75 * margin, 2 * margin), (sheet.width - 0.75 * margin, 2 * margin)):
        tour.check(sheet.dark(x, y, 2), f"no line at {x:.0f}, {y:.0f}")


def graph(tour, shop):
    tour.choose("Data", "Make Graph...")
    wizard = tour.dialog("Make Graph")
    tour.pick(tour.find("combo box", within=wizard), "Farbe")
    for _ in range(2):
        tour.click(tour.find("push button", "Next >", within=wizard))
    title = tour.find("text", "Title", within=wizard)
    tour.click(title)
    tour.type("Zoo")
    tour.wait_until(lambda: title.text == "Zoo", "the title to be typed")
    tour.answer("Make Graph", "OK")
    tour.find("list", "Zoo")
    sheet = printed(tour, shop, "Print Graph")
    check_words(tour, sheet, {"Zoo": 1, "grün": 1, "żółty": 1, "blau": 1})
    tour.check(sheet.leaves_room(0.08 * sheet.height - SLACK), "the graph is beside its place")


def as_file(tour, shop):
    jobs = len(shop.job_numbers())
    path = tour.desk.folder / "home" / "Über.pdf"
    ask_for(tour, "Print Screen", "Save as PDF")
    tour.click(tour.find("push button", "OK", within=tour.dialog("Print")))
    chooser = tour.dialog("Save as PDF")
    tour.picture("chooser", of="^Save as PDF$")
    name = next(box for box in tour.all("text", within=chooser) if box.text == "Cards.pdf")
    tour.click(name, times=3)
    tour.type(str(path))
    tour.wait_until(lambda: name.text == str(path), "the path to be typed")
    tour.key("Return")
    tour.wait_until(lambda: path.exists() and path.stat().st_size > 0, "the file")
    check_rectangles(tour, read(tour, path, "Save as PDF", landscape=True))
    tour.check(len(shop.job_numbers()) == jobs, "saving a file has printed")


def faults(tour, shop):
    for what, breaks, mends in (
            ("disabled", ("cupsdisable", "Hall"), ("cupsenable", "Hall")),
            ("rejecting", ("cupsreject", "Hall"), ("cupsaccept", "Hall")),
            ("vanished", ("lpadmin", "-x", "Hall"), None),
            ("no server", None, None)):
        jobs = shop.job_numbers()
        dialog = ask_for(tour, "Print Screen")
        shop.close() if breaks is None else tour.desk.run(*breaks)
        with tour.within(2, f"{what}: the box"):
            tour.click(tour.find("push button", "OK", within=dialog))
            tour.find("label", "Make sure your printer is ready !", within=tour.dialog("Printer Problem"))
        tour.answer("Printer Problem", "OK")
        tour.click(tour.find("push button", "File"))
        tour.find("push button", "Print...", within=tour.find("frame", "File"))
        tour.click(tour.find("push button", "File"))
        if breaks is None:
            shop.open()
        elif mends:
            tour.desk.run(*mends)
        else:
            shop.set_up("Hall")
        tour.check(set(shop.job_numbers()) <= set(jobs), f"{what}: a job was taken")


with PrintTour("print") as tour:
    tour.pictures.mkdir(parents=True)
    shop = PrintShop(tour.desk, ["Hall", "Office"])
    tour.settings.set("Last DB", "Path", str(make_database(tour)))
    tour.start()
    tour.open_last()
    board(tour, shop)
    for part in (venn, card, graph):
        part(tour, shop)
    tour.choose("Card", "Arrange Cards...")
    tour.pick(tour.find("combo box", within=tour.dialog("Arrange Cards")), "Tiled")
    tour.answer("Arrange Cards", "OK")
    as_file(tour, shop)
    faults(tour, shop)
    tour.close_by_frame("Card\\(s\\)")
    tour.end()
