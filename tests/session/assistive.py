"""The program as assistive technology meets it, over the accessibility bus: its tree of objects, what can be done to
them, and the events that it sends. The bus is one of the test's own and needs no screen.

A test that uses it ends in run_on_bus(), in the place of unittest.main().
"""

import os
import subprocess
import sys
import tempfile
import time
import unittest

from harness import PATIENCE, POLL

ON_BUS = "PELMAR_ON_BUS"
LONG = 1000 * int(PATIENCE)  # milliseconds
# What a program under test needs to be heard.
HEARD = {"DBUS_SESSION_BUS_ADDRESS": os.environ.get("DBUS_SESSION_BUS_ADDRESS", ""),
         "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
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


def wait_for(check, what, patience=PATIENCE):
    """Calls check() until it gives something true, and returns that. Events come in meanwhile."""
    deadline = time.monotonic() + patience
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if result := check():
                return result
        except GLib.GError:
            pass  # what was asked is gone meanwhile
        if time.monotonic() > deadline:
            raise AssertionError(f"waited for {what() if callable(what) else what} in vain")
        time.sleep(POLL)


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


class Program:
    """The program that runs on the bus."""

    def windows(self):
        """Those on show."""
        return [window for program in children(Atspi.get_desktop(0)) if program.get_name() == "pelmar-vex"
                for window in children(program) if has(window, "SHOWING")]

    def window(self, title):
        """Waits for a window whose title begins so, and gives it."""
        return wait_for(lambda: next((one for one in self.windows() if one.get_name().startswith(title)), None),
                        lambda: f"window {title!r} among {[face(one) for one in self.windows()]}")

    def gone(self, title):
        wait_for(lambda: not any(one.get_name().startswith(title) for one in self.windows()),
                 f"the end of window {title!r}")

    def find(self, window, role, name):
        """Waits for the object of this role and name in the window of this title."""
        def look():
            return next((node for node in walk(self.window(window)) if face(node) == (role, name)), None)
        return wait_for(look, f"{role} {name!r} in {window!r}")

    def press(self, window, role, name):
        """Does what the item or button is for, once it is enabled."""
        node = self.find(window, role, name)
        wait_for(lambda: has(node, "ENABLED"), f"{name!r} to be enabled")
        Atspi.set_timeout(300, 300)
        try:
            node.do_action(0)
        except GLib.GError:
            pass  # where it asks a question, the answer to this call comes only behind that
        Atspi.set_timeout(LONG, LONG)

    def menu(self, caption):
        self.press("Pelmar VEX", "menu item", caption)

    def push(self, window, button):
        self.press(window, "push button", button)


class Ears:
    """Hears the events of these types until the block ends."""

    def __init__(self, *types):
        self.types = types
        self.heard = []  # (type, name of the source, detail)

    def __enter__(self):
        self.listener = Atspi.EventListener.new(self._hear)
        for one in self.types:
            self.listener.register(one)
        return self

    def __exit__(self, *_):
        for one in self.types:
            self.listener.deregister(one)

    def _hear(self, event, *_):
        self.heard.append((event.type, event.source.get_name(), event.detail1))

    def wait(self, *expected):
        """Waits until these events were heard, in this order, whatever came between; forgets all until then."""
        def all_heard():
            rest = iter(self.heard)
            return all(one in rest for one in expected)
        wait_for(all_heard, lambda: f"{expected} in {self.heard}")
        self.heard.clear()
