"""Checks that the self-test leaves out no member of the number classes, and none of their failures.

usage: coverage.py SOURCES -- COMMAND...

COMMAND starts the stand-in host with the library. The self-test runs once with a record of its calls. Each
entry of the registered tables must have been called to success, and raised each failure that
tests/completeness/failures.py lists for it, but for those that EXCUSED names.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "completeness"))
from calls import CLASSES, Entry, Record  # noqa: E402

# What a program on a host with enough memory never sees, with the reason.
EXCUSED = (
    (r"OutOfMemoryException: Failed to allocate a memoryblock", "the host has enough memory"),
    (r"RuntimeException: C\+\+ Exception: basic_string::_M_create",
     "the text has two billion digits; a 64-bit host makes it"),
    (r"\(set\): NilObjectException: Not initialized", "the host refuses a receiver that is Nil"),
    (r"property \w+Value as \w+ \((?:get|set)\): .* with number NaN",
     "only a NaN with other bits than the library's own fails there"),
    (r"(?:Set)?StringValue\(.* with number NaN", "the text is stored in a NaN just made"),
    (r"property (?:String|Variant)Value as \w+ \(get\): .* with number #",
     "every number that an operation gives has a text in base 10"),
    (r"Constructor operation failed with number #", "an object is constructed once, from nothing"),
)


def excuse(entry: Entry, failure: str) -> str | None:
    """The pattern that excuses a failure that never came."""
    return next((pattern for pattern, _ in EXCUSED if re.search(pattern, f"{entry}: {failure}")),
                None)


def problems_of(entry: Entry, outcomes: set[str], used: set[str]) -> list[str]:
    """What is missing of an entry; adds the excuses that were needed to `used`."""
    missing = []
    if not outcomes & {"answered", "null"}:
        missing.append("to success")
    raised = {outcome.removeprefix("raised ") for outcome in outcomes}
    for failure in entry.failures():
        if failure not in raised:
            pattern = excuse(entry, failure)
            used.add(pattern)
            missing += [] if pattern else [f"for the failure {failure}"]
    return [f"{entry} is never called {what}" for what in missing]


def main() -> None:
    sources = pathlib.Path(sys.argv[1])
    command = sys.argv[sys.argv.index("--") + 1:]
    record = Record()
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "calls"
        result = subprocess.run([*command, str(sources / "examples/SelfTest/SelfTest.xojo_project")],
                                env=os.environ | {"STANDIN_CALL_RECORD": str(path)},
                                stdin=subprocess.DEVNULL, capture_output=True, check=False)
        if result.returncode != 0:
            sys.exit((result.stdout + result.stderr).decode(errors="replace"))
        record.read(path)
    entries = {entry: {outcome for _, outcome in calls}
               for entry, calls in record.calls.items() if entry.owner in CLASSES}
    used = set()
    problems = [problem for entry, outcomes in sorted(entries.items(), key=str)
                for problem in problems_of(entry, outcomes, used)]
    problems += [f"nothing needs the excuse {pattern}" for pattern, _ in EXCUSED
                 if pattern not in used]
    if {entry.owner for entry in entries} != set(CLASSES):
        problems.append("not both classes were registered")
    print(f"{len(entries)} entries, {len(problems)} problems")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    main()
