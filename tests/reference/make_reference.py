"""Writes the reference values of the chosen arguments that the functions are measured by.

usage: make_reference.py FOLDER

Makes one file FUNCTION.txt for each function. The values are computed by mpmath (requirements.txt
names the version) and are right in all their 2336 bits, which are 703 decimal digits. The argument
of each value is what its expression gives after rounding to 240 bits, so that both number classes
hold it exactly.

This file also says, for each part of a function's domain, how seeded arguments are drawn that fill
the mantissa. measure.py draws them by the thousand and keeps the worst.

The lines of a file:
  member|DECLARATION                        the member of the classes, '$' for the class's name
  region|NAME|BOUND                         a part of the domain, and the error that is never exceeded
                                            there, in units in the last place, if there is a reason
                                            for such a bound; otherwise nothing
  value|EXPRESSION|ARGUMENT ...|RESULT      numbers as [-]0xINTEGERp[-]0xPOWER: INTEGER * 2^POWER
"""

import argparse
import pathlib
from dataclasses import dataclass, field
from typing import Callable

import draws
import mpmath
from mpmath import mp, mpf

RESULT_BITS = 2336
ARGUMENT_BITS = 240
# What differences of nearly equal numbers may lose and the result still have all its bits. Each
# value is computed with both and must come out the same.
GUARD_BITS = [3000, 5000]


@dataclass
class Region:
    """A part of a function's domain."""

    name: str
    arguments: list  # of expressions, or of tuples of them
    draw: Callable | None = None  # (random generator, bits of the mantissa) -> tuple of arguments
    bound: str = ""  # in units in the last place
    only2048: bool = False  # whether the results are beyond the smaller class's range


@dataclass
class Function:
    name: str
    member: str
    compute: object
    regions: list = field(default_factory=list)


# ---------------------------------------------------------------------------------- arguments

NAMES = {"pi": lambda: +mp.pi, "e": lambda: +mp.e, "sqrt": lambda: mp.sqrt}


def evaluated(expression: str, bits: int = ARGUMENT_BITS):
    """The value of an expression of integers, + - * / **, pi, e and sqrt, rounded to so many bits."""
    scope = {name: make() for name, make in NAMES.items()}
    value = mpmath.mpmathify(eval(rational(expression), {"__builtins__": {}, "F": exact}, scope))
    with mp.workprec(bits):
        return +value


def exact(integer: int):
    return mpf(integer)


def rational(expression: str) -> str:
    """The expression with its integers made mpmath's, so that / does not become a float."""
    pieces, digits = [], ""
    for character in expression + " ":
        if character.isdigit():
            digits += character
        else:
            if digits:
                pieces.append(f"F({digits})")
                digits = ""
            pieces.append(character)
    return "".join(pieces).strip()


def both_signs(expressions):
    return [signed for one in expressions for signed in (one, f"-({one})")]


# From 1/8 to 8.
COMMON = ["1/8", "1/3", "1/2", "2/3", "3/4", "9/10", "1", "10/9", "sqrt(2)", "7/4", "2", "e", "3",
          "pi+1/10", "5", "7", "8"]
# Inside (0, 1).
FRACTIONS = ["1/10", "1/7", "1/4", "1/3", "2/5", "1/2", "3/5", "2/3", "sqrt(2)/2", "3/4", "4/5",
             "9/10", "19/20"]
ABOVE_ONE = ["20/19", "10/9", "5/4", "sqrt(2)", "3/2", "2", "e", "3", "pi", "5", "7", "10", "100"]
SMALL = ["2**-20", "1/3*2**-30", "2**-40", "5/7*2**-60", "2**-80/3"]
TINY = ["2**-130", "1/3*2**-200", "2**-500", "5/7*2**-1500", "2**-4000"]
BELOW_ONE = ["1-2**-20", "1-2**-60", "1-2**-120", "1-2**-200"]
ABOVE_ONE_BARELY = ["1+2**-20", "1+2**-60", "1+2**-120", "1+2**-200"]
HUNDREDS = ["100", "1000/3", "10**6", "10**12/7", "2**60"]
BESIDE_PI = ["pi+2**-60", "pi-2**-90", "2*pi+2**-60"]
BESIDE_HALF_PI = ["pi/2+2**-60", "pi/2-2**-90", "-pi/2+2**-60"]
LARGE = ["2**20/3", "2**40", "10**20", "2**100/7"]
HUGE = ["2**300", "10**300/7", "2**1000", "2**5000/3"]
# Exponents of their own kind; but for the first only the larger class has them.
ASTRONOMIC = ["2**(2**50)", "2**(2**100)", "2**(2**300)/3", "2**(2**505)"]
INFINITESIMAL = ["2**-(2**50)", "2**-(2**100)", "2**-(2**300)/3", "2**-(2**505)"]


# ---------------------------------------------------------------------------------- functions

def degrees(d, m, s):
    minutes = (s + 60 * m) / 3600
    return d - minutes if d < 0 else d + minutes


def real_root(x, n):
    root = mp.exp(mp.log(abs(x)) / n)
    return -root if x < 0 else root


def remainder(a, b):
    """With the sign of a."""
    return mp.sign(a) * mp.fmod(abs(a), abs(b))


def shared(name: str) -> str:
    return f"{name}(value as $) as $"


ANGLES = both_signs(["1/3", "1", "30", "45", "60", "90", "100", "127/10", "180", "200", "360",
                     "400", "pi", "pi/2", "1000/7"]) + TINY + HUGE


def angle(name: str, compute, bound: str) -> Function:
    return Function(name, shared(name), compute, [
        Region("2^-5000 to 2^5000", ANGLES, draws.magnitude(-5000, 5000), bound)])


def long_angle(name: str, member: str, compute, bound: str) -> Function:
    triples = [(d, m, s) for d in ("0", "10", "-10", "1/3", "359") for m in ("0", "30", "59", "90")
               for s in ("0", "356/10")]
    return Function(name, f"{member}(d as $, m as $, s as $) as $", compute, [
        Region("d to 360, m and s to 100", triples, draws.long_angle, bound)])


def method(name: str) -> str:
    return f"{name}(other as $, round as boolean = true) as $"


PAIRS = [(a, b) for a in ("1/3", "-7", "10**20/7", "sqrt(2)", "2**-100/3", "2**1000/3")
         for b in ("3/7", "-pi", "1+2**-200", "2**200/9", "e*2**-50", "2**-900")]


def pairs_for_sum(adding: bool, far: bool):
    """The pairs whose sum is a sum, or a difference, of magnitudes that are 4 times apart or not."""
    chosen = []
    for a, b in PAIRS:
        x, y = evaluated(a), evaluated(b)
        ratio = max(abs(x / y), abs(y / x))
        if (ratio >= 4) == far:
            chosen.append((a, b if ((x < 0) == (y < 0)) == adding else f"-({b})"))
    return chosen


def sums(name: str, sign: int) -> Function:
    """Add, or Subtract with the sign -1. What counts is whether the magnitudes are added."""
    def signed(pairs):
        return pairs if sign > 0 else [(a, f"-({b})") for a, b in pairs]

    together, against = ("same", "opposite") if sign > 0 else ("opposite", "same")
    return Function(name, method(name), lambda a, b: a + sign * b, [
        Region(f"{together} signs", signed(pairs_for_sum(True, True) + pairs_for_sum(True, False)),
               draws.sum_of_magnitudes(sign), "0.5"),
        Region(f"{against} signs, one 4 times the other or more",
               signed(pairs_for_sum(False, True)), draws.difference_of_far(-sign), "1"),
        Region(f"{against} signs, less than 4 times",
               signed(pairs_for_sum(False, False) + [("1", "-1+2**-200")]),
               draws.difference_of_near(-sign)),
    ])


FUNCTIONS = [
    Function("Sin", shared("Sin"), mp.sin, [
        Region("below 1/8", SMALL + TINY + INFINITESIMAL, draws.below(-3)),
        Region("1/8 to 8, not within 1/16 of a zero", both_signs(COMMON),
               draws.away_from(draws.magnitude(-3, 3), zeros_per_pi=1)),
        Region("8 to 2^10, not within 1/16 of a zero", both_signs(["10", "100", "1000", "9/7*8"]),
               draws.away_from(draws.magnitude(3, 10), zeros_per_pi=1)),
        Region("2^10 to 2^100", LARGE, draws.magnitude(10, 100)),
        Region("2^-90 to 2^-60 from a zero below 8", BESIDE_PI, draws.beside_pi(["1", "2"])),
    ]),
    Function("Cos", shared("Cos"), mp.cos, [
        Region("below 1/8", SMALL + TINY + INFINITESIMAL, draws.below(-3)),
        Region("1/8 to 8, not within 1/16 of a zero", both_signs(COMMON),
               draws.away_from(draws.magnitude(-3, 3), zeros_per_pi=1, first="1/2")),
        Region("8 to 2^10, not within 1/16 of a zero", both_signs(["10", "100", "1000", "9/7*8"]),
               draws.away_from(draws.magnitude(3, 10), zeros_per_pi=1, first="1/2")),
        Region("2^10 to 2^100", LARGE, draws.magnitude(10, 100)),
        Region("2^-90 to 2^-60 from a zero below 8", BESIDE_HALF_PI,
               draws.beside_pi(["1/2", "3/2", "5/2"])),
    ]),
    Function("Tan", shared("Tan"), mp.tan, [
        Region("below 1/8", SMALL + TINY, draws.below(-3)),
        Region("1/8 to 8, not within 1/16 of a zero or pole", both_signs(COMMON),
               draws.away_from(draws.magnitude(-3, 3), zeros_per_pi=2)),
        Region("8 to 2^10, not within 1/16 of a zero or pole",
               both_signs(["10", "100", "1000", "9/7*8"]),
               draws.away_from(draws.magnitude(3, 10), zeros_per_pi=2)),
        Region("2^10 to 2^100", LARGE, draws.magnitude(10, 100)),
        Region("2^-90 to 2^-60 from a zero or pole below 8", BESIDE_HALF_PI,
               draws.beside_pi(["1/2", "1", "3/2", "2", "5/2"])),
    ]),
    Function("Cot", shared("Cot"), mp.cot, [
        Region("below 1/8", SMALL + TINY, draws.below(-3)),
        Region("1/8 to 8, not within 1/16 of a zero or pole", both_signs(COMMON),
               draws.away_from(draws.magnitude(-3, 3), zeros_per_pi=2)),
        Region("8 to 2^10, not within 1/16 of a zero or pole",
               both_signs(["10", "100", "1000", "9/7*8"]),
               draws.away_from(draws.magnitude(3, 10), zeros_per_pi=2)),
        Region("2^10 to 2^100", LARGE, draws.magnitude(10, 100)),
        Region("2^-90 to 2^-60 from a zero or pole below 8", BESIDE_PI,
               draws.beside_pi(["1/2", "1", "3/2", "2", "5/2"])),
    ]),
    Function("ASin", shared("ASin"), mp.asin, [
        Region("below 1/10", SMALL + TINY + INFINITESIMAL, draws.below(-4)),
        Region("1/10 to 19/20", both_signs(FRACTIONS), draws.uniform("1/10", "19/20")),
        Region("1, and 2^-200 to 1/20 below", both_signs(BELOW_ONE + ["1"]),
               draws.beside_one(-200, -5, side=-1, both=True)),
    ]),
    Function("ACos", shared("ACos"), mp.acos, [
        Region("-1 to 19/20", both_signs(FRACTIONS) + ["-1"] + SMALL + TINY,
               draws.between("-1", "19/20")),
        Region("2^-200 to 1/20 below 1", BELOW_ONE, draws.beside_one(-200, -5, side=-1)),
        Region("2^-200 to 2^-10 above -1", [f"-({one})" for one in BELOW_ONE],
               draws.negative(draws.beside_one(-200, -10, side=-1))),
    ]),
    Function("ATan", shared("ATan"), mp.atan, [
        Region("below 1/8", SMALL + TINY + INFINITESIMAL, draws.below(-3)),
        Region("1/8 to 8", both_signs(COMMON), draws.magnitude(-3, 3)),
        Region("above 8", both_signs(LARGE + HUGE + ASTRONOMIC), draws.above(3)),
    ]),
    Function("ACot", shared("ACot"), lambda x: mp.pi / 2 - mp.atan(x), [
        Region("below -8", [f"-({one})" for one in LARGE + HUGE], draws.negative(draws.above(3))),
        Region("-8 to 8", both_signs(COMMON) + SMALL + TINY, draws.between("-8", "8")),
        Region("8 to 2^100", LARGE, draws.positive(draws.magnitude(3, 100))),
    ]),
    Function("Sinh", shared("Sinh"), mp.sinh, [
        Region("2^-82 to 1/8", SMALL, draws.magnitude(-82, -3)),
        Region("1/8 to 8", both_signs(COMMON), draws.magnitude(-3, 3)),
        Region("8 to 2^10", both_signs(["100", "1000/3"]), draws.magnitude(3, 10)),
        Region("2^10 to 2^60", both_signs(["10**6", "10**12/7", "2**60"]), draws.magnitude(10, 60)),
        Region("2^64 to 2^500", ["10**100", "2**500/3"], draws.magnitude(64, 500), only2048=True),
    ]),
    Function("Cosh", shared("Cosh"), mp.cosh, [
        Region("below 1/8", SMALL + TINY, draws.below(-3)),
        Region("1/8 to 8", both_signs(COMMON + ["13/2"]), draws.magnitude(-3, 3)),
        Region("8 to 2^10", both_signs(["100", "1000/3"]), draws.magnitude(3, 10)),
        Region("2^10 to 2^60", both_signs(["10**6", "10**12/7", "2**60"]), draws.magnitude(10, 60)),
        Region("2^64 to 2^500", ["10**100", "2**500/3"], draws.magnitude(64, 500), only2048=True),
    ]),
    Function("Tanh", shared("Tanh"), mp.tanh, [
        Region("2^-82 to 1/8", SMALL, draws.magnitude(-82, -3)),
        Region("1/8 to 8", both_signs(COMMON), draws.magnitude(-3, 3)),
        Region("8 to 2^60", both_signs(["10"] + HUNDREDS), draws.magnitude(3, 60)),
    ]),
    Function("Coth", shared("Coth"), mp.coth, [
        Region("2^-82 to 1/8", SMALL, draws.magnitude(-82, -3)),
        Region("1/8 to 8", both_signs(COMMON), draws.magnitude(-3, 3)),
        Region("8 to 2^60", both_signs(["10"] + HUNDREDS), draws.magnitude(3, 60)),
    ]),
    Function("ASinh", shared("ASinh"), mp.asinh, [
        Region("-2^100 to -8", [f"-({one})" for one in LARGE],
               draws.negative(draws.magnitude(3, 100))),
        Region("-8 to -1/8", [f"-({one})" for one in COMMON], draws.negative(draws.magnitude(-3, 3))),
        Region("2^-82 to 1/8", SMALL, draws.magnitude(-82, -3)),
        Region("1/8 to 8", COMMON, draws.positive(draws.magnitude(-3, 3))),
        Region("above 8", LARGE + HUGE + ASTRONOMIC[:3], draws.positive(draws.above(3))),
    ]),
    Function("ACosh", shared("ACosh"), mp.acosh, [
        Region("2^-200 to 1/20 above 1", ABOVE_ONE_BARELY, draws.beside_one(-200, -5, side=1)),
        Region("20/19 to 100", ABOVE_ONE + ["1", "11/10", "6/5", "4", "6", "8", "50"],
               draws.uniform("20/19", "100", both=False)),
        Region("above 100", LARGE + HUGE + ASTRONOMIC[:3], draws.positive(draws.above(7))),
    ]),
    Function("ATanh", shared("ATanh"), mp.atanh, [
        Region("2^-82 to 1/10", SMALL, draws.magnitude(-82, -4)),
        Region("1/10 to 19/20", both_signs(FRACTIONS), draws.uniform("1/10", "19/20")),
        Region("2^-200 to 1/20 below 1", both_signs(BELOW_ONE),
               draws.beside_one(-200, -5, side=-1, both=True)),
    ]),
    Function("ACoth", shared("ACoth"), mp.acoth, [
        Region("2^-200 to 1/20 above 1", both_signs(ABOVE_ONE_BARELY),
               draws.beside_one(-200, -5, side=1, both=True)),
        Region("20/19 to 100", both_signs(ABOVE_ONE), draws.uniform("20/19", "100")),
        Region("100 to 2^100", LARGE, draws.magnitude(7, 100)),
    ]),
    Function("Exp", shared("Exp"), mp.exp, [
        Region("below 1/8", SMALL + TINY + INFINITESIMAL, draws.below(-3)),
        Region("1/8 to 8", both_signs(COMMON), draws.magnitude(-3, 3)),
        Region("8 to 2^10", both_signs(["100", "1000/3"]), draws.magnitude(3, 10)),
        Region("2^10 to 2^60", both_signs(["10**6", "10**12/7", "2**60"]), draws.magnitude(10, 60)),
        Region("2^64 to 2^510", both_signs(["10**100", "2**510/3"]), draws.magnitude(64, 510),
               only2048=True),
    ]),
    Function("Ln", shared("Ln"), mp.log, [
        Region("1/8 to 19/20 and 1 to 8", COMMON + FRACTIONS,
               draws.not_just_below_one(draws.positive(draws.magnitude(-3, 3)))),
        Region("2^-200 to 1/20 above 1", ABOVE_ONE_BARELY, draws.beside_one(-200, -5, side=1)),
        Region("2^-200 to 1/20 below 1", BELOW_ONE, draws.beside_one(-200, -5, side=-1)),
        Region("2^-5000 to 1/8 and 8 to 2^5000", LARGE + HUGE + SMALL + TINY,
               draws.positive(draws.either(draws.magnitude(-5000, -3), draws.magnitude(3, 5000)))),
        Region("ends of the range", ASTRONOMIC + INFINITESIMAL, draws.ends_of_range),
    ]),
    Function("Log", "Log(value as $, base as $) as $", lambda x, b: mp.log(x) / mp.log(b), [
        Region("value 2^-300 to 2^300, not 19/20 to 1; base to 2^100, not 1/2 to 2",
               [(x, b) for b in ("2", "10", "e", "1/3", "2**100")
                for x in ("1/10", "9/10", "2", "10", "1000/7", "2**300", "2**-99")],
               draws.logarithm),
        Region("value 2^-200 to 1/20 above 1, base 2 to 100", [(x, "10") for x in ABOVE_ONE_BARELY],
               draws.both(draws.beside_one(-200, -5, side=1), draws.uniform("2", "100", both=False))),
        Region("value 2^-200 to 1/20 below 1, base 2 to 100", [(x, "10") for x in BELOW_ONE],
               draws.both(draws.beside_one(-200, -5, side=-1),
                          draws.uniform("2", "100", both=False))),
    ]),
    Function("Root", "Root(value as $, index as $) as $", real_root, [
        Region("value 1/4 to 2^166, index 2 to 100",
               [(x, n) for n in ("2", "3", "5", "7", "100") for x in ("2", "10", "1/3", "10**50/7")]
               + [("-10", "3"), ("-2**100/7", "5"), ("10", "10**20")], draws.root(-2, 166)),
        Region("value 2^-5000 to 2^5000, index 2 to 100",
               [(x, n) for n in ("2", "3", "5", "7", "100") for x in ("2**-300", "2**5000/3")],
               draws.root(-5000, 5000)),
        Region("powers of integers that fill the mantissa or less",
               [("27", "3"), ("-27", "3"), ("10**50", "5"), ("7**60", "20"), ("1", "9")],
               draws.perfect_power),
    ]),
    Function("Sqrt", "Sqrt as $", mp.sqrt, [
        Region("1/10 to 8", COMMON + FRACTIONS, draws.positive(draws.magnitude(-3, 3))),
        Region("2^-5000 to 2^5000", LARGE + HUGE + SMALL + TINY,
               draws.positive(draws.magnitude(-5000, 5000))),
        Region("ends of the range", ASTRONOMIC + INFINITESIMAL, draws.ends_of_range),
        Region("squares of integers that fill the mantissa or less",
               ["4", "49", "10**20", "123456789**2", "7**60"], draws.square),
    ]),
    Function("Pow", "Pow(other as $) as $", mp.power, [
        Region("whole exponents to 200, base 2^-100 to 2^100",
               [(x, n) for n in ("2", "3", "10", "-1", "-7", "200")
                for x in ("3/7", "-10/3", "sqrt(2)", "2**100/3")] + [("71/10", "123")],
               draws.whole_power(-100, 100, 1, 200)),
        Region("whole exponents 200 to 10^6, base 1/1000 to 1000",
               [("10", "10**6"), ("-10/3", "777")], draws.whole_power(-9, 9, 200, 10**6)),
        Region("fractional exponents 1/8 to 8, base 1/4 to 2^100",
               [(x, y) for y in ("1/2", "1/3", "-7/2", "20/3", "pi")
                for x in ("1/3", "2", "10", "2**100/3")],
               draws.both(draws.positive(draws.magnitude(-2, 100)), draws.magnitude(-3, 3))),
        Region("fractional exponents 300 to 10^6, base 2 to 1000",
               [("10", "1000/3"), ("2", "10**5/3"), ("1000/3", "10**6/7")],
               draws.both(draws.uniform("2", "1000", both=False), draws.uniform("300", "10**6"))),
    ]),
    # The bounds: a division by 180 or 200 is off by less than 1 unit, a multiplication by at most
    # 1/2, pi by 1/3. An error that is not the last one can count twice, because the result may have
    # up to twice as many units as what was rounded.
    angle("DegToRad", lambda x: x * mp.pi / 180, "3"),
    angle("RadToDeg", lambda x: x * 180 / mp.pi, "3"),
    angle("GradToRad", lambda x: x * mp.pi / 200, "3"),
    angle("RadToGrad", lambda x: x * 200 / mp.pi, "3"),
    angle("DegToGrad", lambda x: x * 10 / 9, "2"),
    angle("GradToDeg", lambda x: x * 9 / 10, "2"),
    # Minutes and seconds add a multiplication, an addition, a division and one more addition.
    long_angle("DegToDeg", "DegToDeg", degrees, "5"),
    long_angle("DegToRad of minutes", "DegToRad", lambda *a: degrees(*a) * mp.pi / 180, "8"),
    long_angle("DegToGrad of minutes", "DegToGrad", lambda *a: degrees(*a) * 10 / 9, "8"),
    sums("Add", 1),
    sums("Subtract", -1),
    Function("Multiply", method("Multiply"), lambda a, b: a * b, [
        Region("2^-5000 to 2^5000", PAIRS + [("33/10", "11/10")], draws.pair(-5000, 5000), "0.5"),
    ]),
    # The product is cut off, not rounded.
    Function("Multiply by UInt32", "Multiply(value as UInt32) as $", lambda a, b: a * b, [
        Region("2^-5000 to 2^5000", [(a, b) for a, _ in PAIRS[::6] for b in
                                     ("1", "2", "3", "7", "10**9", "2**32-1")],
               draws.with_word(draws.magnitude(-5000, 5000)), "1"),
    ]),
    Function("Divide", method("Divide"), lambda a, b: a / b, [
        Region("2^-5000 to 2^5000", PAIRS, draws.pair(-5000, 5000), "1"),
    ]),
    Function("Modulate", "Modulate(other as $) as $", remainder, [
        Region("integers that the mantissa holds",
               [(a, b) for a in ("100", "-100", "10**60", "7") for b in ("3", "-3", "7", "100")],
               draws.integers, "0"),
        Region("quotient below 2^8",
               [(a, b) for a in ("100", "-100", "1000/7", "-sqrt(2)*100", "1/3", "7")
                for b in ("3", "-3", "7/8", "5/2", "100")] + [("2001/2", "73/10")],
               draws.division(0, 8)),
        Region("quotient 2^8 to 2^20", [("1234567/100", "73/10"), ("1000000/7", "pi")],
               draws.division(8, 20)),
        Region("quotient 2^20 to 2^100", [("10**20/7", "73/10"), ("2**100/7", "pi")],
               draws.division(20, 100)),
    ]),
    # The classes keep them as constants that are rounded to the nearest number.
    Function("Pi", "Pi as $", lambda: +mp.pi, [Region("constant", [()], bound="0.5")]),
    Function("HalfPi", "HalfPi as $", lambda: mp.pi / 2, [Region("constant", [()], bound="0.5")]),
    Function("TwoPi", "TwoPi as $", lambda: mp.pi * 2, [Region("constant", [()], bound="0.5")]),
    Function("E", "E as $", lambda: +mp.e, [Region("constant", [()], bound="0.5")]),
    Function("Ln2", "Ln2 as $", lambda: +mp.ln2, [Region("constant", [()], bound="0.5")]),
    Function("Ln10", "Ln10 as $", lambda: +mp.ln10, [Region("constant", [()], bound="0.5")]),
]


# ------------------------------------------------------------------------------------- output

def shown(value) -> str:
    """A number in exact binary, without trailing zero bits."""
    sign, mantissa, exponent, _ = value._mpf_
    if mantissa == 0:
        return "0"
    return f"{'-' if sign else ''}0x{int(mantissa):x}p{int(exponent):#x}"


def rounded_result(function: Function, arguments, bits: int, guard_bits: int):
    with mp.workprec(bits + guard_bits):
        result = mpmath.mpmathify(function.compute(*arguments))
    with mp.workprec(bits):
        return +result


def true_result(function: Function, arguments, bits: int = RESULT_BITS):
    """The function's value, right in so many bits."""
    result, again = (rounded_result(function, arguments, bits, guard) for guard in GUARD_BITS)
    if result != again:
        raise ArithmeticError(f"{function.name} of {arguments} needs more guard bits")
    return result


def use_full_precision() -> None:
    """Makes mpmath compute, outside of its own functions, with all the bits that are ever needed."""
    mp.prec = RESULT_BITS + max(GUARD_BITS)


def value_line(function: Function, expressions) -> str:
    expressions = expressions if isinstance(expressions, tuple) else (expressions,)
    arguments = [evaluated(expression) for expression in expressions]
    name = function.name.split()[0]
    return "|".join(["value", f"{name}({', '.join(expressions)})",
                     " ".join(map(shown, arguments)), shown(true_result(function, arguments))])


def lines_of(function: Function):
    yield f"member|{function.member}"
    for region in function.regions:
        yield f"region|{region.name}|{region.bound}"
        for expressions in region.arguments:
            yield value_line(function, expressions)


def write_lines(folder: pathlib.Path, function: Function, lines) -> None:
    path = folder / f"{function.name.replace(' ', '_')}.txt"
    path.write_text("".join(f"{line}\n" for line in lines), encoding="ascii")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", type=pathlib.Path)
    folder = parser.parse_args().folder
    use_full_precision()
    for function in FUNCTIONS:
        write_lines(folder, function, lines_of(function))


if __name__ == "__main__":
    main()
