"""Documents from opening to saving, the notes alone, and the command line, with the real program."""

import subprocess
import unittest

from harness import PROGRAM, EditorCase

BYTES = "<HTML>\r\nPříliš žluťoučký kůň €\r\n".encode("cp1250") + bytes([0, 13, 10, 13, 9, 255])


class DocumentTest(EditorCase):
    def test_a_file_is_opened_edited_by_keys_and_saved_to_the_byte(self):
        path = self.write("stránka.html", BYTES)
        title = f"Pelmar VEX ({path})"
        self.start(path.name, title=title)
        # Ctrl+C and Ctrl+Z are keys of the menus here: centre and "@".
        self.work(f'ctrl+End Return "text" [{title}*] ctrl+t ctrl+c ctrl+z')
        self.save_over()
        self.work(f"[{title}]")
        added = "\r\ntext<B>Tučně</B><CENTER> Centrovaný text </CENTER>@"
        self.assertEqual(path.read_bytes(), BYTES + added.encode("cp1250"))

    def test_enter_in_an_option_accepts_the_dialog_on_every_desktop(self):
        # GNOME would choose the option.
        self.start(XDG_CURRENT_DESKTOP="GNOME")
        self.work("ctrl+h [Html horizontální čára] Return / [Pelmar VEX ()*]")
        self.end(self.window("Pelmar VEX ()*"))
        self.assertEqual(self.autosaved(), b"<HR>")

    def test_an_unsaved_document_in_another_tab_is_asked_about(self):
        main = self.start()
        self.work('alt+2 "second" [Pelmar VEX ()*] alt+1 [Pelmar VEX ()] ctrl+F4 [Konec] Escape /')
        self.assertTrue(self.running())
        self.end(main)
        self.assertEqual(self.rescues(), [])

    def test_the_last_text_comes_back_as_an_unchanged_document(self):
        self.end(self.start_with(self.write("page.html", BYTES)), answer=None)
        self.end(self.start(title="Pelmar VEX ()"), answer=None)
        self.assertEqual(self.autosaved(), BYTES)

    def test_a_name_without_a_full_stop_ends_the_program_but_loses_nothing(self):
        self.start(self.write("README", "plain").name, title=None)
        self.work("[Pelmar VEX] Return")
        self.wait_exit(1)
        self.assertTrue(self.holds(b"plain"))

    def test_a_page_is_made_by_the_keyboard_alone(self):
        color = "[HTML  - Vytvoření] Tab space Tab space [Výběr barvy]"  # the next colour, by its button
        page = self.home / "kocka.html"
        self.start("")
        # White ground and wine-red text. What is typed replaces the marker, which is selected.
        self.work(f"""alt+s v [HTML  - Vytvoření] ctrl+a "Kocka" {color} Return / {color} {8 * "Page_Down "} Return /
            [HTML  - Vytvoření] alt+o / [Pelmar VEX ()*] alt+v Alt_L "Nase kocka"
            ctrl+u [Uložit] ctrl+a "kocka" Return /
            [Pelmar VEX ({page})]""")
        text = page.read_bytes().decode("cp1250")
        self.assertIn("<TITLE>Kocka</TITLE>", text)
        self.assertIn(' <BODY BGCOLOR="#FFFFFF" TEXT="#500000">\r\nNase kocka\r\n', text)


class NotesTest(EditorCase):
    def test_notes_alone_write_no_other_file(self):
        self.end(self.start(), answer=None)
        files = {path: path.read_bytes() for path in self.folder.iterdir()}
        notes = self.start("-note", title="Poznámky")
        self.assertEqual(self.windows(), [notes])
        self.work('"milk" alt+F4 [Konec] Return /')  # No is the default
        self.end(notes, "alt+a")
        files[self.folder / "notes.dat"] = b"\4\0milk" + bytes(8)
        self.assertEqual({path: path.read_bytes() for path in self.folder.iterdir()}, files)


class CommandLineTest(EditorCase):
    """Without a display, and with an empty home."""

    def run_program(self, *words, display=None):
        home = self.home / "other"
        home.mkdir(exist_ok=True)
        environment = {"HOME": str(home)} | ({"DISPLAY": display} if display else {})
        done = subprocess.run([PROGRAM, *words], env=environment, timeout=60, capture_output=True)
        self.assertEqual(list(home.iterdir()), [])
        return done

    def test_help_and_version_are_printed_and_leave_no_file(self):
        for switch, printed in (("--help", b"-NOMSG"), ("--version", b"Pelmar VEX 8.9.2.1b CZ\n")):
            with self.subTest(switch):
                done = self.run_program(switch)
                self.assertEqual((done.returncode, done.stderr), (0, b""))
                self.assertIn(printed, done.stdout)

    def test_a_missing_display_is_named(self):
        for words, display, named in (((), ":9999", b"DISPLAY: :9999"), (("--help", "x"), None, b"DISPLAY")):
            with self.subTest(words):
                done = self.run_program(*words, display=display)
                self.assertEqual((done.returncode, done.stdout), (1, b""))
                self.assertIn(named, done.stderr)


if __name__ == "__main__":
    unittest.main()
