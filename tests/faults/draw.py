"""Draws mutants of the sources with universalmutator.

usage: scripts/python faults tests/faults/draw.py --seed N --count N FILE...

Prints a JSON list of mutants, each with its file, the number of its line, the line and what takes its
place. The same seed and the same files give the same list. A folder is drawn by the square root of its
lines, so that small folders are not passed over; in it a line, and of that line a mutant. No line is
drawn twice.
"""

import argparse
import collections
import contextlib
import io
import json
import math
import os
import pathlib
import random
import re

from universalmutator import mutator

RULES = ["universal.rules", "c_like.rules", "cpp.rules"]


def may_compile(lines: list[str], number: int, after: str) -> bool:
    """False for what the compiler would refuse anyway: the rules know nothing of templates, pointers
    and references, of numbers in names, and of where a loop is. Binary operators stand between blanks
    here, as clang-format leaves them."""
    before = lines[number - 1]
    if before.lstrip().startswith(("//", "template")):
        return False
    if after.lstrip().startswith("/*") and re.search(r"^\s*[})#]|[{,(]$", before):
        return False
    if after.startswith(before.rstrip()) and (jump := re.search(r"\b(break|continue);$", after)):
        loops = r"^( +)(?:for|while|do)\b" if jump[1] == "continue" else r"^( +)(?:for|while|do|switch)\b"
        outer = [re.match(loops, line) for line in lines[max(0, number - 20) : number]]
        indent = len(before) - len(before.lstrip())
        return any(match and len(match[1]) < indent for match in outer)
    place = len(os.path.commonprefix([before, after]))
    if before[place - 1 : place] in ("<", ">") and after[place : place + 1] == "=":
        place -= 1
    left, changed, right = before[:place], before[place : place + 1], before[place + 1 :]
    if changed and changed in "<>*&+|":
        return left.endswith(" ") and right.startswith((" ", "="))
    digits = re.match(r"[0-9]+", before[place:])
    if digits and not after[place:].startswith(digits[0]):
        return re.search(r"\w$", left) is None and re.match(r"[0-9]+\w", before[place:]) is None
    return True


def mutants_by_line(name: str) -> dict[int, list[dict]]:
    """The mutants of a file by the number of their line."""
    lines = pathlib.Path(name).read_text(encoding="utf-8").splitlines(keepends=True)
    with contextlib.redirect_stdout(io.StringIO()):
        found = mutator.mutants_regexp(lines, RULES, ignorePatterns=[])
    by_line = collections.defaultdict(list)
    for number, after, *_ in found:
        if not may_compile(lines, number, after):
            continue
        mutant = {"file": name, "line": number, "before": lines[number - 1], "after": after}
        by_line[number].append(mutant)
    return by_line


def draw(names: list[str], seed: int, count: int) -> list[dict]:
    lines = collections.defaultdict(list)
    for name in sorted(names):
        lines[str(pathlib.PurePosixPath(name).parent)] += mutants_by_line(name).values()
    folders = {folder: of_lines for folder, of_lines in lines.items() if of_lines}
    weights = {folder: math.sqrt(len(of_lines)) for folder, of_lines in folders.items()}
    source = random.Random(seed)
    drawn = []
    while folders and len(drawn) < count:
        names_left = list(folders)
        [folder] = source.choices(names_left, [weights[name] for name in names_left])
        of_line = folders[folder].pop(source.randrange(len(folders[folder])))
        drawn.append(source.choice(of_line))
        if not folders[folder]:
            del folders[folder]
    return drawn


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--count", type=int, required=True)
    parser.add_argument("files", nargs="+", metavar="FILE")
    arguments = parser.parse_args()
    print(json.dumps(draw(arguments.files, arguments.seed, arguments.count)))


if __name__ == "__main__":
    main()
