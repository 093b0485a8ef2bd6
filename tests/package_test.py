"""Opens the package as the host does and looks at what is in it.

usage: package_test.py PACKAGE LIBRARY SOURCE_FOLDER -- COMMAND...

COMMAND starts the stand-in host with LIBRARY as one of its words; the tour runs with the library out of
the package in its place.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

PLUGIN = "BigNumberVQZ"
LIBRARY = f"{PLUGIN}/Build Resources/Windows/{PLUGIN}.dll"
HELP = f"{PLUGIN}/IDE Resources/Help/index.html"
LICENCES = {
    "GCC runtime.txt": "GCC RUNTIME LIBRARY EXCEPTION",
    "LICENSE": "MIT License",
    "MinGW-w64.txt": "the mingw-w64 project",
    "THIRD-PARTY-NOTICES.md": "Third-party notices",
    "ttmath.txt": "Tomasz Sowa",
}


class PackageTest(unittest.TestCase):
    package: pathlib.Path
    library: pathlib.Path
    source: pathlib.Path
    command: list[str]

    def setUp(self) -> None:
        self.archive = zipfile.ZipFile(self.package)
        self.addCleanup(self.archive.close)

    def test_layout(self) -> None:
        """The names are those that the host looks for, letter by letter, and nothing else is there."""
        expected = {LIBRARY, HELP} | {f"{PLUGIN}/Licences/{name}" for name in LICENCES}
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

    def test_library(self) -> None:
        self.assertEqual(self.archive.read(LIBRARY), self.library.read_bytes())

    def test_help(self) -> None:
        self.assertTrue(self.archive.read(HELP).startswith(b"<!DOCTYPE html>"))

    def test_tour(self) -> None:
        """A user's way: unpack, load, run."""
        with tempfile.TemporaryDirectory() as folder:
            unpacked = self.archive.extract(LIBRARY, folder)
            command = [unpacked if word == str(self.library) else word for word in self.command]
            self.assertIn(unpacked, command)
            runner = self.source / "tests/run_program.py"
            tour = self.source / "examples/tour.xojo_script"
            result = subprocess.run(
                [sys.executable, runner, tour, "--", *command], capture_output=True, text=True
            )
        self.assertEqual((result.returncode, result.stdout + result.stderr), (0, ""))


def main() -> None:
    separator = sys.argv.index("--")
    package, library, source = map(pathlib.Path, sys.argv[1:separator])
    PackageTest.package, PackageTest.library, PackageTest.source = package, library, source
    PackageTest.command = sys.argv[separator + 1 :]
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
