"""Where the windows of the real program stand, frame and all, under a real window manager, which tells the frame
and takes each wish a moment later."""

import struct
import time
import unittest

from harness import PROGRAM, EditorCase
from screen import SIZE
from settings import write_settings

TWIPS = 15
NAME = (60, 76)  # the label of the person's name in the welcome dialog


class PlaceTest(EditorCase):
    def stored(self):
        """Left, top, width, height in twips and the state that the program stored at its close."""
        record = (self.folder / "pelmar.ini").read_bytes()
        width, height, top, left = struct.unpack_from("<iiii", record)
        return left, top, width, height, struct.unpack("<i", record[-6:-2])[0]

    def test_dialogs_stand_in_the_middle(self):
        session = self.session
        write_settings(self.folder, show_start=True, user_name="")
        session.start(PROGRAM)
        session.wait_centred("Config")
        session.type("Jan")
        self.answer("Config")
        session.wait_centred("Pelmar VEX")
        session.key("Return")
        main = session.wait_window("Pelmar VEX ()")
        for title, *keys in (("HTML  - Vytvoření", "alt+s", "v"), ("Pelmar VEX - Kalkulátor", "F7"),
                             ("Poznámky", "F9")):
            session.activate(main)
            session.key(*keys)
            dialog = session.wait_centred(title)
            session.close(dialog)
            session.wait_gone(dialog)

    def test_the_layout_picker_places_the_whole_frame(self):
        session = self.session
        main = self.start()
        session.key("alt+t", "Up", "Return")
        session.wait_window("Text - Visualisace")
        session.key("shift+Tab", "shift+Tab", "shift+Tab", "space")
        picker = session.wait_window("Pozice")
        half_width, half_height = (side // 2 for side in SIZE)
        for row, maximise in ((2, False), (0, False), (2, True), (0, True)):
            if maximise:
                session.maximise(main)
                session.wait_place(main, lambda *place: (place[0], place[1], SIZE[0], place[3]), "the maximised window")
            session.click(picker, 12 + 216 * 5 // 6, 12 + 135 * (2 * row + 1) // 6)
            wanted = (half_width, row // 2 * half_height, half_width, half_height)
            session.wait_place(main, wanted, f"{wanted}, maximised before: {maximise}")

    def test_maximised_outlasts_the_welcome_and_the_profile(self):
        session = self.session
        write_settings(self.folder, show_start=True, window_state=2)
        session.start(PROGRAM)
        welcome = session.wait_window("Pelmar VEX")
        session.click(welcome, *NAME)
        self.answer("Config")
        session.activate(welcome)
        session.key("Return")
        main = session.wait_window("Pelmar VEX ()")
        session.wait_place(main, (0, 0, *SIZE), "the maximised window")
        time.sleep(0.7)  # in which a late wish would move it
        session.wait_place(main, (0, 0, *SIZE), "the window still maximised")
        self.end(main, asks=False)
        self.assertEqual(self.stored()[4], 2)

    def test_a_window_minimised_since_the_start_keeps_its_place(self):
        session = self.session
        left, top, width, height = place = (300, 450, 12000, 9000)
        write_settings(self.folder, left=left, top=top, width=width, height=height, window_state=1)
        for number in range(3):
            session.start(PROGRAM, "-NOMSG")
            main = session.wait_until(lambda: session.window("Pelmar VEX ()"), "the minimised window")
            if number == 2:
                session.activate(main)
                session.wait_place(main, tuple(side // TWIPS for side in place), "the place of before")
            self.end(main, asks=False)
            self.assertEqual(self.stored(), (*place, 0 if number == 2 else 1))


if __name__ == "__main__":
    unittest.main()
