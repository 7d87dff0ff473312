"""Documents from opening to saving, with the real program."""

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
        # GNOME's own rule would choose the option.
        self.start(XDG_CURRENT_DESKTOP="GNOME")
        self.work("ctrl+h [Html horizontální čára] Return / [Pelmar VEX ()*]")
        self.end(self.window("Pelmar VEX ()*"))
        self.assertEqual(self.autosaved(), b"<HR>")

    def test_a_name_without_a_full_stop_ends_the_program_but_loses_nothing(self):
        self.start(self.write("README", "plain").name, title=None)
        self.work("[Pelmar VEX] Return")
        self.wait_exit(1)
        self.assertTrue(self.is_rescued(b"plain"))


if __name__ == "__main__":
    unittest.main()
