"""Printing on the system's default printer: a print server of its own that keeps each job, and the real program."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from harness import AS_USER, NOBODY, EditorCase

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


class PrintTest(EditorCase):
    def setUp(self):
        super().setUp()
        self.server = Path(tempfile.mkdtemp(prefix="pelmar-printer-"))
        self.addCleanup(shutil.rmtree, self.server, ignore_errors=True)
        files = self.server / "server.conf", self.server / "files.conf"
        for file, text in zip(files, (SERVER, SERVER_FILES)):
            file.write_text(text.format(self.server))
        if AS_USER:
            os.chown(self.server, NOBODY, NOBODY)
            self.server.chmod(0o711)
        server = subprocess.Popen([*AS_USER, "/usr/sbin/cupsd", "-f", "-c", files[0], "-s", files[1]],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        self.session.env["CUPS_SERVER"] = str(self.server / "socket")
        self.session.wait_until((self.server / "socket").exists, "the print server", needs_program=False)

    def print_document(self, *printer):
        """Prints on a printer with these options."""
        self.session.run("lpadmin", "-p", "Test", "-v", "file:///dev/null", *printer)
        self.session.run("lpadmin", "-d", "Test")
        page = self.session.home / "page.html"
        page.write_bytes("Příliš žluťoučký kůň\r\núpěl ďábelské ódy".encode("cp1250"))
        main = self.start_with(page)
        self.session.key("alt+s", "t")
        return main

    def jobs(self):
        return sorted((self.server / "jobs").glob("d*"))

    def test_the_words_reach_the_printer_without_a_question(self):
        main = self.print_document("-E")
        job, = self.session.wait_until(self.jobs, "a print job")
        self.session.wait_until(lambda: b"%%EOF" in job.read_bytes()[-32:], "the whole job")
        self.assertEqual(self.session.run("pdftotext", job, "-").split(),
                         "Příliš žluťoučký kůň úpěl ďábelské ódy".split())
        self.assertEqual(self.session.titles(), [main.title])
        self.end(main, asks=False)

    def test_a_printer_that_refuses_is_told(self):
        self.print_document()  # not enabled, accepts no jobs
        self.answer("Pelmar VEX")
        self.assertEqual(self.jobs(), [])


if __name__ == "__main__":
    unittest.main()
