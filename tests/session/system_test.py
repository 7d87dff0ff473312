"""Printing on the default printer, and the Debian packages as a user gets them."""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from harness import AS_USER, NOBODY, EditorCase, built

SERVER = "Listen {0}/socket\n<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n"
FILES = "FileDevice Yes\nSandboxing relaxed\nRequestRoot {0}/jobs\n" + "".join(
    f"{place} {{0}}\n" for place in ("ServerRoot", "TempDir", "CacheDir", "StateDir"))
WORDS = "Příliš žluťoučký kůň\r\núpěl ďábelské ódy"


class SystemTest(EditorCase):
    def setUp(self):
        super().setUp()
        self.root = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="pelmar-system-")))
        self.root.chmod(0o711)

    def start_print_server(self):
        """Starts a server that keeps each job. Its printer isn't enabled yet."""
        (self.root / "server.conf").write_text(SERVER.format(self.root))
        (self.root / "files.conf").write_text(FILES.format(self.root))
        if AS_USER:
            os.chown(self.root, NOBODY, NOBODY)
        server = subprocess.Popen(
            [*AS_USER, "/usr/sbin/cupsd", "-f", "-c", self.root / "server.conf", "-s", self.root / "files.conf"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        self.env["CUPS_SERVER"] = str(self.root / "socket")
        self.wait((self.root / "socket").exists, "the print server", needs_program=False)
        self.command("lpadmin", "-p", "Test", "-v", "file:///dev/null")
        self.command("lpadmin", "-d", "Test")

    def jobs(self):
        return list((self.root / "jobs").glob("d*"))

    def test_a_refused_print_job_ends_the_program(self):
        self.start_print_server()
        self.start_with(self.write("page.html", WORDS))
        self.work("alt+s t [Pelmar VEX] Return")
        self.wait_exit(1)
        self.assertEqual(self.jobs(), [])

    def test_the_words_of_the_document_reach_the_printer(self):
        self.start_print_server()
        self.command("cupsenable", "Test")
        self.command("cupsaccept", "Test")
        self.start_with(self.write("page.html", WORDS))
        self.work("alt+s t")
        [job] = self.wait(self.jobs, "a print job")
        self.wait(lambda: b"%%EOF" in job.read_bytes()[-32:], "the whole job")
        self.assertEqual(self.command("pdftotext", job, "-").split(), WORDS.split())

    def dpkg(self, *arguments):
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        self.command(*as_root, "dpkg", f"--root={self.tree}", "--force-depends", "--force-not-root", *arguments)

    def install_packages(self):
        """Builds the packages, checks them, and installs them in a separate tree."""
        self.command("cpack", "--config", built("CPackConfig.cmake"), "-B", self.root / "packages")
        self.packages = {one.name.split("_")[0]: one for one in (self.root / "packages").glob("*.deb")}
        self.command("lintian", "--allow-root", "--fail-on", "error,warning", *self.packages.values())
        self.tree = self.root / "tree"
        for name in ("info", "updates", "triggers"):
            (self.tree / "var/lib/dpkg" / name).mkdir(parents=True)
        (self.tree / "var/lib/dpkg/status").touch()
        self.dpkg("-i", *self.packages.values())
        share = self.tree / "usr/share"
        self.command("desktop-file-validate", share / "applications/pelmar-vex.desktop")
        self.command("appstreamcli", "validate", "--no-net", share / "metainfo/cz.pelmar.vex.metainfo.xml")

    def test_an_ordinary_user_works_and_keeps_the_files_after_a_removal(self):
        self.install_packages()
        # The packaging tools don't find libraries that the program loads at run time.
        depends = self.command("dpkg-deb", "-f", self.packages["pelmar-vex"], "Depends")
        self.assertTrue("libqt6svg6" in depends and "qt6-translations-l10n" in depends, depends)
        self.assertTrue(list(self.tree.glob("usr/lib/*/pelmar-vex/pelmar-printer.so")))
        program, installed = self.tree / "usr/bin/pelmar-vex", sorted(self.tree.rglob("*"))
        page = self.write("page.html", "<P>žluťoučký</P>")
        main = self.start_with(page, program=program, user=True)
        # The help's text is in the package. Without it a message would stay open.
        self.work('"new " F1 [Help k Pelmar VEX] Escape /')
        self.assertEqual([one.title for one in self.windows()], [f"{main.title}*"])
        self.save_over()
        self.end(main, answer=None)
        if "pelmar-vex-browser" in self.packages:
            self.start("-BROWSER", title=re.compile("HTML [tT]estovací +browser.*"), program=program, user=True,
                       https_proxy="http://127.0.0.1:9")  # its start page can't be reached
            self.kill()
        self.assertEqual(sorted(self.tree.rglob("*")), installed)
        self.dpkg("-r", "--force-remove-reinstreq", *self.packages)
        self.assertEqual([path for path in (self.tree / "usr").rglob("*") if path.is_file()], [])
        self.assertEqual(page.read_bytes(), "new <P>žluťoučký</P>".encode("cp1250"))
        self.assertTrue(self.autosaved())


if __name__ == "__main__":
    unittest.main()
