"""Operates the real program as a user does, with keys and mouse, on a separate X server. Titles identify windows.

A test waits for an expected state, up to a limit. A failure names this state, the windows and the program's output.
PELMAR_SHOTS names a folder for a picture of the screen at the end of each test, PELMAR_BUILD the build folder.
"""

import contextlib
import os
import re
import signal
import subprocess
import sys
import time
import unittest
from pathlib import Path
from typing import NamedTuple

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
from screen import Screen, write_settings  # noqa: E402

NOBODY = 65534
# Runs a command as an ordinary user if root runs the test.
AS_USER = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
PATIENCE = 30.0  # seconds
POLL = 0.02
STEP = re.compile(r'\[(?P<window>.*?)\](?!\S)|"(?P<text>.*?)"|@(?P<x>\d+),(?P<y>\d+)|(?P<key>\S+)')


def built(name):
    """The path of a built program or module."""
    return Path(os.environ.get("PELMAR_BUILD", "build/check")).resolve() / name


PROGRAM = built("pelmar-vex")


class Window(NamedTuple):
    id: int
    title: str


class EditorCase(unittest.TestCase):
    """A test with its own screen and home folder. It may start the program several times, one after the other."""

    settings = {}  # fields of the settings record
    screen = Screen
    environment = {}  # for each start of the program
    program = None

    def setUp(self):
        screen = self.enterContext(self.screen())
        self.home, self.env, self.folder = screen.home, screen.env, screen.data_folder
        self.addCleanup(self.kill)
        self.addCleanup(self.shot)
        write_settings(self.folder, **self.settings)

    # The program.

    def start(self, *arguments, title="Pelmar VEX ()", program=PROGRAM, user=False, **environment):
        """Starts the program, by default with an empty document. Waits for a window of this title and returns the
        window, or None without a title. With `user` an ordinary user owns the home folder and starts the program."""
        self.assertFalse(self.running())
        command = [program, *(arguments or ["-NOMSG"])]
        if user and AS_USER:
            command = [*AS_USER, *command]
            for path in (self.home, *self.home.rglob("*")):
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)
        self.log = self.home / "program.log"
        with open(self.log, "wb") as log:
            self.program = subprocess.Popen(
                command, env={**self.env, **self.environment, **environment}, cwd=self.home,
                stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True)
        return self.wait_window(title) if title else None

    def start_with(self, path, **more):
        return self.start(path, title=f"Pelmar VEX ({path})", **more)

    def running(self):
        return self.program is not None and self.program.poll() is None

    def wait_exit(self, status=0):
        """Waits until the program ends, and checks its exit status. The status of a signal is negative."""
        self.wait(lambda: not self.running(), "the end of the program", needs_program=False)
        self.assertEqual(self.program.returncode, status, self.log.read_text(errors="replace"))

    def kill(self):
        """Ends the program and the processes of its group at once."""
        if self.program is not None:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(self.program.pid, signal.SIGKILL)
            self.program.wait()

    # What a user does.

    def work(self, steps):
        """Runs a line of steps and returns the last awaited window that isn't gone.

            ctrl+k     presses a key, by xdotool's name
            "text"     types the text
            [Title]    waits until a window of this title has the keyboard
            @10,20     clicks there in that window
            /          waits until that window is gone; clicks then go to the window awaited before
        """
        awaited = []
        for step in STEP.finditer(steps):
            if step["window"] is not None:
                awaited.append(self.wait_window(step["window"]))
            elif step["text"] is not None:
                self.command("xdotool", "type", "--clearmodifiers", "--delay", "4", "--", step["text"])
            elif step["x"]:
                self.point(awaited[-1], step["x"], step["y"], "click", "1")
            elif step["key"] == "/":
                self.wait_gone(awaited.pop())
            else:
                self.command("xdotool", "key", "--clearmodifiers", step["key"])
        return awaited[-1] if awaited else None

    def save_over(self):
        """Saves by Ulož and answers Yes to its question."""
        self.work("ctrl+u [Uložit] Return [Soubor] Return / /")

    def end(self, window, answer="Return"):
        """Closes the window, presses the key `answer` in the program's question, and waits until the program ends.
        An empty `answer` expects no question."""
        self.command("wmctrl", "-i", "-c", window.id)
        if answer:
            self.work(f"[Konec] {answer}")
        self.wait_exit()

    def point(self, window, x, y, *then):
        """Moves the mouse to a place, counted from the window's top left corner inside the frame. `then` are more
        arguments of xdotool."""
        self.command("xdotool", "mousemove", "--window", window.id, x, y, *then)

    # Windows.

    def windows(self):
        """All managed windows, oldest first."""
        found = re.findall(r"^(0x\w+) +-?\d+ +\S+ (.*)$", self.command("wmctrl", "-l", check=False), re.MULTILINE)
        return [Window(int(number, 16), title) for number, title in found]

    def active(self):
        """The id of the window that has the keyboard, or None."""
        found = re.search(r"# (0x[0-9a-f]+)", self.command("xprop", "-root", "_NET_ACTIVE_WINDOW", check=False))
        return int(found[1], 16) if found else None

    def window(self, title):
        """The newest window of this title (a string, or a pattern for the whole of it), or None."""
        pattern = re.escape(title) if isinstance(title, str) else title
        return next((one for one in reversed(self.windows()) if re.fullmatch(pattern, one.title)), None)

    def wait_window(self, title):
        """Waits until a window of this title has the keyboard."""
        def ready():
            found = self.window(title)
            return found if found and self.active() == found.id else None
        return self.wait(ready, f"the window {title!r}")

    def wait_gone(self, window):
        """Waits until the window is gone and another one has the keyboard, if there is one."""
        def gone():
            left = [one.id for one in self.windows()]
            return window.id not in left and (not left or self.active() in left)
        self.wait(gone, f"the end of {window.title!r}", needs_program=False)

    def activate(self, window):
        """Brings the window to the front and waits until it has the keyboard."""
        self.command("wmctrl", "-i", "-a", window.id)
        self.wait(lambda: self.active() == window.id, f"window {window.title!r} to be active")

    # Files.

    def write(self, name, text):
        path = self.home / name
        path.write_bytes(text if isinstance(text, bytes) else text.encode("cp1250"))
        return path

    def autosaved(self):
        return (self.folder / "autosave_pelmar_vex.txt").read_bytes()

    def rescues(self):
        return list(self.folder.glob("*rescue-*.pelmar"))

    def is_rescued(self, text):
        """Whether a rescue file contains the text."""
        return any(text in one.read_bytes() for one in self.rescues())

    # Waiting and looking.

    def wait(self, check, what, needs_program=True):
        """Calls check() until its result is true, and returns the result."""
        deadline = time.monotonic() + PATIENCE
        while not (result := check()):
            ended = needs_program and not self.running()
            if ended or time.monotonic() > deadline:
                what = what() if callable(what) else what
                wrote = self.log.read_text(errors="replace") if self.program else ""
                self.fail(f"waited for {what}, {'but the program has ended' if ended else 'in vain'}; there are "
                          f"{self.windows()}; it wrote: {wrote}")
            time.sleep(POLL)
        return result

    def shot(self):
        if folder := os.environ.get("PELMAR_SHOTS"):
            os.makedirs(folder, exist_ok=True)
            self.command("import", "-window", "root", f"{folder}/{self.id()}.png", check=False)

    def command(self, *command, check=True):
        """Runs a command that works on the screen, and returns what it prints."""
        words = [str(word) for word in command]
        done = subprocess.run(words, env=self.env, capture_output=True, text=True, errors="replace", timeout=240)
        if check and done.returncode:
            self.fail(f"{' '.join(words)}: {done.stdout}{done.stderr}")
        return done.stdout
