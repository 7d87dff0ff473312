"""Drives a real program on a screen of its own, as a person would: keys, mouse, clipboard, windows by title.

    class MineTest(EditorCase):
        def test_typed_text_can_be_copied(self):
            self.start()
            self.session.type("ahoj")
            self.session.key("ctrl+a", "ctrl+k")
            self.session.wait_until(lambda: self.session.clipboard() == "ahoj", "the copied text")

Every wait polls up to a deadline and fails with what it waited for, the windows on show and what the program wrote.
With PELMAR_SHOTS set to a folder, a picture of the screen goes there too. PELMAR_BUILD names the build folder.
"""

import os
import re
import signal
import subprocess
import sys
import time
import unittest
from pathlib import Path
from typing import NamedTuple

from screen import SIZE, Screen
from settings import write_settings

NOBODY = 65534
# What runs a command as an ordinary user, where the test is run by root.
AS_USER = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
PATIENCE = 15.0  # seconds
POLL = 0.02


def built(name):
    """The path of a built program or module."""
    return Path(os.environ.get("PELMAR_BUILD", "build/check")).resolve() / name


PROGRAM = built("pelmar-vex")


class Window(NamedTuple):
    id: int
    title: str


class Session(Screen):
    """One screen with a home that lasts for the block: programs may be started in it one after the other."""

    program = None

    def __exit__(self, *error):
        self.kill()
        super().__exit__(*error)

    # The program.

    def start(self, program, *arguments, folder=None, **environment):
        """Starts it in `folder` (the home by default). The one before must have ended."""
        if self.running():
            raise AssertionError(f"{self.program.args[0]} is still running")
        self.log = self.home / "program.log"
        with open(self.log, "wb") as log:
            self.program = subprocess.Popen([str(program), *map(str, arguments)], env={**self.env, **environment},
                                            cwd=folder or self.home, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                            start_new_session=True)

    def start_as_user(self, program, *arguments, **environment):
        """As start(), by an ordinary user who owns the home."""
        for path in (self.home, *self.home.rglob("*")):
            if AS_USER and not path.is_socket():
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)
        self.start(*AS_USER, program, *arguments, **environment)

    def running(self):
        return self.program is not None and self.program.poll() is None

    def wait_exit(self, patience=PATIENCE):
        """The exit status; negative for a signal."""
        try:
            return self.program.wait(patience)
        except subprocess.TimeoutExpired:
            raise self._failure("the program has not ended") from None

    def kill(self):
        """Ends the program and what it started in its process group, at once, as a power cut would."""
        if self.program is None:
            return
        try:
            os.killpg(self.program.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self.program.wait()

    def output(self):
        """What the program wrote to stdout and stderr so far."""
        return self.log.read_text(errors="replace") if self.program else ""

    # Windows.

    def windows(self):
        """All managed windows, oldest first."""
        listing = self.run("wmctrl", "-l", check=False)
        found = (re.match(r"(0x\w+) +-?\d+ +\S+ (.*)", line) for line in listing.split("\n"))
        return [Window(int(match[1], 16), match[2]) for match in found if match]

    def titles(self):
        return [window.title for window in self.windows()]

    def title(self, window):
        """The title of now; None when the window is gone."""
        return next((one.title for one in self.windows() if one.id == window.id), None)

    def window(self, title):
        """The newest window with this title (a string, or a compiled pattern for the whole of it), or None."""
        def fits(one):
            return title.fullmatch(one) if isinstance(title, re.Pattern) else title == one
        return next((one for one in reversed(self.windows()) if fits(one.title)), None)

    def wait_window(self, title, patience=PATIENCE):
        """Waits until a window of this title is there and has the keyboard."""
        def ready():
            found = self.window(title)
            return found if found and self.active() == found.id else None
        return self.wait_until(ready, f"a window {title!r}", patience)

    def wait_gone(self, window):
        """Waits until the window is gone and another one has the keyboard, if there is one."""
        def gone():
            left = [one.id for one in self.windows()]
            return window.id not in left and (not left or self.active() in left)
        self.wait_until(gone, f"the end of {window.title!r}", needs_program=False)

    def activate(self, window):
        """Brings the window to the front and waits until it has the keyboard."""
        self.run("wmctrl", "-i", "-a", window.id)
        self.wait_until(lambda: self.active() == window.id, f"window {window.title!r} to be active")

    def active(self):
        """The id of the window that has the keyboard, or None."""
        found = re.search(r"# (0x[0-9a-f]+)", self.run("xprop", "-root", "_NET_ACTIVE_WINDOW", check=False))
        return int(found[1], 16) if found else None

    def close(self, window):
        """What the close box does; the program may ask and refuse."""
        self.run("wmctrl", "-i", "-c", window.id)

    def place(self, window):
        """Left, top, width and height with the frame."""
        info = self.run("xwininfo", "-id", window.id)
        left, top, width, height = (int(re.search(name + r":\s+(-?\d+)", info)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = re.findall(r"\d+", self.run("xprop", "-id", window.id, "_NET_FRAME_EXTENTS").partition("=")[2])
        west, east, north, south = (int(one) for one in extents or "0000")
        return left - west, top - north, width + west + east, height + north + south

    def wait_place(self, window, wanted, what):
        """Waits for a place with the frame: as the function `wanted` says it from the one of now, or just this one."""
        def fits():
            now = self.place(window)
            return now == (wanted(*now) if callable(wanted) else wanted)
        try:
            self.wait_until(fits, what, patience=5)
        except AssertionError as error:
            raise AssertionError(f"{error}; it is at {self.place(window)}") from None

    def wait_centred(self, title):
        """The window of this title, once it stands in the middle of the screen."""
        window = self.wait_window(title)
        self.wait_place(window, lambda left, top, width, height: (
            (SIZE[0] - width) // 2, (SIZE[1] - height) // 2, width, height), f"{title!r} in the middle")
        return window

    def move(self, window, left, top, width=-1, height=-1):
        self.run("wmctrl", "-i", "-r", window.id, "-e", f"0,{left},{top},{width},{height}")

    def maximise(self, window, do=True):
        self.run("wmctrl", "-i", "-r", window.id, "-b", f"{'add' if do else 'remove'},maximized_vert,maximized_horz")

    # Keys, mouse, clipboard.

    def key(self, *keys):
        """Presses keys in xdotool's names, as in "ctrl+k", "F1", "Return", in the active window."""
        self.run("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text):
        """Types ASCII text; a line feed is Return."""
        # xdotool's own way with line feeds loses them now and then.
        for number, line in enumerate(text.split("\n")):
            if number:
                self.key("Return")
            if line:
                self.run("xdotool", "type", "--clearmodifiers", "--delay", "4", "--", line)

    def click(self, window, x, y):
        """Clicks at a place counted from the window's inner top left corner."""
        self.run("xdotool", "mousemove", "--window", window.id, x, y, "click", "1")

    def clipboard(self):
        """The text on the clipboard; empty when there is none."""
        return self.run("xclip", "-selection", "clipboard", "-o", check=False)

    # Waiting and looking.

    def wait_until(self, check, what, patience=PATIENCE, needs_program=True):
        """Calls check() until it gives something true, and returns that."""
        deadline = time.monotonic() + patience
        while True:
            result = check()
            if result:
                return result
            if needs_program and not self.running():
                raise self._failure(f"waited for {what}, but the program has ended")
            if time.monotonic() > deadline:
                raise self._failure(f"waited for {what} in vain")
            time.sleep(POLL)

    def colored(self, window, color):
        """Left, top, width and height of all that the window shows in this colour ("#ff0000"), or None."""
        picture = f"import -window {window.id} miff:- | convert - -fill black +opaque '{color}'"
        box = self.run("sh", "-c", picture + " -bordercolor black -border 1 -format %@ info:")
        width, height, left, top = map(int, re.search(r"(\d+)x(\d+)\+(\d+)\+(\d+)$", box).groups())
        return (left - 1, top - 1, width, height) if width else None

    def wait_colored(self, window, color):
        return self.wait_until(lambda: self.colored(window, color), f"the colour {color}")

    def shot(self, name):
        """Takes a picture of the screen where PELMAR_SHOTS asks for it."""
        if folder := os.environ.get("PELMAR_SHOTS"):
            os.makedirs(folder, exist_ok=True)
            self.run("import", "-window", "root", f"{folder}/{name}.png", check=False)

    def _failure(self, what):
        self.shot(f"failed-{Path(sys.argv[0]).stem}-{time.strftime('%H%M%S')}")
        return AssertionError(f"{what}; windows: {self.titles()}; it wrote: {self.output()}")

    def run(self, *command, check=True):
        """What a command prints that works on the screen."""
        words = [str(word) for word in command]
        done = subprocess.run(words, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=PATIENCE)
        if check and done.returncode:
            raise AssertionError(f"{' '.join(words)}: {done.stderr.decode(errors='replace').strip()}")
        return done.stdout.decode(errors="replace")


class EditorCase(unittest.TestCase):
    """A test of the editor in a session of its own. `settings` are fields of the settings record."""

    settings = {}
    environment = {}  # for each start of the program

    def setUp(self):
        self.session = self.enterContext(Session())
        self.folder = self.session.data_folder
        write_settings(self.folder, **self.settings)

    def start(self, *arguments, title="Pelmar VEX ()", program=PROGRAM, **more):
        """Starts the program, with an empty document by default, and gives its window of this title."""
        self.session.start(program, *(arguments or ["-NOMSG"]), **self.environment, **more)
        return self.session.wait_window(title)

    def start_with(self, path, **more):
        return self.start(path, title=f"Pelmar VEX ({path})", **more)

    def wait_title(self, window, title):
        self.session.wait_until(lambda: self.session.title(window) == title, f"the title {title!r}")

    def wait_changed(self, window):
        self.session.wait_until(lambda: (self.session.title(window) or "").endswith("*"), "the mark of a change")

    def answer(self, title, *keys):
        """Keys for a box or dialog that is to come, which they end; Return where none are told."""
        box = self.session.wait_window(title)
        self.session.key(*(keys or ["Return"]))
        self.session.wait_gone(box)

    def save_over(self):
        """Ulož with its default button, and Yes to its question."""
        self.session.key("ctrl+u")
        dialog = self.session.wait_window("Uložit")
        self.session.key("Return")
        self.answer("Soubor")
        self.session.wait_gone(dialog)

    def end(self, window, *keys, asks=True):
        """Closes the window that is the program; the keys answer its question."""
        self.session.close(window)
        if asks:
            self.session.wait_window("Konec")
            self.session.key(*(keys or ["Return"]))
        self.assertEqual(self.session.wait_exit(), 0)

    def autosaved(self):
        return (self.folder / "autosave_pelmar_vex.txt").read_bytes()

    def holds(self, text, pattern="*rescue-*.pelmar"):
        """Whether a rescue file holds the text."""
        return any(text in one.read_bytes() for one in self.folder.glob(pattern))

    def wait_kept(self, *texts, patience=3):
        self.session.wait_until(lambda: all(map(self.holds, texts)), f"{texts} in a rescue file", patience)
