"""What who can't see the screen gets of the program over the accessibility bus: roles, names, texts, and events while
the keyboard works. And the program on a Wayland compositor, with no X server at all: that draws nowhere and has neither
mouse nor keyboard, so the bus does what a person would.

The bus is one of the test's own: it starts itself again on it, by the distribution's Python, which has the bindings."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time
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

TEXT = "Text dokumentu"


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


def events(*steps):
    """Of the text: "+" what comes, "-" what goes, ">" where the caret goes to."""
    kinds = {"+": "object:text-changed:insert", "-": "object:text-changed:delete", ">": "object:text-caret-moved"}
    return [(kinds[step[0]], TEXT, int(step[1:])) for step in steps]


class AccessibilityTest(BusCase):
    def test_what_is_on_show_is_heard(self):
        self.start()
        for role, name in (("label", "Počet znaků : 0"), ("status bar", "Stavový řádek"),
                           ("tool bar", "Panel nástrojů"), ("menu bar", "Hlavní nabídka"), ("menu item", "Soubor")):
            self.find("Pelmar VEX ()", role, name)
        text = self.find("Pelmar VEX", "text", TEXT)
        with self.hearing(*events("+0", ">1", "+1", ">2")):
            self.work('"ab"')
        with self.hearing(*events("-1", ">1", ">0", ">1")):
            self.work("BackSpace Left shift+Right")
        self.assertEqual((text.get_selection(0).start_offset, text.get_selection(0).end_offset), (0, 1))
        # The other way round: what assistive technology does to the text.
        with self.hearing(*events("+1")):
            text.insert_text(1, " žluť\n", len(" žluť\n"))
        self.assertEqual(text.get_text(0, -1), "a žluť\r\n")
        text.set_caret_offset(3)
        self.wait(lambda: text.get_caret_offset() == 3, "the caret")
        self.assertEqual(text.get_text_at_offset(3, Atspi.TextBoundaryType.WORD_START).content, "žluť")

        def said(what):
            return "object:state-changed:showing", what, 1
        with self.hearing(said("Dokument 2, nový soubor")):
            self.work("ctrl+Next")
        with self.hearing(said("Dokument 1, nový soubor, neuloženo")):
            self.work("ctrl+Prior")
        self.press("Poznámky")
        with self.hearing(said("Poznámka 2")):
            notes = self.work("[Poznámky] ctrl+Next")
        self.work("alt+F4")
        self.wait_gone(notes)
        self.press("Kalkulačka")
        with self.hearing(("object:property-change:accessible-name", "První číslo: 5", 0)):
            self.work("[Pelmar VEX - Kalkulátor] 5 plus")
        self.find("Pelmar VEX - Kalkulátor", "label", "Čekající operace: +")

        self.press("Vložit ASCII Kód")
        self.work("[vložení ASCII kódu]")
        with self.hearing(("object:state-changed:focused", "DLE, kód 16", 1),
                          ("object:state-changed:focused", "DC1, kód 17", 1)):
            self.work("Down Down Right")
        # A list, of which one cell is read at each step: of a table it would be a row.
        cell = self.find("vložení ASCII", "list", "Tabulka znaků").get_child_at_index(65)
        self.assertEqual((face(cell), cell.get_current_value()), (("list item", "A, kód 65"), 65))
        self.press("Analýza")
        self.work("[Analýza textu]")
        graph = self.find("Analýza textu", "chart", "Graf četnosti znaků")
        with self.hearing(("object:property-change:accessible-value", "Graf četnosti znaků", 0)):
            graph.grab_focus()
            graph.set_current_value(96)
            self.work("Right")
        self.wait(lambda: graph.get_current_value() == 97, "the graph's value")
        self.assertEqual(graph.get_description(), 'Poloha: 97 Znak: "a", výška 100 %')


class Compositor(Screen):
    def begin(self):
        self.env.pop("DISPLAY", None)
        self.env["WAYLAND_DISPLAY"] = "pelmar-test"
        self.serve("weston", "--backend=headless-backend.so", "--socket=pelmar-test", "--no-config", "--idle-time=0",
                   "--log=/dev/stdout")


class WaylandTest(BusCase):
    screen = Compositor
    settings = {"left": 100, "top": 100}  # near enough to the edge to be snapped

    def test_a_day_without_x(self):
        self.wait((self.home / "runtime" / "pelmar-test").exists, "the compositor", needs_program=False)
        self.start(title=None, WAYLAND_DEBUG="1", DISPLAY=":9999")  # which leads nowhere
        self.find("Pelmar VEX ()", "text", TEXT).insert_text(0, "žlutý", len("žlutý"))
        self.find("Pelmar VEX ()*")
        self.press("Soubor")
        self.wait(lambda: has(self.find("Pelmar VEX", "menu item", "Otevři"), "SHOWING"), "the open menu")
        self.press("Soubor")

        # A place that can't be had is asked for some seconds, not for ever.
        def asked():
            return self.log.read_text(errors="replace").count("set_window_geometry")
        def rests():
            before = asked()
            time.sleep(1.5)
            return asked() == before
        self.wait(rests, "an end of asking for a place")
        self.press("Konec")
        self.press("Ano", "Konec", "push button")
        self.wait_exit()
        self.assertEqual(self.autosaved(), "žlutý".encode("cp1250"))


class CompositorInAWindow(Screen):
    """A compositor that has a keyboard: that of an X screen, which the programs on it don't see."""

    def begin(self):
        super().begin()
        self.serve("weston", "--backend=x11-backend.so", "--use-pixman", "--socket=pelmar-test", "--no-config",
                   "--idle-time=0", "--log=/dev/stdout")


class WaylandClipboardTest(BusCase):
    screen = CompositorInAWindow
    environment = BusCase.environment | {"WAYLAND_DISPLAY": "pelmar-test", "QT_QPA_PLATFORM": "wayland"}

    def test_a_new_copy_begins_with_the_clipboard(self):
        self.wait((self.home / "runtime" / "pelmar-test").exists, "the compositor", needs_program=False)
        self.start(title=None)
        owner = self.find("Pelmar VEX ()", "text", TEXT)
        self.wait(lambda: has(owner, "FOCUSED"), "the keyboard")
        self.work('"copied" F4 ctrl+k')
        self.wait(lambda: owner.get_text(0, -1) == "copied", "the text")
        second = subprocess.Popen([PROGRAM, "-NOMSG"], env={**self.env, **self.environment})
        self.addCleanup(second.wait)
        self.addCleanup(second.kill)
        def texts():
            return [node.get_text(0, -1) for window in self.on_show("Pelmar VEX ()") for node in walk(window)
                    if face(node) == ("text", TEXT) and window.get_name() == "Pelmar VEX ()"]
        self.wait(lambda: texts() == ["copied"], lambda: f"the clipboard's text in the second copy: {texts()}")


if __name__ == "__main__":
    unittest.main()
