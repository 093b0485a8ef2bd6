"""Runs a program in the host's language and compares what it does with the files beside it.

usage: run_program.py PROGRAM.xojo_script -- COMMAND...

The files bear the program's name, and lie beside it or in a folder `expected` there:

  .expected   standard output, byte for byte
  .status     the exit status, where it is not 0
  .stderr     lines, or parts of lines, that standard error holds in this order; without the file a
              program that ends with status 0 leaves standard error empty
  .options    words for the command line
"""

import pathlib
import shlex
import sys

import output_check


def companion(program: pathlib.Path, suffix: str) -> pathlib.Path | None:
    """The file of that suffix that belongs to the program, if there is one."""
    beside = program.with_suffix(suffix)
    aside = program.parent / "expected" / beside.name
    return next((path for path in (beside, aside) if path.exists()), None)


def main() -> None:
    program = pathlib.Path(sys.argv[1])
    command = sys.argv[3:]
    expected = companion(program, ".expected")
    status = companion(program, ".status")
    stderr = companion(program, ".stderr")
    options = companion(program, ".options")
    if expected is None:
        sys.exit(f"{program} has no expected output beside it")

    words = shlex.split(options.read_text("utf-8")) if options else []
    result = output_check.run([*command, *words, str(program)])
    problems = []

    difference = output_check.difference(expected.read_bytes(), result.stdout)
    if difference:
        problems.append(difference)

    wanted_status = int(status.read_text()) if status else 0
    if result.returncode != wanted_status:
        problems.append(f"the status is {result.returncode} instead of {wanted_status}")

    errors = result.stderr.decode(**output_check.ENCODING)
    if stderr:
        missing = output_check.first_missing_line(stderr.read_text("utf-8"), errors)
        if missing is not None:
            problems.append(f"standard error lacks the line: {missing}")
    elif wanted_status == 0 and errors:
        problems.append("standard error is not empty")

    output_check.report(problems, result)


if __name__ == "__main__":
    main()
