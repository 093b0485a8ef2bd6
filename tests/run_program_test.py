"""Tests that run_program.py notices what a program does otherwise than expected."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

RUNNER = pathlib.Path(__file__).with_name("run_program.py")

# Stands for the stand-in host: prints the program, and on standard error its options and setting.
# The option --three asks for that status, --smaller for it where the larger class is named.
ECHO = """
import os, sys
*options, program = sys.argv[1:]
text = open(program).read()
sys.stdout.write(text)
for word in [*options, *filter(None, [os.environ.get("SETTING")])]:
    print(word, file=sys.stderr)
fails = "--three" in options or "--smaller" in options and "BiggerNumberVQZ" in text
sys.exit(3 if fails else 0)
"""


def outcome(files: dict[str, str], bits: int = 32, platform: str = "Linux") -> subprocess.CompletedProcess:
    """Runs the program p.xojo_script of these files, named by what follows its "p"."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            (pathlib.Path(folder) / f"p{name}").write_text(text, encoding="utf-8")
        program = pathlib.Path(folder) / "p.xojo_script"
        command = [sys.executable, RUNNER, "--bits", str(bits), "--platform", platform, program, "--",
                   sys.executable, "-c", ECHO]
        return subprocess.run(command, capture_output=True, text=True, check=False)


class RunProgram(unittest.TestCase):
    def assert_good(self, files: dict[str, str], bits: int = 32):
        result = outcome(files, bits)
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def assert_bad(self, files: dict[str, str], complaint: str, bits: int = 32):
        result = outcome(files, bits)
        self.assertEqual(result.returncode, 1)
        self.assertIn(complaint, result.stdout + result.stderr)

    def test_output_is_compared_byte_for_byte(self):
        self.assert_good({".xojo_script": "a\n", ".expected": "a\n"})
        self.assert_bad({".xojo_script": "a\n", ".expected": "a"}, "+a")
        self.assert_bad({".xojo_script": "a\n", ".expected": "a\r\n"}, "+++ actual")

    def test_the_platform_stands_in_what_is_expected(self):
        files = {".xojo_script": "on Windows\n", ".expected": "on PLATFORM\n"}
        self.assertEqual(outcome(files, platform="Windows").returncode, 0)
        self.assertEqual(outcome(files, platform="Linux").returncode, 1)

    def test_a_program_without_expected_output_is_an_error(self):
        self.assert_bad({".xojo_script": "a\n"}, "no expected output")

    def test_the_status_is_compared(self):
        files = {".xojo_script": "a\n", ".expected": "a\n", ".options": "--three\n"}
        self.assert_bad(files, "the status is 3 instead of 0")
        self.assert_good({**files, ".status": "3\n"})

    def test_standard_error_is_empty_unless_something_is_expected_there(self):
        files = {".xojo_script": "", ".expected": "", ".options": "--one --two\n"}
        self.assert_bad(files, "standard error is not empty")
        self.assert_good({**files, ".stderr": "two\n"})
        self.assert_bad({**files, ".stderr": "two\none\n"}, "lacks the line: one")

    def test_a_log_is_compared_line_for_line(self):
        files = {".xojo_script": "", ".expected": "", ".options": "--one --two\n"}
        self.assert_good({**files, ".log": "--one\n--two\n"})
        self.assert_bad({**files, ".log": "--two\n"}, "+--one")
        self.assert_bad({**files, ".log": "--one\n--two\n--three\n"}, "---three")

    def test_a_logged_address_may_be_any(self):
        files = {".xojo_script": "", ".expected": "", ".options": "'VQZ Debug: Name 0x5ac0: text'\n"}
        self.assert_good({**files, ".log": "VQZ Debug: Name ADDRESS: text\n"})
        self.assert_bad({**files, ".log": "VQZ Debug: Name ADDRESS: other\n"}, "ADDRESS: text")

    def test_every_line_of_options_is_a_run_with_settings_before_its_words(self):
        files = {".xojo_script": "", ".expected": "", ".log": "--one\nvalue\n"}
        self.assert_good({**files, ".options": "SETTING=value --one\n"})
        self.assert_bad({**files, ".options": "SETTING=value --one\n--one\n"}, "options: --one")

    def test_a_variant_does_what_the_plain_runs_do_unless_it_says_otherwise(self):
        files = {".xojo_script": "a\n", ".expected": "a\n", ".other.options": "--three\n"}
        self.assert_bad(files, "the status is 3")
        self.assert_good({**files, ".other.status": "3\n"})
        self.assert_bad({**files, ".other.status": "3\n", ".other.expected": "b\n"}, "+a")

    def test_64_bit_hosts_have_expectations_of_their_own(self):
        files = {".xojo_script": "a\n", ".expected": "b\n", ".expected.64": "a\n"}
        self.assert_bad(files, "-b")
        self.assert_good(files, 64)
        self.assert_bad({".xojo_script": "a\n", ".expected": "a\n", ".expected.64": "b\n"}, "-b", 64)
        variant = {".other.options": "--three\n", ".other.status.64": "3\n"}
        self.assert_bad({**files, **variant, ".expected": "a\n"}, "the status is 3")
        self.assert_good({**files, **variant}, 64)

    def test_runs_and_programs_for_32_bits_only(self):
        files = {".xojo_script": "a\n", ".expected": "a\n", ".options": "32-bit: --three\n\n"}
        self.assert_bad(files, "the status is 3")
        self.assert_good(files, 64)
        self.assert_bad({**files, ".options": "32-bit: --three\n"}, "runs at 32 bits only", 64)
        marked = "' At 32 bits only: old hosts.\n"
        self.assert_good({".xojo_script": marked, ".expected": marked})
        self.assert_bad({".xojo_script": marked, ".expected": marked}, "runs at 32 bits only", 64)

    def test_both_precisions_are_run_where_the_program_says_so(self):
        text = "' In both precisions.\nBigNumberVQZ\n"
        self.assert_good({".xojo_script": text, ".expected": text})
        files = {".options": "--smaller\n", ".stderr": "--smaller\n"}
        self.assert_bad({".xojo_script": text, ".expected": text, **files}, "the status is 3")
        self.assert_good({".xojo_script": "BigNumberVQZ", ".expected": "BigNumberVQZ", **files})


class Wine(unittest.TestCase):
    """A stand-in for Wine that gives up once, or each time, before the program begins."""

    def outcome(self, times: int, message: str = "") -> subprocess.CompletedProcess:
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            wine = folder / "wine"
            wine.write_text(f"#!{sys.executable}\n"
                            "import os, sys\n"
                            f"starts = len(os.listdir({name!r}))\n"
                            f"open(os.path.join({name!r}, f'start {{starts}}'), 'x').close()\n"
                            f"if starts < {times} + 3:\n"
                            f"    sys.stderr.write({message!r})\n"
                            "    sys.exit(1)\n"
                            "print('a')\n", encoding="utf-8")
            wine.chmod(0o755)
            program = folder / "p.xojo_script"
            program.write_text("", encoding="utf-8")
            program.with_suffix(".expected").write_text("a\n", encoding="utf-8")
            return subprocess.run([sys.executable, RUNNER, program, "--", wine],
                                  capture_output=True, text=True, check=False)

    def test_a_program_that_wine_did_not_begin_is_started_once_more(self):
        result = self.outcome(1)
        self.assertEqual(result.returncode, 0)
        self.assertIn("started once more", result.stdout)
        self.assertEqual((self.outcome(0).returncode, self.outcome(0).stdout), (0, ""))

    def test_a_second_time_is_an_error(self):
        self.assertIn("the status is 1", self.outcome(2).stdout)

    def test_a_program_that_said_why_it_ended_is_not_started_again(self):
        result = self.outcome(1, "Unhandled RuntimeException")
        self.assertEqual(result.returncode, 1)
        self.assertNotIn("started once more", result.stdout)


if __name__ == "__main__":
    unittest.main()
