"""Entering data: a new card with values, a picture that is painted, and a sound."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

class Canvas:
    """The sheet of the open picture editor."""

    def __init__(self):
        self.parts = [part for part in lesson.dialog("Tallymoor Image Editor").below() if part.has("showing")]
        left, top, _, _ = next(part for part in self.parts if part.name == "Canvas").rectangle
        self._corner = left + 1, top + 1

    def take(self, name):
        """Takes a tool or a colour."""
        lesson.click(next(part for part in self.parts if part.role == "radio button" and part.name == name))

    def at(self, x, y):
        return self._corner[0] + x, self._corner[1] + y

    def draw(self, start, end):
        lesson.drag(self.at(*start), by=(end[0] - start[0], end[1] - start[1]), steps=4)


def choose_answer(field, answer):
    lesson.click(lesson.find("push button", f"{field}, list of answers", within=editor))
    lesson.click(lesson.find("push button", answer, within=editor))


with Lesson("Entering Data", "Entering Data") as lesson:
    lesson.settings.set("Sound", "Status", "1")
    lesson.open("Musical Instruments")

    with lesson.scene("The banjo is missing here. Open the menu Card and choose Add Card."):
        lesson.choose("Card", "Add Card...")
        editor = lesson.dialog("Edit Card 9")

    with lesson.scene("First type its name: Banjo."):
        lesson.type("Banjo")

    with lesson.scene("An arrow opens a list of answers. A banjo belongs to the Strings."):
        choose_answer("Family", "Strings")

    with lesson.scene("You play it by plucking, and it is made of wood."):
        choose_answer("Play it by", "Plucking")
        choose_answer("Made of", "Wood")

    with lesson.scene("Click a box for a number, and type: five strings, 95 cm long."):
        lesson.fill(editor, "Strings", "5")
        lesson.fill(editor, "Size cm", "95")

    with lesson.scene("Now its picture! Click the picture to paint."):
        lesson.click(next(part for part in editor.below() if part.name == "Picture of the card"))
        canvas = Canvas()

    with lesson.scene("Take a colour and a tool. Then draw on the sheet: a long neck first."):
        canvas.take("Brown")
        canvas.take("Filled rectangle")
        canvas.draw((132, 96), (300, 120))

    with lesson.scene("Then a round body. Press OK when you like your picture."):
        canvas.take("Yellow")
        canvas.take("Filled ellipse")
        canvas.draw((24, 36), (168, 180))
        lesson.answer("Tallymoor Image Editor", "OK")

    with lesson.scene("A card can have a sound, too. Open the page Add/Edit Sound."):
        lesson.click(lesson.find("page tab", "Add/Edit Sound"))

    with lesson.scene("Choose Record Your Own Sound, press Record, and sing!"):
        lesson.click(lesson.find("radio button", "Record Your Own Sound"))
        with lesson.in_motion():
            lesson.click(lesson.find("push button", "Record"))
            lesson.find("label", "Recording")
        lesson.click(lesson.find("push button", "Stop Recording"))

    with lesson.scene("Press OK. There is your banjo! Tallymoor has kept it."):
        lesson.answer("Edit Card 9", "OK")
        lesson.point(lesson.card("Banjo"))
