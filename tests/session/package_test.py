"""The Debian packages as a person gets them: built, checked, put into a tree of their own, used by an ordinary user who
may write nothing there, and taken away again."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from harness import EditorCase, built

# Commands that give files to root pretend to, where the test isn't run by root.
AS_ROOT = [] if os.geteuid() == 0 else ["fakeroot"]


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          timeout=240, **options)
    if done.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}:\n{done.stdout}")
    return done.stdout


class PackageTest(EditorCase):
    @classmethod
    def setUpClass(cls):
        cls.root = Path(tempfile.mkdtemp(prefix="pelmar-packages-"))
        cls.addClassCleanup(shutil.rmtree, cls.root, ignore_errors=True)
        cls.root.chmod(0o755)
        run("cpack", "--config", built("CPackConfig.cmake"), "-B", cls.root / "packages", cwd=cls.root)
        cls.packages = {one.name.split("_")[0]: one for one in (cls.root / "packages").glob("*.deb")}
        cls.tree = cls.root / "tree"
        for name in ("info", "updates", "triggers"):
            (cls.tree / "var/lib/dpkg" / name).mkdir(parents=True)
        (cls.tree / "var/lib/dpkg/status").touch()

    def dpkg(self, *arguments):
        run(*AS_ROOT, "dpkg", f"--root={self.tree}", "--force-depends", "--force-not-root", *arguments)

    def start(self, title, *arguments, **environment):
        self.session.start_as_user(self.tree / "usr/bin/pelmar-vex", *arguments, **environment)
        return self.session.wait_window(title)

    def test_packages_are_in_order(self):
        told = run("lintian", "--allow-root", "--display-info", "--pedantic", "--fail-on", "error,warning",
                   *self.packages.values())
        self.assertEqual(told, "")
        control = run("dpkg-deb", "-f", self.packages["pelmar-vex"])
        # What the toolkit loads by itself can't be seen in the binary, so it must be named.
        for field, *packages in (
                ("Depends", "libqt6widgets6", "libqt6printsupport6", "libqt6svg6", "qt6-translations-l10n"),
                ("Recommends", "pelmar-vex-browser", "qt6-wayland")):
            for package in packages:
                self.assertIn(package, re.search(f"{field}: (.*)", control)[1])

    def test_installed_used_and_removed(self):
        session = self.session
        self.dpkg("-i", *self.packages.values())
        share = self.tree / "usr/share"
        run("desktop-file-validate", share / "applications/pelmar-vex.desktop")
        run("appstreamcli", "validate", "--no-net", share / "metainfo/cz.pelmar.vex.metainfo.xml")
        for size in (16, 48, 256):
            self.assertTrue((share / f"icons/hicolor/{size}x{size}/apps/pelmar-vex.png").is_file())
        self.assertTrue(list(self.tree.glob("usr/lib/*/pelmar-vex/pelmar-printer.so")))
        # Of what the distribution builds its programs with, lintian doesn't look at this.
        self.assertIn("__stack_chk_fail", run("readelf", "-W", "--dyn-syms", self.tree / "usr/bin/pelmar-vex"))
        before = sorted(self.tree.rglob("*"))
        page = session.home / "page.html"
        page.write_bytes("<P>žluťoučký</P>".encode("cp1250"))
        main = self.start(f"Pelmar VEX ({page})", page)
        session.type("new ")
        session.key("F1")
        self.answer("Help k Pelmar VEX", "Escape")  # its text lies in the package
        self.assertEqual(len(session.windows()), 1)
        self.save_over()
        self.assertEqual(page.read_bytes(), "new <P>žluťoučký</P>".encode("cp1250"))
        self.end(main, asks=False)
        if "pelmar-vex-browser" in self.packages:
            # The module is found where its package puts it. The page itself is out of reach here.
            self.start(re.compile("HTML [tT]estovací +browser.*"), "-BROWSER", https_proxy="http://127.0.0.1:9")
            session.kill()
        self.assertEqual(sorted(self.tree.rglob("*")), before)  # nothing was written beside the program
        kept = {path: path.read_bytes() for path in session.home.rglob("*") if path.is_file()}
        self.assertIn(self.folder / "autosave_pelmar_vex.txt", kept)

        self.dpkg("-r", "--force-remove-reinstreq", *self.packages)
        self.assertEqual([path for path in (self.tree / "usr").rglob("*") if path.is_file()], [])
        self.assertEqual({path: path.read_bytes() for path in kept}, kept)


if __name__ == "__main__":
    unittest.main()
