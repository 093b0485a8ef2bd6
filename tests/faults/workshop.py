"""A copy of the sources in which faults are tried out, and the tests that have to notice them."""

import collections
import contextlib
import dataclasses
import enum
import math
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import time
from collections.abc import Iterator
from typing import ClassVar

ROOT = pathlib.Path(__file__).resolve().parents[2]
PLAIN = "linux-x86-faults"
OPTIMISED = "linux-x86"
OPTIMISED_64 = "linux-x86_64"
SANITIZED = "linux-x86-sanitize"
LIBRARY = "BigNumberVQZ"
# A fault may send a test into a loop. A stage gets many times what it takes without one.
SECONDS_FOR_A_STAGE = 600
TIMES_AS_LONG = 10
BYTES_FOR_A_FILE = 1 << 30
SLOW_PROGRAMS = "bad_input/(long_text|exponents)|raw_nonsense|hosts/every_host|functions/known_values"


@dataclasses.dataclass(frozen=True)
class Stage:
    """What is built, and the tests that then run: those whose name holds `tests` but not `but`."""

    targets: tuple[str, ...]
    tests: str
    but: str = "^$"
    preset: str = PLAIN

    def __str__(self) -> str:
        return self.tests if self.preset == PLAIN else f"{self.preset}/{self.tests}"


COMMAND = (LIBRARY, "standin")
UNIT = Stage(("plugin_tests",), "unit/plugin_tests")
GOLDEN = Stage(COMMAND, "golden/")
PROGRAMS = Stage(COMMAND, "tests/programs/", SLOW_PROGRAMS)
SLOW = Stage(COMMAND, f"tests/programs/.*({SLOW_PROGRAMS})")
TABLES = Stage((LIBRARY, "table_tests"), "unit/table_tests")
HOSTILE = Stage((LIBRARY, "hostile_tests"), "unit/hostile_tests")
OPERATIONS = Stage((LIBRARY, "operation_tests"), "unit/operation_tests/(others|256)")
KERNELS = Stage(
    (
        "kernel_tests",
        *(f"differential_{variant}" for variant in ("stock", "kernels", "sse2", "forced")),
    ),
    "unit/kernel_tests$|differential/(sample|functions)",
)
WITH_SANITIZERS = Stage(
    (*COMMAND, "plugin_tests", "table_tests", "hostile_tests"),
    "unit/(plugin|table|hostile)_tests|tests/programs/",
    SLOW_PROGRAMS,
    SANITIZED,
)
# What is linked shows in the optimised library only.
FROM_OUTSIDE = Stage((LIBRARY,), "library/(exports|imports|glibc|kernels_called)", preset=OPTIMISED)
# Some lines are of use at 64 bits only, and what does not build there is no fault of the sources.
AT_64_BITS = Stage(COMMAND, "tests/programs/", SLOW_PROGRAMS, OPTIMISED_64)


def programs(folders: str) -> Stage:
    return Stage(COMMAND, f"programs/({folders})", SLOW_PROGRAMS)


# Where the first failure is likely, by the longest beginning of the file's name; the rest follows, what
# is quick first. UNIT alone is compiled from headers of the library, so for a header it waits its turn.
LIKELY = {
    "host/": [UNIT, programs("debug_log|encodings")],
    "platform/": [UNIT],
    "plugin/members/": [GOLDEN, programs("debug_log|errors|arithmetic")],
    "plugin/": [UNIT, GOLDEN],
    "host/random": [OPERATIONS],
    "number/kernels/": [programs("arithmetic|text"), OPERATIONS],
    "number/lifecycle": [TABLES],
    "plugin/members/constants": [GOLDEN, OPERATIONS],
    "number/conversions": [programs("values|errors|debug_log")],
    "number/text": [programs("text|bad_input|encodings")],
    "number/ops": [programs("arithmetic|errors|comparison|debug_log")],
}
ALL = [GOLDEN, PROGRAMS, UNIT, SLOW, TABLES, OPERATIONS, HOSTILE]
# Computations that only some of the sources have a part in.
LAST = [KERNELS]


def stages_for(file: str) -> list[Stage]:
    """The stages that a fault in this file goes through until one notices it."""
    matches = [start for start in LIKELY if file.startswith(start)]
    first = LIKELY[max(matches, key=len)] if matches else []
    if file.endswith(".hpp"):
        first = [stage for stage in first if stage is not UNIT]
    last = LAST if file.startswith("number/") else []
    return [*first, *(stage for stage in [*ALL, *last] if stage not in first)]


class Verdict(enum.Enum):
    """What became of a fault."""

    NO_BUILD = "does not build"
    SAME_CODE = "same code"
    CAUGHT = "caught"
    SURVIVES = "survives"


@dataclasses.dataclass(frozen=True)
class Outcome:
    verdict: Verdict
    detail: str = ""

    def __str__(self) -> str:
        return f"{self.verdict.value} {self.detail}".strip()


class Workshop:
    """A copy of the sources with builds of its own."""

    # What each stage may take, in seconds; one workshop finds it out for all.
    limits: ClassVar[dict[Stage, float]] = {}

    def __init__(self, folder: pathlib.Path, jobs: int):
        self.folder = folder
        self.jobs = jobs
        folder.mkdir(parents=True, exist_ok=True)
        self.log = folder.with_suffix(".log").open("w")
        self.copy_sources()
        self.sound_libraries = {}
        # By file: the objects that depend on it, each with the time that it was compiled in.
        self.objects = collections.defaultdict(list)
        self.prepare(PLAIN, *{target for stage in [*ALL, *LAST] for target in stage.targets})

    def prepare(self, preset: str, *targets: str) -> None:
        """Builds the sound sources, and keeps what the library then consists of."""
        configured = self.run("cmake", "--preset", preset)
        if not configured or not self.make(preset, LIBRARY, *targets):
            sys.exit(f"the sources do not build without a fault; see {self.log.name}")
        self.sound_libraries[preset] = self.library(preset)

    def expect_sound(self, *stages: Stage) -> None:
        """Without a fault every test has to pass, or a failure would say nothing about a fault."""
        for stage in stages:
            started = time.monotonic()
            self.limits[stage] = math.inf
            if not self.passes(stage):
                sys.exit(f"{stage} fails without a fault; see {self.log.name}")
            self.limits[stage] = 60 + TIMES_AS_LONG * (time.monotonic() - started)

    def copy_sources(self) -> None:
        """Writes what changed since the last time, so that little has to be built again."""
        listing = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, check=True)
        names = set(listing.stdout.decode().split("\0")[:-1])
        for path in self.folder.rglob("*.[ch]pp"):
            name = str(path.relative_to(self.folder))
            if name not in names and not name.startswith("build/"):
                path.unlink()
        for name in sorted(names):
            source, copy = ROOT / name, self.folder / name
            if not source.exists() or (copy.exists() and copy.read_bytes() == source.read_bytes()):
                continue
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)

    def run(self, *command: str | pathlib.Path, seconds: float = math.inf) -> bool:
        """Whether a command succeeds within this time."""
        process = subprocess.Popen(
            [str(word) for word in command], cwd=self.folder, stdin=subprocess.DEVNULL,
            stdout=self.log, stderr=subprocess.STDOUT, start_new_session=True,
            preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (BYTES_FOR_A_FILE,) * 2),
        )  # fmt: skip
        try:
            return process.wait(None if seconds == math.inf else seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def build(self, preset: str) -> pathlib.Path:
        return self.folder / "build" / preset

    def make(self, preset: str, *targets: str) -> bool:
        return self.run("ninja", f"-j{self.jobs}", "-C", self.build(preset), *sorted(set(targets)))

    def library(self, preset: str) -> bytes:
        """The code of the library, without symbols and with nothing that depends on line numbers."""
        return (self.build(preset) / f"{LIBRARY}.so").read_bytes()

    def has_same_code(self, preset: str) -> bool:
        return self.library(preset) == self.sound_libraries[preset]

    def passes(self, stage: Stage) -> bool:
        return self.run(
            "ctest", "--test-dir", self.build(stage.preset), "--stop-on-failure",
            "--output-on-failure", "-R", stage.tests, "-E", stage.but,
            seconds=self.limits.get(stage, SECONDS_FOR_A_STAGE),
        )  # fmt: skip

    def sources_of_library(self) -> list[str]:
        """The files of the product that the library is compiled from."""
        command = ["ninja", "-C", self.build(PLAIN), "-t", "deps"]
        listing = subprocess.run(command, capture_output=True, check=True, text=True).stdout
        products = ("plugin/", "host/", "number/", "platform/")
        names = set()
        for line in listing.splitlines():
            path = pathlib.Path(os.path.normpath(self.build(PLAIN) / line.strip()))
            if line.startswith(" ") and path.is_relative_to(self.folder):
                name = path.relative_to(self.folder).as_posix()
                if name.startswith(products) and path.suffix in (".cpp", ".hpp"):
                    names.add(name)
        return sorted(names)

    @contextlib.contextmanager
    def fault_in(self, file: str, faulty: str) -> Iterator[None]:
        """While it lasts, the file has this text."""
        path = self.folder / file
        sound = path.read_text(encoding="utf-8")
        path.write_text(faulty, encoding="utf-8")
        try:
            yield
        finally:
            path.write_text(sound, encoding="utf-8")

    def quickest_object(self, file: str) -> str | None:
        """The object of the library that depends on this file and is compiled in the shortest time."""
        build = self.build(PLAIN)
        if not self.objects:
            seconds = {}
            for line in (build / ".ninja_log").read_text().splitlines()[1:]:
                begin, end, _, name, _ = line.split("\t")
                seconds[name] = int(end) - int(begin)
            command = ["ninja", "-C", build, "-t", "deps"]
            listing = subprocess.run(command, capture_output=True, check=True, text=True).stdout
            for line in listing.splitlines():
                if line.startswith(" "):
                    path = os.path.relpath(build / line.strip(), self.folder)
                    self.objects[path].append((seconds.get(name, 0), name))
                else:
                    name = line.split(":")[0]
        kernels = "number/kernels/CMakeFiles/"
        parts = (
            "plugin/CMakeFiles/plugin_objects.dir/", f"{kernels}kernels.dir/", f"{kernels}kernels_with_"
        )
        own = [entry for entry in self.objects[file] if entry[1].startswith(parts)]
        return min(own)[1] if own else None

    def outcome(self, file: str, faulty: str, stages: list[Stage]) -> Outcome:
        """What becomes of a fault, of the file with this text, when these stages follow its build."""
        quickest = self.quickest_object(file)
        with self.fault_in(file, faulty):
            # Most of what does not build fails in every object.
            if quickest and not self.make(PLAIN, quickest) or not self.make(PLAIN, LIBRARY):
                return Outcome(Verdict.NO_BUILD)
            if self.has_same_code(PLAIN):
                return Outcome(Verdict.SAME_CODE)
            return self.outcome_of(stages)

    def second_look(self, file: str, faulty: str) -> Outcome:
        """What becomes of a fault that `outcome` says survives: whether the optimised library is
        another one at all, and whether sanitized tests notice it."""
        if OPTIMISED not in self.sound_libraries:
            self.prepare(OPTIMISED)
            self.prepare(OPTIMISED_64, *AT_64_BITS.targets)
            self.prepare(SANITIZED, *WITH_SANITIZERS.targets)
            self.expect_sound(FROM_OUTSIDE, AT_64_BITS, WITH_SANITIZERS)
        with self.fault_in(file, faulty):
            if self.make(OPTIMISED, LIBRARY) and self.has_same_code(OPTIMISED):
                return Outcome(Verdict.SAME_CODE, "once it is optimised")
            return self.outcome_of([FROM_OUTSIDE, AT_64_BITS, WITH_SANITIZERS])

    def outcome_of(self, stages: list[Stage]) -> Outcome:
        for stage in stages:
            if not self.make(stage.preset, *stage.targets):
                return Outcome(Verdict.NO_BUILD, str(stage))
            if not self.passes(stage):
                return Outcome(Verdict.CAUGHT, f"by {stage}")
        return Outcome(Verdict.SURVIVES)
