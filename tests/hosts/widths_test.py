"""Checks that hosts of 64 bits are expected to show what hosts of 32 bits show, but for what follows from rules.

usage: widths_test.py GOLDEN_FOLDER

tests/golden/missing-functions-64.txt was written by running the program (matrix.py). Here it is derived a second
time, from missing-functions.txt and the rules below, for the ages that there are of both widths.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parents[1]))
import matrix  # noqa: E402
import output_check  # noqa: E402

# An Integer in a Variant is an Int64 there.
INTEGERS = ("IntegerValue", "DataFlags", "Modulate2")

# What the library asks only hosts of 32 bits for, where nothing changes without it on the ages of both widths:
# older hosts need it (the first three), or it takes another function's place (the last two).
AT_32_BITS_ONLY = {
    "REALBuildString",
    "REALConvertString",
    "REALSetStringEncoding",
    "REALGetPropValueInt",
    "REALSetPropValueInt",
}

# A host without a version counts as one of 2015.03, and not as the oldest, which lacks this member.
WITHOUT_VERSION = ["Number.NumberWithUInteger(4000000000) -> not reached"]

# The bytes of a text come from PluginGetStringData, and say themselves what encoding they are in: without
# REALGetStringEncoding no text is misread ...
BYTES, ENCODING = "PluginGetStringData", "REALGetStringEncoding"
IN_UTF16 = "Encodings.UTF16"
# ... and without PluginGetStringData each text that a member takes is an empty one, which makes 0: a literal, or the
# variable `huge`, which is too large a number otherwise.
# A number is formatted with a point then, instead of the mark that is given; `rest` is what SetStringValue found
# behind the number.
HUGE = "(huge)"
FORMATTED, MARK, REST = "x.GetStringValue(16, False, 15, 2, False, ", ",", "rest"


def shown_by(text: str) -> dict[str, str]:
    """What the program shows on a current host, without the two precisions, which show the same."""
    lines = text.partition("\nWithout ")[0].splitlines()[2:]
    pairs = (line.strip().partition(": ")[2].rpartition(" -> ") for line in lines if line)
    return {step: value for step, _, value in pairs}


def widened(line: str) -> str:
    """A line of a 32-bit host as a 64-bit host shows it."""
    is_integer = any(name in line for name in INTEGERS)
    return line.removesuffix("of type 2") + "of type 3" if is_integer and line.endswith("of type 2") else line


def without_bytes(shown: dict[str, str]) -> list[str]:
    """What is seen of texts that are all empty."""
    lines = []
    for step, value in shown.items():
        if step.startswith(FORMATTED):
            lines.append(f"{step} -> {value.replace(MARK, '.')}")
        elif step == REST:
            lines.append(f"{step} -> ''")
        elif HUGE in step or '"' in step and value.startswith("number "):
            lines.append(f"{step} -> number 0")
    return lines


def derived(rows: matrix.Rows, ages: set[str], shown: dict[str, str]) -> matrix.Rows:
    """The rows of 64-bit hosts, from those of 32-bit ones."""
    result = {}
    for (age, missing), lines in rows.items():
        if age not in ages or missing in AT_32_BITS_ONLY:
            continue
        lines = [widened(line) for line in lines]
        if missing == matrix.VERSION:
            lines = [line for line in lines if line not in WITHOUT_VERSION]
        elif missing == ENCODING:
            lines = [line for line in lines if IN_UTF16 not in line and not line.startswith("rest again")]
        elif missing == BYTES:
            known = {line.rpartition(" -> ")[0] for line in lines}
            lines += [line for line in without_bytes(shown) if line.rpartition(" -> ")[0] not in known]
        result[age, missing] = sorted(lines)
    return result


def main() -> None:
    folder = pathlib.Path(sys.argv[1])
    narrow, wide = ((folder / f"missing-functions{end}.txt").read_text("utf-8") for end in ("", "-64"))
    rows = matrix.parse(narrow)
    actual = {place: sorted(lines) for place, lines in matrix.parse(wide).items()}
    ages = {age for age, _ in actual}
    problems = [f"on {age} something changes at 32 bits without {missing}"
                for (age, missing), lines in rows.items()
                if age in ages and missing in AT_32_BITS_ONLY and lines]
    order = tuple(sorted(ages))
    texts = (matrix.render(table, {}, order).encode()
             for table in (derived(rows, ages, shown_by(narrow)), actual))
    problems += filter(None, [output_check.difference(*texts)])
    plain = ([widened(line) for line in narrow.partition("\nWithout ")[0].splitlines()],
             wide.partition("\nWithout ")[0].splitlines())
    if plain[0] != plain[1]:
        problems.append("a current host that lacks nothing shows something else")
    if problems:
        sys.exit("\n".join(problems))
    print(f"{len(actual)} hosts of 64 bits follow from those of 32 bits")


if __name__ == "__main__":
    main()
