"""Hostile pages in the internal browser of the real program. The tests look from outside: at colours on the screen, at
titles of windows, and at what reaches a server on this machine."""

import re
import shutil
import subprocess
import threading
import time
import unittest
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

from harness import AS_USER, PROGRAM, EditorCase, built

MODULE = built("pelmar-browser.so")
GREEN, BLUE, YELLOW = "#00c000", "#2000f0", "#f0f000"
ALONE = re.compile(r"HTML [Tt]estovací +browser.*")  # the browser alone, with any page
BROWSE = "alt+s" + 4 * " Right" + " Up Return"  # the last item of the menu Html
# The content of a link. Its colour changes when the engine has noticed the mouse, which may take a while.
LINK = f"""<STYLE>#link {{ background: {BLUE} }} A:hover #link {{ background: {YELLOW} }}</STYLE>
    <IMG ID="link" WIDTH="60" HEIGHT="60" ALT="">"""

# Pages that try to reach SITE by themselves. At DONE they set their title.
PAGES = sorted((Path(__file__).parent / "sending").glob("*.html"))


def go(address):
    return f'alt+a ctrl+a "{address}" Return'


class Handler(BaseHTTPRequestHandler):
    timeout = 5

    def do_GET(self):
        """Answers with a page. The title of the page /look shows the data that other pages have left."""
        if "favicon" not in self.path:
            self.server.asked.append(self.path)
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        found = "[name, document.cookie, localStorage.kept, sessionStorage.kept, document.referrer].join('')"
        self.wfile.write(f"""<TITLE>Sit</TITLE><SCRIPT>
            if (location.pathname == '/look') document.title = 'finds ' + ({found} || 'nothing')</SCRIPT>""".encode())

    do_POST = do_HEAD = do_OPTIONS = do_GET

    def log_message(self, *_):
        pass


class CountingServer(ThreadingHTTPServer):
    """A server on this machine that counts the connections to its port."""

    def __init__(self):
        super().__init__(("127.0.0.1", 0), Handler)
        self.connections, self.asked = 0, []
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def handle_error(self, *_):
        pass  # a page that closed its connection

    def verify_request(self, *_):
        self.connections += 1
        return True

    def server_close(self):
        self.shutdown()
        super().server_close()


@unittest.skipUnless(MODULE.exists(), "the browser module is not built")
class BrowserTest(EditorCase):
    settings = {"width": 13500}
    # Nothing goes beyond this machine.
    environment = {"http_proxy": "http://127.0.0.1:9", "https_proxy": "http://127.0.0.1:9", "no_proxy": "127.0.0.1"}

    def serve(self):
        server = self.enterContext(CountingServer())
        return server, f"127.0.0.1:{server.server_port}"

    def shown(self, title):
        return self.work(f"[HTML testovací browser ({title})]")

    def wait_colored(self, window, color):
        """Waits until the window shows this colour ("#ff0000"). Returns left, top, width and height of that area."""
        def colored():
            picture = f"import -window {window.id} miff:- | convert - -fill black +opaque '{color}'"
            box = self.command("sh", "-c", picture + " -bordercolor black -border 1 -format %@ info:")
            width, height, left, top = map(int, re.search(r"(\d+)x(\d+)\+(\d+)\+(\d+)$", box).groups())
            return (left - 1, top - 1, width, height) if width else None
        return self.wait(colored, f"the colour {color}")

    def click_link(self, browser):
        self.point(browser, 5, 5)
        left, top, width, height = self.wait_colored(browser, BLUE)
        self.point(browser, left + width // 2, top + height // 2)
        self.wait_colored(browser, YELLOW)
        self.command("xdotool", "click", "1")

    def test_a_page_gets_no_window_and_no_download_and_its_message_is_czech(self):
        self.write("nova.html", "<TITLE>Nova</TITLE>")
        self.command("tar", "-czf", self.home / "balik.tar.gz", "-C", self.home, "nova.html")
        self.start_with(self.write("stranka.html", f"""<TITLE>Stranka</TITLE><BODY onload="alert('<B>ahoj')">
            <A ID="d" HREF="balik.tar.gz" DOWNLOAD>balik</A><BR><A HREF="nova.html" TARGET="_blank">{LINK}</A>
            <SCRIPT>document.getElementById("d").click()</SCRIPT>"""))
        self.work(f"{BROWSE} [Zpráva stránky] Return /")
        self.click_link(self.shown("Stranka"))
        self.shown("Nova")
        self.assertEqual(len(self.windows()), 2)
        self.assertEqual(list(self.home.rglob("balik*")), [self.home / "balik.tar.gz"])

    def test_a_local_page_sends_nothing_out(self):
        server, site = self.serve()
        self.start("-BROWSER", title=ALONE)
        for path in PAGES:
            with self.subTest(path.stem):
                page = path.read_text().replace("SITE", site).replace("DONE", f"document.title = '{path.stem}'")
                self.work(go(f"file://{self.write('page.html', page)}"))
                if path.stem == "form":  # would leave the page
                    self.work("[Pelmar VEX] Return /")  # No is the default
                self.shown(path.stem)
                self.assertEqual(server.connections, 0)
        # A typed address reaches the server, so the server would have noticed the pages too.
        self.work(go(f"http://{site}/typed"))
        self.shown("Sit")
        self.assertEqual(server.asked, ["/typed"])

    def test_a_local_page_neither_sends_nor_stores_a_file_that_it_reads(self):
        server, site = self.serve()
        self.write("secret.txt", "secret")
        page = (Path(__file__).parent / "crossing" / "hostile.html").read_text()
        path = self.write("hostile.html", page.replace("LINK", LINK).replace("SITE", site))
        read, found = "[HTML testovací browser (reads secret)]", "[HTML testovací browser (finds nothing)]"
        browser = self.start("-BROWSER", title=ALONE)
        self.work(f"{go(f'file://{path}')} {read} {go(f'http://{site}/look')} {found}")
        self.work(f"alt+Left {read} alt+Right {found}")
        # "Načíst" loads the page with its picture and without its script. Then its link is followed.
        self.work(f"alt+Left {read} alt+n [HTML testovací browser (hostile)]")
        self.wait(lambda: "/picture" in server.asked, "the picture of the page")
        self.click_link(browser)
        self.work("[Pelmar VEX] alt+a /")
        self.shown("Sit")
        time.sleep(0.3)  # for late requests
        self.assertEqual(set(server.asked), {"/look", "/link", "/picture"})

    def engine(self):
        """The command lines of the engine's processes by process id."""
        rows = [line.split(None, 2) for line in self.command("ps", "-eo", "pid,pgid,args").split("\n")]
        return {row[0]: row[2] for row in rows if row[1:2] == [str(self.program.pid)] and "Engine" in row[2]}

    def test_a_page_that_wont_stop_is_ended(self):
        good = self.write("good.html", f'<TITLE>Good</TITLE><BODY BGCOLOR="{GREEN}">')
        main, back = self.start_with(good), go(f"file://{good}")
        self.work(BROWSE)
        self.shown("Good")
        for name, endless, leave, then in (
                ("loop", "for (;;);", back, ""),
                ("windows", "for (;;) window.open('windows.html');", "Escape", back),
                ("recursion", "(function deep() { try { deep() } catch (e) { deep() } })();", "alt+F4",
                 f"[{main.title}] {BROWSE}")):
            script = f"setTimeout(() => {{ document.title = '{name}'; {endless} }}, 300)"
            path = self.write(f"{name}.html", f"<SCRIPT>{script}</SCRIPT>")
            with self.subTest(name, leave=leave):
                self.work(go(f"file://{path}"))
                self.shown(name)
                before = {pid for pid, words in self.engine().items() if "--type=renderer" in words}
                self.work(leave)
                self.wait(lambda: not before & self.engine().keys(), "the end of the page")
                self.work(then)
                self.wait_colored(self.shown("Good"), GREEN)

    @unittest.skipIf(subprocess.call([*AS_USER, "unshare", "-U", "true"], stderr=subprocess.DEVNULL),
                     "an ordinary user gets no name space here, and the engine no sandbox")
    def test_an_ordinary_user_gets_the_sandbox(self):
        for file in (PROGRAM, MODULE):
            shutil.copy(file, self.home)
        self.start(program=self.home / PROGRAM.name, user=True)
        self.work(f'"<TITLE>A" {BROWSE}')
        self.shown("A")
        engine = self.engine().values()
        self.assertTrue(any("QtWebEngineProcess" in words for words in engine), engine)
        self.assertFalse(any("--no-sandbox" in words for words in engine), engine)


if __name__ == "__main__":
    unittest.main()
