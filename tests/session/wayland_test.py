"""The program on a Wayland compositor, with no X server at all. The compositor draws nowhere and has neither mouse nor
keyboard, so the accessibility bus does what a person would."""

import subprocess
import sys
import time
import unittest

sys.dont_write_bytecode = True
from assistive import Program, program_environment, run_on_bus, shows, wait_for, walk  # noqa: E402
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402


class WaylandSession(Session):
    def _environment(self):
        env = super()._environment()
        env.pop("DISPLAY", None)
        env.update(WAYLAND_DISPLAY="pelmar-test", WAYLAND_DEBUG="1")
        return env

    def _start_server(self):
        self.children.append(subprocess.Popen(
            ["weston", "--backend=headless-backend.so", "--socket=pelmar-test", "--no-config", "--idle-time=0",
             "--width=1280", "--height=1024"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        socket = self.home / "runtime" / "pelmar-test"
        self.wait_until(socket.exists, "the compositor", needs_program=False)

    def _start_window_manager(self):
        pass

    def titles(self):
        return [window.get_name() for window in Program().windows()]

    def shot(self, name):
        return None


class WaylandTest(unittest.TestCase):
    def test_a_day_without_x(self):
        with WaylandSession() as session:
            write_settings(session.data_folder, left=100, top=100)  # near enough to the edge to be snapped
            page = session.home / "page.html"
            page.write_bytes(b"text")
            session.start(built("pelmar-vex"), page, **program_environment())
            program = Program()
            title = f"Pelmar VEX ({page})"
            program.window(title)

            text = program.find(title, "text", "Text dokumentu")
            text.insert_text(0, "žlutý ", len("žlutý "))
            program.window(title + "*")
            program.push_menu("Soubor")
            wait_for(lambda: shows(program.find(title, "menu item", "Otevři")), "the open menu")
            program.push_menu("Soubor")
            program.menu("Hledání ...")
            program.window("Hledání")
            program.push("Hledání", "Zavři okno")
            program.gone("Hledání")
            program.menu("Poznámky")
            note = program.find("Poznámky", "text", "Text poznámky")
            note.insert_text(0, "poznámka", len("poznámka"))
            program.push("Poznámky", "Zavřít okno")
            program.gone("Poznámky")
            self.assertIn("poznámka".encode("cp1250"), (session.data_folder / "notes.dat").read_bytes())

            program.menu("Ulož rychle")
            for question in ("Opravdu uložit soubor?", "bude přepsán!"):
                wait_for(lambda: any(question in node.get_name() for node in walk(program.window("Soubor"))), question)
                program.push("Soubor", "Ano")
            program.window(title)
            wait_for(lambda: page.read_bytes() == "žlutý text".encode("cp1250"), "the saved page")

            def asks():
                return session.output().count("set_window_geometry")

            # A place that can't be had is asked for some seconds, not for ever.
            def rests():
                before = asks()
                time.sleep(1.5)
                return asks() == before
            wait_for(rests, "an end of asking for a place", 30)
            program.menu("Konec")
            self.assertEqual(session.wait_exit(), 0)


if __name__ == "__main__":
    run_on_bus()
