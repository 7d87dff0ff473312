"""A page made from an empty document with the program's dialogs and the keyboard alone, saved, and looked at in the
internal browser."""

import unittest

from harness import EditorCase, built

PINK, WINE = "#ff00ff", "#500000"
HTML_MENU = "alt+s" + 4 * " Right"
# The next colour is picked by its button; the page creator goes on behind that.
COLOR = "Tab space Tab space [Výběr barvy]"
CREATOR = f"""alt+s v [HTML  - Vytvoření] ctrl+a "Kocka"
    {COLOR} Return / [HTML  - Vytvoření] {COLOR} {8 * "Page_Down "} Return / [HTML  - Vytvoření] alt+o /"""
# Over the marker that stands selected; then each dialog by the keys that ask for it, and the keys in it. The table has
# two columns, and the texts of its two cells on the other tab.
DIALOGS = f"""[Pelmar VEX ()*] "Nase kocka" shift+Home ctrl+l [Html Nadpis] Return /
    Return ctrl+h [Html horizontální čára] Return /
    Return {HTML_MENU} {8 * "Down "} Right Return [Html seznam]
        Home shift+End "mleko" Tab Tab Down space alt+p alt+o /
    Return {HTML_MENU} {6 * "Down "} Right Return [HTML Tabulka] Right shift+Tab Right Tab Tab Tab "Micka"
        shift+Tab shift+Tab Right Tab Tab "5 let" alt+o /
    Return ctrl+p [HTML Obrázek] Down Tab space alt+o /
    Return {HTML_MENU} {7 * "Down "} Right Down Down Return [HTML Odkaz] Down alt+r alt+o /
    ctrl+u [Uložit] ctrl+a "kocka" Return /"""
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

    def test_a_page_by_dialogs_alone(self):
        web = self.home / "web"
        web.mkdir()
        self.command("convert", "-size", "60x45", f"xc:{PINK}", f"{web}/kocka.gif")
        (web / "dalsi.htm").write_text("<P>Dalsi")
        self.start("", folder=web)
        self.work(CREATOR)
        self.work(DIALOGS)
        page = web / "kocka.html"
        self.work(f"[Pelmar VEX ({page})]")
        text = page.read_bytes().decode("cp1250").replace("\r\n", "\n")
        self.assertIn("<TITLE>Kocka</TITLE>", text)
        self.assertIn(PAGE, text)
        browser = self.work(f"{HTML_MENU} Up Return [HTML testovací browser (Kocka)]")
        self.assertEqual(self.wait_colored(browser, PINK)[2:], (60, 45))
        self.wait_colored(browser, WINE)
        self.shot("site")


if __name__ == "__main__":
    unittest.main()
