"""Checks the guides that were built: check_guides.py FOLDER_OF_THE_PROGRAM

Each is read back by another program: its tags, its pages, its size; and no picture of the guides is missing or unused."""

import pathlib
import re
import subprocess
import sys

GUIDES = pathlib.Path(__file__).resolve().parents[2] / "guides"
BUILT = {"userGuide.md": "Uguide/Usersguide.pdf", "teacherOptions.md": "Help/Topts.pdf", "newDatabases.md": "Help/Newdb.pdf"}
MOST_BYTES = 5_000_000


def said(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout


def headings(text, sign):
    return re.findall(rf"^{sign} (.+?)(?: {{.*}})?$", text, re.MULTILINE)


def plain(text):
    return " ".join(text.split())


def tagged(structure, tag):
    """The words of each element of that tag."""
    return [plain(" ".join(re.findall(r'"(.*)"', words)))
            for words in re.findall(rf'^ *{tag} \(block\)\n((?: *".*"\n)+)', structure, re.MULTILINE)]


def faults(text, guide):
    source = text.read_text(encoding="utf-8")
    about = said("pdfinfo", str(guide))
    structure = said("pdfinfo", "-struct-text", str(guide))
    tree = said("pdfinfo", "-struct", str(guide))
    if guide.stat().st_size >= MOST_BYTES:
        yield f"{guide.stat().st_size} bytes"
    for wanted in (r"Title: +\S", "Tagged: +yes", r"Page size: +.*\(A4\)"):
        if not re.search(wanted, about):
            yield f"no {wanted} in {about}"
    if b"/Lang (en-GB)" not in guide.read_bytes():
        yield "no language"
    for tag, sign in (("H1", "#"), ("H2", "##"), ("H3", "###")):
        if tagged(structure, tag) != headings(source, sign):
            yield f"{tag} {tagged(structure, tag)} instead of {headings(source, sign)}"
    yield from picture_faults(source, guide, tree)
    yield from font_faults(guide)
    yield from page_faults(guide)


def picture_faults(source, guide, tree):
    named = re.findall(r"!\[(.*?)\]\((.*?)\)", source)
    figures = len(re.findall(r"^ *Figure", tree, re.MULTILINE))
    if len(named) != figures:
        yield f"{figures} tagged pictures of {len(named)}"
    for words, picture in named:
        if not words:
            yield f"{picture} has no alternative text"
        if not (GUIDES / picture).is_file():
            yield f"{picture} is missing"
    alternatives = re.findall(rb"/S /Figure\b[^>]*?/Alt |/Alt [^>]*?/S /Figure\b", guide.read_bytes())
    if len(alternatives) != figures:
        yield f"{len(alternatives)} alternative texts of {figures} pictures"


def font_faults(guide):
    for line in said("pdffonts", str(guide)).splitlines()[2:]:
        name, *_, embedded, _, _, _, _ = line.split()
        if "Andika" not in name or embedded != "yes":
            yield f"the font {name}, embedded: {embedded}"


def page_faults(guide):
    """Every page but a cover ends with its number, and none is nearly empty."""
    pages = said("pdftotext", "-layout", str(guide), "-").split("\f")[:-1]
    for number, page in enumerate(pages, start=1):
        words = page.split()
        if words[-1:] != [str(number)] and not (number == 1 and len(pages) > 10):
            yield f"page {number} ends with {words[-1:]}"
        if len(words) < 12:
            yield f"page {number} is nearly empty: {words}"


def unused_pictures():
    texts = "".join((GUIDES / text).read_text(encoding="utf-8") for text in BUILT)
    for picture in sorted((GUIDES / "pictures").glob("*.png")):
        if f"(pictures/{picture.name})" not in texts:
            yield f"{picture.name} is in no guide"


def main(program):
    found = [f"{guide}: {fault}" for text, guide in BUILT.items() for fault in faults(GUIDES / text, program / guide)]
    found += unused_pictures()
    print("\n".join(found) or "The guides are in order.")
    return bool(found)


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
