"""Compares the tables that the library registers with the golden ones, for hosts of every age.

usage: golden_tables.py [--write] [--bits 32|64] FOLDER -- COMMAND...

COMMAND starts the stand-in host with the library. FOLDER/tables.txt is what --dump shows on a current
host, in full: the interface that programs rely on. FOLDER/ages.txt says what is different on hosts of
other ages. --write keeps what the library registers now instead of comparing it; what changed in the
files is then read line by line before it is committed. Hosts of 64 bits are of some of the ages only, and are
shown the same as those of 32 bits.
"""

import argparse
import difflib
import pathlib
import re
import sys

import host_ages
import output_check

TABLES, DIFFERENCES = "tables.txt", "ages.txt"
HEAD = f"""What the library registers on hosts of other ages, where that is not what {TABLES} shows for a current
one: "-" is left out, "+" takes its place.
"""
COUNT = re.compile(r"(.*): (\d+)")
ENTRY = re.compile(r"\d+\. (.*)")


def dump(command: list[str], age: str) -> str:
    """What the library registers on a host of that age."""
    result = output_check.run([*command, *host_ages.options(age), "--dump"])
    if result.returncode != 0:
        output_check.report([f"the tables on hosts {age} could not be shown"], result)
    return result.stdout.decode("utf-8")


def facts(text: str) -> list[str]:
    """The lines of a dump, each understandable without the ones around it: an entry in one line with its
    parts, headed by its class and table, and without its number. The counts of the tables are checked
    against their entries and left out."""
    lines: list[str] = []
    counts: dict[str, int] = {}
    owner = table = ""
    for line in text.splitlines():
        words = line.strip()
        depth = len(line) - len(line.lstrip())
        if not words:
            continue
        if depth == 0:
            owner, table = words, ""
            lines.append(words)
        elif depth == 2:
            count = COUNT.fullmatch(words)
            table = f"{owner}, {count[1]}" if count else ""
            if count:
                counts[table] = int(count[2])
            else:
                lines.append(f"{owner}: {words}")
        elif entry := ENTRY.fullmatch(words):
            lines.append(f"{table}: {entry[1]}")
        else:
            lines[-1] += f"; {words}"
    for name, count in counts.items():
        if sum(line.startswith(f"{name}: ") for line in lines) != count:
            sys.exit(f"the dump says {count} entries, and shows others: {name}")
    return lines


def differences(current: str, other: str) -> str:
    """What a host of another age is shown otherwise, a line for each fact."""
    shown = difflib.unified_diff(facts(current), facts(other), lineterm="", n=0)
    return "".join(f"  {line[0]} {line[1:]}\n" for line in list(shown)[2:] if not line.startswith("@@"))


def render(dumps: dict[str, str]) -> str:
    """The differences of all ages; those that are shown the same stand together."""
    groups: dict[str, list[str]] = {}
    for age, text in dumps.items():
        if age != host_ages.CURRENT:
            changed = differences(dumps[host_ages.CURRENT], text)
            groups.setdefault(changed, []).append(age)
    return HEAD + "".join(f"\nOn hosts {', '.join(ages)}\n\n" + (changed or "  nothing\n")
                          for changed, ages in groups.items())


def of_ages(text: str, ages: tuple[str, ...]) -> str:
    """The differences of the file for these ages alone."""
    head, *groups = text.split("\nOn hosts ")
    kept = head
    for group in groups:
        names, _, changed = group.partition("\n")
        if names := [age for age in names.split(", ") if age in ages]:
            kept += f"\nOn hosts {', '.join(names)}\n{changed}"
    return kept


def main() -> None:
    separator = sys.argv.index("--")
    command = sys.argv[separator + 1:]
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--bits", type=int, choices=(32, 64), default=32)
    parser.add_argument("folder", type=pathlib.Path)
    given = parser.parse_args(sys.argv[1:separator])
    ages = host_ages.ages(given.bits)
    dumps = {age: dump(command, age) for age in ages}
    problems = []
    for name, text in ((TABLES, dumps[host_ages.CURRENT]), (DIFFERENCES, render(dumps))):
        file = given.folder / name
        if given.write:
            file.write_bytes(text.encode())
            continue
        expected = file.read_text("utf-8")
        if name == DIFFERENCES:
            expected = of_ages(expected, ages)
        if difference := output_check.difference(expected.encode(), text.encode()):
            problems.append(f"{file.name} is different; ./test --golden writes it anew\n{difference}")
    if problems:
        sys.exit("\n\n".join(problems))


if __name__ == "__main__":
    main()
