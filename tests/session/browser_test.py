"""The internal browser of the real program, looked at from outside: by the colours on the screen, the titles of the
windows, the files that it leaves."""

import os
import re
import shutil
import stat
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from pages import read_pages  # noqa: E402
from picture import Picture  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
MODULE = built("pelmar-browser.so")
GREEN, YELLOW, RED, BLUE, PINK = "#00c000", "#ffff80", "#e00000", "#2000f0", "#ff00ff"
# Nothing of these tests goes beyond this machine.
NO_NETWORK = {name: "http://127.0.0.1:9" for name in ("http_proxy", "https_proxy")}

FRAMESET = """<HTML><HEAD><TITLE>Rámce</TITLE></HEAD>
<FRAMESET COLS="200,*"><FRAME SRC="levý.html" NAME="levy"><FRAME SRC="pravy.html" NAME="pravy"></FRAMESET></HTML>"""
LEFT = f"""<BODY BGCOLOR="{GREEN}"><SCRIPT>
document.write('<DIV STYLE="background:{BLUE};width:50px;height:20px"></DIV>' + parent.frames.length + ' rámce');
</SCRIPT><P><A HREF="pravy2.html" TARGET="pravy">vpravo</A></BODY>"""
RIGHT = f"""<BODY BGCOLOR="{YELLOW}"><TABLE BORDER="1"><TR><TD BGCOLOR="{RED}" WIDTH="120" HEIGHT="60">&nbsp;</TD>
<TD>žluťoučký kůň</TD></TR></TABLE><P><IMG SRC="obr.gif" ALT="obrázek"></BODY>"""
TABLE = {"table cell": RED, "picture": PINK, "script": BLUE, "left frame": GREEN, "right frame": YELLOW}


@unittest.skipUnless(MODULE.exists(), "the browser module is not built")
class BrowserTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder, width=13500)

    def write(self, name, text):
        path = self.session.home / name
        path.write_bytes(text.encode("cp1250"))
        return path

    def write_frames(self):
        self.write("levý.html", LEFT)
        self.write("pravy.html", RIGHT)
        subprocess.run(["convert", "-size", "40x30", f"xc:{PINK}", self.session.home / "obr.gif"], check=True)
        return self.write("ramce.html", FRAMESET)

    def start(self, *arguments, title, program=PROGRAM):
        self.session.start(program, *arguments, **NO_NETWORK)
        window = self.session.wait_window(title)
        self.session.activate(window)
        return window

    def press_toolbar_key(self, main):
        """The last button of the toolbar; the pictures are on the grey of the bar."""
        picture = Picture(self.session, main)
        rows = range(picture.height // 8)
        sky = "#bfdcf7"  # of the globe on that button
        at = max((x, y) for x in range(picture.width) for y in rows if picture.color(x, y) == sky)
        self.session.click(main, at[0], at[1])

    def shown(self, title):
        """The browser with a page of this name."""
        window = self.session.wait_window(f"HTML testovací browser ({title})", patience=30)
        self.session.activate(window)
        return window

    def address(self):
        self.session.set_clipboard("")
        self.session.key("alt+a", "ctrl+a", "ctrl+c")
        return self.session.wait_until(self.session.clipboard, "the address")

    def boxes(self, window, colors):
        """Where each colour is, when all have come."""
        def look():
            picture = Picture(self.session, window)
            found = {name: picture.box(color) for name, color in colors.items()}
            return found if all(found.values()) else None
        return self.session.wait_until(look, f"the colours {colors}")

    def wait_title(self, window, title):
        self.session.wait_until(lambda: self.session.title(window) == title, f"the title {title!r}")

    def test_frames_script_table_and_picture_are_where_they_should_be(self):
        session = self.session
        path = self.write_frames()
        main = self.start(path, title=f"Pelmar VEX ({path})")
        self.press_toolbar_key(main)
        browser = self.shown("Rámce")
        box = self.boxes(browser, TABLE)
        session.shot("browser")
        left, right = box["left frame"], box["right frame"]
        self.assertEqual(left.left, 0)
        self.assertAlmostEqual(left.right, 199, delta=6)
        self.assertGreater(right.left, left.right)
        self.assertEqual((right.top, right.bottom), (left.top, left.bottom))
        self.assertTrue(left.holds(box["script"]), box)
        self.assertEqual(box["script"].size, (50, 20))
        self.assertTrue(right.holds(box["table cell"]), box)
        self.assertEqual(box["picture"].size, (40, 30))
        self.assertTrue(right.holds(box["picture"]), box)
        self.assertGreater(box["picture"].top, box["table cell"].bottom)
        self.assertEqual(self.address(), f"file://{path}")

        # Another page, and the keys of the history.
        self.write("druha.htm", f'<TITLE>Druhá [*]</TITLE><BODY BGCOLOR="{PINK}">')
        session.key("alt+a")
        session.type(f"file://{session.home}/druha.htm\n")
        self.shown("Druhá [*]")
        self.boxes(browser, {"page": PINK})
        session.key("alt+Left")
        self.wait_title(browser, "HTML testovací browser (Rámce)")
        self.boxes(browser, TABLE)
        session.key("alt+Right")
        self.wait_title(browser, "HTML testovací browser (Druhá [*])")
        self.boxes(browser, {"page": PINK})
        # The list holds each page once; choosing in it loads.
        session.key("alt+a", "Down")
        self.wait_title(browser, "HTML testovací browser (Rámce)")
        session.close(browser)
        session.wait_no_window("HTML testovací browser (Rámce)")

        # The document, saved since, comes in the same window.
        self.write("ramce.html", "<TITLE>Nová</TITLE><P>text")
        session.activate(main)
        self.press_toolbar_key(main)
        self.shown("Nová")
        self.assertEqual(self.address(), f"file://{path}")
        session.close(main)
        self.assertEqual(session.wait_exit(), 0)

    def test_a_document_without_a_path_goes_into_a_page_of_its_own(self):
        session = self.session
        main = self.start("-NOMSG", title="Pelmar VEX ()")
        session.type(f'<TITLE>One</TITLE><BODY BGCOLOR="{GREEN}">')
        self.wait_title(main, "Pelmar VEX ()*")
        self.press_toolbar_key(main)
        browser = self.shown("One")
        self.boxes(browser, {"page": GREEN})
        temporary = session.home / "tmp"
        page, = temporary.glob("$$$PelmarTemp*.html")
        self.assertRegex(page.name, r"^\$\$\$PelmarTemp\d{1,8}\.html$")
        self.assertEqual(stat.S_IMODE(page.stat().st_mode), 0o600)
        self.assertEqual(page.read_bytes(), f'<TITLE>One</TITLE><BODY BGCOLOR="{GREEN}">'.encode())
        self.assertEqual(self.address(), f"file://{page}")
        session.activate(main)
        self.press_toolbar_key(main)
        session.wait_until(lambda: len(list(temporary.glob("*.html"))) == 2, "another page")
        self.assertEqual(session.title(main), "Pelmar VEX ()*")

    def test_a_page_gets_no_window_no_download_and_asks_in_czech(self):
        session = self.session
        self.write("nova.html", f'<TITLE>Nova</TITLE><BODY BGCOLOR="{PINK}">')
        subprocess.run(["tar", "-czf", session.home / "balik.tar.gz", "-C", session.home, "nova.html"], check=True)
        path = self.write("stranka.html", f"""<TITLE>Stranka</TITLE><BODY BGCOLOR="{YELLOW}" onload="alert('<B>ahoj')">
            <A ID="d" HREF="balik.tar.gz" DOWNLOAD>balik</A>
            <BR><A ID="n" HREF="nova.html" TARGET="_blank" ACCESSKEY="n"><IMG WIDTH="60" HEIGHT="60"
              STYLE="background:{BLUE}" ALT=""></A>
            <SCRIPT>document.getElementById("d").click()</SCRIPT>""")
        main = self.start(path, title=f"Pelmar VEX ({path})")
        self.press_toolbar_key(main)
        message = session.wait_window("Zpráva stránky", patience=30)
        session.activate(message)
        session.shot("browser-alert")
        session.key("Return")
        session.wait_no_window("Zpráva stránky")
        browser = self.shown("Stranka")
        x, y = self.boxes(browser, {"link": BLUE})["link"].middle
        session.click(browser, x, y)
        self.wait_title(browser, "HTML testovací browser (Nova)")
        self.assertEqual(len(session.windows()), 2)
        packages = list(session.home.rglob("balik*"))
        self.assertEqual(packages, [session.home / "balik.tar.gz"])

    def test_it_can_be_the_whole_program(self):
        session = self.session
        before = {path.name: path.read_bytes() for path in session.data_folder.iterdir()}
        path = self.write("a.html", f'<TITLE>Sama</TITLE><BODY BGCOLOR="{GREEN}">')
        browser = self.start("-browser", title=re.compile(r"HTML [Tt]estovací +browser.*"))
        self.assertEqual(len(session.windows()), 1)
        session.key("alt+a")
        session.type(f"file://{path}\n")
        self.wait_title(browser, "HTML testovací browser (Sama)")
        self.boxes(browser, {"page": GREEN})
        place = session._run("xwininfo", "-id", browser.id)
        session.close(browser)
        session.activate(session.wait_window("Konec"))
        session.shot("browser-end")
        session.key("Return")  # No is the default
        session.wait_no_window("Konec")
        browser = self.shown("Sama")
        corner = re.compile(r"Absolute upper-left.*")
        self.assertEqual(corner.findall(session._run("xwininfo", "-id", browser.id)), corner.findall(place))
        session.key("ctrl+w")
        session.activate(session.wait_window("Konec"))
        session.key("alt+a")
        self.assertEqual(session.wait_exit(), 0)
        self.assertEqual({path.name: path.read_bytes() for path in session.data_folder.iterdir()}, before)

    def test_without_the_module_the_program_says_so(self):
        session = self.session
        alone = session.home / "alone"
        alone.mkdir()
        program = shutil.copy(PROGRAM, alone)
        main = self.start("-NOMSG", title="Pelmar VEX ()", program=program)
        session.type("text")
        self.wait_title(main, "Pelmar VEX ()*")
        self.press_toolbar_key(main)
        session.activate(session.wait_window("Interní browser"))
        session.shot("browser-missing")
        session.key("Return")
        session.wait_no_window("Interní browser")
        self.assertEqual(session.title(main), "Pelmar VEX ()*")
        session.kill()
        session.start(program, "-BROWSER")
        session.activate(session.wait_window("Interní browser"))
        session.key("Return")
        self.assertEqual(session.wait_exit(), 1)

    def test_pages_are_read_back(self):
        frames = self.write_frames()
        plain = self.write("bez.html", "<P>Příliš &lt;žluťoučký&gt; kůň<BR>druhý řádek<!-- skryto -->")
        first, second = read_pages(frames, plain)
        self.assertEqual(first["title"], "Rámce")
        self.assertEqual(first["address"], f"file://{frames}")
        for words in ("2 rámce", "vpravo", "žluťoučký kůň"):
            self.assertIn(words, first["text"])
        self.assertEqual(second["title"], "bez.html")
        self.assertEqual(second["text"].split("\n"), ["Příliš <žluťoučký> kůň", "druhý řádek"])


if __name__ == "__main__":
    unittest.main()
