"""The program as assistive technology meets it, over the accessibility bus: its tree of objects, what can be done to
them, and the events that it sends. The bus is one of the test's own and needs no screen.

A test that uses it ends in run_on_bus(), in the place of unittest.main().
"""

import contextlib
import os
import subprocess
import sys
import tempfile
import unittest

from harness import PATIENCE, EditorCase

ON_BUS = "PELMAR_ON_BUS"
if ON_BUS in os.environ:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
else:
    Atspi = GLib = None


def run_on_bus():
    """Runs the tests on a message bus of their own, by the distribution's Python, which has the bindings."""
    if ON_BUS in os.environ:
        unittest.main()
    with tempfile.TemporaryDirectory(prefix="pelmar-bus-") as folder:
        env = {**os.environ, ON_BUS: "1", "XDG_RUNTIME_DIR": folder, "XDG_CACHE_HOME": folder}
        python = ["/usr/bin/python3", "-B", "-W", "ignore::DeprecationWarning"]
        sys.exit(subprocess.call(["dbus-run-session", "--", *python, *sys.argv], env=env))


def children(node):
    found = (node.get_child_at_index(number) for number in range(node.get_child_count()))
    return [child for child in found if child is not None]


def walk(node):
    """The node and all that lies below it."""
    yield node
    for child in children(node):
        yield from walk(child)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def face(node):
    return node.get_role_name(), node.get_name()


class BusCase(EditorCase):
    """The program is heard over the bus. A window is named by how its title begins."""

    environment = {"DBUS_SESSION_BUS_ADDRESS": os.environ.get("DBUS_SESSION_BUS_ADDRESS", ""),
                   "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def wait(self, check, what, needs_program=True):
        """Events come in meanwhile."""
        def look():
            while GLib.MainContext.default().iteration(False):
                pass
            with contextlib.suppress(GLib.GError):  # what was asked is gone meanwhile
                return check()
        return super().wait(look, what, needs_program)

    def on_show(self, title):
        programs = [one for one in children(Atspi.get_desktop(0)) if one.get_name() == "pelmar-vex"]
        return [window for one in programs for window in children(one)
                if has(window, "SHOWING") and window.get_name().startswith(title)]

    def find(self, title, role="frame", name=None):
        """Waits for the object of this role and name in the window, or for the window itself."""
        def look():
            return next((node for window in self.on_show(title) for node in walk(window)
                         if face(node) == (role, name) or name is None), None)
        return self.wait(look, lambda: f"{role} {name!r} in {title!r} among {[face(one) for one in self.on_show('')]}")

    def press(self, title, role, name):
        """Does what the item or button is for, once it is enabled."""
        node = self.find(title, role, name)
        self.wait(lambda: has(node, "ENABLED"), f"{name!r} to be enabled")
        Atspi.set_timeout(300, 300)
        with contextlib.suppress(GLib.GError):
            node.do_action(0)  # where it asks a question, the answer to this call comes only behind that
        Atspi.set_timeout(1000 * int(PATIENCE), 1000 * int(PATIENCE))

    def menu(self, caption):
        self.press("Pelmar VEX", "menu item", caption)

    def push(self, title, button):
        self.press(title, "push button", button)

    @contextlib.contextmanager
    def hearing(self, *types):
        """Hears events of these types in the block, each as its type, the name of its source and its detail."""
        heard = []
        listener = Atspi.EventListener.new(
            lambda event, *_: heard.append((event.type, event.source.get_name(), event.detail1)))
        for one in types:
            listener.register(one)
        yield heard
        for one in types:
            listener.deregister(one)

    def wait_heard(self, heard, *expected):
        """Waits for these events in this order, whatever comes between; forgets all until then."""
        def all_heard():
            rest = iter(heard)
            return all(one in rest for one in expected)
        self.wait(all_heard, lambda: f"{expected} in {heard}")
        heard.clear()
