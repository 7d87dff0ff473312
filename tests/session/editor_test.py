"""The main job with the real program: open, edit, use the menus' keys, switch tabs, save, close, start again, and
make a page by the keyboard. The notes as the whole program, and the keyboard on the screen beside a real one."""

import subprocess
import unittest

from harness import PROGRAM, EditorCase

BYTES = "<HTML>\r\nPříliš žluťoučký kůň €\r\n".encode("cp1250") + bytes([0, 13, 10, 13, 9, 255])


class EditorTest(EditorCase):
    def test_open_edit_save_close_and_start_again(self):
        path = self.write("stránka.html", BYTES)
        clean = f"Pelmar VEX ({path})"
        main = self.start(path.name, title=clean)
        # Keys of the menus, not of the text box: bold, centre, "@".
        self.work(f'ctrl+End Return "text" [{clean}*] ctrl+t ctrl+c ctrl+z')
        expected = BYTES + "\r\ntext<B>Tučně</B><CENTER> Centrovaný text </CENTER>@<HR>".encode("cp1250")
        # The Enter that ends a dialog or leads to a question is none for what comes up, however long it is held.
        with self.busy_processors():
            for steps, after in (("ctrl+h [Html horizontální čára]", f"{clean}*"), ("alt+s", "Nový")):
                self.work(steps)
                self.command("xdotool", "keydown", "Return", "sleep", "1.2", "keyup", "Return")
                self.wait_window(after)
        self.work("[Nový] Escape /")
        self.work(f'alt+2 [Pelmar VEX ()] "second" [Pelmar VEX ()*] alt+1 [{clean}*]')
        self.save_over()
        self.work(f"[{clean}]")
        self.assertEqual(path.read_bytes(), expected)
        # Two menus have the same access key, and many items none.
        self.work("alt+t alt+t k Return [HTML Komentář] Escape /")
        # Two questions in a row end where the first was asked.
        self.work('F1 [Help k Pelmar VEX] Tab Tab "checkpoint" Return [hledání] Return /'
                  " [hledání] Escape / [Help k Pelmar VEX] Escape /")
        # The second document is unsaved: No keeps the program, Yes ends it.
        self.work("ctrl+F4 [Konec] Escape /")
        self.end(main)
        self.assertEqual((self.autosaved(), self.rescues()), (expected, []))
        # The text of the current tab comes back, without a path and without a mark.
        main = self.start()
        self.work("ctrl+u [Uložit] Escape /")
        self.end(main, answer=None)
        self.assertEqual(self.autosaved(), expected)

    def test_a_name_without_a_full_stop_ends_the_program_but_loses_nothing(self):
        self.start(self.write("README", "plain").name, title=None)
        self.work("[Pelmar VEX] Return")
        self.wait_exit(1)
        self.assertTrue(self.holds(b"plain"))

    def test_notes_store_themselves_and_alone_nothing_else(self):
        main = self.start()
        notes = self.work('F9 [Poznámky] "milk" Return "breads" alt+2 "second" alt+1 BackSpace')
        self.command("xdotool", "windowminimize", notes.id)
        self.work("[Pelmar VEX ()] F9 [Poznámky] alt+F4 /")
        self.end(main, answer=None)
        kept = {path: path.read_bytes() for path in self.folder.iterdir()}
        notes = self.start("-note", title="Poznámky")
        self.assertEqual(self.windows(), [notes])
        self.work('ctrl+End "!" alt+F4 [Konec] Return /')  # No is the default
        self.end(notes, "alt+a")
        kept[self.folder / "notes.dat"] = b"\x0c\0milk\r\nbread!\6\0second" + bytes(6)
        self.assertEqual({path: path.read_bytes() for path in self.folder.iterdir()}, kept)

    def test_the_terminals_switches_print_and_touch_nothing(self):
        home = self.home / "other"
        home.mkdir()
        def run(*words, **where):
            return subprocess.run([PROGRAM, *words], env={"HOME": str(home)}, timeout=15, **where)
        for switch, printed in (("--help", b"-NOMSG"), ("--version", b"Pelmar VEX 8.9.2.1b CZ\n")):
            done = run(switch, capture_output=True)
            self.assertEqual((done.returncode, done.stderr, printed in done.stdout), (0, b"", True), done.stdout)
            with open("/dev/full", "wb") as full:
                self.assertEqual(run(switch, stdout=full).returncode, 1)
        done = run("--help", "x", capture_output=True)  # a file, which needs a display
        self.assertEqual((done.returncode, done.stdout, b"DISPLAY" in done.stderr), (1, b"", True))
        done = subprocess.run([PROGRAM], env={"HOME": str(home), "DISPLAY": ":9999"}, timeout=15, capture_output=True)
        self.assertEqual((done.returncode, b"DISPLAY: :9999" in done.stderr), (1, True), done.stderr)
        self.assertEqual(list(home.iterdir()), [])

    def test_keyboard_on_the_screen(self):
        # With a text there from the first moment all items of the menu are on, so counting from its end is safe.
        (self.folder / "autosave_pelmar_vex.txt").write_bytes(b"ab")
        self.command("setxkbmap", "cz")  # with dead keys
        main = self.start()
        self.work("alt+s" + 8 * " Up" + " Return [Klávesnice] @190,30 @60,150 @190,30")  # č, Shift, č
        self.wait(lambda: self.window("Pelmar VEX ()*"), "the mark of the change")
        self.work("[Klávesnice] x space @560,150 y dead_caron n Escape / z")  # Shift off
        self.end(main)
        self.assertEqual(self.autosaved().decode("cp1250"), "čČX yňzab")

    def test_a_page_by_the_keyboard_alone(self):
        color = "[HTML  - Vytvoření] Tab space Tab space [Výběr barvy]"  # the next one, by its button
        page = self.home / "kocka.html"
        self.start("")
        # White ground and wine-red text; then what is typed goes over the marker that stands selected.
        self.work(f"""alt+s v [HTML  - Vytvoření] ctrl+a "Kocka" {color} Return / {color} {8 * "Page_Down "} Return /
            [HTML  - Vytvoření] alt+o / [Pelmar VEX ()*] alt+v Alt_L "Nase kocka"
            ctrl+u [Uložit] ctrl+a "kocka" Return /
            [Pelmar VEX ({page})]""")
        text = page.read_bytes().decode("cp1250")
        for part in ("<TITLE>Kocka</TITLE>", ' <BODY BGCOLOR="#FFFFFF" TEXT="#500000">\r\nNase kocka\r\n'):
            self.assertIn(part, text)


if __name__ == "__main__":
    unittest.main()
