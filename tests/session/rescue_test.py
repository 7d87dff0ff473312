"""What isn't saved, documents and notes, with the real program: killed or cut off from the power at any moment, ended by
the system or with the desktop's session."""

import os
import random
import re
import shutil
import signal
import socket
import struct
import threading
import time
import unittest

from harness import PROGRAM, EditorCase

POWER_CUTS = int(os.environ.get("PELMAR_POWER_CUTS", "6"))
TAKE_BACK = "[Záchrana] Return / [Pelmar VEX ()*]"


def array(data):
    """As the session manager's protocol has it: a length before it, filled up to eight bytes."""
    data = struct.pack("<I", len(data)) + data
    return data + bytes(-len(data) % 8)


class SessionManager:
    """The desktop's session manager as far as a program at the end of the session meets it, by the bytes of its
    protocol: the client that registers is asked to save itself, at the end once more, and is told to die when it has.
    The client finds it by `address` in SESSION_MANAGER. `heard` is all that the client has told."""

    # Opcodes of messages, 0 for the connection's and 1 for the session's before each; of what is sent also the header's
    # fourth byte.
    SAVED = 1, 8
    SAVE_YOURSELF, DIE = (1, 3, 0), (1, 9, 0)
    NAMES = 2 * struct.pack("<H2s", 2, b"ok")  # of a maker and a version
    ANSWERS = {(0, 1): [((0, 1, 0), b"")],  # the byte order
               (0, 2): [((0, 6, 0), NAMES)],  # a connection
               (0, 7): [((0, 8, 1), NAMES)],  # a session on it
               (1, 1): [((1, 2, 0), array(b"client")), (SAVE_YOURSELF, bytes([1]))]}  # a client, to save itself now

    def __init__(self, folder):
        self.saves, self.heard = 0, b""
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.bind(str(folder / "session"))
        self.socket.listen()
        self.address = f"unix/{socket.gethostname()}:{folder}/session"
        threading.Thread(target=self.serve, daemon=True).start()

    def send(self, opcodes, data=b""):
        major, minor, last = opcodes
        data += bytes(-len(data) % 8)
        self.client.sendall(struct.pack("<BBBBI", major, minor, 0, last, len(data) // 8) + data)

    def serve(self):
        with self.socket, self.socket.accept()[0] as self.client, self.client.makefile("rb") as messages:
            while header := messages.read(8):
                major, minor, length = struct.unpack("<BBxxI", header)
                message = min(major, 1), minor
                self.heard += messages.read(8 * length)
                for answer in self.ANSWERS.get(message, []):
                    self.send(*answer)
                if message == self.SAVED:
                    self.saves += 1
                    if self.saves == 2:  # the end's
                        self.send(self.DIE)

    def end_session(self):
        self.send(self.SAVE_YOURSELF, bytes([0, 1]))  # for all, before the end


class Disk:
    """A real file system in an image, which nothing reaches but what is synced. Two copies of the image a moment apart
    are the same, so that a copy is what a cut of the power leaves."""

    def __init__(self, case, folder):
        self.command, self.folder, self.image = case.command, folder, case.home / f"{folder.name}.img"
        folder.mkdir(exist_ok=True)
        with open(self.image, "wb") as file:
            file.truncate(16 << 20)
        self.command("mkfs.ext4", "-q", self.image)
        self.mount()
        case.addCleanup(self.command, "umount", folder)
        case.addCleanup(case.kill)

    def mount(self):
        # The system's own writing comes long after the test.
        self.command("mount", "-o", "loop,commit=300", self.image, self.folder)

    def copy(self):
        shutil.copyfile(self.image, f"{self.image}.cut")

    def go_on_with_copy(self):
        self.command("umount", self.folder)
        os.replace(f"{self.image}.cut", self.image)
        self.mount()


def may_mount():
    return os.geteuid() == 0 and shutil.which("mkfs.ext4") and os.path.exists("/dev/loop-control")


class RescueTest(EditorCase):
    def test_a_killed_program_gives_documents_and_notes_back(self):
        (self.folder / "notes.dat").write_bytes(b"\x05\0first" + bytes(8))
        self.start()
        self.work('"never saved" alt+3 "third" F9 [Poznámky] ctrl+End " and more"')
        self.wait_kept(b"never saved", b"third", b"first and more")
        # A second copy asks nothing about what the living first one keeps, and leaves it alone.
        first, self.program = self.program, None
        self.end(self.start(), answer=None)
        self.assertTrue(self.holds(b"third"))
        first.kill()
        first.wait()

        self.start(title="Záchrana")
        main = self.work(TAKE_BACK)
        question = self.work("F9 [Záchrana]")
        # No question lies under the notes, which stay on top.
        self.wait(lambda: "ABOVE" in self.command("xprop", "-id", question.id, "_NET_WM_STATE"), "it on top")
        self.work("[Záchrana] Return /")
        self.activate(self.window("Poznámky"))
        self.work("[Poznámky] alt+F4 /")
        self.assertEqual((self.folder / "notes.dat").read_bytes(), b"\x0e\0first and more" + bytes(8))
        self.work('alt+1 alt+3 ctrl+End "!"')
        self.end(main)
        self.assertEqual(self.autosaved(), b"third!")
        everything = (self.folder / "autosave_all_files.txt").read_bytes()
        self.assertTrue(everything.startswith(b"Soubor:\r\nnever saved\r\n\r\n"))
        # Asked once: an ordinary start follows.
        self.start()
        self.assertEqual(self.rescues(), [])

    def assert_closing_files(self, text):
        """The files of a close are there."""
        self.assertEqual(self.autosaved(), text)
        self.assertIn(text, (self.folder / "autosave_all_files.txt").read_bytes())
        self.assertTrue((self.folder / "pelmar.ini").stat().st_size)

    def test_the_system_ends_the_program_and_all_is_kept(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            main = self.start()
            self.work('F9 [Poznámky] "a note"')
            self.activate(main)
            self.work('"typed just now" [Pelmar VEX ()*]')
            (self.folder / "pelmar.ini").unlink()
            self.program.send_signal(number)
            self.wait_exit(-number)
            self.assertTrue(self.holds(b"typed just now", "rescue-*.pelmar"), number)
            self.assertTrue(self.holds(b"a note", "notes-rescue-*.pelmar"), number)
            self.assert_closing_files(b"typed just now")
            for one in (*self.rescues(), *self.folder.glob("autosave_*")):
                one.unlink()
        # A program whose work is saved leaves nothing.
        self.start()
        self.program.send_signal(signal.SIGTERM)
        self.wait_exit(-signal.SIGTERM)
        self.assertEqual(self.rescues(), [])

    def test_the_end_of_the_desktop_session_asks_nothing_and_keeps_all(self):
        manager = SessionManager(self.home)
        self.start(title=None, SESSION_MANAGER=manager.address)
        self.wait(lambda: manager.saves, "the first save")
        self.work('[Pelmar VEX ()] "typed just now" [Pelmar VEX ()*]')
        (self.folder / "pelmar.ini").unlink()
        manager.end_session()
        self.wait_exit()
        self.assertTrue(self.holds(b"typed just now"))
        self.assert_closing_files(b"typed just now")
        # How it wants to be started again: an argument would be a file to open.
        self.assertIn(array(b"RestartCommand") + array(b"LISTofARRAY8") + bytes([1, 0, 0, 0, 0, 0, 0, 0])
                      + array(os.fsencode(PROGRAM)), manager.heard)

    disks = ()  # what a cut of the power strikes; without any it is a kill

    def cut_off(self):
        if self.disks:
            self.program.send_signal(signal.SIGSTOP)
            time.sleep(0.1)  # a call that waits for the disk ends
            for disk in self.disks:
                disk.copy()
        self.kill()
        for disk in self.disks:
            disk.go_on_with_copy()

    def one_cut(self, number, act, kept, is_new):
        """Cut off while it saves, closes and stores settings, and after the Yes to what was kept: the document's file
        is whole, old or new, and new if the title told so; the settings are whole, and what was kept is still there."""
        def cut(latest):
            time.sleep(random.uniform(0, latest))
            saved = self.window(f"Pelmar VEX ({page})") is not None
            self.cut_off()
            content = page.read_bytes() if page.exists() else None
            self.assertIn(content, [new] if saved else [None if is_new else old, new])
            everywhere = [page, *self.folder.iterdir()]
            self.assertTrue(not kept or any(new in one.read_bytes() for one in everywhere if one.is_file()))
        old = b"old content\r\n" * 1000
        new = b"token%d" % number + old
        page = self.home / "documents" / "page.html"
        page.write_bytes(old)
        self.start_with(page)
        if is_new:
            page.unlink()
        os.sync()
        self.work(f'"token{number}" [Pelmar VEX ({page})*]')
        if kept:
            self.wait_kept(new)
            time.sleep(1 if self.disks else 0)
        self.work(act)
        cut(0.2 if self.disks else 0.03)
        self.assertGreaterEqual((self.folder / "pelmar.ini").stat().st_size, self.size_of_settings)
        for path in self.folder.glob("autosave_*.txt"):
            self.assertIn(new, path.read_bytes())
        # The next start stands, with or without an offer of what was left.
        if self.start(title=re.compile(r"Záchrana|Pelmar VEX \(\)")).title == "Záchrana":
            self.work(f"[Záchrana] Return / [Pelmar VEX ({page})*]")
        cut(0.3)
        for one in (*self.rescues(), *self.folder.glob("autosave_*")):
            one.unlink()

    def cut_off_often(self):
        self.size_of_settings = (self.folder / "pelmar.ini").stat().st_size
        for number in range(POWER_CUTS):
            kept, is_new = random.random() < 0.5, random.random() < 0.5
            # To a moment at which files are about to be written; before the question "Konec" they are written too.
            act = ("ctrl+u [Uložit] Return" + ("" if is_new else " [Soubor] Return"), "ctrl+F4 [Konec] Return",
                   "ctrl+F4 [Konec] Escape")[number % 3]
            with self.subTest(act=act, kept=kept, is_new=is_new):
                self.one_cut(number, act, kept, is_new)

    def test_kills_at_random_moments_lose_nothing(self):
        (self.home / "documents").mkdir()
        self.cut_off_often()

    @unittest.skipUnless(may_mount(), "mounts images of disks")
    def test_cuts_of_the_power_lose_nothing(self):
        settings = (self.folder / "pelmar.ini").read_bytes()
        self.disks = [Disk(self, self.home / "documents"), Disk(self, self.folder)]
        (self.folder / "pelmar.ini").write_bytes(settings)
        self.cut_off_often()


if __name__ == "__main__":
    unittest.main()
