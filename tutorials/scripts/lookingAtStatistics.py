"""Statistics of the animals: the longest life, the shortest, the mean, and a count of what they eat."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402


def calculate(function):
    lesson.pick(functions, function)
    before = roll.text
    lesson.click(lesson.find("push button", "=", within=screen))
    lesson.wait_until(lambda: roll.text != before, "the result")


with Lesson("Looking at Statistics", "Looking At Statistics") as lesson:
    lesson.open("Amazing Animals")

    with lesson.scene("How long do animals live? Tallymoor can work it out for you."):
        for label in ("Bee", "Elephant"):
            lesson.point(lesson.card(label))

    with lesson.scene("Open the menu Data and choose Statistics."):
        lesson.choose("Data", "Statistics...")
        screen = lesson.dialog("Statistics")
        fields, functions = lesson.all("combo box", within=screen)
        roll = lesson.find("text", "Results", within=screen)

    with lesson.scene("First choose the field: Life years."):
        lesson.pick(fields, "Life years")

    with lesson.scene("Choose Maximum and press =. The longest life has 80 years!"):
        calculate("Maximum")

    with lesson.scene("Minimum is the shortest life: only half a year."):
        calculate("Minimum")

    with lesson.scene("The mean shares all the years out evenly: 26.3 for each animal."):
        calculate("Mean")

    with lesson.scene("Clear Data gives you a clean sheet of paper."):
        lesson.click(lesson.find("push button", "Clear Data", within=screen))

    with lesson.scene("Words can be counted, too. Choose the field Food."):
        lesson.pick(fields, "Food")

    with lesson.scene("Choose Count and press =. Eleven of our animals eat other animals!"):
        calculate("Count")
        lesson.point(roll)

    with lesson.scene("Copy Data copies the results. Then you can paste them in a letter."):
        lesson.click(lesson.find("push button", "Copy Data", within=screen))
        lesson.answer("Information", "OK")

    with lesson.scene("Press OK when you have finished."):
        lesson.answer("Statistics", "OK")
