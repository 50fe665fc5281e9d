"""A teacher makes a database: the wizard, the design, three cards, one of them with a picture, one given up again.

Except for typing everything is done with the mouse; the clicks are counted. The next start finds the database."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

NAME = "Minibeasts"
FIELDS = [
    ("Name", "Abc", []),
    ("Legs", "123", []),
    ("Colour", "Abc", ["red, with spots", "brown"]),
    ("Food", "Abc", []),
]
NUMBERS_ONLY = "123 - Numbers only"
CARDS = [
    ("Ladybird", "6", "red, with spots", "greenfly"),
    ("Snail", "0", "brown", "Löwenzahn"),
    ("Spider", "8", "brown", "flies"),
]
WITH_PICTURE = 2
CLICKS_ALLOWED = 39


def description():
    """The expected content of the file after that design."""
    lines = [" 4 ", " 0 ", '"none"']
    for name, kind, answers in FIELDS:
        lines += [f'"{name}"', f'"{kind}"', str(bool(answers))]
        if answers:
            lines += [f'"{answer}"' for answer in answers + [""] * (12 - len(answers))]
    return "".join(f"{line}\r\n" for line in lines + ["RW", 'VER="1.1.0"']).encode("ascii")


def fill(tour, window, name, text):
    """Types into a box that has the focus."""
    box = tour.find("text", name, within=window)
    tour.wait_until(lambda: box.has("focused"), f'"{name}" to have the keyboard')
    tour.type(text)
    tour.wait_until(lambda: box.text == text, f'"{text}" in "{name}"')


def make_database(tour):
    tour.begin_with("Start a new Database")
    wizard = tour.dialog("New Database Wizard")
    tour.picture("wizard")
    tour.click(tour.find("push button", "Next >>", within=wizard))
    fill(tour, wizard, "Database Name:", NAME)
    tour.picture("name")
    tour.click(tour.find("push button", "Next >>", within=wizard))
    finish = tour.find("push button", "Finish", within=wizard)
    tour.wait_until(lambda: finish.has("enabled"), "the last page")
    tour.picture("location")
    tour.click(finish)


def design_field(tour, number, name, kind, answers):
    tour.click(tour.find("push button", f"Edit field {number}, fieldname{number}"))
    details = tour.dialog("Field Details")
    fill(tour, details, "Name of the field:", name)
    if kind == "123":
        tour.pick(tour.find("combo box", within=details), NUMBERS_ONLY)
    if answers:
        tour.click(tour.find("check box", "Offer a list of answers", within=details))
        for line, answer in enumerate(answers, start=1):
            fill(tour, details, f"Answer {line}", answer)
            tour.key("Tab")
        tour.picture("field")
    tour.answer("Field Details", "OK")
    tour.find("push button", f"Edit field {number}, {name}")


def design(tour):
    tour.click(tour.find("push button", "One field more", within=tour.dialog("Design Cards")))
    for number, field in enumerate(FIELDS, start=1):
        design_field(tour, number, *field)
    tour.picture("design")
    tour.click(tour.find("push button", "OK", within=tour.dialog("Design Cards")))
    tour.dialog("Reminder")
    tour.picture("reminder")
    tour.answer("Reminder", "OK")


def add_card(tour, number, values, picture=None):
    tour.choose("Card", "Add Card...")
    editor = tour.dialog(f"Edit Card {number}")
    for (field, _, answers), value in zip(FIELDS, values):
        if answers:
            tour.click(tour.find("push button", f"{field}, list of answers", within=editor))
            if number == 1:
                tour.picture("answers")
            tour.click(tour.find("push button", value, within=editor))
            box = tour.find("text", field, within=editor)
            tour.wait_until(lambda box=box, value=value: box.text == value, f'"{value}" to be picked')
        else:
            fill(tour, editor, field, value)
        tour.key("Tab")
    if picture:
        tour.drop_file(picture, tour.find("push button", "Picture of the card", within=editor))
        tour.window(f"Edit Card {number}")
        tour.picture("card")
    tour.answer(f"Edit Card {number}", "OK")
    tour.window(f"{number} Card\\(s\\)")


def give_up_card(tour, number):
    tour.choose("Card", "Add Card...")
    tour.answer(f"Edit Card {number}", "Cancel")
    tour.window(f"{number - 1} Card\\(s\\)")


def see_cards(tour):
    """Waits until all cards are on the board, and nothing else."""
    board = tour.find("list", "Board")
    wanted = sorted(values[0] for values in CARDS)
    tour.wait_until(lambda: sorted(card.name for card in tour.all("list item", within=board)) == wanted, f"the cards {wanted}")


def pixels(bitmap):
    return bitmap.read_bytes()[54:]  # behind the header, which also contains a resolution


def check_files(tour, database, picture):
    written = (database / "db-info.tdb").read_bytes()
    tour.check(written == description(), f"the description is {written!r}")
    records = {path.read_bytes().decode("cp1252").split("\r\n", 1)[1]: path for path in database.glob("*.tcd")}
    wanted = ["".join(f'"{value}"\r\n' for value in values) for values in CARDS]
    tour.check(sorted(records) == sorted(wanted), f"the records are {sorted(records)}")
    for number, record in enumerate(wanted, start=1):
        same = pixels(records[record].with_suffix(".bmp")) == pixels(picture)
        tour.check(same == (number == WITH_PICTURE), f"card {number} {'has' if same else 'lacks'} the dropped picture")


with Tour("new") as tour:
    school = tour.desk.folder / "school"
    school.mkdir()
    tour.settings.set("Working Dir", "Path", str(school))
    tour.settings.set("Remind", "Status", "1")
    picture = sorted(tour.databases()[0].glob("*.bmp"))[0]
    database = school / NAME

    tour.start()
    make_database(tour)
    design(tour)
    tour.window(f"{NAME} - Tallymoor")
    for number, values in enumerate(CARDS, start=1):
        add_card(tour, number, values, picture if number == WITH_PICTURE else None)
    give_up_card(tour, len(CARDS) + 1)
    print(f"{tour.clicks} clicks to a database of {len(CARDS)} cards")
    tour.check(tour.clicks <= CLICKS_ALLOWED, f"the teacher clicked {tour.clicks} times")
    tour.picture("made")
    see_cards(tour)
    check_files(tour, database, picture)
    made = tour.contents(database)
    tour.close_by_frame(f"{NAME} - 3 Card")
    tour.end()

    tour.start()
    tour.open_last()
    see_cards(tour)
    tour.picture("again")
    tour.close_by_frame(f"{NAME} - 3 Card")
    tour.end()
    tour.check_same(made, tour.contents(database))
