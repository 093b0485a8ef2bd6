#!/usr/bin/env python3
"""Measures the contenders of the benchmark side by side and reports medians, spreads and ratios.

Every contender is a process that times what it is asked for. For each operation they are asked in
turn, round after round, so that whatever else the machine does falls upon all of them alike.
"""
import argparse
import json
import platform
import statistics
import subprocess
import sys
from dataclasses import dataclass, field
from pathlib import Path

# The rows that measure what the host does for an operation; what comes after the first is the plug-in's
# part of it.
HOST_ROWS = {
    "object": ("host: object", "host: destructor"),
    "new text": ("host: new text",),
    "known text": ("host: known text",),
    "nothing": (),
}
PRECISIONS = (2048, 256)
# What the names of 64-bit code end with; a table has code of one word size only.
WIDE = ", 64 bits"
WIDTHS = ("", WIDE)
# The contenders that are measured against stock of the same word size.
RATIOS = ("library", "SSE2", "plug-in")
# The far marks: how far each row is from them is told.
FAR = "mpfr" + WIDE
FAR_PRODUCT = "mpn_mul_n" + WIDE
# A contender of another checkout has the name of ours and this behind it.
BEFORE = " before"
# What a row may lose in speed: what it has is measured no better than that.
LEAST_SPEED = 0.97
# Besides the rows that do nothing but call.
CHEAPEST_OF_THEIR_SHAPE = ("add", "multiply by integer", "remainder", "compare", "to text", "from text")


class Contender:
    """A process that measures, and what it offers: operations as (bits, name)."""

    def __init__(self, name, command):
        self.name = name
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.offers = set()
        for line in iter(self._line, ""):
            bits, operation = line.split(" ", 1)
            self.offers.add((int(bits), operation))
        if not self.offers:
            raise SystemExit(f"the contender {name} does not start: {' '.join(command)}")

    def _line(self):
        return self.process.stdout.readline().strip()

    def time(self, bits, operation, count):
        """The nanoseconds that `count` runs took."""
        self.process.stdin.write(f"{count} {bits} {operation}\n")
        self.process.stdin.flush()
        answer = self._line()
        if not answer:
            raise SystemExit(f"the contender {self.name} ended at {operation}, {bits} bits")
        return int(answer)

    def count_for(self, bits, operation, nanoseconds):
        """How many runs take about that long."""
        count = 1
        while (taken := self.time(bits, operation, count)) < nanoseconds:
            count *= max(2, min(10, nanoseconds // max(taken, 1)))
        return count

    def close(self):
        self.process.stdin.close()
        self.process.wait()


@dataclass
class Measurement:
    """Nanoseconds of one run of an operation, a sample for each round."""

    samples: list = field(default_factory=list)

    @property
    def median(self):
        return statistics.median(self.samples)

    @property
    def spread(self):
        """Half of the range in which the middle half of the samples lies, in units of the median."""
        if len(self.samples) < 2:
            return 0.0
        low, _, high = statistics.quantiles(self.samples, n=4, method="inclusive")
        return (high - low) / 2 / self.median


class Results:
    """Measurements by precision, operation and contender."""

    def __init__(self, operations):
        self.groups = operations
        self._all = {}
        self._hosts = {}

    def sample(self, bits, operation, contender, nanoseconds):
        key = (bits, operation, contender)
        self._all.setdefault(key, Measurement()).samples.append(nanoseconds)

    def sample_host(self, bits, operation, contender, nanoseconds):
        key = (bits, operation, contender)
        self._hosts.setdefault(key, Measurement()).samples.append(nanoseconds)

    def get(self, bits, operation, contender):
        return self._all.get((bits, operation, contender))

    def time(self, bits, operation, contender):
        """The median, or None. The host's part of a call of the plug-in is taken off."""
        measured = self.get(bits, operation, contender)
        if measured is None:
            return None
        return measured.median - self.host_part(bits, operation, contender)

    def host_part(self, bits, operation, contender):
        """What the host spends on an object or a text, without what the plug-in does in between."""
        measured = self._hosts.get((bits, operation, contender))
        return measured.median if measured else 0.0

    def ratio(self, bits, operation, contender, base):
        """How many times as fast as `base` the contender is, or None."""
        own, other = (self.time(bits, operation, name) for name in (contender, base))
        return other / own if own and other and own > 0 else None

    def as_json(self):
        return [
            {"bits": bits, "operation": operation, "contender": contender,
             "group": self.groups[operation]["group"],
             "median_ns": round(measured.median, 1), "spread": round(measured.spread, 3),
             "samples": len(measured.samples),
             "host_part_ns": round(self.host_part(bits, operation, contender), 1)}
            for (bits, operation, contender), measured in self._all.items()
        ]


def measure(contenders, operations, rounds, nanoseconds):
    """Measures every operation at both precisions with every contender that offers it.

    What a host spends on objects and texts changes with what else it has in memory, so it is measured
    in the same round as the operation that needs them."""
    results = Results(operations)
    steps = [(bits, name) for bits in PRECISIONS for name in operations]
    for step, (bits, name) in enumerate(steps):
        progress(f"[{step + 1}/{len(steps)}] {name}, {bits} bits")

        def count_for(contender, row, bits=bits):
            return contender.count_for(bits, row, nanoseconds) if (bits, row) in contender.offers else 0

        host_rows = HOST_ROWS[operations[name]["host"]]
        taking_part = [(contender, count) for contender in contenders if (count := count_for(contender, name))]
        host_counts = {
            contender: [count_for(contender, row) for row in host_rows]
            for contender, _ in taking_part
            if host_rows and all((bits, row) in contender.offers for row in host_rows)
        }
        for _ in range(rounds):
            for contender, count in taking_part:
                taken = contender.time(bits, name, count)
                results.sample(bits, name, contender.name, taken / count)
                if contender in host_counts:
                    whole, *own = (
                        contender.time(bits, row, count) / count
                        for row, count in zip(host_rows, host_counts[contender]))
                    results.sample_host(bits, name, contender.name, whole - sum(own))
    progress("")
    return results


def progress(text):
    """One line on the terminal that is written over by the next."""
    if sys.stderr.isatty():
        print(f"\r\033[K{text}", end="", file=sys.stderr, flush=True)


def shown(nanoseconds):
    """Microseconds with three digits."""
    if nanoseconds is None:
        return "-"
    value = nanoseconds / 1000
    decimals = max(0, 2 - (len(str(int(value))) - 1)) if value >= 1 else 3
    return f"{value:,.{decimals}f}"


def table(results, bits, names):
    """The lines of one precision: microseconds of each contender, and the ratio to stock. All names
    are of one word size."""
    width = WIDE if names[0].removesuffix(BEFORE).endswith(WIDE) else ""
    stock = "stock" + width
    ratios = [name + width for name in RATIOS if name + width in names and stock in names]
    header = ["microseconds", *(name.replace(WIDE, "") for name in names),
              *(f"stock/{name.removesuffix(width)}" for name in ratios)]
    rows = [header]
    for operation in results.groups:
        cells = [operation]
        for name in names:
            measured = results.get(bits, operation, name)
            spread = f" ±{measured.spread:.0%}" if measured else ""
            cells.append(shown(results.time(bits, operation, name)) + spread)
        for name in ratios:
            ratio = results.ratio(bits, operation, name, stock)
            cells.append(f"{ratio:.1f}" if ratio else "-")
        rows.append(cells)
    widths = [max(len(row[column]) for row in rows) for column in range(len(header))]
    yield f"{bits} bits" + (", computed by 64-bit code" if width else "")
    for row in rows:
        first, *rest = (cell.ljust(width) if column == 0 else cell.rjust(width)
                        for column, (cell, width) in enumerate(zip(row, widths)))
        yield "  ".join([first, *rest])


def call_costs(results, contender, bare):
    """What the plug-in adds to the bare operation, for each shape of call."""
    for bits in PRECISIONS:
        stock = "stock" + (WIDE if contender.endswith(WIDE) else "")
        allowed = (results.time(2048, "multiply", stock) or 0) * 0.05
        for operation, row in results.groups.items():
            if row["group"] != "call" and operation not in CHEAPEST_OF_THEIR_SHAPE:
                continue
            whole, part = (results.time(bits, operation, name) for name in (contender, bare))
            if whole is not None and part is not None:
                host = results.host_part(bits, operation, contender)
                yield (f"{contender}, call of {operation}, {bits} bits: {whole - part:.0f} ns"
                       f" (the host's part, {host:.0f} ns, and the arithmetic, {part:.0f} ns,"
                       f" taken off; 5 % of a stock 2048-bit multiply is {allowed:.0f} ns)")


def summary(results, contender):
    """Smallest and median ratio to stock for each precision and group."""
    stock = "stock" + (WIDE if contender.endswith(WIDE) else "")
    for bits in PRECISIONS:
        for group, label in (("basic", "basic operations"), ("function", "functions"),
                             ("text", "text")):
            ratios = {
                operation: ratio for operation, row in results.groups.items()
                if row["group"] == group
                and (ratio := results.ratio(bits, operation, contender, stock))
            }
            if ratios:
                slowest = min(ratios, key=ratios.get)
                yield (f"{contender}, {bits} bits, {label}: {ratios[slowest]:.1f} times stock"
                       f" at least ({slowest}), median {statistics.median(ratios.values()):.1f}")


def beside_far_marks(results, contender):
    """How each row compares with what other libraries need for it, the slowest first."""
    for bits in PRECISIONS:
        ratios = {
            operation: ratio for operation, row in results.groups.items() if row["group"] != "call"
            and (ratio := results.ratio(bits, operation, contender, FAR))
        }
        if ratios:
            rows = ", ".join(f"{name} {ratio:.2f}" for name, ratio in sorted(ratios.items(), key=lambda row: row[1]))
            yield f"{contender}, {bits} bits: times the speed of MPFR: {rows}"
        if product := results.ratio(bits, "multiply", contender, FAR_PRODUCT):
            yield f"{contender}, {bits} bits: multiply has {product:.2f} times the speed of mpn_mul_n"


def speeds(results, names):
    """For each contender and its like from another checkout: how many times as fast as that it is,
    by precision and operation."""
    for name in names:
        if name + BEFORE in names:
            yield name, {
                (bits, operation): ratio for bits in PRECISIONS for operation in results.groups
                if (ratio := results.ratio(bits, operation, name, name + BEFORE))
            }


def report_speeds(results, names):
    """Prints what has changed since another checkout. Returns whether nothing has become slower."""
    kept = True
    for name, ratios in speeds(results, names):
        slower = {row: ratio for row, ratio in ratios.items() if ratio < LEAST_SPEED}
        kept = kept and not slower
        print(f"{name}: {statistics.median(ratios.values()):.2f} times the speed before at the median"
              f" of {len(ratios)} rows, {min(ratios.values()):.2f} at least;"
              f" {len(slower)} rows below {LEAST_SPEED}")
        for (bits, operation), ratio in sorted(slower.items(), key=lambda item: item[1]):
            print(f"  {operation}, {bits} bits: {ratio:.2f}")
    return kept


def parse_arguments():
    parser = argparse.ArgumentParser(prog="./benchmark", description=__doc__.splitlines()[0])
    parser.add_argument("--contender", action="append", nargs="+", required=True,
                        metavar="WORD", help="a contender's name and command (repeatable)")
    parser.add_argument("--operations", type=Path, required=True,
                        help="the list of operations, as bench_operations prints it")
    parser.add_argument("--rounds", type=int, default=7, help="samples of each measurement")
    parser.add_argument("--batch", type=float, default=5, metavar="MS",
                        help="milliseconds that a sample lasts at least")
    parser.add_argument("--only", nargs="*", metavar="OPERATION", help="these operations alone")
    parser.add_argument("--json", type=Path, help="write every figure to this file")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    operations = json.loads(arguments.operations.read_text())
    if arguments.only:
        operations = {name: operations[name] for name in arguments.only}
    contenders = [Contender(name, command) for name, *command in arguments.contender]
    results = measure(contenders, operations, arguments.rounds, int(arguments.batch * 1e6))
    for contender in contenders:
        contender.close()

    names = [contender.name for contender in contenders]
    for width in WIDTHS:
        own = [name for name in names if name.removesuffix(BEFORE).endswith(WIDE) == bool(width)]
        for bits in PRECISIONS if own else ():
            print("\n".join(table(results, bits, own)), end="\n\n")
    if arguments.json:
        rows = ",\n".join(map(json.dumps, results.as_json()))
        arguments.json.write_text(
            f'{{"machine": {json.dumps(platform.machine())}, "results": [\n{rows}\n]}}\n')
    # A plug-in on the stock library is a call of the stock library.
    bare = "library" if any(name.startswith("library") for name in names) else "stock"
    closing = [line for width in WIDTHS for lines in (
        call_costs(results, "plug-in" + width, bare + width),
        *(summary(results, name + width) for name in reversed(RATIOS)),
    ) for line in lines]
    closing += [line for name in ("library", "SSE2")
                for line in beside_far_marks(results, name + WIDE)]
    print("\n".join(closing))
    if not report_speeds(results, names):
        sys.exit("something has become slower")


if __name__ == "__main__":
    main()
