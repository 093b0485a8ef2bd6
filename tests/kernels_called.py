"""Tells whether the plug-in computes with the kernels, or with ttmath's own members in their place.

usage: kernels_called.py NM KERNEL_OBJECT... -- PLUGIN_OBJECT...

Where the plug-in does not see that a member has a kernel, it compiles ttmath's template instead. Its results
are the same, and so no other test notices. So the objects of the plug-in have to leave each of the members
that the kernels define to the linker, for a size of either precision at least.
"""

import collections
import re
import subprocess
import sys

PRECISIONS = 2
# A member of ttmath's namespace, as compilers for ELF name it. What templates are instantiated with stands
# between I and E, and may stand in one another.
MEMBER = re.compile(r"_ZNK?6ttmath")
ARGUMENTS = re.compile(r"I(?:L[a-z]+\d+E|S\w*_|[a-z])+E")


def symbols(nm: str, option: str, objects: list[str]) -> set[tuple[str, str]]:
    """Mangled names of external symbols, each with the letter of its kind."""
    command = [nm, "--extern-only", option, "--format=posix", *objects]
    lines = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
    # Some tools put the name of each object and a blank line before its symbols.
    fields = [line.split() for line in lines if line and not line.endswith(":")]
    return {(name, kind) for name, kind, *_ in fields}


def problems(nm: str, kernel_objects: list[str], plugin_objects: list[str]):
    defined = {name for name, kind in symbols(nm, "--defined-only", kernel_objects)
               if kind == "T" and MEMBER.match(name)}
    if not defined:
        yield "the kernels' objects define no member of ttmath"
    wanted = {name for name, _ in symbols(nm, "--undefined-only", plugin_objects)}
    called = collections.Counter()
    for name in defined:
        called[ARGUMENTS.sub("", name)] += name in wanted
    for name, count in sorted(called.items()):
        if count < PRECISIONS:
            yield f"the plug-in takes the kernel of {name} at {count} sizes"


def main() -> None:
    nm, *objects = sys.argv[1:]
    separator = objects.index("--")
    found = list(problems(nm, objects[:separator], objects[separator + 1:]))
    if found:
        sys.exit("\n".join(found))


if __name__ == "__main__":
    main()
