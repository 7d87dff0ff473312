"""Where the windows of the real program stand, frame and all, under a real window manager, which tells the frame and takes
each wish a moment later."""

import os
import struct
import sys
import time
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
SCREEN = (1280, 1024)
TWIPS = 15
# What may go wrong once in ten times can be tried more often.
TRIES = int(os.environ.get("PELMAR_TRIES", "2"))
# The label of the person's name in the welcome dialog.
NAME = (60, 76)


class PlaceTest(unittest.TestCase):
    def setUp(self):
        self.session = Session(size="%dx%d" % SCREEN)
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)

    def start(self, *arguments, **settings):
        write_settings(self.session.data_folder, **settings)
        self.session.start(PROGRAM, *arguments)

    def wait_centred(self, title):
        window = self.session.wait_window(title)
        self.session.wait_place(window, lambda left, top, width, height: (left, top) == (
            (SCREEN[0] - width) // 2, (SCREEN[1] - height) // 2), f"{title!r} in the middle")
        return window

    def stored(self):
        """Left, top, width, height in twips and the state that the program stored at its close."""
        record = (self.session.data_folder / "pelmar.ini").read_bytes()
        width, height, top, left = struct.unpack_from("<iiii", record)
        return left, top, width, height, struct.unpack("<i", record[-6:-2])[0]

    def end(self, main):
        self.session.close(main)
        self.assertEqual(self.session.wait_exit(), 0)

    def test_dialogs_stand_in_the_middle(self):
        session = self.session
        self.start(show_start=True, user_name="")
        session.activate(self.wait_centred("Config"))
        session.type("Jan")
        session.key("Return")
        self.wait_centred("Pelmar VEX")
        session.key("Return")
        main = session.wait_window("Pelmar VEX ()")
        for keys, title in ((("alt+s", "v"), "HTML  - Vytvoření"), (("F7",), "Pelmar VEX - Kalkulátor"), (("F9",), "Poznámky")):
            session.key(*keys, window=main)
            dialog = self.wait_centred(title)
            session.close(dialog)
            session.wait_no_window(title)

    def test_the_layout_picker_places_the_whole_frame(self):
        session = self.session
        self.start("-NOMSG")
        main = session.wait_window("Pelmar VEX ()")
        session.key("alt+t", "Up", "Return", window=main)
        look = session.wait_window("Text - Visualisace")
        session.key("shift+Tab", "shift+Tab", "shift+Tab", "space", window=look)
        picker = session.wait_window("Pozice")
        half_width, half_height = (side // 2 for side in SCREEN)
        for row, maximise in ((2, False), (0, False), *[(2, True), (0, True)] * TRIES):
            if maximise:
                session.maximise(main)
                session.wait_place(main, lambda left, top, width, height: width == SCREEN[0], "the maximised window")
            session.click(picker, 12 + 216 * 5 // 6, 12 + 135 * (2 * row + 1) // 6)
            wanted = (half_width, row // 2 * half_height, half_width, half_height)
            session.wait_place(main, wanted, f"{wanted}, maximised before: {maximise}")

    def test_maximised_outlasts_the_welcome_and_the_profile(self):
        session = self.session
        for _ in range(TRIES):
            self.start(show_start=True, window_state=2)
            welcome = session.wait_window("Pelmar VEX")
            session.activate(welcome)
            session.click(welcome, *NAME)
            session.activate(session.wait_window("Config"))
            session.key("Return")
            session.wait_no_window("Config")
            session.key("Return", window=welcome)
            main = session.wait_window("Pelmar VEX ()")
            session.wait_place(main, (0, 0, *SCREEN), "the maximised window")
            time.sleep(0.7)
            session.wait_place(main, (0, 0, *SCREEN), "the window still maximised")
            self.end(main)
            self.assertEqual(self.stored()[4], 2)

    def test_a_window_minimised_since_the_start_keeps_its_place(self):
        session = self.session
        place = (300, 450, 12000, 9000)
        self.start("-NOMSG", left=place[0], top=place[1], width=place[2], height=place[3], window_state=1)
        for number in range(3):
            main = session.wait_until(lambda: session.window("Pelmar VEX ()"), "the minimised window")
            if number == 2:
                session.activate(main)
                session.wait_place(main, tuple(side // TWIPS for side in place), "the place of before")
            self.end(main)
            self.assertEqual(self.stored(), (*place, 0 if number == 2 else 1))
            if number < 2:
                session.start(PROGRAM, "-NOMSG")


if __name__ == "__main__":
    unittest.main()
