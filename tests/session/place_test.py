"""The place of the main window and its frame under a real window manager, which moves windows with a delay."""

import re
import struct
import unittest

from harness import EditorCase
from screen import SIZE, write_settings

WIDTH, HEIGHT = SIZE


class PlaceTest(EditorCase):
    def place(self, window):
        """Left, top, width and height with the frame, in pixels."""
        info = self.command("xwininfo", "-id", window.id)
        left, top, width, height = map(int, re.findall(r"(?:Absolute.*|Width|Height): +(-?\d+)", info))
        extents = re.findall(r"\d+", self.command("xprop", "-id", window.id, "_NET_FRAME_EXTENTS").partition("=")[2])
        west, east, north, south = (int(one) for one in extents or [0] * 4)
        return left - west, top - north, width + west + east, height + north + south

    def wait_place(self, window, *place):
        self.wait(lambda: self.place(window) == place, lambda: f"{window.title!r} at {place}, not {self.place(window)}")

    def stored(self):
        """Left, top, width, height in twips and the window's state in the settings file."""
        record = (self.folder / "pelmar.ini").read_bytes()
        width, height, top, left = struct.unpack_from("<iiii", record)
        return left, top, width, height, struct.unpack("<i", record[-6:-2])[0]

    def test_the_layout_picker_places_the_whole_frame(self):
        main = self.start()
        picker = self.work("alt+t Up Return [Text - Visualisace] shift+Tab shift+Tab shift+Tab space [Pozice]")
        for row, maximised in ((2, False), (0, False), (2, True), (0, True)):
            with self.subTest(row=row, maximised=maximised):
                if maximised:
                    self.command("wmctrl", "-i", "-r", main.id, "-b", "add,maximized_vert,maximized_horz")
                    self.wait(lambda: self.place(main)[2] == WIDTH, "the maximised window")
                self.point(picker, 12 + 216 * 5 // 6, 12 + 135 * (2 * row + 1) // 6, "click", "1")
                self.wait_place(main, WIDTH // 2, row // 2 * HEIGHT // 2, WIDTH // 2, HEIGHT // 2)

    def test_the_window_stays_maximised_after_the_welcome_and_the_profile(self):
        write_settings(self.folder, show_start=True, window_state=2)
        self.start("", title="Pelmar VEX")
        # The click on the user's name opens the profile.
        main = self.work("[Pelmar VEX] @60,76 [Config] Return / [Pelmar VEX] Return [Pelmar VEX ()]")
        self.wait_place(main, 0, 0, *SIZE)
        self.end(main, answer=None)
        self.assertEqual(self.stored()[4], 2)

    def test_a_window_that_starts_maximised_goes_to_its_stored_place(self):
        write_settings(self.folder, left=0, top=0, width=9000, height=6000, window_state=2)
        main = self.start()
        self.wait_place(main, 0, 0, *SIZE)
        self.command("wmctrl", "-i", "-r", main.id, "-b", "remove,maximized_vert,maximized_horz")
        self.wait_place(main, 0, 0, 600, 400)

    def test_a_window_that_starts_minimised_keeps_its_place(self):
        place = (300, 450, 12000, 9000)
        left, top, width, height = place
        write_settings(self.folder, left=left, top=top, width=width, height=height, window_state=1)
        self.start(title=None)
        self.end(self.wait(lambda: self.window("Pelmar VEX ()"), "the minimised window"), answer=None)
        self.assertEqual(self.stored(), (*place, 1))


if __name__ == "__main__":
    unittest.main()
