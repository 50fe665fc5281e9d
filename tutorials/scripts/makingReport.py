"""A report: one sentence with fields becomes a sentence about every instrument; and notes in the jotter."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from recorder import Lesson  # noqa: E402


def turn_to(page):
    lesson.click(lesson.find("page tab", page, within=window))


def field(name):
    return lesson.find("list item", name, within=window)


with Lesson("Making a report", "Making Reports") as lesson:
    lesson.open("Musical Instruments")

    with lesson.scene("Let's write a sentence about every instrument, all at once!"):
        for label in ("Drum", "Trumpet", "Harp"):
            lesson.point(lesson.card(label))

    with lesson.scene("Open the menu Data and choose Report."):
        lesson.choose("Data", "Report...")
        window = lesson.dialog("Reports")
        sentence = lesson.find("text", "Sentence about a card", within=window)

    with lesson.scene("Click the box and begin your sentence: The"):
        lesson.click(sentence)
        lesson.type("The ")

    with lesson.scene("Now press twice quickly on the field Name."):
        lesson.double_click(field("Name"))
        lesson.wait_until(lambda: sentence.text == "The <<Name>>", "the field that was double-clicked")

    with lesson.scene("Here the name of each instrument will be. Type on: is made of"):
        lesson.type(" is made of ")

    with lesson.scene("Click the field Made of and press Insert. That puts it in, too."):
        lesson.click(field("Made of"))
        lesson.click(lesson.find("push button", "Insert", within=window))
        lesson.wait_until(lambda: sentence.text == "The <<Name>> is made of <<Made of>>", "the field that was inserted")

    with lesson.scene("Open the page View Report. There are eight sentences!"):
        turn_to("View Report")
        lesson.pause(2)

    with lesson.scene("The upper button prints them. The lower one copies them for a letter."):
        lesson.point(lesson.find("push button", "Print Report", within=window))
        lesson.click(lesson.find("push button", "Copy Report", within=window))
        lesson.answer("Information", "OK")

    with lesson.scene("The page Jotter is for your own notes. What do you want to find out?"):
        turn_to("Jotter")
        lesson.click(lesson.find("text", "Questions / Comments", within=window))
        lesson.type("What are most of them made of?")

    with lesson.scene("Save Questions keeps your notes with the cards."):
        lesson.click(lesson.find("push button", "Save Questions", within=window))
        lesson.answer("Information", "OK")

    with lesson.scene("Press OK when you have finished."):
        lesson.answer("Reports", "OK")
