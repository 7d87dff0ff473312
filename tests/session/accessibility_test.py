"""What who can't see the screen gets of the program over the bus: roles, names, texts, and events while the keyboard
works. And the program on a Wayland compositor, with no X server at all: that draws nowhere and has neither mouse nor
keyboard, so the bus does what a person would."""

import time

from assistive import Atspi, BusCase, face, has, run_on_bus, walk
from screen import Screen

TEXT = "Text dokumentu"


class AccessibilityTest(BusCase):
    def test_main_window_and_its_text(self):
        def events(*steps):
            kinds = {"+": "object:text-changed:insert", "-": "object:text-changed:delete",
                     ">": "object:text-caret-moved"}
            return [(kinds[step[0]], TEXT, int(step[1:])) for step in steps]
        self.start()
        self.find("Pelmar VEX ()", "label", "Počet znaků : 0")  # the first tick fills the panels
        self.find("Pelmar VEX ()", "status bar", "Stavový řádek")
        self.find("Pelmar VEX ()", "tool bar", "Panel nástrojů")
        menu = self.find("Pelmar VEX ()", "menu bar", "Hlavní nabídka")
        self.assertEqual([node.get_name() for node in walk(menu) if face(node)[0] == "menu item"][0], "Soubor")
        text = self.find("Pelmar VEX", "text", TEXT)
        with self.hearing("object:text-changed", "object:text-caret-moved") as heard:
            self.work('"ab"')
            self.wait_heard(heard, *events("+0", ">1", "+1", ">2"))
            self.work("BackSpace Left shift+Right")
            self.wait_heard(heard, *events("-1", ">1", ">0", ">1"))
            self.assertEqual((text.get_selection(0).start_offset, text.get_selection(0).end_offset), (0, 1))
            # The other way round: what assistive technology does to the text.
            text.insert_text(1, " žluť\n", len(" žluť\n"))
            self.wait_heard(heard, *events("+1"))
        self.assertEqual(text.get_text(0, -1), "a žluť\r\n")
        text.set_caret_offset(3)
        self.wait(lambda: text.get_caret_offset() == 3, "the caret")
        self.assertEqual(text.get_text_at_offset(3, Atspi.TextBoundaryType.WORD_START).content, "žluť")

    def test_grid_and_graph(self):
        self.start()
        self.work('"aab"')
        with self.hearing("object:state-changed:focused") as heard:
            self.menu("Vložit ASCII Kód")
            self.work("[vložení ASCII kódu]")
            grid = self.find("vložení ASCII", "table", "Tabulka znaků")
            self.work("Down Down Right")
            self.wait_heard(heard, *(("object:state-changed:focused", cell, 1)
                                     for cell in ("DLE, kód 16", "DC1, kód 17")))
        self.assertEqual((grid.get_n_rows(), grid.get_n_columns()), (16, 16))
        cell = grid.get_accessible_at(4, 1)
        self.assertEqual((face(cell), cell.get_current_value()), (("table cell", "A, kód 65"), 65))
        self.menu("Analýza")
        self.work("[Analýza textu]")
        graph = self.find("Analýza textu", "chart", "Graf četnosti znaků")
        with self.hearing("object:property-change:accessible-value") as heard:
            graph.grab_focus()
            graph.set_current_value(96)
            self.work("Right")
            self.wait(lambda: graph.get_current_value() == 97, "the graph's value")
            self.wait_heard(heard, ("object:property-change:accessible-value", "Graf četnosti znaků", 0))
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
        page = self.write("page.html", "text")
        title = f"Pelmar VEX ({page})"
        self.start(page, title=None, WAYLAND_DEBUG="1")
        self.find(title, "text", TEXT).insert_text(0, "žlutý ", len("žlutý "))
        self.find(title + "*")
        self.menu("Soubor")
        self.wait(lambda: has(self.find(title, "menu item", "Otevři"), "SHOWING"), "the open menu")
        self.menu("Soubor")
        self.menu("Poznámky")
        self.find("Poznámky", "text", "Text poznámky").insert_text(0, "poznámka", len("poznámka"))
        self.push("Poznámky", "Zavřít okno")
        self.wait(lambda: not self.on_show("Poznámky"), "the end of the notes")
        self.assertIn("poznámka".encode("cp1250"), (self.folder / "notes.dat").read_bytes())
        self.menu("Ulož rychle")
        for question in ("Opravdu uložit soubor?", "bude přepsán!"):
            self.wait(lambda: any(question in one.get_name() for one in walk(self.find("Soubor"))), question)
            self.push("Soubor", "Ano")
        self.wait(lambda: page.read_bytes() == "žlutý text".encode("cp1250"), "the saved page")

        # A place that can't be had is asked for some seconds, not for ever.
        def rests():
            before = self.log.read_text(errors="replace").count("set_window_geometry")
            time.sleep(1.5)
            return self.log.read_text(errors="replace").count("set_window_geometry") == before
        self.wait(rests, "an end of asking for a place")
        self.menu("Konec")
        self.wait_exit()


if __name__ == "__main__":
    run_on_bus()
