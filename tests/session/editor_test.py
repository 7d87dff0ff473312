"""The main job with the real program: open, edit, use the menus' keys, switch tabs, save, close, start again. And the
keyboard on the screen beside a real one."""

import subprocess
import unittest

from harness import PROGRAM, EditorCase

PAGE = "<HTML>\r\nPříliš žluťoučký kůň €\r\n".encode("cp1250") + bytes([0, 13, 10, 13, 9, 255])


class EditorTest(EditorCase):
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
        expected = PAGE + "\r\ntext<B>Tučně</B><CENTER> Centrovaný text </CENTER>@".encode("cp1250")

        session.key("alt+2")
        self.wait_title(main, "Pelmar VEX ()")
        session.type("second")
        self.wait_title(main, "Pelmar VEX ()*")
        session.key("alt+1")
        self.wait_title(main, clean + "*")
        self.save_over()
        self.wait_title(main, clean)
        self.assertEqual(path.read_bytes(), expected)

        # The second document is unsaved: No keeps the program, Yes ends it.
        session.key("ctrl+F4")
        self.answer("Konec", "Escape")
        self.end(main)
        self.assertEqual(self.autosaved(), expected)
        self.assertEqual(list(self.folder.glob("rescue*")), [])

        # The text of the current tab comes back, without a path and without a mark.
        main = self.start()
        session.key("ctrl+u")
        self.answer("Uložit", "Escape")
        self.end(main, asks=False)
        self.assertEqual(self.autosaved(), expected)

    def test_a_name_without_a_full_stop_ends_the_program_but_loses_nothing(self):
        (self.session.home / "README").write_bytes(b"plain")
        self.session.start(PROGRAM, "README")
        self.answer("Pelmar VEX")
        self.assertEqual(self.session.wait_exit(), 1)
        self.assertTrue(self.holds(b"plain"))

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

    def test_keyboard_on_the_screen(self):
        session = self.session
        # With a text there from the first moment all items of the menu are on, so counting from its end is safe.
        (self.folder / "autosave_pelmar_vex.txt").write_bytes(b"ab")
        session.run("setxkbmap", "cz")  # with dead keys
        main = self.start()
        session.key("alt+s", *["Up"] * 8, "Return")
        keyboard = session.wait_window("Klávesnice")
        session.click(keyboard, 190, 30)  # č
        session.click(keyboard, 60, 150)  # Shift
        session.click(keyboard, 190, 30)
        self.wait_changed(main)
        session.key("x", "space")
        session.click(keyboard, 560, 150)  # Shift off
        session.key("y", "dead_caron", "n", "Escape")
        session.wait_gone(keyboard)
        session.key("z")
        self.end(main)
        self.assertEqual(self.autosaved().decode("cp1250"), "čČX yňzab")


if __name__ == "__main__":
    unittest.main()
