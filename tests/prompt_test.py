"""The interactive prompt: what it prints for lines from a file, and for keys on a terminal.

usage: prompt_test.py SOURCE_FOLDER BUILD_FOLDER -- COMMAND...

COMMAND starts the stand-in host with its library.
"""

import fcntl
import os
import pathlib
import pty
import re
import select
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

import output_check

PATIENCE = 600  # seconds, for the slowest machine; what is waited for comes at once elsewhere


class Terminal:
    """A command on a terminal of its own."""

    def __init__(self, *command: str | pathlib.Path, columns: int = 100):
        terminal, inner = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 25, columns, 0, 0))
        self.process = subprocess.Popen(
            command,
            stdin=inner,
            stdout=inner,
            stderr=inner,
            env=dict(os.environ, TERM="xterm"),
            start_new_session=True,
            preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0),
        )
        os.close(inner)
        self.terminal = terminal
        self.shown = ""

    def close(self) -> None:
        self.process.kill()
        self.process.wait()
        os.close(self.terminal)

    def press(self, keys: str) -> None:
        self.shown = ""
        os.write(self.terminal, keys.encode())

    def wait_for(self, pattern: str) -> None:
        """Returns when the terminal shows a match since the last keys; fails when it does not."""
        end = time.monotonic() + PATIENCE
        while not re.search(pattern, self.shown):
            ready, _, _ = select.select([self.terminal], [], [], max(0, end - time.monotonic()))
            if not ready:
                raise AssertionError(f"no {pattern!r} in {self.shown!r}")
            self.shown += os.read(self.terminal, 4096).decode(errors="replace")


class PromptTest(unittest.TestCase):
    source: pathlib.Path
    build: pathlib.Path
    command: list[str]

    def test_this_target_makes_what_the_prompt_needs(self) -> None:
        """`./run -i` builds these for each of its targets."""
        for name in ("standin", "BigNumberVQZ", "help_page"):
            result = subprocess.run(
                ["ninja", "-C", self.build, "-t", "query", name], capture_output=True, text=True
            )
            self.assertEqual(result.returncode, 0, result.stderr)

    def test_lines_from_a_file(self) -> None:
        folder = self.source / "tests/prompt"
        with (folder / "session.txt").open("rb") as lines:
            result = subprocess.run(
                [*self.command, "-i", "--documentation", folder / "documentation.txt"],
                stdin=lines,
                stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT,
            )
        expected = (folder / "session.expected").read_bytes()
        self.assertEqual(output_check.difference(expected, result.stdout), "")
        self.assertEqual(result.returncode, 0)

    def test_no_documentation(self) -> None:
        """The name may be right; it is the documentation that is missing."""
        result = subprocess.run([*self.command, "-i"], input=b"? Sqrt\n", capture_output=True)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn(b"There is no documentation to look in", result.stdout)

    def test_input_that_ends_inside_a_block(self) -> None:
        result = subprocess.run(
            [*self.command, "-i"], input=b"If True Then\n", capture_output=True
        )
        self.assertEqual((result.returncode, result.stdout), (0, b""))
        self.assertIn(b"The input ended before this was whole:\nIf True Then", result.stderr)

    def test_keys_on_a_terminal(self) -> None:
        """Completion, history and the end of the input."""
        with tempfile.TemporaryDirectory() as folder:
            prompt = Terminal(self.source / "scripts/prompt", folder, *self.command, "-i")
            self.addCleanup(prompt.close)
            prompt.wait_for(r"Quit ends\.\s+> ")
            prompt.press("BigNumberVQZ.ln1\t.Round\r")
            prompt.wait_for(r"\n2\s+> ")
            self.assertIn("BigNumberVQZ.Ln10.Round", prompt.shown)
            prompt.press("20 + 3\r")
            prompt.wait_for(r"\n23\s+> ")
            prompt.press("\x1b[A0\r")  # the last line again, with one more digit
            prompt.wait_for(r"\n50\s+> ")
            prompt.press("For i As Integer = 8 To 8\r")
            prompt.wait_for(r"\.\.\. ")
            prompt.press("Print Str(i)\rNext\r")
            prompt.wait_for(r"\n8\s+> ")
            prompt.press("\x04")
            self.assertEqual(prompt.process.wait(PATIENCE), 0)

    def test_ctrl_c(self) -> None:
        """It stops what runs, or drops what was typed; variables stay."""
        if "wine" in self.command[0]:
            self.skipTest("Wine sees to Ctrl-C itself")
        with tempfile.TemporaryDirectory() as folder:
            prompt = Terminal(self.source / "scripts/prompt", folder, *self.command, "-i")
            self.addCleanup(prompt.close)
            prompt.wait_for(r"Quit ends\.\s+> ")
            prompt.press("Dim a As Integer = 40\r")
            prompt.wait_for(r"> ")
            prompt.press("Do\ra = 42\rLoop\r")
            prompt.wait_for(r"Loop\s")
            time.sleep(1)
            prompt.press("\x03")
            prompt.wait_for(r"Interrupted\.\s+> ")
            prompt.press("If a > 1 Then\r")
            prompt.wait_for(r"\.\.\. ")
            prompt.press("\x03")
            prompt.wait_for(r"\n> ")
            prompt.press("a\r")
            prompt.wait_for(r"\n42\s+> ")
            prompt.press("\x04")
            self.assertEqual(prompt.process.wait(PATIENCE), 0)

    def test_terminal_that_does_not_tell_its_width(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            prompt = Terminal(
                self.source / "scripts/prompt", folder, *self.command, "-i", columns=0
            )
            self.addCleanup(prompt.close)
            prompt.wait_for(r"without line editing[^>]*Quit ends\.\s+> ")
            prompt.press("20 + 3\r")
            prompt.wait_for(r"\n23\s+> ")
            prompt.press("\x04")
            self.assertEqual(prompt.process.wait(PATIENCE), 0)


def main() -> None:
    PromptTest.source, PromptTest.build = map(pathlib.Path, sys.argv[1:3])
    PromptTest.command = sys.argv[sys.argv.index("--") + 1 :]
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
