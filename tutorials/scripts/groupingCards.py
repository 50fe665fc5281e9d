"""Grouping cards: by the homes of the animals, by their food, and tidy again."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

def group_by(field):
    lesson.pick(lesson.find("combo box", within=lesson.dialog("Group Cards")), field)


with Lesson("Grouping Cards", "Grouping Cards") as lesson:
    lesson.open("Amazing Animals")

    with lesson.scene("Animals live in many places. Let us put them into groups."):
        lesson.point(lesson.card("Camel"))

    with lesson.scene("Open the menu Data and choose Group."):
        lesson.choose("Data", "Group...")
        lesson.dialog("Group Cards")

    with lesson.scene("Choose Home: where the animals live."):
        group_by("Home")

    with lesson.scene("Press OK. Each animal flies home."):
        lesson.fly("Group Cards")

    with lesson.scene("Each column is one home. Only the penguin lives on the ice!"):
        lesson.point(lesson.card("Penguin"))

    with lesson.scene("What do they eat? Choose Group again."):
        lesson.choose("Data", "Group...")
        lesson.dialog("Group Cards")

    with lesson.scene("This time choose Food, and press OK."):
        group_by("Food")
        lesson.fly("Group Cards")

    with lesson.scene("Both means animals and plants. The fox eats both."):
        lesson.point(lesson.card("Fox"))

    with lesson.scene("Now tidy up: open the menu Card and choose Arrange Cards."):
        lesson.choose("Card", "Arrange Cards...")
        arrange = lesson.dialog("Arrange Cards")

    with lesson.scene("Choose Tiled and press OK. All the cards lie in rows again."):
        lesson.pick(lesson.find("combo box", within=arrange), "Tiled")
        lesson.answer("Arrange Cards", "OK")
