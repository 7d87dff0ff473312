"""A page made from an empty document with the program's dialogs and the keyboard alone, saved, and looked at in the
internal browser."""

import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from picture import Picture  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
PINK, WINE = "#ff00ff", "#500000"
HTML_MENU = ["alt+s", *["Right"] * 4]
PAGE = """ <BODY BGCOLOR="#FFFFFF" TEXT="#500000">
<H1 ALIGN = "CENTER"> Nase kocka </H1>
<HR>
<UL>
<LI>mleko</LI>
<LI>Položka</LI>
</UL>
<TABLE>
<TR><TD>Micka</TD><TD>5 let</TD></TR>
</TABLE>
<P><IMG SRC="kocka.gif">
<A HREF="dalsi.htm">Odkaz na dalsi.htm</A>"""


@unittest.skipUnless(built("pelmar-browser.so").exists(), "the browser module is not built")
class SiteTest(unittest.TestCase):
    def dialog(self, title, *keys):
        """Keys for the dialog that was just asked for; its text fields take what begins with "="."""
        session = self.session
        window = session.wait_window(title)
        session.wait_until(lambda: session.active() == int(window.id, 16), f"{title} to be active")
        for key in keys:
            if key.startswith("="):
                session.type(key[1:])
            else:
                session.key(key)
        session.wait_no_window(title)
        session.activate(self.main)

    def test_a_page_by_dialogs_alone(self):
        with Session() as self.session:
            session = self.session
            write_settings(session.data_folder, width=13500)
            web = session.home / "web"
            web.mkdir()
            subprocess.run(["convert", "-size", "60x45", f"xc:{PINK}", web / "kocka.gif"], check=True)
            (web / "dalsi.htm").write_text("<P>Dalsi")
            session.start(PROGRAM, folder=web)
            self.main = session.wait_window("Pelmar VEX ()")
            session.activate(self.main)

            session.key("alt+s", "v")
            session.wait_window("HTML  - Vytvoření")
            session.key("ctrl+a")
            session.type("Kocka")
            session.key("Tab", "space", "Tab", "space")  # white ground
            self.color()
            session.key("Tab", "space", "Tab", "space")  # wine-red text
            self.color(*["Page_Down"] * 8)
            self.dialog("HTML  - Vytvoření", "alt+o")

            session.type("Nase kocka")  # over the marker that stands selected
            session.key("shift+Home", "ctrl+l")
            self.dialog("Html Nadpis", "Return")
            session.key("Return", "ctrl+h")
            self.dialog("Html horizontální čára", "Return")
            session.key("Return", *HTML_MENU, *["Down"] * 8, "Right", "Return")
            self.dialog("Html seznam", "Home", "shift+End", "=mleko", "Tab", "Tab", "Down", "space", "alt+p", "alt+o")
            session.key("Return", *HTML_MENU, *["Down"] * 6, "Right", "Return")
            self.table()
            session.key("Return")
            session.type("<P>")
            session.key("ctrl+p")
            self.dialog("HTML Obrázek", "Down", "Tab", "space", "alt+o")
            session.key("Return", *HTML_MENU, *["Down"] * 7, "Right", "Down", "Down", "Return")
            self.dialog("HTML Odkaz", "Down", "alt+r", "alt+o")

            session.key("ctrl+u")
            self.dialog("Uložit", "ctrl+a", "=kocka", "Return")
            page = web / "kocka.html"
            session.wait_until(page.exists, "the saved page")
            text = page.read_bytes().decode("cp1250").replace("\r\n", "\n")
            self.assertIn("<TITLE>Kocka</TITLE>", text)
            self.assertIn(PAGE, text)

            session.key(*HTML_MENU, "Up", "Return")
            browser = session.wait_window("HTML testovací browser (Kocka)", patience=30)
            session.activate(browser)
            box = session.wait_until(lambda: Picture(session, browser).box(PINK), "the picture on the page")
            self.assertEqual(box.size, (60, 45))
            self.assertIsNotNone(Picture(session, browser).box(WINE))
            session.shot("site")

    def color(self, *keys):
        session = self.session
        session.wait_window("Výběr barvy")
        session.key(*keys, "Return")
        session.wait_no_window("Výběr barvy")
        page = session.window("HTML  - Vytvoření")
        session.wait_until(lambda: session.active() == int(page.id, 16), "the page creator again")

    def table(self):
        """Two columns, then the texts of the two cells on the other tab."""
        self.dialog("HTML Tabulka", "Right", "shift+Tab", "Right", "Tab", "Tab", "Tab", "=Micka",
                    "shift+Tab", "shift+Tab", "Right", "Tab", "Tab", "=5 let", "alt+o")


if __name__ == "__main__":
    unittest.main()
