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
        lesson.fly("Sort Cards")
        lesson.point(lesson.card("Tortoise"))

    with lesson.scene("Tallymoor can count, too. Open the menu Data and choose Make Graph."):
        lesson.choose("Data", "Make Graph...")
        wizard = lesson.dialog("Make Graph")

    with lesson.scene("Where do the animals live? Choose Home, and press Next two times."):
        lesson.pick(lesson.find("combo box", within=wizard), "Home")
        for page in ("Bar Chart", "Title"):
            lesson.click(lesson.find("push button", "Next >", within=wizard))
            lesson.find("radio button" if page == "Bar Chart" else "text", page, within=wizard)

    with lesson.scene("Give your graph a title, and press OK."):
        lesson.fill(wizard, "Title", "Animal homes")
        lesson.answer("Make Graph", "OK")
        lesson.find("list", "Animal homes")

    with lesson.scene("One animal lives on the ice. Can you find it? Have fun!"):
        lesson.pause(1)
