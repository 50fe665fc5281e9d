"""No unused picture or fixture: every reader would wonder what such a file is for.

A file counts as used when its name stands in the program (for a picture) or in the tests (for a fixture): whole, or
without its ending, or with a %1 or {} for a run of digits, as in "yes%1.svg". A folder of fixtures of which a test
reads every file is used when the folder's own name stands there."""

import re

PICTURES = (".svg", ".png", ".jpg", ".gif", ".bmp", ".ico", ".wav")
CODE = (".cpp", ".h", ".py", ".qss", ".sh")
PROSE = (".md",)

FIXTURES = PICTURES + (".tdb", ".tcd", ".snd", ".wmf", ".rar", ".ini")

# Where the files are, their endings, where their names must occur, in files of which endings.
PLACES = [
    ("resources", PICTURES, ("src", "resources"), CODE),
    ("tests", FIXTURES, ("tests", "bench"), CODE),
    ("docs", PICTURES, ("README.md", "CONTRIBUTING.md", "docs"), PROSE),
]


def ways_to_say(path):
    """The texts of which one occurs where the file is used."""
    stem = path.rsplit("/", 1)[-1].rsplit(".", 1)[0]
    yield rf"\b{re.escape(stem)}\b"
    if re.search(r"\d", stem):
        yield r"(?:%\d|\{\w*\})".join(map(re.escape, re.split(r"\d+", stem)))


def faults(tree):
    for folder, endings, users, languages in PLACES:
        spoken = "\n".join(tree.text(f) for user in users for f in tree.files(*languages, under=user))
        for path in tree.files(*endings, under=folder):
            folders = path.split("/")[1:-1]
            enumerated = any(re.search(rf'[/"]{re.escape(name)}[/"]', spoken) for name in folders)
            if not enumerated and not any(re.search(way, spoken) for way in ways_to_say(path)):
                yield f"{path}: nothing uses it"
