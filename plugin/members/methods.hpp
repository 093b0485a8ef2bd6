// The named methods of the number classes, in the order of the table.
#pragma once

#include <array>
#include <cstdint>

#include "number/ops/carry_operations.hpp"
#include "number/ops/error_code_functions.hpp"
#include "number/ops/plain_operations.hpp"
#include "number/predicates.hpp"
#include "number/text.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The routine of "Modulate" and of the operator "Mod" in both forms.
template <typename Value>
NamedRoutine Remainder() {
    return TwoNumbersOrCarry<Value, "Mod">(
        [](auto& me, const auto& other) { return me.Mod(other); });
}

/// The routine of "Pow" and of the operator "^" in both forms.
template <typename Value>
NamedRoutine Power() {
    return TwoNumbersOrCarry<Value, "Pow">(
        [](auto& me, const auto& other) { return me.Pow(other); });
}

/// The rows of the named methods.
template <typename Value, HelpTexts Texts>
auto NumberNamedMethods() {
    using Row = MethodDescription<Texts>;
    return std::array{
        Row{Declaration<Value, "Ceil as $">,
            FunctionOfOne<Value, "Ceil">(
                [](const auto& me, auto* error) { return ttmath::Ceil(me, error); }),
            {.section = Section::Rounding,
             .summary = "The next integer at or above.",
             .fails = "NaN and Nil",
             .example = R"(
Dim weight As BigNumberVQZ = "-2.5"
Print weight.Ceil)",
             .failing = R"(
Print BigNumberVQZ.Nan.Ceil)"}},
        Row{Declaration<Value, "SkipFraction as $">,
            OneNumber<Value, "SkipFraction">([](auto& me) { me.SkipFraction(); }),
            {.section = Section::Rounding,
             .summary = "The integer part, cut toward zero.",
             .details = "NaN and Nil give NaN.",
             .example = R"(
Dim weight As BigNumberVQZ = "-2.5"
Print weight.SkipFraction)"}},
        Row{Declaration<Value, "Frac as $">,
            OneNumber<Value, "Frac">([](auto& me) { me.RemainFraction(); }),
            {.section = Section::Rounding,
             .summary = "The fraction, with the number's sign.",
             .details = "NaN and Nil give NaN.",
             .range = "above -1 and below 1",
             .example = R"(
Dim weight As BigNumberVQZ = "-2.5"
Print weight.Frac)"}},
        Row{Declaration<Value, "Floor as $">,
            FunctionOfOne<Value, "Floor">(
                [](const auto& me, auto* error) { return ttmath::Floor(me, error); }),
            {.section = Section::Rounding,
             .summary = "The next integer at or below.",
             .fails = "NaN and Nil",
             .example = R"(
Dim weight As BigNumberVQZ = "-2.5"
Print weight.Floor)",
             .failing = R"(
Print BigNumberVQZ.Nan.Floor)"}},
        Row{"GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as "
            "Integer = 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = "
            "\".\") as String",
            GetTextFormatted<Value, "GetStringValueExt", "DoubleValue">(),
            {.section = Section::Text,
             .summary = "The number as text in a base of 2 to 16, with the options of the format.",
             .details =
                 "With `scientific` every number has an exponent; without it only where it is "
                 "above `scientificFrom` or below its negative. `round` is the number of "
                 "digits after the point, -1 for all of them; `TrimZeros` drops zeros at "
                 "their end. A number that is 0 is always written as 0, without places; one "
                 "that is rounded to 0 keeps its places and its sign, as in 0.00 and -0.00, or -0 "
                 "with `TrimZeros`. Digits before an exponent that are rounded up to 10 stay "
                 "10: 999.995 with `scientific` and two places is 10e+2. `comma` gives the "
                 "decimal mark by its first byte, so it has to be an ASCII character. In base 10 "
                 "the text is rounded to at most 77 significant digits "
                 "(BiggerNumberVQZ: 617); zeros stand in the places of an integer after them. "
                 "Base 16 shows all that the number holds. A failure is reported under the name "
                 "DoubleValue.",
             .fails = "a base outside of 2 to 16, which gives an empty text",
             .example = R"(
Dim third As BigNumberVQZ = "100"
third = third / "3"
Print third.GetStringValue(10, False, 15, 4, True, ",")
Print third.GetStringValue(10, True, 15, 10)
Print third.GetStringValue(2, False, 15, 8))",
             .failing = R"(
Dim number As BigNumberVQZ = "12.5"
Print number.GetStringValue(17))"}},
        Row{"SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref "
            "ValueRead as boolean)",
            SetTextAndReturnRest<Value, "SetStringValueExt", "SetStringValue">(),
            {.section = Section::Text,
             .summary = "Reads the number from text in a base; tells the rest of the text and "
                        "whether there were digits.",
             .details = "Reads as far as a number goes. Without digits the number is 0 and "
                        "`ValueRead` False: the way to find out that a text is no number.",
             .fails = "a base outside of 2 to 16, and for an exponent beyond the range",
             .example = R"(
Dim length As New BigNumberVQZ
Dim rest As String
Dim found As Boolean
length.SetStringValue("12.5 m", 10, rest, found)
Print length
Print rest
Print Str(found))",
             .failing = R"(
Dim length As New BigNumberVQZ
Dim rest As String
Dim found As Boolean
length.SetStringValue("12.5", 17, rest, found))"}},
        Row{.declaration = "StringValue(Base as Integer) as String",
            .function = GetTextInBase<Value, "GetStringValueBase", "StringValue">(),
            .help = {.section = Section::Text,
                     .summary = "The number as text in a base of 2 to 16; can be assigned to.",
                     .details = "Digits from 10 on are the letters A to F. From base^16 on there "
                                "is an exponent: `*10^21` in base 16 is 16 to the power of 33. It "
                                "is not read again; GetStringValue can write without one. Text in "
                                "base 10 is rounded to at most 77 significant digits "
                                "(BiggerNumberVQZ: 617), text in base 16 is not.",
                     .fails = "a base outside of 2 to 16",
                     .example = R"(
Dim mask As BigNumberVQZ = "255.5"
Print mask.StringValue(16)
mask.StringValue(2) = "-1010.1"
Print mask)",
                     .failing = R"(
Dim number As BigNumberVQZ = "255"
Print number.StringValue(1)

Dim number As BigNumberVQZ = "255"
number.StringValue(17) = "12")"},
            .setter = SetTextInBase<Value, "SetStringValueBase", "StringValue">()},
        Row{Declaration<Value, "Round as $">,
            OneNumberOrCarry<Value, "Round">([](auto& me) { return me.Round(); }),
            {.section = Section::Rounding,
             .summary = "The nearest integer, halves away from zero.",
             .fails = "NaN and Nil",
             .example = R"(
Dim half As BigNumberVQZ = "2.5"
Print half.Round
Print half.Negate.Round)",
             .failing = R"(
Print BigNumberVQZ.Nan.Round)"}},
        Row{Declaration<Value, "Equals(other as $) as Boolean">,
            TestTwoNumbers<Value, "Equals">(
                [](const auto& me, const auto& other) { return me == other; }),
            {.section = Section::Tests,
             .summary = "Whether two numbers are equal.",
             .details = "NaN and Nil count as 0.",
             .example = R"(
Dim price As BigNumberVQZ = "12.5"
Print Str(price.Equals("12.50")))"}},
        Row{Declaration<Value, "Sqrt as $">,
            OneNumberOrCarry<Value, "Sqrt">([](auto& me) { return me.Sqrt(); }),
            {.section = Section::Powers,
             .summary = "The square root.",
             .details = "The roots of squares of integers come out exact.",
             .range = "0 and above",
             .fails = "negative numbers, NaN and Nil",
             .example = R"(
Dim two As BigNumberVQZ = "2"
Print two.Sqrt)",
             .failing = R"(
Dim debt As BigNumberVQZ = "-4"
Print debt.Sqrt)"}},
        Row{Declaration<Value, "Pow(other as $) as $">,
            Power<Value>(),
            {.section = Section::Powers,
             .summary = "The number to the power of the other one.",
             .details = "Exponents may be negative and may have a fraction. Whole exponents are "
                        "computed by multiplying and are the accurate ones.",
             .fails = "0 to a power of 0 or below, for negative numbers to powers that are no "
                      "integers, for results beyond the range, NaN and Nil",
             .example = R"(
Dim two As BigNumberVQZ = "2"
Print two.Pow("200")
Print two.Pow("-3"))",
             .failing = R"(
Dim debt As BigNumberVQZ = "-8"
Print debt.Pow("0.5"))"}},
        Row{"Modulate2 as Integer",
            RemainderOfTwo<Value, "Mod2">(),
            {.section = Section::Arithmetic,
             .summary = "The remainder of the division of the integer part by 2.",
             .details = "Tells odd from even: 1 for every odd number, also for negative ones. NaN "
                        "and Nil give 0.",
             .range = "0 or 1",
             .example = R"(
Dim pages As BigNumberVQZ = "12345678901234567890123"
Print Str(pages.Modulate2))"}},
        Row{Declaration<Value, "Modulate(other as $) as $">,
            Remainder<Value>(),
            {.section = Section::Arithmetic,
             .summary = "The remainder of the division, with the number's sign.",
             .details = "Both numbers may have fractions. A quotient with more bits than the class "
                        "leaves nothing of the remainder: it is 0 then, or the call fails.",
             .fails =
                 "division by zero, for some quotients with more bits than the class, NaN and Nil",
             .example = R"(
Dim seven As BigNumberVQZ = "-7"
Print seven.Modulate("2")
Print seven.Modulate("1.5"))",
             .failing = R"(
Dim seven As BigNumberVQZ = "7"
Print seven.Modulate("0"))"}},
        Row{Declaration<Value, "Divide(other as $, round as boolean = true) as $">,
            TwoNumbersOrCarry<Value, "Div">(
                [](auto& me, const auto& other, bool round) { return me.Div(other, round); }),
            {.section = Section::Arithmetic,
             .summary = "The quotient.",
             .details =
                 "Without `round` the bits beyond the precision are cut off. The operator `/` "
                 "always rounds.",
             .fails = "division by zero, for results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "100"
Print price.Divide("8"))",
             .failing = R"(
Dim price As BigNumberVQZ = "12.5"
Print price.Divide("0"))"}},
        Row{Declaration<Value, "Multiply(other as $, round as boolean = true) as $">,
            TwoNumbersOrCarry<Value, "Mul">(
                [](auto& me, const auto& other, bool round) { return me.Mul(other, round); }),
            {.section = Section::Arithmetic,
             .summary = "The product.",
             .details =
                 "Without `round` the bits beyond the precision are cut off. The operator `*` "
                 "always rounds.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Print price.Multiply("12.5"))",
             .failing = R"(
Dim price As BigNumberVQZ = "19.99"
Print price.Multiply(BigNumberVQZ.Nan))"}},
        Row{Declaration<Value, "Multiply(value as Integer) as $">,
            MultiplyByInteger<Value, "MulInt", "Multiply", Integer>(),
            {.section = Section::Arithmetic,
             .summary = "The product with an Integer.",
             .details = "Needs no number made of the Integer. A failure shows the product as NaN.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Dim count As Integer = -3
Print price.Multiply(count))",
             .failing = R"(
Dim count As Integer = -3
Print BigNumberVQZ.Max.Multiply(count))"}},
        Row{Declaration<Value, "Multiply(value as UInt32) as $">,
            MultiplyByInteger<Value, "MulUInt", "Multiply", std::uint32_t>(),
            {.section = Section::Arithmetic,
             .summary = "The product with a UInt32.",
             .details = "Needs no number made of the UInt32. A failure shows the product as NaN.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Dim count As UInt32 = 4000000000
Print price.Multiply(count))",
             .failing = R"(
Dim count As UInt32 = 4000000000
Print BigNumberVQZ.Max.Multiply(count))"}},
        Row{Declaration<Value, "BitXOr(other as $) as $">,
            TwoNumbersOrCarry<Value, "BitwiseXor">(
                [](auto& me, const auto& other) { return me.BitXor(other); }),
            {.section = Section::Bits,
             .summary = "The bitwise exclusive or of two numbers that are not negative.",
             .details = "The bits of fractions take part.",
             .fails = "negative numbers, NaN and Nil",
             .example = R"(
Dim mask As BigNumberVQZ = "12"
Print mask.BitXOr("10"))",
             .failing = R"(
Dim mask As BigNumberVQZ = "12"
Print mask.BitXOr("-10"))"}},
        Row{Declaration<Value, "BitOr(other as $) as $">,
            TwoNumbersOrCarry<Value, "BitwiseOr">(
                [](auto& me, const auto& other) { return me.BitOr(other); }),
            {.section = Section::Bits,
             .summary = "The bitwise or of two numbers that are not negative.",
             .details = "The bits of fractions take part.",
             .fails = "negative numbers, NaN and Nil",
             .example = R"(
Dim mask As BigNumberVQZ = "12"
Print mask.BitOr("10"))",
             .failing = R"(
Dim mask As BigNumberVQZ = "-12"
Print mask.BitOr("10"))"}},
        Row{Declaration<Value, "BitAnd(other as $) as $">,
            TwoNumbersOrCarry<Value, "BitwiseAnd">(
                [](auto& me, const auto& other) { return me.BitAnd(other); }),
            {.section = Section::Bits,
             .summary = "The bitwise and of two numbers that are not negative.",
             .details = "The bits of fractions take part.",
             .fails = "negative numbers, NaN and Nil",
             .example = R"(
Dim mask As BigNumberVQZ = "12"
Print mask.BitAnd("10"))",
             .failing = R"(
Dim mask As BigNumberVQZ = "12"
Print mask.BitAnd("-10"))"}},
        Row{Declaration<Value, "Subtract(other as $, round as boolean = true) as $">,
            TwoNumbersOrCarry<Value, "Sub">([](auto& me, const auto& other, bool round) {
                return me.Add(other, round, false);
            }),
            {.section = Section::Arithmetic,
             .summary = "The difference.",
             .details =
                 "Without `round` the bits beyond the precision are cut off. The operator `-` "
                 "always rounds.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Print price.Subtract("20"))",
             .failing = R"(
Dim price As BigNumberVQZ = "19.99"
Print price.Subtract(Nil))"}},
        Row{Declaration<Value, "Add(other as $, round as boolean = true) as $">,
            TwoNumbersOrCarry<Value, "Add">(
                [](auto& me, const auto& other, bool round) { return me.Add(other, round, true); }),
            {.section = Section::Arithmetic,
             .summary = "The sum.",
             .details =
                 "Without `round` the bits beyond the precision are cut off. The operator `+` "
                 "always rounds.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Print price.Add("0.01"))",
             .failing = R"(
Dim five As BigNumberVQZ = "5"
Print five.Add(Nil))"}},
        Row{Declaration<Value, "Abs as $">,
            OneNumber<Value, "GetAbs">([](auto& me) { me.Abs(); }),
            {.section = Section::Arithmetic,
             .summary = "The magnitude.",
             .details = "NaN and Nil give NaN.",
             .range = "0 and above",
             .example = R"(
Dim debt As BigNumberVQZ = "-12.5"
Print debt.Abs)"}},
        Row{Declaration<Value, "Negate as $">,
            OneNumber<Value, "ChangeSign">([](auto& me) { me.ChangeSign(); }),
            {.section = Section::Arithmetic,
             .summary = "The number with the opposite sign; zero stays zero.",
             .details = "NaN and Nil give NaN.",
             .example = R"(
Dim debt As BigNumberVQZ = "12.5"
Print debt.Negate)"}},
    };
}

}  // namespace vqz
