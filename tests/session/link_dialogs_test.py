"""A picture and a sample put into a document with the keyboard alone, in the real program."""

import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")


class PictureAndSampleTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)
        self.web = self.session.home / "web"
        (self.web / "sub").mkdir(parents=True)
        (self.web / "sub" / "logo.gif").touch()
        (self.web / "x.htm").touch()
        self.document = self.web / "page.html"
        self.document.write_text("")

    def in_dialog(self, title, *keys):
        self.session.wait_window(title)
        self.session.key(*keys)
        self.session.wait_no_window(title)
        self.session.activate(self.main)

    def test_keys_alone(self):
        session = self.session
        session.start(PROGRAM, self.document.name, folder=self.web)
        self.main = session.wait_window(f"Pelmar VEX ({self.document})")
        session.activate(self.main)

        # From the files back to the folders, into "sub" below the highlighted one; over the mask to the files; Enter.
        session.key("ctrl+p")
        self.in_dialog("HTML Obrázek", *["shift+Tab"] * 2, "Down", "Return", "Tab", "Tab", "Down", "Return")

        self.save()
        picture = f'<IMG SRC="file://{self.web}/sub/logo.gif">'
        self.assertEqual(self.document.read_text(), picture)

        # The second sample of the list takes the document over, and Alt+Backspace brings it back.
        session.key("alt+s", *["Down"] * 4, "Return")
        session.wait_window("Vzorky")
        session.shot("samples")
        self.in_dialog("Vzorky", "Home", "Down", "Return")
        self.save()
        self.assertTrue(self.document.read_text().startswith("<html>\n<head><title>COOL PAGE</title></head>\n"))
        session.key("alt+BackSpace")
        self.save()
        self.assertEqual(self.document.read_text(), picture)

    def save(self):
        """Ulož with its default button, and Yes to its question."""
        self.session.key("ctrl+u")
        self.session.wait_window("Uložit")
        self.session.key("Return")
        self.session.wait_window("Soubor")
        self.session.key("Return")
        self.session.wait_no_window("Soubor")
        self.session.activate(self.main)


if __name__ == "__main__":
    unittest.main()
