"""Starting a new database: one question more in its design, the first cards, and a picture from a file."""

import pathlib
import shutil
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

FIELDS = '"Name"\r\n"Abc"\r\nFalse\r\n"Legs"\r\n"123"\r\nFalse\r\n"Food"\r\n"Abc"\r\nTrue\r\n'
FOODS = "".join(f'"{food}"\r\n' for food in ["hay", "seeds"] + [""] * 10)
NUMBERS_ONLY = "123 - Numbers only"


def picture_of(animal):
    """The picture of an animal among the sample cards."""
    animals = lesson.program / "samples" / "Amazing Animals"
    name = next(name for name, label in lesson.card_labels(animals).items() if label == animal)
    return animals / f"{name}.bmp"


def make_database():
    """A database with a single card, as after the first minutes of work, and a picture in the program's folder."""
    folder = lesson.program / "samples" / "Our Pets"
    folder.mkdir()
    (folder / "db-info.tdb").write_bytes(f' 3 \r\n 0 \r\n"none"\r\n{FIELDS}{FOODS}RW\r\nVER="1.1.0"\r\n'.encode())
    (folder / "HOPPYAAA.tcd").write_bytes(b'"00000000"\r\n"Hoppy"\r\n"4"\r\n"hay"\r\n')
    shutil.copy(picture_of("Rabbit"), folder / "HOPPYAAA.bmp")
    shutil.copy(picture_of("Goldfish"), lesson.program / "goldfish.bmp")


def choose_food(editor, food):
    lesson.click(lesson.find("push button", "Food, list of answers", within=editor))
    lesson.click(lesson.find("push button", food, within=editor))


with Lesson("Start a Database", "Starting a New Databases") as lesson:
    make_database()
    lesson.open("Our Pets")

    with lesson.scene("Our first pet is Hoppy. Think first: what else do we want to know?"):
        lesson.point(lesson.card("Hoppy"))

    with lesson.scene("How old are the pets? Open the menu Card and choose Design Cards."):
        lesson.choose("Card", "Design Cards...")
        design = lesson.dialog("Design Cards")

    with lesson.scene("There are three questions. Press the arrow up for one field more."):
        lesson.click(lesson.find("push button", "One field more", within=design))

    with lesson.scene("Press Edit beside it. Type Age, and choose Numbers only."):
        lesson.click(lesson.find("push button", "Edit field 4, fieldname4"))
        details = lesson.dialog("Field Details")
        lesson.type("Age")
        lesson.pick(lesson.find("combo box", within=details), NUMBERS_ONLY)
        lesson.answer("Field Details", "OK")

    with lesson.scene("Press OK. Then open Hoppy's card: press twice quickly on it."):
        lesson.answer("Design Cards", "OK")
        lesson.double_click(lesson.card("Hoppy"))
        editor = lesson.dialog("Edit Card 1")

    with lesson.scene("There is the new question. Hoppy is 2 years old."):
        lesson.fill(editor, "Age", "2")
        lesson.answer("Edit Card 1", "OK")

    with lesson.scene("Now the next pet. Open the menu Card and choose Add Card."):
        lesson.choose("Card", "Add Card...")
        editor = lesson.dialog("Edit Card 2")

    with lesson.scene("Bubbles is a goldfish: no legs, eats seeds, one year old."):
        lesson.type("Bubbles")
        lesson.fill(editor, "Legs", "0")
        choose_food(editor, "seeds")
        lesson.fill(editor, "Age", "1")

    with lesson.scene("Click the picture. You can paint one, or fetch one: press Import Image."):
        lesson.click(next(part for part in editor.below() if part.name == "Picture of the card"))
        painting = lesson.dialog("Tallymoor Image Editor")
        lesson.click(next(part for part in painting.below() if part.name.startswith("Import")))
        chooser = lesson.dialog("Import Image")

    with lesson.scene("Choose the picture, and press Open. Then press OK."):
        lesson.click(lesson.find("table cell", "goldfish.bmp", within=chooser))
        lesson.answer("Import Image", "Open")
        lesson.answer("Tallymoor Image Editor", "OK")

    with lesson.scene("OK puts the card on the board. Two pets already!"):
        lesson.answer("Edit Card 2", "OK")
        lesson.point(lesson.card("Bubbles"))

    with lesson.scene("The table shows all the answers. Now it's your turn!"):
        lesson.click(lesson.find("check box", "Table Mode"))
        lesson.find("table", "Table")
