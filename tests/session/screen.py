"""A screen and a home of its own for a program under test: an X server on a free display, a window manager, and folders
that go away afterwards. Nothing of the person's own desktop, settings, message bus or printers is reached from it."""

import os
import select
import shutil
import subprocess
import tempfile
from pathlib import Path

SIZE = (1280, 1024)
# What would let a program out of the screen made here.
OUTSIDE = ("WAYLAND_DISPLAY", "XAUTHORITY", "SESSION_MANAGER", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM",
           "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR", "LC_ALL", "LANGUAGE")


class Screen:
    """Use as a context manager. `env` is the environment for programs, `home` the temporary home."""

    def __init__(self):
        self.children = []

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="pelmar-test-"))
        try:
            self.env = self._environment()
            self._start_server()
            self._start_window_manager()
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
        shutil.rmtree(self.home, ignore_errors=True)

    @property
    def data_folder(self):
        """Where the program keeps its settings, notes and recovery files."""
        return Path(self.env["XDG_DATA_HOME"]) / "pelmar-vex"

    def _environment(self):
        env = {name: value for name, value in os.environ.items() if name not in OUTSIDE}
        env.update(HOME=str(self.home), LANG="C.UTF-8", CUPS_SERVER=str(self.home / "no-print-server"))
        for name, folder in (("XDG_DATA_HOME", "data"), ("XDG_CONFIG_HOME", "config"), ("XDG_CACHE_HOME", "cache"),
                             ("XDG_STATE_HOME", "state"), ("XDG_RUNTIME_DIR", "runtime"), ("TMPDIR", "tmp")):
            path = self.home / folder
            path.mkdir(mode=0o700)
            env[name] = str(path)
        return env

    def _start_server(self):
        read_end, write_end = os.pipe()
        self.children.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "%dx%dx24" % SIZE, "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.env["DISPLAY"] = ":" + number

    def _start_window_manager(self):
        running = self.home / "running"
        os.mkfifo(running)
        self.children.append(subprocess.Popen(
            ["openbox", "--startup", f"sh -c 'echo > {running}'"], env=self.env, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL))
        # Opened for both ways, so that a window manager that never comes up ends in the time limit, not in a hang.
        with open(os.open(running, os.O_RDWR | os.O_NONBLOCK), "rb", buffering=0) as pipe:
            if not select.select([pipe], [], [], 10)[0]:
                raise RuntimeError("openbox did not start")
