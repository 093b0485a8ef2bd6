"""Opens the release as a new user does, and looks at what is in it.

usage: release_test.py RELEASE PACKAGE LIBRARY HELP_PAGE SOURCE_FOLDER -- COMMAND...

Unpacks the release, takes the plug-in's library for this target out of the package in it, and runs with it
the first program of its README and the tour of its examples. COMMAND starts the stand-in host with LIBRARY as
one of its words. Then the release is made a second time.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import zipfile

from package_tour import libraries_like

DOCUMENTS = {"README.txt", "Help.html", "CHANGELOG.md", "LICENSE.txt", "THIRD-PARTY-NOTICES.md",
             "BigNumberVQZ.xojo_plugin", "SelfTest/host-facts.md"}


def blocks(text: str) -> list[str]:
    """The indented blocks of a text, without the indent."""
    found = re.findall(r"(?:^    .*\n)+", text, re.M)
    return [re.sub(r"^    ", "", block, flags=re.M) for block in found]


class ReleaseTest(unittest.TestCase):
    release: pathlib.Path
    package: pathlib.Path
    library: pathlib.Path
    help_page: pathlib.Path
    source: pathlib.Path
    command: list[str]

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.unpacked = pathlib.Path(folder.name, "a folder")
        with zipfile.ZipFile(self.release) as archive:
            self.assertIsNone(archive.testzip())
            archive.extractall(self.unpacked)
        self.unpacked /= self.release.stem

    def run_with_plugin(self, *words: str | pathlib.Path) -> subprocess.CompletedProcess[bytes]:
        """What the words print with the library that the unpacked plug-in has for this target."""
        with zipfile.ZipFile(self.unpacked / "BigNumberVQZ.xojo_plugin") as plugin:
            library = plugin.extract(libraries_like(plugin, self.library)[0], self.unpacked.parent)
        command = [library if word == str(self.library) else word for word in self.command]
        return subprocess.run([*command, *words], stdin=subprocess.DEVNULL, capture_output=True, check=False)

    def test_contents(self) -> None:
        """All documents, the projects with the files that they list, and nothing else."""
        expected = set(DOCUMENTS)
        projects = [path for path in (self.source / "examples").glob("**/*.xojo_project")]
        self.assertIn(self.source / "examples/Examples.xojo_project", projects)
        for project in projects:
            folder = project.stem
            expected.add(f"{folder}/{project.name}")
            for path in re.findall(r"^(?:Class|Module)=[^;]+;([^;]+);", project.read_text(), re.M):
                expected.add(f"{folder}/{path}")
        found = {path.relative_to(self.unpacked).as_posix()
                 for path in self.unpacked.glob("**/*") if path.is_file()}
        others = {name for name in found - expected if not name.endswith((".md", ".txt"))}
        self.assertEqual((expected - found, others), (set(), set()))

    def test_names(self) -> None:
        number = (self.source / "VERSION").read_text().split()[0]
        self.assertEqual(self.release.name, f"BigNumberVQZ-{number}.zip")
        settings = (self.unpacked / "SelfTest/Settings.xojo_code").read_text()
        self.assertIn(f'Name = kLibraryVersion, Type = String, Dynamic = False, Default = \\"{number}"', settings)

    def test_changes_stand_under_the_version(self) -> None:
        """Not under a heading for what is still to be released."""
        number = (self.source / "VERSION").read_text().split()[0]
        versions = re.findall(r"^## \[(.*?)\]", (self.unpacked / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual(versions[0], number)

    def test_entries_tell_nothing_of_their_making(self) -> None:
        with zipfile.ZipFile(self.release) as archive:
            names = archive.namelist()
            self.assertEqual(names, sorted(names))
            for entry in archive.infolist():
                self.assertTrue(entry.filename.startswith(f"{self.release.stem}/"))
                self.assertEqual(entry.date_time, (1980, 1, 1, 0, 0, 0))
                self.assertEqual(entry.external_attr >> 16, 0o100644)

    def test_the_package_and_the_help_are_those_that_were_built(self) -> None:
        for name, built in (("BigNumberVQZ.xojo_plugin", self.package), ("Help.html", self.help_page)):
            self.assertTrue((self.unpacked / name).read_bytes() == built.read_bytes(), name)

    def test_readme(self) -> None:
        """It tells the version and its year, names only files that are there, and its program prints
        what it says."""
        text = (self.unpacked / "README.txt").read_text()
        self.assertIn((self.source / "VERSION").read_text().strip(), text.splitlines()[0])
        self.assertRegex(text, r'"\(\d{4}\)" belongs to the version\'s name')
        self.assertNotIn("@", text)
        listed = re.findall(r"^(\S+?)/?  +\S", text.split("What is here\n")[1], re.M)
        self.assertGreater(len(listed), len(DOCUMENTS) - 2)
        for name in listed:
            with self.subTest(name=name):
                self.assertTrue((self.unpacked / name).exists())
        program, output = blocks(text.split("The first program\n")[1].split("\n\n\n")[0])
        result = self.run_with_plugin("-e", program)
        self.assertEqual((result.returncode, result.stderr.decode()), (0, ""))
        self.assertEqual(result.stdout.decode(), output)

    def test_an_example_of_the_project(self) -> None:
        result = self.run_with_plugin("--built-application",
                                      self.unpacked / "Examples/Examples.xojo_project", "tour")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertEqual(result.stdout, (self.source / "examples/tour.expected").read_bytes())

    def test_made_again(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            again = pathlib.Path(folder, self.release.name)
            subprocess.run([self.source / "scripts/python", "build", self.source / "packaging/make_release.py",
                            "--package", self.package, "--help-page", self.help_page,
                            "--project", self.source, again], check=True)
            self.assertTrue(again.read_bytes() == self.release.read_bytes(), "the bytes are others")


def main() -> None:
    separator = sys.argv.index("--")
    (ReleaseTest.release, ReleaseTest.package, ReleaseTest.library, ReleaseTest.help_page,
     ReleaseTest.source) = map(pathlib.Path, sys.argv[1:separator])
    ReleaseTest.command = sys.argv[separator + 1:]
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
