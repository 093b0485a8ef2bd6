"""Puts deliberate faults into the plug-in, one at a time, and reports which ones the tests notice.

usage: run.py [--check | --listed | --drawn] [option...] [TEXT...]

There are two kinds: the listed faults of faults.py, and mutants that are drawn at random from all
sources of the library. Every one goes into a copy of the sources, which is built without optimisation
and tested until the first test fails. Ends with status 1 when a listed fault is not noticed or does
not build, when fewer than 95 % of the drawn mutants are noticed, or when one survives that
survivors.py does not explain.

What does not compile does not count, nor does what leaves the library's code as it is, at once or when
it is optimised. Mutants are drawn until enough of them count.

  --check     just looks whether each listed fault still fits its source
  --listed    only the listed faults
  --drawn     only drawn mutants
  --count N   how many of them have to count
  --seed N    draws others
  --resume    keeps what an earlier run with the same seed found, and tries its survivors again
  --jobs N    how many are tried at the same time
  TEXT...     only listed faults, or with --drawn only mutants, whose file or line holds one of these
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import json
import os
import pathlib
import queue
import subprocess
import sys
import threading
import time

from faults import FAULTS, Fault
from survivors import EXPLAINED
from workshop import ALL, LAST, ROOT, Outcome, Verdict, Workshop, stages_for

SEED = 20
COUNT = 150
LEAST_SHARE = 0.95
# Many do not compile, and some change nothing: this many are drawn for each one that has to count.
DRAWN_FOR_EACH = 20
FOUND = ROOT / "build" / "faults" / "drawn.jsonl"


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A line of a source file, by its number, and what takes its place."""

    file: str
    line: int
    before: str
    after: str

    def sound_lines(self) -> list[str]:
        return (ROOT / self.file).read_text(encoding="utf-8").splitlines(keepends=True)

    def faulty_text(self) -> str:
        lines = self.sound_lines()
        lines[self.line - 1] = self.after
        return "".join(lines)

    def reason_to_survive(self) -> str | None:
        """Why no test can notice it, if that is known."""
        above = [line.strip() for line in self.sound_lines()[: self.line - 1]]
        for known in EXPLAINED:
            is_same = (known.before, known.after) == (self.before.strip(), self.after.strip())
            if is_same and above[len(above) - len(known.above) :] == list(known.above):
                return known.reason
        return None

    def __str__(self) -> str:
        return f"{self.file}:{self.line}: {self.before.strip()!r} -> {self.after.strip()!r}"


def misfits() -> list[str]:
    """The faults whose text is not in their file once."""
    return [
        f"{fault.file}: {fault.before!r} is there {count} times"
        for fault in FAULTS
        if (count := (ROOT / fault.file).read_text(encoding="utf-8").count(fault.before)) != 1
    ]


def minutes_since(started: float) -> str:
    return f"{(time.monotonic() - started) / 60:.0f} minutes"


def open_workshops(count: int) -> queue.SimpleQueue:
    started = time.monotonic()
    workshops = queue.SimpleQueue()
    jobs = max(1, (os.cpu_count() or 1) // count)
    for number in range(count):
        workshop = Workshop(ROOT / "build" / "faults" / f"workshop-{number}", jobs)
        if number == 0:
            workshop.expect_sound(*ALL, *LAST)
        workshops.put(workshop)
    print(f"the sound sources are built and tested after {minutes_since(started)}", flush=True)
    return workshops


def try_listed(faults: list[Fault], workshops: queue.SimpleQueue, jobs: int) -> bool:
    started = time.monotonic()

    def attempt(fault: Fault) -> Outcome:
        workshop = workshops.get()
        begun = time.monotonic()
        sound = (ROOT / fault.file).read_text(encoding="utf-8")
        faulty = sound.replace(fault.before, fault.after)
        outcome = workshop.outcome(fault.file, faulty, stages_for(fault.file))
        workshops.put(workshop)
        change = f"{fault.before!r} -> {fault.after!r}"
        print(f"{outcome} ({time.monotonic() - begun:.0f} s): {fault.file}: {change}", flush=True)
        return outcome

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        outcomes = list(pool.map(attempt, faults))
    caught = sum(outcome.verdict is Verdict.CAUGHT for outcome in outcomes)
    print(f"{caught} of {len(faults)} faults are caught, in {minutes_since(started)}", flush=True)
    return caught == len(faults)


class Draw:
    """The drawn mutants, one after the other until enough of them count."""

    def __init__(self, mutants: list[Mutant], count: int, least: int, resume: bool):
        """Tries until `count` of the mutants count; good are at least `least`."""
        self.waiting = collections.deque(mutants)
        self.count = count
        self.least = least
        self.outcomes = {}
        self.settled = set()
        self.lock = threading.Lock()
        self.known = self.read_known() if resume else {}
        FOUND.parent.mkdir(parents=True, exist_ok=True)
        self.found = FOUND.open("a" if resume else "w", encoding="utf-8")

    @staticmethod
    def read_known() -> dict[Mutant, Outcome]:
        known = {}
        for line in FOUND.read_text(encoding="utf-8").splitlines() if FOUND.exists() else []:
            row = json.loads(line)
            known[Mutant(**row["mutant"])] = Outcome(Verdict(row["verdict"]), row["detail"])
        return {
            mutant: outcome
            for mutant, outcome in known.items()
            if outcome.verdict is not Verdict.SURVIVES
        }

    def with_verdict(self, *verdicts: Verdict) -> list[Mutant]:
        return [
            mutant for mutant, outcome in self.outcomes.items() if outcome.verdict in verdicts
        ]

    def counted(self) -> int:
        return len(self.with_verdict(Verdict.CAUGHT, Verdict.SURVIVES))

    def is_wanting(self) -> bool:
        """Whether more have to be tried."""
        return bool(self.waiting) and self.counted() < self.count

    def next(self) -> Mutant | None:
        """A mutant to try; None when enough of them count, or none is left."""
        with self.lock:
            while self.is_wanting():
                mutant = self.waiting.popleft()
                if mutant not in self.known:
                    return mutant
                self.outcomes[mutant] = self.known[mutant]
            return None

    def add(self, mutant: Mutant, outcome: Outcome, seconds: float) -> None:
        with self.lock:
            self.outcomes[mutant] = outcome
            row = {"mutant": dataclasses.asdict(mutant), "verdict": outcome.verdict.value}
            self.found.write(json.dumps({**row, "detail": outcome.detail}) + "\n")
            self.found.flush()
            print(f"{self.counted()}: {outcome} ({seconds:.0f} s): {mutant}", flush=True)

    def report(self) -> bool:
        """Prints what came of it; false when that is not good enough."""
        by_outcome = collections.Counter(str(outcome) for outcome in self.outcomes.values())
        for outcome, count in by_outcome.most_common():
            print(f"  {count:4} {outcome}")
        by_folder = collections.Counter(
            str(pathlib.PurePosixPath(mutant.file).parent)
            for mutant in self.with_verdict(Verdict.CAUGHT, Verdict.SURVIVES)
        )
        print("counted by folder:", ", ".join(f"{name} {n}" for name, n in by_folder.items()))
        survivors = self.with_verdict(Verdict.SURVIVES)
        unexplained = [mutant for mutant in survivors if mutant.reason_to_survive() is None]
        for mutant in survivors:
            print(f"survivor: {mutant}\n    {mutant.reason_to_survive() or 'asks for a test'}")
        counted = self.counted()
        caught = len(self.with_verdict(Verdict.CAUGHT))
        share = caught / counted if counted else 0.0
        print(
            f"{caught} of {counted} mutants that change the code are caught: {100 * share:.1f} %, "
            f"{len(survivors) - len(unexplained)} others are explained"
        )
        if counted < self.count:
            print(f"only {counted} of the {self.count} mutants asked for were found")
        return counted >= self.least and share >= LEAST_SHARE and not unexplained


def drawn_mutants(files: list[str], seed: int, count: int) -> list[Mutant]:
    print(f"drawing mutants of {len(files)} files with seed {seed}", flush=True)
    command = [ROOT / "scripts" / "python", "faults", ROOT / "tests" / "faults" / "draw.py"]
    command += ["--seed", str(seed), "--count", str(count), *files]
    done = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, check=True)
    return [Mutant(**row) for row in json.loads(done.stdout)]


def try_drawn(draw: Draw, workshops: queue.SimpleQueue, jobs: int) -> bool:
    started = time.monotonic()

    def attempt_all() -> None:
        workshop = workshops.get()
        while mutant := draw.next():
            begun = time.monotonic()
            # Tests would not notice what is explained, after taking as long as all of them take.
            stages = [] if mutant.reason_to_survive() else stages_for(mutant.file)
            outcome = workshop.outcome(mutant.file, mutant.faulty_text(), stages)
            draw.add(mutant, outcome, time.monotonic() - begun)
        workshops.put(workshop)

    # What turns out to be the same code once it is optimised makes room for others.
    while draw.is_wanting():
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for attempt in [pool.submit(attempt_all) for _ in range(jobs)]:
                attempt.result()
        look_again(draw, workshops)
    good = draw.report()
    print(f"drawn mutants took {minutes_since(started)}", flush=True)
    return good


def look_again(draw: Draw, workshops: queue.SimpleQueue) -> None:
    """Puts the survivors through the slow builds, which only one workshop makes."""
    waiting = [workshops.get() for _ in range(workshops.qsize())]
    workshop = min(waiting, key=lambda one: one.folder)
    for mutant in draw.with_verdict(Verdict.SURVIVES):
        if mutant not in draw.settled and mutant.reason_to_survive() is None:
            begun = time.monotonic()
            outcome = workshop.second_look(mutant.file, mutant.faulty_text())
            draw.settled.add(mutant)
            draw.add(mutant, outcome, time.monotonic() - begun)
    for one in waiting:
        workshops.put(one)


def holds(texts: list[str], *where: str) -> bool:
    return not texts or any(text in place for text in texts for place in where)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--check", action="store_true", help="only look whether all faults fit")
    parser.add_argument("--listed", action="store_true", help="only the listed faults")
    parser.add_argument("--drawn", action="store_true", help="only drawn mutants")
    parser.add_argument("--count", type=int, default=COUNT, help="drawn mutants that have to count")
    parser.add_argument("--seed", type=int, default=SEED, help="draws others")
    parser.add_argument("--resume", action="store_true", help="keep what an earlier run found")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="at the same time")
    parser.add_argument("texts", nargs="*", metavar="TEXT")
    arguments = parser.parse_args()
    if problems := misfits():
        sys.exit("\n".join(problems))
    print(f"{len(FAULTS)} faults fit their sources")
    if arguments.check:
        return

    texts = arguments.texts
    jobs = max(1, arguments.jobs)
    workshops = open_workshops(jobs)
    good = True
    if not arguments.drawn:
        listed = [fault for fault in FAULTS if holds(texts, fault.file, fault.before)]
        good &= try_listed(listed, workshops, jobs)
    if arguments.drawn or not (arguments.listed or texts):
        workshop = workshops.get()
        files = workshop.sources_of_library()
        workshops.put(workshop)
        mutants = drawn_mutants(files, arguments.seed, DRAWN_FOR_EACH * arguments.count)
        chosen = [mutant for mutant in mutants if holds(texts, mutant.file, mutant.before)]
        least = 0 if texts else arguments.count
        draw = Draw(chosen, arguments.count, least, arguments.resume)
        good &= try_drawn(draw, workshops, jobs)
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main()
