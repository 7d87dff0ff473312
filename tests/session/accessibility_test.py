"""What who can't see the screen gets of the program over the bus: roles, names, texts, and events while the keyboard
works. That each window's controls have names is seen to without a bus."""

from assistive import HEARD, Atspi, Ears, Program, children, face, run_on_bus, wait_for, walk
from harness import EditorCase

TEXT = "Text dokumentu"


class AccessibilityTest(EditorCase):
    environment = HEARD

    def setUp(self):
        super().setUp()
        self.start()
        self.program = Program()
        self.window = self.program.window("Pelmar VEX ()")

    def test_main_window(self):
        self.program.find("Pelmar VEX ()", "label", "Počet znaků : 0")  # the first tick fills the panels
        self.assertEqual(self.window.get_role_name(), "frame")
        bars = {face(node): children(node) for node in walk(self.window) if node.get_role_name().endswith(" bar")}
        for bar in (("menu bar", "Hlavní nabídka"), ("tool bar", "Panel nástrojů"), ("status bar", "Stavový řádek")):
            self.assertIn(bar, bars)
        self.assertEqual([node.get_name() for node in bars["menu bar", "Hlavní nabídka"]
                          if node.get_role_name() == "menu item"][:4], ["Soubor", "Editace", "Hledání", "Text"])
        panels = [node.get_name() for node in bars["status bar", "Stavový řádek"]]
        self.assertEqual(panels[1], "Pozice kurzoru : 0")
        self.session.key("Insert")
        after = "INS vypnuto" if panels[6] == "INS zapnuto" else "INS zapnuto"
        self.program.find("Pelmar VEX", "label", after)

    def test_text(self):
        def changed(how, at):
            return f"object:text-changed:{how}", TEXT, at

        def moved(to):
            return "object:text-caret-moved", TEXT, to
        text = self.program.find("Pelmar VEX", "text", TEXT)
        with Ears("object:text-changed", "object:text-caret-moved") as ears:
            self.session.type("ab")
            ears.wait(changed("insert", 0), moved(1), changed("insert", 1), moved(2))
            self.session.key("BackSpace", "Left", "shift+Right")
            ears.wait(changed("delete", 1), moved(1), moved(0), moved(1))
            self.assertEqual((text.get_selection(0).start_offset, text.get_selection(0).end_offset), (0, 1))
            # The other way round: what assistive technology does to the text.
            text.insert_text(1, " žluť\n", len(" žluť\n"))
            ears.wait(changed("insert", 1))
        self.assertEqual(text.get_text(0, -1), "a žluť\r\n")
        text.set_caret_offset(3)
        wait_for(lambda: text.get_caret_offset() == 3, "the caret")
        self.assertEqual(text.get_text_at_offset(3, Atspi.TextBoundaryType.WORD_START).content, "žluť")

    def test_grid_and_graph(self):
        self.session.type("aab")
        with Ears("object:state-changed:focused") as ears:
            self.program.menu("Vložit ASCII Kód")
            self.session.wait_window("vložení ASCII kódu")
            grid = self.program.find("vložení ASCII", "table", "Tabulka znaků")
            self.session.key("Down", "Down", "Right")
            ears.wait(*(("object:state-changed:focused", cell, 1) for cell in ("DLE, kód 16", "DC1, kód 17")))
        self.assertEqual((grid.get_n_rows(), grid.get_n_columns()), (16, 16))
        cell = grid.get_accessible_at(4, 1)
        self.assertEqual((face(cell), cell.get_current_value()), (("table cell", "A, kód 65"), 65))
        self.program.menu("Analýza")
        self.session.wait_window("Analýza textu")
        graph = self.program.find("Analýza textu", "chart", "Graf četnosti znaků")
        with Ears("object:property-change:accessible-value") as ears:
            graph.grab_focus()
            graph.set_current_value(96)
            self.session.key("Right")
            wait_for(lambda: graph.get_current_value() == 97, "the graph's value")
            ears.wait(("object:property-change:accessible-value", "Graf četnosti znaků", 0))
        self.assertEqual(graph.get_description(), 'Poloha: 97 Znak: "a", výška 100 %')


if __name__ == "__main__":
    run_on_bus()
