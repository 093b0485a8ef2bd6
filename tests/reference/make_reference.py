"""Writes the reference values that the functions of the number classes are measured by.

usage: make_reference.py FOLDER

Makes one file FUNCTION.txt for each function. The values are computed by mpmath (requirements.txt
names the version) and are right in all their 2336 bits, which are 703 decimal digits. The argument
of each value is what its expression gives after rounding to 240 bits, so that both number classes
hold it exactly.

The lines of a file:
  member|DECLARATION                        the member of the classes, '$' for the class's name
  region|NAME|LIMIT256|LIMIT2048            a part of the domain, and the largest error allowed in it
                                            in each precision: units in the last place, or 2^POWER
  value|EXPRESSION|ARGUMENT ...|RESULT      numbers as [-]0xINTEGERp[-]0xPOWER: INTEGER * 2^POWER
"""

import argparse
import pathlib
from dataclasses import dataclass, field

import mpmath
from mpmath import mp, mpf

RESULT_BITS = 2336
ARGUMENT_BITS = 240
# What differences of nearly equal numbers may lose and the result still have all its bits. Each
# value is computed with both and must come out the same.
GUARD_BITS = [3000, 5000]


@dataclass
class Region:
    """A part of a function's domain. Limits are in units in the last place."""

    name: str
    limit256: str
    limit2048: str
    arguments: list  # of expressions, or of tuples of them


@dataclass
class Function:
    name: str
    member: str
    compute: object
    regions: list = field(default_factory=list)


# ---------------------------------------------------------------------------------- arguments

NAMES = {"pi": lambda: +mp.pi, "e": lambda: +mp.e, "sqrt": lambda: mp.sqrt}


def evaluated(expression: str):
    """The value of an expression of integers, + - * / **, pi, e and sqrt, rounded to 240 bits."""
    scope = {name: make() for name, make in NAMES.items()}
    value = mpmath.mpmathify(eval(rational(expression), {"__builtins__": {}, "F": exact}, scope))
    with mp.workprec(ARGUMENT_BITS):
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


def angle(name: str, compute) -> Function:
    numbers = both_signs(["1/3", "1", "30", "45", "60", "90", "100", "180", "200", "360", "400",
                          "pi", "pi/2", "1000/7"])
    return Function(name, shared(name), compute, [
        Region("all", "4", "4", numbers + TINY + HUGE)])


def long_angle(name: str, member: str, compute) -> Function:
    triples = [(d, m, s) for d in ("0", "10", "-10", "1/3", "359") for m in ("0", "30", "59", "90")
               for s in ("0", "356/10")]
    return Function(name, f"{member}(d as $, m as $, s as $) as $", compute, [
        Region("all", "4", "4", triples)])


def method(name: str) -> str:
    return f"{name}(other as $, round as boolean = true) as $"


PAIRS = [(a, b) for a in ("1/3", "-7", "10**20/7", "sqrt(2)", "2**-100/3", "2**1000/3")
         for b in ("3/7", "-pi", "1+2**-200", "2**200/9", "e*2**-50", "2**-900")]

FUNCTIONS = [
    Function("Sin", shared("Sin"), mp.sin, [
        Region("1/8 to 8", "16", "16", both_signs(COMMON)),
        Region("close to 0", "2", "2", SMALL + TINY + INFINITESIMAL),
        Region("2^20 to 2^100", "2^99", "2^94", LARGE),
        Region("within 2^-60 of pi", "2^92", "2^92", BESIDE_PI),
    ]),
    Function("Cos", shared("Cos"), mp.cos, [
        Region("1/8 to 8", "64", "32", both_signs(COMMON)),
        Region("close to 0", "1", "2", SMALL + TINY + INFINITESIMAL),
        Region("2^20 to 2^100", "2^98", "2^98", LARGE),
        Region("within 2^-60 of pi/2", "2^91", "2^89", BESIDE_HALF_PI),
    ]),
    Function("Tan", shared("Tan"), mp.tan, [
        Region("1/8 to 8", "64", "64", both_signs(COMMON)),
        Region("close to 0", "1", "2", SMALL + TINY),
        Region("2^20 to 2^100", "2^100", "2^98", LARGE),
        Region("within 2^-60 of pi/2", "2^90", "2^88", BESIDE_HALF_PI),
    ]),
    Function("Cot", shared("Cot"), mp.cot, [
        Region("1/8 to 8", "64", "32", both_signs(COMMON)),
        Region("close to 0", "2", "4", SMALL + TINY),
        Region("2^20 to 2^100", "2^99", "2^97", LARGE),
        Region("within 2^-60 of pi", "2^91", "2^91", BESIDE_PI),
    ]),
    Function("ASin", shared("ASin"), mp.asin, [
        Region("1/10 to 1", "8", "64", both_signs(FRACTIONS + ["1"])),
        Region("close to 1", "1", "1", both_signs(BELOW_ONE)),
        Region("close to 0", "1", "4", SMALL + TINY + INFINITESIMAL),
    ]),
    Function("ACos", shared("ACos"), mp.acos, [
        Region("-19/20 to 19/20", "8", "64", both_signs(FRACTIONS) + ["-1", "1"]),
        Region("close to 1", "2^100", "2^97", BELOW_ONE),
        Region("close to -1", "1", "1", [f"-({one})" for one in BELOW_ONE]),
        Region("close to 0", "1", "0.5", SMALL + TINY),
    ]),
    Function("ATan", shared("ATan"), mp.atan, [
        Region("1/8 to 8", "4", "4", both_signs(COMMON)),
        Region("close to 0", "2", "4", SMALL + TINY + INFINITESIMAL),
        Region("large", "1", "1", both_signs(LARGE + HUGE + ASTRONOMIC)),
    ]),
    Function("ACot", shared("ACot"), lambda x: mp.pi / 2 - mp.atan(x), [
        Region("-8 to 8", "16", "16", both_signs(COMMON) + SMALL + TINY),
        Region("large negative", "1", "1", [f"-({one})" for one in LARGE + HUGE]),
        Region("2^20 to 2^100", "2^64", "2^98", LARGE),
    ]),
    Function("Sinh", shared("Sinh"), mp.sinh, [
        Region("1/8 to 8", "64", "64", both_signs(COMMON)),
        Region("2^-82 to 2^-20", "2^79", "2^82", SMALL),
        Region("100 to 2^60", "2^63", "2^63", both_signs(HUNDREDS)),
        Region("2^61 to 2^500", "1", "2^502", ["10**100", "2**500/3"]),
    ]),
    Function("Cosh", shared("Cosh"), mp.cosh, [
        Region("1/8 to 8", "32", "64", both_signs(COMMON)),
        Region("close to 0", "0.5", "2", SMALL + TINY),
        Region("100 to 2^60", "2^63", "2^63", both_signs(HUNDREDS)),
        Region("2^61 to 2^500", "1", "2^502", ["10**100", "2**500/3"]),
    ]),
    Function("Tanh", shared("Tanh"), mp.tanh, [
        Region("1/8 to 8", "4", "64", both_signs(COMMON)),
        Region("2^-82 to 2^-20", "2^79", "2^82", SMALL),
        Region("10 to 2^60", "4", "0.5", both_signs(["10"] + HUNDREDS)),
    ]),
    Function("Coth", shared("Coth"), mp.coth, [
        Region("1/8 to 8", "4", "32", both_signs(COMMON)),
        Region("2^-82 to 2^-20", "2^80", "2^82", SMALL),
        Region("10 to 2^60", "2", "1", both_signs(["10"] + HUNDREDS)),
    ]),
    Function("ASinh", shared("ASinh"), mp.asinh, [
        Region("1/8 to 8", "64", "32", COMMON),
        Region("-8 to -1/8", "1024", "1024", [f"-({one})" for one in COMMON]),
        Region("2^-82 to 2^-20", "2^83", "2^83", SMALL),
        Region("large", "8", "16", LARGE + HUGE + ASTRONOMIC[:3]),
        Region("-2^100 to -2^18", "2^198", "2^200", [f"-({one})" for one in LARGE]),
    ]),
    Function("ACosh", shared("ACosh"), mp.acosh, [
        Region("20/19 to 100", "4", "16", ABOVE_ONE + ["1", "11/10", "6/5", "4", "6", "8", "50"]),
        Region("close to 1", "2^100", "2^100", ABOVE_ONE_BARELY),
        Region("large", "4", "16", LARGE + HUGE + ASTRONOMIC[:3]),
    ]),
    Function("ATanh", shared("ATanh"), mp.atanh, [
        Region("1/10 to 19/20", "16", "32", both_signs(FRACTIONS)),
        Region("close to 1", "1", "1", both_signs(BELOW_ONE)),
        Region("2^-82 to 2^-20", "2^81", "2^82", SMALL),
    ]),
    Function("ACoth", shared("ACoth"), mp.acoth, [
        Region("20/19 to 100", "128", "1024", both_signs(ABOVE_ONE)),
        Region("close to 1", "1", "2", both_signs(ABOVE_ONE_BARELY)),
        Region("2^20 to 2^100", "2^66", "2^97", LARGE),
    ]),
    Function("Exp", shared("Exp"), mp.exp, [
        Region("1/8 to 8", "64", "128", both_signs(COMMON)),
        Region("close to 0", "1", "4", SMALL + TINY + INFINITESIMAL),
        Region("100 to 2^60", "2^63", "2^65", both_signs(HUNDREDS)),
        Region("2^61 to 2^510", "1", "2^512", both_signs(["10**100", "2**510/3"])),
    ]),
    Function("Ln", shared("Ln"), mp.log, [
        Region("1/8 to 8", "64", "32", COMMON + FRACTIONS),
        Region("just above 1", "2", "2", ABOVE_ONE_BARELY),
        Region("just below 1", "2^202", "2^203", BELOW_ONE),
        Region("large and small", "2", "1", LARGE + HUGE + SMALL + TINY),
        Region("ends of the range", "0.5", "0.5", ASTRONOMIC + INFINITESIMAL),
    ]),
    Function("Log", "Log(value as $, base as $) as $", lambda x, b: mp.log(x) / mp.log(b), [
        Region("all", "16", "16",
               [(x, b) for b in ("2", "10", "e", "1/3", "2**100")
                for x in ("1/10", "9/10", "2", "10", "1000/7", "2**300", "2**-99")]),
        Region("value just above 1", "4", "4", [(x, "10") for x in ABOVE_ONE_BARELY]),
        Region("value just below 1", "2^203", "2^204", [(x, "10") for x in BELOW_ONE]),
    ]),
    Function("Root", "Root(value as $, index as $) as $", real_root, [
        Region("1/3 to 10^50", "256", "1024",
               [(x, n) for n in ("2", "3", "5", "7", "100") for x in ("2", "10", "1/3", "10**50/7")]
               + [("-10", "3"), ("-2**100/7", "5"), ("10", "10**20")]),
        Region("2^-300 to 2^5000", "2^14", "2^15",
               [(x, n) for n in ("2", "3", "5", "7", "100") for x in ("2**-300", "2**5000/3")]),
        Region("perfect powers", "0", "0", [("27", "3"), ("-27", "3"), ("10**50", "5"),
                                            ("7**60", "20"), ("1", "9")]),
    ]),
    Function("Sqrt", "Sqrt as $", mp.sqrt, [
        Region("1/10 to 8", "16", "16", COMMON + FRACTIONS),
        Region("2^-4000 to 2^5000", "2^14", "2^14", LARGE + HUGE + SMALL + TINY),
        Region("ends of the range", "2^52", "2^507", ASTRONOMIC + INFINITESIMAL),
        Region("squares", "0", "0", ["4", "49", "10**20", "123456789**2", "7**60"]),
    ]),
    Function("Pow", "Pow(other as $) as $", mp.power, [
        Region("whole exponents to 200", "64", "16",
               [(x, n) for n in ("2", "3", "10", "-1", "-7", "200")
                for x in ("3/7", "-10/3", "sqrt(2)", "2**100/3")]),
        Region("fractional exponents", "2048", "2^12",
               [(x, y) for y in ("1/2", "1/3", "-7/2", "20/3", "pi")
                for x in ("1/3", "2", "10", "2**100/3")]),
        Region("results of 2^1000 and more", "2^19", "2^21",
               [("10", "1000/3"), ("2", "10**5/3"), ("10", "10**6"), ("1+2**-40", "2**60/3")]),
    ]),
    angle("DegToRad", lambda x: x * mp.pi / 180),
    angle("RadToDeg", lambda x: x * 180 / mp.pi),
    angle("GradToRad", lambda x: x * mp.pi / 200),
    angle("RadToGrad", lambda x: x * 200 / mp.pi),
    angle("DegToGrad", lambda x: x * 10 / 9),
    angle("GradToDeg", lambda x: x * 9 / 10),
    long_angle("DegToDeg", "DegToDeg", degrees),
    long_angle("DegToRad of minutes", "DegToRad", lambda *a: degrees(*a) * mp.pi / 180),
    long_angle("DegToGrad of minutes", "DegToGrad", lambda *a: degrees(*a) * 10 / 9),
    Function("Add", method("Add"), lambda a, b: a + b, [
        Region("all", "0.5", "0", PAIRS),
    ]),
    Function("Subtract", method("Subtract"), lambda a, b: a - b, [
        Region("all", "1", "0", PAIRS),
    ]),
    Function("Multiply", method("Multiply"), lambda a, b: a * b, [
        Region("all", "1", "0", PAIRS),
    ]),
    Function("Divide", method("Divide"), lambda a, b: a / b, [
        Region("all", "2", "2", PAIRS),
    ]),
    Function("Modulate", "Modulate(other as $) as $", remainder, [
        Region("quotient below 2^20", "0", "0",
               [(a, b) for a in ("100", "-100", "1000/7", "-sqrt(2)*1000", "1/3", "7")
                for b in ("3", "-3", "7/8", "5/2", "100")]),
    ]),
    Function("Pi", "Pi as $", lambda: +mp.pi, [Region("constant", "0.5", "0.5", [()])]),
    Function("HalfPi", "HalfPi as $", lambda: mp.pi / 2, [Region("constant", "0.5", "0.5", [()])]),
    Function("TwoPi", "TwoPi as $", lambda: mp.pi * 2, [Region("constant", "0.5", "0.5", [()])]),
    Function("E", "E as $", lambda: +mp.e, [Region("constant", "0.5", "0.5", [()])]),
    Function("Ln2", "Ln2 as $", lambda: +mp.ln2, [Region("constant", "0.5", "0.5", [()])]),
    Function("Ln10", "Ln10 as $", lambda: +mp.ln10, [Region("constant", "0.5", "0.5", [()])]),
]


# ------------------------------------------------------------------------------------- output

def shown(value) -> str:
    """A number in exact binary, without trailing zero bits."""
    sign, mantissa, exponent, _ = value._mpf_
    if mantissa == 0:
        return "0"
    return f"{'-' if sign else ''}0x{int(mantissa):x}p{int(exponent):#x}"


def rounded_result(function: Function, arguments, guard_bits: int):
    with mp.workprec(RESULT_BITS + guard_bits):
        result = mpmath.mpmathify(function.compute(*arguments))
    with mp.workprec(RESULT_BITS):
        return +result


def value_line(function: Function, expressions) -> str:
    expressions = expressions if isinstance(expressions, tuple) else (expressions,)
    arguments = [evaluated(expression) for expression in expressions]
    result, again = (rounded_result(function, arguments, guard) for guard in GUARD_BITS)
    if result != again:
        raise ArithmeticError(f"{function.name}{expressions} needs more guard bits")
    name = function.name.split()[0]
    return "|".join(["value", f"{name}({', '.join(expressions)})",
                     " ".join(map(shown, arguments)), shown(result)])


def lines_of(function: Function):
    yield f"member|{function.member}"
    for region in function.regions:
        yield f"region|{region.name}|{region.limit256}|{region.limit2048}"
        for expressions in region.arguments:
            yield value_line(function, expressions)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", type=pathlib.Path)
    folder = parser.parse_args().folder
    mp.prec = RESULT_BITS + max(GUARD_BITS)
    for function in FUNCTIONS:
        text = "\n".join(lines_of(function)) + "\n"
        (folder / f"{function.name.replace(' ', '_')}.txt").write_text(text, encoding="ascii")


if __name__ == "__main__":
    main()
