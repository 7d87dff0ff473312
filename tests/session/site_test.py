"""A page made from an empty document with the program's dialogs and the keyboard alone, saved, and looked at in the
internal browser."""

import unittest

from harness import PROGRAM, EditorCase, built

PINK, WINE = "#ff00ff", "#500000"
HTML_MENU = ["alt+s", *["Right"] * 4]
# Each dialog: the keys that ask for it, its title, and the keys in it; what begins with "=" is typed.
DIALOGS = (
    (["ctrl+l"], "Html Nadpis", ["Return"]),
    (["Return", "ctrl+h"], "Html horizontální čára", ["Return"]),
    (["Return", *HTML_MENU, *["Down"] * 8, "Right", "Return"], "Html seznam",
     ["Home", "shift+End", "=mleko", "Tab", "Tab", "Down", "space", "alt+p", "alt+o"]),
    # Two columns, then the texts of the two cells on the other tab.
    (["Return", *HTML_MENU, *["Down"] * 6, "Right", "Return"], "HTML Tabulka",
     ["Right", "shift+Tab", "Right", "Tab", "Tab", "Tab", "=Micka", "shift+Tab", "shift+Tab", "Right", "Tab", "Tab",
      "=5 let", "alt+o"]),
    (["Return", "ctrl+p"], "HTML Obrázek", ["Down", "Tab", "space", "alt+o"]),
    (["Return", *HTML_MENU, *["Down"] * 7, "Right", "Down", "Down", "Return"], "HTML Odkaz",
     ["Down", "alt+r", "alt+o"]),
    (["ctrl+u"], "Uložit", ["ctrl+a", "=kocka", "Return"]),
)
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
<IMG SRC="kocka.gif">
<A HREF="dalsi.htm">Odkaz na dalsi.htm</A>"""


@unittest.skipUnless(built("pelmar-browser.so").exists(), "the browser module is not built")
class SiteTest(EditorCase):
    settings = {"width": 13500}

    def keys(self, keys):
        for key in keys:
            self.session.type(key[1:]) if key.startswith("=") else self.session.key(key)

    def color(self, *keys):
        """The next colour is picked by its button; the page creator goes on behind that."""
        self.session.key("Tab", "space", "Tab", "space")
        self.answer("Výběr barvy", *keys, "Return")
        self.session.wait_window("HTML  - Vytvoření")

    def test_a_page_by_dialogs_alone(self):
        session = self.session
        web = session.home / "web"
        web.mkdir()
        session.run("convert", "-size", "60x45", f"xc:{PINK}", f"{web}/kocka.gif")
        (web / "dalsi.htm").write_text("<P>Dalsi")
        session.start(PROGRAM, folder=web)
        main = session.wait_window("Pelmar VEX ()")

        session.key("alt+s", "v")
        session.wait_window("HTML  - Vytvoření")
        session.key("ctrl+a")
        session.type("Kocka")
        self.color()  # white ground
        self.color(*["Page_Down"] * 8)  # wine-red text
        self.answer("HTML  - Vytvoření", "alt+o")
        session.type("Nase kocka")  # over the marker that stands selected
        session.key("shift+Home")
        for asking, title, keys in DIALOGS:
            session.key(*asking)
            dialog = session.wait_window(title)
            self.keys(keys)
            session.wait_gone(dialog)
        page = web / "kocka.html"
        self.wait_title(main, f"Pelmar VEX ({page})")
        text = page.read_bytes().decode("cp1250").replace("\r\n", "\n")
        self.assertIn("<TITLE>Kocka</TITLE>", text)
        self.assertIn(PAGE, text)

        session.key(*HTML_MENU, "Up", "Return")
        browser = session.wait_window("HTML testovací browser (Kocka)", patience=30)
        self.assertEqual(session.wait_colored(browser, PINK)[2:], (60, 45))
        session.wait_colored(browser, WINE)
        session.shot("site")


if __name__ == "__main__":
    unittest.main()
