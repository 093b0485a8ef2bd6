// The operators of the number classes, in the order of the table. The form that the host calls on
// the right operand has the same routine as the left form: the receiver is the left operand in
// both.
#pragma once

#include <array>

#include "number/ops/carry_operations.hpp"
#include "number/ops/plain_operations.hpp"
#include "number/text.hpp"
#include "plugin/members/constructors.hpp"
#include "plugin/members/description.hpp"
#include "plugin/members/methods.hpp"

namespace vqz {

/// The rows of the operators.
template <typename Value, HelpTexts Texts>
auto NumberOperators() {
    using Row = MethodDescription<Texts>;
    const NamedRoutine add = TwoNumbersOrCarry<Value, "Operator_Add">(
        [](auto& me, const auto& other) { return me.Add(other, true, true); });
    const NamedRoutine subtract = TwoNumbersOrCarry<Value, "Operator_Subtract">(
        [](auto& me, const auto& other) { return me.Add(other, true, false); });
    const NamedRoutine multiply = TwoNumbersOrCarry<Value, "Operator_Multiply">(
        [](auto& me, const auto& other) { return me.Mul(other, true); });
    const NamedRoutine divide = TwoNumbersOrCarry<Value, "Operator_Divide">(
        [](auto& me, const auto& other) { return me.Div(other, true); });
    const NamedRoutine integerDivide = IntegerDivide<Value, "Operator_IntegerDivide">();

    return std::array{
        Row{"Operator_Convert(value as String)",
            ConstructFromBase10<Value>(),
            {.section = Section::Operators,
             .summary = "Makes the number that a text in base 10 shows.",
             .details = "Works wherever a number is wanted and a text is given, also for arguments "
                        "and beside operators. The message of a failure has nil for the number, "
                        "which is not there yet.",
             .fails = "an exponent beyond the range",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Print price + "0.01")",
             .failing = R"(
Dim huge As BigNumberVQZ = "1e99999999999999999999")"}},
        Row{"Operator_Convert as String",
            ConvertToText<Value, "GetStringValue", "StringValue">(),
            {.section = Section::Operators,
             .summary = "The number as text in base 10, with all its digits.",
             .details = "Works wherever a text is wanted. Beside + it does not: there the text "
                        "becomes a number.",
             .example = R"(
Dim price As BigNumberVQZ = "19.99"
Dim label As String = price
Print label + " EUR")"}},
        Row{Declaration<Value, "Operator_Add(other as $) as $">,
            add,
            {.section = Section::Operators,
             .summary = "The sum: Self + other.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Dim b As BigNumberVQZ = "-4"
Print a + b)",
             .failing = R"(
Dim a As BigNumberVQZ = "12.5"
Print a + BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_AddRight(other as $) as $">,
            add,
            {.section = Section::Operators,
             .summary = "The sum, for a text on the left: Self + other.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print "4" + a)",
             .failing = R"(
Print "4" + BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_Subtract(other as $) as $">,
            subtract,
            {.section = Section::Operators,
             .summary = "The difference: Self - other.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Dim b As BigNumberVQZ = "-4"
Print a - b)",
             .failing = R"(
Dim a As BigNumberVQZ = "12.5"
Print a - BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_SubtractRight(other as $) as $">,
            subtract,
            {.section = Section::Operators,
             .summary = "For a text on the left: still Self - other, the operands are not swapped.",
             .details = "With a text on the left the number is still what is subtracted from.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print "10" - a)",
             .failing = R"(
Print "10" - BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_Multiply(other as $) as $">,
            multiply,
            {.section = Section::Operators,
             .summary = "The product: Self * other.",
             .details = "A power of 2 as a factor shifts the bits to the left, and loses none.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Dim b As BigNumberVQZ = "-4"
Print a * b)",
             .failing = R"(
Dim a As BigNumberVQZ = "12.5"
Print a * BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_MultiplyRight(other as $) as $">,
            multiply,
            {.section = Section::Operators,
             .summary = "The product, for a text on the left: Self * other.",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print "4" * a)",
             .failing = R"(
Print "4" * BigNumberVQZ.Nan)"}},
        Row{Declaration<Value, "Operator_Divide(other as $) as $">,
            divide,
            {.section = Section::Operators,
             .summary = "The quotient: Self / other.",
             .fails = "division by zero, for results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Dim b As BigNumberVQZ = "-4"
Print a / b)",
             .failing = R"(
Dim a As BigNumberVQZ = "12.5"
Print a / "0")"}},
        Row{Declaration<Value, "Operator_DivideRight(other as $) as $">,
            divide,
            {.section = Section::Operators,
             .summary = "For a text on the left: still Self / other, the operands are not swapped.",
             .details = "With a text on the left the number is still what is divided.",
             .fails = "division by zero, for results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print "10" / a)",
             .failing = R"(
Dim a As BigNumberVQZ = "12.5"
Print "0" / a)"}},
        Row{Declaration<Value, "Operator_IntegerDivide(other as $) as $">,
            integerDivide,
            {.section = Section::Operators,
             .summary = "The integer part of Self / other, cut toward zero.",
             .details = "A power of 2 as a divisor shifts the bits of an integer to the right. A "
                        "failure shows the quotient as it was left instead of the number.",
             .fails = "division by zero, for results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "-7"
Print a \ "2")",
             .failing = R"(
Dim a As BigNumberVQZ = "-7"
Print a \ "0")"}},
        Row{Declaration<Value, "Operator_IntegerDivideRight(other as $) as $">,
            integerDivide,
            {.section = Section::Operators,
             .summary =
                 "For a text on the left: still the integer part of Self / other, not swapped.",
             .details = "With a text on the left the number is still what is divided.",
             .fails = "division by zero, for results beyond the range, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "-7"
Print "2" \ a)",
             .failing = R"(
Dim a As BigNumberVQZ = "-7"
Print "0" \ a)"}},
        Row{Declaration<Value, "Operator_Modulo(other as $) as $">,
            Remainder<Value>(),
            {.section = Section::Operators,
             .summary = "The remainder of Self / other, with the sign of Self.",
             .details = "A quotient with more bits than the class leaves nothing of the remainder: "
                        "it is 0 then, or the operator fails.",
             .fails =
                 "division by zero, for some quotients with more bits than the class, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "-7"
Print a Mod "2")",
             .failing = R"(
Dim a As BigNumberVQZ = "-7"
Print a Mod "0")"}},
        Row{Declaration<Value, "Operator_ModuloRight(other as $) as $">,
            Remainder<Value>(),
            {.section = Section::Operators,
             .summary = "For a text on the left: still the remainder of Self / other, not swapped.",
             .details = "With a text on the left the number is still what is divided.",
             .fails =
                 "division by zero, for some quotients with more bits than the class, NaN and Nil",
             .example = R"(
Dim a As BigNumberVQZ = "-7"
Print "2" Mod a)",
             .failing = R"(
Dim a As BigNumberVQZ = "-7"
Print "0" Mod a)"}},
        Row{Declaration<Value, "Operator_Negate as $">,
            OneNumber<Value, "Operator_Negate">([](auto& me) { me.ChangeSign(); }),
            {.section = Section::Operators,
             .summary = "The opposite number, -Self; zero stays zero.",
             .details = "NaN and Nil give NaN.",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print -a)"}},
        Row{Declaration<Value, "Operator_Power(other as $) as $">,
            Power<Value>(),
            {.section = Section::Operators,
             .summary = "The power: Self ^ other.",
             .fails = "0 to a power of 0 or below, for negative numbers to powers that are no "
                      "integers, for results beyond the range, NaN and Nil",
             .example = R"(
Dim two As BigNumberVQZ = "2"
Print two ^ "100")",
             .failing = R"(
Print BigNumberVQZ.Zero ^ "0")"}},
        Row{Declaration<Value, "Operator_PowerRight(other as $) as $">,
            Power<Value>(),
            {.section = Section::Operators,
             .summary = "For a text on the left: still Self ^ other, the operands are not swapped.",
             .details = "With a text on the left the number is still the one that is raised.",
             .fails = "0 to a power of 0 or below, for negative numbers to powers that are no "
                      "integers, for results beyond the range, NaN and Nil",
             .example = R"(
Dim three As BigNumberVQZ = "3"
Print "2" ^ three)",
             .failing = R"(
Print "0" ^ BigNumberVQZ.Zero)"}},
        Row{Declaration<Value, "Operator_Compare(other as $) as Integer">,
            CompareTwoNumbers<Value, "Operator_Compare">(),
            {.section = Section::Operators,
             .summary = "-1, 0 or 1 when Self is less than, equal to or greater than other.",
             .details = "The host calls it for =, <>, <, <=, > and >=. NaN and Nil compare as 0. "
                        "The smaller of two numbers is `If(a < b, a, b)`.",
             .range = "-1, 0 or 1",
             .example = R"(
Dim a As BigNumberVQZ = "12.5"
Print Str(a > "12.49")
Print Str(a = "12.50")
Print Str(a.Operator_Compare("13")))"}},
    };
}

}  // namespace vqz
