"""What isn't saved, documents and notes, with the real program: killed at any moment, ended by the system, on a disk without
room and without a folder of its own."""

import os
import re
import resource
import signal
import stat
import sys
import time
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from session_manager import SessionManager  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
# As a full disk: the write beyond the limit fails, where the program isn't ended by the signal.
LIMITED = ["sh", "-c", 'trap "" XFSZ; exec "$0" "$@"', PROGRAM]


class RescueTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        self.folder = self.session.data_folder
        write_settings(self.folder)

    def start(self, title="Pelmar VEX ()", program=(PROGRAM,)):
        self.session.start(*program, "-NOMSG")
        window = self.session.wait_window(title)
        self.session.activate(window)
        return window

    def holds(self, *texts, pattern="*rescue-*.pelmar"):
        kept = b"".join(one.read_bytes() for one in self.folder.glob(pattern))
        return all(text in kept for text in texts)

    def wait_kept(self, *texts, patience=3):
        self.session.wait_until(lambda: self.holds(*texts), f"{texts} in a rescue file", patience)

    def leave(self, text):
        """A copy that typed this and died."""
        self.start()
        self.session.type(text)
        self.wait_kept(text.encode())
        self.session.kill()

    def accept(self):
        """Yes to the question that is up; the text is in the box behind it."""
        self.session.key("Return")
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
        session.activate(session.wait_window("Poznámky"))
        session.key("ctrl+End")
        session.type(" and more")
        self.wait_kept(b"never saved", b"third", b"first and more")
        session.kill()

        self.start("Záchrana")
        main = self.accept()
        session.activate(main)
        session.shot("rescued")
        session.key("F9")
        question = session.wait_window("Záchrana")
        # No question lies under the notes, which stay on top.
        session.wait_until(lambda: "ABOVE" in session._run("xprop", "-id", question.id, "_NET_WM_STATE"), "it on top")
        session.activate(question)
        session.key("Return")
        session.wait_no_window("Záchrana")
        session.close(session.window("Poznámky"))
        session.wait_no_window("Poznámky")
        self.assertEqual((self.folder / "notes.dat").read_bytes(), b"\x0e\0first and more" + bytes(8))
        session.activate(main)
        session.key("alt+1", "alt+3", "ctrl+End")
        session.type("!")
        session.key("ctrl+F4")
        session.wait_window("Konec")
        session.key("Return")
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual((self.folder / "autosave_pelmar_vex.txt").read_bytes(), b"third!")
        everything = (self.folder / "autosave_all_files.txt").read_bytes()
        self.assertTrue(everything.startswith(b"Soubor:\r\nnever saved\r\n\r\n"))
        # Asked once: an ordinary start follows.
        self.start()
        self.assertEqual(list(self.folder.glob("*rescue*")), [])

    def test_a_kill_behind_yes_loses_nothing(self):
        self.leave("precious")
        for pause in (0, 0.05, 0.15, 0.3):
            self.start("Záchrana")
            self.accept()
            time.sleep(pause)
            self.session.kill()
            self.assertTrue(self.holds(b"precious"), pause)

    def test_a_full_disk_is_waited_for_and_loses_nothing(self):
        session = self.session
        self.leave("precious")
        old = list(self.folder.glob("rescue-*.pelmar"))
        session.start(*LIMITED, "-NOMSG")
        session.activate(session.wait_window("Záchrana"))
        self.limit(0)
        self.accept()
        session.shot("full-disk")
        self.assertEqual(list(self.folder.glob("rescue-*.pelmar")), old)
        session.kill()
        # The same again, but then there is room, without a key.
        session.start(*LIMITED, "-NOMSG")
        session.activate(session.wait_window("Záchrana"))
        self.limit(0)
        main = self.accept()
        session.activate(main)
        session.key("ctrl+End")
        session.type(" more")
        time.sleep(1.5)
        self.assertTrue(self.holds(b"precious"))
        self.limit(resource.RLIM_INFINITY)
        self.wait_kept(b"precious more", patience=6)
        session.wait_until(lambda: not old[0].exists(), "the end of the old file")

    def test_the_system_ends_the_program_and_all_is_kept(self):
        session = self.session
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            main = self.start()
            session.key("F9")
            session.activate(session.wait_window("Poznámky"))
            session.type("a note")
            session.activate(main)
            session.type("typed just now")
            session.wait_until(lambda main=main: session.title(main).endswith("*"), "the mark")
            session.program.send_signal(number)
            self.assertEqual(session.wait_exit(), -number)
            self.assertTrue(self.holds(b"typed just now", pattern="rescue-*.pelmar"), number)
            self.assertTrue(self.holds(b"a note", pattern="notes-rescue-*.pelmar"), number)
            for one in self.folder.glob("*rescue-*"):
                one.unlink()
        # A program whose work is saved leaves nothing.
        self.start()
        session.program.send_signal(signal.SIGTERM)
        self.assertEqual(session.wait_exit(), -signal.SIGTERM)
        self.assertEqual(list(self.folder.glob("*rescue*")), [])

    def test_the_end_of_the_desktop_session_asks_nothing_and_keeps_all(self):
        session, manager = self.session, SessionManager()
        session.env["SESSION_MANAGER"] = manager.address
        session.start(PROGRAM, "-NOMSG")
        self.assertTrue(manager.serve(lambda: manager.saves))
        main = session.wait_window("Pelmar VEX ()")
        session.activate(main)
        session.type("typed just now")
        session.wait_until(lambda: session.title(main).endswith("*"), "the mark")
        manager.end_session()
        self.assertTrue(manager.serve(lambda: not session.running()), session.titles())
        self.assertEqual(session.wait_exit(), 0)
        self.assertTrue(self.holds(b"typed just now"))
        # An argument would be a file to open.
        self.assertEqual(manager.restart, [os.fsencode(PROGRAM)])

    def test_without_its_folder_it_keeps_for_the_owner_alone(self):
        session = self.session
        os.chmod(self.folder, 0o555)
        session.start_as_user(PROGRAM, "-NOMSG")
        session.activate(session.wait_window("Pelmar VEX ()"))
        session.type("secret")
        session.wait_window(re.compile(r".*\*"))
        session.program.send_signal(signal.SIGTERM)
        session.wait_exit()
        kept = list((session.home / "tmp").glob("pelmar-rescue-*.txt"))
        self.assertEqual([one.read_bytes() for one in kept], [b"Soubor:\r\nsecret\r\n\r\n"])
        self.assertEqual(stat.S_IMODE(kept[0].stat().st_mode), 0o600)


if __name__ == "__main__":
    unittest.main()
