"""Drives the real program like a pupil: on a display, with mouse and keys, with sound and files.

A tour is a short script:

    with Tour("board") as tour:
        tour.start()
        tour.click(tour.find("push button", "OK"))
        tour.picture("welcome")

Whatever does not come in time fails the tour, with a picture, the program's own words and an outline of its windows
in the folder of the tour's pictures.

Places and distances are in the program's own pixels, which assistive technology reports too; on a large screen one of
them takes up more than one pixel of the screen."""

import argparse
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

import reader
from desk import PATIENCE, SCREENS, Desk, Ear, Failed, starved, wait_until

HOUSE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(HOUSE / "scripts"))
from settings import Settings  # noqa: E402


class Tour:
    """A copy of the program with the sample databases, on its own desk. `program` is the folder of the copy;
    `clicks` counts mouse actions: clicks, a double click as two, and drags."""

    HARMLESS = re.compile(r"^$")  # what the program may print
    expected_ends = (0,)  # exit codes of copies that have ended
    DISPLAY_OPTIONS = ()  # for the desk's Xvfb

    def __init__(self, name, wayland=False):
        options = argparse.ArgumentParser(description=f"The tour {name}.")
        options.add_argument("--program", type=pathlib.Path, required=True, help="folder of the built program")
        options.add_argument("--samples", type=pathlib.Path, required=True, help="folder of the built sample databases")
        options.add_argument("--pictures", type=pathlib.Path, required=True, help="folder for the tours' pictures")
        options.add_argument("--screen", default=SCREENS[0], help="size of the screen, such as %(default)s")
        chosen = options.parse_args()
        self.pictures = chosen.pictures.resolve() / (name if chosen.screen == SCREENS[0] else f"{name}-{chosen.screen}")
        self._wayland, self._screen = wayland, chosen.screen
        self._scale = 1 if wayland else None
        shutil.rmtree(self.pictures, ignore_errors=True)
        self._source, self._samples = chosen.program.resolve(), chosen.samples.resolve()

    def __enter__(self):
        self.desk = Desk(self._screen, self._wayland, self.DISPLAY_OPTIONS)
        reader.connect(self.desk.environment)
        self.program = self.desk.folder / "Tallymoor"
        self.settings = Settings(self.program)
        self._process = None
        self._copies = []  # (process, its log) of every program that was started
        self._pictures_taken = 0
        self.clicks = 0
        self._copy_program()
        return self

    def __exit__(self, kind, problem, trace):
        try:
            if problem is None:
                self._check_copies()
        except Failed as failed:
            problem = failed
            raise
        finally:
            if problem is not None:
                self._keep_evidence()
            self.desk.close()
        print(f"Pictures are in {self.pictures}")

    def _copy_program(self):
        """Copies the executable and its data, but no test executables, and no databases or settings left by others."""
        foreign = {"samples", self.settings.path.name} | {
            f.name for f in self._source.iterdir()
            if f.is_file() and f.name != "tallymoor" and os.access(f, os.X_OK)}
        shutil.copytree(self._source, self.program, ignore=lambda folder, names: foreign & set(names))
        self.desk.run(str(HOUSE / "scripts" / "place-samples"), str(self._samples), str(self.program))

    def _keep_evidence(self):
        self.pictures.mkdir(parents=True, exist_ok=True)
        self.desk.picture(self.pictures / "failed.png")
        for log in self.desk.folder.glob("*.log"):
            shutil.copy(log, self.pictures)
        if self._process and self._process.poll() is None:
            (self.pictures / "windows.txt").write_text(reader.program(self._process.pid).outline(), encoding="utf-8")
        for _, log in self._copies:
            print(f"{log.stem} printed:\n{log.read_text(errors='replace')}", file=sys.stderr)

    # The program

    def start(self):
        """Starts the program, or one more copy of it, which becomes the current one. Returns its process."""
        log = self.desk.folder / f"tallymoor-{len(self._copies) + 1}.log"
        self._process = self.desk.start(str(self.program / "tallymoor"), log=log)
        self._copies.append((self._process, log))
        return self._process

    def _check_copies(self):
        """Every copy still runs or has ended in order, and none has printed a warning."""
        for copy, log in self._copies:
            if copy.poll() not in (None, *self.expected_ends):
                raise Failed(f"a copy of the program ended with {copy.returncode}")
            words = [line for line in log.read_text(errors="replace").splitlines()
                     if line.strip() and not self.HARMLESS.search(line)]
            if words:
                raise Failed("the program printed: " + "; ".join(words[:5]))

    def turn_to(self, copy):
        """Makes that copy of the program the current one and raises its windows."""
        self._process = copy
        for number in self._window_numbers("Tallymoor"):
            if self._owner(number) == copy.pid:
                self.desk.run("xdotool", "windowactivate", "--sync", number)

    def end(self):
        """Waits until the program has ended normally."""
        try:
            code = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failed("waited for the program to end") from None
        if code:
            raise Failed(f"the program ended with {code}")

    def wait_until(self, condition, what, timeout=PATIENCE):
        """Polls `condition` for its first true result; a part of a window that disappears meanwhile counts as false."""
        def asked():
            if self._process and self._process.poll() is not None:
                raise Failed(f"the program ended with {self._process.returncode} while waiting for {what}")
            try:
                return condition()
            except reader.Gone:
                return None
        return wait_until(asked, what, timeout)

    @contextlib.contextmanager
    def within(self, seconds, what):
        """For a with statement: its body takes no longer. Time in which the machine was too busy doesn't count."""
        begun, waited = time.monotonic(), starved()
        yield
        took = time.monotonic() - begun - (starved() - waited)
        self.check(took < seconds, f"{what} took {took:.2f} s")

    def check(self, holds, what):
        if not holds:
            raise Failed(what)

    # Its windows

    def window(self, title):
        """Waits for the window whose title contains `title`, brings it to the front and returns its X id. Windows of other
        copies of the program don't count."""
        others = {copy.pid for copy, _ in self._copies if copy is not self._process}

        def raised():
            number = next((found for found in reversed(self._window_numbers(title)) if self._owner(found) not in others),
                          None)
            try:
                if number:
                    self.desk.run("xdotool", "windowactivate", "--sync", number)
                return number
            except Failed:  # it went between the two commands
                return None
        return self.wait_until(raised, f'the window "{title}"')

    def board(self):
        return self.find("list", "Board")

    def card(self, label):
        """The card with that label on the board."""
        return self.find("list item", label, within=self.board())

    def dialog(self, title):
        """Waits for the dialog of exactly that title, brings it to the front and returns it as a part to search in."""
        self.window(f"^{re.escape(title)}$")
        return self.wait_until(lambda: self._shown_window(title), f'the dialog "{title}"')

    def _shown_window(self, title):
        root = reader.program(self._process.pid)
        return next((part for part in root.children if part.name == title and part.has("showing")), None)

    def other_program(self, title):
        """Waits for a window of exactly that title that belongs to none of the copies, brings it to the front and returns
        the id of its process."""
        copies = {copy.pid for copy, _ in self._copies}

        def raised():
            for number in self._window_numbers(f"^{re.escape(title)}$"):
                owner = self._owner(number)
                if owner not in copies | {None}:
                    self.desk.run("xdotool", "windowactivate", "--sync", number, check=False)
                    return owner
            return None
        return self.wait_until(raised, f'another program\'s window "{title}"')

    def windows(self):
        """The titles of all visible windows."""
        return [self.desk.run("xdotool", "getwindowname", number, check=False).strip()
                for number in self._window_numbers(".")]

    def _window_numbers(self, title):
        said = self.desk.run("xdotool", "search", "--onlyvisible", "--name", title, check=False)
        return re.findall(r"^\d+$", said, re.MULTILINE)

    def _owner(self, number):
        """The process of the window with that X id; None when the window doesn't say."""
        said = self.desk.run("xdotool", "getwindowpid", number, check=False).strip()
        return int(said) if said.isdigit() else None

    def all(self, role, name=None, within=None):
        """Every visible part of that role, and name if one is given, in the program or in another part."""
        root = within or reader.program(self._process.pid)
        return [thing for thing in (root.below() if root else ())
                if thing.role == role and (name is None or thing.name == name) and thing.has("showing")]

    def find(self, role, name=None, within=None):
        """Waits for the first visible part of that role and name."""
        return self.wait_until(lambda: self.all(role, name, within), f'{role} "{name or ""}"')[0]

    def close_by_frame(self, title):
        """Clicks the close button in the frame of the window with that title."""
        number = self.window(title)
        edges = self.desk.run("xprop", "-id", number, "_NET_FRAME_EXTENTS").split("=")[1].split(",")
        bar = int(edges[2])  # left, right, top, bottom
        left, top, width, _ = self._client(number)
        self._click_screen(left + width - bar // 2, top - bar // 2)

    def _client(self, number):
        """Left, top, width and height of a window without its frame, in pixels of the screen."""
        told = dict(re.findall(r"(Absolute upper-left [XY]|Width|Height): +(-?\d+)",
                               self.desk.run("xwininfo", "-id", number)))
        return tuple(int(told[key]) for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    # Mouse and keys

    def scale(self):
        """The number of the screen's pixels to one of the program's, as measured at a window that is on the screen."""
        def measured():
            root = reader.program(self._process.pid)
            for part in root.children if root else ():
                numbers = self._window_numbers(f"^{re.escape(part.name)}$") if part.has("showing") else ()
                if numbers:
                    return round(4 * self._client(numbers[-1])[2] / part.rectangle[2]) / 4
            return None
        if self._scale is None:
            self._scale = self.wait_until(measured, "a window to be measured")
        return self._scale

    @staticmethod
    def place(where):
        """The middle of a part, or the place itself."""
        return where if isinstance(where, tuple) else where.centre

    def _on_screen(self, where):
        """The same in pixels of the screen."""
        return tuple(round(coordinate * self.scale()) for coordinate in self.place(where))

    def point(self, where):
        """Moves the mouse there."""
        self.desk.run("xdotool", "mousemove", *map(str, self._on_screen(where)))

    def click(self, where, button=1, times=1):
        """Clicks a part in its middle, or a place."""
        self._click_screen(*self._on_screen(where), button, times)

    def _click_screen(self, x, y, button=1, times=1):
        self.desk.run("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times), "--delay", "60", str(button))
        self.clicks += times

    def double_click(self, where):
        self.click(where, times=2)

    def right_click(self, where):
        self.click(where, button=3)

    def drag(self, where, by, button=1):
        """Drags a part by its middle, or whatever is at a place, `by` pixels right and down."""
        x, y = self.place(where)
        self.clicks += 1
        steps = [self._on_screen((x + by[0] * i // 4, y + by[1] * i // 4)) for i in range(5)]
        start, *moves = [("mousemove", *map(str, step)) for step in steps]
        self.desk.run("xdotool", *start, "mousedown", str(button), *(word for move in moves for word in move),
                      "mouseup", str(button))

    def drop_file(self, path, where, answer="taken"):
        """Drags a file from a window of another program onto a part, or a place, that takes or refuses it."""
        x, y = self._on_screen(where)
        self.clicks += 1
        said = self.desk.folder / "drop.log"
        said.unlink(missing_ok=True)
        self.desk.start(str(self._source / "drop_source"), str(path), log=said)
        left, top, _, _ = self._client(self.window("Drop source"))
        mouse = [(left + 60, top + 30), (left + 80, top + 30), (left + 100, top + 30), (x - 10, y), (x - 5, y), (x, y)]
        for step, (to_x, to_y) in enumerate(mouse):
            self.desk.run("xdotool", "mousemove", str(to_x), str(to_y), *(("mousedown", "1") if step == 0 else ()),
                          "sleep", "0.1")  # the drag's own protocol needs a moment for each answer
        self.desk.run("xdotool", "mouseup", "1")
        given = self.wait_until(lambda: re.search("taken|refused", said.read_text()), "the end of the drag")
        self.check(given[0] == answer, f"{path} was {given[0]}")

    def key(self, *keys):
        """Presses keys one after the other: "Return", "ctrl+shift+k"."""
        self.desk.run("xdotool", "key", *keys)

    def type(self, text):
        self.desk.run("xdotool", "type", "--delay", "5", text)

    # What every pupil does

    def begin_with(self, choice):
        """Answers the welcome dialog."""
        self.window("Welcome to Tallymoor")
        option = self.find("radio button", choice)
        self.click(option)
        self.wait_until(lambda: option.has("checked"), f'"{choice}" to be chosen')
        self.click(self.find("push button", "OK"))

    def open_last(self):
        """Answers the welcome dialog with the last database and waits for its board."""
        self.begin_with("Open last Database")
        self.window("Card\\(s\\)")

    def choose(self, heading, line):
        """Opens a menu and chooses a line of it."""
        self.click(self.find("push button", heading))
        self.click(self.find("push button", line, within=self.find("frame", heading)))

    def answer(self, title, word):
        """Presses the button with that word in the dialog of that title, and waits until it has gone."""
        self.click(self.find("push button", word, within=self.dialog(title)))
        self.wait_until(lambda: self._shown_window(title) is None, f'the dialog "{title}" to go')

    def pick(self, box, line):
        """Chooses a line of a drop-down list. A list ignores clicks right after it has opened; then clicks again."""
        self.click(box)
        for patience in (1, 1, PATIENCE):  # seconds
            self.click(self.find("list item", line, within=box))
            try:
                return self.wait_until(lambda: box.name == line or not self.all("list item", within=box),
                                       f'the list to close on "{line}"', patience)
            except Failed:
                if patience == PATIENCE:
                    raise

    def drag_onto(self, card, target):
        """Drags a card onto a part of the board."""
        (x, y), (to_x, to_y) = card.centre, target.centre
        self.drag(card, by=(to_x - x, to_y - y))

    # Its databases

    def databases(self):
        """The folders of the sample databases beside the program."""
        return sorted(found.parent for found in (self.program / "samples").glob("*/db-info.tdb"))

    def card_values(self, database):
        """The values of each card, its label first, by the name of its files, in their order."""
        records = sorted(database.glob("*.tcd"))
        return {f.stem: [line.strip('"') for line in f.read_text(encoding="cp1252").splitlines()[1:]] for f in records}

    def card_labels(self, database):
        """The label of each card by the name of its files, in their order."""
        return {name: values[0] for name, values in self.card_values(database).items()}

    def database_with_sound(self):
        """A sample database with sounds, and the label of its first card that has one."""
        for database in self.databases():
            for name, label in self.card_labels(database).items():
                if (database / f"{name}.snd").exists():
                    return database, label
        raise Failed("no sample card has a sound")

    # Results

    def picture(self, name, of="root"):
        """Takes a screenshot, or a picture of the window with that title, numbered in the order of the tour. Gives its
        path."""
        self._pictures_taken += 1
        path = self.pictures / f"{self._pictures_taken:02}-{name}.png"
        self.desk.picture(path, of if of == "root" else self.window(of))
        return path

    def pixels_changed(self, picture):
        """How many pixels of the screen differ from a picture that was taken of it."""
        now = self.desk.folder / "now.png"
        self.desk.picture(now)
        return int(float(self.desk.run("compare", "-metric", "AE", str(picture), str(now), "null:", check=False)))

    def pasted(self, kind):
        """What a second program finds on the clipboard."""
        return subprocess.run(("xclip", "-selection", "clipboard", "-o", "-t", kind), env=self.desk.environment,
                              stdout=subprocess.PIPE, check=True).stdout

    def listen(self):
        """A recorder of the speaker, for a with statement."""
        return Ear(self.desk)

    def contents(self, folder):
        """Every file below the folder with its bytes, for a later comparison."""
        folder = pathlib.Path(folder)
        return {str(f.relative_to(folder)): f.read_bytes() for f in sorted(folder.rglob("*")) if f.is_file()}

    def check_same(self, before, after):
        """Fails with the names of the files that were added, removed or changed."""
        differing = sorted(name for name in before.keys() | after.keys() if before.get(name) != after.get(name))
        self.check(not differing, f"files came, went or changed: {', '.join(differing)}")
