"""Values of the functions of the number classes, computed without them.

Numbers that have an end are fractions; the others are decimals of so many digits, computed by series and by
what Python's decimal module has.
"""

import decimal
import functools
from decimal import Decimal
from fractions import Fraction

DIGITS = 800
# What the steps on the way may lose.
GUARD = 40

decimal.setcontext(decimal.Context(prec=DIGITS + GUARD, rounding=decimal.ROUND_HALF_UP,
                                   Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN))
SMALLEST = Decimal(10) ** -(DIGITS + GUARD)


def number(value: int | str | Fraction | Decimal) -> Decimal:
    if isinstance(value, Fraction):
        return Decimal(value.numerator) / Decimal(value.denominator)
    return Decimal(value)


def atan_of_inverse(whole: int) -> Decimal:
    """The inverse tangent of 1 / whole, by its series."""
    power = Decimal(1) / whole
    total, term, k = power, power, 1
    while abs(term) > SMALLEST:
        power /= -whole * whole
        k += 2
        term = power / k
        total += term
    return total


@functools.cache
def pi() -> Decimal:
    """By Machin's formula."""
    return 4 * (4 * atan_of_inverse(5) - atan_of_inverse(239))


def e() -> Decimal:
    return Decimal(1).exp()


def sin_cos(x: Decimal) -> tuple[Decimal, Decimal]:
    """Both series at once."""
    sums = [Decimal(0), Decimal(0)]
    term, k = Decimal(1), 0
    while abs(term) > SMALLEST or k < 2:
        sums[k % 2] += term if k % 4 < 2 else -term
        k += 1
        term = term * x / k
    return sums[1], sums[0]


def sin(x: Decimal) -> Decimal:
    return sin_cos(x)[0]


def cos(x: Decimal) -> Decimal:
    return sin_cos(x)[1]


def tan(x: Decimal) -> Decimal:
    return sin(x) / cos(x)


def cot(x: Decimal) -> Decimal:
    return cos(x) / sin(x)


def atan(x: Decimal) -> Decimal:
    """By halving the angle until the series is short."""
    halvings = 0
    while abs(x) > Decimal("0.001"):
        x = x / (1 + (1 + x * x).sqrt())
        halvings += 1
    power, total, k = x, x, 1
    while abs(power) > SMALLEST:
        power *= -x * x
        k += 2
        total += power / k
    return total * 2 ** halvings


def asin(x: Decimal) -> Decimal:
    return atan(x / (1 - x * x).sqrt())


def acos(x: Decimal) -> Decimal:
    return pi() / 2 - asin(x)


def acot(x: Decimal) -> Decimal:
    return pi() / 2 - atan(x)


def sinh(x: Decimal) -> Decimal:
    return (x.exp() - (-x).exp()) / 2


def cosh(x: Decimal) -> Decimal:
    return (x.exp() + (-x).exp()) / 2


def tanh(x: Decimal) -> Decimal:
    return sinh(x) / cosh(x)


def coth(x: Decimal) -> Decimal:
    return cosh(x) / sinh(x)


def asinh(x: Decimal) -> Decimal:
    return (x + (x * x + 1).sqrt()).ln()


def acosh(x: Decimal) -> Decimal:
    return (x + (x * x - 1).sqrt()).ln()


def atanh(x: Decimal) -> Decimal:
    return ((1 + x) / (1 - x)).ln() / 2


def acoth(x: Decimal) -> Decimal:
    return ((x + 1) / (x - 1)).ln() / 2


def exact_text(value: int | str | Fraction) -> str:
    """A number that ends, with all its digits and without an exponent."""
    fraction = Fraction(value)
    text = format(number(fraction), "f")
    if Fraction(text) != fraction:
        raise ValueError(f"{fraction} does not end within {DIGITS} digits")
    return text.rstrip("0").rstrip(".") if "." in text else text


def rounded_text(value: Decimal, places: int) -> str:
    """So many digits after the point, the last one rounded, and no zeros at the end."""
    text = format(value.quantize(Decimal(10) ** -places), "f")
    return text.rstrip("0").rstrip(".") if "." in text else text
