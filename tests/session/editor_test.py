"""The main job with the real program: open, edit, use the menus' keys, switch tabs, save, close, start again."""

import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
PAGE = "<HTML>\r\nPříliš žluťoučký kůň €\r\n".encode("cp1250") + bytes([0, 13, 10, 13, 9, 255])


class EditorTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)

    def start(self, *arguments, title):
        self.session.start(PROGRAM, *arguments)
        main = self.session.wait_window(title)
        self.session.activate(main)
        return main

    def wait_title(self, window, title):
        self.session.wait_until(lambda: self.session.title(window) == title, f"the title {title!r}")

    def save_over(self, path):
        """Ulož with its default button, and Yes to its question."""
        self.session.key("ctrl+u")
        self.session.wait_window("Uložit")
        self.session.key("Return")
        self.session.wait_window("Soubor")
        self.session.key("Return")
        self.session.wait_no_window("Soubor")

    def test_open_edit_save_close_and_start_again(self):
        session = self.session
        path = session.home / "stránka.html"
        path.write_bytes(PAGE)
        clean = f"Pelmar VEX ({path})"
        main = self.start(path.name, title=clean)
        session.key("ctrl+End", "Return")
        session.type("text")
        self.wait_title(main, clean + "*")
        # Keys of the menus, not of the text box: bold, centre, "@".
        session.key("ctrl+t", "ctrl+c", "ctrl+z")
        session.shot("main")
        expected = PAGE + ("\r\ntext<B>Tučně</B><CENTER> Centrovaný text </CENTER>@").encode("cp1250")

        session.key("alt+2")
        self.wait_title(main, "Pelmar VEX ()")
        session.type("second")
        self.wait_title(main, "Pelmar VEX ()*")
        session.key("alt+1")
        self.wait_title(main, clean + "*")
        self.save_over(path)
        self.wait_title(main, clean)
        self.assertEqual(path.read_bytes(), expected)

        # The second document is unsaved: No keeps the program, Yes ends it.
        session.key("ctrl+F4")
        session.wait_window("Konec")
        session.key("Escape")
        session.wait_no_window("Konec")
        session.activate(main)
        session.key("ctrl+F4")
        session.wait_window("Konec")
        session.key("Return")
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual((session.data_folder / "autosave_pelmar_vex.txt").read_bytes(), expected)
        self.assertEqual(list(session.data_folder.glob("rescue*")), [])

        # The text of the current tab comes back, without a path and without a mark.
        main = self.start("-NOMSG", title="Pelmar VEX ()")
        session.key("ctrl+u")
        session.wait_window("Uložit")
        session.key("Escape")
        session.wait_no_window("Uložit")
        session.close(main)
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual((session.data_folder / "autosave_pelmar_vex.txt").read_bytes(), expected)

    def test_a_name_without_a_full_stop_ends_the_program_but_loses_nothing(self):
        session = self.session
        (session.home / "README").write_bytes(b"plain")
        session.start(PROGRAM, "README")
        box = session.wait_window("Pelmar VEX")
        session.activate(box)
        session.key("Return")
        self.assertEqual(session.wait_exit(), 1)
        self.assertTrue(any(b"plain" in one.read_bytes() for one in session.data_folder.glob("rescue-*.pelmar")))

    def test_the_terminals_switches_print_and_touch_nothing(self):
        home = self.session.home / "other"
        home.mkdir()
        for switch, printed in (("--help", "-NOMSG"), ("--version", "Pelmar VEX 8.")):
            done = subprocess.run([PROGRAM, switch], env={"HOME": str(home)}, capture_output=True, timeout=15)
            self.assertEqual((done.returncode, done.stderr), (0, b""))
            self.assertIn(printed, done.stdout.decode())
            with open("/dev/full", "wb") as full:
                self.assertEqual(subprocess.run([PROGRAM, switch], env={"HOME": str(home)}, stdout=full).returncode, 1)
        self.assertEqual(list(home.iterdir()), [])

    def test_first_start_asks_for_the_profile(self):
        session = self.session
        (session.data_folder / "pelmar.ini").unlink()
        session.start(PROGRAM, "-NOMSG")
        config = session.wait_window("Config")
        session.activate(config)
        session.type("Jan\tjan@example.cz")
        session.key("Return")
        main = session.wait_window("Pelmar VEX ()")
        session.shot("first-start")
        session.close(main)
        self.assertEqual(session.wait_exit(), 0)
        record = (session.data_folder / "pelmar.ini").read_bytes()
        self.assertIn(b"\x03\x00Jan\x0e\x00jan@example.cz", record)


if __name__ == "__main__":
    unittest.main()
