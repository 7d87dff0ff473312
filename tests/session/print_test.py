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
<Location />
Allow all
</Location>
<Policy default>
<Limit All>
Allow all
</Limit>
</Policy>
"""
FILES = "FileDevice Yes\nSandboxing relaxed\nRequestRoot {0}/jobs\n" + "".join(
    f"{place} {{0}}\n" for place in ("ServerRoot", "TempDir", "CacheDir", "StateDir"))
WORDS = "Příliš žluťoučký kůň\r\núpěl ďábelské ódy"


class PrintTest(EditorCase):
    def serve(self):
        folder = Path(tempfile.mkdtemp(prefix="pelmar-printer-"))
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        (folder / "server.conf").write_text(SERVER.format(folder))
        (folder / "files.conf").write_text(FILES.format(folder))
        if AS_USER:
            os.chown(folder, NOBODY, NOBODY)
            folder.chmod(0o711)
        server = subprocess.Popen(
            [*AS_USER, "/usr/sbin/cupsd", "-f", "-c", folder / "server.conf", "-s", folder / "files.conf"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        self.env["CUPS_SERVER"] = str(folder / "socket")
        self.wait((folder / "socket").exists, "the print server", needs_program=False)
        self.command("lpadmin", "-p", "Test", "-v", "file:///dev/null")
        self.command("lpadmin", "-d", "Test")
        return folder

    def test_a_refusal_is_told_and_the_words_reach_the_printer_without_a_question(self):
        jobs = self.serve() / "jobs"
        page = self.write("page.html", WORDS)
        self.start_with(page)
        self.work("alt+s t [Pelmar VEX] Return")  # the printer isn't enabled yet
        self.wait_exit(1)
        self.assertEqual(list(jobs.glob("d*")), [])
        self.command("cupsenable", "Test")
        self.command("cupsaccept", "Test")
        main = self.start_with(page)
        self.work("alt+s t")
        job, = self.wait(lambda: list(jobs.glob("d*")), "a print job")
        self.wait(lambda: b"%%EOF" in job.read_bytes()[-32:], "the whole job")
        self.assertEqual(self.command("pdftotext", job, "-").split(), WORDS.split())
        self.end(main, answer=None)


if __name__ == "__main__":
    unittest.main()
