"""Printing on the system's default printer: a print server of its own that keeps each job, and the real program."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from harness import AS_USER, NOBODY, Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

SERVER = """Listen {0}/socket
DefaultAuthType None
WebInterface No
<Location />
Allow all
</Location>
<Policy default>
<Limit All>
Allow all
</Limit>
</Policy>
"""
SERVER_FILES = """ServerRoot {0}
RequestRoot {0}/jobs
TempDir {0}
CacheDir {0}
StateDir {0}
AccessLog {0}/access
ErrorLog {0}/error
PageLog {0}/pages
FileDevice Yes
Sandboxing relaxed
"""


class PrintTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="pelmar-printer-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        (self.folder / "server.conf").write_text(SERVER.format(self.folder))
        (self.folder / "files.conf").write_text(SERVER_FILES.format(self.folder))
        if AS_USER:
            os.chown(self.folder, NOBODY, NOBODY)
            self.folder.chmod(0o711)
        server = subprocess.Popen([*AS_USER, "/usr/sbin/cupsd", "-f", "-c", self.folder / "server.conf",
                                   "-s", self.folder / "files.conf"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        self.session.env["CUPS_SERVER"] = str(self.folder / "socket")
        self.session.wait_until((self.folder / "socket").exists, "the print server", needs_program=False)
        write_settings(self.session.data_folder)
        self.page = self.session.home / "page.html"

    def printer(self, *arguments):
        subprocess.run(["lpadmin", "-p", "Test", "-v", "file:///dev/null", *arguments], env=self.session.env, check=True)
        subprocess.run(["lpadmin", "-d", "Test"], env=self.session.env, check=True)

    def print_document(self, text):
        self.page.write_bytes(text.encode("cp1250"))
        self.session.start(built("pelmar-vex"), self.page)
        main = self.session.wait_window(f"Pelmar VEX ({self.page})")
        self.session.key("alt+s", "t", window=main)
        return main

    def jobs(self):
        return sorted((self.folder / "jobs").glob("d*"))

    def test_the_words_reach_the_printer_without_a_question(self):
        self.printer("-E")
        main = self.print_document("Příliš žluťoučký kůň\r\núpěl ďábelské ódy")
        job, = self.session.wait_until(self.jobs, "a print job")
        self.session.wait_until(lambda: b"%%EOF" in job.read_bytes()[-32:], "the whole job")
        read = subprocess.run(["pdftotext", job, "-"], stdout=subprocess.PIPE, text=True, check=True).stdout
        self.assertEqual(read.split(), "Příliš žluťoučký kůň úpěl ďábelské ódy".split())
        self.assertEqual(self.session.titles(), [main.title])
        self.session.close(main)
        self.assertEqual(self.session.wait_exit(), 0)

    def test_a_printer_that_refuses_is_told(self):
        self.printer()  # not enabled, accepts no jobs
        self.print_document("words")
        self.session.wait_window("Pelmar VEX")
        self.assertEqual(self.jobs(), [])


if __name__ == "__main__":
    unittest.main()
