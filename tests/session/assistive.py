"""The program as assistive technology meets it, over the accessibility bus: its tree of objects, what can be done to
them, and the events that it sends. The bus is one of the test's own: who imports this is started again on it, by the
distribution's Python, which has the bindings."""

import atexit
import contextlib
import os
import shutil
import sys
import tempfile

from harness import PATIENCE, EditorCase

ON_BUS = "PELMAR_ON_BUS"
if ON_BUS not in os.environ:
    folder = tempfile.mkdtemp(prefix="pelmar-bus-")
    os.environ |= {ON_BUS: folder, "XDG_RUNTIME_DIR": folder, "XDG_CACHE_HOME": folder}
    os.execvp("dbus-run-session", ["dbus-run-session", "--", "/usr/bin/python3", "-B", "-W", "ignore", *sys.argv])
atexit.register(shutil.rmtree, os.environ[ON_BUS], ignore_errors=True)

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


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def face(node):
    return node.get_role_name(), node.get_name()


class BusCase(EditorCase):
    """The program is heard over the bus. A window is named by how its title begins."""

    environment = {"DBUS_SESSION_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"],
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

    def press(self, name, title="Pelmar VEX", role="menu item"):
        """Does what the item or button is for, once it is enabled."""
        node = self.find(title, role, name)
        self.wait(lambda: has(node, "ENABLED"), f"{name!r} to be enabled")
        Atspi.set_timeout(300, 300)
        with contextlib.suppress(GLib.GError):
            node.do_action(0)  # where it asks a question, the answer to this call comes only behind that
        Atspi.set_timeout(1000 * int(PATIENCE), 1000 * int(PATIENCE))

    @contextlib.contextmanager
    def hearing(self, *expected):
        """Waits behind the block for these events in this order, whatever comes between: each its type, the name of
        its source and its detail."""
        heard, kinds = [], {event[0] for event in expected}
        listener = Atspi.EventListener.new(
            lambda event, *_: heard.append((event.type, event.source.get_name(), event.detail1)))
        for kind in kinds:
            listener.register(kind)
        yield
        def all_heard():
            rest = iter(heard)
            return all(one in rest for one in expected)
        self.wait(all_heard, lambda: f"{expected} in {heard}")
        for kind in kinds:
            listener.deregister(kind)
