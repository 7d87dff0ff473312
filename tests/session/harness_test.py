"""The harness against the smallest of windows: what it types arrives, and what goes wrong is told."""

import contextlib
import io
import os
import re
import tempfile
import unittest
from unittest import mock

from harness import Session, built

BARE = built("bench/bare_window")


@unittest.skipUnless(BARE.exists(), "the benchmarks are not built")
class HarnessTest(unittest.TestCase):
    def test_keys_mouse_and_clipboard_reach_the_program(self):
        with Session() as session:
            session.start(BARE)
            window = session.wait_window("Bare window")
            session.type("one\ntwo", window)
            session.key("ctrl+a", "ctrl+c")
            session.wait_until(lambda: session.clipboard() == "one\ntwo", "the typed text")

            session.set_clipboard("žluťoučký kůň")
            session.key("ctrl+a", "ctrl+v", "ctrl+a", "ctrl+x")
            session.wait_until(lambda: session.clipboard() == "žluťoučký kůň", "the pasted text")

            session.type("pick", window)
            session.click(window, 15, 12, times=2)
            session.wait_until(lambda: session.clipboard("primary") == "pick", "the double-clicked word")

    def test_programs_follow_each_other_in_one_home(self):
        with Session() as session:
            session.start(BARE)
            session.close(session.wait_window(re.compile("Bare w.*")))
            self.assertEqual(session.wait_exit(), 0)
            session.wait_no_window("Bare window")
            self.assertEqual(session.titles(), [])
            home = session.home
            session.start(BARE)
            session.wait_window("Bare window")
        self.assertFalse(session.running())
        self.assertFalse(home.exists())

    def test_a_program_that_breaks_is_reported_with_its_output(self):
        report = io.StringIO()
        with contextlib.redirect_stderr(report), self.assertRaisesRegex(AssertionError, "has ended"):
            with Session() as session:
                session.start("/bin/sh", "-c", "echo it broke >&2; exit 3")
                session.wait_window("never")
        self.assertIn("status 3", report.getvalue())
        self.assertIn("it broke", report.getvalue())

    def test_a_wait_in_vain_tells_the_windows_and_takes_a_picture(self):
        with tempfile.TemporaryDirectory() as folder, mock.patch.dict(os.environ, PELMAR_SHOTS=folder):
            with contextlib.redirect_stderr(io.StringIO()), self.assertRaisesRegex(AssertionError, "'Bare window'"):
                with Session() as session:
                    session.start(BARE)
                    session.wait_window("Bare window")
                    session.wait_window("never", patience=0.2)
            pictures = os.listdir(folder)
            self.assertEqual(len(pictures), 1)
            self.assertGreater(os.path.getsize(os.path.join(folder, pictures[0])), 1000)


if __name__ == "__main__":
    unittest.main()
