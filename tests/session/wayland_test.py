"""The program on a Wayland compositor, with no X server at all. The compositor draws nowhere and has neither mouse nor
keyboard, so the accessibility bus does what a person would."""

import subprocess
import time
import unittest

from assistive import HEARD, Program, has, run_on_bus, wait_for, walk
from harness import PROGRAM, Session
from settings import write_settings


class WaylandSession(Session):
    def _environment(self):
        env = super()._environment()
        env.pop("DISPLAY", None)
        env.update(WAYLAND_DISPLAY="pelmar-test", WAYLAND_DEBUG="1")
        return env

    def _start_server(self):
        self.children.append(subprocess.Popen(
            ["weston", "--backend=headless-backend.so", "--socket=pelmar-test", "--no-config", "--idle-time=0"],
            env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        self.wait_until((self.home / "runtime" / "pelmar-test").exists, "the compositor", needs_program=False)

    def _start_window_manager(self):
        pass

    def titles(self):
        return [window.get_name() for window in Program().windows()]


class WaylandTest(unittest.TestCase):
    def test_a_day_without_x(self):
        session, program = self.enterContext(WaylandSession()), Program()
        write_settings(session.data_folder, left=100, top=100)  # near enough to the edge to be snapped
        page = session.home / "page.html"
        page.write_bytes(b"text")
        session.start(PROGRAM, page, **HEARD)
        title = f"Pelmar VEX ({page})"
        program.find(title, "text", "Text dokumentu").insert_text(0, "žlutý ", len("žlutý "))
        program.window(title + "*")
        program.menu("Soubor")
        wait_for(lambda: has(program.find(title, "menu item", "Otevři"), "SHOWING"), "the open menu")
        program.menu("Soubor")
        program.menu("Hledání ...")
        program.push("Hledání", "Zavři okno")
        program.gone("Hledání")
        program.menu("Poznámky")
        program.find("Poznámky", "text", "Text poznámky").insert_text(0, "poznámka", len("poznámka"))
        program.push("Poznámky", "Zavřít okno")
        program.gone("Poznámky")
        self.assertIn("poznámka".encode("cp1250"), (session.data_folder / "notes.dat").read_bytes())

        program.menu("Ulož rychle")
        for question in ("Opravdu uložit soubor?", "bude přepsán!"):
            wait_for(lambda: any(question in node.get_name() for node in walk(program.window("Soubor"))), question)
            program.push("Soubor", "Ano")
        program.window(title)
        wait_for(lambda: page.read_bytes() == "žlutý text".encode("cp1250"), "the saved page")

        # A place that can't be had is asked for some seconds, not for ever.
        def rests():
            before = session.output().count("set_window_geometry")
            time.sleep(1.5)
            return session.output().count("set_window_geometry") == before
        wait_for(rests, "an end of asking for a place", 30)
        program.menu("Konec")
        self.assertEqual(session.wait_exit(), 0)


if __name__ == "__main__":
    run_on_bus()
