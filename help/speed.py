"""What `./benchmark --json docs/speed.json` measured, as HTML: a chart and a table."""

import html
import json
import math
import pathlib

# The classes as the page calls them, by their bits; the chart shows them in this order.
CLASSES = {256: "BigNumberVQZ", 2048: "BiggerNumberVQZ"}

# Groups of operations that are about the calls of the host and not about arithmetic.
CALLS = ("call", "host")


def microseconds(nanoseconds: float) -> str:
    """Three digits of it."""
    value = nanoseconds / 1000
    decimals = max(0, 3 - len(str(int(value)))) if value >= 1 else 3
    return f"{value:,.{decimals}f}"


def own_times(results: list[dict], contender: str) -> dict[str, dict[int, float]]:
    """Nanoseconds of each operation and precision, without what the host spends on the result's
    object."""
    times: dict[str, dict[int, float]] = {}
    for result in results:
        if result["contender"] == contender and result["group"] != "host":
            time = result["median_ns"] - result["host_part_ns"]
            times.setdefault(result["operation"], {})[result["bits"]] = time
    return times


def table(results: list[dict]) -> str:
    """A call of each operation in both classes."""
    rows = "".join(
        f"<tr><td>{html.escape(operation)}</td>"
        + "".join(f'<td class="figure">{microseconds(found[bits]) if bits in found else ""}</td>'
                  for bits in CLASSES)
        + "</tr>\n"
        for operation, found in own_times(results, "plug-in").items())
    heads = "".join(f'<th class="figure">{name}</th>' for name in CLASSES.values())
    return ("<p>Microseconds for one call, on the machine that measured them. Another machine has "
            "other figures, but much the same proportions.</p>\n"
            '<div class="wide"><table><thead><tr><th>Operation</th>'
            f"{heads}</tr></thead>\n<tbody>{rows}</tbody></table></div>\n")


def bar(bits: int, ratio: float, longest: float) -> str:
    """A bar on a logarithmic axis that starts at 1; one that is no longer has its figure alone."""
    length = max(0.0, math.log10(ratio) / longest) * 100
    return (f'<div class="bar bits{bits}"><span style="width:{length:.1f}%"></span>'
            f"<b>{ratio:.1f}</b></div>")


def chart(results: list[dict]) -> str:
    """How many times as fast as ttmath without the faster kernels; nothing when either was not
    measured. It is made of text and boxes, so it takes on the colours and the width of the page."""
    calls = {result["operation"] for result in results if result["group"] in CALLS}
    plain, faster = own_times(results, "stock"), own_times(results, "library")
    ratios = {operation: {bits: found[bits] / faster[operation][bits] for bits in CLASSES
                          if bits in found and bits in faster[operation]}
              for operation, found in plain.items() if operation in faster and operation not in calls}
    if not ratios:
        return ""
    decades = math.ceil(math.log10(max(max(found.values()) for found in ratios.values())))
    ticks = "".join(f'<span style="left:{place / decades * 100:.1f}%">{10 ** place:,}</span>'
                    for place in range(decades + 1))
    legend = "".join(f'<span class="bar bits{bits}"><span></span>{name}</span>'
                     for bits, name in CLASSES.items())
    rows = "".join(
        f"<tr><th>{html.escape(operation)}</th><td>"
        + "".join(bar(bits, ratio, decades) for bits, ratio in found.items()) + "</td></tr>\n"
        for operation, found in ratios.items())
    return ('<figure class="chart"><figcaption>How many times as fast as plain ttmath each operation '
            f"is. Each step of the axis is ten times the one before. {legend}</figcaption>\n"
            f'<table style="--steps:{decades}"><thead><tr><th>Operation</th>'
            f'<td><div class="ticks">{ticks}</div></td></tr></thead>\n'
            f"<tbody>{rows}</tbody></table></figure>\n")


def measured(folder: pathlib.Path) -> str:
    """Chart and table, or nothing where nothing was measured."""
    path = folder / "speed.json"
    if not path.exists():
        return ""
    results = json.loads(path.read_text(encoding="utf-8"))["results"]
    return chart(results) + table(results)
