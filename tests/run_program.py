"""Runs a program in the host's language and compares what it does with the files beside it.

usage: run_program.py [--bits 32|64] [--platform NAME] PROGRAM -- COMMAND...

PROGRAM is a script, NAME.xojo_script, or a project, NAME.xojo_project.

The files bear the program's name, and lie beside it or in a folder `expected` there:

  .expected   standard output, byte for byte, with PLATFORM where a program prints the system that it runs on,
              whose name --platform tells
  .status     the exit status, where it is not 0
  .stderr     lines, or parts of lines, that standard error holds in this order
  .log        standard error, line for line, with ADDRESS for the address that a line of the debug
              log shows before a text, since it is another one in each run
  .options    words for the command line, after NAME=VALUE words for its environment; every line is
              a run of its own, and all of them do the same

A program that ends with status 0 and has neither .stderr nor .log leaves standard error empty.

A file PROGRAM.VARIANT.options gives further runs. What they do otherwise than the plain ones lies in
files with that variant in their name as well, such as PROGRAM.VARIANT.log.

Integer is 32 or 64 bits wide, as the host is. What a 64-bit host is expected to do otherwise lies in a file
with 64 behind its name, such as PROGRAM.expected.64 beside PROGRAM.expected. A line of options that begins
with "32-bit:" is a run on 32-bit hosts only, as one by a host of before 2015.03, and so is a program with a
comment line that begins "' At 32 bits only"; for --bits 64 such a program is refused.

A program with a comment line that begins "' In both precisions" runs a second time with the other
number class in the first one's place, in the program as well as in what is expected.
"""

import argparse
import dataclasses
import pathlib
import re
import shlex
import sys
import tempfile

import output_check

SMALLER, BIGGER = "BigNumberVQZ", "BiggerNumberVQZ"
AT_32_BITS_ONLY = re.compile(r"^' At 32 bits only\b", re.MULTILINE)
RUN_AT_32_BITS = "32-bit:"
IN_BOTH_PRECISIONS = re.compile(r"^' In both precisions\b", re.MULTILINE)
LOGGED_ADDRESS = re.compile(r"(?m)^(VQZ Debug: \w+) (?:(?:0x)?[0-9A-Fa-f]+|\(nil\)): ")
SETTING = re.compile(r"\w+=.*", re.DOTALL)


@dataclasses.dataclass
class Expectation:
    """What a run is expected to do; a missing text stands for "not looked at"."""

    output: str
    status: int
    error_lines: str | None
    log: str | None

    def in_precision(self, name: str) -> "Expectation":
        """The same of the program that has this class in the smaller one's place."""
        texts = [self.output, self.error_lines, self.log]
        output, error_lines, log = (text and text.replace(SMALLER, name) for text in texts)
        return Expectation(output, self.status, error_lines, log)

    def problems(self, result) -> list[str]:
        """What a finished run did otherwise, each with what was expected."""
        problems = [output_check.difference(self.output.encode(), result.stdout)]
        if result.returncode != self.status:
            problems.append(f"the status is {result.returncode} instead of {self.status}")

        errors = result.stderr.decode(**output_check.ENCODING)
        if self.error_lines is not None:
            missing = output_check.first_missing_line(self.error_lines, errors)
            if missing is not None:
                problems.append(f"standard error lacks the line: {missing}")
        if self.log is not None:
            lines = "\n".join(errors.splitlines()) + "\n"
            lines = LOGGED_ADDRESS.sub(r"\1 ADDRESS: ", lines)
            problems.append(output_check.difference(self.log.encode(), lines.encode()))
        if self.error_lines is None and self.log is None and self.status == 0 and errors:
            problems.append("standard error is not empty")
        return [problem for problem in problems if problem]


class Companions:
    """The files that belong to a program, or to a variant of its runs, on hosts of that many bits."""

    def __init__(self, program: pathlib.Path, bits: int, platform: str):
        self.bits = bits
        self.platform = platform
        self.folders = [program.parent, program.parent / "expected"]
        self.stem = program.stem

    def variants(self) -> list[str]:
        """What stands between the program's name and the suffix of the options: "", then others."""
        names = (path.name for folder in self.folders for path in folder.glob("*.options"))
        pattern = re.compile(re.escape(self.stem) + r"(\.\w+)\.options")
        found = (match[1] for match in map(pattern.fullmatch, names) if match)
        return ["", *sorted(found)]

    def text(self, variant: str, suffix: str) -> str | None:
        """The text of the file with that suffix, if there is one; the host's bits may have their own."""
        suffixes = [f"{suffix}.64", suffix] if self.bits == 64 else [suffix]
        paths = (folder / f"{self.stem}{variant}{name}" for name in suffixes for folder in self.folders)
        found = next((path for path in paths if path.exists()), None)
        return None if found is None else found.read_bytes().decode("utf-8")

    def options(self, variant: str) -> list[str]:
        """The runs on hosts of these bits."""
        runs = []
        for line in (self.text(variant, ".options") or "\n").splitlines():
            if not line.startswith(RUN_AT_32_BITS):
                runs.append(line)
            elif self.bits == 32:
                runs.append(line.removeprefix(RUN_AT_32_BITS).strip())
        return runs

    def expectation(self, variant: str) -> Expectation:
        """What the runs of a variant do; where it says nothing, they do what the plain ones do."""

        def own_or_plain(suffix: str) -> str | None:
            own = self.text(variant, suffix)
            return self.text("", suffix) if own is None else own

        output = own_or_plain(".expected")
        if output is None:
            sys.exit(f"{self.stem} has no expected output beside it")
        status = int(own_or_plain(".status") or 0)
        return Expectation(output.replace("PLATFORM", self.platform), status,
                           own_or_plain(".stderr"), own_or_plain(".log"))


def settings_and_words(line: str) -> tuple[dict[str, str], list[str]]:
    """The environment's settings at the head of a line of options, and the words after them."""
    words = shlex.split(line)
    settings = {}
    while words and SETTING.fullmatch(words[0]):
        name, value = words.pop(0).split("=", 1)
        settings[name] = value
    return settings, words


def check_runs(command: list[str], program: pathlib.Path, options: list[str],
               expectation: Expectation) -> None:
    """Runs the program with each line of options; ends the test at the first that goes wrong."""
    for line in options:
        settings, words = settings_and_words(line)
        result = output_check.run([*command, *words, str(program)], settings)
        problems = expectation.problems(result)
        if problems and line:
            problems.insert(0, f"with the options: {line}")
        output_check.report(problems, result)


def main() -> None:
    separator = sys.argv.index("--")
    command = sys.argv[separator + 1:]
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("--bits", type=int, choices=(32, 64), default=32)
    parser.add_argument("--platform", default="PLATFORM")
    parser.add_argument("program", type=pathlib.Path)
    given = parser.parse_args(sys.argv[1:separator])
    program = given.program
    companions = Companions(program, given.bits, given.platform)
    text = program.read_bytes()
    runs = {variant: companions.options(variant) for variant in companions.variants()}
    if given.bits == 64 and (AT_32_BITS_ONLY.search(text.decode(**output_check.ENCODING))
                             or not any(runs.values())):
        sys.exit(f"{program.name} runs at 32 bits only; a comment line has to say so, beginning "
                 "\"' At 32 bits only\"")
    in_both = IN_BOTH_PRECISIONS.search(text.decode(**output_check.ENCODING))
    with tempfile.TemporaryDirectory() as folder:
        bigger = pathlib.Path(folder) / program.name
        bigger.write_bytes(text.replace(SMALLER.encode(), BIGGER.encode()))
        for variant, options in runs.items():
            expectation = companions.expectation(variant)
            check_runs(command, program, options, expectation)
            if in_both:
                check_runs(command, bigger, options, expectation.in_precision(BIGGER))


if __name__ == "__main__":
    main()
