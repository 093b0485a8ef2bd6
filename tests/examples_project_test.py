"""Runs the project of the examples: each of them by its name, then all; and what is no example.

usage: examples_project_test.py [--once] EXAMPLES_FOLDER -- COMMAND...

COMMAND starts the stand-in host with a library. What each example prints is in the file beside its script.
With --once all run together, and only one of them runs by its name.
"""

import pathlib
import sys

import output_check


def main() -> None:
    separator = sys.argv.index("--")
    *options, folder = sys.argv[1:separator]
    folder = pathlib.Path(folder)
    command = sys.argv[separator + 1:]
    project = folder / "Examples.xojo_project"
    expected = {path.stem: path.read_bytes() for path in folder.glob("*.expected")}
    if set(expected) != {path.stem for path in folder.glob("*.xojo_script")}:
        sys.exit("not every example has its expected output beside it")

    def check(words: list[str | bytes], output: bytes, status: int, error: str = "") -> None:
        result = output_check.run([*command, *words], {})
        problems = [output_check.difference(output, result.stdout)]
        if result.returncode != status:
            problems.append(f"the status is {result.returncode} instead of {status}")
        if error not in result.stderr.decode() or (result.stderr and not error):
            problems.append(f"standard error is not: {error}")
        output_check.report([f"{words}: {problem}" for problem in problems if problem], result)

    # The stand-in is an IDE that runs the project, unless it is told to be a built application.
    last_line = b"Enter closes this window.\n"
    first, *others = ["tour", *sorted(set(expected) - {"tour"})]
    for name in [first] if options == ["--once"] else expected:
        check([str(project), name], expected[name] + last_line, 0)
    check(["--built-application", str(project), first], expected[first], 0)
    check([str(project)], b"".join(expected[name] for name in (first, *others)) + last_line, 0)
    listed = "".join(f"  {name}\n" for name in (first, *others))
    check([str(project), "--", "--list"], f"There is no example --list; there are:\n{listed}".encode(), 1)
    check([str(folder / "tour.xojo_script"), "--", "errors"], b"", 2,
          '"errors" is no argument for a script: only a project has a Run that takes it')
    # On Windows the arguments come as UTF-16.
    if not any(word.endswith(".dll") for word in command):
        check([str(project), b"\xff"], b"", 2, "an argument for the project is not UTF-8")


if __name__ == "__main__":
    main()
