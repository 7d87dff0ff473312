"""The program on a Wayland compositor, without an X server."""

import os
import re
import subprocess
import unittest

from harness import PROGRAM, EditorCase
from screen import Screen


class Compositor(Screen):
    """A Wayland compositor in a window of an X screen. It uses the keyboard of this screen."""

    def begin(self):
        super().begin()
        os.makedirs(self.env["XDG_RUNTIME_DIR"], mode=0o700, exist_ok=True)
        self.serve("weston", "--backend=x11-backend.so", "--use-pixman", "--socket=pelmar-test", "--no-config",
                   "--idle-time=0", "--log=/dev/stdout")


class WaylandTest(EditorCase):
    screen = Compositor
    environment = {"WAYLAND_DISPLAY": "pelmar-test", "DISPLAY": ":9999"}  # no X server is there

    def wait_kept(self, letter, pattern):
        """Types the letter until a rescue file contains the pattern. The program writes the file after a change."""
        def kept():
            self.work(f'"{letter}"')
            return any(re.search(pattern, path.read_bytes()) for path in self.rescues())
        self.wait(kept, f"a rescue file with {pattern}")

    def test_a_new_copy_begins_with_the_clipboard(self):
        self.start(title=None)
        self.wait_kept("q", b"qq")
        self.work("F4 ctrl+k")  # selects and copies the text
        second = subprocess.Popen([PROGRAM, "-NOMSG"], env={**self.env, **self.environment})
        self.addCleanup(second.wait)
        self.addCleanup(second.kill)
        self.wait_kept("w", b"qw|wq")


if __name__ == "__main__":
    unittest.main()
