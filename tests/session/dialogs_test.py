"""Dialogs of the real program that ask other dialogs, by keys alone under a real window manager."""

import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")


class DialogsTest(unittest.TestCase):
    def test_a_dialog_goes_on_after_the_one_that_it_asked(self):
        with Session() as session:
            write_settings(session.data_folder)
            session.start(PROGRAM)
            session.activate(session.wait_window("Pelmar VEX ()"))
            session.key("alt+s", "v")
            page = session.wait_window("HTML  - Vytvoření")
            session.wait_until(lambda: session.active() == int(page.id, 16), "the page creator to be active")
            session.key("Tab", "space", "Tab", "space")  # a background colour, and its button
            session.wait_window("Výběr barvy")
            session.key("Return")
            session.wait_no_window("Výběr barvy")
            session.wait_until(lambda: session.active() == int(page.id, 16), "the page creator to be active again")
            session.key("alt+o")
            session.wait_no_window("HTML  - Vytvoření")
            session.wait_window("Pelmar VEX ()*")
            session.key("ctrl+Home", "ctrl+shift+End", "ctrl+Insert")
            session.wait_until(lambda: '<BODY BGCOLOR="#FFFFFF">' in session.clipboard(), "the page on the clipboard")


if __name__ == "__main__":
    unittest.main()
