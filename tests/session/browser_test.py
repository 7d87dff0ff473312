"""The internal browser of the real program, looked at from outside: by the colours on the screen, the titles of the
windows, the files that it leaves."""

import re
import shutil
import stat
import subprocess
import sys
import time
import unittest

sys.dont_write_bytecode = True
from counting_server import CountingServer  # noqa: E402
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

    def serve(self, page=""):
        server = CountingServer(page)
        self.addCleanup(server.close)
        return server

    def visit(self, address):
        self.session.key("alt+a", "ctrl+a")
        self.session.type(f"{address}\n")

    def answer(self, title, *keys, shot=None):
        self.session.activate(self.session.wait_window(title))
        self.session.shot(shot) if shot else None
        self.session.key(*keys)
        self.session.wait_no_window(title)

    def test_a_local_page_reaches_the_net_only_by_the_persons_word(self):
        session = self.session
        server = self.serve(f'<TITLE>Sit</TITLE><BODY BGCOLOR="{PINK}">')
        site = f"http://127.0.0.1:{server.port}"
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
        session.shot("browser-withheld")
        for key, title in (("Return", "secret"), ("alt+a", "Sit")):  # No is the default
            session.click(browser, *link)
            self.answer("Pelmar VEX", key, shot="browser-net")
            self.wait_title(browser, f"HTML testovací browser ({title})")
        self.boxes(browser, {"page": PINK})
        self.assertEqual(server.paths(), ["/link"])
        # With its picture, once, and without its scripts.
        session.key("alt+Left")
        self.wait_title(browser, "HTML testovací browser (secret)")
        session.key("alt+n")
        self.wait_title(browser, "HTML testovací browser (Stranka)")
        session.wait_until(lambda: server.paths() == ["/link", "/picture"], "the picture")
        session.shot("browser-loaded")
        session.key("F5")
        self.wait_title(browser, "HTML testovací browser (secret)")
        self.assertEqual(server.paths(), ["/link", "/picture"])

    def test_a_local_page_sends_nothing_out(self):
        server = self.serve()
        peer = """document.body.append('began '); var peer = new (WHERE.RTCPeerConnection)({iceServers: [{urls: 'stun:SITE'},
            {urls: 'turn:SITE', username: 'secret', credential: 'x'},
            {urls: 'turn:SITE?transport=tcp', username: 'secret', credential: 'x'}]});
            peer.createDataChannel('a'); peer.createOffer().then(offer => peer.setLocalDescription(offer));"""
        socket = "document.body.append('began '); new WebSocket('ws://SITE/socket');"
        in_frame = '<IFRAME SRCDOC="<BODY><SCRIPT>%s</SCRIPT>"></IFRAME>'
        worker = "var w = new Worker(URL.createObjectURL(new Blob([`%s; postMessage(0)`]))); w.onmessage = () => document.body.append('began')"
        pages = {
            "peer": f"<SCRIPT>{peer.replace('WHERE', 'window')}</SCRIPT>",
            "peer of a frame": f"<IFRAME></IFRAME><SCRIPT>{peer.replace('WHERE', 'frames[0]')}</SCRIPT>",
            "peer in a frame": in_frame % peer.replace("WHERE", "window"),
            "socket": f"<SCRIPT>{socket}</SCRIPT>",
            "socket in a frame": in_frame % socket,
            "worker": "<SCRIPT>%s</SCRIPT>" % worker % "new WebSocket('ws://SITE/w'); fetch('http://SITE/w', {mode: 'no-cors'}).catch(e => 0)",
            "requests": """<SCRIPT>new EventSource('http://SITE/events'); navigator.sendBeacon('http://SITE/beacon', 'x');
                fetch('http://SITE/fetch', {mode: 'no-cors', keepalive: true}).catch(e => 0);
                var r = new XMLHttpRequest; r.open('POST', 'http://SITE/xhr'); r.send('x');
                try { new WebTransport('https://SITE/transport') } catch (e) {}
                try { navigator.serviceWorker.register('http://SITE/worker.js').catch(e => 0) } catch (e) {}
                try { new SharedWorker('http://SITE/shared.js') } catch (e) {}
                import('http://SITE/module.js').catch(e => 0); document.body.append('began')</SCRIPT>""",
            "links": "".join(f"<LINK REL='{rel}' AS='image' HREF='http://SITE/{rel}'>" for rel in (
                "prefetch", "preload", "preconnect", "dns-prefetch", "prerender", "modulepreload", "icon", "manifest",
                "stylesheet")) + "began",
            "parts": """<STYLE>@import 'http://SITE/style'; @font-face { font-family: f; src: url(http://SITE/font) }
                P { font-family: f; background: url(http://SITE/background) }</STYLE><P>began<SCRIPT SRC='http://SITE/script'>
                </SCRIPT><IMG SRC='http://SITE/img' SRCSET='http://SITE/set 2x'><VIDEO AUTOPLAY SRC='http://SITE/video' POSTER='http://SITE/p'>
                </VIDEO><AUDIO AUTOPLAY SRC='http://SITE/audio'></AUDIO><SVG><image href='http://SITE/svg'/></SVG>""",
            "frames": """<IFRAME SRC='http://SITE/frame'></IFRAME><OBJECT DATA='http://SITE/object'></OBJECT>
                <EMBED SRC='http://SITE/embed'>began""",
            "forms": """<IFRAME NAME='in'></IFRAME><FORM TARGET='in' METHOD='post' ACTION='http://SITE/form'></FORM>
                <FORM METHOD='post' ACTION='http://SITE/form2'></FORM>began<SCRIPT>document.forms[0].submit(); document.forms[1].submit()</SCRIPT>""",
            "refresh": """<IFRAME SRCDOC="<META HTTP-EQUIV='refresh' CONTENT='0; URL=http://SITE/refresh'>"></IFRAME>
                <META HTTP-EQUIV='refresh' CONTENT='0; URL=http://SITE/refresh2'>began""",
            "policy": """<META HTTP-EQUIV='Content-Security-Policy' CONTENT="script-src 'none'; report-uri http://SITE/report">
                <SCRIPT>1</SCRIPT>began""",
            "ping": "<A HREF='#x' PING='http://SITE/ping'>x</A>began<SCRIPT>document.links[0].click()</SCRIPT>",
            "windows": """began<SCRIPT>open('http://SITE/window'); open('about:blank').location = 'http://SITE/blank'</SCRIPT>""",
        }
        site = f"127.0.0.1:{server.port}"
        files = [self.write(f"{name}.html", "<BODY>" + page.replace("SITE", site)) for name, page in pages.items()]
        for name, page in zip(pages, read_pages(*files, linger=1000)):
            self.assertIn("began", page["text"], name)
        self.assertEqual(server.arrived, [])

    def test_addresses_within_the_engine_are_refused(self):
        session = self.session
        server = self.serve(f'<TITLE>Sit</TITLE><BODY BGCOLOR="{PINK}">')
        crash = "chrome://inducebrowsercrashforrealz"
        path = self.write("a.html", f"""<TITLE>A</TITLE><A HREF="{crash}"><IMG WIDTH="60" HEIGHT="60" STYLE="background:{BLUE}"
            ALT=""></A><SCRIPT>for (const address of ['{crash}', 'chrome://gpucrash', 'view-source:file:///', 'devtools://x',
            'qrc:/x']) {{ try {{ location = address }} catch (e) {{}} }}</SCRIPT>""")
        session.start(PROGRAM, "-BROWSER", **NO_NETWORK, no_proxy="127.0.0.1")
        browser = session.wait_window(re.compile(r"HTML [Tt]estovací +browser.*"))
        session.activate(browser)
        self.visit(f"file://{path}")
        self.wait_title(browser, "HTML testovací browser (A)")
        for address in (crash, "CHROME://gpucrash", "chrome://crash", "about:crash", "view-source:file:///etc", "chrome-untrusted://x",
                        "devtools://devtools", "javascript:document.title=1", "qrc:/x", "blob:x", "filesystem:x", "ftp://a.cz/"):
            self.visit(address)
            self.answer("Interní browser", "Return", shot="browser-refused")
            self.assertEqual(session.title(browser), "HTML testovací browser (A)")
        session.click(browser, *self.boxes(browser, {"link": BLUE})["link"].middle)
        self.visit(f"http://127.0.0.1:{server.port}/?to={crash}")
        session.wait_until(lambda: len(server.paths()) == 1, "the redirect")
        self.visit(f"http://127.0.0.1:{server.port}/")
        self.wait_title(browser, "HTML testovací browser (Sit)")
        self.visit("data:text/html,<title>Data</title>")
        self.wait_title(browser, "HTML testovací browser (Data)")

    def renderers(self):
        """The processor time of each page's process, in its number's place."""
        listing = self.session._run("ps", "-eo", "pid,pgid,pcpu,args")
        rows = [line.split(None, 3) for line in listing.split("\n") if "--type=renderer" in line]
        return {row[0] for row in rows if row[1] == str(self.session.program.pid)}

    def test_a_page_that_wont_stop_is_ended(self):
        session = self.session
        pages = {"loop": "<SCRIPT>setTimeout(() => { for (;;); }, 300)</SCRIPT>",
                 "recursion": "<SCRIPT>function deep() { try { deep() } catch (e) { deep() } } setTimeout(deep, 300)</SCRIPT>",
                 "windows": "<SCRIPT>setTimeout(() => { for (;;) window.open('windows.html') }, 300)</SCRIPT>"}
        good = self.write("good.html", f'<TITLE>Good</TITLE><BODY BGCOLOR="{GREEN}">')
        main = self.start(good, title=f"Pelmar VEX ({good})")
        self.press_toolbar_key(main)
        browser = self.shown("Good")
        for name, page in pages.items():
            path = self.write(f"{name}.html", f"<TITLE>{name}</TITLE>{page}")
            for way in ("address", "stop", "close"):
                with self.subTest(name, way=way):
                    self.visit(f"file://{path}")
                    self.wait_title(browser, f"HTML testovací browser ({name})")
                    before = self.renderers()
                    time.sleep(0.5)  # the page begins its loop
                    if way == "address":
                        self.visit(f"file://{good}")
                    elif way == "stop":
                        session.key("Escape")
                    else:
                        session.close(browser)
                        session.wait_no_window(f"HTML testovací browser ({name})")
                        session.activate(main)
                    session.wait_until(lambda: not before & self.renderers(), "the end of the page", 8)
                    if way == "close":
                        self.press_toolbar_key(main)
                        browser = self.shown("Good")
                    elif way == "stop":
                        self.visit(f"file://{good}")
                    self.wait_title(browser, "HTML testovací browser (Good)")
                    self.boxes(browser, {"page": GREEN})

    def test_a_pages_questions_leave_the_editor_alone_and_end_by_the_persons_word(self):
        session = self.session
        path = self.write("alerts.html", """<TITLE>alerts</TITLE><SCRIPT>setTimeout(() => {
            for (let i = 0; i < 9; ++i) alert(i); document.title = 'done' }, 300)</SCRIPT>""")
        main = self.start(path, title=f"Pelmar VEX ({path})")
        self.press_toolbar_key(main)
        session.wait_window("Zpráva stránky", patience=30)
        session.activate(main)
        session.type("x")
        self.wait_title(main, f"Pelmar VEX ({path})*")
        time.sleep(3.5)  # a page that waits for its answer is not a stuck one
        for keys in (["Return"], ["Return"], ["alt+d", "Return"]):
            box = session.wait_window("Zpráva stránky")
            session.activate(box)
            for key in keys:
                time.sleep(0.3)  # a box out of the engine's own call takes keys a moment later than it shows
                session.key(key)
            session.wait_until(lambda: box.id not in [w.id for w in session.windows()], "the end of the box")
        session.wait_window("HTML testovací browser (done)")

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
