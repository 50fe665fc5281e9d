"""Sorting: by number, up and down, the speed of the flights, and by name."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

FAST = 9

with Lesson("Sorting Data", "Sorting Data") as lesson:
    lesson.open("Amazing Animals")

    with lesson.scene("Which of these animals is the heaviest? Sorting tells us."):
        lesson.point(lesson.card("Giraffe"))

    with lesson.scene("Open the menu Data and choose Sort."):
        lesson.choose("Data", "Sort...")
        sort = lesson.dialog("Sort Cards")

    with lesson.scene("Choose what to sort by: Weight kg."):
        lesson.pick(lesson.find("combo box", within=sort), "Weight kg")

    with lesson.scene("Going Down puts the biggest number first."):
        lesson.click(lesson.find("radio button", "Going Down", within=sort))

    with lesson.scene("Press OK, and the cards begin to fly. This button stops them."):
        with lesson.film(lapse=0):
            lesson.answer("Sort Cards", "OK")
            speed = lesson.dialog("Speed")
            pause = lesson.find("push button", "Pause", within=speed).centre
            lesson.catch(pause)
            resume = lesson.find("push button", "Carry on", within=speed)
        lesson.show_click(pause)

    with lesson.scene("Too slow? Drag the round button towards the rabbit."):
        slider = lesson.find("slider", "Speed", within=speed)
        lesson.drag(slider, by=(100, 0))
        lesson.wait_until(lambda: slider.value == FAST, f"speed {FAST}")

    with lesson.scene("Press the arrow, and the cards fly on, faster than before."):
        with lesson.film():
            lesson.click(resume)
            lesson.wait_until(lambda: "Speed" not in lesson.windows(), "the end of the flights", 120)

    with lesson.scene("The elephant comes first. It weighs 5000 kg!"):
        lesson.point(lesson.card("Elephant"))

    with lesson.scene("The bee comes last. It is the lightest."):
        lesson.point(lesson.card("Bee"))

    with lesson.scene("Words can be sorted, too. Choose Sort again."):
        lesson.choose("Data", "Sort...")
        sort = lesson.dialog("Sort Cards")

    with lesson.scene("Sort by Name, going up: from A to Z. Press OK."):
        lesson.pick(lesson.find("combo box", within=sort), "Name")
        lesson.click(lesson.find("radio button", "Going Up", within=sort))
        lesson.fly("Sort Cards")

    with lesson.scene("Bat, Bee, Butterfly: as in a dictionary."):
        lesson.point(lesson.card("Bat"))
