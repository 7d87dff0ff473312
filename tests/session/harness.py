"""Drives a real program on a screen of its own, as a person would: keys, mouse, clipboard, windows by title.

    with Session() as session:
        session.start(built("pelmar-vex"), "-NOMSG")
        main = session.wait_window("Pelmar VEX ()")
        session.type("ahoj", main)
        session.key("ctrl+k")
        session.wait_until(lambda: session.clipboard() == "ahoj", "the copied text")

Every wait polls up to a deadline and raises AssertionError with what it waited for. When the block is left by an error,
a picture is taken, and the program's stderr and the windows on the screen are reported. With PELMAR_SHOTS set to a
folder, pictures go there; otherwise none are taken. PELMAR_BUILD names the build folder.
"""

import os
import re
import signal
import subprocess
import sys
import time
from pathlib import Path
from typing import NamedTuple

from screen import Screen

NOBODY = 65534
# What runs a command as an ordinary user, where the test is run by root.
AS_USER = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
PATIENCE = 15.0  # seconds
POLL = 0.02


def built(name):
    """The path of a built program, as in "pelmar-vex" or "bench/bare_window"."""
    return Path(os.environ.get("PELMAR_BUILD", "build/check")).resolve() / name


class Window(NamedTuple):
    id: str
    pid: int
    title: str


class Session(Screen):
    """One screen with a home that lasts for the block: programs may be started in it one after the other."""

    program = None

    def __exit__(self, kind=None, value=None, trace=None):
        try:
            if kind is not None and self.program is not None:
                self._report()
        finally:
            self.kill()
            super().__exit__()

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
        return self.program

    def start_as_user(self, program, *arguments, **environment):
        """As start(), by an ordinary user who owns the home."""
        for path in (self.home, *self.home.rglob("*")):
            if AS_USER and not path.is_socket():
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)
        return self.start(*AS_USER, program, *arguments, **environment)

    def running(self):
        return self.program is not None and self.program.poll() is None

    def wait_exit(self, patience=PATIENCE):
        """The exit status; negative for a signal."""
        try:
            return self.program.wait(patience)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"the program has not ended; windows: {self.titles()}") from None

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
        return self.log.read_text(errors="replace")

    # Windows.

    def windows(self):
        """All managed windows, oldest first."""
        listing = self._run("wmctrl", "-l", "-p", check=False)
        found = (re.match(r"(0x\w+) +-?\d+ +(\d+) +\S+ (.*)", line) for line in listing.split("\n"))
        return [Window(match[1], int(match[2]), match[3]) for match in found if match]

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
        """Waits until a window of this title is there and visible."""
        def visible():
            found = self.window(title)
            return found if found and "IsViewable" in self._run("xwininfo", "-id", found.id, check=False) else None
        return self.wait_until(visible, f"a window {title!r}", patience)

    def wait_no_window(self, title, patience=PATIENCE):
        self.wait_until(lambda: not self.window(title), f"the end of window {title!r}", patience, needs_program=False)

    def activate(self, window):
        """Brings the window to the front and waits until it has the keyboard."""
        self._run("wmctrl", "-i", "-a", window.id)
        self.wait_until(lambda: self.active() == int(window.id, 16), f"window {window.title!r} to be active")

    def active(self):
        """The number of the active window, or None."""
        found = re.search(r"# (0x[0-9a-f]+)", self._run("xprop", "-root", "_NET_ACTIVE_WINDOW", check=False))
        return int(found[1], 16) if found else None

    def close(self, window):
        """What the close box does; the program may ask and refuse."""
        self._run("wmctrl", "-i", "-c", window.id)

    def place(self, window):
        """Left, top, width and height with the frame."""
        info = self._run("xwininfo", "-id", window.id)
        left, top, width, height = (int(re.search(name + r":\s+(-?\d+)", info)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = re.findall(r"\d+", self._run("xprop", "-id", window.id, "_NET_FRAME_EXTENTS").partition("=")[2])
        west, east, north, south = (int(one) for one in extents or "0000")
        return left - west, top - north, width + west + east, height + north + south

    def wait_place(self, window, check, what):
        """Waits for a place with the frame, or for one that the check likes."""
        fits = check if callable(check) else lambda *now: now == check
        try:
            self.wait_until(lambda: fits(*self.place(window)), what, patience=5)
        except AssertionError as error:
            raise AssertionError(f"{error}; it is at {self.place(window)}") from None

    def maximise(self, window, do=True):
        self._run("wmctrl", "-i", "-r", window.id, "-b", f"{'add' if do else 'remove'},maximized_vert,maximized_horz")

    # Keys, mouse, clipboard.

    def key(self, *keys, window=None):
        """Presses keys in xdotool's names, as in "ctrl+k", "F1", "Return", in the given or in the active window."""
        if window:
            self.activate(window)
        self._run("xdotool", "key", "--clearmodifiers", *keys)

    def type(self, text, window=None):
        """Types ASCII text; a line feed is Return. For other letters use set_clipboard and the program's paste."""
        if not text.isascii():
            raise ValueError("only ASCII can be typed on this keyboard")
        if window:
            self.activate(window)
        # xdotool's own way with line feeds loses them now and then.
        for number, line in enumerate(text.split("\n")):
            if number:
                self._run("xdotool", "key", "--clearmodifiers", "Return")
            if line:
                self._run("xdotool", "type", "--clearmodifiers", "--delay", "4", "--", line)

    def click(self, window, x, y, button=1, times=1):
        """Clicks at a place counted from the window's inner top left corner."""
        self._run("xdotool", "mousemove", "--window", window.id, str(x), str(y), "click", "--repeat", str(times),
                  "--delay", "60", str(button))

    def clipboard(self, selection="clipboard"):
        """The text on the clipboard, or on the "primary" selection; empty when there is none."""
        return self._run("xclip", "-selection", selection, "-o", check=False)

    def set_clipboard(self, text, selection="clipboard"):
        # The server must not keep a pipe of ours open: it stays alive as the owner of the text.
        subprocess.run(["xclip", "-selection", selection, "-i"], input=text.encode(), env=self.env, check=True,
                       timeout=PATIENCE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    # Waiting and looking.

    def wait_until(self, check, what, patience=PATIENCE, needs_program=True):
        """Calls check() until it gives something true, and returns that."""
        deadline = time.monotonic() + patience
        while True:
            result = check()
            if result:
                return result
            if needs_program and not self.running():
                raise AssertionError(f"waited for {what}, but the program has ended")
            if time.monotonic() > deadline:
                raise AssertionError(f"waited for {what} in vain; windows: {self.titles()}")
            time.sleep(POLL)

    def shot(self, name):
        """Takes a picture of the screen; returns its path, or None without PELMAR_SHOTS."""
        folder = os.environ.get("PELMAR_SHOTS")
        if not folder:
            return None
        path = Path(folder) / f"{name}.png"
        path.parent.mkdir(parents=True, exist_ok=True)
        self._run("import", "-window", "root", str(path))
        return path

    def _report(self):
        status = self.program.poll()
        state = "still runs" if status is None else f"ended with status {status}"
        print(f"--- {self.program.args[0]} {state}; windows: {self.titles()}", file=sys.stderr)
        print(self.output() or "(it wrote nothing)", file=sys.stderr)
        try:
            picture = self.shot(f"failed-{Path(sys.argv[0]).stem}-{self.program.pid}")
        except (OSError, subprocess.SubprocessError) as error:
            picture = error
        if picture:
            print(f"--- picture: {picture}", file=sys.stderr)

    def _run(self, *command, check=True):
        done = subprocess.run(command, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=PATIENCE)
        if check and done.returncode:
            raise AssertionError(f"{' '.join(command)}: {done.stderr.decode(errors='replace').strip()}")
        return done.stdout.decode(errors="replace")
