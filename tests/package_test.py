"""Opens the package as the host does and looks at what is in it, and makes it a second time.

usage: package_test.py PACKAGE BUILDS SOURCE_FOLDER TTMATH_FOLDER

BUILDS has the build folders of the presets whose libraries the package holds.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import zipfile

PLUGIN = "BigNumberVQZ"
HELP = f"{PLUGIN}/IDE Resources/Help/index.html"
# The folders in which hosts look for their library, letter by letter, and the target of each.
LIBRARIES = {
    "Windows/BigNumberVQZ.dll": "windows-x86",
    "WinUI x86/BigNumberVQZ.dll": "windows-x86",
    "Windows x86-64/BigNumberVQZ.dll": "windows-x86_64",
    "WinUI x86-64/BigNumberVQZ.dll": "windows-x86_64",
    "Linux x86-64/BigNumberVQZ.so": "linux-x86_64",
    "Linux arm64/BigNumberVQZ.so": "linux-arm64",
}
LICENCES = {
    "GCC runtime for Linux.txt": "GCC RUNTIME LIBRARY EXCEPTION",
    "GCC runtime for Windows.txt": "GCC RUNTIME LIBRARY EXCEPTION",
    "LICENSE": "MIT License",
    "MinGW-w64.txt": "the mingw-w64 project",
    "THIRD-PARTY-NOTICES.md": "Third-party notices",
    "ttmath.txt": "Tomasz Sowa",
}


class PackageTest(unittest.TestCase):
    package: pathlib.Path
    builds: pathlib.Path
    source: pathlib.Path
    ttmath: pathlib.Path

    def setUp(self) -> None:
        self.archive = zipfile.ZipFile(self.package)
        self.addCleanup(self.archive.close)

    def test_layout(self) -> None:
        """The names are those that the host looks for, letter by letter, and nothing else is there."""
        expected = {HELP} | {f"{PLUGIN}/Licences/{name}" for name in LICENCES}
        expected |= {f"{PLUGIN}/Build Resources/{name}" for name in LIBRARIES}
        self.assertEqual(sorted(self.archive.namelist()), sorted(expected))
        self.assertIsNone(self.archive.testzip())

    def test_entries_tell_nothing_of_their_making(self) -> None:
        names = self.archive.namelist()
        self.assertEqual(names, sorted(names))
        for entry in self.archive.infolist():
            self.assertEqual(entry.date_time, (1980, 1, 1, 0, 0, 0))
            self.assertEqual(entry.external_attr >> 16, 0o100644)
            self.assertEqual((entry.extra, entry.comment), (b"", b""))

    def test_licences(self) -> None:
        """Each of the licences is the text that its name promises."""
        for name, phrase in LICENCES.items():
            text = self.archive.read(f"{PLUGIN}/Licences/{name}").decode()
            self.assertIn(phrase, text, name)

    def test_libraries(self) -> None:
        for name, target in LIBRARIES.items():
            built = self.builds / target / pathlib.PurePath(name).name
            packed = self.archive.read(f"{PLUGIN}/Build Resources/{name}")
            self.assertTrue(packed == built.read_bytes(), f"{name} is not the library of {target}")

    def test_readme_names_the_folders(self) -> None:
        rows = re.findall(r"^\| \d\d-bit [^|]*\| ([^|]*) \|", (self.source / "README.md").read_text("utf-8"), re.M)
        named = [folder for row in rows for folder in re.findall("`([^`]*)`", row)]
        self.assertEqual(sorted(named), sorted(name.split("/")[0] for name in LIBRARIES))

    def test_help(self) -> None:
        self.assertTrue(self.archive.read(HELP).startswith(b"<!DOCTYPE html>"))

    def test_made_again(self) -> None:
        """The same libraries and help give the same bytes; that these come out the same themselves is
        tested for each."""
        with tempfile.TemporaryDirectory() as folder:
            again = pathlib.Path(folder, "again.xojo_plugin")
            subprocess.run([self.source / "scripts/python", "build", self.source / "packaging/make_package.py",
                            "--builds", self.builds, "--ttmath", self.ttmath / "ttmath/ttmath.h",
                            "--help-page", self.builds / "windows-x86/help/index.html",
                            "--project", self.source, again], check=True)
            self.assertTrue(again.read_bytes() == self.package.read_bytes(), "the bytes are others")


def main() -> None:
    PackageTest.package, PackageTest.builds, PackageTest.source, PackageTest.ttmath = map(
        pathlib.Path, sys.argv[1:])
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
