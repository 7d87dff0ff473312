"""The notes with the real program and a real window manager: stored at their close, alone as the whole program, kept
apart by two copies, docked to the main window and snapped to the screen, and cheap while nothing moves."""

import os
import re
import struct
import sys
import time
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
SCREEN = (1280, 1024)
MOST_IDLE_CPU = 0.005  # of one core, while nothing moves


def record(*pages):
    texts = [page.encode("cp1250") for page in pages] + [b""] * (5 - len(pages))
    return b"".join(struct.pack("<H", len(text)) + text for text in texts)


class NotesTest(unittest.TestCase):
    def setUp(self):
        self.session = Session(size="%dx%d" % SCREEN)
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)
        self.file = self.session.data_folder / "notes.dat"

    def start_editor(self):
        self.session.start(PROGRAM, "-NOMSG")
        main = self.session.wait_window(re.compile(r"Pelmar VEX \(.*"))
        self.session.activate(main)
        return main

    def start_alone(self):
        self.session.start(PROGRAM, "-note")
        notes = self.session.wait_window("Poznámky")
        self.session.activate(notes)
        return notes

    def open_notes(self):
        self.session.key("F9")
        notes = self.session.wait_window("Poznámky")
        self.session.activate(notes)
        return notes

    def wait_rescue(self, text):
        folder = self.session.data_folder
        self.session.wait_until(
            lambda: any(text in one.read_bytes() for one in folder.glob("notes-rescue-*.pelmar")),
            "the notes' rescue file", patience=3)

    def place(self, window):
        """Left, top, width and height with the frame."""
        info = self.session._run("xwininfo", "-id", window.id)
        left, top, width, height = (int(re.search(name + r":\s+(-?\d+)", info)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        frame = self.session._run("xprop", "-id", window.id, "_NET_FRAME_EXTENTS").split("=")[1].split(",")
        west, east, north, south = (int(one) for one in frame)
        return left - west, top - north, width + west + east, height + north + south

    def move(self, window, left, top, width=-1, height=-1):
        self.session._run("wmctrl", "-i", "-r", window.id, "-e", f"0,{left},{top},{width},{height}")

    def wait_place(self, window, check, what):
        try:
            self.session.wait_until(lambda: check(*self.place(window)), what, patience=5)
        except AssertionError as error:
            raise AssertionError(f"{error}; it is at {self.place(window)}") from None

    def test_stored_at_the_close_and_found_by_the_notes_alone(self):
        session = self.session
        main = self.start_editor()
        notes = self.open_notes()
        session.type("milk\nbread")
        session.key("alt+2")
        session.type("second")
        self.assertEqual(self.file.read_bytes(), b"")
        session.shot("notes")
        session.close(notes)
        session.wait_no_window("Poznámky")
        self.assertEqual(self.file.read_bytes(), record("milk\r\nbread", "second"))
        session.close(main)
        self.assertEqual(session.wait_exit(), 0)

        kept = {path: path.read_bytes() for path in session.data_folder.iterdir() if path != self.file}
        notes = self.start_alone()
        self.assertEqual(session.titles(), ["Poznámky"])
        session.key("ctrl+End")
        session.type("!")
        session.close(notes)
        question = session.wait_window("Konec")
        session.shot("notes-question")
        self.assertEqual(self.file.read_bytes(), record("milk\r\nbread!", "second"))  # stored before the question
        session.activate(question)
        session.key("Return")  # No is the default
        session.wait_no_window("Konec")
        self.assertIsNotNone(session.window("Poznámky"))
        session.activate(notes)
        session.key("alt+2", "Home")
        session.type("a ")
        session.close(notes)
        session.activate(session.wait_window("Konec"))
        session.key("alt+a")
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual(self.file.read_bytes(), record("milk\r\nbread!", "a second"))
        # Neither settings nor recovery files are written in this mode.
        self.assertEqual(kept, {path: path.read_bytes() for path in session.data_folder.iterdir() if path != self.file})

    def test_two_copies_keep_their_notes_apart(self):
        session = self.session
        self.start_alone()
        session.type("of the first")
        self.wait_rescue(b"of the first")
        first = session.program
        session.program = None
        try:
            notes = self.start_alone_beside(first.pid)
            session.type("of the second")
            self.wait_rescue(b"of the second")
            session.close(notes)
            session.activate(session.wait_window("Konec"))
            session.key("alt+a")
            self.assertEqual(session.wait_exit(), 0)
            self.wait_rescue_of_dead(b"of the first")
            self.assertEqual(self.file.read_bytes(), record("of the second"))
        finally:
            first.kill()
            first.wait()
        # The page has changed since: what the first copy held comes to an empty one.
        self.take_back_and_store()
        self.assertEqual(self.file.read_bytes(), record("of the second", "of the first"))

    def take_back_and_store(self):
        """Starts the notes alone, says Yes to what was rescued, and ends them."""
        session = self.session
        session.start(PROGRAM, "-NOTE")
        session.activate(session.wait_window("Záchrana"))
        session.key("Return")
        session.wait_no_window("Záchrana")
        session.close(session.window("Poznámky"))
        session.activate(session.wait_window("Konec"))
        session.key("alt+a")
        self.assertEqual(session.wait_exit(), 0)

    def start_alone_beside(self, other):
        """A second copy; no question may come about what the living first one keeps."""
        self.session.start(PROGRAM, "-NOTE")
        own = self.session.wait_until(
            lambda: next((one for one in self.session.windows() if one.title == "Poznámky" and one.pid != other), None),
            "the second copy's window")
        self.session.activate(own)
        self.assertIsNone(self.session.window("Záchrana"))
        return own

    def wait_rescue_of_dead(self, text):
        found = [one.read_bytes() for one in self.session.data_folder.glob("notes-rescue-*.pelmar")]
        self.assertEqual([text in one for one in found], [True])

    def test_a_file_that_cant_be_opened_ends_the_program_with_a_message(self):
        session = self.session
        self.file.mkdir()
        self.start_editor()
        session.type("kept")
        session.key("F9")
        session.activate(session.wait_window("Pelmar VEX"))
        session.key("Return")
        self.assertEqual(session.wait_exit(), 1)
        self.assertTrue(any(b"kept" in one.read_bytes() for one in session.data_folder.glob("rescue-*.pelmar")))

    def test_checkpoint(self):
        session = self.session
        main = self.start_editor()
        session.type("state one")
        session.wait_until(lambda: session.title(main).endswith("*"), "the mark")
        time.sleep(0.7)  # the menu follows the text by a tick
        self.pick_checkpoint(main, 1)
        self.assertIsNone(session.window("Poznámky"))
        session.key("ctrl+End")
        session.type(" spoilt")
        self.pick_checkpoint(main, 3)
        session.activate(session.wait_window("Checkpoint"))
        session.key("Return")
        session.wait_no_window("Checkpoint")
        self.pick_checkpoint(main, 2)
        notes = session.wait_window("Poznámky")
        session.close(notes)
        session.wait_no_window("Poznámky")
        self.assertEqual(self.file.read_bytes(), record("state one"))
        session.activate(main)
        session.key("ctrl+F4")
        session.activate(session.wait_window("Konec"))
        session.key("Return")
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual((session.data_folder / "autosave_pelmar_vex.txt").read_bytes(), b"state one")

    def pick_checkpoint(self, main, number):
        """The number-th item of the menu; the first one is chosen when it opens."""
        self.session.activate(main)
        self.session.key("alt+e")
        self.session.key(*["Down"] * (number - 1), "Return")

    def test_docks_and_snaps(self):
        session = self.session
        main = self.start_editor()
        self.move(main, 100, 150, 700, 500)
        notes = self.open_notes()
        frame = self.place(notes)
        # Snapping: nearer than 16 pixels to an edge goes to it.
        self.move(notes, 9, 200)
        self.wait_place(notes, lambda left, top, *_: (left, top) == (0, 200), "the notes at the left edge")
        width, height = frame[2:]
        self.move(notes, SCREEN[0] - width - 9, SCREEN[1] - height - 11)
        self.wait_place(notes, lambda left, top, *_: (left, top) == (SCREEN[0] - width, SCREEN[1] - height),
                        "the notes in the lower right corner")
        # Docking beside the main window, wherever that goes.
        session.activate(notes)
        self.press_dock(notes)

        def beside(*place):
            left, top, w, h = self.place(main)
            return place == (left + w, top, SCREEN[0] - left - w, h)
        self.wait_place(notes, beside, "the notes beside the main window")
        session.shot("notes-docked")
        self.move(main, 60, 40, 600, 620)
        self.wait_place(notes, beside, "the notes with the moved main window")
        self.move(notes, 400, 400)
        self.wait_place(notes, beside, "the notes back beside the main window")
        # At full height beside a maximised one.
        session._run("wmctrl", "-i", "-r", main.id, "-b", "add,maximized_vert,maximized_horz")
        self.wait_place(notes, lambda left, top, w, h: (top, left + w, h) == (0, SCREEN[0], SCREEN[1]) and w < 260,
                        "the notes at full height")
        session.shot("notes-full-height")
        state = session._run("xprop", "-id", notes.id, "_NET_WM_STATE")
        self.assertIn("_NET_WM_STATE_ABOVE", state)
        session._run("wmctrl", "-i", "-r", main.id, "-b", "remove,maximized_vert,maximized_horz")
        self.wait_place(notes, beside, "the notes beside the restored main window")

    def press_dock(self, notes):
        """By keyboard: the round of the tabulator leads from the text over the tabs to the buttons."""
        self.session.key("shift+Tab", "shift+Tab", "space", window=notes)

    def test_alone_it_docks_into_the_corner(self):
        session = self.session
        notes = self.start_alone()
        self.press_dock(notes)
        self.wait_place(notes, lambda left, top, w, h: (left + w, top + h) == SCREEN, "the notes in the corner")

    def test_costs_little_while_nothing_moves(self):
        session = self.session
        self.start_editor()
        self.open_notes()
        time.sleep(2)  # the caret goes on blinking, the placing has calmed down
        self.assertLess(self.cpu(seconds=10), MOST_IDLE_CPU)

    def cpu(self, seconds):
        """The share of one core that the program used meanwhile."""
        def used():
            with open(f"/proc/{self.session.program.pid}/stat") as stat:
                fields = stat.read().rsplit(")", 1)[1].split()
            return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        before = used()
        time.sleep(seconds)
        return (used() - before) / seconds


if __name__ == "__main__":
    unittest.main()
