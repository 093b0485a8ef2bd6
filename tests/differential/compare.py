"""Compares what builds of the arithmetic compute, byte for byte, with plain ttmath.

usage: compare.py [--basic N] [--function N] [--composed N] [--text N] [--bits B] [--seed S]
                  [--cache FOLDER] [--emulator PROGRAM] [--library FILE] STOCK VARIANT...

Each operation of a group is called N times per precision and program (tests/differential/differential.cpp
says what with); with --bits in that precision only. What the stock program computes is kept in the
cache, if there is one, for the next variants and runs. A thorough run takes an hour:

    compare.py --basic 1000000 --function 20000 --composed 2000 --text 20000 --cache build/differential
               build/linux-x86/bin/differential_{stock,kernels,sse2,forced}

With a library, the variants are programs that call its members (plugin_differential.cpp). An emulator
runs the programs that are not for this machine:

    compare.py --basic 100000 --function 2000 --composed 200 --text 2000 --emulator scripts/wine
               --library build/windows-x86/BigNumberVQZ.dll
               build/linux-x86/bin/differential_stock build/windows-x86/bin/plugin_differential.exe
    compare.py --basic 100000 --function 2000 --composed 200 --text 2000 --emulator scripts/qemu
               build/linux-x86_64/bin/differential_stock build/linux-arm64/bin/differential_kernels
"""

import argparse
import concurrent.futures
import hashlib
import os
import pathlib
import subprocess
import sys

GROUPS = ["basic", "function", "composed", "text"]
PRECISIONS = [256, 2048]
# Processors as ELF files name them.
I386, X86_64 = b"\x03\x00", b"\x3e\x00"


def machine(program: pathlib.Path) -> bytes | None:
    """The processor that an ELF file names; None for a file of another format, as of Windows."""
    with program.open("rb") as file:
        head = file.read(20)
    return head[18:20] if head.startswith(b"\x7fELF") else None


def is_foreign(program: pathlib.Path) -> bool:
    """Whether this machine needs an emulator for the program. An x86-64 runs those for 32 bits as well."""
    here = machine(pathlib.Path(sys.executable))
    return machine(program) not in ([here, I386] if here == X86_64 else [here])


def compute(options: argparse.Namespace, program: pathlib.Path, words: list[str]) -> list[str]:
    command = [str(program.resolve()), *words]
    if options.emulator and is_foreign(program):
        command.insert(0, options.emulator)
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()


def compute_stock(options: argparse.Namespace, job: list[str]) -> list[str]:
    if options.library:
        job = [*job, "--members"]
    if not options.cache:
        return compute(options, options.stock, job)
    key = hashlib.sha256(options.stock.read_bytes() + " ".join(job).encode()).hexdigest()
    kept = options.cache / key
    if not kept.exists():
        options.cache.mkdir(parents=True, exist_ok=True)
        new = kept.with_suffix(".new")
        new.write_text("\n".join(compute(options, options.stock, job)))
        new.replace(kept)
    return kept.read_text().splitlines()


def compare(options: argparse.Namespace, job: list[str]) -> list[str]:
    """One line for each operation and variant that differs."""
    expected = compute_stock(options, job)
    problems = []
    library = [str(options.library.resolve()), "--members"] if options.library else []
    for variant in options.variants:
        actual = compute(options, variant, [*library, *job])
        if not expected or len(actual) != len(expected):
            problems.append(f"{variant.name}: {len(actual)} blocks instead of {len(expected)}")
        differences = {}
        for line, other in zip(expected, actual):
            if line != other:
                name, bits, block, _ = line.split()
                differences.setdefault((name, bits), block)
        for (name, bits), block in differences.items():
            show = " ".join([*job[2:], *job[:2], "--only", name, "--show", block])
            problems.append(f"{variant.name}: {name} of {bits} bits differs; see {show}")
    count = len(expected) * len(options.variants)
    print(f"{' '.join(job)}: {count} blocks compared, {len(problems)} problems", flush=True)
    return problems


def main() -> None:
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    for group in GROUPS:
        parser.add_argument(f"--{group}", type=int, default=0)
    parser.add_argument("--bits", type=int, choices=PRECISIONS)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--cache", type=pathlib.Path)
    parser.add_argument("--emulator")
    parser.add_argument("--library", type=pathlib.Path)
    parser.add_argument("stock", type=pathlib.Path)
    parser.add_argument("variants", type=pathlib.Path, nargs="+")
    options = parser.parse_args()
    jobs = [
        [f"--{group}", str(count), "--bits", str(bits), "--seed", str(options.seed)]
        for group in GROUPS
        if (count := getattr(options, group))
        for bits in ([options.bits] if options.bits else PRECISIONS)
    ]
    if not jobs:
        parser.error("nothing to compare")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = list(pool.map(lambda job: compare(options, job), jobs))
    problems = [problem for of_job in found for problem in of_job]
    print("\n".join(problems))
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
