"""The scenes of a recorded lesson on one sheet, as its player shows them at their ends: tutorials/contactSheet.py LESSON SHEET

LESSON is a folder of tutorials/lessons, SHEET the picture to write. With a third argument, a number of seconds from the
start, the sheet is that moment alone."""

import json
import pathlib
import sys
import textwrap

from PIL import Image, ImageDraw, ImageFont

COLUMNS, WIDTH, ROOM = 3, 620, 62  # pixels
INK, PAPER, RING = "#2B2B3A", "#FFFDF5", "#E8557A"
ARROW = [(0, 0), (0, 36), (9, 28), (15, 42), (22, 39), (16, 26), (27, 26)]
FONT = "/usr/share/fonts/truetype/andika/Andika-Regular.ttf"


def pointer_at(places, moment):
    """The last place that the pointer has reached by then, and whether it was pressed there."""
    reached = [place for place in places if place["at"] <= moment] or places[:1]
    return reached[-1]


def draw_pointer(picture, place):
    draw = ImageDraw.Draw(picture)
    x, y = place["x"], place["y"]
    if "press" in place:
        draw.ellipse((x - 30, y - 30, x + 30, y + 30), outline=RING, width=6)
    draw.polygon([(x + dx, y + dy) for dx, dy in ARROW], fill="white", outline=INK, width=3)


def moments(lesson, stops=None):
    """The captions with what the screen shows at the ends of their scenes, and where the pointer is. With `stops`, seconds
    from the start, at these."""
    story = json.loads((lesson / "lesson.json").read_text(encoding="utf-8"))
    screen, begun = Image.new("RGB", story["size"]), 0.0
    for scene in story["scenes"]:
        end = begun + scene["length"]
        wanted = [end] if stops is None else [stop for stop in stops if begun <= stop < end]
        shown = 0
        for stop in [*wanted, end]:
            while shown < len(scene["pictures"]) and begun + scene["pictures"][shown]["at"] <= stop:
                patch = scene["pictures"][shown]
                screen.paste(Image.open(lesson / patch["file"]).convert("RGB"), (patch["x"], patch["y"]))
                shown += 1
            if stop in wanted:
                wanted.remove(stop)
                yield scene["caption"], stop, screen.copy(), pointer_at(scene["pointer"], stop - begun)
        begun = end


def of(lesson, stops=None):
    """The sheet as a picture."""
    shown = list(moments(lesson, stops))
    width = WIDTH if len(shown) > 1 else 1434
    columns = min(COLUMNS, len(shown))
    height = round(shown[0][2].height * width / shown[0][2].width) + ROOM
    sheet = Image.new("RGB", (columns * width, -(-len(shown) // columns) * height), PAPER)
    draw, font = ImageDraw.Draw(sheet), ImageFont.truetype(FONT, 17)
    for i, (caption, moment, picture, pointer) in enumerate(shown):
        draw_pointer(picture, pointer)
        left, top = i % columns * width, i // columns * height
        sheet.paste(picture.resize((width - 6, height - ROOM), Image.Resampling.LANCZOS), (left, top))
        draw.multiline_text((left + 6, top + height - ROOM), "\n".join(textwrap.wrap(f"{moment:.0f} s  {caption}", 68)),
                            fill=INK, font=font, spacing=0)
    return sheet


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    of(pathlib.Path(sys.argv[1]), [float(stop) for stop in sys.argv[3:]] or None).save(sys.argv[2])
