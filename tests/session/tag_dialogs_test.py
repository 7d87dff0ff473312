"""A tag taken apart and written back, a custom tag, a line and a list, with the keyboard alone, in the real program."""

import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")


class TagDialogsTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)
        self.document = self.session.home / "page.html"
        self.document.write_bytes(b'<IMG ALT="a b" SRC=c>x')

    def in_dialog(self, title, *keys):
        self.session.wait_window(title)
        self.session.key(*keys)

    def closed(self, title):
        self.session.wait_no_window(title)
        self.session.activate(self.main)

    def test_keys_alone(self):
        session = self.session
        session.start(PROGRAM, self.document.name)
        self.main = session.wait_window(f"Pelmar VEX ({self.document})")
        session.activate(self.main)

        # From the name to the list; the first row; back to its value, which the keys replace at once; Enter is Ok.
        session.key("ctrl+End", "ctrl+g")
        self.in_dialog("HTML - přidat atribut", *["Tab"] * 5, "space", *["shift+Tab"] * 3)
        session.type("z y")
        session.shot("tag")
        session.key("Return")
        self.closed("HTML - přidat atribut")
        expected = '<IMG ALT="z y" SRC="c">'

        session.key("ctrl+e")
        expected += "<TAG>Vlastní tag</TAG>"
        session.key("ctrl+h")
        self.in_dialog("Html horizontální čára", "Right", "Return")
        self.closed("Html horizontální čára")
        expected += '<HR ALIGN = "LEFT">'

        # Two lines of typing, picked with the keyboard, become a list; its last character is lost.
        session.key("ctrl+Home", "Return", "ctrl+Home")
        session.type("ab")
        session.key("shift+Home", "ctrl+s")
        expected = "<UL><LI>a</LI></UL>\r\n" + expected

        session.key("ctrl+u")
        self.in_dialog("Uložit", "Return")
        self.in_dialog("Soubor", "Return")
        self.closed("Soubor")
        self.assertEqual(self.document.read_bytes().decode("cp1250"), expected + "x")


if __name__ == "__main__":
    unittest.main()
