"""The steps that the program of the host matrix takes with each number class: those of steps.txt, and for
a member that these leave out some that follow from its declaration."""

import pathlib
import re

from host_ages import CURRENT

# An argument of each type, and what stands for none where a type has that; "$" is the class.
SAMPLES = {
    "$": "four", "boolean": "True", "currency": "CType(1.5, Currency)", "double": "2.5",
    "int32": "CType(3, Int32)", "int64": "CType(3, Int64)", "integer": "10", "memoryblock": "six.DataMantissa",
    "single": "CType(2.5, Single)", "string": '"1.5"', "uint32": "CType(3, UInt32)",
    "uint64": "CType(3, UInt64)", "uinteger": "3", "variant": "5",
}
NOTHING = {"$": "none", "memoryblock": "Nil", "string": '""', "variant": "Nil"}
# What an argument that is passed by reference is read into.
VARIABLES = {"boolean": "found", "string": "rest"}


def written(age: str) -> list[str]:
    """The steps of steps.txt for hosts of that age."""
    steps = []
    for line in pathlib.Path(__file__).with_name("steps.txt").read_text("utf-8").splitlines():
        since, step = re.fullmatch(r"(?:(\d+): )?(.*)", line).groups()
        new_enough = since is None or age == CURRENT or age != "none" and float(age) >= float(since)
        if step and not step.startswith("#") and new_enough:
            steps.append(step)
    return steps


def parameters(declaration: str) -> list[tuple[str, bool]]:
    """The type of each parameter in lower case, and whether it is passed by reference."""
    inner = re.search(r"\((.*)\)", declaration)
    parts = inner[1].split(", ") if inner and inner[1] else []
    return [(re.search(r" as ([\w$]+)", part, re.IGNORECASE)[1].lower(), part.lower().startswith("byref "))
            for part in parts]


def derived(kind: str, declaration: str, part: str) -> list[str]:
    """The steps for an entry of the tables, as the record of calls names it, "$" being the class: with an
    argument of each type, and without each that may be missing."""
    name = re.match(r"\w+", declaration)[0]
    taken = parameters(declaration)
    usual = [VARIABLES[type_] if by_reference else SAMPLES[type_] for type_, by_reference in taken]
    lists = [usual]
    for place, (type_, by_reference) in enumerate(taken):
        if type_ in NOTHING and not by_reference:
            lists.append([*usual[:place], NOTHING[type_], *usual[place + 1:]])
    result = re.search(r" as ([\w$]+)$", declaration, re.IGNORECASE)
    is_shared = kind.startswith("shared")

    steps = []
    for words in lists:
        arguments = f"({', '.join(words)})" if taken else ""
        if name == "Constructor":
            steps.append(f"New ${arguments}")
        elif part == "set":
            target = "$" if is_shared else "y"
            steps.append(f"{target}.{name}{arguments} = {SAMPLES[result[1].lower()]} | y")
        elif result:
            steps.append(f"{'$' if is_shared else 'x'}.{name}{arguments}")
        else:
            steps.append(f"{'$' if is_shared else 'x'}.{name}{arguments} | x")
    if not is_shared and result and part != "set":
        steps.append(steps[0].replace("x.", "none.", 1))
    return steps
