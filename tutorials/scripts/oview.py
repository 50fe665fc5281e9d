"""An overview: cards on the board, their sounds and pages, the table, sorting and a graph."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402

with Lesson("Oview", "An Overview on Tallymoor") as lesson:
    lesson.open("Amazing Animals")

    with lesson.scene("Hello! This is Tallymoor. Every card on this board is an animal."):
        lesson.point(lesson.card("Owl"))

    with lesson.scene("Hold the left button on a card, and drag it where you like."):
        lesson.drag(lesson.card("Crocodile"), by=(610, 330))

    with lesson.scene("Press the right button on a card. Some animals have a sound!"):
        lesson.right_click(lesson.card("Lion"))

    with lesson.scene("Press twice quickly on a card to open it."):
        lesson.double_click(lesson.card("Elephant"))
        lesson.window("Edit Card")

    with lesson.scene("Here is all we know about the elephant. OK closes the card."):
        lesson.pause(2)
        editor = next(title for title in lesson.windows() if title.startswith("Edit Card"))
        lesson.answer(editor, "OK")

    with lesson.scene("This button shows a table: one row for each animal."):
        lesson.click(lesson.find("check box", "Table Mode"))
        lesson.find("table", "Table")

    with lesson.scene("And this one brings the cards back."):
        lesson.click(lesson.find("check box", "Card Mode"))
        lesson.card("Owl")

    with lesson.scene("Who lives longest? Open the menu Data and choose Sort."):
        lesson.choose("Data", "Sort...")
        lesson.dialog("Sort Cards")

    with lesson.scene("Sort by Life years, going up."):
        sort = lesson.dialog("Sort Cards")
        lesson.pick(lesson.find("combo box", within=sort), "Life years")
        lesson.point(lesson.find("radio button", "Going Up", within=sort))

    with lesson.scene("Press OK. Look, the cards fly! The tortoise lives longest."):
        with lesson.film():
            lesson.answer("Sort Cards", "OK")
            lesson.wait_until(lambda: "Speed" in lesson.windows(), "the first flight")
            lesson.wait_until(lambda: "Speed" not in lesson.windows(), "the end of the sort", 120)
        lesson.point(lesson.card("Tortoise"))

    with lesson.scene("Tallymoor can count, too. Open the menu Data and choose Make Graph."):
        lesson.choose("Data", "Make Graph...")
        wizard = lesson.dialog("Make Graph")

    with lesson.scene("We ask for the homes of the animals. Next, Next, OK!"):
        lesson.click(lesson.find("page tab", "Graph", within=wizard))
        lesson.pick(lesson.find("combo box", within=wizard), "Home")
        print(wizard.outline())
        lesson.click(lesson.find("push button", "Next >", within=wizard))
        lesson.look()
        print(wizard.outline())
        lesson.click(lesson.find("push button", "Next >", within=wizard))
        lesson.look()
        print(wizard.outline())
        lesson.answer("Make Graph", "OK")
