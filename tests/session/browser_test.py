"""The internal browser of the real program, looked at from outside: by the colours on the screen, the titles of the
windows, the files that it leaves."""

import http.server
import re
import shutil
import stat
import subprocess
import sys
import threading
import unittest

sys.dont_write_bytecode = True
from harness import AS_USER, Session, built  # noqa: E402
from pages import read_pages  # noqa: E402
from picture import Picture  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
MODULE = built("pelmar-browser.so")
GREEN, YELLOW, RED, BLUE, PINK, CYAN = "#00c000", "#ffff80", "#e00000", "#2000f0", "#ff00ff", "#00e0e0"
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


def name_spaces_work():
    return subprocess.run([*AS_USER, "unshare", "-U", "true"], stderr=subprocess.DEVNULL).returncode == 0


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
        """The last button of the toolbar, found by the sky of the globe on it."""
        def find():
            picture = Picture(self.session, main)
            return max(((x, y) for x in range(picture.width) for y in range(picture.height // 8)
                        if picture.color(x, y) == "#bfdcf7"), default=None)
        x, y = self.session.wait_until(find, "the button of the browser")
        self.session.click(main, x, y)

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
        session.key("alt+a", "ctrl+a")
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

    def test_a_local_page_reaches_the_net_only_by_the_persons_word(self):
        session = self.session
        asked = []

        class Site(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                asked.append(self.path)
                self.send_response(200)
                self.end_headers()
                self.wfile.write(f'<TITLE>Sit</TITLE><BODY BGCOLOR="{PINK}">'.encode())

            def log_message(self, *_):
                pass

        server = http.server.HTTPServer(("127.0.0.1", 0), Site)
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        site = f"http://127.0.0.1:{server.server_port}"
        self.write("secret.txt", "secret")
        path = self.write("stranka.html", f"""<TITLE>Stranka</TITLE><IMG SRC="{site}/picture">
            <IFRAME SRC="secret.txt" onload="new Image().src='{site}/beacon?' + this.contentDocument.body.innerText;
              document.title = this.contentDocument.body.innerText"></IFRAME>
            <A HREF="{site}/link"><IMG WIDTH="60" HEIGHT="60" STYLE="background:{BLUE}" ALT=""></A>""")
        session.start(PROGRAM, path)
        main = session.wait_window(f"Pelmar VEX ({path})")
        session.activate(main)
        self.press_toolbar_key(main)
        browser = self.shown("secret")
        link = self.boxes(browser, {"link": BLUE})["link"].middle
        for key, title in (("Return", "secret"), ("alt+a", "Sit")):  # No is the default
            session.click(browser, *link)
            session.activate(session.wait_window("Zpráva stránky"))
            session.shot("browser-net")
            session.key(key)
            session.wait_no_window("Zpráva stránky")
            self.wait_title(browser, f"HTML testovací browser ({title})")
        self.boxes(browser, {"page": PINK})
        self.assertEqual([path for path in asked if path != "/favicon.ico"], ["/link"])

    def test_it_can_be_the_whole_program(self):
        session = self.session
        before = {path.name: path.read_bytes() for path in session.data_folder.iterdir()}
        path = self.write("a.html", f'<TITLE>Sama</TITLE><BODY BGCOLOR="{GREEN}">')
        browser = self.start("-browser", title=re.compile(r"HTML [Tt]estovací +browser.*"))
        self.assertEqual(len(session.windows()), 1)
        session.key("alt+a", "ctrl+a")
        session.type(f"file://{path}\n")
        self.wait_title(browser, "HTML testovací browser (Sama)")
        self.boxes(browser, {"page": GREEN})
        untitled = self.write("a & b #1 100%.html", "words")
        session.key("alt+a", "ctrl+a")
        session.type(f"file://{untitled}\n")
        self.wait_title(browser, "HTML testovací browser (a & b #1 100%.html)")
        session.key("alt+Left")
        self.wait_title(browser, "HTML testovací browser (Sama)")
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

    @unittest.skipUnless(name_spaces_work(), "an ordinary user gets no name space here, and the engine no sandbox")
    def test_an_ordinary_user_gets_the_sandbox(self):
        session = self.session
        path = self.write_frames()
        for file in (PROGRAM, MODULE):
            shutil.copy(file, session.home)
        session.start_as_user(session.home / PROGRAM.name, path, **NO_NETWORK)
        main = session.wait_window(f"Pelmar VEX ({path})")
        session.activate(main)
        self.press_toolbar_key(main)
        self.boxes(self.shown("Rámce"), TABLE)
        listing = session._run("ps", "-eo", "pgid,args")
        engine = [line for line in listing.split("\n") if line.split()[:1] == [str(session.program.pid)]]
        self.assertTrue(any("QtWebEngineProcess" in line for line in engine), listing)
        self.assertFalse(any("--no-sandbox" in line for line in engine), listing)

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

    def test_what_the_dialogs_write_looks_as_it_should(self):
        session = self.session
        frames = self.make_pages()
        main = self.start(frames, title=f"Pelmar VEX ({frames})")
        self.press_toolbar_key(main)
        browser = self.shown("Rámce")
        box = self.boxes(browser, {"background": CYAN, "first cell": "#ffff00", "picture": PINK})
        session.shot("browser-dialogs")
        # The two frames are rows of 40 and 60 percent: the upper one, a sample, is white.
        picture = Picture(session, browser)
        top = box["background"].top
        height = box["background"].bottom - top
        self.assertAlmostEqual(height / (picture.height - 100), 0.6, delta=0.1)
        self.assertEqual(picture.color(picture.width // 2, top - 30), "#ffffff")
        self.assertTrue(box["background"].holds(box["first cell"]))
        self.assertTrue(box["background"].holds(box["picture"]))
        self.assertEqual(box["picture"].size, (40, 30))
        self.assertGreater(box["picture"].top, box["first cell"].bottom)

    def make_pages(self):
        """What the samples, the page creator and the other dialogs write; returns the page with frames."""
        subprocess.run([built("tests/page_maker"), self.session.home], check=True)
        for name, color in (("obr.gif", PINK), ("pozadi.gif", CYAN)):
            subprocess.run(["convert", "-size", "40x30", f"xc:{color}", self.session.home / name], check=True)
        return self.session.home / "frames.html"

    def test_pages_of_the_program_are_read_back(self):
        frames = self.make_pages()
        expected = {
            "HTML1": ("My HOMEPAGE", ["WELCOME !", "Zamailujte mi!"]),
            "HTML2": ("COOL PAGE", ["NADPIS", "Odstavec prvni", 'nearest "<"', "T.B.C."]),
            "HTML3": ("Stars", ["Předchozí", "Sekce", "Nadpis", "Následující", "ďobek", "Menu :"]),
            "HTML4": ("Goo page", ["Some integersting text", "ďále", "HERE WE GO", "Básně ni talek", "new", "F1"]),
            "HTML5": ("Web Site Main Menu", ["Hlavní menu", "Vítejte"]),
            "page": ("Stránka tvořená", ["Nadpis tabulky", "Žlutá", "Kůň", "dole vlevo", "dole vpravo", "Nadpis seznamu",
                                         "první", "druhá", "pojem", "vysvětlení", "Linka", "ž", "na cil"]),
            "frames": ("Rámce", ["WELCOME !", "Zamailujte mi!", "Žlutá", "na cil"]),
        }
        for name, page in zip(expected, read_pages(*(frames.with_name(f"{name}.html") for name in expected))):
            title, words = expected[name]
            with self.subTest(name):
                self.assertEqual(page["title"], title)
                at = 0
                for word in words:
                    at = page["text"].find(word, at)
                    self.assertGreaterEqual(at, 0, f"{word!r} is missing or out of order in {page['text']!r}")
                for unseen in ("skryto", "nepodporuje Framesy", "function rim"):
                    self.assertNotIn(unseen, page["text"])

    def test_the_script_of_the_sample_works_on_its_neighbours(self):
        self.make_pages()
        for number, name in enumerate(("citat1", "citat2", "citat3", "uvod", "novinky", "tip_dne", "fotka_dne")):
            self.write(f"{name}.html", f"<P>{'horni' if number < 3 else 'hlavni'} je tu")
        path = self.write("web.html", """<FRAMESET ROWS="20%,40%,*"><FRAME NAME="horni"><FRAME SRC="HTML5.html">
            <FRAME NAME="hlavni"></FRAMESET>""")
        text = read_pages(path)[0]["text"]
        for words in ("horni je tu", "Hlavní menu", "hlavni je tu"):
            self.assertIn(words, text)

    def test_any_page_is_read_back(self):
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
