"""The members of the number classes, and what they return or raise.

`$` stands for the name of the class, N("...") for the number of a text, `none` for a variable that is Nil.
Nothing here relies on what a compiler could refuse, but where a condition says so.
"""

import dataclasses
from collections.abc import Callable
from decimal import Decimal
from fractions import Fraction

import reference as r

NUMBER_ERROR = "BigNumberErrorExceptionVQZ"


@dataclasses.dataclass(frozen=True)
class NumberClass:
    """One of the two classes; of results that do not end, so many places are compared as text."""

    name: str
    bits: int
    places: int


CLASSES = (NumberClass("BigNumberVQZ", 256, 60), NumberClass("BiggerNumberVQZ", 2048, 600))


@dataclasses.dataclass(frozen=True)
class Exact:
    """A result that is this number and no other."""

    name: str
    expression: str
    value: int | str | Fraction


@dataclasses.dataclass(frozen=True)
class Inexact:
    """A result that does not end: its text is compared, and its bits with those recorded, which are no
    more than `units` units in the last place off the value."""

    name: str
    expression: str
    value: Callable[[], Decimal]
    units: int = 8


@dataclasses.dataclass(frozen=True)
class Statement:
    """A check that is written out; @ stands for its name."""

    name: str
    code: str

    def statements(self, name: str) -> list[str]:
        return self.code.replace("@", name).split("\n")


@dataclasses.dataclass(frozen=True)
class Fails:
    """A call that raises; the message is an expression, or between quotation marks the text itself."""

    name: str
    code: str
    message: str
    exception: str = NUMBER_ERROR

    def statements(self, name: str) -> list[str]:
        return ["Try", *("  " + line for line in self.code.split("\n")), f"  MissFailure({name})",
                "Catch e As RuntimeException",
                f"  CheckFailed({name}, e, \"{self.exception}\", {self.message})", "End Try"]


@dataclasses.dataclass(frozen=True)
class Member:
    """The checks of one member, or of a few that belong together: a method of the module."""

    method: str
    name: str
    checks: list
    condition: str = ""


def yes(name: str, expression: str) -> Statement:
    return Statement(name, f"CheckTrue(@, {expression})")


def no(name: str, expression: str) -> Statement:
    return Statement(name, f"CheckTrue(@, Not ({expression}))")


def text(name: str, expression: str, expected: str) -> Statement:
    return Statement(name, f'CheckText(@, {expression}, "{expected}")')


# What stands for the operands that an operation fails for, in code and in its message.
MAX = ("$.Max", '" + InMessage($.Max) + "')
NAN = ("$.Nan", "NaN")
NIL = ("none", "nil")


def operand(digits: str) -> tuple[str, str]:
    return f'N("{digits}")', digits


def fails_of_one(name: str, call: str, failure: str, *operands: tuple[str, str]) -> list[Fails]:
    """A call that fails for each of these, NaN and Nil; ~ stands for the operand in the call."""
    return [Fails(f"{name} of {code}".replace('"', "'"), f"x = {call.replace('~', code)}",
                  f'"{failure} operation failed with number {shown}."')
            for code, shown in (*operands, NAN, NIL)]


def fails_of_two(name: str, call: str, failure: str, *pair: tuple[str, str],
                 shown_of_nil: str = "nil") -> list[Fails]:
    """A call that fails for the pair, and for NaN and Nil as its right operand, NaN as its left; ~ and ^
    stand for the operands."""
    good = operand("3")
    pairs = [pair, (NAN, good), (good, NAN), (good, ("none", shown_of_nil))]
    return [Fails(f"{name} of {a} and {b}".replace('"', "'"),
                  f"x = {call.replace('~', a).replace('^', b)}",
                  f'"{failure} operation failed with numbers {shown_a} and {shown_b}."')
            for (a, shown_a), (b, shown_b) in pairs]


def function(name: str, argument: str, compute: Callable[[Decimal], Decimal],
             *failing: tuple[str, str], units: int = 8) -> Member:
    """A shared function of one number."""
    checks = [Inexact(f"$.{name}", f'$.{name}(N("{argument}"))',
                      lambda: compute(r.number(Fraction(argument))), units)]
    if failing:
        checks += fails_of_one(f"$.{name}", f"$.{name}(~)", name, *failing)
    return Member(f"Of{name}", f"$.{name}", checks)


def integer_property(name: str, kind: str, number: str) -> Member:
    return Member(f"Of{name}", f"$.{name}", [
        Statement(f"$.{name}", f'CheckTrue(@, N("{number}").{name} = {number})'),
        Statement(f"$.{name}", f'Dim given As {kind} = {number}\nx = N("1")\nx.{name} = given'),
        text(f"$.{name} set", "Shown(x)", number),
        Fails(f"$.{name} of 1e30", f'Dim got As {kind} = N("1e30").{name}',
              f'"{name} operation failed with number 1e+30."'),
    ])


def constant(name: str, value: Callable[[], Decimal]) -> Member:
    return Member(f"Of{name}", f"$.{name}", [Inexact(f"$.{name}", f"$.{name}", value, 1)])


# A value of each numeric type of the host but Integer: the type, a variable's name, the literal, the number
# that it is.
HOST_VALUES = (
    ("Int32", "narrow", "-2147483647", -2147483647),
    ("Int64", "wide", "-9007199254740993", -9007199254740993),
    ("UInt32", "narrowUnsigned", "4294967295", 4294967295),
    ("UInt64", "wideUnsigned", "9007199254740993", 9007199254740993),
    ("Double", "real", "0.1", Fraction(0.1)),
    ("Single", "shortReal", "0.1", Fraction(13421773, 2 ** 27)),
    ("Currency", "amount", "12.5", "12.5"),
)


def of_host_values(name: str, expression: str) -> list[Statement | Exact]:
    """A number made of each of them; # stands for the type, ~ for the variable."""
    checks = []
    for kind, variable, literal, value in HOST_VALUES:
        checks += [Statement(name.replace("#", kind), f"Dim {variable} As {kind} = {literal}"),
                   Exact(name.replace("#", kind),
                         expression.replace("#", kind).replace("~", variable), value)]
    return checks


TWO_THIRDS = Fraction(2, 3)
GUARDED = "kConstructorOfValue"
BLOCK_MESSAGE = ("The parameter MemoryBlock.Size to method DataMantissa is too {word}. Range is {size} to "
                 "{size}, but value is {value}.")


def block_property(name: str) -> Member:
    """DataMantissa and DataExponent."""
    of = f"$.{name}"
    size = f'Dim size As String = Str(N("1").{name}.Size)'
    small, big = (f'"The parameter MemoryBlock.Size to method DataMantissa is too {word}. Range is " + '
                  f'size + " to " + size + ", but value is {value}."'
                  for word, value in (("small", 3), ("big", 999)))
    return Member(f"Of{name}", of, [
        Statement(of, f'{size}\nDim block As MemoryBlock = N("12.5").{name}\n'
                      f'x = $.NumberWithString("-7")\nx.{name} = block'),
        Statement(of, f"CheckText(@, HexOf(x.{name}), HexOf(block))"),
        Fails(f"{of} too small", f"x.{name} = New MemoryBlock(3)", small, "OutOfBoundsException"),
        Fails(f"{of} too big", f"x.{name} = New MemoryBlock(999)", big, "OutOfBoundsException"),
        Fails(f"{of} Nil", f"Dim noBlock As MemoryBlock\nx.{name} = noBlock",
              '"MemoryBlock is nil"', "NilObjectException"),
    ])


MEMBERS = [
    # Properties.
    Member("OfIsZero", "$.IsZero", [yes("$.IsZero", 'N("0").IsZero'), no("$.IsZero", 'N("2").IsZero')]),
    Member("OfIsNegative", "$.IsNegative", [yes("$.IsNegative", 'N("-2").IsNegative'),
                                            no("$.IsNegative", 'N("2").IsNegative')]),
    Member("OfIsNan", "$.IsNan", [yes("$.IsNan", "$.Nan.IsNan"), no("$.IsNan", 'N("2").IsNan')]),
    Member("OfIsInteger", "$.IsInteger", [yes("$.IsInteger", 'N("-2").IsInteger'),
                                          no("$.IsInteger", 'N("2.5").IsInteger')]),
    integer_property("IntegerValue", "Integer", "-123456789"),
    integer_property("Int64Value", "Int64", "-9007199254740993"),
    integer_property("UInt64Value", "UInt64", "9007199254740993"),
    Member("OfDoubleValue", "$.DoubleValue", [
        Statement("$.DoubleValue", 'CheckReal(@, N("-0.375").DoubleValue, -0.375)'),
        Statement("$.DoubleValue", 'x = N("1")\nx.DoubleValue = 0.1'),
        Exact("$.DoubleValue set", "x", Fraction(0.1)),
        Fails("$.DoubleValue of 1e400", 'Dim got As Double = N("1e400").DoubleValue',
              '"DoubleValue operation failed with number 1e+400."'),
    ]),
    Member("OfStringValue", "$.StringValue", [
        text("$.StringValue", 'N("-12.25").StringValue', "-12.25"),
        text("$.StringValue", 'N("1e100").StringValue', "1e+100"),
        Statement("$.StringValue", 'x = N("1")\nx.StringValue = "-2,5 metres"'),
        Exact("$.StringValue set", "x", "-2.5"),
        Fails("$.StringValue set to 1e999...", 'x = N("2")\nx.StringValue = "1e" + ManyNines()',
              '"StringValue operation failed with number 2."'),
    ], "kPropertyAndMethod"),
    Member("OfStringValueInBase", "$.StringValue(16)", [
        text("$.StringValue(16)", 'N("-255.5").StringValue(16)', "-FF.8"),
        text("$.StringValue(2)", 'N("5").StringValue(2)', "101"),
        Fails("$.StringValue(99)", 'Dim digits As String = N("2").StringValue(99)',
              '"StringValue operation failed with number 2."'),
    ], "kPropertyAndMethod"),
    Member("OfStringValueInBaseSet", "$.StringValue(16) =", [
        Statement("$.StringValue(16) =", 'x = N("1")\nx.StringValue(16) = "-FF.8"'),
        Exact("$.StringValue(16) =", "x", "-255.5"),
        Fails("$.StringValue(99) =", 'x = N("2")\nx.StringValue(99) = "1"',
              '"StringValue operation failed with number 2."'),
    ], "kAssignmentToMethod And kPropertyAndMethod"),
    Member("OfCurrencyValue", "$.CurrencyValue", [
        Statement("$.CurrencyValue", 'Dim amount As Currency = 12.3456\n'
                                     'CheckTrue(@, N("12.34556").CurrencyValue = amount)'),
        Statement("$.CurrencyValue", 'x = N("1")\nx.CurrencyValue = amount'),
        text("$.CurrencyValue set", 'x.GetStringValue(10, False, 15, 40, True, ".")', "12.3456"),
        Fails("$.CurrencyValue of 1e30", 'Dim got As Currency = N("1e30").CurrencyValue',
              '"CurrencyValue operation failed."'),
    ]),
    Member("OfVariantValue", "$.VariantValue", [
        Statement("$.VariantValue", 'Dim got As Variant = N("-5").VariantValue\n'
                                    "CheckInteger(@, got.IntegerValue, -5)"),
        Statement("$.VariantValue", 'got = N("2.75").VariantValue\n'
                                    'CheckText(@, got.StringValue, "2.75")'),
        Statement("$.VariantValue", 'x = N("1")\nx.VariantValue = got'),
        Exact("$.VariantValue set", "x", "2.75"),
        Fails("$.VariantValue set to a MemoryBlock", "x.VariantValue = New MemoryBlock(4)",
              '"Conversion not supported."', "UnsupportedOperationException"),
        Fails("$.VariantValue set to 1e999...", 'x.VariantValue = "1e" + ManyNines()',
              '"StringValue operation failed with number 0."'),
    ]),
    block_property("DataMantissa"),
    block_property("DataExponent"),
    Member("OfDataFlags", "$.DataFlags", [
        Statement("$.DataFlags", 'CheckInteger(@, N("-2").DataFlags, 128)'),
        Statement("$.DataFlags", 'CheckInteger(@, N("0").DataFlags, 32)'),
        Statement("$.DataFlags", 'CheckInteger(@, $.Nan.DataFlags, 96)'),
        Statement("$.DataFlags", 'x = $.NumberWithString("2.5")\nx.DataFlags = 128'),
        Exact("$.DataFlags set", "x", "-2.5"),
    ]),
    Member("OfDebugging", "$.Debugging", [
        Statement("$.Debugging", "Dim before As Boolean = $.Debugging\n$.Debugging = True"),
        yes("$.Debugging", "$.Debugging"),
        Statement("$.Debugging", "$.Debugging = False"),
        no("$.Debugging", "$.Debugging"),
        Statement("$.Debugging", "$.Debugging = before"),
    ], "kHiddenMembers"),
    Member("OfLibTypeStr", "$.LibTypeStr", [text("$.LibTypeStr", "$.LibTypeStr", "no_asm_32")],
           "kHiddenMembers"),

    # Text.
    Member("OfGetStringValue", "$.GetStringValue", [
        text("$.GetStringValue", 'N("255.5").GetStringValue(16, False, 15, -1, True, ".")', "FF.8"),
        text("$.GetStringValue", 'N("1234.5").GetStringValue(10, True, 15, -1, True, ".")',
             "1.2345e+3"),
        text("$.GetStringValue", 'N("1234.5").GetStringValue(10, False, 2, -1, True, ".")',
             "1.2345e+3"),
        text("$.GetStringValue", 'N("3.14159").GetStringValue(10, False, 15, 2, True, ".")', "3.14"),
        text("$.GetStringValue", 'N("5").GetStringValue(10, False, 15, 2, False, ".")', "5.00"),
        text("$.GetStringValue", 'N("2.5").GetStringValue(10, False, 15, -1, True, ",")', "2,5"),
        Fails("$.GetStringValue(99)",
              'Dim digits As String = N("2").GetStringValue(99, False, 15, -1, True, ".")',
              '"DoubleValue operation failed with number 2."'),
    ]),
    Member("OfSetStringValue", "$.SetStringValue", [
        Statement("$.SetStringValue", 'x = N("1")\nDim rest As String\nDim wasRead As Boolean\n'
                                      'x.SetStringValue("-ff.8 hours", 16, rest, wasRead)'),
        Exact("$.SetStringValue", "x", "-255.5"),
        text("$.SetStringValue", "rest", " hours"),
        yes("$.SetStringValue", "wasRead"),
        Fails("$.SetStringValue of 1e999...",
              'x = N("2")\nx.SetStringValue("1e" + ManyNines(), 10, rest, wasRead)',
              '"SetStringValue operation failed with number 2."'),
    ]),

    # Arithmetic.
    Member("OfCeil", "$.Ceil", [Exact("$.Ceil", 'N("-2.5").Ceil', -2), Exact("$.Ceil", 'N("2.25").Ceil', 3),
                                *fails_of_one("$.Ceil", "~.Ceil", "Ceil")[:1]]),
    Member("OfFloor", "$.Floor", [Exact("$.Floor", 'N("-2.5").Floor', -3),
                                  Exact("$.Floor", 'N("2.75").Floor', 2),
                                  *fails_of_one("$.Floor", "~.Floor", "Floor")[:1]]),
    Member("OfRound", "$.Round", [Exact("$.Round", 'N("2.5").Round', 3), Exact("$.Round", 'N("-2.5").Round', -3),
                                  Exact("$.Round", 'N("2.25").Round', 2),
                                  *fails_of_one("$.Round", "~.Round", "Round")[:1]]),
    Member("OfSkipFraction", "$.SkipFraction", [Exact("$.SkipFraction", 'N("-2.75").SkipFraction', -2)]),
    Member("OfFrac", "$.Frac", [Exact("$.Frac", 'N("-2.75").Frac', "-0.75")]),
    Member("OfEquals", "$.Equals", [yes("$.Equals", 'N("2.5").Equals(N("2.50"))'),
                                    no("$.Equals", 'N("2.5").Equals(N("-2.5"))'),
                                    no("$.Equals", 'N("2.5").Equals(none)')]),
    Member("OfSqrt", "$.Sqrt", [Exact("$.Sqrt", 'N("6.25").Sqrt', "2.5"),
                                Inexact("$.Sqrt", 'N("2").Sqrt', lambda: Decimal(2).sqrt(), 2),
                                *fails_of_one("$.Sqrt", "~.Sqrt", "Sqrt", operand("-1"))[:2]]),
    Member("OfPow", "$.Pow", [Exact("$.Pow", 'N("-1.5").Pow(N("3"))', "-3.375"),
                              Inexact("$.Pow", 'N("2").Pow(N("0.25"))', lambda: Decimal(2).sqrt().sqrt(), 64),
                              *fails_of_two("$.Pow", "~.Pow(^)", "Pow", operand("-2"), operand("0.5"))]),
    Member("OfModulate2", "$.Modulate2", [
        Statement("$.Modulate2", 'CheckInteger(@, N("7").Modulate2, 1)'),
        Statement("$.Modulate2", 'CheckInteger(@, N("8").Modulate2, 0)')]),
    Member("OfModulate", "$.Modulate", [
        Exact("$.Modulate", 'N("7.5").Modulate(N("2"))', "1.5"),
        Exact("$.Modulate", 'N("-7").Modulate(N("3"))', -1),
        *fails_of_two("$.Modulate", "~.Modulate(^)", "Mod", operand("7"), operand("0"))]),
    Member("OfDivide", "$.Divide", [
        Exact("$.Divide", 'N("-7").Divide(N("8"), True)', "-0.875"),
        Inexact("$.Divide 2 / 3", 'N("2").Divide(N("3"), True)', lambda: r.number(TWO_THIRDS), 1),
        Inexact("$.Divide 2 / 3, cut", 'N("2").Divide(N("3"), False)', lambda: r.number(TWO_THIRDS), 1),
        *fails_of_two("$.Divide", "~.Divide(^, True)", "Div", operand("7"), operand("0"))]),
    Member("OfMultiply", "$.Multiply", [
        Exact("$.Multiply", 'N("-2.5").Multiply(N("1.5"), True)', "-3.75"),
        *fails_of_two("$.Multiply", "~.Multiply(^, True)", "Mul", MAX, operand("2"))]),
    Member("OfMultiplyByInteger", "$.Multiply(Integer)", [
        Statement("$.Multiply(Integer)", "Dim factor As Integer = -4"),
        Exact("$.Multiply(Integer)", 'N("2.5").Multiply(factor)', -10),
        Fails("$.Multiply(Integer) of Max", "x = $.Max.Multiply(factor)",
              '"Multiply operation failed with numbers NaN and -4."'),
    ], GUARDED),
    Member("OfMultiplyByUInt32", "$.Multiply(UInt32)", [
        Statement("$.Multiply(UInt32)", "Dim factor As UInt32 = 4294967295"),
        Exact("$.Multiply(UInt32)", 'N("2").Multiply(factor)', 8589934590),
        Fails("$.Multiply(UInt32) of Max", "x = $.Max.Multiply(factor)",
              '"Multiply operation failed with numbers NaN and 4294967295."'),
    ], GUARDED),
    *[Member(f"OfBit{name}", f"$.Bit{name}", [
        Exact(f"$.Bit{name}", f'N("12").Bit{name}(N("10"))', value),
        *fails_of_two(f"$.Bit{name}", f"~.Bit{name}(^)", f"Bitwise{failure}", operand("-1"),
                      operand("1"))])
      for name, failure, value in (("XOr", "Xor", 12 ^ 10), ("Or", "Or", 12 | 10),
                                   ("And", "And", 12 & 10))],
    Member("OfSubtract", "$.Subtract", [
        Exact("$.Subtract", 'N("2.5").Subtract(N("4"), True)', "-1.5"),
        *fails_of_two("$.Subtract", "~.Subtract(^, True)", "Sub", ("$.Min", '" + InMessage($.Min) + "'),
                      MAX)]),
    Member("OfAdd", "$.Add", [
        Exact("$.Add", 'N("2.5").Add(N("-4"), True)', "-1.5"),
        Exact("$.Add", 'N("2").Pow(N("200")).Add(N("1"), True)', 2 ** 200 + 1),
        *fails_of_two("$.Add", "~.Add(^, True)", "Add", MAX, MAX)]),
    Member("OfAbs", "$.Abs", [Exact("$.Abs", 'N("-2.5").Abs', "2.5"),
                              Exact("$.Abs shared", '$.Abs(N("-2.5"))', "2.5")], "kSharedAndInstance"),
    Member("OfNegate", "$.Negate", [Exact("$.Negate", 'N("-2.5").Negate', "2.5")]),

    # Making numbers.
    Member("OfConstructor", "$.Constructor", [Exact("$.Constructor", "New $", 0)]),
    Member("OfConstructorOfString", "$.Constructor(String)", [
        Exact("$.Constructor(String)", 'New $("-12.25")', "-12.25"),
        Fails("$.Constructor(String) of 1e999...", 'x = New $("1e" + ManyNines())',
              '"Constructor operation failed with number nil."'),
    ], "kConstructorOfString"),
    Member("OfConstructorOfValue", "$.Constructor", [
        *of_host_values("$.Constructor(#)", "New $(~)"),
        Exact("$.Constructor(other)", 'New $(N("-2.5"))', "-2.5"),
    ], GUARDED),
    Member("OfNumberWith", "$.NumberWith", [
        Statement("$.NumberWithInteger", "Dim whole As Integer = -5"),
        Exact("$.NumberWithInteger", "$.NumberWithInteger(whole)", -5),
        *of_host_values("$.NumberWith#", "$.NumberWith#(~)"),
        Exact("$.NumberWithString", '$.NumberWithString("-12.25")', "-12.25"),
        Fails("$.NumberWithString of 1e999...", 'x = $.NumberWithString("1e" + ManyNines())',
              '"Constructor operation failed."'),
    ]),
    Member("OfNumberWithVariant", "$.NumberWithVariant", [
        Statement("$.NumberWithVariant", 'Dim held As Variant = "-12.25"'),
        Exact("$.NumberWithVariant", "$.NumberWithVariant(held)", "-12.25"),
        Statement("$.NumberWithVariant", "held = -5"),
        Exact("$.NumberWithVariant", "$.NumberWithVariant(held)", -5),
        Fails("$.NumberWithVariant of a MemoryBlock", "x = $.NumberWithVariant(New MemoryBlock(4))",
              '"Conversion not supported."', "UnsupportedOperationException"),
        Fails("$.NumberWithVariant of 1e999...", 'x = $.NumberWithVariant("1e" + ManyNines())',
              '"Constructor operation failed."'),
    ]),
    Member("OfNumberWithUInteger", "$.NumberWithUInteger", [
        Statement("$.NumberWithUInteger", "Dim whole As UInteger = 4294967295"),
        Exact("$.NumberWithUInteger", "$.NumberWithUInteger(whole)", 4294967295),
    ], "RBVersion >= 2015"),

    # Operators.
    Member("OfConversionIn", "$.Operator_Convert(String)", [
        Statement("$.Operator_Convert(String)", 'x = "-12.25"'),
        Exact("$.Operator_Convert(String)", "x", "-12.25"),
        Fails("$.Operator_Convert(String) of 1e999...", 'x = "1e" + ManyNines()',
              '"Constructor operation failed with number nil."'),
    ], "kConversionIn"),
    Member("OfConversionOut", "$.Operator_Convert", [
        Statement("$.Operator_Convert", 'Dim digits As String = N("-12.25")'),
        text("$.Operator_Convert", "digits", "-12.25"),
    ], "kConversionOut"),
    Member("OfOperators", "operators of $", [
        check
        for sign, name, failure, left, right, value, bad in (
            ("+", "Add", "Operator_Add", "2.5", "4", "6.5", (MAX, MAX)),
            ("-", "Subtract", "Operator_Subtract", "2.5", "4", "-1.5",
             (("$.Min", '" + InMessage($.Min) + "'), MAX)),
            ("*", "Multiply", "Operator_Multiply", "2.5", "-4", "-10", (MAX, operand("2"))),
            ("/", "Divide", "Operator_Divide", "2.5", "4", "0.625", (operand("7"), operand("0"))),
            ("Mod", "Modulo", "Mod", "7.5", "2", "1.5", (operand("7"), operand("0"))),
            ("^", "Power", "Pow", "1.5", "3", "3.375", (operand("-2"), operand("0.5"))))
        for check in (Exact(f"$.Operator_{name}", f'N("{left}") {sign} N("{right}")', value),
                      *(Fails(f"$.Operator_{name} of {a} and {b}".replace('"', "'"),
                              f"x = {a} {sign} {b}",
                              f'"{failure} operation failed with numbers {shown_a} and {shown_b}."')
                        for (a, shown_a), (b, shown_b) in (bad, (NAN, operand("3")),
                                                           (operand("3"), NAN), (operand("3"), NIL))))
    ] + [
        Exact("$.Operator_IntegerDivide", 'N("-7.5") \\ N("2")', -3),
        *(Fails(f"$.Operator_IntegerDivide of {a} and {b}".replace('"', "'"), f"x = {a} \\ {b}",
                f'"Operator_IntegerDivide operation failed with numbers NaN and {shown}."')
          for a, (b, shown) in (('N("5")', operand("0")), ('N("5")', NAN), ('N("5")', NIL))),
    ], "kOperatorLeft"),
    Member("OfOperatorsRight", "operators with a text left of $", [
        check
        for sign, name, failure, value, bad, bad_text in (
            ("+", "Add", "Operator_Add", 12, None, None),
            ("-", "Subtract", "Operator_Subtract", 8, None, None),
            ("*", "Multiply", "Operator_Multiply", 20, MAX, "2"),
            ("/", "Divide", "Operator_Divide", 5, operand("7"), "0"),
            ("\\", "IntegerDivide", "Operator_IntegerDivide", 5, ('N("7")', "NaN"), "0"),
            ("Mod", "Modulo", "Mod", 0, operand("7"), "0"),
            ("^", "Power", "Pow", 100, operand("-2"), "0.5"))
        for check in (Exact(f"$.Operator_{name}Right", f'"2" {sign} N("10")', value),
                      *([Fails(f"$.Operator_{name}Right", f'x = "{bad_text}" {sign} {bad[0]}',
                               f'"{failure} operation failed with numbers {bad[1]} and {bad_text}."')]
                        if bad else []),
                      Fails(f"$.Operator_{name}Right of NaN", f'x = "3" {sign} $.Nan',
                            f'"{failure} operation failed with numbers NaN and 3."'))
    ], "kOperatorRight And kConversionIn"),
    Member("OfNegation", "$.Operator_Negate", [
        Exact("$.Operator_Negate", '-N("2.5")', "-2.5")], "kNegation"),
    Member("OfComparison", "$.Operator_Compare", [
        yes("$.Operator_Compare", 'N("2.5") > N("-4")'), yes("$.Operator_Compare", 'N("2.5") = N("2.50")'),
        no("$.Operator_Compare", 'N("2.5") < N("-4")'), yes("$.Operator_Compare", 'N("2.5") <> N("4")'),
        yes("$.Operator_Compare", '$.Nan = N("0")'),
    ], "kComparison"),

    # Functions.
    Member("OfSgn", "$.Sgn", [Exact("$.Sgn", '$.Sgn(N("-2.5"))', -1), Exact("$.Sgn", '$.Sgn(N("0"))', 0)]),
    Member("OfRoot", "$.Root", [
        Exact("$.Root", '$.Root(N("0.125"), N("3"))', "0.5"),
        Inexact("$.Root", '$.Root(N("2"), N("4"))', lambda: Decimal(2).sqrt().sqrt(), 64),
        Fails("$.Root of a negative number", 'x = $.Root(N("-1"), N("2"))', '"Root operation failed."'),
    ]),
    Member("OfDegToDeg", "$.DegToDeg", [
        Inexact("$.DegToDeg", '$.DegToDeg(N("12"), N("30"), N("36"))', lambda: Decimal("12.51")),
        Fails("$.DegToDeg of negative minutes", 'x = $.DegToDeg(N("12"), N("-30"), N("36"))',
              '"DegToDeg operation failed."'),
    ]),
    Member("OfDegToRadOfMinutes", "$.DegToRad of minutes", [
        Inexact("$.DegToRad of minutes", '$.DegToRad(N("90"), N("30"), N("0"))',
                lambda: Decimal("90.5") * r.pi() / 180),
        Fails("$.DegToRad of negative minutes", 'x = $.DegToRad(N("12"), N("-30"), N("36"))',
              '"DegToRad operation failed."'),
    ], "kOverloadByCount"),
    Member("OfDegToGradOfMinutes", "$.DegToGrad of minutes", [
        Exact("$.DegToGrad of minutes", '$.DegToGrad(N("90"), N("0"), N("0"))', 100),
        Fails("$.DegToGrad of negative minutes", 'x = $.DegToGrad(N("12"), N("-30"), N("36"))',
              '"DegToGrad operation failed."'),
    ], "kOverloadByCount"),
    *[dataclasses.replace(function(name, argument, compute, MAX),
                          condition="kOverloadByCount" if name.startswith("DegTo") else "")
      for name, argument, compute in (
          ("DegToGrad", "45.5", lambda x: x * 10 / 9),
          ("GradToDeg", "50.5", lambda x: x * 9 / 10),
          ("GradToRad", "100", lambda x: x * r.pi() / 200),
          ("RadToGrad", "1", lambda x: x * 200 / r.pi()),
          ("DegToRad", "30", lambda x: x * r.pi() / 180),
          ("RadToDeg", "1", lambda x: x * 180 / r.pi()))],
    function("ACoth", "2", r.acoth, operand("1"), units=64),
    function("ATanh", "0.5", r.atanh, operand("1"), units=64),
    function("ACosh", "2", r.acosh, operand("0.5"), units=64),
    function("ASinh", "0.5", r.asinh, MAX, units=64),
    function("Coth", "0.5", r.coth, operand("0"), units=64),
    function("Tanh", "0.5", r.tanh, MAX, units=64),
    function("Cosh", "0.5", r.cosh, MAX, units=64),
    function("Sinh", "0.5", r.sinh, MAX, units=64),
    function("ACot", "2", r.acot, units=64),
    function("ATan", "2", r.atan, units=64),
    function("ACos", "0.5", r.acos, operand("1.1"), units=64),
    function("ASin", "0.5", r.asin, operand("1.1"), units=64),
    function("Cot", "1", r.cot, operand("0"), units=64),
    function("Tan", "1", r.tan, MAX, units=64),
    function("Cos", "1", r.cos, MAX, units=64),
    function("Sin", "1", r.sin, MAX, units=64),
    Member("OfLog", "$.Log", [
        Exact("$.Log", '$.Log(N("1024"), N("2"))', 10),
        Inexact("$.Log", '$.Log(N("3"), N("2"))', lambda: Decimal(3).ln() / Decimal(2).ln(), 64),
        *fails_of_two("$.Log", "$.Log(~, ^)", "Log", operand("8"), operand("1")),
        Fails("$.Log of Nil", 'x = $.Log(none, N("3"))',
              '"Log operation failed with numbers nil and 3."'),
    ]),
    function("Ln", "3", lambda x: x.ln(), operand("0"), units=64),
    function("Exp", "0.5", lambda x: x.exp(), MAX, units=64),

    # Constants.
    Member("OfMinAndMax", "$.Max", [
        Statement("$.Max", 'CheckText(@, HexOf($.Max.DataMantissa), AllOnes($.Max.DataMantissa.Size))'),
        Statement("$.Max", "Dim top As MemoryBlock = $.Max.DataExponent\n"
                           "CheckInteger(@, top.Byte(top.Size - 1), 127)"),
        yes("$.Max", "$.Max.Add($.Min, True).IsZero"),
        yes("$.Min", "$.Min.IsNegative"),
        yes("$.Min", "$.Min.Negate.Equals($.Max)"),
    ]),
    Member("OfZeroAndOne", "$.Zero", [Exact("$.Zero", "$.Zero", 0), Exact("$.One", "$.One", 1),
                                      text("$.Nan", "Shown($.Nan)", "NaN")]),
    constant("Pi", r.pi),
    constant("HalfPi", lambda: r.pi() / 2),
    constant("TwoPi", lambda: 2 * r.pi()),
    constant("E", r.e),
    constant("Ln2", lambda: Decimal(2).ln()),
    constant("Ln10", lambda: Decimal(10).ln()),
    Member("OfRand", "$.Rand", [
        Statement("$.Rand", "x = $.Rand"),
        no("$.Rand", "x.IsNan"), no("$.Rand", "x.IsNegative"), no("$.Rand", "x.IsZero"),
        no("$.Rand", "x.Equals($.Rand)"),
    ]),

    # A receiver that is Nil.
    Member("OfNilLeftOfOperators", "Nil left of an operator of $", [
        Fails(f"$.Operator_{name} of Nil", f'x = none {sign} N("3")',
              f'"Operator_{name} operation failed with numbers nil and 3."')
        for name, sign in (("Add", "+"), ("Subtract", "-"), ("Multiply", "*"), ("Divide", "/"))],
           "kOperatorLeft"),
    Member("OfNilRightOfOperators", "Nil right of an operator of $", [
        Fails(f"$.Operator_{name}Right of Nil", f'x = "3" {sign} none',
              f'"Operator_{name} operation failed with numbers nil and 3."')
        for name, sign in (("Add", "+"), ("Subtract", "-"), ("Multiply", "*"), ("Divide", "/"))],
           "kOperatorRight And kConversionIn"),
    Member("OfNilReceivers", "Nil as a receiver of $", [
        yes("$.IsNan of Nil", "none.IsNan"),
        text("$.GetStringValue of Nil", 'none.GetStringValue(10, False, 15, -1, True, ".")', "NaN"),
        *(Fails(f"$.{name} of Nil", f"x = none.{name}", f'"{name} operation failed with number nil."')
          for name in ("Ceil", "Floor", "Round", "Sqrt")),
        *(Fails(f"$.{name} of Nil", f'x = none.{name}(N("3"){more})',
                f'"{failure} operation failed with numbers nil and 3."')
          for name, failure, more in (("Add", "Add", ", True"), ("Subtract", "Sub", ", True"),
                                      ("Multiply", "Mul", ", True"), ("Divide", "Div", ", True"),
                                      ("Modulate", "Mod", ""), ("Pow", "Pow", ""),
                                      ("BitAnd", "BitwiseAnd", ""), ("BitOr", "BitwiseOr", ""),
                                      ("BitXOr", "BitwiseXor", ""))),
        *(Fails(f"$.{name} of Nil", f"Dim block{name} As MemoryBlock = none.{name}",
                '"Not initialized"', "NilObjectException")
          for name in ("DataMantissa", "DataExponent")),
        Fails("$.DataFlags of Nil", "Dim flags As Integer = none.DataFlags", '"Not initialized"',
              "NilObjectException"),
    ]),
]
