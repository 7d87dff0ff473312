"""The program on a Wayland compositor without an X server, read over the accessibility bus as a screen reader does.

The test restarts itself on a separate bus with the distribution's Python, which has the bindings."""

import contextlib
import os
import subprocess
import sys
import tempfile
import unittest

from harness import PROGRAM, EditorCase
from screen import Screen

ON_BUS = "PELMAR_ON_BUS"
if ON_BUS not in os.environ:
    with tempfile.TemporaryDirectory(prefix="pelmar-bus-", ignore_cleanup_errors=True) as folder:
        os.environ |= {ON_BUS: "1", "XDG_RUNTIME_DIR": folder, "XDG_CACHE_HOME": folder}
        sys.exit(subprocess.call(["dbus-run-session", "--", "/usr/bin/python3", "-B", "-W", "ignore", *sys.argv]))

import gi  # noqa: E402
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def children(node):
    found = (node.get_child_at_index(number) for number in range(node.get_child_count()))
    return [child for child in found if child is not None]


def walk(node):
    """The node and all its descendants."""
    yield node
    for child in children(node):
        yield from walk(child)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


class Compositor(Screen):
    """A Wayland compositor in a window of an X screen. It uses the keyboard of this screen."""

    def begin(self):
        super().begin()
        self.serve("weston", "--backend=x11-backend.so", "--use-pixman", "--socket=pelmar-test", "--no-config",
                   "--idle-time=0", "--log=/dev/stdout")


class WaylandTest(EditorCase):
    screen = Compositor
    environment = {"WAYLAND_DISPLAY": "pelmar-test", "DISPLAY": ":9999",  # no X server is there
                   "DBUS_SESSION_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"],
                   "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def setUp(self):
        super().setUp()
        self.wait((self.home / "runtime" / "pelmar-test").exists, "the compositor", needs_program=False)
        self.start(title=None)

    def wait(self, check, what, needs_program=True):
        def look():
            while GLib.MainContext.default().iteration(False):  # takes the messages of the bus
                pass
            with contextlib.suppress(GLib.GError):  # an object may be gone meanwhile
                return check()
        return super().wait(look, what, needs_program)

    def text_boxes(self):
        """The documents' text boxes in the windows of all copies of the program."""
        programs = [one for one in children(Atspi.get_desktop(0)) if one.get_name() == "pelmar-vex"]
        windows = [window for one in programs for window in children(one) if has(window, "SHOWING")]
        return [node for window in windows for node in walk(window)
                if (node.get_role_name(), node.get_name()) == ("text", "Text dokumentu")]

    def wait_texts(self, *texts):
        def seen():
            return [Atspi.Text.get_text(node, 0, -1) for node in self.text_boxes()]
        self.wait(lambda: seen() == list(texts), lambda: f"the texts {texts}, not {seen()}")

    def test_a_new_copy_begins_with_the_clipboard(self):
        self.wait(lambda: any(has(box, "FOCUSED") for box in self.text_boxes()), "the keyboard")
        self.work('"copied" F4 ctrl+k')
        self.wait_texts("copied")
        second = subprocess.Popen([PROGRAM, "-NOMSG"], env={**self.env, **self.environment})
        self.addCleanup(second.wait)
        self.addCleanup(second.kill)
        self.wait_texts("copied", "copied")


if __name__ == "__main__":
    unittest.main()
