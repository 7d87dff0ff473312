"""The ciphers by keyboard alone in the real program: each dialog is opened from the menu, worked and closed by keys."""

import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
# How often Up is pressed in the menu "Editace" to get there from its end.
CHT, RND, CONFELD, SHIFT_KOD = 1, 2, 3, 4


class CipherTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)
        self.session.start(PROGRAM, "-NOMSG")
        self.main = self.session.wait_window("Pelmar VEX ()")
        self.session.activate(self.main)

    def write(self, text):
        self.session.activate(self.main)
        self.session.key("F4", "Delete")
        self.session.type(text)

    def open(self, item, title):
        self.session.activate(self.main)
        self.session.key("alt+e", *["Up"] * item, "Return")
        self.session.activate(self.session.wait_window(title))

    def close(self, title):
        self.session.key("Escape")
        self.session.wait_no_window(title)

    def wait_document(self, text):
        """Copies the document until it is the text that is expected."""
        self.session.activate(self.main)

        def copied():
            self.session.key("F4", "ctrl+k")
            return self.session.clipboard() == text

        self.session.wait_until(copied, f"the document {text!r}")

    def test_stream_key(self):
        session = self.session
        self.write("ab")
        session.key("F3")
        session.activate(session.wait_window("Kódovat"))
        session.type("abc")  # a number in spite of that: 0
        session.key("Return")
        self.close("Kódovat")
        self.wait_document("40")

    def test_shift(self):
        session = self.session
        self.write("Ahoj")
        self.open(SHIFT_KOD, "Posunová šifra")
        session.key("Right", "alt+a")
        self.close("Posunová šifra")
        self.wait_document("Bipk")

    def test_cronfeld(self):
        session = self.session
        self.write("aaa")
        self.open(CONFELD, "Cronfeldův systém")
        session.type("12")  # over the selected 0
        session.key("Return")
        self.close("Cronfeldův systém")
        self.wait_document("bcb")

    def test_rnd_cipher_with_its_file(self):
        session = self.session
        path = session.home / "key.pvt"
        self.write("AAA")
        self.open(RND, "RND Šifra")
        session.key("space")  # prepares the text; the next buttons are disabled still
        session.key("Tab", "space")  # generates the table
        session.key("shift+Tab", "space")  # deciphers: noise
        session.key("shift+Tab", "space")  # enciphers
        session.key(*["Tab"] * 7, "space")  # saves
        session.activate(session.wait_window("Uložit jako"))
        session.type(str(path))
        session.key("Return")
        session.wait_until(path.exists, "the table file")
        self.assertEqual(path.stat().st_size, 323)
        self.close("RND Šifra")

    def test_cht_and_sums(self):
        session = self.session
        self.write("1")
        self.open(CHT, "C.H.T: (common hacker transcription)")
        session.key("Return")
        self.close("C.H.T: (common hacker transcription)")
        self.wait_document("1")


if __name__ == "__main__":
    unittest.main()
