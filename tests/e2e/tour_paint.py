"""A child draws her card: a house under the sun, with every tool and a real mouse. The tour draws the same by itself,
pixel by pixel, and reads the card's file. Then a photo taken upright comes in, and Cancel leaves every byte."""

import subprocess
import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402
from sheet import HEIGHT, WIDTH, Sheet  # noqa: E402

EDITOR = "Tallymoor Image Editor"
COLOURS = {"Light blue": (128, 255, 255), "Dark green": (0, 192, 0), "Yellow": (255, 255, 0), "Orange": (255, 128, 0),
           "Peach": (255, 192, 128), "Black": (0, 0, 0), "Dark red": (192, 0, 0), "Red": (255, 0, 0),
           "Brown": (192, 64, 0), "White": (255, 255, 255), "Green": (0, 255, 0), "Light yellow": (255, 255, 128)}
TEXT_AREA = (84, 212, 230, 236)

# Tool, colour, where it goes down, where it is let go; then whether Shift is held. All on the grid of 12.
DRAWING = [
    ("Fill", "Light blue", (5, 5), None),
    ("Filled rectangle", "Dark green", (0, 180), (324, 240)),
    ("Filled ellipse", "Yellow", (252, 12), (300, 60), True),
    ("Straight line", "Orange", (276, 72), (276, 96)),
    ("Straight line", "Orange", (240, 36), (216, 36)),
    ("Straight line", "Orange", (252, 60), (230, 98), True),
    ("Filled rectangle", "Peach", (60, 108), (156, 204)),
    ("Rectangle", "Black", (60, 108), (156, 204)),
    ("Straight line", "Dark red", (48, 108), (108, 60)),
    ("Straight line", "Dark red", (108, 60), (168, 108)),
    ("Straight line", "Dark red", (48, 108), (168, 108)),
    ("Fill", "Red", (108, 90), None),
    ("Filled rectangle", "Brown", (96, 156), (120, 204)),
    ("Rectangle", "Black", (96, 156), (120, 204)),
    ("Thin brush", "Yellow", (114, 182), None),
    ("Filled rectangle", "Light yellow", (72, 120), (96, 144)),
    ("Rectangle", "Black", (72, 120), (96, 144)),
    ("Filled rectangle", "Light yellow", (120, 120), (144, 144)),
    ("Rectangle", "Black", (120, 120), (144, 144)),
    ("Filled rectangle", "Brown", (228, 144), (240, 204)),
    ("Filled ellipse", "Dark green", (192, 84), (276, 168)),
    ("Ellipse", "Black", (192, 84), (276, 168)),
    ("Wide brush", "Red", (216, 112), None),
    ("Wide brush", "Red", (246, 126), None),
    ("Wide brush", "Red", (220, 146), None),
    ("Ellipse", "White", (24, 24), (96, 48)),
    ("Fill", "White", (60, 36), None),
]


class Painter:
    """The open picture editor: the tour's hand, and its own sheet beside it."""

    def __init__(self, tour):
        self.tour = tour
        dialog = tour.dialog(EDITOR)
        parts = [part for part in dialog.below() if part.has("showing")]
        self.choices = {part.name: part for part in parts if part.role == "radio button"}
        self.undo = next(part for part in parts if part.name == "Undo")
        left, top, _, _ = next(part for part in parts if part.name == "Canvas").rectangle
        self.corner = left + 1, top + 1
        self.sheet = Sheet.blank()
        self._colour = None
        self._tool = None

    def at(self, point):
        return self.corner[0] + point[0], self.corner[1] + point[1]

    def take(self, tool, colour):
        if colour != self._colour:
            self.tour.click(self.choices[colour])
        if tool != self._tool:
            self.tour.click(self.choices[tool])
        self._colour, self._tool = colour, tool

    def draw(self, tool, colour, start, end=None, shifted=False):
        """By mouse on the canvas, and by arithmetic on the sheet."""
        self.take(tool, colour)
        if end is None:
            self.tour.click(self.at(start))
        else:
            keys = ("keydown", "shift"), ("keyup", "shift")
            if shifted:
                self.tour.desk.run("xdotool", *keys[0])
            self.tour.drag(self.at(start), by=(end[0] - start[0], end[1] - start[1]))
            if shifted:
                self.tour.desk.run("xdotool", *keys[1])
        self._draw_on_sheet(tool, COLOURS[colour], start, end, shifted)
        self._wait_for_stroke(end)

    def _wait_for_stroke(self, end):
        """The next one comes only once this one is seen: a window manager under load hands on clicks late, and then
        with the keys that are held by now. The guides run through the end of the stroke."""
        guides = [round(value / 12) * 12 for value in end] if end else (None, None)
        self.tour.wait_until(lambda: not self._seen().differences(self.sheet, guides=guides), "the stroke on the canvas")

    def _draw_on_sheet(self, tool, colour, start, end, shifted):
        if shifted and tool == "Straight line":  # to the lower left, turned to 45 degrees
            dx, dy = (round(end[i] / 12) * 12 - start[i] for i in (0, 1))
            length = (dx * dx + dy * dy) ** 0.5 / 2 ** 0.5
            end = start[0] - length, start[1] + length
        {
            "Fill": lambda: self.sheet.fill(start, colour),
            "Filled rectangle": lambda: self.sheet.filled_box(start, end, colour),
            "Rectangle": lambda: self.sheet.box(start, end, colour),
            "Filled ellipse": lambda: self.sheet.ellipse(start, end, colour, filled=True),
            "Ellipse": lambda: self.sheet.ellipse(start, end, colour, filled=False),
            "Straight line": lambda: self.sheet.line(start, end, colour),
            "Thin brush": lambda: self.sheet.line(start, start, colour),
            "Wide brush": lambda: self.sheet.line(start, start, colour, width=8),
        }[tool]()

    def canvas(self):
        """What the screen shows, without guides or anything else that isn't of the picture."""
        self.take("Thin brush", self._colour)
        self.tour.point(self.choices["Thin brush"])
        return self._seen()

    def _seen(self):
        picture = self.tour.desk.folder / "canvas.png"
        self.tour.desk.picture(picture)
        return Sheet.from_picture(picture, *self.corner)

    def wait_until_drawn(self, expected, but=(0, 0, 0, 0)):
        """Gives the canvas once it is what was expected; tells the pixels that never became so."""
        seen = []

        def same():
            seen[:] = [self.canvas()]
            return not seen[0].differences(expected, but)
        try:
            self.tour.wait_until(same, "the canvas to be as it was drawn", timeout=10)
        finally:
            wrong = seen[0].differences(expected, but)
            if wrong:
                print(len(wrong), "pixels differ, the first at", wrong[:8], file=sys.stderr)
        return seen[0]

    def leave(self, word):
        self.tour.answer(EDITOR, word)


def open_editor(tour):
    tour.window("Edit Card")
    picture = tour.wait_until(lambda: [part for part in tour.dialog(card_title(tour)).below()
                                       if part.name == "Picture of the card"], "the card's picture")[0]
    tour.click(picture)
    return Painter(tour)


def card_title(tour):
    return next(title for title in tour.windows() if title.startswith("Edit Card"))


def draw_house(tour):
    """Draws the whole picture, and compares the canvas after each kind of work. Gives the canvas as it was left."""
    painter = open_editor(tour)
    tour.find("label", "First click a tool, then draw.")
    tour.picture("opened", of=EDITOR)
    for step in DRAWING:
        painter.draw(*step)
    painter.wait_until_drawn(painter.sheet)

    painter.take("Text", "Black")
    tour.click(painter.at((92, 223)))
    tour.type("Zö's house")
    tour.wait_until(lambda: tour.find("text", "Text", within=tour.dialog(EDITOR)).text == "Zö's house", "the text typed")
    tour.picture("typing", of=EDITOR)
    tour.key("Return")
    written = painter.wait_until_drawn(painter.sheet, but=TEXT_AREA)
    blots = written.blots(COLOURS["Black"], TEXT_AREA)
    tour.check(blots == len("Zö'shouse") + 2, f"Zö's house has {blots} blots")

    painter.take("Spray can", "Yellow")
    tour.drag(painter.at((200, 40)), by=(30, 10))
    tour.wait_until(lambda: painter.canvas().differences(written), "spray on the canvas")
    tour.click(painter.undo)
    painter.wait_until_drawn(written)
    tour.click(painter.undo)
    painter.wait_until_drawn(written)

    for place in ((24, 214), (186, 210), (282, 216)):
        painter.take("Spray can", "Yellow")
        tour.click(painter.at(place))
    tour.picture("house", of=EDITOR)
    drawn = painter.canvas()
    tour.check(drawn.differences(written), "no flowers were sprayed")
    painter.leave("OK")
    return drawn


def check_file(tour, path, drawn):
    """The card's file holds the canvas at half its size, each pixel the mean of four, rounded either way."""
    raw = subprocess.run(("convert", str(path), "-depth", "8", "rgb:-"), check=True, stdout=subprocess.PIPE).stdout
    tour.check(len(raw) == WIDTH * HEIGHT // 4 * 3, f"{path.name} has {len(raw)} bytes of colours")
    means = [value for row in drawn.halved() for pixel in row for value in pixel]
    wrong = [i // 3 for i, mean in enumerate(means) if abs(raw[i] - mean) >= 1]
    tour.check(not wrong, f"{len(wrong)} pixels of the file aren't what was drawn, the first is number {wrong[:1]}")


def phones_photo(tour):
    """A photo of 24 megapixels, blue above and green below, which the phone has stored on its side."""
    path = tour.program / "photo.jpg"
    tour.desk.run("convert", "-size", "3000x4000", "xc:rgb(0,0,200)", "xc:rgb(0,150,0)", "+append", str(path))
    mark = b"Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0"
    stored = path.read_bytes()
    path.write_bytes(stored[:2] + b"\xff\xe1" + (len(mark) + 2).to_bytes(2, "big") + mark + stored[2:])
    return path


def is_upright(above, below):
    """Whether a colour of the photo's upper half is blue, and one of its lower half green."""
    return above[2] > 150 > above[1] and below[1] > 100 > below[2]


def check_preview(tour):
    """The preview shows the photo upright beside the list of files."""
    preview = tour.find("image", "Preview", within=tour.dialog("Import Image"))
    left, top, width, height = preview.rectangle

    def colour(y):
        channels = " ".join(f"%[fx:round(255*{channel})]" for channel in "rgb")
        at = f"1x1+{left + width // 2}+{y}"
        picture = tour.desk.folder / "preview.png"
        tour.desk.picture(picture)
        return [int(value) for value in tour.desk.run("convert", str(picture), "-crop", at, "-format", channels, "info:").split()]
    tour.wait_until(lambda: is_upright(colour(top + height // 4), colour(top + height * 3 // 4)), "the preview of the photo")


def import_photo(tour, painter):
    photo = phones_photo(tour)
    tour.click(next(part for part in tour.dialog(EDITOR).below() if part.name.startswith("Import")))
    tour.click(tour.find("table cell", photo.name, within=tour.dialog("Import Image")))
    check_preview(tour)
    tour.picture("import")
    tour.click(tour.find("push button", "Open", within=tour.dialog("Import Image")))
    tour.wait_until(lambda: "Import Image" not in tour.windows(), "the chooser to go")

    def imported():
        rows = painter.canvas().rows
        return is_upright(rows[20][160], rows[220][160])
    tour.wait_until(imported, "the photo to stand upright on the canvas")
    tour.picture("photo", of=EDITOR)


with Tour("paint") as tour:
    database = tour.program / "samples" / "Little Monsters"
    tour.settings.set("Last DB", "Path", str(database))
    tour.start()
    tour.open_last()
    before = tour.contents(database)

    tour.choose("Card", "Add Card...")
    drawn = draw_house(tour)
    tour.picture("card", of=card_title(tour))
    tour.answer(card_title(tour), "OK")
    tour.window("61 Card\\(s\\)")
    new = tour.wait_until(lambda: [name for name in tour.contents(database) if name not in before and name.endswith(".bmp")],
                          "the new card's picture")[0]
    check_file(tour, database / new, drawn)

    before = tour.contents(database)
    tour.double_click(tour.card(next(iter(tour.card_labels(database).values()))))
    painter = open_editor(tour)
    painter.take("Thin brush", "Red")
    import_photo(tour, painter)
    painter.leave("Cancel")
    painter = open_editor(tour)
    painter.sheet = painter.canvas()
    painter.draw("Fill", "Red", (5, 5))
    painter.leave("OK")
    tour.answer(card_title(tour), "Cancel")
    tour.check_same(before, tour.contents(database))
    tour.close_by_frame("Little Monsters")
    tour.end()
