"""What who can't see the screen gets of the program: names, roles, labels, texts, and events while the keyboard works."""

import sys
import unittest

sys.dont_write_bytecode = True
from assistive import (Atspi, Ears, Program, can_focus, children, face, labels_of, program_environment, run_on_bus, shows,  # noqa: E402
                       wait_for, walk)
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

NOTHING_TO_SAY = {"filler", "unknown", "panel", "invalid"}
# Dialogs by their menu items, each with what has to be in it.
DIALOGS = (
    ("Otevři", ("combo box", "Místo :"), ("combo box", "Maska :"), ("list", "Soubory")),
    ("Ulož jako ...", ("combo box", "Místo :"), ("text", "Jméno souboru"), ("combo box", "Přípona :")),
    ("Konverze dos - unix", ("combo box", "Místo :"), ("combo box", "Maska :")),
    ("Kalkulačka", ("push button", "Krát"), ("push button", "Děleno"), ("text", "Číslo")),
    ("Klávesnice", ("push button", "Vykřičník"), ("push button", "Mezerník")),
    ("Analýza", ("chart", "Graf četnosti znaků"), ("text", "Rychlá analýza :")),
    ("Hledání ...", ("text", "Hledaný text :")),
    ("Vlož buňku", ("scroll bar", "Počet spojených sloupců"), ("check box", "Spojit řádky (Rowspan)")),
    ("Frame", ("text", "Jméno rámu"), ("combo box", "Posuvníky rámu")),
    ("Vytvoř Html", ("push button", "Vyber: Barva navštíveného odkazu")),
    ("Obrázek", ("combo box", "Maska :")),
    ("Odkaz na jiný dokument", ("combo box", "Cílové okno")),
)


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        write_settings(self.session.data_folder)
        self.session.start(built("pelmar-vex"), "-NOMSG", **program_environment())
        self.main = self.session.wait_window("Pelmar VEX ()")
        self.program = Program()
        self.program.window("Pelmar VEX ()")

    def text(self):
        return self.program.find("Pelmar VEX", "text", "Text dokumentu")

    def expect_names(self, window):
        for node in walk(window):
            if shows(node) and can_focus(node) and node.get_role_name() != "list item":  # those are the person's own
                # The name of a box to choose from is what it holds.
                spoken = labels_of(node) if node.get_role_name() == "combo box" else [node.get_name()]
                self.assertTrue(any(ch.isalnum() for ch in "".join(spoken)), face(node))
                self.assertNotIn(node.get_role_name(), NOTHING_TO_SAY, face(node))

    def test_main_window(self):
        self.program.find("Pelmar VEX ()", "label", "Počet znaků : 0")  # the first tick fills the panels
        window = self.program.window("Pelmar VEX ()")
        self.assertEqual(window.get_role_name(), "frame")
        bars = {face(node): node for node in walk(window) if node.get_role_name() in ("menu bar", "tool bar", "status bar")}
        self.assertEqual(set(bars), {("menu bar", "Hlavní nabídka"), ("tool bar", "Panel nástrojů"),
                                     ("status bar", "Stavový řádek")})
        self.assertEqual([node.get_name() for node in children(bars["menu bar", "Hlavní nabídka"])
                          if node.get_role_name() == "menu item"][:4], ["Soubor", "Editace", "Hledání", "Text"])
        panels = [node.get_name() for node in children(bars["status bar", "Stavový řádek"])]
        self.assertEqual(panels[1], "Pozice kurzoru : 0")
        for panel, key in zip(panels[4:7], ("CAPS", "NUM", "INS"), strict=True):
            self.assertIn(panel, (f"{key} zapnuto", f"{key} vypnuto"))
        self.expect_names(window)
        before = panels[6]
        self.session.key("Insert", window=self.main)
        after = "INS vypnuto" if before.endswith("zapnuto") else "INS zapnuto"
        self.program.find("Pelmar VEX", "label", after)

    def test_dialogs(self):
        self.session.type("a", self.main)  # some commands need a text
        for item, *expected in DIALOGS:
            with self.subTest(item):
                before = {window.get_name() for window in self.program.windows() if shows(window)}
                self.program.menu(item)
                window = wait_for(lambda: next((one for one in self.program.windows()
                                                if shows(one) and one.get_name() not in before), None), f"{item!r}")
                self.assertEqual(window.get_role_name(), "dialog")
                self.expect_names(window)
                inside = {(node.get_role_name(), name) for node in walk(window)
                          for name in (node.get_name(), *labels_of(node))}
                for one in expected:
                    self.assertIn(one, inside)
                self.session.key("Escape")
                self.program.gone(window.get_name())
        self.program.menu("Poznámky")
        notes = self.program.window("Poznámky")
        self.assertEqual(notes.get_role_name(), "frame")
        self.expect_names(notes)

    def test_text(self):
        text = self.text()
        with Ears("object:text-changed", "object:text-caret-moved", "object:text-selection-changed") as ears:
            self.session.type("ab", self.main)
            source = "Text dokumentu"
            for place in (1, 2):
                ears_expected = ("object:text-changed:insert", source, place - 1), ("object:text-caret-moved", source, place)
                if place == 2:
                    ears.wait(*first, *ears_expected)
                first = ears_expected
            self.session.key("BackSpace", "Left", "shift+Right")
            ears.wait(("object:text-changed:delete", source, 1), ("object:text-caret-moved", source, 1),
                      ("object:text-caret-moved", source, 0), ("object:text-caret-moved", source, 1))
            self.assertEqual((text.get_selection(0).start_offset, text.get_selection(0).end_offset), (0, 1))
            # The other way round: what assistive technology does to the text.
            text.insert_text(1, " žluť\n", len(" žluť\n"))
            ears.wait(("object:text-changed:insert", source, 1))
        self.assertEqual(text.get_text(0, -1), "a žluť\r\n")
        text.set_caret_offset(3)
        wait_for(lambda: text.get_caret_offset() == 3, "the caret")
        self.assertEqual(text.get_text_at_offset(3, Atspi.TextBoundaryType.WORD_START).content, "žluť")

    def test_grid_and_graph(self):
        self.session.type("aab", self.main)
        with Ears("object:state-changed:focused") as ears:
            self.program.menu("Vložit ASCII Kód")
            self.session.wait_window("vložení ASCII kódu")
            grid = self.program.find("vložení ASCII", "table", "Tabulka znaků")
            self.session.key("Down", "Down", "Right")
            ears.wait(("object:state-changed:focused", "DLE, kód 16", 1), ("object:state-changed:focused", "DC1, kód 17", 1))
        self.assertEqual((grid.get_n_rows(), grid.get_n_columns()), (16, 16))
        cell = grid.get_accessible_at(4, 1)
        self.assertEqual(face(cell), ("table cell", "A, kód 65"))
        self.assertEqual(cell.get_current_value(), 65)
        self.program.menu("Analýza")
        graph = self.program.find("Analýza textu", "chart", "Graf četnosti znaků")
        with Ears("object:property-change:accessible-value", "object:property-change:accessible-description") as ears:
            graph.grab_focus()
            graph.set_current_value(96)
            self.session.key("Right", window=self.session.window("Analýza textu"))
            wait_for(lambda: graph.get_current_value() == 97, "the graph's value")
            ears.wait(("object:property-change:accessible-value", "Graf četnosti znaků", 0))
        self.assertEqual(graph.get_description(), 'Poloha: 97 Znak: "a", výška 100 %')


if __name__ == "__main__":
    run_on_bus()
