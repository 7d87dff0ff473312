"""The program on a Wayland compositor without an X server, worked over the accessibility bus as a screen reader does.

The test starts itself again on a bus of its own, by the distribution's Python, which has the bindings."""

import contextlib
import os
import subprocess
import sys
import tempfile
import unittest

from harness import PATIENCE, PROGRAM, EditorCase
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
    """The node and all that lies below it."""
    yield node
    for child in children(node):
        yield from walk(child)


def role_of(node):
    name = node.get_role_name()
    return "push button" if name == "button" else name  # newer versions of the bus say "button"


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


class Compositor(Screen):
    """A Wayland compositor in a window of an X screen, from which it has its keyboard."""

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
        self.text = self.find("Pelmar VEX ()", "text", "Text dokumentu")

    def wait(self, check, what, needs_program=True):
        def look():
            while GLib.MainContext.default().iteration(False):  # lets the bus bring its news
                pass
            with contextlib.suppress(GLib.GError):  # an object may be gone meanwhile
                return check()
        return super().wait(look, what, needs_program)

    def all_objects(self, title, role, name):
        """The objects of this role and name in the windows whose titles begin so."""
        programs = [one for one in children(Atspi.get_desktop(0)) if one.get_name() == "pelmar-vex"]
        windows = [window for one in programs for window in children(one)
                   if has(window, "SHOWING") and window.get_name().startswith(title)]
        return [node for window in windows for node in walk(window)
                if (role_of(node), node.get_name()) == (role, name)]

    def find(self, title, role, name):
        return self.wait(lambda: self.all_objects(title, role, name), f"{role} {name!r} in {title!r}")[0]

    def press(self, title, role, name):
        """Presses the item or button once it is enabled."""
        node = self.find(title, role, name)
        self.wait(lambda: has(node, "ENABLED"), f"{name!r} to be enabled")
        Atspi.set_timeout(300, 300)
        with contextlib.suppress(GLib.GError):
            node.do_action(0)  # the call is answered only after a question that the item asks
        Atspi.set_timeout(1000 * int(PATIENCE), 1000 * int(PATIENCE))

    def test_menus_questions_and_the_end_work(self):
        self.text.insert_text(0, "žlutý", len("žlutý"))
        self.press("Pelmar VEX ()*", "menu item", "Soubor")
        self.wait(lambda: has(self.find("Pelmar VEX", "menu item", "Otevři"), "SHOWING"), "the open menu")
        self.press("Pelmar VEX", "menu item", "Soubor")
        self.press("Pelmar VEX", "menu item", "Konec")
        self.press("Konec", "push button", "Ano")
        self.wait_exit()
        self.assertEqual(self.autosaved(), "žlutý".encode("cp1250"))

    def test_a_new_copy_begins_with_the_clipboard(self):
        self.wait(lambda: has(self.text, "FOCUSED"), "the keyboard")
        self.work('"copied" F4 ctrl+k')
        self.wait(lambda: text_of(self.text) == "copied", "the text")
        second = subprocess.Popen([PROGRAM, "-NOMSG"], env={**self.env, **self.environment})
        self.addCleanup(second.wait)
        self.addCleanup(second.kill)
        def texts():
            return [text_of(node) for node in self.all_objects("Pelmar VEX", "text", "Text dokumentu")]
        self.wait(lambda: texts() == 2 * ["copied"], lambda: f"the clipboard's text in the second copy, not {texts()}")


if __name__ == "__main__":
    unittest.main()
