"""A bar chart of the animals' groups, its numbers, the same as a pie, and a copy of it."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

TITLES = {"Title": "Our animals", "X Axis": "Group", "Y Axis": "How many"}


def press(word):
    lesson.click(lesson.find("push button", word, within=wizard))


def begin_graph():
    """The wizard with the field that is counted."""
    lesson.choose("Data", "Make Graph...")
    return lesson.dialog("Make Graph")


def choose_field():
    lesson.pick(lesson.find("combo box", within=wizard), "Group")
    press("Next >")


def point_at(name):
    """Lets the mouse rest on a bar or slice until it shows its number."""
    values = lesson.wait_until(lambda: lesson.find("list", TITLES["Title"]).children, "the chart")
    lesson.point(next(value for value in values if value.name.startswith(name)), hover=True)


with Lesson("Making Graphs", "Making Graphs") as lesson:
    lesson.open("Amazing Animals")

    with lesson.scene("Which group has the most animals? You could count the cards. A graph is quicker!"):
        for label in ("Hedgehog", "Owl", "Frog"):
            lesson.point(lesson.card(label))

    with lesson.scene("Open the menu Data and choose Make Graph."):
        wizard = begin_graph()

    with lesson.scene("What is the graph about? Choose Group. Then press Next."):
        choose_field()

    with lesson.scene("There are three sorts of graphs. We want bars. Press Next again."):
        for kind in ("Pie Chart", "Line Chart"):
            lesson.point(lesson.find("radio button", kind, within=wizard))
        lesson.click(lesson.find("radio button", "Bar Chart", within=wizard))
        press("Next >")

    with lesson.scene("Type a title, and a word for each axis."):
        for box, text in TITLES.items():
            lesson.fill(wizard, box, text)

    with lesson.scene("Press OK. There is your graph: one bar for each group."):
        lesson.answer("Make Graph", "OK")

    with lesson.scene("The tallest bar wins. Point at it: there are 10 mammals!"):
        point_at("Mammal")

    with lesson.scene("Now the same as a pie. Choose Make Graph again, then Group, then Next."):
        wizard = begin_graph()
        choose_field()

    with lesson.scene("Choose Pie Chart and press Next."):
        lesson.click(lesson.find("radio button", "Pie Chart", within=wizard))
        press("Next >")

    with lesson.scene("Give it a title, and press OK. Each group is a slice of the pie."):
        lesson.fill(wizard, "Title", TITLES["Title"])
        lesson.answer("Make Graph", "OK")
        point_at("Mammal")

    with lesson.scene("Copy Graph copies the picture. Then you can paste it in your poster."):
        lesson.click(lesson.find("push button", "Copy Graph"))
        lesson.answer("Notice", "OK")

    with lesson.scene("This button brings the cards back."):
        lesson.click(lesson.find("check box", "Card Mode"))
        lesson.card("Owl")
