"""What isn't saved, documents and notes, with the real program: killed at any moment, ended by the system, on a disk
without room and without a folder of its own."""

import os
import random
import re
import resource
import signal
import stat
import time
import unittest

from harness import PROGRAM, EditorCase
from session_manager import SessionManager
from settings import settings_record

# As a full disk: the write beyond the limit fails, where the program isn't ended by the signal.
LIMITED = ["-c", 'trap "" XFSZ; exec "$0" -NOMSG', PROGRAM]
POWER_CUTS = int(os.environ.get("PELMAR_POWER_CUTS", "6"))


class RescueTest(EditorCase):
    def type_unsaved(self, text):
        main = self.start()
        self.session.type(text)
        self.wait_changed(main)
        return main

    def leave(self, text):
        """A copy that typed this and died."""
        self.type_unsaved(text)
        self.wait_kept(text.encode())
        self.session.kill()

    def take_back(self):
        self.answer("Záchrana")
        return self.session.wait_window("Pelmar VEX ()*")

    def limit(self, size):
        resource.prlimit(self.session.program.pid, resource.RLIMIT_FSIZE, (size, resource.RLIM_INFINITY))

    def test_a_killed_program_gives_documents_and_notes_back(self):
        session = self.session
        (self.folder / "notes.dat").write_bytes(b"\x05\0first" + bytes(8))
        self.start()
        session.type("never saved")
        session.key("alt+3")
        session.type("third")
        session.key("F9")
        session.wait_window("Poznámky")
        session.key("ctrl+End")
        session.type(" and more")
        self.wait_kept(b"never saved", b"third", b"first and more")
        session.kill()

        self.start(title="Záchrana")
        main = self.take_back()
        session.key("F9")
        question = session.wait_window("Záchrana")
        # No question lies under the notes, which stay on top.
        session.wait_until(lambda: "ABOVE" in session.run("xprop", "-id", question.id, "_NET_WM_STATE"), "it on top")
        self.answer("Záchrana")
        notes = session.window("Poznámky")
        session.close(notes)
        session.wait_gone(notes)
        self.assertEqual((self.folder / "notes.dat").read_bytes(), b"\x0e\0first and more" + bytes(8))
        session.key("alt+1", "alt+3", "ctrl+End")
        session.type("!")
        self.end(main)
        self.assertEqual(self.autosaved(), b"third!")
        everything = (self.folder / "autosave_all_files.txt").read_bytes()
        self.assertTrue(everything.startswith(b"Soubor:\r\nnever saved\r\n\r\n"))
        # Asked once: an ordinary start follows.
        self.start()
        self.assertEqual(list(self.folder.glob("*rescue*")), [])

    def test_a_kill_behind_yes_loses_nothing(self):
        self.leave("precious")
        for pause in (0, 0.05, 0.15, 0.3):
            self.start(title="Záchrana")
            self.take_back()
            time.sleep(pause)  # the moment of the kill
            self.session.kill()
            self.assertTrue(self.holds(b"precious"), pause)

    def test_a_full_disk_is_waited_for_and_loses_nothing(self):
        session = self.session
        self.leave("precious")
        old, = self.folder.glob("rescue-*.pelmar")
        self.start(*LIMITED, program="/bin/sh", title="Záchrana")
        self.limit(0)
        self.take_back()
        session.kill()
        self.assertEqual(list(self.folder.glob("rescue-*.pelmar")), [old])
        # The same again, but then there is room, without a key.
        self.start(*LIMITED, program="/bin/sh", title="Záchrana")
        self.limit(0)
        self.take_back()
        session.key("ctrl+End")
        session.type(" more")
        time.sleep(1.5)  # in which it would be kept, were there room
        self.assertTrue(self.holds(b"precious"))
        self.limit(resource.RLIM_INFINITY)
        self.wait_kept(b"precious more", patience=6)
        session.wait_until(lambda: not old.exists(), "the end of the old file")

    def test_the_system_ends_the_program_and_all_is_kept(self):
        session = self.session
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            main = self.start()
            session.key("F9")
            session.wait_window("Poznámky")
            session.type("a note")
            session.activate(main)
            session.type("typed just now")
            self.wait_changed(main)
            session.program.send_signal(number)
            self.assertEqual(session.wait_exit(), -number)
            self.assertTrue(self.holds(b"typed just now", "rescue-*.pelmar"), number)
            self.assertTrue(self.holds(b"a note", "notes-rescue-*.pelmar"), number)
            for one in self.folder.glob("*rescue-*"):
                one.unlink()
        # A program whose work is saved leaves nothing.
        self.start()
        session.program.send_signal(signal.SIGTERM)
        self.assertEqual(session.wait_exit(), -signal.SIGTERM)
        self.assertEqual(list(self.folder.glob("*rescue*")), [])

    def test_the_end_of_the_desktop_session_asks_nothing_and_keeps_all(self):
        session, manager = self.session, SessionManager()
        session.start(PROGRAM, "-NOMSG", SESSION_MANAGER=manager.address)
        self.assertTrue(manager.serve(lambda: manager.saves))
        main = session.wait_window("Pelmar VEX ()")
        session.type("typed just now")
        self.wait_changed(main)
        manager.end_session()
        self.assertTrue(manager.serve(lambda: not session.running()), session.titles())
        self.assertEqual(session.wait_exit(), 0)
        self.assertTrue(self.holds(b"typed just now"))
        # An argument would be a file to open.
        self.assertEqual(manager.restart, [os.fsencode(PROGRAM)])

    def test_without_its_folder_it_keeps_for_the_owner_alone(self):
        session = self.session
        self.folder.chmod(0o555)
        session.start_as_user(PROGRAM, "-NOMSG")
        session.wait_window("Pelmar VEX ()")
        session.type("secret")
        session.wait_window(re.compile(r".*\*"))
        session.program.send_signal(signal.SIGTERM)
        session.wait_exit()
        kept, = (session.home / "tmp").glob("pelmar-rescue-*.txt")
        self.assertEqual(kept.read_bytes(), b"Soubor:\r\nsecret\r\n\r\n")
        self.assertEqual(stat.S_IMODE(kept.stat().st_mode), 0o600)


class PowerTest(EditorCase):
    """Killed at random moments while it saves, closes and stores settings. Whatever the moment, the document's file is
    whole, old or new, the settings are whole, and what was kept before is still there."""

    OLD = b"old content\r\n" * 1000
    # Keys to a moment at which files are about to be written; before the question "Konec" they are written too.
    ACTS = ((("ctrl+u", "Uložit"), ("Return", "Soubor"), ("Return", None)),
            (("ctrl+F4", "Konec"), ("Return", None)),
            (("ctrl+F4", "Konec"), ("Escape", None)))

    def one_cut(self, act, kept, delay):
        session, page = self.session, self.session.home / "page.html"
        page.write_bytes(self.OLD)
        main = self.start_with(page)
        session.type("token")
        self.wait_changed(main)
        new = b"token" + self.OLD
        if kept:
            self.wait_kept(new)
        for key, box in act:
            session.key(key)
            session.wait_window(box) if box else time.sleep(delay)
        session.kill()

        self.assertIn(page.read_bytes(), (self.OLD, new))
        self.assertGreaterEqual(len((self.folder / "pelmar.ini").read_bytes()), len(settings_record()))
        for path in self.folder.glob("autosave_*.txt"):
            self.assertIn(new, path.read_bytes())
        everywhere = [page, *(one for one in self.folder.iterdir() if one.is_file())]
        self.assertTrue(not kept or any(new in one.read_bytes() for one in everywhere))

        # The next start stands, with or without an offer of what was left.
        session.start(PROGRAM, "-NOMSG")
        if session.wait_window(re.compile(r"Záchrana|Pelmar VEX \(\)")).title == "Záchrana":
            self.answer("Záchrana")
            session.wait_window(re.compile(r"Pelmar VEX \(.*"))
        session.kill()
        for one in (*self.folder.glob("*rescue-*"), *self.folder.glob("autosave_*")):
            one.unlink()

    def test_cuts_lose_nothing(self):
        for number in range(POWER_CUTS):
            act, kept, delay = self.ACTS[number % 3], random.random() < 0.5, random.uniform(0, 0.03)
            with self.subTest(act=act, kept=kept, delay=delay):
                self.one_cut(act, kept, delay)


if __name__ == "__main__":
    unittest.main()
