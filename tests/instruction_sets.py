"""Tells whether code for a newer instruction set could run on a processor that lacks it.

usage: instruction_sets.py NM SET OBJECT...

The objects are compiled for the instruction set SET. The linker keeps one of several copies of an inline
function, whichever file it is from: a copy from here would then run on every processor. So all code that other
files can reach has to carry the set's name, as the inline namespace in number/kernels/instruction_set.hpp gives it.
"""

import subprocess
import sys

CODE = "TWi"
# GCC's own: reads the address that it was called from.
HARMLESS = "__x86.get_pc_thunk."


def reachable_code(nm: str, file: str) -> list[str]:
    """The mangled names of all functions that the linker can take for those of other files."""
    command = [nm, "--extern-only", "--defined-only", "--format=posix", file]
    lines = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
    symbols = [line.split() for line in lines]
    return [name for name, kind, *_ in symbols if kind in CODE and not name.startswith(HARMLESS)]


def main() -> None:
    nm, instruction_set, *objects = sys.argv[1:]
    mark = f"{len(instruction_set)}{instruction_set}"
    problems = [
        f"{file}: {name} does not name {instruction_set}"
        for file in objects
        for name in reachable_code(nm, file)
        if mark not in name
    ]
    if not objects:
        problems.append("no object was given")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    main()
