"""What who can't see the screen gets of the program over the bus: roles, names, texts, and events while the keyboard
works. And the program on a Wayland compositor, with no X server at all: that draws nowhere and has neither mouse nor
keyboard, so the bus does what a person would."""

import time
import unittest

from assistive import Atspi, BusCase, face, has
from screen import Screen

TEXT = "Text dokumentu"


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

        self.press("Vložit ASCII Kód")
        self.work("[vložení ASCII kódu]")
        with self.hearing(("object:state-changed:focused", "DLE, kód 16", 1),
                          ("object:state-changed:focused", "DC1, kód 17", 1)):
            self.work("Down Down Right")
        cell = self.find("vložení ASCII", "table", "Tabulka znaků").get_accessible_at(4, 1)
        self.assertEqual((face(cell), cell.get_current_value()), (("table cell", "A, kód 65"), 65))
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

    def places_asked_for(self):
        return self.log.read_text(errors="replace").count("set_window_geometry")

    def test_a_day_without_x(self):
        self.wait((self.home / "runtime" / "pelmar-test").exists, "the compositor", needs_program=False)
        self.start(title=None, WAYLAND_DEBUG="1")
        self.find("Pelmar VEX ()", "text", TEXT).insert_text(0, "žlutý", len("žlutý"))
        self.find("Pelmar VEX ()*")
        self.press("Soubor")
        self.wait(lambda: has(self.find("Pelmar VEX", "menu item", "Otevři"), "SHOWING"), "the open menu")
        self.press("Soubor")

        # A place that can't be had is asked for some seconds, not for ever.
        def rests():
            before = self.places_asked_for()
            time.sleep(1.5)
            return self.places_asked_for() == before
        self.wait(rests, "an end of asking for a place")
        self.press("Konec")
        self.press("Ano", "Konec", "push button")
        self.wait_exit()
        self.assertEqual(self.autosaved(), "žlutý".encode("cp1250"))


if __name__ == "__main__":
    unittest.main()
