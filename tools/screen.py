"""A separate screen and home for a program under test: an X server on a free display, a window manager, and temporary
folders. The program can't reach the desktop, settings, message bus or printers of the person who runs the test."""

import os
import select
import shutil
import struct
import subprocess
import tempfile
from pathlib import Path

SIZE = (1280, 1024)
# Variables that would connect a program to the person's session, or change its look or language.
OUTSIDE = ("WAYLAND_DISPLAY", "XAUTHORITY", "SESSION_MANAGER", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM",
           "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR", "LC_ALL", "LANGUAGE")


class Screen:
    """Use as a context manager. `env` is the environment for programs, `home` the temporary home, `data_folder` the
    folder of the program's settings, notes and rescue files."""

    def __enter__(self):
        self.children = []
        self.home = Path(tempfile.mkdtemp(prefix="pelmar-test-"))
        self.env = {name: value for name, value in os.environ.items() if name not in OUTSIDE}
        self.env.update(HOME=str(self.home), LANG="C.UTF-8", CUPS_SERVER=str(self.home / "no-print-server"))
        for name, folder in (("XDG_DATA_HOME", "data"), ("XDG_CONFIG_HOME", "config"), ("XDG_CACHE_HOME", "cache"),
                             ("XDG_STATE_HOME", "state"), ("XDG_RUNTIME_DIR", "runtime"), ("TMPDIR", "tmp")):
            (self.home / folder).mkdir(mode=0o700)
            self.env[name] = str(self.home / folder)
        self.data_folder = self.home / "data" / "pelmar-vex"
        try:
            self.begin()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            child.terminate()
            try:
                child.wait(5)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
            child.stdout.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def begin(self):
        screen = "%dx%dx24" % SIZE
        number = self.serve("Xvfb", "-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp", "-noreset")
        self.env["DISPLAY"] = ":" + number
        # The first key press on an X server would make a running openbox grab its shortcuts anew. A shortcut pressed
        # meanwhile would be lost. So the first key is pressed before openbox starts.
        subprocess.run(["xdotool", "key", "shift"], env=self.env, check=True)
        self.serve("openbox", "--startup", "echo running")

    def serve(self, *command):
        """Starts a server that runs as long as the screen, and returns the server's first line of output."""
        child = subprocess.Popen(command, env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.children.append(child)
        if not select.select([child.stdout], [], [], 10)[0] or not (line := child.stdout.readline().strip()):
            raise RuntimeError(f"{command[0]} did not start")
        return line


def _text(value):
    return struct.pack("<H", len(value)) + value.encode("cp1250")


def write_settings(data_folder, *, width=12000, height=9000, top=300, left=300, user_name="Jan", show_start=False,
                   window_state=0):
    """Writes pelmar.ini. Lengths are in twips. With the defaults the program starts without a question."""
    data_folder.mkdir(parents=True, exist_ok=True)
    (data_folder / "pelmar.ini").write_bytes(b"".join((
        struct.pack("<iiiih", width, height, top, left, 0), _text("DejaVu Sans Mono"),
        struct.pack("<iiBhh", 0, 0xFFFFFF, 10, 0, 0), _text(user_name), _text("jan@example.cz"),
        struct.pack("<hi", -show_start, 240), 11 * _text(""),  # no password, no recent files
        struct.pack("<ih", window_state, 0))))
