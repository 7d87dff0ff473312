"""The notes with the real program and a real window manager: stored at their close, alone as the whole program, kept
apart by two copies, docked to the main window and snapped to the screen."""

import struct
import unittest

from harness import EditorCase
from screen import SIZE


def record(*pages):
    texts = [page.encode("cp1250") for page in pages] + [b""] * (5 - len(pages))
    return b"".join(struct.pack("<H", len(text)) + text for text in texts)


class NotesTest(EditorCase):
    def setUp(self):
        super().setUp()
        self.file = self.folder / "notes.dat"

    def start_alone(self, title="Poznámky"):
        return self.start("-note", title=title)

    def open_notes(self):
        self.session.key("F9")
        return self.session.wait_centred("Poznámky")

    def stored(self, *pages):
        self.assertEqual(self.file.read_bytes(), record(*pages))

    def test_stored_at_the_close_and_found_by_the_notes_alone(self):
        session = self.session
        main = self.start()
        notes = self.open_notes()
        session.type("milk\nbread")
        session.key("alt+2")
        session.type("second")
        self.assertEqual(self.file.read_bytes(), b"")
        session.shot("notes")
        session.run("xdotool", "windowminimize", notes.id)
        session.wait_until(lambda: "Iconic" in session.run("xprop", "-id", notes.id, "WM_STATE"), "them minimised")
        session.activate(main)
        self.assertEqual(self.open_notes(), notes)
        session.close(notes)
        session.wait_gone(notes)
        self.stored("milk\r\nbread", "second")
        self.end(main, asks=False)

        kept = {path: path.read_bytes() for path in self.folder.iterdir() if path != self.file}
        notes = self.start_alone()
        self.assertEqual(session.titles(), ["Poznámky"])
        session.key("ctrl+End")
        session.type("!")
        session.close(notes)
        session.wait_window("Konec")
        self.stored("milk\r\nbread!", "second")  # before the question
        self.answer("Konec")  # No is the default
        session.activate(notes)
        session.key("alt+2", "Home")
        session.type("a ")
        self.end(notes, "alt+a")
        self.stored("milk\r\nbread!", "a second")
        # Neither settings nor recovery files are written in this mode.
        self.assertEqual(kept, {path: path.read_bytes() for path in self.folder.iterdir() if path != self.file})

    def test_two_copies_keep_their_notes_apart(self):
        session = self.session
        self.start_alone()
        session.type("of the first")
        self.wait_kept(b"of the first")
        first, session.program = session.program, None
        try:
            # No question comes about what the living first copy keeps.
            session.run("xdotool", "search", "--name", "Poznámky", "windowminimize")
            notes = self.start_alone()
            session.type("of the second")
            self.wait_kept(b"of the second")
            self.end(notes, "alt+a")
            self.assertTrue(self.holds(b"of the first"))
            self.assertFalse(self.holds(b"of the second"))
            self.stored("of the second")
        finally:
            first.kill()
            first.wait()
        # The page has changed since: what the first copy held comes to an empty one.
        self.start_alone("Záchrana")
        self.answer("Záchrana")
        self.end(session.wait_window("Poznámky"), "alt+a")
        self.stored("of the second", "of the first")

    def test_docks_and_snaps(self):
        session, (width, height) = self.session, SIZE
        main = self.start()
        session.move(main, 100, 150, 700, 500)
        notes = self.open_notes()
        # Snapping: nearer than 16 pixels to an edge goes to it.
        session.move(notes, 9, 200)
        session.wait_place(notes, lambda left, top, *size: (0, 200, *size), "the notes at the left edge")
        own_width, own_height = session.place(notes)[2:]
        session.move(notes, width - own_width - 9, height - own_height - 11)
        session.wait_place(notes, lambda left, top, w, h: (width - w, height - h, w, h), "them at the lower right")
        # Docking beside the main window, wherever that goes.
        self.press_dock()

        def beside(*_):
            left, top, w, h = session.place(main)
            return left + w, top, width - left - w, h
        session.wait_place(notes, beside, "the notes beside the main window")
        session.move(main, 60, 40, 600, 620)
        session.wait_place(notes, beside, "the notes with the moved main window")
        session.move(notes, 400, 400)
        session.wait_place(notes, beside, "the notes back beside the main window")
        # At full height beside a maximised one.
        session.maximise(main)
        session.wait_place(notes, lambda left, top, w, h: (width - w, 0, min(w, 259), height), "them at full height")
        self.assertIn("_NET_WM_STATE_ABOVE", session.run("xprop", "-id", notes.id, "_NET_WM_STATE"))
        session.maximise(main, False)
        session.wait_place(notes, beside, "the notes beside the restored main window")

    def press_dock(self):
        """By keyboard: the round of the tabulator leads from the text over the tabs to the buttons."""
        self.session.key("shift+Tab", "shift+Tab", "space")

    def test_alone_it_docks_into_the_corner(self):
        notes = self.start_alone()
        self.press_dock()
        self.session.wait_place(notes, lambda left, top, w, h: (SIZE[0] - w, SIZE[1] - h, w, h), "them in the corner")


if __name__ == "__main__":
    unittest.main()
