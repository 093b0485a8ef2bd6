"""Puts deliberate faults into the plug-in, one at a time, and tells which ones the tests notice.

usage: run.py [--check] [TEXT...]

Only faults whose file or text holds one of the TEXTs are tried; --check just looks whether each still
fits its source. Every fault goes into a copy of the sources, which is built without optimisation and
tested until the first test fails. Ends with status 1 when a fault survives or does not build.
"""

import argparse
import concurrent.futures
import dataclasses
import os
import pathlib
import queue
import shutil
import subprocess
import sys
import time

from faults import FAULTS, Fault

ROOT = pathlib.Path(__file__).resolve().parents[2]
PRESET = "linux-x86-faults"
SECONDS_FOR_A_TEST = 600
SLOW_PROGRAMS = "bad_input/(long_text|exponents)|raw_nonsense|hosts/every_host|functions/known_values"


@dataclasses.dataclass(frozen=True)
class Stage:
    """What is built, and the tests that then run: those whose name holds `tests` but not `but`."""

    targets: tuple[str, ...]
    tests: str
    but: str = "^$"


COMMAND = ("BigNumberVQZ", "standin")
UNIT = Stage(("plugin_tests",), "unit/plugin_tests")
GOLDEN = Stage(COMMAND, "golden/")
PROGRAMS = Stage(COMMAND, "tests/programs/", SLOW_PROGRAMS)
TABLES = Stage(("BigNumberVQZ", "table_tests"), "unit/table_tests")
OPERATIONS = Stage(("BigNumberVQZ", "operation_tests"), "unit/operation_tests/(others|256)")
KERNELS = Stage(
    ("kernel_tests", *(f"differential_{variant}" for variant in ("stock", "kernels", "sse2", "forced"))),
    "unit/kernel_tests$|differential/(sample|functions)",
)

# Where the first failure is likely, by the longest beginning of the file's name; the rest follows.
LIKELY = {
    "host/": [UNIT],
    "platform/": [UNIT],
    "plugin/members/": [],
    "plugin/": [UNIT, GOLDEN],
    "host/random": [OPERATIONS],
    "number/kernels/": [KERNELS],
    "number/lifecycle": [TABLES],
    "host/routine": [TABLES],
    "plugin/members/constants": [OPERATIONS],
    "number/conversions": [Stage(COMMAND, "programs/(values|errors|debug_log)", SLOW_PROGRAMS)],
    "number/text": [Stage(COMMAND, "programs/(text|bad_input|encodings)", SLOW_PROGRAMS)],
    "number/ops": [Stage(COMMAND, "programs/(arithmetic|errors|comparison|debug_log)", SLOW_PROGRAMS)],
}
ALL = [PROGRAMS, UNIT, GOLDEN, TABLES, OPERATIONS]


def stages_for(fault: Fault) -> list[Stage]:
    matches = [start for start in LIKELY if fault.file.startswith(start)]
    first = LIKELY[max(matches, key=len)] if matches else []
    return [*first, *(stage for stage in ALL if stage not in first)]


class Workshop:
    """A copy of the sources with a build of its own."""

    def __init__(self, folder: pathlib.Path):
        self.folder = folder
        self.build = folder / "build" / PRESET
        folder.mkdir(parents=True, exist_ok=True)
        self.log = folder.with_suffix(".log").open("w")
        self.copy_sources()
        self.run("cmake", "--preset", PRESET)
        targets = {target for stage in [*ALL, KERNELS] for target in stage.targets}
        if not self.run("ninja", "-C", self.build, *sorted(targets)):
            sys.exit(f"the sources do not build without a fault; see {self.log.name}")

    def expect_sound(self) -> None:
        """Without a fault every test has to pass, or a failure would say nothing about a fault."""
        for stage in [*ALL, KERNELS]:
            if not self.passes(stage):
                sys.exit(f"{stage.tests} fails without a fault; see {self.log.name}")

    def copy_sources(self) -> None:
        """Writes what changed since the last time, so that little has to be built again."""
        listing = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, check=True)
        names = listing.stdout.decode().split("\0")[:-1]
        for path in self.folder.rglob("*.[ch]pp"):
            name = str(path.relative_to(self.folder))
            if name not in names and not name.startswith("build/"):
                path.unlink()
        for name in names:
            source, copy = ROOT / name, self.folder / name
            if not source.exists() or (copy.exists() and copy.read_bytes() == source.read_bytes()):
                continue
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)

    def run(self, *command) -> bool:
        words = [str(word) for word in command]
        done = subprocess.run(
            words, cwd=self.folder, stdout=self.log, stderr=subprocess.STDOUT, check=False
        )
        return done.returncode == 0

    def passes(self, stage: Stage) -> bool:
        return self.run(
            "ctest", "--test-dir", self.build, "--stop-on-failure", "--timeout", SECONDS_FOR_A_TEST,
            "--output-on-failure", "-R", stage.tests, "-E", stage.but,
        )  # fmt: skip

    def outcome(self, fault: Fault) -> str:
        """What happens to a fault: "caught by" a stage, "survives" or "does not build"."""
        path = self.folder / fault.file
        sound = path.read_text()
        path.write_text(sound.replace(fault.before, fault.after))
        try:
            for stage in stages_for(fault):
                if not self.run("ninja", "-C", self.build, *stage.targets):
                    return "does not build"
                if not self.passes(stage):
                    return f"caught by {stage.tests}"
            return "survives"
        finally:
            path.write_text(sound)


def misfits() -> list[str]:
    """The faults whose text is not in their file once."""
    return [
        f"{fault.file}: {fault.before!r} is there {count} times"
        for fault in FAULTS
        if (count := (ROOT / fault.file).read_text().count(fault.before)) != 1
    ]


def try_faults(faults: list[Fault]) -> bool:
    workshops = queue.SimpleQueue()
    started = time.monotonic()
    count = min(os.cpu_count() or 1, len(faults))
    for number in range(count):
        workshop = Workshop(ROOT / "build" / "faults" / f"workshop-{number}")
        if number == 0:
            workshop.expect_sound()
        workshops.put(workshop)
    print(f"built after {time.monotonic() - started:.0f} s", flush=True)

    def attempt(fault: Fault) -> str:
        workshop = workshops.get()
        begun = time.monotonic()
        outcome = workshop.outcome(fault)
        workshops.put(workshop)
        change = f"{fault.before!r} -> {fault.after!r}"
        print(f"{outcome} ({time.monotonic() - begun:.0f} s): {fault.file}: {change}", flush=True)
        return outcome

    with concurrent.futures.ThreadPoolExecutor(count) as pool:
        outcomes = list(pool.map(attempt, faults))
    caught = sum(outcome.startswith("caught") for outcome in outcomes)
    minutes = (time.monotonic() - started) / 60
    print(f"{caught} of {len(faults)} faults are caught, in {minutes:.0f} minutes")
    return caught == len(faults)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--check", action="store_true", help="only look whether all faults fit")
    parser.add_argument("texts", nargs="*", metavar="TEXT")
    arguments = parser.parse_args()
    if problems := misfits():
        sys.exit("\n".join(problems))
    print(f"{len(FAULTS)} faults fit their sources")
    if arguments.check:
        return
    chosen = [
        fault
        for fault in FAULTS
        if not arguments.texts
        or any(text in fault.file or text in fault.before for text in arguments.texts)
    ]
    sys.exit(0 if chosen and try_faults(chosen) else 1)


if __name__ == "__main__":
    main()
