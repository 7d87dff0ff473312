"""Unsaved documents and notes of the real program, which is killed or ended by the system."""

import signal
import unittest

from harness import EditorCase


class RescueTest(EditorCase):
    def test_documents_and_notes_come_back_after_a_kill(self):
        (self.folder / "notes.dat").write_bytes(b"\x05\0first" + bytes(8))
        self.start()
        self.work('"never saved" alt+3 "third" F9 [Poznámky] ctrl+End " and more"')
        kept = (b"never saved", b"third", b"first and more")
        self.wait(lambda: all(map(self.is_rescued, kept)), f"{kept} in a rescue file")
        self.kill()
        self.start(title="Záchrana")
        main = self.work("[Záchrana] Return / [Pelmar VEX ()*]")
        self.work("F9 [Záchrana] Return /")
        self.activate(self.window("Poznámky"))
        self.work("[Poznámky] alt+F4 /")
        self.assertEqual((self.folder / "notes.dat").read_bytes(), b"\x0e\0first and more" + bytes(8))
        self.work('alt+1 alt+3 ctrl+End "!"')
        self.end(main)
        self.assertEqual(self.autosaved(), b"third!")
        self.assertEqual(self.rescues(), [])

    def test_the_system_ends_the_program_and_nothing_is_lost(self):
        for number in (signal.SIGTERM, signal.SIGHUP):
            main = self.start()
            self.work('F9 [Poznámky] "a note"')
            self.activate(main)
            self.work('"typed just now" [Pelmar VEX ()*]')
            (self.folder / "pelmar.ini").unlink()
            self.program.send_signal(number)
            self.wait_exit(-number)
            self.assertTrue(self.is_rescued(b"typed just now") and self.is_rescued(b"a note"), number)
            # The files that a close writes are there too.
            self.assertEqual(self.autosaved(), b"typed just now")
            self.assertIn(b"typed just now", (self.folder / "autosave_all_files.txt").read_bytes())
            self.assertTrue((self.folder / "pelmar.ini").stat().st_size)
            for one in (*self.rescues(), *self.folder.glob("autosave_*")):
                one.unlink()


if __name__ == "__main__":
    unittest.main()
