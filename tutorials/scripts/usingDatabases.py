"""Using databases: opening one, looking at its cards, the table, and a value that is put right."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

with Lesson("Using Databases", "Using Databases") as lesson:
    lesson.start()
    lesson.window("Welcome to Tallymoor")
    existing = lesson.find("radio button", "Open an existing Database")

    with lesson.scene("A database is a box of cards. Choose Open an existing Database."):
        lesson.click(existing)

    with lesson.scene("Then press OK."):
        lesson.click(lesson.find("push button", "OK"))
        chooser = lesson.dialog("Open Database")
        box = lesson.find("check box", "Musical Instruments, database")

    with lesson.scene("Here are three databases. Press twice quickly on Musical Instruments."):
        lesson.double_click(box)
        lesson.window("8 Card")
        lesson.card("Guitar")

    with lesson.scene("Each card is one instrument. The top line counts the cards: there are 8."):
        lesson.point((250, 14))

    with lesson.scene("Press the right button on the trumpet, and you hear it."):
        lesson.right_click(lesson.card("Trumpet"))

    with lesson.scene("Press twice quickly on the guitar. Its card opens."):
        lesson.double_click(lesson.card("Guitar"))
        lesson.window("Edit Card")
        title = next(title for title in lesson.windows() if title.startswith("Edit Card"))
        editor = lesson.dialog(title)

    with lesson.scene("Our guitar has 12 strings. Click twice in the box Strings, and type 12."):
        lesson.fill(editor, "Strings", "12", clicks=2)

    with lesson.scene("OK keeps what you typed. Cancel leaves the card as it was."):
        lesson.point(lesson.find("push button", "Cancel", within=editor))
        lesson.pause(0.8)
        lesson.answer(title, "OK")

    with lesson.scene("This button shows all the cards in a table."):
        lesson.click(lesson.find("check box", "Table Mode"))
        table = lesson.find("table", "Table")

    with lesson.scene("There is the guitar, and it has 12 strings now."):
        lesson.point(lesson.find("table cell", "12", within=table))

    with lesson.scene("This button brings the cards back."):
        lesson.click(lesson.find("check box", "Card Mode"))
        lesson.card("Guitar")

    with lesson.scene("All is kept. When you have finished, choose Exit in the menu File."):
        lesson.click(lesson.find("push button", "File"))
        lesson.point(lesson.find("push button", "Exit", within=lesson.find("frame", "File")))
