"""What the system has to do with the program: the Debian packages as a person gets them, and printing on the default
printer."""

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
    def new_folder(self):
        folder = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="pelmar-system-")))
        folder.chmod(0o711)
        return folder

    def serve_a_printer(self):
        """A print server of the test's own, that keeps each job. Gives its folder."""
        folder = self.new_folder()
        (folder / "server.conf").write_text(SERVER.format(folder))
        (folder / "files.conf").write_text(FILES.format(folder))
        if AS_USER:
            os.chown(folder, NOBODY, NOBODY)
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

    def test_words_reach_the_printer_without_a_question_and_a_refusal_is_told(self):
        jobs = self.serve_a_printer() / "jobs"
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

    def dpkg(self, *arguments):
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        self.command(*as_root, "dpkg", f"--root={self.tree}", "--force-depends", "--force-not-root", *arguments)

    def test_packages_are_built_installed_used_and_removed(self):
        """Used by an ordinary user who may write nothing there."""
        root = self.new_folder()
        self.command("cpack", "--config", built("CPackConfig.cmake"), "-B", root / "packages")
        packages = {one.name.split("_")[0]: one for one in (root / "packages").glob("*.deb")}
        self.assertEqual(self.command("lintian", "--allow-root", "--display-info", "--pedantic", "--fail-on",
                                      "error,warning", *packages.values()), "")
        # What the toolkit loads by itself can't be seen in the binary, so it must be named.
        control = self.command("dpkg-deb", "-f", packages["pelmar-vex"])
        for field, wanted in (("Depends", "libqt6widgets6 libqt6printsupport6 libqt6svg6 qt6-translations-l10n"),
                              ("Recommends", "pelmar-vex-browser qt6-wayland")):
            found = re.search(f"{field}: (.*)", control)[1]
            self.assertEqual([one for one in wanted.split() if one not in found], [], found)

        self.tree = root / "tree"
        for name in ("info", "updates", "triggers"):
            (self.tree / "var/lib/dpkg" / name).mkdir(parents=True)
        (self.tree / "var/lib/dpkg/status").touch()
        self.dpkg("-i", *packages.values())
        share, program = self.tree / "usr/share", self.tree / "usr/bin/pelmar-vex"
        self.command("desktop-file-validate", share / "applications/pelmar-vex.desktop")
        self.command("appstreamcli", "validate", "--no-net", share / "metainfo/cz.pelmar.vex.metainfo.xml")
        for size in (16, 48, 256):
            self.assertTrue((share / f"icons/hicolor/{size}x{size}/apps/pelmar-vex.png").is_file())
        self.assertTrue(list(self.tree.glob("usr/lib/*/pelmar-vex/pelmar-printer.so")))
        # Of what the distribution builds its programs with, lintian doesn't look at this.
        self.assertIn("__stack_chk_fail", self.command("readelf", "-W", "--dyn-syms", program))
        before = sorted(self.tree.rglob("*"))
        page = self.write("page.html", "<P>žluťoučký</P>")
        main = self.start_with(page, program=program, user=True)
        # The help's text lies in the package; without it a box would stand beside.
        self.work('"new " F1 [Help k Pelmar VEX] Escape /')
        self.assertEqual([one.title for one in self.windows()], [f"{main.title}*"])
        self.save_over()
        self.assertEqual(page.read_bytes(), "new <P>žluťoučký</P>".encode("cp1250"))
        self.end(main, answer=None)
        if "pelmar-vex-browser" in packages:
            # The module is found where its package puts it. The page itself is out of reach here.
            self.start("-BROWSER", title=re.compile("HTML [tT]estovací +browser.*"), program=program, user=True,
                       https_proxy="http://127.0.0.1:9")
            self.kill()
        self.assertEqual(sorted(self.tree.rglob("*")), before)  # nothing was written beside the program
        kept = {path: path.read_bytes() for path in self.home.rglob("*") if path.is_file()}
        self.assertIn(self.folder / "autosave_pelmar_vex.txt", kept)
        self.dpkg("-r", "--force-remove-reinstreq", *packages)
        self.assertEqual([path for path in (self.tree / "usr").rglob("*") if path.is_file()], [])
        self.assertEqual({path: path.read_bytes() for path in kept}, kept)


if __name__ == "__main__":
    unittest.main()
