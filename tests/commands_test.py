"""What the commands of the project say when something is in their way, and that they then go on.

usage: commands_test.py
"""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parent.parent
# What the commands take for granted; nothing else is found in the tests' own path.
COMMON = ("bash cat cmp cp dirname flock grep head ls mkdir mktemp mv nproc rm sed sort tee touch tr"
          .split())


class CommandsTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.project = self.folder / "checkout"
        self.project.mkdir()
        for name in ("run", "test", "VERSION", "CMakePresets.json", "standin/options.hpp"):
            (self.project / name).parent.mkdir(exist_ok=True)
            shutil.copy(PROJECT / name, self.project / name)
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
        version, *rest = result.stdout.splitlines(keepends=True)
        self.assertEqual(version, f"BigNumberVQZ {(PROJECT / 'VERSION').read_text()}")
        self.assertEqual(rest, ["(2021) is the year that the 21 stands for, not a date on which "
                                "anything was built.\n"])

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
        (self.path / "python3").symlink_to("/usr/bin/python3")

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

    def configure(self) -> None:
        """A cmake that configures like the real one, as far as the commands look, and notes that it did;
        and a ninja that does nothing."""
        self.offer("cmake", 'mkdir -p "build/$2"; echo "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" '
                            '>"build/$2/CMakeCache.txt"; echo "$2" >>configured')
        self.offer("ninja", 'echo "$*" >>built')

    def noted(self, name: str) -> list[str]:
        """The lines that the commands noted in a file of the checkout since the last look."""
        file = self.project / name
        lines = file.read_text().splitlines() if file.exists() else []
        file.unlink(missing_ok=True)
        return lines

    def test_a_build_is_configured_once(self) -> None:
        self.configure()
        for _ in range(2):
            self.assertEqual(self.run_command("scripts/build", "linux-x86").returncode, 0)
        self.assertEqual(self.noted("configured"), ["linux-x86"])

    def test_a_copied_checkout_builds_its_own_sources(self) -> None:
        self.configure()
        self.run_command("scripts/build", "linux-x86")
        first = self.project
        leftover = first / "build/linux-x86/object"
        leftover.touch()
        self.project = self.folder / "copy"
        shutil.copytree(first, self.project)
        self.noted("configured")
        result = self.run_command("scripts/build", "linux-x86")
        self.assertIn("made for another checkout", result.stderr)
        self.assertEqual(self.noted("configured"), ["linux-x86"])
        self.assertFalse((self.project / "build/linux-x86/object").exists())
        self.assertTrue(leftover.exists())

    def test_a_moved_checkout_starts_over(self) -> None:
        self.configure()
        self.run_command("scripts/build", "linux-x86")
        self.noted("configured")
        self.project = self.project.rename(self.folder / "moved")
        result = self.run_command("scripts/build", "linux-x86")
        self.assertIn("made for another checkout", result.stderr)
        self.assertEqual(self.noted("configured"), ["linux-x86"])

    def test_a_checkout_behind_a_link_is_the_same(self) -> None:
        self.configure()
        self.run_command("scripts/build", "linux-x86")
        self.noted("configured")
        link = self.folder / "link"
        link.symlink_to(self.project)
        self.project = link
        self.assertEqual(self.run_command("scripts/build", "linux-x86").stderr, "")
        self.assertEqual(self.noted("configured"), [])

    def test_a_preset_that_does_not_exist(self) -> None:
        result = self.run_command("scripts/build", "linux-x87")
        self.assert_refused(result, "no preset linux-x87", "windows-x86 windows-x86_64 ")

    def offer_tests(self) -> None:
        """A checkout with two tests in each preset, the second of which needs nothing."""
        self.configure()
        (self.project / "scripts/setup").write_text('#!/bin/bash\necho "$*" >>set-up\n')
        (self.project / "scripts/wine").write_text("#!/bin/bash\n")
        needs = r"printf '%s|sums prover|checks\n%s||\n' $2/unit/sums $2/lint/words >build/$2/test_needs.txt"
        self.offer("cmake", (self.path / "cmake").read_text() + needs)
        self.offer("ctest", """
            echo "$*" >>tested
            words=" $* "
            pattern="${words#* -R }"
            [[ $words == *" -R "* ]] || pattern=" "
            cat build/*/test_needs.txt | sed 's/[|].*//' | while read -r name; do
                grep -q "${name%%/*}\\"" build/all/CTestTestfile.cmake || continue
                [[ $name != *${pattern%% *}* ]] || echo "  Test  #1: $name"
            done""")

    def test_one_test_builds_what_it_needs(self) -> None:
        self.offer_tests()
        result = self.run_command("test", "-R", "linux-x86/unit")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.noted("set-up"), ["build native", "checks"])
        self.assertEqual(self.noted("configured"), ["linux-x86"])
        self.assertEqual([line.split("linux-x86 ")[1] for line in self.noted("built")],
                         ["build.ninja", "prover sums"])
        self.assertIn("--parallel", self.noted("tested")[-1])

    def test_a_test_that_needs_no_program_builds_none(self) -> None:
        self.offer_tests()
        result = self.run_command("test", "-R", "lint/words")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual({line.split()[-1] for line in self.noted("built")}, {"build.ninja"})

    def test_names_are_listed_without_building(self) -> None:
        self.offer_tests()
        result = self.run_command("test", "--preset", "windows-x86", "-N")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("windows-x86/unit/sums", result.stdout)
        self.assertNotIn("linux", result.stdout)
        self.assertEqual(self.noted("set-up"), ["build windows"])
        self.assertEqual([line.split()[-1] for line in self.noted("built")], ["build.ninja"])

    def test_without_options_all_that_tests_need_is_built(self) -> None:
        self.offer_tests()
        result = self.run_command("test")
        self.assertEqual(result.returncode, 0, result.stderr)
        built = [line for line in self.noted("built") if not line.endswith("build.ninja")]
        presets = ["windows-x86", "windows-x86_64", "linux-x86_64", "linux-arm64", "linux-x86",
                   "linux-x86-sanitize", "linux-x86_64-sanitize", "linux-x86-fuzz", "linux-x86_64-threads"]
        self.assertEqual([line.rpartition("/")[2] for line in built],
                         [f"{preset} prover sums" for preset in presets])
        self.assertEqual(self.noted("configured"), presets)
        self.assertEqual(self.noted("set-up"), ["arm64 build checks native windows windows64",
                                                "arm64 checks wine wine64"])
        self.assertEqual(len(self.noted("tested")), 2)

    def test_the_package_is_made_of_the_libraries_of_all_targets(self) -> None:
        self.configure()
        (self.project / "scripts/setup").write_text('#!/bin/bash\necho "$*" >>set-up\n')
        result = self.run_command("scripts/package", "standin")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(self.noted("set-up"), ["arm64 build windows windows64 wine"])
        self.assertEqual([line.partition("/build/")[2] for line in self.noted("built")],
                         ["windows-x86_64 BigNumberVQZ", "linux-x86_64 BigNumberVQZ",
                          "linux-arm64 BigNumberVQZ", "windows-x86 xojo_plugin release standin"])

    def test_the_prompt_builds_the_help_of_its_target(self) -> None:
        """That each target can build it is tested with the prompt."""
        self.configure()
        (self.project / "scripts/setup").write_text("#!/bin/bash\n")
        for target in ("windows-x86_64", "linux-x86_64", "linux-arm64", "linux-x86"):
            self.run_command("run", "--target", target, "-i")
            self.assertEqual([line.partition("/build/")[2] for line in self.noted("built")],
                             [f"{target} standin BigNumberVQZ help_page"])

    def test_a_test_of_the_package_makes_it(self) -> None:
        self.offer_tests()
        (self.project / "scripts/package").write_text('#!/bin/bash\necho made >>package\n')
        cmake = (self.path / "cmake").read_text()
        self.offer("cmake", cmake.replace("sums prover", "sums xojo_plugin"))
        self.assertEqual(self.run_command("test", "-R", "linux-x86_64/unit").returncode, 0)
        self.assertEqual(self.noted("package"), ["made"])
        self.assertEqual([line.split("linux-x86_64 ")[1] for line in self.noted("built")], ["build.ninja", "sums"])

    def test_no_such_test_or_preset(self) -> None:
        self.offer_tests()
        self.assert_refused(self.run_command("test", "-R", "nothing"), "no test matches")
        self.assert_refused(self.run_command("test", "--preset", "windows"), "no preset windows")
        self.assert_refused(self.run_command("test", "--preset", "linux-x86-faults"), "does not run")

    def test_help_needs_nothing(self) -> None:
        for command, words in (("test", "usage: ./test"), ("run", "usage: ./run")):
            result = self.run_command(command, "--help")
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertIn(words, result.stdout)
        self.assertFalse((self.project / "build").exists())

    def test_wrong_calls_are_refused_before_anything_is_built(self) -> None:
        for words, phrase in (
            (["--nonsense"], "unknown option --nonsense"),
            (["--without"], "--without needs a value"),
            (["--fail-string", "0"], '--fail-string takes a number from 1, not "0"'),
            (["--host-version", "new"], 'a number such as 2015.01, or none, not "new"'),
            (["--target", "mars"], "there is no target mars; there are windows-x86 windows-x86_64"),
            (["one", "two"], "more than one program: one and two"),
            (["-e", "Print 1", "two"], "more than one program: -e and two"),
            (["-i", "one"], "-i takes no program"),
            (["one.xojo_script", "--", "two"], "\"two\" is no argument for a script"),
            (["--", "two"], "\"two\" is no argument for a script"),
            (["one.xojo_project", "two", "three"], "cannot read the program one.xojo_project"),
            (["missing.xojo_script"], "cannot read the program missing.xojo_script"),
            (["/"], "/ is a folder; name the project in it"),
            (["App.xojo_code"], "App.xojo_code is one file of a project; name the project"),
        ):
            with self.subTest(words=words):
                self.assert_refused(self.run_command("run", *words), phrase, "./run --help tells more")
        self.assertFalse((self.project / "build").exists())

    def test_the_readme_names_no_other_options(self) -> None:
        listed = set(re.findall(r"^  (-[-a-z]+)", (PROJECT / "standin/options.hpp").read_text(), re.M))
        text = (PROJECT / "README.md").read_text()
        named = {option for call in re.findall(r"\./run ([^`\n]*)", text)
                 for option in re.findall(r"(?:^| )(-[-a-z]+)", call)}
        named |= set(re.findall(r"`(--[-a-z]+)", text))
        self.assertTrue(named)
        self.assertEqual(named - listed, set())

    def test_python_that_is_not_set_up(self) -> None:
        result = self.run_command("scripts/python", "checks", "-c", "")
        self.assert_refused(result, "scripts/setup checks")


if __name__ == "__main__":
    unittest.main()
