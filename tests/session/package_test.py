"""The Debian packages as a person gets them: built, checked, put into a tree of their own, used by an ordinary user who
may write nothing there, and taken away again."""

import os
import re
import shutil
import tempfile
import unittest
from pathlib import Path

from harness import EditorCase, built


class PackageTest(EditorCase):
    def dpkg(self, *arguments):
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        self.command(*as_root, "dpkg", f"--root={self.tree}", "--force-depends", "--force-not-root", *arguments)

    def test_built_installed_used_and_removed(self):
        root = Path(tempfile.mkdtemp(prefix="pelmar-packages-"))
        self.addCleanup(shutil.rmtree, root, ignore_errors=True)
        root.chmod(0o755)
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
        self.assertEqual(self.titles(), [f"{main.title}*"])
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
