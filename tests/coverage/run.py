"""Measures which lines and branches of the plug-in's own code the tests run.

usage: run.py [ctest option...]

Builds without optimisation, runs the tests in the native library, and fails when less is covered than
is asked for. Branches that only a thrown exception takes do not count. A line that cannot run here is
marked in the source, with the reason: GCOVR_EXCL_LINE, or GCOVR_EXCL_START to GCOVR_EXCL_STOP.
"""

import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PRESET = "linux-x86-coverage"
BUILD = ROOT / "build" / PRESET
FOLDERS = ["plugin", "host", "number", "platform"]
LINES_PERCENT = 100
BRANCHES_PERCENT = 95
# Long computations in the larger precision, hundreds of hosts, and the sizes and sections of the file
# say nothing new.
LEFT_OUT = "unit/operation_tests/(2048|reference)|/hosts/|/library/|/lint/|/fuzz/|/completeness"
# The compiler counts nothing for a line of a table that only calls what makes the row. Whether these
# calls run shows in the functions that they call.
ROW_MAKER = r"\s+(\.\w+ = )?[A-Z]\w+<Value\b.*>\((\)\}?,|\[\]\(.*\) \{)?$"
EXCLUDED = re.compile(r"GCOVR_EXCL_(?:LINE|START):? *(.*)")


def list_excluded_lines() -> None:
    makers = 0
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*.[ch]pp")):
            for number, line in enumerate(path.read_text().splitlines(), 1):
                makers += re.match(ROW_MAKER, line) is not None
                if found := EXCLUDED.search(line):
                    print(f"left out: {path.relative_to(ROOT)}:{number}: {found[1]}")
    print(f"left out: {makers} lines of tables that only call what makes a row")


def forget_old_objects() -> None:
    """What an earlier build left of sources that are gone would count as never run."""
    subprocess.run(["ninja", "-C", BUILD, "-t", "cleandead"], stdout=subprocess.DEVNULL, check=True)
    for notes in BUILD.rglob("*.gcno"):
        if not notes.with_suffix(".o").exists():
            notes.unlink()
    for counts in BUILD.rglob("*.gcda"):
        counts.unlink()


def report(words: list[str]) -> bool:
    """Prints a report of gcovr; false when less is covered than its options require."""
    command = ["gcovr", "--root", ROOT, "--exclude-throw-branches", "--exclude-unreachable-branches"]
    command += ["--exclude-lines-by-pattern", ROW_MAKER, "--print-summary", *words]
    command += [BUILD / part for part in ("number", "plugin", "tests")]
    return subprocess.run(command, cwd=ROOT, check=False).returncode == 0


def main() -> None:
    subprocess.run([ROOT / "scripts" / "build", PRESET], check=True)
    forget_old_objects()
    jobs = str(os.cpu_count())
    tests = ["ctest", "--test-dir", BUILD, "--output-on-failure", "--parallel", jobs, "-E", LEFT_OUT]
    subprocess.run([*tests, *sys.argv[1:]], check=True)

    page = BUILD / "coverage.html"
    own = [word for folder in FOLDERS for word in ("--filter", f"{ROOT}/{folder}/")]
    print("== lines", flush=True)
    covered = report([*own, "--txt", "--html-details", page, "--fail-under-line", str(LINES_PERCENT)])
    print("== branches", flush=True)
    covered &= report([*own, "--txt", "--branches", "--fail-under-branch", str(BRANCHES_PERCENT)])
    list_excluded_lines()
    print(f"Line by line: {page.relative_to(ROOT)}")
    sys.exit(0 if covered else 1)


if __name__ == "__main__":
    main()
