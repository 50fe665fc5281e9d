"""The project describes itself only: nothing about how the work was organised, no path of one machine."""

import pathlib
import re

BINARY = (".png", ".jpg", ".gif", ".ico", ".bmp", ".wmf", ".wav", ".snd", ".rar", ".pdf", ".ttf")

# Written so that this table does not find itself.
WORDS = [
    (r"\bspeci[f]ication\b", "say what the program does and why"),
    (r"\bspec\.m[d]\b", "say what the program does and why"),
    (r"\bParts? \d+\.\d", "name the file or the routine"),
    (r"\bissue #?\d+", "say what the change is for"),
    (r"\.\./share[d]\b", "nothing lies outside the project"),
    (r"(?<![\w.])/tm[p]/\w", "use a temporary folder of the moment"),
    (r"\b(TO[D]O|FIXM[E]|XX[X])\b", "do it, or leave it out"),
]


def own_places(tree):
    """The paths of this machine: the project's folder and the home folder."""
    places = {str(tree.root), str(pathlib.Path.home()), "/wor" + "k"} - {"/"}
    return rf"(?<![\w.])({'|'.join(map(re.escape, places))})/\w"


def faults(tree):
    words = [*WORDS, (own_places(tree), "no absolute path of one machine")]
    for path in tree.files():
        if path.endswith(BINARY) or "\ufffd" in tree.text(path):
            continue
        for number, line in tree.numbered_lines(path):
            for pattern, advice in words:
                match = re.search(pattern, line, re.IGNORECASE if pattern.startswith(r"\bspeci") else 0)
                if match:
                    yield f'{path}:{number}: "{match[0]}": {advice}'
