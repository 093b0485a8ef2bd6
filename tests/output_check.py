"""Runs a command and compares what it prints with what it is expected to print."""

import difflib
import os
import pathlib
import subprocess
import sys

ENCODING = {"encoding": "utf-8", "errors": "backslashreplace"}
WINE = "wine"


def run(command: list[str], settings: dict[str, str] | None = None) -> subprocess.CompletedProcess:
    """Runs the command without input, with more settings in its environment, and keeps its output
    as bytes."""
    environment = {name: value for name, value in os.environ.items() if name != "VQZDEBUG"}
    environment |= settings or {}

    def attempt() -> subprocess.CompletedProcess:
        return subprocess.run(
            command, stdin=subprocess.DEVNULL, capture_output=True, env=environment, check=False
        )

    result = attempt()
    if was_not_started(command, result):
        print("Wine ended before the program began; it is started once more", flush=True)
        result = attempt()
    return result


def was_not_started(command: list[str], result: subprocess.CompletedProcess) -> bool:
    """Whether Wine gave up before the program began: it exits with 1 then, with its own messages
    turned off. Of the stand-in's own ends only that of a program that returns 1 and prints nothing
    looks the same, and a second start of it shows the same again."""
    through_wine = pathlib.Path(command[0]).name == WINE
    return through_wine and (result.returncode, result.stdout, result.stderr) == (1, b"", b"")


def difference(expected: bytes, actual: bytes) -> str:
    """The lines that differ, or an empty text when the bytes are the same."""
    if expected == actual:
        return ""
    lines = [text.decode(**ENCODING).splitlines(keepends=True) for text in (expected, actual)]
    shown = (ascii_ending(line) for line in difflib.unified_diff(*lines, "expected", "actual"))
    return "\n".join(shown) or "the outputs differ in bytes that are no UTF-8"


def ascii_ending(line: str) -> str:
    """A line with its end made visible where it is not a plain line feed."""
    return line[:-1] if line.endswith("\n") and not line.endswith("\r\n") else repr(line)


def first_missing_line(expected: str, actual: str) -> str | None:
    """The first expected line that no actual line contains after the one before it was found."""
    remaining = iter(actual.splitlines())
    for wanted in expected.splitlines():
        if not any(wanted in line for line in remaining):
            return wanted
    return None


def report(problems: list[str], result: subprocess.CompletedProcess) -> None:
    """Ends the test: quietly, or with the problems and what the command said."""
    if not problems:
        return
    print("\n\n".join(problems))
    print(f"\nstatus {result.returncode}, standard error:")
    print(result.stderr.decode(**ENCODING))
    sys.exit(1)
