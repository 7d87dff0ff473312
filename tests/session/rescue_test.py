"""Unsaved documents and notes of the real program, which is killed at any moment or ended by the system."""

import random
import re
import signal
import time
import unittest

from harness import EditorCase


class RescueTest(EditorCase):
    def test_documents_and_notes_come_back_after_a_kill(self):
        (self.folder / "notes.dat").write_bytes(b"\x05\0first" + bytes(8))
        self.start()
        self.work('"never saved" alt+3 "third" F9 [Poznámky] ctrl+End " and more"')
        self.wait_rescued(b"never saved", b"third", b"first and more")
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

    def remove_rescues_and_autosaves(self):
        for one in (*self.rescues(), *self.folder.glob("autosave_*")):
            one.unlink()

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
            self.remove_rescues_and_autosaves()

    def check_kills(self, number, act, rescued, is_new):
        """Kills the program soon after `act`, and again after the next start. The page's file is whole, old or new (new
        if the title has no star). The settings are whole. With `rescued` a rescue file has `new` before `act`."""
        def kill(latest):
            time.sleep(random.uniform(0, latest))
            saved = self.window(f"Pelmar VEX ({page})") is not None
            self.kill()
            content = page.read_bytes() if page.exists() else None
            self.assertIn(content, [new] if saved else [None if is_new else old, new])
            everywhere = [page, *self.folder.iterdir()]
            self.assertTrue(not rescued or any(new in one.read_bytes() for one in everywhere if one.is_file()))
        old = b"old content\r\n" * 1000
        new = b"token%d" % number + old
        page = self.home / "page.html"
        page.write_bytes(old)
        self.start_with(page)
        if is_new:
            page.unlink()
        self.work(f'"token{number}" [Pelmar VEX ({page})*]')
        if rescued:
            self.wait_rescued(new)
        self.work(act)
        kill(0.03)
        self.assertGreaterEqual((self.folder / "pelmar.ini").stat().st_size, self.size_of_settings)
        for path in self.folder.glob("autosave_*.txt"):
            self.assertIn(new, path.read_bytes())
        # The next start works, whether or not it offers the rescued text.
        if self.start(title=re.compile(r"Záchrana|Pelmar VEX \(\)")).title == "Záchrana":
            self.work(f"[Záchrana] Return / [Pelmar VEX ({page})*]")
        kill(0.3)
        self.remove_rescues_and_autosaves()

    def test_kills_at_random_moments_lose_nothing(self):
        self.size_of_settings = (self.folder / "pelmar.ini").stat().st_size
        # After each of these steps the program writes files, or has just written them before the question "Konec".
        for number, act in enumerate(("ctrl+u [Uložit] Return", "ctrl+F4 [Konec] Return", "ctrl+F4 [Konec] Escape")):
            rescued, is_new = random.random() < 0.5, random.random() < 0.5
            if number == 0 and not is_new:
                act += " [Soubor] Return"
            with self.subTest(act=act, rescued=rescued, is_new=is_new):
                self.check_kills(number, act, rescued, is_new)


if __name__ == "__main__":
    unittest.main()
