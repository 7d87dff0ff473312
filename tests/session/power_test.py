"""Power cuts: the program is killed at random moments while it saves, closes and stores settings. Whatever the moment,
the document's file is whole, old or new, the settings are whole, and what was typed two seconds before is still there."""

import os
import random
import sys
import time
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import settings_record, write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
ROUNDS = int(os.environ.get("PELMAR_POWER_CUTS", "6"))
KEPT_WITHIN = 2.2  # seconds
OLD = b"old content\r\n" * 1000


class PowerTest(unittest.TestCase):
    def save(self, session, main):
        session.key("ctrl+u")
        session.wait_window("Uložit")
        session.key("Return")
        session.wait_window("Soubor")
        session.key("Return")

    def close(self, session, main):
        session.key("ctrl+F4")
        session.wait_window("Konec")
        session.key("Return")

    def store_settings(self, session, main):
        session.key("ctrl+F4")
        session.wait_window("Konec")
        session.key("Escape")  # the files are written before the question

    def one_cut(self, number, act, delay):
        with Session() as session:
            write_settings(session.data_folder)
            page = session.home / "page.html"
            page.write_bytes(OLD)
            session.start(PROGRAM, str(page))
            main = session.wait_window(f"Pelmar VEX ({page})")
            token = f"token{number}"
            session.type(token, main)
            session.wait_until(lambda: session.title(main).endswith("*"), "the mark")
            typed = time.monotonic()
            time.sleep(random.choice((0, KEPT_WITHIN)))
            kept = time.monotonic() - typed >= KEPT_WITHIN
            act(session, main)
            time.sleep(delay)
            session.kill()

            new = token.encode() + OLD
            self.assertIn(page.read_bytes(), (OLD, new))
            record = (session.data_folder / "pelmar.ini").read_bytes()
            self.assertGreaterEqual(len(record), len(settings_record()))
            for name in ("autosave_pelmar_vex.txt", "autosave_all_files.txt"):
                path = session.data_folder / name
                if path.exists():
                    self.assertIn(new, path.read_bytes())
            everywhere = [page, *session.data_folder.iterdir()]
            if kept:
                self.assertTrue(any(new in path.read_bytes() for path in everywhere if path.is_file()))

            # The next start stands, with or without an offer of what was left.
            session.start(PROGRAM, "-NOMSG")
            session.wait_until(lambda: session.window("Záchrana") or session.window("Pelmar VEX ()"), "the next start")
            if session.window("Záchrana"):
                session.key("Return", window=session.window("Záchrana"))
                session.wait_until(lambda: any("Pelmar VEX (" in title for title in session.titles()), "the documents")

    def test_cuts_lose_nothing(self):
        random.seed()
        acts = (self.save, self.close, self.store_settings)
        for number in range(ROUNDS):
            delay = random.uniform(0, 0.03)
            with self.subTest(number=number, delay=delay):
                self.one_cut(number, acts[number % len(acts)], delay)


if __name__ == "__main__":
    unittest.main()
