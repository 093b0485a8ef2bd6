"""Computes what examples print a second time, with Python's integers and decimals and by other
formulas where there are any, and compares it with the expected output beside them.

usage: examples_check.py EXAMPLES_FOLDER
"""

import decimal
import math
import pathlib
import sys
from collections.abc import Iterator
from decimal import Decimal

SHADES = " .,:;=+*%#@"


def pieces(text: str, width: int, indent: int = 2) -> list[str]:
    return [" " * indent + text[i:i + width] for i in range(0, len(text), width)]


def pi(digits: int) -> Decimal:
    """By the arithmetic-geometric mean, cut after that many digits of the fraction."""
    with decimal.localcontext(prec=digits + 20):
        a, b, t, p = Decimal(1), 1 / Decimal(2).sqrt(), Decimal("0.25"), 1
        while a != b and p < digits:
            a, b, t, p = (a + b) / 2, (a * b).sqrt(), t - p * ((a - b) / 2) ** 2, 2 * p
        value = (a + b) ** 2 / (4 * t)
        return value.quantize(Decimal(1).scaleb(-digits), rounding=decimal.ROUND_DOWN)


def thousand_digits() -> Iterator[str]:
    yield "pi = 3."
    yield from pieces(str(pi(1000))[2:], 50, 5)


def interest(cents: int, basis_points: int) -> int:
    return (cents * basis_points * 2 + 10000) // 20000


def amount(cents: int) -> str:
    return f"{cents // 100:,}.{cents % 100:02}"


def compound_interest() -> Iterator[str]:
    balance = 100000
    for year in range(1, 31):
        earned = interest(balance, 375)
        balance += earned
        if year <= 3 or year % 10 == 0:
            yield f"  year {year}: interest {amount(earned)}, balance {amount(balance)}"
    balance, in_doubles = 100000, 100000.0
    for _ in range(2025):
        balance += interest(balance, 500)
        in_doubles += math.floor(in_doubles * 500 / 10000 + 0.5)
    yield f"  exactly: {amount(balance)}"
    yield f"  Double:  {amount(int(in_doubles))}"
    yield f"  {Decimal(1.15)}"


def steps_to_escape(cx: Decimal, cy: Decimal, most: int) -> int:
    x, y = cx, cy
    for steps in range(1, most + 1):
        if x * x + y * y > 4:
            return steps
        x, y = x * x - y * y + cx, 2 * x * y + cy
    return 0


def mandelbrot() -> Iterator[str]:
    with decimal.localcontext(prec=120):
        pixel = Decimal("2e-30") / 29
        table = [[steps_to_escape(pixel * column, 1 - 2 * row * pixel, 200)
                  for column in range(-14, 15)] for row in range(-5, 6)]
        for row in table:
            yield "".join(SHADES[steps % len(SHADES)] for steps in row)
        escaped = [steps for row in table for steps in row if steps > 0]
        yield f"Steps to escape: {min(escaped)} to {max(escaped)}"
        beside = steps_to_escape(Decimal("1e-70"), Decimal(1), 1000)
        yield f"A point 10^-70 beside it escapes after {beside} steps."


def last_exact_factorial(bits: int) -> int:
    n = 1
    while math.factorial(n + 1) % 2 ** max(0, math.factorial(n + 1).bit_length() - bits) == 0:
        n += 1
    return n


def factorial() -> Iterator[str]:
    yield from pieces(str(math.factorial(300)), 75)
    yield (f"Exact factorials: BigNumberVQZ up to {last_exact_factorial(256)}!, "
           f"BiggerNumberVQZ up to {last_exact_factorial(2048)}!")
    for n in (500, 1000, 5000):
        yield f"{n}! = {Decimal(math.factorial(n)):.40e}"


def base_conversion() -> Iterator[str]:
    with decimal.localcontext(prec=700):
        middle = int(2 ** 1918 * pi(650))
    prime = 2 ** 2048 - 2 ** 1984 - 1 + 2 ** 64 * (middle + 124476)
    yield from pieces(f"{prime:X}", 64)
    yield from pieces(str(prime), 64)


def newton() -> Iterator[str]:
    """The root by halving an interval, rounded to 610 places."""
    low, high = 2 * 10 ** 615, 3 * 10 ** 615
    while high - low > 1:
        x = (low + high) // 2
        below = x ** 3 - 2 * x * 10 ** 1230 < 5 * 10 ** 1845
        low, high = (x, high) if below else (low, x)
    with decimal.localcontext(prec=700):
        yield from pieces(str(round(Decimal(low).scaleb(-615), 610)), 76)


def main() -> None:
    sys.set_int_max_str_digits(0)
    folder = pathlib.Path(sys.argv[1])
    problems = []
    for compute in (thousand_digits, compound_interest, mandelbrot, factorial, base_conversion,
                    newton):
        remaining = iter((folder / f"{compute.__name__}.expected").read_text().splitlines())
        problems += [f"{compute.__name__} does not print: {line}"
                     for line in compute() if line not in remaining]
    sys.exit("\n".join(problems) or None)


if __name__ == "__main__":
    main()
