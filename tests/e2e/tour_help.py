"""Help: every video from its line in the help window and from the button of every dialog, the guide in a viewer of the
tour's own, and archives that are missing, damaged, hostile or larger than the disk."""

import contextlib
import json
import os
import shutil
import sys

sys.dont_write_bytecode = True
import reader  # noqa: E402
from driver import HOUSE, Tour  # noqa: E402

sys.path.insert(0, str(HOUSE / "tutorials"))
from archive import DOCUMENT, archive as stored  # noqa: E402

GUIDE_LINE = "View User Guide (Acrobat® Acrobat® Format)..."
VIDEOS = {  # the line in the help window, and its program
    "An Overview on Tallymoor": "Oview", "Using Databases": "Using Databases", "Making New Databases": "Newdb",
    "Starting a New Databases": "Start a Database", "Finding Cards": "Finding Cards", "Grouping Cards": "Grouping Cards",
    "Looking At Statistics": "Looking at Statistics", "Entering Data": "Entering Data",
    "Making Reports": "Making a report", "Making Graphs": "Making Graphs", "Sorting Data": "Sorting Data",
}
MENU_DIALOGS = [  # heading, line, title, program
    ("Card", "Find...", "Find", "Entering Data"), ("Data", "Sort...", "Sort Cards", "Entering Data"),
    ("Data", "Group...", "Group Cards", "Entering Data"), ("Card", "Arrange Cards...", "Arrange Cards", "Entering Data"),
    ("Data", "Make Graph...", "Make Graph", "Entering Data"), ("Data", "Statistics...", "Statistics", "Entering Data"),
    ("Data", "Report...", "Reports", "Entering Data"),
]
NOT_INSTALLED = "It appears you have not installed the Video Tutorials.\nWould you like to install them now?"
INSTALLED = "Videos have now been installed. Please try playing the videos again."
VIEWER = "[Desktop Entry]\nType=Application\nName=Viewer\nExec=cp %f {}\nMimeType=application/pdf;\n"


def watch(tour, program, picture=None):
    """Sees the player's window, hears a caption of the lesson with the focus on it, and ends the player with Escape."""
    lesson = json.loads((tour.program / "Videos" / "lessons" / program / "lesson.json").read_text(encoding="utf-8"))
    title, captions = lesson["title"], {scene["caption"] for scene in lesson["scenes"]}
    player = tour.other_program(title)

    def heard():
        root = reader.program(player)
        return [part for part in (root.below() if root else ()) if part.name in captions and part.has("focused")]
    tour.wait_until(heard, f'a caption of "{title}"')
    if picture:
        tour.picture(picture)
    tour.key("Escape")
    tour.wait_until(lambda: not reader.program(player), f'"{title}" to end')


def no_player(tour):
    tour.check(set(tour.windows()).isdisjoint(VIDEOS), "a video plays")


def choose(tour, line):
    """Chooses a line of the open help window and presses OK."""
    window = tour.dialog("Help")
    option = tour.find("radio button", line, within=window)
    tour.click(option)
    tour.wait_until(lambda: option.has("checked"), f'"{line}" to be chosen')
    tour.click(tour.find("push button", "OK", within=window))


def install(tour, line, box, text, picture=None):
    """Presses OK for a video that isn't there, and Yes; waits for the box that says how that went."""
    choose(tour, line)
    tour.find("label", NOT_INSTALLED, within=tour.dialog("Confirm"))
    tour.answer("Confirm", "Yes")
    tour.find("label", text, within=tour.dialog(box))
    if picture:
        tour.picture(picture)
    tour.answer(box, "OK")
    tour.wait_until(lambda: "Installing Videos..." not in tour.windows(), "the installation's window to close")
    tour.dialog("Help")
    no_player(tour)


def see_guide(tour):
    guide, shown = tour.program / "Uguide" / "Usersguide.pdf", tour.desk.folder / "shown.pdf"
    bytes_of_guide = guide.read_bytes()
    guide.unlink()
    choose(tour, GUIDE_LINE)
    tour.find("label", "User Guide not found! Please Re-install this software.", within=tour.dialog("Error"))
    tour.answer("Error", "OK")
    guide.write_bytes(bytes_of_guide)
    choose(tour, GUIDE_LINE)
    tour.find("label", 'Sorry! This computer has no program to show "Usersguide.pdf".', within=tour.dialog("Error"))
    tour.picture("no-reader")
    tour.answer("Error", "OK")
    programs = tour.desk.folder / "home" / ".local" / "share" / "applications"
    programs.mkdir(parents=True)
    (programs / "viewer.desktop").write_text(VIEWER.format(shown))
    choose(tour, GUIDE_LINE)
    tour.wait_until(lambda: shown.exists() and shown.read_bytes() == bytes_of_guide, "the viewer")
    tour.dialog("Help")


def read_news(tour):
    window = tour.dialog("Help")
    tour.click(tour.find("check box", "What's New?", within=window))
    news = tour.find("text", "What's New?", within=window)
    tour.check(news.text.startswith("CHANGES") and "`" not in news.text, "the news are not the list of changes")
    tour.check(not tour.find("push button", "OK", within=window).has("enabled"), "OK starts what can't be seen")
    tour.picture("news")
    tour.click(tour.find("check box", "Help/Video Tutorials", within=window))
    tour.find("radio button", GUIDE_LINE, within=window)


@contextlib.contextmanager
def small_disk(tour, folder, room):
    """A disk under the folder with that many bytes beside what the folder holds."""
    size = sum(file.stat().st_size for file in folder.rglob("*")) + room
    beside = tour.desk.folder / "beside"
    shutil.copytree(folder, beside)
    tour.desk.run("mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", str(folder))
    try:
        shutil.copytree(beside, folder, dirs_exist_ok=True)
        yield
    finally:
        tour.desk.run("umount", "-l", str(folder))
        shutil.rmtree(beside)


def bad_archives(tour):
    archive = tour.program / "Videos" / "Videos.rar"
    good = archive.read_bytes()
    archive.unlink()
    install(tour, "Sorting Data", "Error", '"Videos.rar" was not found.', "no-archive")
    for made, reason in ((good[:len(good) // 2], "it is damaged."),
                         (stored([("fine.txt", b"x", DOCUMENT), ("../../evil.txt", b"x", DOCUMENT)]),
                          'the name "../../evil.txt" in it is not allowed.')):
        archive.write_bytes(made)
        before = tour.contents(tour.program)
        install(tour, "Sorting Data", "Error", f'"Videos.rar" can\'t be unpacked: {reason}', "bad-archive")
        tour.check_same(before, tour.contents(tour.program))
    archive.write_bytes(good)
    before = tour.contents(archive.parent)
    if os.geteuid() != 0:
        print("Only root can mount a small disk; the full disk is left out.")
        return
    with small_disk(tour, archive.parent, len(good) // 2):
        install(tour, "Sorting Data", "Error", "Disk full", "full-disk")
        tour.check_same(before, tour.contents(archive.parent))


def play_every_line(tour):
    for number, (line, program) in enumerate(VIDEOS.items()):
        if number:
            tour.choose("Help", "Help")
        choose(tour, line)
        watch(tour, program, picture=f"video-{program}")
        tour.check("Help" not in tour.windows(), "the help window is still open")


def press_button(tour, title, program, button="Watch a video"):
    tour.click(tour.find("push button", button, within=tour.dialog(title)))
    watch(tour, program)


def press_buttons(tour):
    """Of every dialog that shows one."""
    for heading, line, title, program in MENU_DIALOGS:
        tour.choose(heading, line)
        press_button(tour, title, program)
        tour.answer(title, "Cancel")
    tour.choose("Card", "Design Cards...")
    press_button(tour, "Design Cards", "Newdb")
    tour.click(tour.find("push button", "Edit field 1, Name", within=tour.dialog("Design Cards")))
    press_button(tour, "Field Details", "Entering Data")
    tour.answer("Field Details", "Cancel")
    tour.answer("Design Cards", "Cancel")
    tour.double_click(tour.all("list item", within=tour.board())[-1])
    editor = tour.wait_until(lambda: next((t for t in tour.windows() if t.startswith("Edit Card")), None), "the editor")
    press_button(tour, editor, "Entering Data")
    tour.answer(editor, "Cancel")
    tour.window("Card\\(s\\)")
    tour.key("ctrl+shift+k")
    tour.dialog("Teacher Options")
    tour.key("alt+f", "w")
    watch(tour, "Topts")
    tour.answer("Teacher Options", "Cancel")
    tour.choose("File", "New")
    press_button(tour, "New Database Wizard", "Newdb", button="Help")
    tour.answer("New Database Wizard", "Cancel")


with Tour("help") as tour:
    tour.settings.set("Last DB", "Path", str(tour.program / "samples" / "Amazing Animals"))
    share = tour.desk.folder / "share"  # knows kinds of files, but none of the machine's programs
    share.mkdir()
    (share / "mime").symlink_to("/usr/share/mime")
    tour.desk.environment["XDG_DATA_DIRS"] = str(share)
    tour.start()
    tour.click(tour.find("push button", "Watch a video", within=tour.dialog("Welcome to Tallymoor")))
    tour.open_last()
    no_player(tour)  # what isn't installed is not asked for

    tour.choose("Help", "Help")
    tour.check(not tour.find("push button", "OK", within=tour.dialog("Help")).has("enabled"), "OK works without a choice")
    tour.picture("help")
    read_news(tour)
    see_guide(tour)
    bad_archives(tour)
    install(tour, next(iter(VIDEOS)), "Information", INSTALLED, "installed")
    play_every_line(tour)
    press_buttons(tour)
    tour.choose("File", "Exit")
    tour.end()

    tour.start()
    press_button(tour, "Welcome to Tallymoor", "Oview")
    tour.answer("Welcome to Tallymoor", "Cancel")
    tour.close_by_frame("Tallymoor")
    tour.end()
