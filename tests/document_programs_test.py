"""Tests that document_programs.py notices what a document shows otherwise than it is."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

RUNNER = pathlib.Path(__file__).with_name("document_programs.py")

# Stands for the stand-in host: prints the program, which is a word after -e or in a file.
ECHO = "import sys; *e, word = sys.argv[1:]; print((word if e else open(word).read()).strip())"

PROGRAM = "```vb\n' a.xojo_script\nx\n```\n"
CALL = "```console\n$ ./run a.xojo_script\n' a.xojo_script\nx\n$ ./run --native -e y\ny\n```\n"


def outcome(document: str) -> subprocess.CompletedProcess:
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "d.md"
        path.write_text(document, encoding="utf-8")
        command = [sys.executable, RUNNER, path, "--", sys.executable, "-c", ECHO]
        return subprocess.run(command, capture_output=True, text=True, check=False)


class DocumentPrograms(unittest.TestCase):
    def assert_bad(self, document: str, complaint: str):
        result = outcome(document)
        self.assertEqual(result.returncode, 1)
        self.assertIn(complaint, result.stdout + result.stderr)

    def test_every_call_prints_what_is_shown(self):
        self.assertEqual(outcome(PROGRAM + CALL).returncode, 0)
        self.assert_bad(PROGRAM + CALL.replace("\nx\n", "\nz\n"), "+x")
        self.assert_bad(PROGRAM + CALL.replace("\ny\n", "\nz\n"), "+y")

    def test_every_program_is_called(self):
        self.assert_bad(PROGRAM + PROGRAM.replace("a.", "b.") + CALL, "no call shows what b.xojo_script")

    def test_a_document_has_a_call(self):
        self.assert_bad(PROGRAM, "shows no call")


if __name__ == "__main__":
    unittest.main()
