"""Making a new database: the wizard, three fields of which one has a list of answers, and a first look at a card."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

NAME = "Our Pets"


def next_page():
    lesson.click(lesson.find("push button", "Next >>", within=wizard))


def edit_field(number):
    """Opens the details of a field. Gives the dialog, whose box for the name has the keyboard."""
    lesson.click(lesson.find("push button", f"Edit field {number}, fieldname{number}"))
    details = lesson.dialog("Field Details")
    box = lesson.find("text", "Name of the field:", within=details)
    lesson.wait_until(lambda: box.has("focused"), "the name to have the keyboard")
    return details


with Lesson("Newdb", "Making New Databases") as lesson:
    lesson.settings.set("Remind", "Status", "1")
    lesson.open("Musical Instruments")

    with lesson.scene("Shall we make cards about our pets? Open the menu File and choose New."):
        lesson.choose("File", "New")
        wizard = lesson.dialog("New Database Wizard")

    with lesson.scene("This wizard helps you. Press Next."):
        next_page()

    with lesson.scene("Type a name for your database: Our Pets. Press Next."):
        lesson.fill(wizard, "Database Name:", NAME)
        next_page()

    with lesson.scene("This is where it will be kept. Press Finish."):
        lesson.click(lesson.find("push button", "Finish", within=wizard))
        lesson.dialog("Design Cards")

    with lesson.scene("What do we want to know? Each field is one question about a pet."):
        lesson.point(lesson.find("push button", "Edit field 3, fieldname3"))

    with lesson.scene("Press Edit beside number 1. Type Name, and press OK."):
        edit_field(1)
        lesson.type("Name")
        lesson.answer("Field Details", "OK")

    with lesson.scene("Number 2 is Legs. The answers are numbers, so choose Numbers only."):
        details = edit_field(2)
        lesson.type("Legs")
        lesson.pick(lesson.find("combo box", within=details), "123 - Numbers only")
        lesson.answer("Field Details", "OK")

    with lesson.scene("Number 3 is Food. Tick the list, and type answers to pick from."):
        details = edit_field(3)
        lesson.type("Food")
        lesson.click(lesson.find("check box", "Offer a list of answers", within=details))
        for line, answer in enumerate(("hay", "seeds"), start=1):
            lesson.fill(details, f"Answer {line}", answer)
        lesson.answer("Field Details", "OK")

    with lesson.scene("Press OK. Tallymoor tells you what comes next: Add Card."):
        lesson.click(lesson.find("push button", "OK", within=lesson.dialog("Design Cards")))
        lesson.answer("Reminder", "OK")
        lesson.choose("Card", "Add Card...")
        editor = lesson.dialog("Edit Card 1")

    with lesson.scene("Here are your questions! Type the answers, and pick the food."):
        lesson.type("Hoppy")
        lesson.fill(editor, "Legs", "4")
        lesson.click(lesson.find("push button", "Food, list of answers", within=editor))
        lesson.click(lesson.find("push button", "hay", within=editor))
        lesson.point(lesson.find("push button", "OK", within=editor), hover=True)

    with lesson.scene("Press OK. That is your first card! You can paint its picture later."):
        lesson.answer("Edit Card 1", "OK")
        lesson.point(lesson.card("Hoppy"))
