"""Runs a program that uses all members on hosts of every age, each lacking one function in turn.

usage: matrix.py [--bits 64] [--sample SEED COUNT | --without FUNCTION... | --write] FOLDER -- COMMAND...

COMMAND starts the stand-in host with the library. The program is made of steps.txt, for both number
classes, and of steps for the members that these leave out. On every host it must come to its end without
a crash, a leak or a wrong use of the host; the functions to take away are those that the library asks
for. FOLDER/missing-functions.txt is what the program shows on a current host, and what it shows
otherwise on a host that lacks a function; FOLDER/debug-log.txt which lines without a value the library
logs while it runs. Both are compared; --write keeps them anew instead. With --sample only some of the
hosts are tried, drawn with that seed; with --without only current ones that lack these functions.

Hosts of 64 bits are of fewer ages. They show other things and are asked for other functions: for them
FOLDER/missing-functions-64.txt takes the place of the first file. The lines of the log are the same ones
there, in another order, since an Integer literal calls the overload for Int64. widths_test.py says by which rules
the two files differ.

Where the environment variable STANDIN_CALL_RECORD names a file, the calls are recorded there as well.

A host without "RegisterPluginVersion" is the one that crashes, while the library starts. Without a
function that locks, unlocks or gives back, the account must be off by exactly the calls that the
library tried to make.
"""

import collections
import dataclasses
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[1]))
import host_ages  # noqa: E402
import output_check  # noqa: E402
import steps  # noqa: E402
from host_ages import CURRENT  # noqa: E402

CLASSES = {"BigNumberVQZ": "256 bits", "BiggerNumberVQZ": "2048 bits"}
NOTHING = "nothing"
CRASH = ["The library crashes while it starts."]

# What a missing function does to the ledger: which balance, and its sign for each call not made.
BALANCES = {
    "REALLockString": ("references of strings", -1),
    "REALUnlockString": ("references of strings", 1),
    "REALLockObject": ("references of objects", -1),
    "REALUnlockObject": ("references of objects", 1),
    "PluginDisposeStringData": ("string data", 1),
}
# A buffer that was not given back is forgotten when its record is used anew.
REFILLED = "PluginGetStringData: the record is filled again, but "
LOGGED_NAME = re.compile(r"VQZ Debug: [A-Za-z]\w*")
CRASHING = "RegisterPluginVersion"
VERSION = "REALGetRBVersion"

HEAD = """
Function ClassOf(e As RuntimeException) As String
  If e IsA NilObjectException Then Return "NilObjectException"
  If e IsA OutOfBoundsException Then Return "OutOfBoundsException"
  If e IsA OutOfMemoryException Then Return "OutOfMemoryException"
  If e IsA UnsupportedOperationException Then Return "UnsupportedOperationException"
  If e IsA BigNumberErrorExceptionVQZ Then Return "BigNumberErrorExceptionVQZ"
  Return "RuntimeException"
End Function
Function Shown(text As String) As String
  Return "'" + ReplaceAll(text, Chr(0), "\\0") + "'"
End Function
Function Shown(value As Variant) As String
  If value.IsNull Then Return "Nil"
  Return value.StringValue + " of type " + Str(VarType(value))
End Function
Function Shown(block As MemoryBlock) As String
  If block Is Nil Then Return "Nil"
  Return Str(block.Size) + " bytes, " + Hex(block.UInt32Value(block.Size - 4)) + " at their end"
End Function
"""
# Numbers are shown without the help of the host: neither text nor objects are made for it.
CLASS_HEAD = """
Function Shown(number As $) As String
  If number Is Nil Then Return "Nil"
  If number.IsNan Then Return "NaN"
  Try
    Return "number " + Str(number.DoubleValue)
  Catch e As RuntimeException
    Return "number beyond a Double"
  End Try
End Function
Sub Steps(kind As $)
  Dim x As New $(-12.5)
  Dim y As New $
  Dim zero As New $
  Dim one As New $(CType(1, Int32))
  Dim two As New $(CType(2, Int32))
  Dim four As New $(CType(4, Int32))
  Dim six As New $(CType(6, Int32))
  Dim big As New $(1e18)
  Dim none As $
  Dim huge As String = "1eNINES"
  Dim rest As String
  Dim found As Boolean
""".replace("NINES", 200 * "9")
STEP = """  Try
{statements}
    Print "{label}" + Chr(9) + Shown({value})
  Catch e As RuntimeException
    Print "{label}" + Chr(9) + ClassOf(e) + " '" + e.Message + "'"
  End Try
"""
CLASS_END = """End Sub
Dim as$ As $
Steps(as$)
"""


def program_of(lines: list[str]) -> str:
    """The program that takes these steps with both classes."""
    program = HEAD
    for name, bits in CLASSES.items():
        text = CLASS_HEAD
        for step in lines:
            *statements, value = step.split(" | ")
            text += STEP.format(statements="\n".join(f"    {statement}" for statement in statements),
                                label=f"{bits}: {step}".replace('"', '""').replace("$", "%"),
                                value=value)
        program += (text + CLASS_END).replace("$", name).replace("%", "Number")
    return program


@dataclasses.dataclass
class Outcome:
    """The result of a run: what each step showed, and what the host reported."""

    status: int
    shown: dict[str, str]
    errors: str

    def problems(self, missing: str) -> list[str]:
        """What is wrong, whatever the program shows."""
        if missing == CRASHING:
            return [] if self.status not in (0, 1, 2, 3) else ["the library did not crash"]
        balances = dict(re.findall(r"^  (.*): off by (-?\d+)$", self.errors, re.MULTILINE))
        wrong = re.findall(r"^  (.*)$", self.errors.partition("The ledger is not clean")[2], re.MULTILINE)
        problems = [line for line in wrong if ": off by " not in line]
        tried = re.search(f"looked for in vain: {missing}, (\\d+) times", self.errors)
        if missing in BALANCES and tried:
            what, sign = BALANCES[missing]
            actual = int(balances.pop(what, 0))
            if what == "string data":
                refilled = [line for line in problems if line.startswith(REFILLED)]
                problems = [line for line in problems if line not in refilled]
                actual += len(refilled)
            if actual != sign * int(tried[1]):
                problems.append(f"{what} should be off by {sign * int(tried[1])}:\n{self.errors}")
        problems += [f"{what} off by {count}" for what, count in balances.items()]
        if (self.status == 3) != (missing in BALANCES and tried is not None) or self.status not in (0, 2, 3):
            problems.append(f"the status is {self.status}:\n{self.errors}")
        return problems


class Hosts:
    """Runs the program; the library's calls and lookups are noted."""

    def __init__(self, command: list[str], folder: pathlib.Path, bits: int):
        self.command = command
        self.folder = folder
        self.bits = bits
        self.ages = host_ages.ages(bits)
        self.runs = 0
        for age in self.ages:
            self.program(age).write_text(program_of(steps.written(age)), "utf-8")
            self.complete(age)

    def program(self, age: str) -> pathlib.Path:
        """The program for hosts of that age."""
        return self.folder / f"{age}.xojo_script"

    def record(self, age: str) -> pathlib.Path:
        """What hosts of that age record."""
        return self.folder / f"{age}.record"

    def complete(self, age: str) -> None:
        """Adds steps to the program for the entries that it does not call."""
        self.run(age)
        called = {fields[:4] for fields in self.noted("call", age)}
        missing: dict[str, None] = {}
        for owner, *entry in sorted(self.noted("entry", age)):
            if (owner, *entry) not in called and owner in CLASSES:
                missing |= dict.fromkeys(steps.derived(*(word.replace(owner, "$") for word in entry)))
        if missing:
            self.program(age).write_text(program_of([*steps.written(age), *missing]), "utf-8")

    def debug_log(self) -> list[str]:
        """The lines of the debug log that hold no value, each once, in the order of the program."""
        program = self.folder / "logged.xojo_script"
        text = self.program(CURRENT).read_text("utf-8")
        program.write_text(text.replace("Debugging = False", "Debugging = True"), "utf-8")
        result = output_check.run([*self.command, "--debug-log", str(program)], {"VQZDEBUG": "1"})
        lines = result.stderr.decode(**output_check.ENCODING).splitlines()
        return list(dict.fromkeys(line for line in lines if LOGGED_NAME.fullmatch(line)))

    def run(self, age: str, missing: str = NOTHING) -> Outcome:
        options = ["--ledger", *host_ages.options(age)]
        if missing != NOTHING:
            options += ["--without", missing]
        if missing in BALANCES:
            options.append("--spare-references")
        # A host without a version function is the oldest one for the library.
        program = self.program(self.ages[0] if missing == VERSION else age)
        result = output_check.run([*self.command, *options, str(program)],
                                  {"STANDIN_CALL_RECORD": str(self.record(age))})
        self.runs += 1
        output = result.stdout.decode(**output_check.ENCODING).splitlines()
        shown = {}
        for line in output:
            step, _, value = line.rpartition("\t")
            while step in shown:
                step += " again"
            shown[step] = value
        return Outcome(result.returncode, shown, result.stderr.decode(**output_check.ENCODING))

    def recorded(self, *ages: str) -> str:
        """What hosts of these ages recorded, or of all where none is named."""
        records = map(self.record, ages or self.ages)
        return "".join(record.read_text("utf-8") for record in records if record.exists())

    def noted(self, kind: str, *ages: str) -> set[tuple[str, ...]]:
        """The fields of the records' lines of that kind, of all ages where none is named."""
        lines = self.recorded(*ages).splitlines()
        return {tuple(line.split("\t")[1:]) for line in lines if line.startswith(f"{kind}\t")}


def differences(plain: Outcome, outcome: Outcome, missing: str) -> list[str]:
    """What a program sees otherwise, one line each, in the order of what it sees."""
    if missing == CRASHING:
        return CRASH
    if outcome.status == 2:
        return ["The program is refused: " + outcome.errors.splitlines()[0].partition("error: ")[2]]
    by_value = collections.defaultdict(list)
    for step, value in plain.shown.items():
        other = outcome.shown.get(step, "not reached")
        if other != value:
            bits, _, name = step.partition(": ")
            by_value[name].append((bits, other))
    grouped = collections.defaultdict(list)
    for name, changes in by_value.items():
        values = {value for _, value in changes}
        if len(changes) == len(CLASSES) and len(values) == 1:
            grouped[values.pop()].append(name)
        else:
            for bits, value in changes:
                grouped[value].append(f"{name} ({bits})")
    return [f"{name} -> {value}" for value, names in grouped.items() for name in names]


Rows = dict[tuple[str, str], list[str]]


def render(rows: Rows, plain: dict[str, str], ages: tuple[str, ...]) -> str:
    """The table as text: first what is seen on a current host, then, for each function, the hosts of
    these ages that it matters on, in groups that see the same."""
    text = "What the program shows on a current host that lacks nothing\n\n"
    text += "".join(f"  {step} -> {value}\n" for step, value in plain.items())
    for missing in sorted({missing for _, missing in rows}):
        groups = collections.defaultdict(list)
        for age in ages:
            if (age, missing) in rows:
                groups[tuple(rows[age, missing])].append(age)
        text += f"\nWithout {missing}\n"
        for lines, alike in groups.items():
            text += f"\n  on hosts {', '.join(alike)}\n"
            text += "".join(f"    {line}\n" for line in lines or ["nothing changes"])
    return text


def parse(text: str) -> Rows:
    """The rows of a table, one for each age and function."""
    rows = {}
    for block in re.split(r"^Without ", text, flags=re.MULTILINE)[1:]:
        missing, _, rest = block.partition("\n")
        for group in re.split(r"^  on hosts ", rest, flags=re.MULTILINE)[1:]:
            ages, *lines = group.splitlines()
            shown = [line[4:] for line in lines if line]
            for age in ages.split(", "):
                rows[age, missing] = [] if shown == ["nothing changes"] else shown
    return rows


def main() -> None:
    words, command = sys.argv[1:sys.argv.index("--")], sys.argv[sys.argv.index("--") + 1:]
    *options, golden = words
    bits = 32
    if options[:1] == ["--bits"]:
        bits, options = int(options[1]), options[2:]
    table = pathlib.Path(golden) / ("missing-functions.txt" if bits == 32 else f"missing-functions-{bits}.txt")
    with tempfile.TemporaryDirectory() as folder:
        hosts = Hosts(command, pathlib.Path(folder), bits)
        problems = check(hosts, options, table)
        if record := os.environ.get("STANDIN_CALL_RECORD"):
            with open(record, "a", encoding="utf-8") as file:
                file.write(hosts.recorded())
    if problems:
        sys.exit("\n".join(problems))


def check(hosts: Hosts, options: list[str], table: pathlib.Path) -> list[str]:
    """Tries the hosts that the options ask for. Returns what is wrong with them."""
    log = table.with_name("debug-log.txt")
    problems = []
    known = {} if "--write" in options else parse(table.read_text("utf-8"))
    rows: Rows = {}
    plain: dict[str, Outcome] = {}

    def look_at_plain(age: str) -> None:
        plain[age] = hosts.run(age)
        problems.extend(f"on {age}: {what}" for what in plain[age].problems(NOTHING))
        if plain[age].status != 0:
            problems.append(f"on {age}: {plain[age].errors}")

    def look(age: str, missing: str) -> None:
        if age not in plain:
            look_at_plain(age)
        outcome = hosts.run(age, missing)
        problems.extend(f"on {age} without {missing}: {what}" for what in outcome.problems(missing))
        rows[age, missing] = differences(plain[age], outcome, missing)

    is_whole = options in ([], ["--write"])
    if options[:1] == ["--sample"]:
        seed, count = map(int, options[1:3])
        for age, missing in random.Random(seed).sample(sorted(known), count):
            look(age, missing)
    elif options[:1] == ["--without"]:
        for missing in options[1:]:
            look(CURRENT, missing)
    else:
        for age in hosts.ages:
            look_at_plain(age)
        uncalled = hosts.noted("entry") - {fields[:4] for fields in hosts.noted("call")}
        problems += [f"the steps leave out {' '.join(fields)}" for fields in sorted(uncalled)]
        # A name may be asked for only where another is missing, so the names grow on the way.
        done: set[str] = set()
        while missing_names := {fields[0] for fields in hosts.noted("lookup")} - done:
            for missing in sorted(missing_names):
                for age in hosts.ages:
                    look(age, missing)
            done |= missing_names

    print(f"{hosts.runs} runs on {len({age for age, _ in rows})} ages of hosts without each of "
          f"{len({missing for _, missing in rows})} functions: {len(rows)} hosts, "
          f"{sum(1 for lines in rows.values() if lines)} of them seen by the program")
    if not is_whole:
        expected = {place: known.get(place, []) for place in rows}
        if rows != expected:
            texts = (render(table, {}, hosts.ages).encode() for table in (expected, rows))
            problems.append(output_check.difference(*texts))
        return problems

    shown, logged = render(rows, plain[CURRENT].shown, hosts.ages), hosts.debug_log()
    if hosts.bits == 64 and sorted(logged) == sorted(log.read_text("utf-8").splitlines()):
        logged = log.read_text("utf-8").splitlines()
    for file, text in ((table, shown), (log, "".join(f"{line}\n" for line in logged))):
        if "--write" in options and not (file == log and hosts.bits == 64):
            file.write_bytes(text.encode())
        elif difference := output_check.difference(file.read_bytes(), text.encode()):
            problems.append(f"{file.name} is different; ./test --golden writes it anew\n{difference}")
    return problems


if __name__ == "__main__":
    main()
