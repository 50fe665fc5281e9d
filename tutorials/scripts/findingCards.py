"""Finding cards: one condition, two of them, and a Venn diagram."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

COLOUR, FLIES = 2, 8  # among the values of a monster


def ask(row, field, value):
    finder = lesson.dialog("Find")
    lesson.pick(lesson.find("combo box", f"Field of condition {row}", within=finder), field)
    lesson.pick(lesson.find("combo box", f"Comparison of condition {row}", within=finder), "is")
    lesson.fill(finder, f"Value of condition {row}", value)


with Lesson("Finding Cards", "Finding Cards") as lesson:
    lesson.open("Little Monsters")
    monsters = lesson.card_values(lesson.program / "samples" / "Little Monsters").values()
    green = [monster for monster in monsters if monster[COLOUR] == "Green"]
    both = [monster for monster in green if monster[FLIES] == "Yes"]

    with lesson.scene("What a lot of monsters! Which ones are green?"):
        lesson.point(lesson.card(green[0][0]))

    with lesson.scene("Open the menu Card and choose Find."):
        lesson.choose("Card", "Find...")
        lesson.dialog("Find")

    with lesson.scene("Choose Colour, then the word is, and type Green."):
        ask(1, "Colour", "Green")

    with lesson.scene("Press OK. The green monsters fly to the top!"):
        lesson.fly("Find", result="Find Results")

    lesson.find("label", f"Number of cards found: {len(green)}")
    with lesson.scene(f"{len(green)} monsters are green. Press OK to look at them."):
        lesson.answer("Find Results", "OK")

    with lesson.scene("Which green monsters can fly? Choose Find again."):
        lesson.choose("Card", "Find...")
        finder = lesson.dialog("Find")

    with lesson.scene("The first line: Colour is Green, as before."):
        ask(1, "Colour", "Green")

    with lesson.scene("Now join a second line with the word: and."):
        lesson.pick(lesson.all("combo box", " ", within=finder)[0], "and")

    with lesson.scene("The second line: Can fly is Yes."):
        ask(2, "Can fly", "Yes")

    with lesson.scene("Tick Make a Venn Diagram, and press OK."):
        lesson.click(lesson.find("check box", "Make a Venn Diagram", within=finder))
        lesson.fly("Find")

    with lesson.scene(f"Both rings hold the {len(both)} monsters that are green and can fly."):
        lesson.point(lesson.card(both[0][0]))
