"""Runs the examples of the help in the stand-in host, all of them with one start where that is possible."""

import dataclasses
import enum
import os
import pathlib
import re
import subprocess
import tempfile

# What the collected program prints at the end of an example, and in front of an exception.
END, RAISED = "\x1e", "\x1d"

# An exception is named by the first of these classes that it belongs to.
EXCEPTIONS = [
    "BigNumberErrorExceptionVQZ",
    "NilObjectException",
    "OutOfBoundsException",
    "UnsupportedOperationException",
    "RuntimeException",
]


class Kind(enum.Enum):
    """What an example is meant to show."""

    PRINTS = enum.auto()
    RAISES = enum.auto()  # an exception that nobody catches
    LOGS = enum.auto()  # lines of the debug log
    REJECTED = enum.auto()  # what the language does not accept


class ExampleError(Exception):
    """An example does not do what it is meant to show."""


@dataclasses.dataclass
class Example:
    """A program of a few lines; `output` is what came of it, once it has run. With options for the
    stand-in host it runs alone."""

    title: str
    code: str
    kind: Kind = Kind.PRINTS
    options: tuple[str, ...] = ()
    output: str = ""


ROUTINE = re.compile(r"^(?:Function|Sub)\b.*?^End (?:Function|Sub)$\n*", re.MULTILINE | re.DOTALL)


def as_routine(example: Example, number: int) -> str:
    """The example as a routine of the collected program, below the routines that it has itself. Those
    are seen by all examples: a later one may call them."""
    own = "".join(ROUTINE.findall(example.code))
    return f"{own}\nSub Example{number}()\n{ROUTINE.sub('', example.code)}\nEnd Sub\n"


def as_call(number: int) -> str:
    """The call of that routine, which prints what it raised and marks the end of its output."""
    catches = "".join(
        f'Catch e As {name}\n  Print Chr({ord(RAISED)}) + "{name}: " + e.Message\n'
        for name in EXCEPTIONS
    )
    return f"Try\n  Example{number}\n{catches}End Try\nPrint Chr({ord(END)})\n"


class ExampleRunner:
    """Collects examples, and runs them with `command`, the words that start the stand-in host."""

    def __init__(self, command: list[str]):
        self.command = command
        self.examples: list[Example] = []

    def add(self, title: str, code: str, kind: Kind = Kind.PRINTS, options=()) -> Example:
        example = Example(title, code.strip("\n"), kind, tuple(options))
        self.examples.append(example)
        return example

    def run(self) -> None:
        """Runs what was added; raises ExampleError for the first example that goes wrong."""
        together = [example for example in self.examples if self._runs_with_others(example)]
        self._run_together(together)
        for example in self.examples:
            if not self._runs_with_others(example):
                self._run_alone(example)
            if not example.output.strip():
                raise ExampleError(f"{example.title}: nothing comes of\n{example.code}")
            example.output = example.output.strip("\n")

    @staticmethod
    def _runs_with_others(example: Example) -> bool:
        return example.kind in (Kind.PRINTS, Kind.RAISES) and not example.options

    def _run_alone(self, example: Example) -> None:
        logging = ["--debug-log"] if example.kind is Kind.LOGS else []
        result = self._start(example.code, *example.options, *logging)
        if example.kind is Kind.REJECTED:
            found = re.search(r"error: (.*)", result.stderr)
            if result.returncode != 2 or not found:
                raise ExampleError(f"{example.title}: the language accepts\n{example.code}")
            example.output = found[1]
            return
        if result.returncode != 0:
            raise ExampleError(f"{example.title}: {result.stderr}\n{example.code}")
        example.output = result.stderr if example.kind is Kind.LOGS else result.stdout

    def _run_together(self, examples: list[Example]) -> None:
        program = "".join(as_routine(e, n) for n, e in enumerate(examples))
        program += "".join(as_call(n) for n in range(len(examples)))
        result = self._start(program)
        if result.returncode != 0:
            raise ExampleError(f"the examples do not run:\n{self._located(program, result.stderr)}")
        outputs = result.stdout.split(END + "\n")
        for example, output in zip(examples, outputs[:-1], strict=True):
            printed, _, raised = output.partition(RAISED)
            if bool(raised) != (example.kind is Kind.RAISES):
                raise ExampleError(
                    f"{example.title}: {raised or 'nothing is raised'}\n{example.code}")
            example.output = raised or printed

    def _start(self, program: str, *options: str) -> subprocess.CompletedProcess:
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "example.xojo_script"
            path.write_text(program, encoding="utf-8")
            environment = {name: word for name, word in os.environ.items() if name != "VQZDEBUG"}
            result = subprocess.run([*self.command, *options, str(path)], capture_output=True,
                                    encoding="utf-8", env=environment, check=False)
            result.stderr = result.stderr.replace(str(path), path.name).replace("\r\n", "\n")
            return result

    @staticmethod
    def _located(program: str, errors: str) -> str:
        """The errors with the line that the first one is about."""
        found = re.search(r":(\d+):\d+: error", errors)
        return errors + (program.splitlines()[int(found[1]) - 1] if found else "")
