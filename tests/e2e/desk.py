"""A private desktop for one tour: display, window manager, message bus, assistive technology, sound server and home.

Nothing of the machine's own desktop is touched, so tours run side by side; everything ends with the tour, even when
the tour itself is killed."""

import array
import math
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

SCREENS = ("1366x768", "1920x1080")  # of a small laptop, and of a projector: there the program is 1.5 times as large
PATIENCE = 30  # seconds until a wait counts as failed; a loaded machine may need most of it


class Failed(Exception):
    """Something that the tour needs did not appear or did not work."""


def starved():
    """Seconds since the machine's start in which a process waited for a processor; 0 where the system doesn't count."""
    pressure = pathlib.Path("/proc/pressure/cpu")
    try:
        return int(re.search(r"some .*total=(\d+)", pressure.read_text())[1]) / 1e6
    except (OSError, TypeError):
        return 0


def wait_until(condition, what, timeout=PATIENCE):
    """Polls `condition` and returns its first true result; raises Failed with `what` when there is none."""
    end = time.monotonic() + timeout
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failed(f"waited {timeout} s for {what}")
        time.sleep(0.02)


class Desk:
    """The running desktop, X or Wayland, on a screen such as "1366x768". `folder` is private and removed with it;
    `environment` is for programs started on it. `display_options` are further ones for Xvfb, with {} for the folder."""

    def __init__(self, screen=SCREENS[0], wayland=False, display_options=()):
        self._screen = screen
        self._display_options = display_options
        self._wayland = wayland
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tallymoor-tour-"))
        self._processes = []
        try:
            self._lay_out()
        except BaseException:
            self.close()
            raise

    def _lay_out(self):
        for name in ("home", "run"):
            (self.folder / name).mkdir(mode=0o700)
        foreign = ("WAYLAND_DISPLAY", "XAUTHORITY", "SESSION_MANAGER", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS")
        self.environment = {key: value for key, value in os.environ.items()
                            if key not in foreign and not key.startswith(("XDG_", "QT_", "LC_"))}
        self.environment |= {
            "HOME": str(self.folder / "home"),
            "XDG_RUNTIME_DIR": str(self.folder / "run"),
            "LANG": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "PULSE_SERVER": f"unix:{self.folder / 'sound'}",
            "PULSE_COOKIE": str(self.folder / "cookie"),
            "CUPS_SERVER": "/nonexistent",
        }
        self._start_display()
        self._start_bus()
        self._start_sound()

    def _start_display(self):
        number = self._told_number("Xvfb", "-displayfd", "{}", "-screen", "0", f"{self._screen}x24", "-nolisten", "tcp",
                                   "-noreset", *(part.format(self.folder) for part in self._display_options))
        self.environment["DISPLAY"] = f":{number}"
        self.run("setxkbmap", "de")  # the one map on which "ä" and "€" can be typed
        if self._wayland:
            self._start_wayland()
            return
        self.start("openbox", "--sm-disable")
        wait_until(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")

    def _start_wayland(self):
        """A Wayland desktop in a window that nearly fills the display: in one that fills it the mouse stands still.
        There is no window manager, which would move that window. Programs start on it from now on."""
        width, height = (int(side) - 16 for side in self._screen.split("x"))
        settings = self.folder / "weston.ini"
        settings.write_text("[shell]\npanel-position=none\nlocking=false\nanimation=none\nstartup-animation=none\n"
                            "[input-method]\npath=\n")
        self.start("weston", "--backend=x11-backend.so", "--use-pixman", f"--width={width}", f"--height={height}",
                   "--socket=tour", "--idle-time=0", f"--config={settings}")
        wait_until((self.folder / "run" / "tour").exists, "the Wayland desktop")
        self.environment |= {"WAYLAND_DISPLAY": "tour", "QT_QPA_PLATFORM": "wayland"}

    def _start_bus(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._told_number(
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={}")

    def _start_sound(self):
        """A speaker whose monitor can be recorded, and a microphone that records what is played to `micfeed`."""
        modules = (f"module-native-protocol-unix socket={self.folder / 'sound'} auth-anonymous=1",
                   "module-null-sink sink_name=speaker norewinds=1",
                   "module-null-sink sink_name=micfeed norewinds=1",
                   "module-remap-source master=micfeed.monitor source_name=mic")
        server = {key: value for key, value in self.environment.items() if key != "PULSE_SERVER"}
        self.start("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
                   "--log-target=stderr", "--log-level=error", *(f"--load={module}" for module in modules),
                   environment=server)
        wait_until(lambda: "speaker" in self.run("pactl", "list", "short", "sinks", check=False), "the sound server")

    def start(self, *command, environment=None, log=None, **more):
        """Starts a process that ends with the desk at the latest. Its output goes to the file `log`, or to a log named
        after it."""
        with open(log or self.folder / f"{pathlib.Path(command[0]).name}.log", "ab") as output:
            process = subprocess.Popen(("setpriv", "--pdeathsig", "TERM", *command), env=environment or self.environment,
                                       cwd=self.folder / "home", stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                                       **more)
        self._processes.append(process)
        return process

    def _told_number(self, *command):
        """Starts a process that writes a line to the file descriptor in place of {}, and returns that line."""
        reading, writing = os.pipe()
        self.start(*(part.format(writing) if part.endswith("{}") else part for part in command), pass_fds=(writing,))
        os.close(writing)
        with open(reading, encoding="ascii") as pipe:
            line = pipe.readline().strip()
        if not line:
            raise Failed(f"{command[0]} did not start")
        return line

    def run(self, *command, check=True):
        """The output of a short command. Raises with the output if it fails, unless check is False."""
        result = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True, timeout=PATIENCE)
        if check and result.returncode:
            raise Failed(f"{' '.join(command)}: {result.stdout.strip()}")
        return result.stdout

    def picture(self, path, window="root"):
        """Takes a picture of the whole screen, or of a window with its frame."""
        path.parent.mkdir(parents=True, exist_ok=True)
        self.run("import", "-frame", "-window", window, str(path))

    def close(self):
        for process in reversed(self._processes):
            process.terminate()
        for process in self._processes:
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


class Ear:
    """Listens at the speaker: with Ear(desk) as ear."""

    RATE = 16000

    def __init__(self, desk):
        self._desk = desk

    def __enter__(self):
        desk = self._desk
        self._file = desk.folder / "heard.raw"
        self._file.unlink(missing_ok=True)
        self._process = desk.start("parecord", "-d", "speaker.monitor", "--raw", "--format=s16le", f"--rate={self.RATE}",
                                   "--channels=1", "--latency-msec=20", str(self._file))
        wait_until(lambda: self._file.exists() and self._file.stat().st_size > self.RATE // 10, "the ear to hear silence")
        return self

    def __exit__(self, *problem):
        self._process.terminate()
        self._process.wait()

    def loudness(self):
        """The root mean square of everything recorded so far except silence: 0 for silence, 1 for the loudest tone."""
        data = self._file.read_bytes()
        samples = [s for s in array.array("h", data[:len(data) // 2 * 2]) if s]
        return math.sqrt(sum(s * s for s in samples) / len(samples)) / 32768 if samples else 0.0

    def hertz(self):
        """The pitch of all sound recorded so far: how often it rises through zero in a second."""
        data = self._file.read_bytes()
        samples = [s for s in array.array("h", data[:len(data) // 2 * 2]) if abs(s) > 32]
        return sum(a < 0 < b for a, b in zip(samples, samples[1:])) * self.RATE / len(samples)

    def seconds(self):
        """The duration of all sound recorded so far."""
        data = self._file.read_bytes()
        return sum(1 for s in array.array("h", data[:len(data) // 2 * 2]) if abs(s) > 32) / self.RATE
