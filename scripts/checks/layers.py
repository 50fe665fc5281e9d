"""The floors of the house: includes run downwards only, and no two files include each other, even around a corner.

A file's floor is that of its folder, unless a row of EXCEPTIONS names it. Whoever adds a file to `core/` or `store/`
that stands higher than its folder's ground floor adds it there."""

import pathlib
import re

FLOORS = [
    "platform",
    "session",
    "store's files",
    "board",
    "loading and opening",
    "subsystems",
    "assembly",
]

FOLDERS = {
    "platform": "platform",
    "core": "session",
    "store": "store's files",
    "board": "board",
    "tools": "subsystems",
    "editing": "subsystems",
    "analysis": "subsystems",
    "paint": "subsystems",
    "options": "subsystems",
    "guidance": "subsystems",
    "": "assembly",
}

# The part of the path below src/, without its ending, in small letters -> floor.
EXCEPTIONS = {
    r"board/refresh|store/(load\w*|open\w*|close\w*|tilecards|choose\w*|folderwalk|fileform|new\w*)": "loading and opening",
    r"core/(assembly|dispatch|commands|menubar|form1|frmnewdoc|frmstlogo|exitform|mainsettings|startup|shutdown)": "assembly",
}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
SYSTEM_INCLUDE = re.compile(r"^\s*#\s*include\s+<([^>]+)>")
CORE_LIBRARY = "tallymoor_core"
WIDGET_MODULES = ("QtWidgets", "QtPrintSupport")


def unit(path):
    """A header and its source are one unit: src/board/table.h and src/board/table.cpp are board/table."""
    return path.removeprefix("src/").rsplit(".", 1)[0]


def floor(name):
    """The number of the unit's floor, from 0 at the ground; None when its folder has none."""
    for pattern, title in EXCEPTIONS.items():
        if re.fullmatch(pattern, name.lower()):
            return FLOORS.index(title)
    folder = name.split("/")[0] if "/" in name else ""
    return FLOORS.index(FOLDERS[folder]) if folder in FOLDERS else None


def project_includes(tree, path):
    """(line, included file) for every include of a project file that is there."""
    for number, line in tree.numbered_lines(path):
        match = INCLUDE.match(line)
        if match and (tree.root / "src" / match[1]).is_file():
            yield number, "src/" + match[1]


def upward(tree):
    """Includes of a file on a higher floor, and files on no floor at all."""
    for path in tree.files(".h", ".cpp", under="src"):
        here = floor(unit(path))
        if here is None:
            yield f"{path}: its folder stands on no floor (scripts/checks/layers.py)"
            continue
        for number, included in project_includes(tree, path):
            there = floor(unit(included))
            if there is not None and there > here:
                yield f"{path}:{number}: {FLOORS[here]} includes {included} of {FLOORS[there]}"


def cycles(tree):
    """Units that include each other. Each ring is told once, from its first name on."""
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
    """Names of the headers that need Qt Widgets, as the installed Qt has them."""
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
