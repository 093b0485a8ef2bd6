"""Checks that tests leave out no entry of the registered tables, and none of the ways it can end.

usage: calls.py SOURCES BINARIES COMMAND...

COMMAND starts the stand-in host with the library. The test programs, the programs in the host's language
and the one of the host matrix, which calls every entry, run once more, with a record of their calls.
Every entry must have been called

  - to success;
  - without each of the handles that it takes, Nil and the empty text being legal, except a receiver
    that it is to write to;
  - where it returns a handle and the host cannot make one, to Nil or an empty text;
  - in each of its failures, as failures.py lists them.

An exception that is not in that list fails the check as well, so that the list stays complete.
"""

import collections
import dataclasses
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from failures import FAILURES, NUMBER_ERROR

CLASSES = ("BigNumberVQZ", "BiggerNumberVQZ")
ERROR_CLASS = NUMBER_ERROR.rstrip(": ")

# Test cases that only look for crashes and leaks prove nothing about what a call returns.
WEAK_CASES = "--test-case-exclude=*crashes nothing*,*survives*,*never both"
TEST_PROGRAMS = (
    ("table_tests", WEAK_CASES),
    ("operation_tests", "--test-case=*exact<256 bits>"),
    ("operation_tests", "--source-file=*stated_results_tests*,*table_tests*,*random*"),
)

# The functions with which the library makes texts, Variants and numbers: without one, a host can't make
# what a call returns.
MAKING = ("PluginNewInstance", "REALBuildString", "REALBuildStringWithEncoding", "StringToVariant")

HANDLES = {"string", "variant", "memoryblock", *map(str.lower, CLASSES)}
TWO_WORDS = {"int64", "uint64", "double", "currency"}


@dataclasses.dataclass(frozen=True)
class Entry:
    """A routine of a table: class, kind, declaration, and whether it gets, sets or is called."""

    owner: str
    kind: str
    declaration: str
    part: str

    def __str__(self) -> str:
        return f"{self.owner}: {self.kind} {self.declaration} ({self.part})"

    @property
    def name(self) -> str:
        return re.match(r"\w*", self.declaration)[0]

    @property
    def result(self) -> str:
        """The type in lower case; empty when nothing is returned."""
        if self.part == "set":
            return ""
        return (re.search(r"\bas (\w+)$", self.declaration) or ["", ""])[1].lower()

    @property
    def declared(self) -> list[str]:
        """The types of the declared arguments in lower case."""
        inner = re.search(r"\((.*)\)", self.declaration)
        return re.findall(r"(?:^|,)[^,]*?\bas (\w+)", inner[1].lower()) if inner else []

    @property
    def arguments(self) -> list[str]:
        """The types of all arguments as the routine gets them, the receiver first."""
        words = list(self.declared)
        if self.kind == "property":
            words.insert(0, "integer")
        if not self.kind.startswith("shared"):
            words.insert(0, self.owner.lower())
        if self.part == "set":
            words.append(re.search(r"\bas (\w+)$", self.declaration)[1].lower())
        return words

    @property
    def writes(self) -> bool:
        """Whether the receiver is to be given a value."""
        if self.name in ("DataMantissa", "DataExponent", "DataFlags"):
            return False
        return (self.part == "set" or self.kind == "destructor" or
                self.declaration.startswith(("Constructor", "Operator_Convert(", "SetStringValue")))

    def handles(self) -> dict[int, str]:
        """The word of each handle that may be missing, with what it is."""
        places = {}
        word = 0
        for place, argument in enumerate(self.arguments):
            is_receiver = place == 0 and not self.kind.startswith("shared")
            if argument in HANDLES and not (is_receiver and self.writes) and not (
                    self.name == "SetStringValue" and place > 1):
                places[word] = "receiver" if is_receiver else f"argument {place}: {argument}"
            word += 2 if argument in TWO_WORDS else 1
        return places

    def failures(self) -> list[str]:
        """What failures.py lists for this entry."""
        base = f"{self.kind} {self.name}"
        keys = (f"{self.kind} {self.declaration}", f"{base} {self.part}",
                f"{base} {len(self.declared)}", base)
        return next((FAILURES[key] for key in keys if key in FAILURES), [])


@dataclasses.dataclass
class Record:
    """What processes noted: the entries with their calls, by argument words and outcome."""

    calls: dict[Entry, collections.Counter] = dataclasses.field(default_factory=dict)

    def read(self, path: pathlib.Path) -> None:
        for line in path.read_text("utf-8").splitlines():
            what, *fields = line.split("\t")
            if what == "entry":
                self.calls.setdefault(Entry(*fields), collections.Counter())
            elif what == "call":
                *names, words, outcome, count = fields
                self.calls[Entry(*names)][words, outcome] += int(count)


def record_all(sources: pathlib.Path, binaries: pathlib.Path, command: list[str]) -> Record:
    """Runs everything that asserts, and returns what it called."""
    runs = [[str(binaries / program), *words] for program, *words in TEST_PROGRAMS]
    for program in sorted(sources.glob("tests/programs/*/*.xojo_script")):
        runs.append([sys.executable, str(sources / "tests/run_program.py"), str(program), "--",
                     *command])
    runs.append([sys.executable, str(sources / "tests/hosts/matrix.py"), "--without", *MAKING,
                 str(sources / "tests/golden"), "--", *command])
    record = Record()
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "calls"
        for run in runs:
            result = subprocess.run(run, env=os.environ | {"STANDIN_CALL_RECORD": str(path)},
                                    stdin=subprocess.DEVNULL, capture_output=True, check=False)
            if result.returncode != 0:
                sys.exit(f"{' '.join(run)}\n{result.stdout.decode(errors='replace')}"
                         f"{result.stderr.decode(errors='replace')}")
        record.read(path)
    return record


def is_environments(failure: str, listed: list[str]) -> bool:
    """Whether a failure is one of those listed as a host shows it that lacks something: without a
    message, or as a RuntimeException."""
    owner, _, message = failure.partition(": ")
    return any(owner in (other.partition(": ")[0], "RuntimeException") and
               message in ("", other.partition(": ")[2]) for other in listed)


def shape(failure: str) -> str:
    """A failure whatever its operands are."""
    return re.sub(r"(with numbers? ).*", r"\1", failure)


def problems_of(entry: Entry, calls: collections.Counter) -> list[str]:
    """What the tests leave out of an entry, and what they find that is not listed."""
    missing = []
    outcomes = {outcome for _, outcome in calls}
    if not outcomes & ({"answered"} if entry.result in HANDLES else {"answered", "null"}):
        missing.append("success")
    # A memory block that cannot be made is a failure of its own.
    if entry.result in HANDLES - {"memoryblock"} and "null" not in outcomes:
        missing.append(f"a {entry.result} that the host cannot make")
    missing += [what for word, what in entry.handles().items()
                if not any(words[word] == "0" for words, _ in calls)]

    raised = {outcome.removeprefix("raised ").replace("overflow", "#")
              for outcome in outcomes if outcome.startswith("raised ")}
    listed = entry.failures()
    missing += [f"the failure {failure}" for failure in listed if failure not in raised]
    known = set(map(shape, listed))
    unknown = [failure for failure in raised
               if shape(failure) not in known and not is_environments(failure, listed)]
    return [f"{entry} was never called with {what}" for what in missing] + [
        f"{entry} raised what is not listed: {failure}" for failure in unknown]


def main() -> None:
    sources, binaries, *command = sys.argv[1:]
    record = record_all(pathlib.Path(sources), pathlib.Path(binaries), command)
    entries = {entry: calls for entry, calls in record.calls.items() if entry.owner in CLASSES}
    problems = [problem for entry, calls in sorted(entries.items(), key=str)
                for problem in problems_of(entry, calls)]

    used = {id(entry.failures()) for entry in entries}
    problems += [f"failures.py lists {key}, which is no entry"
                 for key, listed in FAILURES.items() if id(listed) not in used]
    raised_classes = {outcome.removeprefix("raised ").partition(": ")[0]
                      for calls in entries.values() for _, outcome in calls}
    if ERROR_CLASS not in raised_classes:
        problems.append(f"{ERROR_CLASS} was never raised")
    for owner in CLASSES:
        if not any(entry.owner == owner for entry in entries):
            problems.append(f"{owner} was never registered")

    calls = sum(sum(calls.values()) for calls in entries.values())
    forms = sum(len(entry.failures()) for entry in entries)
    handles = sum(len(entry.handles()) for entry in entries)
    print(f"{len(entries)} entries, {calls} calls; {forms} failures and {handles} missing handles "
          f"looked for, {len(problems)} problems")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    main()
