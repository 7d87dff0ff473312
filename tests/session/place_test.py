"""Where the windows of the real program stand, frame and all, under a real window manager, which tells the frame
and takes each wish a moment later."""

import re
import struct
import time
import unittest

from harness import EditorCase
from screen import SIZE, write_settings

WIDTH, HEIGHT = SIZE
DOCK = "shift+Tab shift+Tab space"  # the round of the tabulator leads from the text over the tabs to the buttons


class PlaceTest(EditorCase):
    def place(self, window):
        """Left, top, width and height with the frame."""
        info = self.command("xwininfo", "-id", window.id)
        left, top, width, height = map(int, re.findall(r"(?:Absolute.*|Width|Height): +(-?\d+)", info))
        extents = re.findall(r"\d+", self.command("xprop", "-id", window.id, "_NET_FRAME_EXTENTS").partition("=")[2])
        west, east, north, south = (int(one) for one in extents or "0000")
        return left - west, top - north, width + west + east, height + north + south

    def wait_place(self, window, wanted, what=""):
        """Waits for a place with the frame: as the function `wanted` says it from the one of now, or just this one."""
        def fits():
            now = self.place(window)
            return now == (wanted(*now) if callable(wanted) else wanted)
        self.wait(fits, lambda: f"{what or wanted}; {window.title!r} is at {self.place(window)}")

    def wait_centred(self, title):
        """The window of this title, once it stands in the middle of the screen."""
        window = self.wait_window(title)
        self.wait_place(window, lambda left, top, width, height: (
            (WIDTH - width) // 2, (HEIGHT - height) // 2, width, height), "the middle")
        return window

    def move(self, window, left, top, width=-1, height=-1):
        # By its frame, whatever the window itself counts from.
        self.command("wmctrl", "-i", "-r", window.id, "-e", f"1,{left},{top},{width},{height}")

    def maximise(self, window, how="add"):
        self.command("wmctrl", "-i", "-r", window.id, "-b", f"{how},maximized_vert,maximized_horz")

    def stored(self):
        """Left, top, width, height in twips and the state that the program stored at its close."""
        record = (self.folder / "pelmar.ini").read_bytes()
        width, height, top, left = struct.unpack_from("<iiii", record)
        return left, top, width, height, struct.unpack("<i", record[-6:-2])[0]

    def test_dialogs_stand_in_the_middle(self):
        write_settings(self.folder, show_start=True, user_name="")
        self.start("", title=None)
        self.wait_centred("Config")
        self.work('[Config] "Jan" Return /')
        self.wait_centred("Pelmar VEX")
        main = self.work("Return [Pelmar VEX ()]")
        for title, keys in (("HTML  - Vytvoření", "alt+s v"), ("Pelmar VEX - Kalkulátor", "F7"), ("Poznámky", "F9")):
            self.work(keys)
            self.wait_centred(title)
            self.work(f"[{title}] alt+F4 / [{main.title}]")

    def test_the_layout_picker_places_the_whole_frame(self):
        main = self.start()
        picker = self.work("alt+t Up Return [Text - Visualisace] shift+Tab shift+Tab shift+Tab space [Pozice]")
        for row, maximised in ((2, False), (0, False), (2, True), (0, True)):
            if maximised:
                self.maximise(main)
                self.wait_place(main, lambda left, top, width, height: (left, top, WIDTH, height), "maximised")
            self.point(picker, 12 + 216 * 5 // 6, 12 + 135 * (2 * row + 1) // 6, "click", "1")
            self.wait_place(main, (WIDTH // 2, row // 2 * HEIGHT // 2, WIDTH // 2, HEIGHT // 2))

    def test_maximised_outlasts_the_welcome_and_the_profile(self):
        write_settings(self.folder, show_start=True, window_state=2)
        self.start("", title="Pelmar VEX")
        main = self.work("[Pelmar VEX] @60,76 [Config] Return / [Pelmar VEX] Return [Pelmar VEX ()]")  # on the name
        self.wait_place(main, (0, 0, *SIZE))
        time.sleep(0.7)  # in which a late wish would move it
        self.wait_place(main, (0, 0, *SIZE))
        self.end(main, answer=None)
        self.assertEqual(self.stored()[4], 2)

    def test_a_window_minimised_since_the_start_keeps_its_place(self):
        left, top, width, height = place = (300, 450, 12000, 9000)
        write_settings(self.folder, left=left, top=top, width=width, height=height, window_state=1)
        for shown in (False, False, True):
            self.start(title=None)
            main = self.wait(lambda: self.window("Pelmar VEX ()"), "the minimised window")
            if shown:
                self.activate(main)
                self.wait_place(main, tuple(side // 15 for side in place))
            self.end(main, answer=None)
            self.assertEqual(self.stored(), (*place, 0 if shown else 1))

    def test_dialogs_stand_above_the_notes(self):
        def stacked(*windows):
            """Whether they stand in this order from below."""
            told = self.command("xprop", "-root", "_NET_CLIENT_LIST_STACKING")
            order = [int(number, 16) for number in re.findall(r"0x\w+", told)]
            return sorted(windows, key=lambda window: order.index(window.id)) == list(windows)
        main = self.start()
        self.work("F7")
        calculator = self.wait_centred("Pelmar VEX - Kalkulátor")
        self.activate(main)
        self.work("F9")
        notes = self.wait_centred("Poznámky")
        self.activate(main)
        line = self.work("ctrl+h [Html horizontální čára]")
        self.wait(lambda: stacked(notes, line), "the new dialog above the notes")
        self.wait(lambda: stacked(calculator, notes), "the older one below them")
        self.activate(calculator)
        self.wait(lambda: stacked(notes, calculator), "the older one above them once it is used")
        self.activate(notes)
        self.work("[Poznámky] alt+F4 /")
        for dialog in (calculator, line):
            self.wait(lambda: "ABOVE" not in self.command("xprop", "-id", dialog.id, "_NET_WM_STATE"), "an end of that")

    def test_notes_dock_and_snap(self):
        def beside(*_):
            left, top, width, height = self.place(main)
            return left + width, top, WIDTH - left - width, height
        main = self.start()
        self.move(main, 100, 150, 700, 500)
        self.work("F9")
        notes = self.wait_centred("Poznámky")
        # Snapping: nearer than 16 pixels to an edge goes to it.
        self.move(notes, 9, 200)
        self.wait_place(notes, lambda left, top, *size: (0, 200, *size), "the left edge")
        width, height = self.place(notes)[2:]
        self.move(notes, WIDTH - width - 9, HEIGHT - height - 11)
        self.wait_place(notes, (WIDTH - width, HEIGHT - height, width, height))
        # Docked beside the main window, wherever that goes.
        self.work(DOCK)
        self.wait_place(notes, beside, "beside the main window")
        self.move(main, 60, 40, 600, 620)
        # Its frame or what lies in it goes there, as the window asked for its own place before.
        self.wait_place(main, lambda left, top, width, height: (left, top, min(width, 650), height), "it moved")
        self.wait_place(notes, beside, "beside the moved main window")
        self.move(notes, 400, 400)
        self.wait_place(notes, beside, "back beside the main window")
        self.maximise(main)
        self.wait_place(notes, lambda left, top, w, h: (WIDTH - w, 0, min(w, 259), HEIGHT), "full height")
        self.assertIn("_NET_WM_STATE_ABOVE", self.command("xprop", "-id", notes.id, "_NET_WM_STATE"))
        self.maximise(main, "remove")
        self.wait_place(notes, beside, "beside the restored main window")


if __name__ == "__main__":
    unittest.main()
