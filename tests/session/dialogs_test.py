"""Dialogs of the real program that ask other dialogs, by keys alone under a real window manager."""

import re
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

    def test_the_layout_picker_places_the_whole_frame(self):
        with Session() as session:
            write_settings(session.data_folder)
            session.start(PROGRAM)
            main = session.wait_window("Pelmar VEX ()")
            session.key("alt+t", "Up", "Return", window=main)
            look = session.wait_window("Text - Visualisace")
            session.key("shift+Tab", "shift+Tab", "shift+Tab", "space", window=look)
            picker = session.wait_window("Pozice")
            number = r":\s+(-?\d+)"

            def place():
                """Left, top, width and height with the frame."""
                info = session._run("xwininfo", "-id", main.id)
                left, top, width, height = (int(re.search(name + number, info)[1]) for name in (
                    "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
                frame = session._run("xprop", "-id", main.id, "_NET_FRAME_EXTENTS").split("=")[1].split(",")
                west, east, north, south = (int(one) for one in frame)
                return left - west, top - north, width + west + east, height + north + south

            screen = session._run("xwininfo", "-root")
            half_width, half_height = (int(re.search(name + number, screen)[1]) // 2 for name in ("Width", "Height"))
            for row, maximise in ((2, False), (0, False), (2, True), (0, True)):
                if maximise:
                    session._run("wmctrl", "-i", "-r", main.id, "-b", "add,maximized_vert,maximized_horz")
                    session.wait_until(lambda: place()[2] == 2 * half_width, "the maximised window")
                session.click(picker, 12 + 216 * 5 // 6, 12 + 135 * (2 * row + 1) // 6)
                wanted = (half_width, row // 2 * half_height, half_width, half_height)
                session.wait_until(lambda: place() == wanted, f"{wanted}, maximised before: {maximise}", patience=5)


if __name__ == "__main__":
    unittest.main()
