"""Compares what all members of the plug-in compute with the results of the 32-bit Windows library.

usage: results.py [--write] FILE -- COMMAND... LIBRARY

COMMAND LIBRARY is the program plugin_results of a target with its library (tests/differential/). FILE has a
line for each member: the hash of its first block of results, one of its first BLOCKS blocks, and its name.
The first block is always compared; all of them where the environment variable BIGNUMBERVQZ_FUZZ_FACTOR asks
for long tests, as ./test --long does. --write keeps what the command computes instead; the command is then
that of windows-x86, whose results are the measure.
"""

import concurrent.futures
import hashlib
import os
import pathlib
import subprocess
import sys

# A hundred thousand calls of each member at 256 bits, a quarter of that at 2048 bits; 5000 of each function,
# 1000 at 2048 bits.
BLOCKS = 1000
# How many blocks a process computes at once.
SHARE = 10
HEAD = """# What all members compute with seeded operands, as the 32-bit Windows library computed it: the hash of the
# first block of results, that of the first {blocks} blocks, and the member. tests/results.py compares it with
# what other targets compute, and makes it anew with --write.
"""


def compute(command: list[str], first: int, end: int) -> list[tuple[int, str, str]]:
    """Block, hash and member of these blocks."""
    result = subprocess.run([*command, str(first), str(end)], capture_output=True, text=True)
    if result.returncode != 0:
        sys.exit(f"{' '.join(command)} ended with status {result.returncode}: {result.stderr}")
    lines = [line.split(" ", 2) for line in result.stdout.splitlines()]
    return [(int(block), value, member) for block, value, member in lines]


def computed(command: list[str], blocks: int) -> dict[str, list[str]]:
    """The hashes of the blocks of each member, in order."""
    shares = [(first, min(first + SHARE, blocks)) for first in range(0, blocks, SHARE)]
    hashes: dict[str, list[str]] = {}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for lines in pool.map(lambda share: compute(command, *share), shares):
            for _, value, member in lines:
                hashes.setdefault(member, []).append(value)
    return hashes


def together(hashes: list[str]) -> str:
    """One hash of many."""
    return hashlib.sha256(" ".join(hashes).encode()).hexdigest()[:16].upper()


def main() -> None:
    separator = sys.argv.index("--")
    *options, name = sys.argv[1:separator]
    command = sys.argv[separator + 1:]
    file = pathlib.Path(name)
    if options == ["--write"]:
        results = computed(command, BLOCKS)
        lines = [f"{hashes[0]} {together(hashes)} {member}\n" for member, hashes in results.items()]
        file.write_bytes((HEAD.format(blocks=BLOCKS) + "".join(lines)).encode())
        return

    is_long = "BIGNUMBERVQZ_FUZZ_FACTOR" in os.environ
    actual = computed(command, BLOCKS if is_long else 1)
    expected = {}
    for line in file.read_text("utf-8").splitlines():
        if not line.startswith("#"):
            of_first, of_all, member = line.split(" ", 2)
            expected[member] = of_all if is_long else of_first
    if not expected:
        sys.exit(f"{file.name} is empty")
    problems = [f"not called: {member}" for member in expected.keys() - actual.keys()]
    problems += [f"not in {file.name}: {member}" for member in actual.keys() - expected.keys()]
    for member in expected.keys() & actual.keys():
        hashes = actual[member]
        if (together(hashes) if is_long else hashes[0]) != expected[member]:
            problems.append(f"other results: {member}")
    if problems:
        sys.exit("\n".join(sorted(problems)))
    print(f"{len(actual)} members, {sum(map(len, actual.values()))} blocks: the same results")


if __name__ == "__main__":
    main()
