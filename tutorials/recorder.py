"""Records a lesson: drives the real program like the tours do, and notes what a pupil would see.

A lesson is a script in the folder scripts:

    with Lesson("Finding Cards", "Finding Cards") as lesson:
        lesson.open("Little Monsters")
        with lesson.scene("Open the menu Card and choose Find."):
            lesson.choose("Card", "Find...")

What is done in a scene is recorded: the pointer's places and presses, and of the screen what has changed. The times in
the lesson follow from the rules below and not from the machine, which may be slow. What is done outside of scenes only
prepares."""

import contextlib
import hashlib
import json
import os
import pathlib
import shutil
import struct
import sys
import threading
import time

sys.dont_write_bytecode = True
HOUSE = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(HOUSE / "tests" / "e2e"))
import contactSheet  # noqa: E402
from PIL import Image, ImageChops, ImageStat  # noqa: E402
from desk import Failed  # noqa: E402
from driver import Settings, Tour  # noqa: E402

LESSONS = HOUSE / "tutorials" / "lessons"
SCHOOL = "/home"  # where the program sees its folder Tallymoor
SCALE = 1.5  # of the program: its windows look as on 1024x600, but sharp

# Seconds in the lesson
GLIDE = 0.8  # of the pointer from place to place
AIM = 0.25  # before a press
PRESS = 0.35  # until the result of a press is shown
TWICE = 0.2  # between the presses of a double click
LETTER = 0.14
STEP = 0.12  # between the pictures of a film or a drag
REST = 0.7  # after a step
WORD, FIRST_WORD = 0.45, 1.5  # reading
LAST_LOOK = 1.5  # at the end of a scene
WHOLE = (60, 120)  # a lesson

LONGEST_CAPTION = 100
FLIGHT = 12  # pictures at the start of a film, as it goes
LAPSE = 12  # pictures of all the rest
LAPSE_STEP = 0.2
STILL = 0.3  # seconds of the machine without a change on the screen: a step is over
PATIENCE = 4.0  # the longest wait for that; some steps change nothing, and a caret never stops blinking
LONGEST_FLIGHTS = 180  # seconds of the machine
TILE = 24  # pixels: changes that are further apart become pictures of their own
PIECE = 256, 150  # pixels: larger changes are cut up
COLOURS = (64, 128, 256)  # of a piece: the fewest that no pixel suffers by
FLAT = 20  # pixels of one colour in a piece
NEAR = 8  # of 255: Pillow takes colours that are nearer for each other
LARGEST_ERROR = 48  # of 255, of a pixel by fewer colours
LARGEST_MEAN = 5  # of a whole screen

# The same "random" places of cards each time a lesson is recorded.
SAME_CHANCES = """
#include <cstdint>
struct QRandomGenerator { uint64_t _fillRange(void* words, long long count); };
uint64_t QRandomGenerator::_fillRange(void* words, long long count) // without words: returns them
{
    static uint64_t state = 0x7A11F00D;
    const auto next = [] { return state = state * 6364136223846793005u + 1442695040888963407u; };
    if (!words)
        return next() ^ next() >> 32;
    for (auto* word = static_cast<uint32_t*>(words); count-- > 0; ++word)
        *word = uint32_t(next() >> 32);
    return 0;
}
"""


class Camera:
    """Reads the screen from the file in which Xvfb keeps it: without the pointer, in a few milliseconds."""

    HEADER = struct.Struct(">25I")
    OPTIONS = ("-fbdir", "{}", "-nocursor", "-r")  # no key repeats itself on a slow machine

    def __init__(self, desk):
        self._file = open(desk.folder / "Xvfb_screen0", "rb")
        header = self.HEADER.unpack(self._file.read(self.HEADER.size))
        self.size = header[4], header[5]
        self._line = header[12]  # bytes
        self._start = header[0] + 12 * header[19]  # after the colour table

    def bytes(self):
        """The screen as bytes, which are quick to compare."""
        self._file.seek(self._start)
        return self._file.read(self._line * self.size[1])

    def picture(self, data):
        return Image.frombuffer("RGB", self.size, data, "raw", "BGRX", self._line, 1)


def changed_boxes(before, after):
    """The rectangles in which two pictures differ; neighbouring changes together."""
    difference = ImageChops.difference(before, after).convert("RGB")
    whole = difference.getbbox()
    if not whole:
        return []
    strongest = difference.getchannel(0)
    for channel in (1, 2):
        strongest = ImageChops.lighter(strongest, difference.getchannel(channel))
    mask = strongest.point(lambda value: 255 if value else 0)
    columns, rows = -(-mask.width // TILE), -(-mask.height // TILE)
    tiles = {(x, y) for y in range(rows) for x in range(columns)
             if mask.crop((x * TILE, y * TILE, (x + 1) * TILE, (y + 1) * TILE)).getbbox()}
    boxes = []
    while tiles:
        island, border = set(), [tiles.pop()]
        while border:
            x, y = border.pop()
            island.add((x, y))
            near = {(x + dx, y + dy) for dx in (-1, 0, 1) for dy in (-1, 0, 1)} & tiles
            tiles -= near
            border += near
        left, top = min(x for x, _ in island) * TILE, min(y for _, y in island) * TILE
        right, bottom = (max(x for x, _ in island) + 1) * TILE, (max(y for _, y in island) + 1) * TILE
        inner = mask.crop((left, top, right, bottom)).getbbox()
        boxes.append((left + inner[0], top + inner[1], left + inner[2], top + inner[3]))
    return sorted(boxes)


def pieces(before, after):
    """What has to be shown anew: small changed rectangles, and of larger ones those pieces of a fixed grid in which
    something has changed. A piece that comes back later, such as most of the board, is in a file already."""
    found = []
    for left, top, right, bottom in changed_boxes(before, after):
        if right - left <= PIECE[0] and bottom - top <= PIECE[1]:
            found.append((left, top, right, bottom))
            continue
        grid = ((x, y, min(x + PIECE[0], after.width), min(y + PIECE[1], after.height))
                for y in range(top // PIECE[1] * PIECE[1], bottom, PIECE[1])
                for x in range(left // PIECE[0] * PIECE[0], right, PIECE[0]))
        found += [box for box in grid if ImageChops.difference(before.crop(box), after.crop(box)).getbbox()]
    return list(dict.fromkeys(found))


def digest_of(picture):
    return hashlib.sha256(repr(picture.size).encode() + picture.tobytes()).digest()


def with_few_colours(picture):
    """The picture with a palette."""
    for colours in COLOURS:
        small = picture.quantize(palette=palette_for(picture, colours), dither=Image.Dither.NONE)
        errors = ImageChops.difference(small.convert("RGB"), picture).getextrema()
        if max(most for _, most in errors) <= LARGEST_ERROR:
            break
    return small


def is_apart(colour, others):
    return all(max(abs(a - b) for a, b in zip(colour, other)) >= NEAR for other in others)


def palette_for(picture, colours):
    """A palette with the colours of flat areas as they are, lest these differ from piece to piece, and means of others."""
    found = sorted(picture.getcolors(picture.width * picture.height), reverse=True)
    flat = []
    for count, colour in found:
        if count >= FLAT and len(flat) < colours // 2 and is_apart(colour, flat):
            flat.append(colour)
    means = picture.quantize(colours - len(flat), method=Image.Quantize.MAXCOVERAGE, kmeans=3, dither=Image.Dither.NONE)
    values = means.getpalette()
    others = [tuple(values[i:i + 3]) for i in range(0, 3 * (colours - len(flat)), 3)]
    apart = [other for other in others if is_apart(other, flat)]
    palette = Image.new("P", (1, 1))
    palette.putpalette([value for colour in flat + apart for value in colour])
    return palette


class Film:
    """Collects the states of the screen while something moves: the first ones as they come, and `lapse` to twice as
    many of the rest, however long it takes."""

    def __init__(self, camera, flight, lapse):
        self._camera, self._flight, self._lapse = camera, flight, lapse
        self._last = camera.bytes()
        self.first, self.rest = [], []
        self._end = threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def _run(self):
        seen, stride = 0, 1
        while not self._end.wait(0.05):
            frame = self._camera.bytes()
            if frame == self._last:
                continue
            self._last = frame
            seen += 1
            if seen <= self._flight:
                self.first.append(frame)
            elif self._lapse and seen % stride == 0:
                self.rest.append(frame)
            if self._lapse and len(self.rest) >= 2 * self._lapse:
                self.rest = self.rest[::2]
                stride *= 2

    def stop(self):
        """Ends the film. Gives its frames with the seconds that each of them is shown."""
        self._end.set()
        self._thread.join()
        count = min(self._lapse, len(self.rest))
        return [(frame, STEP) for frame in self.first] + [
            (self.rest[len(self.rest) * i // count], LAPSE_STEP) for i in range(count)]


class Lesson(Tour):
    """`program` is the name of the tutorial program, `title` what its player shows."""

    DISPLAY_OPTIONS = Camera.OPTIONS

    def __init__(self, program, title):
        super().__init__(f"lesson-{program}")
        self._name, self._title = program, title
        self._scenes = []
        self._scene = None
        self._film = None
        self._patience = PATIENCE
        self._at = 0.0  # seconds since the scene began
        self._pointer = None
        self._last = None  # what the screen showed when it was looked at
        self._files = {}  # name of each picture by its digest

    def __enter__(self):
        super().__enter__()
        try:
            self._go_to_school()
            self.camera = Camera(self.desk)
            self._pointer = self.camera.size[0] // 2, self.camera.size[1] * 2 // 3
            self._last = Image.new("RGB", self.camera.size)
            self.settings.set("Display", "Scale", str(SCALE))
            self._same_chances()
            self._dress_windows()
            self._folder = self.desk.folder / "lesson"
            self._folder.mkdir()
        except BaseException:
            self.desk.close()
            raise
        return self

    def _go_to_school(self):
        school = self.desk.folder / "school"
        school.mkdir()
        self.program = self.program.rename(school / "Tallymoor")
        self.settings = Settings(self.program)

    def _same_chances(self):
        source, library = self.desk.folder / "chances.cpp", self.desk.folder / "chances.so"
        source.write_text(SAME_CHANCES)
        self.desk.run("g++", "-shared", "-fPIC", "-O1", "-o", str(library), str(source))
        self.desk.environment["LD_PRELOAD"] = str(library)

    def _dress_windows(self):
        """Frames of windows in the program's own colours, and as large as the program."""
        home = self.desk.folder / "home"
        shutil.copytree(HOUSE / "tutorials" / "frames", home / ".themes" / "Lesson" / "openbox-3")
        (home / ".config" / "openbox").mkdir(parents=True)
        shutil.copy(HOUSE / "tutorials" / "frames" / "rc.xml", home / ".config" / "openbox")
        self.desk.run("openbox", "--reconfigure")

    def start(self):
        """Starts the program. It sees its own folder at a place that can be read in the title of its window."""
        log = self.desk.folder / f"tallymoor-{len(self._copies) + 1}.log"
        script = f"mount --bind {self.desk.folder / 'school'} {SCHOOL} && exec {self._own_name()}{SCHOOL}/Tallymoor/tallymoor"
        self._process = self.desk.start("unshare", *self._own_mounts(), "sh", "-c", script, log=log)
        self._copies.append((self._process, log))
        return self._process

    @staticmethod
    def _own_mounts():
        return ("--mount",) if os.getuid() == 0 else ("--map-root-user", "--mount")

    @staticmethod
    def _own_name():
        """Gives a user who became root for the mount the own name back: the message bus asks for it."""
        return "" if os.getuid() == 0 else f"unshare --user --map-user={os.getuid()} --map-group={os.getgid()} "

    def __exit__(self, kind, problem, trace):
        if problem is None and self._scenes:
            self._store()
        super().__exit__(kind, problem, trace)

    def _store(self):
        whole = sum(scene["length"] for scene in self._scenes)
        self.check(WHOLE[0] <= whole <= WHOLE[1], f"the lesson takes {whole:.0f} seconds")
        story = {"title": self._title, "size": list(self.camera.size), "scenes": self._scenes}
        text = json.dumps(story, ensure_ascii=False, separators=(",", ":")).replace('{"caption"', '\n{"caption"')
        (self._folder / "lesson.json").write_text(text + "\n", encoding="utf-8")
        self._check_pictures()
        target = LESSONS / self._name
        shutil.rmtree(target, ignore_errors=True)
        shutil.copytree(self._folder, target)
        self.pictures.mkdir(parents=True, exist_ok=True)
        contactSheet.of(target).save(self.pictures / "sheet.png")
        size = sum(f.stat().st_size for f in target.iterdir())
        print(f"{self._name}: {whole:.0f} s, {len(self._scenes)} scenes, {len(self._files)} pictures, {size // 1024} KB")

    def _check_pictures(self):
        """The pictures, laid over each other by a player, show at the end what the screen showed."""
        played = list(contactSheet.moments(self._folder))[-1][2]
        error = max(ImageStat.Stat(ImageChops.difference(played, self._last)).rms)
        self.check(error < LARGEST_MEAN, f"the pictures differ from the screen by {error:.1f}")

    # Scenes

    @contextlib.contextmanager
    def scene(self, caption):
        """What is done in the with statement, under that caption."""
        self.check(len(caption) <= LONGEST_CAPTION, f'"{caption}" is too long')
        reading = FIRST_WORD + WORD * len(caption.split())
        self._settle(None)
        self._scene = {"caption": caption, "length": 0, "pictures": [], "pointer": []}
        self._at = 0.0
        self._show()
        self._note_pointer()
        self._at = reading / 2  # first read, then look
        yield self
        self.look()
        self._scene["length"] = round(max(reading, self._at + LAST_LOOK), 2)
        self._scenes.append(self._scene)
        self._scene = None

    def pause(self, seconds):
        """Lets the pupil look for a while."""
        self._at += seconds

    def look(self):
        """Shows the screen as it is when nothing changes any more."""
        if self._scene and not self._film:
            self._settle(None)
            self._show()

    @contextlib.contextmanager
    def film(self, flight=FLIGHT, lapse=LAPSE):
        """Shows what moves on the screen until the with statement ends: its first states one by one, the rest in large
        steps."""
        self._film = Film(self.camera, flight, lapse)
        try:
            yield
        finally:
            frames = self._film.stop()
            self._film = None
        for data, seconds in frames:
            self._show(self.camera.picture(data))
            self._at += seconds
        self.look()

    def catch(self, part):
        """Presses a part as soon as the running film has its first states, before the flights are over."""
        self.wait_until(lambda: len(self._film.first) >= FLIGHT, "the first flights")
        x, y = self._on_screen(part)
        super()._click_screen(x, y)

    def show_click(self, part):
        """Shows a press of what has been pressed already, by `catch`."""
        self._glide(self._on_screen(part))
        self._at += AIM
        self._note_pointer("left")
        self._at += PRESS

    @contextlib.contextmanager
    def in_motion(self):
        """In the with statement something moves all the time: no step waits until the screen stands still."""
        self._patience = STEP
        yield
        self._patience = PATIENCE

    # The screen

    def _settle(self, before, still=STILL):
        """Waits until the screen has changed, if a frame `before` is given, and then stands still."""
        end = time.monotonic() + self._patience
        last, since = self.camera.bytes(), time.monotonic()
        changed = before is None
        while time.monotonic() < end:
            time.sleep(0.03)
            frame = self.camera.bytes()
            if frame != last:
                last, since = frame, time.monotonic()
            changed = changed or frame != before
            if changed and time.monotonic() - since >= still:
                return

    def _show(self, frame=None):
        """Adds what has changed since the last picture to the scene."""
        frame = frame or self.camera.picture(self.camera.bytes())
        first = not self._scenes and not self._scene["pictures"]
        before = ImageChops.invert(frame) if first else self._last
        for box in pieces(before, frame):
            if digest_of(frame.crop(box)) not in self._files:  # only what has changed then needs a new file
                left, top, right, bottom = ImageChops.difference(before.crop(box), frame.crop(box)).getbbox()
                box = box[0] + left, box[1] + top, box[0] + right, box[1] + bottom
            self._scene["pictures"].append({"at": round(self._at, 2), "file": self._file_of(frame.crop(box)),
                                            "x": box[0], "y": box[1]})
        self._last = frame

    def _file_of(self, picture):
        """The name of the file with that picture, which may be there already."""
        digest = digest_of(picture)
        if digest not in self._files:
            self._files[digest] = name = f"{len(self._files) + 1:03}.png"
            small = with_few_colours(picture)
            small.save(self._folder / name, optimize=True)
        return self._files[digest]

    # The pointer

    def _note_pointer(self, press=None):
        entry = {"at": round(self._at, 2), "x": self._pointer[0], "y": self._pointer[1]}
        self._scene["pointer"].append(entry | ({"press": press} if press else {}))

    def _glide(self, place, seconds=GLIDE):
        if place != self._pointer:
            self._note_pointer()
            self._at += seconds
            self._pointer = place
            self._note_pointer()

    def _click_screen(self, x, y, button=1, times=1):
        if not self._scene:
            super()._click_screen(x, y, button, times)
            return
        self._glide((x, y))
        self._at += AIM
        before = self.camera.bytes()
        super()._click_screen(x, y, button, times)
        for press in range(times):
            self._at += TWICE if press else 0
            self._note_pointer({1: "left", 3: "right"}[button])
        self._at += PRESS
        self._seen(before)

    def _seen(self, before, still=STILL, then=REST):
        if not self._film:
            self._settle(before, still)
            self._show()
            self._at += then

    def point(self, where, hover=False):
        """Lets the pointer glide there. With `hover` the real mouse goes too, for a menu or a tool tip."""
        if self._scene:
            self._glide(self._on_screen(where))
        if hover or not self._scene:
            super().point(where)
            self.look()

    def drag(self, where, by, button=1, steps=9):
        if not self._scene:
            super().drag(where, by, button)
            return
        x, y = self.place(where)
        self.clicks += 1
        self._glide(self._on_screen((x, y)))
        self._at += AIM
        self.desk.run("xdotool", "mousemove", *map(str, self._pointer), "mousedown", str(button))
        self._note_pointer("drag")
        for step in range(1, steps + 1):
            before = self.camera.bytes()
            place = self._on_screen((x + by[0] * step // steps, y + by[1] * step // steps))
            self.desk.run("xdotool", "mousemove", *map(str, place))
            self._settle(before, 0.1)
            self._at += STEP
            self._pointer = place
            self._note_pointer()
            self._show()
        self._at += AIM
        before = self.camera.bytes()
        self.desk.run("xdotool", "mouseup", str(button))
        self._note_pointer("drop")
        self._seen(before)

    # Keys

    def key(self, *keys):
        for key in keys:
            before = self.camera.bytes()
            super().key(key)
            if self._scene:
                self._at += PRESS
                self._seen(before)

    def type(self, text):
        if not self._scene:
            super().type(text)
            return
        for letter in text:
            before = self.camera.bytes()
            super().type(letter)
            self._at += LETTER
            self._seen(before, 0.1, 0)
        self._at += REST

    # What every lesson does

    def open(self, database):
        """Starts the program with a sample database."""
        self.settings.set("Last DB", "Path", f"samples/{database}")
        self.start()
        self.open_last()
        self.wait_until(lambda: self.all("list item", within=self.board()), "the cards")

    def fill(self, window, name, text, clicks=1):
        """Clicks a text box of a window and types. Two clicks select the word that is there, so that it goes."""
        box = self.find("text", name, within=window)
        self.click(box, times=clicks)
        self.type(text)
        self.wait_until(lambda: box.text == text, f'"{text}" in "{name}"')

    def fly(self, dialog, result=None):
        """Presses OK in the dialog of a tool and shows the flights to their end, or until a dialog brings the result."""
        def ended():
            titles = self.windows()
            return result in titles if result else "Speed" not in titles
        with self.film():
            self.answer(dialog, "OK")
            self.wait_until(lambda: "Speed" in self.windows(), "the first flight")
            self.wait_until(ended, "the end of the flights", LONGEST_FLIGHTS)

    def pick(self, box, line):
        """Chooses a line of a drop-down list, which is open and at rest when the pointer gets there."""
        if not self._scene:
            super().pick(box, line)
            return
        self.click(box)
        place = self.find("list item", line, within=box)
        self.click(place)

        def closed():
            return box.name == line or not self.all("list item", within=box)
        try:
            self.wait_until(closed, f'the list to close on "{line}"', 1)
        except Failed:  # it ignores a click right after it has opened
            Tour._click_screen(self, *self._on_screen(place))
            self.wait_until(closed, f'the list to close on "{line}"')
        self.look()
