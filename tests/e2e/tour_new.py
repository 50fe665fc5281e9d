"""A new database: the wizard makes its folder, the design gives it four fields, and the next start opens it."""

import sys

sys.dont_write_bytecode = True
from driver import Tour  # noqa: E402

FIELDS = [
    ("Name", "Abc", []),
    ("Legs", "123", ["4", "6", "8"]),
    ("Colour", "Abc", ["red, with spots", "brown"]),
    ("Weight", "123", []),
]


def description():
    """What the file must hold after that design."""
    lines = [" 4 ", " 0 ", '"none"']
    for name, kind, answers in FIELDS:
        lines += [f'"{name}"', f'"{kind}"', str(bool(answers))]
        if answers:
            lines += [f'"{answer}"' for answer in answers + [""] * (12 - len(answers))]
    return "".join(f"{line}\r\n" for line in lines + ["RW", 'VER="1.1.0"']).encode("ascii")


def make_database(tour, name):
    tour.window("Welcome to Tallymoor")
    tour.click(tour.find("radio button", "Start a new Database"))
    tour.click(tour.find("push button", "OK"))
    tour.window("New Database Wizard")
    tour.picture("wizard")
    tour.key("Return")
    box = tour.find("text", "Database Name:")
    tour.wait_until(lambda: box.has("focused"), "the box for the name")
    tour.type(name)
    tour.picture("name")
    tour.key("Return")
    finish = tour.find("push button", "Finish")
    tour.wait_until(lambda: finish.has("enabled"), "the last page")
    tour.picture("location")
    tour.click(finish)


def design_field(tour, number, name, kind, answers):
    tour.click(tour.find("push button", f"Edit field {number}, fieldname{number}"))
    tour.window("Field Details")
    box = tour.find("text", "Name of the field:")
    tour.wait_until(lambda: box.has("focused"), "the name to be ready for typing")
    tour.type(name)
    if kind == "123":
        tour.key("alt+t", "Down")
    if answers:
        tour.key("alt+l")
        for line, answer in enumerate(answers, start=1):
            row = tour.find("text", f"Answer {line}")
            tour.wait_until(lambda row=row: row.has("focused"), f"answer {line} to have the keyboard")
            tour.type(answer)
            tour.key("Tab")
        tour.picture("field")
    tour.key("Return")
    tour.find("push button", f"Edit field {number}, {name}")


with Tour("new") as tour:
    school = tour.desk.folder / "school"
    school.mkdir()
    tour.settings.set("Working Dir", "Path", str(school))
    tour.start()
    make_database(tour, "Minibeasts")

    tour.window("Design Cards")
    tour.click(tour.find("push button", "One field more"))
    for number, field in enumerate(FIELDS, start=1):
        design_field(tour, number, *field)
    tour.picture("design")
    tour.click(tour.find("push button", "OK"))

    tour.window("Minibeasts - Tallymoor")
    database = school / "Minibeasts"
    written = (database / "db-info.tdb").read_bytes()
    tour.check(written == description(), f"the description is {written!r}")
    tour.picture("made")
    tour.close_by_frame("Minibeasts - Tallymoor")
    tour.end()

    tour.start()
    tour.window("Welcome to Tallymoor")
    tour.click(tour.find("radio button", "Open last Database"))
    tour.click(tour.find("push button", "OK"))
    tour.window("Minibeasts - 0 Card")
    tour.close_by_frame("Minibeasts - 0 Card")
    tour.end()
    tour.check((database / "db-info.tdb").read_bytes() == description(), "opening changed the description")
