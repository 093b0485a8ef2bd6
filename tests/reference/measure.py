"""Measures the functions with thousands of seeded arguments, and keeps the worst of each part of
a domain.

usage: measure.py PROGRAM FOLDER [--count N] [--seed S] [--only FUNCTION...]
       measure.py PROGRAM --call FUNCTION EXPRESSION...

PROGRAM is the operation_tests of a build. For each part of a function's domain that
make_reference.py names, and for each of the two classes, N arguments are drawn that fill the
mantissa. What the members return is compared with mpmath's values. FOLDER gets one file FUNCTION.txt
for each function, which the tests read beside the chosen arguments:

  region|NAME|COUNT                         how many arguments were drawn for each class
  worst|BITS|ARGUMENT ...|RESULT            that one of them with the largest error, and the true
                                            value, right in 64 bits more than the mantissa has

--call measures one call and prints the error in both classes: --call Pow 71/10 123.
"""

import argparse
import pathlib
import random
import subprocess

import make_reference as reference
import mpmath
from mpmath import mp, mpf

CLASSES = [256, 2048]
EXTRA_BITS = 64
# What differences of nearly equal numbers may lose in the ranges that are drawn from. The worst
# argument's value is computed again with many more.
GUARD_BITS = 300


def results(program: str, function: reference.Function, bits: int, calls: list) -> list:
    """What the member returns for each list of arguments; nothing for a failure."""
    lines = [f"{function.member}|{' '.join(map(reference.shown, call))}" for call in calls]
    output = subprocess.run(
        [program, "--no-skip", "--no-intro", "--test-case=results of arguments from the input"],
        input="\n".join([str(bits), *lines, ""]), stdout=subprocess.PIPE, encoding="ascii", check=True).stdout
    found = [line.split()[1:] for line in output.splitlines() if line.startswith("result ")]
    if len(found) != len(calls):
        raise RuntimeError(f"{len(found)} results for {len(calls)} calls of {function.name}")
    return [number(*fields) if fields[0] != "fails" else None for fields in found]


def number(sign: str, exponent: str, mantissa: str):
    """A number from the words of its parts, of which the exponent is in two's complement."""
    power = int(exponent, 16)
    if power >> (4 * len(exponent) - 1):
        power -= 1 << (4 * len(exponent))
    magnitude = mpmath.ldexp(mpf(int(mantissa, 16)), power)
    return -magnitude if sign == "-" else magnitude


def units_off(result, truth, bits: int):
    """The distance in units of the last place that the mantissa has at the true value."""
    if result is None or mpmath.isnan(result) or (result == 0) != (truth == 0):
        return mp.inf
    if truth == 0:
        return mpf(0)
    return abs(result - truth) * mpmath.ldexp(mpf(1), bits - mpmath.mag(truth))


def worst_of(program, function, region, bits, count, seed):
    """The worst arguments of a class, and their error."""
    rng = random.Random(f"{seed}/{function.name}/{region.name}/{bits}")
    calls = [region.draw(rng, bits) for _ in range(count)]
    worst, largest = None, mpf(-1)
    for call, result in zip(calls, results(program, function, bits, calls), strict=True):
        truth = reference.rounded_result(function, call, bits + EXTRA_BITS, GUARD_BITS)
        units = units_off(result, truth, bits)
        if units > largest:
            worst, largest = call, units
    return worst, largest


def lines_of(program, function, count, seed):
    for region in function.regions:
        if region.draw is None:
            continue
        yield f"region|{region.name}|{count}"
        for bits in CLASSES[1:] if region.only2048 else CLASSES:
            worst, largest = worst_of(program, function, region, bits, count, seed)
            print(f"{function.name}, {region.name}, {bits} bits: {mpmath.nstr(largest, 5)}"
                  f" at {', '.join(mpmath.nstr(one, 8) for one in worst)}", flush=True)
            truth = reference.true_result(function, worst, bits + EXTRA_BITS)
            yield "|".join(["worst", str(bits), " ".join(map(reference.shown, worst)),
                            reference.shown(truth)])


def measure_call(program: str, name: str, expressions: list) -> None:
    function = next(one for one in reference.FUNCTIONS if one.name == name)
    for bits in CLASSES:
        call = [reference.evaluated(one, bits) for one in expressions]
        truth = reference.true_result(function, call, bits + EXTRA_BITS)
        units = units_off(results(program, function, bits, [call])[0], truth, bits)
        print(f"{bits} bits: {mpmath.nstr(units, 5)} units in the last place")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("folder", type=pathlib.Path, nargs="?")
    parser.add_argument("--count", type=int, default=1000)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--only", nargs="+", metavar="FUNCTION")
    parser.add_argument("--call", nargs="+", metavar="WORD")
    options = parser.parse_args()
    if (options.folder is None) == (options.call is None):
        parser.error("either a folder or --call")
    reference.use_full_precision()
    if options.call:
        measure_call(options.program, options.call[0], options.call[1:])
        return
    for function in reference.FUNCTIONS:
        chosen = options.only is None or function.name in options.only
        if chosen and any(region.draw for region in function.regions):
            lines = list(lines_of(options.program, function, options.count, options.seed))
            reference.write_lines(options.folder, function, lines)


if __name__ == "__main__":
    main()
