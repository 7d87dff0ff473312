"""The Debian packages as a person gets them: built, checked, put into a tree of their own, used by an ordinary user who
may write nothing there, and taken away again."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

# Commands that give files to root pretend to, where the test isn't run by root.
AS_ROOT = [] if os.geteuid() == 0 else ["fakeroot"]


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          timeout=240, **options)
    if done.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}:\n{done.stdout}")
    return done.stdout


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="pelmar-packages-"))
        cls.folder.chmod(0o755)
        run("cpack", "--config", built("CPackConfig.cmake"), "-B", cls.folder / "packages", cwd=cls.folder)
        cls.packages = sorted((cls.folder / "packages").glob("*.deb"))
        cls.tree = cls.folder / "root"
        for name in ("info", "updates", "triggers"):
            (cls.tree / "var/lib/dpkg" / name).mkdir(parents=True)
        (cls.tree / "var/lib/dpkg/status").touch()

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder, ignore_errors=True)

    def dpkg(self, *arguments):
        return run(*AS_ROOT, "dpkg", f"--root={self.tree}", "--force-depends", "--force-not-root", *arguments)

    def start(self, session, *arguments, **environment):
        session.start_as_user(self.tree / "usr/bin/pelmar-vex", *arguments, **environment)

    def test_packages_are_in_order(self):
        names = [re.match(r"[a-z-]+", package.name)[0] for package in self.packages]
        self.assertIn("pelmar-vex", names)
        told = run("lintian", "--allow-root", "--display-info", "--pedantic", "--fail-on", "error,warning", *self.packages)
        self.assertEqual(told, "")
        control = run("dpkg-deb", "-f", next(one for one in self.packages if one.name.startswith("pelmar-vex_")))
        # What the toolkit loads by itself can't be seen in the binary, so it must be named.
        for package in ("libqt6widgets6", "libqt6printsupport6", "libqt6svg6", "qt6-translations-l10n"):
            self.assertIn(package, re.search("Depends: (.*)", control)[1])
        for package in ("pelmar-vex-browser", "qt6-wayland"):
            self.assertIn(package, re.search("Recommends: (.*)", control)[1])

    def test_installed_used_and_removed(self):
        self.dpkg("-i", *self.packages)
        share = self.tree / "usr/share"
        run("desktop-file-validate", share / "applications/pelmar-vex.desktop")
        run("appstreamcli", "validate", "--no-net", share / "metainfo/cz.pelmar.vex.metainfo.xml")
        for size in (16, 48, 256):
            self.assertTrue((share / f"icons/hicolor/{size}x{size}/apps/pelmar-vex.png").is_file())
        self.assertTrue(list(self.tree.glob("usr/lib/*/pelmar-vex/pelmar-printer.so")))
        # Of what the distribution builds its programs with, lintian doesn't look at this.
        self.assertIn("__stack_chk_fail", run("readelf", "-W", "--dyn-syms", self.tree / "usr/bin/pelmar-vex"))
        before = sorted(self.tree.rglob("*"))
        with Session() as session:
            write_settings(session.data_folder)
            page = session.home / "page.html"
            page.write_bytes("<P>žluťoučký</P>".encode("cp1250"))
            self.start(session, str(page))
            main = session.wait_window(f"Pelmar VEX ({page})")
            session.type("new ", main)
            session.key("F1")
            session.wait_window("Help k Pelmar VEX")  # its text lies in the package
            self.assertNotIn("Chyba", " ".join(session.titles()))
            session.key("Escape")
            session.wait_no_window("Help k Pelmar VEX")
            session.key("ctrl+u", window=main)
            session.wait_window("Uložit")
            session.key("Return")
            session.wait_window("Soubor")
            session.key("Return")
            session.wait_until(lambda: page.read_bytes() == "new <P>žluťoučký</P>".encode("cp1250"), "the saved page")
            session.close(main)
            self.assertEqual(session.wait_exit(), 0)
            if built("pelmar-browser.so").exists():
                # The module is found where its package puts it. The page itself is out of reach here.
                self.start(session, "-BROWSER", https_proxy="http://127.0.0.1:9")
                session.wait_window(re.compile("HTML [tT]estovací +browser.*"))
                session.kill()
            self.assertEqual(sorted(self.tree.rglob("*")), before)  # nothing was written beside the program
            kept = {path: path.read_bytes() for path in session.home.rglob("*") if path.is_file()}
            self.assertIn(session.data_folder / "autosave_pelmar_vex.txt", kept)

            self.dpkg("-r", "--force-remove-reinstreq", *{one.name.split("_")[0] for one in self.packages})
            self.assertEqual([path for path in (self.tree / "usr").rglob("*") if path.is_file()], [])
            for path, content in kept.items():
                self.assertEqual(path.read_bytes(), content)


if __name__ == "__main__":
    unittest.main()
