"""What the commands of the project say when something is in their way, and that they then go on.

usage: commands_test.py
"""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parent.parent
# What the commands take for granted; nothing else is found in the tests' own path.
COMMON = "bash cat cmp cp dirname flock grep ls mkdir mktemp mv rm tee touch".split()


class CommandsTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.project = self.folder / "checkout"
        self.project.mkdir()
        for name in ("run", "VERSION", "CMakePresets.json"):
            shutil.copy(PROJECT / name, self.project)
        shutil.copytree(PROJECT / "scripts", self.project / "scripts")
        self.path = self.folder / "bin"
        self.path.mkdir()
        for name in COMMON:
            (self.path / name).symlink_to(shutil.which(name))

    def offer(self, name: str, body: str) -> None:
        """A command of the given name for the commands to find."""
        file = self.path / name
        file.write_text(f"#!/bin/bash\n{body}\n")
        file.chmod(0o755)

    def run_command(self, *words: str, **environment: str) -> subprocess.CompletedProcess[str]:
        return subprocess.run(
            [self.project / words[0], *words[1:]],
            env={"PATH": str(self.path), "HOME": str(self.folder), **environment},
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
        )

    def assert_refused(self, result: subprocess.CompletedProcess[str], *phrases: str) -> None:
        self.assertEqual((result.returncode, result.stdout), (2, ""), result.stderr)
        for phrase in phrases:
            self.assertIn(phrase, result.stderr)

    def test_version_needs_nothing(self) -> None:
        result = self.run_command("run", "--version")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertEqual(result.stdout, f"BigNumberVQZ {(PROJECT / 'VERSION').read_text()}")

    def test_nothing_installed_and_no_right_to_install(self) -> None:
        result = self.run_command("run")
        self.assert_refused(
            result,
            "some minutes",
            "  - GCC's C++ compiler",
            "  - the MinGW-w64 compiler for 32-bit Windows",
            "apt-get install --no-install-recommends cmake ninja-build",
        )
        self.assertFalse((self.project / "build").exists())

    @unittest.skipIf(os.geteuid() != 0, "only root installs")
    def test_packages_that_cannot_be_installed(self) -> None:
        self.offer("apt-get", 'echo "apt-get $*"; exit 100')
        result = self.run_command("run")
        self.assert_refused(
            result,
            "some package lists could not be refreshed",
            "== installing cmake ninja-build",
            "could not be installed",
            "goes on from here",
        )

    def all_installed(self) -> None:
        """A machine on which all that is missing are the downloads."""
        for name in ("cmake", "g++", "ninja", "i686-w64-mingw32-g++", "wine"):
            self.offer(name, "exit 1")
        for name in ("python3", "sed"):
            (self.path / name).symlink_to(f"/usr/bin/{name}")

    def test_no_connection(self) -> None:
        """Nothing half done is left, so that a later run begins where this one ended."""
        self.all_installed()
        result = self.run_command(
            "scripts/setup", "build", PIP_INDEX_URL="http://127.0.0.1:9/simple", PIP_RETRIES="0"
        )
        self.assert_refused(result, "is there a connection", "goes on from here")
        environments = list(self.project.glob(".deps/python-*/requirements.txt"))
        self.assertEqual(environments, [])

    def test_broken_build(self) -> None:
        self.offer("cmake", 'mkdir -p "build/${2}"')
        self.offer("ninja", 'echo "[1/2] Building"; echo "x.cpp:1: error: this"; exit 1')
        result = self.run_command("scripts/build", "linux-x86", "standin")
        self.assert_refused(
            result, "== building linux-x86", "x.cpp:1: error: this", "could not be built"
        )

    def test_a_build_tells_of_the_package_once(self) -> None:
        self.offer("cmake", 'mkdir -p "build/${2}"')
        self.offer("ninja", 'echo "[1/1] Packing"; touch build/BigNumberVQZ.xojo_plugin')
        first = self.run_command("scripts/build", "windows-x86")
        self.assertIn("build/BigNumberVQZ.xojo_plugin", first.stderr.splitlines()[-1])
        self.offer("ninja", 'echo "ninja: no work to do."')
        second = self.run_command("scripts/build", "windows-x86")
        self.assertEqual((first.returncode, second.returncode), (0, 0))
        self.assertEqual((second.stdout, second.stderr), ("", ""))

    def test_the_tour_ends_with_the_package(self) -> None:
        (self.project / "scripts/setup").write_text("#!/bin/bash\n")
        (self.project / "scripts/wine").write_text("#!/bin/bash\necho toured\nexit 3\n")
        self.offer("cmake", 'mkdir -p "build/${2}"')
        self.offer("ninja", 'echo "[1/1] Packing"; touch build/BigNumberVQZ.xojo_plugin')
        for _ in range(2):
            result = self.run_command("run")
            self.assertEqual((result.returncode, result.stdout), (3, "toured\n"), result.stderr)
            places = [line for line in result.stderr.splitlines() if "xojo_plugin" in line]
            self.assertEqual(places, result.stderr.splitlines()[-1:])

    def test_python_that_is_not_set_up(self) -> None:
        result = self.run_command("scripts/python", "checks", "-c", "")
        self.assert_refused(result, "scripts/setup checks")


if __name__ == "__main__":
    unittest.main()
