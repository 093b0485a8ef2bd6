"""Which failures each entry of the number classes has, by the exception that a program sees.

An entry is named by its kind, its name and, where that is not enough, how many arguments it takes.
"""

import itertools

NUMBER_ERROR = "BigNumberErrorExceptionVQZ: "

# How messages show an operand: a number, not a number, Nil. A number without a text of its own in
# base 10, its exponent being too large, is shown as "overflow" and is a number, too.
NUMBER, NAN, NIL = "#", "NaN", "nil"


def of_two(name: str) -> list[str]:
    """The messages of an operation of two numbers: of two numbers, or with a NaN or Nil among them."""
    operands = [(NUMBER, NUMBER), (NAN, NUMBER), (NUMBER, NAN), (NIL, NUMBER), (NUMBER, NIL)]
    return [f"{NUMBER_ERROR}{name} operation failed with numbers {first} and {second}."
            for first, second in operands]


def of_result_and(name: str, *operands: str) -> list[str]:
    """The messages of an operation that shows its result, a NaN, in place of the receiver."""
    return [f"{NUMBER_ERROR}{name} operation failed with numbers {NAN} and {operand}."
            for operand in operands]


def of_one(name: str, *operands: str) -> list[str]:
    """The messages of an operation of one number."""
    return [f"{NUMBER_ERROR}{name} operation failed with number {operand}."
            for operand in operands or (NUMBER, NAN, NIL)]


def by_name(name: str) -> list[str]:
    """The message of an operation that shows no number."""
    return [f"{NUMBER_ERROR}{name} operation failed."]


NOT_INITIALIZED = "NilObjectException: Not initialized"
NO_BLOCK = "NilObjectException: MemoryBlock is nil"
WRONG_SIZES = [f"OutOfBoundsException: The parameter MemoryBlock.Size to method DataMantissa is too "
               f"{word}. Range is # to #, but value is #." for word in ("small", "big")]
NO_MEMORY_FOR_BLOCK = "OutOfMemoryException: Failed to allocate a memoryblock with # bytes in size."
NOT_CONVERTED = "UnsupportedOperationException: Conversion not supported."

FAILURES: dict[str, list[str]] = {
    "property IntegerValue get": of_one("IntegerValue", NUMBER, NAN),
    "property Int64Value get": of_one("Int64Value", NUMBER, NAN),
    "property UInt64Value get": of_one("UInt64Value", NUMBER, NAN),
    "property DoubleValue get": of_one("DoubleValue", NUMBER),
    "property CurrencyValue get": by_name("CurrencyValue"),
    # Base 10 is right for every number; only one with too large an exponent has no text in it.
    "property StringValue get": of_one("StringValue", NUMBER),
    "property StringValue set": of_one("StringValue", NUMBER, NAN),
    "property VariantValue get": of_one("StringValue", NUMBER),
    "property VariantValue set": [*of_one("StringValue", NUMBER), NOT_CONVERTED],
    "property DataMantissa get": [NOT_INITIALIZED, NO_MEMORY_FOR_BLOCK],
    "property DataMantissa set": [NOT_INITIALIZED, NO_BLOCK, *WRONG_SIZES],
    "property DataExponent get": [NOT_INITIALIZED, NO_MEMORY_FOR_BLOCK],
    "property DataExponent set": [NOT_INITIALIZED, NO_BLOCK, *WRONG_SIZES],
    "property DataFlags get": [NOT_INITIALIZED],
    "property DataFlags set": [NOT_INITIALIZED],

    # Rounding to integers fails with NaN and Nil only.
    "method Ceil": of_one("Ceil", NAN, NIL),
    "method Floor": of_one("Floor", NAN, NIL),
    "method Round": of_one("Round", NAN, NIL),
    "method Sqrt": of_one("Sqrt"),
    "method Add": of_two("Add"),
    "method Subtract": of_two("Sub"),
    "method Multiply 2": of_two("Mul"),
    "method Multiply 1": of_result_and("Multiply", NUMBER),
    "method Divide": of_two("Div"),
    "method Modulate": of_two("Mod"),
    "method Pow": of_two("Pow"),
    "method BitAnd": of_two("BitwiseAnd"),
    "method BitOr": of_two("BitwiseOr"),
    "method BitXOr": of_two("BitwiseXor"),
    # An invalid base makes numbers fail, but not NaN and Nil. More digits than a text can have are the
    # one way to reach the guard without a failing allocation.
    "method GetStringValue": [*of_one("DoubleValue", NUMBER),
                              "RuntimeException: C++ Exception: basic_string::_M_create"],
    "method StringValue call": of_one("StringValue", NUMBER),
    "method StringValue set": of_one("StringValue", NUMBER, NAN),
    "method SetStringValue": of_one("SetStringValue", NUMBER, NAN),

    # The message shows what the object held before: nothing in a new one.
    "method Constructor(value as String)": of_one("Constructor", NUMBER, NIL),
    "method Operator_Convert(value as String)": of_one("Constructor", NUMBER, NIL),

    "shared method Log": of_two("Log"),
    "shared method Root": by_name("Root"),
    "shared method NumberWithString": by_name("Constructor"),
    "shared method NumberWithVariant": [*by_name("Constructor"), NOT_CONVERTED],
}

for name, side in itertools.product(("Add", "Subtract", "Multiply", "Divide"), ("", "Right")):
    FAILURES[f"method Operator_{name}{side}"] = of_two(f"Operator_{name}")
for side in ("", "Right"):
    FAILURES[f"method Operator_IntegerDivide{side}"] = of_result_and(
        "Operator_IntegerDivide", NUMBER, NAN, NIL)
    FAILURES[f"method Operator_Modulo{side}"] = of_two("Mod")
    FAILURES[f"method Operator_Power{side}"] = of_two("Pow")
for name in ("Sin", "Cos", "Tan", "Cot", "ASin", "ACos", "Sinh", "Cosh", "Tanh", "Coth", "ASinh",
             "ACosh", "ATanh", "ACoth", "RadToDeg", "GradToRad", "RadToGrad", "GradToDeg", "Exp",
             "Ln"):
    FAILURES[f"shared method {name}"] = of_one(name)
for name in ("DegToRad", "DegToGrad"):
    FAILURES[f"shared method {name} 1"] = of_one(name)
for name in ("DegToDeg", "DegToRad", "DegToGrad"):
    FAILURES[f"shared method {name} 3"] = by_name(name)
