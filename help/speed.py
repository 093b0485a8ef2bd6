"""What `./benchmark --json docs/speed.json` measured: for the help as HTML, a chart and a table; and for the
README the same chart as a picture.

usage: speed.py [--check] DOCS_FOLDER

Draws speed.svg from speed.json, both in that folder; with --check it writes nothing, and fails when the picture
is another one.
"""

import argparse
import html
import json
import math
import pathlib
import re
import sys

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


def ratios_to_plain(results: list[dict]) -> dict[str, dict[int, float]]:
    """How many times as fast as ttmath without the faster kernels, for each operation that was measured
    with both."""
    calls = {result["operation"] for result in results if result["group"] in CALLS}
    plain, faster = own_times(results, "stock"), own_times(results, "library")
    return {operation: {bits: found[bits] / faster[operation][bits] for bits in CLASSES
                        if bits in found and bits in faster[operation]}
            for operation, found in plain.items() if operation in faster and operation not in calls}


def decades_of(ratios: dict[str, dict[int, float]]) -> int:
    """The powers of ten of the axis that is as long as the largest ratio needs."""
    return math.ceil(math.log10(max(max(found.values()) for found in ratios.values())))


def chart(results: list[dict]) -> str:
    """The ratios in HTML; nothing when there are none. It is made of text and boxes, so it takes on the
    colours and the width of the page."""
    ratios = ratios_to_plain(results)
    if not ratios:
        return ""
    decades = decades_of(ratios)
    ticks = "".join(f'<span style="left:{place / decades * 100:.1f}%">{10 ** place:,}</span>'
                    for place in range(decades + 1))
    legend = "".join(f'<span class="bar bits{bits}"><span></span>{name}</span>'
                     for bits, name in CLASSES.items())
    rows = "".join(
        f"<tr><th>{html.escape(operation)}</th><td>"
        + "".join(bar(bits, ratio, decades) for bits, ratio in found.items()) + "</td></tr>\n"
        for operation, found in ratios.items())
    return ('<figure class="chart"><figcaption>How many times as fast as plain ttmath each operation '
            "is. Each step of the axis is ten times the one before. "
            f'<span class="legend">{legend}</span></figcaption>\n'
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


# The picture, in the units of an SVG: a line of text, a bar, and what the names and the figures take.
ROW, BAR, NAMES, FIGURES, WIDTH, MARGIN = 34, 11, 150, 60, 800, 12


def colours() -> str:
    """The rules for the page's own colours, also for a dark page."""
    style = pathlib.Path(__file__).with_name("page").joinpath("style.css").read_text(encoding="utf-8")
    light: dict[str, str] = {}
    dark: dict[str, str] = {}
    for name, colour in re.findall(r"--(paper|line|ink|quiet|small|large): (#\w+);", style):
        (dark if name in light else light).setdefault(name, colour)

    def rules(of: dict[str, str]) -> str:
        return (f".paper {{ fill: {of['paper']} }} text {{ fill: {of['ink']} }} "
                f".axis text {{ fill: {of['quiet']} }} line {{ stroke: {of['line']} }} "
                f".bits256 {{ fill: {of['small']} }} .bits2048 {{ fill: {of['large']} }}")

    return f"{rules(light)}\n@media (prefers-color-scheme: dark) {{ {rules(dark)} }}"


def picture(results: list[dict]) -> str:
    """The chart as an SVG, in the colours of a light or a dark page."""
    ratios = ratios_to_plain(results)
    decades = decades_of(ratios)
    top = 2 * ROW + MARGIN
    height = top + ROW * len(ratios) + MARGIN
    length = WIDTH - NAMES - FIGURES - 2 * MARGIN
    parts = [f'<rect class="paper" width="{WIDTH}" height="{height}" rx="8"/>']
    for number, (bits, name) in enumerate(CLASSES.items()):
        x = NAMES + MARGIN + 180 * number
        parts.append(f'<rect class="bits{bits}" x="{x}" y="{MARGIN + 3}" width="22" height="{BAR}"/>'
                     f'<text x="{x + 30}" y="{MARGIN + 13}">{name}</text>')
    parts.append('<g class="axis">')
    for place in range(decades + 1):
        x = NAMES + MARGIN + round(length * place / decades)
        parts.append(f'<line x1="{x}" x2="{x}" y1="{top - 6}" y2="{height - MARGIN}"/>'
                     f'<text x="{x}" y="{top - 14}" text-anchor="middle">{10 ** place:,}</text>')
    parts.append("</g>")
    for row, (operation, found) in enumerate(ratios.items()):
        y = top + row * ROW
        parts.append(f'<text x="{NAMES + MARGIN - 10}" y="{y + 19}" text-anchor="end">'
                     f"{html.escape(operation)}</text>")
        for number, (bits, ratio) in enumerate(found.items()):
            end = max(0.0, math.log10(ratio) / decades) * length
            bar_top = y + 3 + number * (BAR + 2)
            parts.append(
                f'<rect class="bits{bits}" x="{NAMES + MARGIN}" y="{bar_top}" width="{end:.1f}" '
                f'height="{BAR}"/><text class="figure" x="{NAMES + MARGIN + end + 5:.1f}" '
                f'y="{bar_top + 10}">{ratio:.1f}</text>')
    label = "For each operation, how many times as fast as plain ttmath it is"
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" role="img" '
            f'aria-label="{label}">\n<style>\ntext {{ font: 14px sans-serif }} '
            f".figure {{ font-size: 12px }}\n{colours()}\n</style>\n" + "\n".join(parts) + "\n</svg>\n")


def main() -> None:
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("--check", action="store_true")
    parser.add_argument("folder", type=pathlib.Path)
    given = parser.parse_args()
    results = json.loads((given.folder / "speed.json").read_text(encoding="utf-8"))["results"]
    drawn = picture(results)
    path = given.folder / "speed.svg"
    if not given.check:
        path.write_text(drawn, encoding="utf-8")
    elif path.read_text(encoding="utf-8") != drawn:
        sys.exit(f"{path} does not show what was measured last; run help/speed.py {given.folder}")


if __name__ == "__main__":
    main()
