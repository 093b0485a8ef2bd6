"""Draws mutants of the sources with universalmutator.

usage: scripts/python faults tests/faults/draw.py --seed N --count N FILE...

Prints a JSON list of mutants, each with its file, the number of its line, the line and what takes its
place. A folder is drawn by the square root of its lines, so that small folders are not passed over; in it a
line, and of that line a mutant. No line is drawn twice. Whether a line is drawn depends on the seed, its
text and its file, hardly on other lines: after a change somewhere, nearly the same mutants are drawn.
"""

import argparse
import collections
import contextlib
import hashlib
import io
import json
import math
import os
import pathlib
import re

from universalmutator import mutator

RULES = ["universal.rules", "c_like.rules", "cpp.rules"]


LITERAL = re.compile(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'')
# What begins a line that gives a name to something: without the line nobody knows the name.
DECLARATION = re.compile(
    r"^\s*(?!return|throw|case|else|goto|delete)(?:[\w:]+(?:<.*>)?[&*]*\s+)+[&*]*\w+(?:\[.*\])?\s*[=;({]"
)
# What the rules put in may be new to the file.
KEYWORDS = {"true", "false", "break", "continue", "signed", "unsigned", "if", "while", "return"}


def unmatched_brackets(code: str) -> str | None:
    """The brackets of a line without a partner in it; None when two that do not fit are partners."""
    partners = {")": "(", "]": "[", "}": "{"}
    unmatched = []
    for bracket in re.findall(r"[()\[\]{}]", LITERAL.sub("", code)):
        if bracket in partners and unmatched and unmatched[-1] in partners.values():
            if unmatched.pop() != partners[bracket]:
                return None
        else:
            unmatched.append(bracket)
    return "".join(unmatched)


def may_go(lines: list[str], number: int) -> bool:
    """False for a line without which the rest does not compile."""
    before = lines[number - 1]
    starts_statement = re.search(r"(?:[;{}:]|^\s*(?:#.*|//.*)?)$", lines[number - 2].rstrip("\n"))
    if re.search(r"^\s*[})#]|[{,(]$", before) or unmatched_brackets(before) != "":
        return False
    if re.match(r"\s*(?:using|namespace|private|public|static_assert|typename)\b", before) or DECLARATION.match(before):
        return False
    return bool(starts_statement) == before.rstrip().endswith((";", ":"))


def word_at(line: str, place: int) -> str:
    """The word that holds this place of the line."""
    start = place - len(re.search(r"\w*$", line[:place])[0])
    return re.match(r"\w*", line[start:])[0]


def may_compile(lines: list[str], number: int, after: str) -> bool:
    """False for what the compiler would refuse anyway: the rules know nothing of templates, pointers
    and references, of numbers in names, of brackets, and of where a loop is. Binary operators stand
    between blanks here, as clang-format leaves them."""
    before = lines[number - 1]
    if before.lstrip().startswith(("//", "template")):
        return False
    if after.lstrip().startswith("/*"):
        return may_go(lines, number)
    if unmatched_brackets(after) != unmatched_brackets(before) or re.search(r",\s*return\b", after):
        return False
    if after.lstrip().startswith("#begin"):
        return False
    if after.startswith(before.rstrip()) and (jump := re.search(r"\b(break|continue);$", after)):
        loops = r"^( +)(?:for|while|do)\b" if jump[1] == "continue" else r"^( +)(?:for|while|do|switch)\b"
        outer = [re.match(loops, line) for line in lines[max(0, number - 20) : number]]
        indent = len(before) - len(before.lstrip())
        return any(match and len(match[1]) < indent for match in outer)
    place = len(os.path.commonprefix([before, after]))
    if before[place - 1 : place] in ("<", ">") and after[place : place + 1] == "=":
        place -= 1
    name = word_at(after, place)
    is_in_text = any(match.start() < place < match.end() for match in LITERAL.finditer(before))
    is_name = re.match(r"[A-Za-z_]", name) and name not in KEYWORDS and not is_in_text
    if is_name and not re.search(rf"\b{name}\b", "".join(lines)):
        return False
    left, changed, right = before[:place], before[place : place + 1], before[place + 1 :]
    if changed and changed in "<>*&+|":
        return left.endswith(" ") and right.startswith((" ", "="))
    digits = re.match(r"[0-9]+", before[place:])
    if digits and not after[place:].startswith(digits[0]):
        return re.search(r"\w$", left) is None and re.match(r"[0-9]+\w", before[place:]) is None
    return True


def places_of_help(lines: list[str]) -> list[int]:
    """Where in each line texts of the help begin, which do not get into the library."""
    places = []
    is_raw = is_summary = False
    for line in lines:
        starts_with_help = is_raw or is_summary and line.lstrip().startswith('"')
        names = re.search(r"\.(?:summary|details|example|fails|units|range)\b", line)
        if starts_with_help:
            places.append(0)
        else:
            places.append(names.start() if names else len(line))
        is_summary = starts_with_help and not is_raw or names is not None
        if is_raw:
            is_raw = ')"' not in line
        else:
            is_raw = re.search(r'R"\((?!.*\)")', line) is not None
    return places


def mutants_by_line(name: str) -> dict[int, list[dict]]:
    """The mutants of a file by the number of their line."""
    lines = pathlib.Path(name).read_text(encoding="utf-8").splitlines(keepends=True)
    with contextlib.redirect_stdout(io.StringIO()):
        found = mutator.mutants_regexp(lines, RULES, ignorePatterns=[])
    help_from = places_of_help(lines)
    by_line = collections.defaultdict(list)
    for number, after, *_ in found:
        unchanged = len(os.path.commonprefix([lines[number - 1], after]))
        if unchanged >= help_from[number - 1] or not may_compile(lines, number, after):
            continue
        mutant = {"file": name, "line": number, "before": lines[number - 1], "after": after}
        by_line[number].append(mutant)
    return by_line


def chance(seed: int, *place: object) -> float:
    """A number from 0 on and below 1 that depends on the seed and the place alone."""
    digest = hashlib.sha256(repr((seed, *place)).encode()).digest()
    return int.from_bytes(digest[:6]) / 2**48


def draw(names: list[str], seed: int, count: int) -> list[dict]:
    by_folder = collections.defaultdict(dict)
    for name in sorted(names):
        seen = collections.Counter()
        for of_line in mutants_by_line(name).values():
            text = of_line[0]["before"].strip()
            by_folder[str(pathlib.PurePosixPath(name).parent)][name, text, seen[text]] = of_line
            seen[text] += 1
    # Each line waits for a time with an exponential distribution, and those that wait least are drawn.
    drawn = []
    for lines in by_folder.values():
        mean = math.sqrt(len(lines))
        for place, of_line in lines.items():
            time = -mean * math.log(1 - chance(seed, *place))
            mutant = min(of_line, key=lambda one: chance(seed, *place, one["after"].strip()))
            drawn.append((time, mutant))
    drawn.sort(key=lambda one: one[0])
    return [mutant for _, mutant in drawn[:count]]


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--count", type=int, required=True)
    parser.add_argument("files", nargs="+", metavar="FILE")
    arguments = parser.parse_args()
    print(json.dumps(draw(arguments.files, arguments.seed, arguments.count)))


if __name__ == "__main__":
    main()
