"""A card gets a voice: recorded with a pause in the middle, by mouse, keys and assistive technology. Then everything
that can go wrong with microphone, sound server and disks, with real ones: nothing hangs, no box comes where none is
wanted, no voice is lost and no file is torn. The disks need root."""

import array
import contextlib
import re
import shutil
import sys
import wave

sys.dont_write_bytecode = True
import reader  # noqa: E402
from driver import Tour  # noqa: E402

TONE, OTHER_TONE = 440, 1250  # hertz
HANG = 1.0  # seconds
STOPPED = "The recording has stopped. Your sound is ready."


class Voice:
    """Microphone and mouth of a pupil at the sound page of the card "Talker". `sound` is the card's file."""

    def __init__(self, tour):
        self.tour, self.run, self.folder = tour, tour.desk.run, tour.desk.folder
        self.sound = None
        self.by_reader = False

    def say(self, seconds, hertz=TONE):
        """A tone into the microphone, and a moment of silence after it."""
        said = str(self.folder / "said.wav")
        self.run("sox", "-n", "-r", "44100", "-b", "16", said, "synth", str(seconds), "sine", str(hertz), "gain", "-6",
                 "pad", "0", "0.4")
        self.run("paplay", "-d", "micfeed", said)

    def press(self, *names, role="push button"):
        """Presses parts of the editor, by mouse or assistive technology; the program doesn't hang."""
        for name in names:
            part = self.tour.find("check box" if "Pause" in name else role, name)
            part.press() if self.by_reader else self.tour.click(part)
            with self.tour.within(HANG, f'the answer after "{name}"'), contextlib.suppress(reader.Gone):
                part.has("enabled")  # is answered by the program's own thread

    def record(self, seconds, *then):
        """Opens the card and its sound page where that hasn't been done."""
        if not self.tour.all("page tab"):
            self.tour.double_click(self.tour.card("Talker"))
        if not self.tour.all("radio button"):
            self.tour.click(self.tour.find("page tab", "Add/Edit Sound"))
            self.press("Record Your Own Sound", role="radio button")
        self.press("Record")
        if seconds:
            self.tour.find("label", "Recording")
            self.say(seconds)
        for name in then:
            self.press(name)
            if name == "Play" and name != then[-1]:  # pressed by a reader, it acts a tenth of a second later
                self.tour.find("label", "Playing")

    def close(self, answer, seconds=None):
        """Leaves the editor; the card then has a tone of that length, or the sound that it had before."""
        before = self.sound and self.sound.read_bytes()
        if answer:
            self.press(answer)
        self.tour.wait_until(lambda: not self.tour.all("page tab"), "the editor to close")
        if seconds:
            self.check_tone(self.sound, seconds)
        else:
            self.tour.check(not self.sound or self.sound.read_bytes() == before, "the card's sound has changed")

    def check_tone(self, path, seconds):
        with wave.open(str(path)) as sound:
            self.tour.check(sound.getparams()[:3] == (1, 2, 22050), f"{sound.getparams()}")
            loud = [s for s in array.array("h", sound.readframes(sound.getnframes())) if abs(s) > 100]
        length = len(loud) / 22050
        self.tour.check(abs(length - seconds) < 0.05, f"{length:.3f} s of tone instead of {seconds}")
        hertz = sum(a < 0 < b for a, b in zip(loud, loud[1:])) / length
        self.tour.check(abs(hertz - TONE) < 8, f"a tone of {hertz:.0f} hertz")

    @contextlib.contextmanager
    def full_disk(self, folder, size):
        """A full disk of that size over the folder, with the files that it held; gives a file that fills it."""
        beside = self.folder / "beside"
        shutil.copytree(folder, beside)
        self.run("mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", str(folder))
        try:
            shutil.copytree(beside, folder, dirs_exist_ok=True)
            self.run("dd", "if=/dev/zero", f"of={folder}/ballast", "bs=4k", check=False)
            yield folder / "ballast"
        finally:
            shutil.copytree(folder, beside, dirs_exist_ok=True)
            self.run("umount", "-l", str(folder))
            shutil.copytree(beside, folder, dirs_exist_ok=True)
            shutil.rmtree(beside)


def a_new_card(tour, voice):
    database, _ = tour.database_with_sound()
    before = tour.contents(database)
    tour.choose("Card", "Add Card...")
    tour.find("page tab", "Add/Edit Sound")
    tour.type("Talker")
    voice.record(1.5)
    tour.picture("recording", "Edit Card")
    voice.press("Pause Recording")
    tour.find("label", "Paused")
    voice.say(0.7, OTHER_TONE)
    voice.press("Pause Recording")
    tour.find("label", "Recording")
    voice.say(1)
    voice.close("OK")
    after = tour.contents(database)
    new = sorted(after.keys() - before.keys())
    tour.check(new == [new[0][:8] + ending for ending in (".bmp", ".snd", ".tcd")], f"the new card's files: {new}")
    tour.check_same(before, {name: after[name] for name in before})
    voice.sound = database / new[1]
    voice.check_tone(voice.sound, 2.5)
    with tour.listen() as ear:
        tour.right_click(tour.card("Talker"))
        tour.wait_until(lambda: ear.seconds() > 2.4, "the whole voice")
        tour.check(abs(ear.hertz() - TONE) < 8, f"{ear.hertz():.0f} hertz are heard")


def by_keys(tour, voice):
    tour.double_click(tour.card("Talker"))
    tour.find("page tab", "Add/Edit Sound")
    tour.key("alt+s", "Right", "Tab", "space")
    tour.find("label", "Recording")
    voice.say(0.8)
    tour.key("Tab", "Tab", "space")
    tour.key("alt+c", "Return")
    voice.close(None, 0.8)


def cancelled_at_every_moment(tour, voice):
    """By assistive technology."""
    voice.by_reader = True
    for then in ((), ("Pause Recording",), ("Stop Recording",), ("Play",), ("Play", "Pause "), ("Play", "Stop")):
        long = len(then) == 2  # so that it is still played at the second press
        voice.record(4 if long else 0.2, *then)
        if then and then[-1].startswith("Pause"):
            tour.find("label", "Paused")
        voice.close("Cancel")
    voice.by_reader = False


def without_a_microphone(tour, voice):
    voice.record(0.5)
    voice.run("pactl", "unload-module", "module-remap-source")
    tour.find("label", STOPPED)
    voice.close("OK", 0.5)
    voice.record(0)
    tour.find("label", "No microphone was found.")
    tour.picture("no-microphone", "Edit Card")
    voice.close("OK")
    voice.run("pactl", "load-module", "module-remap-source", "master=micfeed.monitor", "source_name=mic")


def no_room_for_the_card(tour, voice):
    with voice.full_disk(voice.sound.parent, "4M") as ballast:
        voice.record(0.9, "OK")
        tour.answer("Error", "OK")
        ballast.unlink()
        voice.close("OK", 0.9)


def no_room_for_the_recording(tour, voice):
    """The program's folder is write-protected; what the user's own has no room for is kept in memory."""
    program = str(tour.program)
    voice.run("mount", "--bind", program, program)
    try:
        voice.run("mount", "-o", "remount,ro,bind", program)
        voice.record(0.4, "Stop Recording")
        own = next((tour.desk.folder / "home").rglob("tmpsnd.wav"))
        voice.check_tone(own, 0.4)
        with voice.full_disk(own.parent, "1M"):
            voice.record(0.7, "Stop Recording", "Play")
            tour.find("label", "Playing")
    finally:
        voice.run("umount", "-l", program)
    voice.close("OK", 0.7)


def without_a_server(tour, voice):
    voice.record(0.6)
    voice.run("pactl", "exit")
    tour.find("label", STOPPED)
    voice.close("OK", 0.6)
    tour.close_by_frame("Card\\(s\\)")
    tour.end()
    tour.start()
    tour.open_last()
    voice.record(0, "Play")
    tour.answer("Error", "OK")
    tour.find("label", "No microphone was found.")
    voice.close("OK")


with Tour("sound") as tour:
    tour.HARMLESS = re.compile(r"^$|Stream error|pa_\w+\(\) failed")  # Qt, about the vanished server
    tour.settings.set("Sound", "Status", "1")
    tour.settings.set("Last DB", "Path", str(tour.database_with_sound()[0]))
    tour.start()
    tour.open_last()
    voice = Voice(tour)
    for lesson in (a_new_card, by_keys, cancelled_at_every_moment, without_a_microphone,
                   no_room_for_the_card, no_room_for_the_recording, without_a_server):
        lesson(tour, voice)
