"""The order of the folders: includes run downwards only, no two files include each other, directly or indirectly, and
folders on one level don't include each other."""

import pathlib
import re

# From the lowest level up; a file is on the level of its folder.
FLOORS = [
    ["platform"],
    ["core"],
    ["store", "controls"],
    ["board", "player"],
    ["database"],
    ["choices"],
    ["tools", "editing", "analysis", "paint", "options", "guidance"],
    ["window"],
    ["main.cpp"],
]

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
SYSTEM_INCLUDE = re.compile(r"^\s*#\s*include\s+<([^>]+)>")
CORE_LIBRARY = "tallymoor_core"
WIDGET_MODULES = ("QtWidgets", "QtPrintSupport")


def unit(path):
    """A header and its source are one unit: src/board/table.h and src/board/table.cpp are board/table."""
    return path.removeprefix("src/").rsplit(".", 1)[0]


def folder(path):
    """The folder of a source below src/; a source in src/ itself is its own."""
    return path.removeprefix("src/").split("/")[0]


def floor(path):
    """The number of the source's level, from 0 at the bottom; None when its folder has none."""
    return next((number for number, folders in enumerate(FLOORS) if folder(path) in folders), None)


def project_includes(tree, path):
    """(line, included file) for every include of an existing project file."""
    for number, line in tree.numbered_lines(path):
        match = INCLUDE.match(line)
        if match and (tree.root / "src" / match[1]).is_file():
            yield number, "src/" + match[1]


def upward(tree):
    """Includes of a higher level or of another folder on the same one, and files on no level."""
    for path in tree.files(".h", ".cpp", under="src"):
        here = floor(path)
        if here is None:
            yield f"{path}: its folder stands on no floor (scripts/checks/layers.py)"
            continue
        for number, included in project_includes(tree, path):
            there = floor(included)
            if there is None or there < here or folder(included) == folder(path):
                continue
            yield f"{path}:{number}: {folder(path)} includes {included}, which is no floor below"


def cycles(tree):
    """Units that include each other. Each cycle is reported once, starting with its first name."""
    edges = {}
    for path in tree.files(".h", ".cpp", under="src"):
        edges.setdefault(unit(path), set()).update(unit(i) for _, i in project_includes(tree, path))
    done, told = set(), set()

    def walk(name, trail):
        if name in trail:
            ring = trail[trail.index(name):]
            first = ring.index(min(ring))
            told.add(" -> ".join(ring[first:] + ring[:first] + [min(ring)]))
        elif name not in done:
            for other in sorted(edges.get(name, set()) - {name}):
                walk(other, trail + [name])
            done.add(name)

    for name in sorted(edges):
        walk(name, [])
    yield from (f"src/{ring.split(' ')[0]}: files include each other: {ring}" for ring in sorted(told))


def core_sources(tree):
    """The sources that the CMake files list under the core library."""
    for path in tree.files("CMakeLists.txt", ".cmake"):
        folder = path.rpartition("/")[0]
        for block in re.finditer(r"(?:target_sources|add_library)\s*\(\s*" + CORE_LIBRARY + r"\b([^)]*)\)", tree.text(path)):
            for word in re.findall(r"[\w./]+\.(?:cpp|h)\b", block[1]):
                source = f"{folder}/{word}".lstrip("/")
                if (tree.root / source).is_file():
                    yield source


def widget_headers():
    """Names of the installed Qt's headers that need Qt Widgets."""
    return {header.name
            for module in WIDGET_MODULES
            for header in pathlib.Path("/usr/include").glob(f"*/qt6/{module}/Q*")}


def widgets_in_core(tree):
    """Core-library files that include a header of Qt Widgets, themselves or through another project file."""
    headers = widget_headers()
    if not headers:
        yield "no Qt headers found under /usr/include: run scripts/install-deps"
    to_see, seen = list(core_sources(tree)), set()
    while to_see:
        path = to_see.pop()
        if path in seen:
            continue
        seen.add(path)
        for number, line in tree.numbered_lines(path):
            match = SYSTEM_INCLUDE.match(line)
            if match and (match[1] in headers or match[1].startswith(WIDGET_MODULES)):
                yield f"{path}:{number}: the core library knows no windows: {match[1]}"
        to_see += [included for _, included in project_includes(tree, path)]


def faults(tree):
    yield from upward(tree)
    yield from cycles(tree)
    yield from widgets_in_core(tree)
