"""Documents from opening to saving, and the notes alone, with the real program."""

import unittest

from harness import EditorCase

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
        files = {path: path.read_bytes() for path in self.folder.iterdir()}
        notes = self.start("-note", title="Poznámky")
        self.assertEqual(self.windows(), [notes])
        self.work('"milk" alt+F4 [Konec] Return /')  # No is the default
        self.end(notes, "alt+a")
        files[self.folder / "notes.dat"] = b"\4\0milk" + bytes(8)
        self.assertEqual({path: path.read_bytes() for path in self.folder.iterdir()}, files)


if __name__ == "__main__":
    unittest.main()
