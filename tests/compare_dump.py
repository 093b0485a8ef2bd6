"""Compares what a command prints with a file, byte for byte.

usage: compare_dump.py FILE COMMAND...
"""

import pathlib
import sys

import output_check


def main() -> None:
    expected = pathlib.Path(sys.argv[1]).read_bytes()
    result = output_check.run(sys.argv[2:])
    problems = []
    difference = output_check.difference(expected, result.stdout)
    if difference:
        problems.append(difference)
    if result.returncode != 0:
        problems.append("the command failed")
    output_check.report(problems, result)


if __name__ == "__main__":
    main()
