"""What `./benchmark --json docs/speed.json --svg docs/speed.svg` measured, as HTML."""

import html
import json
import pathlib

CONTENDER = "plug-in"
PRECISIONS = (256, 2048)


def microseconds(nanoseconds: float) -> str:
    """Three digits of it."""
    value = nanoseconds / 1000
    decimals = max(0, 3 - len(str(int(value)))) if value >= 1 else 3
    return f"{value:,.{decimals}f}"


def table(path: pathlib.Path) -> str:
    """A call of each operation in both classes, without what the host spends on the result's object."""
    times = {}
    for result in json.loads(path.read_text(encoding="utf-8"))["results"]:
        if result["contender"] == CONTENDER and result["group"] != "host":
            shown = microseconds(result["median_ns"] - result["host_part_ns"])
            times.setdefault(result["operation"], {})[result["bits"]] = shown
    rows = "".join(
        f"<tr><td>{html.escape(operation)}</td>"
        + "".join(f'<td class="figure">{found.get(bits, "")}</td>' for bits in PRECISIONS)
        + "</tr>\n"
        for operation, found in times.items())
    heads = "".join(f'<th class="figure">{bits} bits</th>' for bits in PRECISIONS)
    return ("<p>Microseconds for one call, on the machine that measured them; what carries over to "
            "others is how they relate.</p>\n"
            f"<table><thead><tr><th>Operation</th>{heads}</tr></thead>\n<tbody>{rows}</tbody></table>\n")


def chart(path: pathlib.Path) -> str:
    """The chart as a picture that has a name."""
    svg = path.read_text(encoding="utf-8")
    _, start, rest = svg.partition("<svg")
    name = "Each operation's speed as a multiple of stock ttmath's"
    return f'<figure>{start} role="img" aria-label="{name}"{rest}</figure>\n'


def measured(folder: pathlib.Path) -> str:
    """What there is of it: chart and table, or nothing."""
    parts = ((folder / "speed.svg", chart), (folder / "speed.json", table))
    return "".join(show(path) for path, show in parts if path.exists())
