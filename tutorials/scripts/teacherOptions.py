"""For teachers: the keys that open the options, the pages that matter most, and what a locked database looks like."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402
from printshop import PrintShop  # noqa: E402

TITLE = "Teacher Options"


def turn_to(page):
    lesson.click(lesson.find("page tab", page, within=options))


def part(role, name):
    return lesson.find(role, name, within=options)


def tick(name):
    box = part("check box", name)
    lesson.click(box)
    lesson.wait_until(lambda: box.has("checked"), f"{name} to be ticked")


with Lesson("Topts", TITLE) as lesson:
    PrintShop(lesson.desk, ["Classroom"])
    lesson.open("Amazing Animals")

    with lesson.scene("This one is for teachers. Press Ctrl, Shift and K together: no menu leads here."):
        lesson.key("ctrl+shift+k")
        options = lesson.dialog(TITLE)

    with lesson.scene("Folder Settings: pupils begin in this folder. A tick in the box keeps them in it."):
        lesson.point(part("text", "Working Directory"))
        lesson.point(part("check box", "Disable Folder Access & Browse Network Button in Open Dialogue Box"))

    with lesson.scene("Reporting: with this tick pupils can read your questions, but not change them."):
        turn_to("Reporting")
        tick("Disable Save Button")

    with lesson.scene("Colours: a green border shows clearly which card was chosen last."):
        turn_to("Colours")
        tick("Card border: Green")

    with lesson.scene("Misc.: here you can change the letter K, and let pupils record sounds."):
        turn_to("Misc.")
        lesson.point(part("text", "Letter pressed together with Ctrl and Shift"))
        tick("Show Add Sound Option")

    with lesson.scene("Printer: choose one for everything. It counts at once, even after Cancel."):
        turn_to("Printer")
        lesson.point(lesson.find("combo box", within=options))

    with lesson.scene("Database Options: Lock Database lets pupils read the cards, but not change them."):
        turn_to(" Database Options")
        tick("Lock Database")

    with lesson.scene("OK keeps everything in tallymoor.ini. Copy that file to the other computers."):
        lesson.answer(TITLE, "OK")

    with lesson.scene("Let's try: open a card. The page for sounds is here, and OK is locked."):
        lesson.double_click(lesson.card("Lion"))
        lesson.window("Edit Card")
        title = next(title for title in lesson.windows() if title.startswith("Edit Card"))
        editor = lesson.dialog(title)
        lesson.point(lesson.find("page tab", "Add/Edit Sound", within=editor))
        lesson.point(lesson.find("push button", "OK", within=editor))

    with lesson.scene("Cancel closes the card. Its border is green now."):
        lesson.answer(title, "Cancel")
        lesson.point(lesson.card("Lion"))

    with lesson.scene("To unlock it, press Ctrl, Shift and K again, and take the tick away."):
        lesson.key("ctrl+shift+k")
        options = lesson.dialog(TITLE)
        turn_to(" Database Options")
        lesson.click(part("check box", "Lock Database"))
        lesson.answer(TITLE, "OK")
