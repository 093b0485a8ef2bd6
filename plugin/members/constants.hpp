// The constants of the number classes and the random number, in the order of the table.
#pragma once

#include <array>

#include "number/ops/plain_operations.hpp"
#include "number/ops/random_number.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The rows of the constants and of the random number.
template <typename Value, HelpTexts Texts>
auto NumberConstants() {
    using Row = MethodDescription<Texts>;
    return std::array{
        Row{Declaration<Value, "Min as $">,
            Constant<Value>([](auto& value) { value.SetMin(); }),
            {.section = Section::Constants,
             .summary = "The most negative finite number.",
             .details = "Its text in base 10 cannot always be read again, like that of Max.",
             .example = R"(
Print BigNumberVQZ.Min)"}},
        Row{Declaration<Value, "Max as $">,
            Constant<Value>([](auto& value) { value.SetMax(); }),
            {.section = Section::Constants,
             .summary = "The largest finite number.",
             .details =
                 "Its text in base 10 is rounded. That of BigNumberVQZ is rounded up, beyond "
                 "the range, and cannot be read again; the raw data keeps it.",
             .example = R"(
Print BigNumberVQZ.Max)"}},
        Row{Declaration<Value, "Zero as $">,
            Constant<Value>([](auto& value) { value.SetZero(); }),
            {.section = Section::Constants, .summary = "0.", .example = R"(
Print BigNumberVQZ.Zero)"}},
        Row{Declaration<Value, "One as $">,
            Constant<Value>([](auto& value) { value.SetOne(); }),
            {.section = Section::Constants, .summary = "1.", .example = R"(
Print BigNumberVQZ.One)"}},
        Row{Declaration<Value, "Nan as $">,
            Constant<Value>([](auto& value) { value.SetNan(); }),
            {.section = Section::Constants,
             .summary = "Not a number.",
             .details = "It compares as equal to 0; IsNan tells it from 0.",
             .example = R"(
Print BigNumberVQZ.Nan
Print Str(BigNumberVQZ.Nan.IsNan))"}},
        Row{Declaration<Value, "Pi as $">,
            Constant<Value>([](auto& value) { value.SetPi(); }),
            {.section = Section::Constants, .summary = "The circle constant.", .example = R"(
Print BigNumberVQZ.Pi
Print BiggerNumberVQZ.Pi)"}},
        Row{Declaration<Value, "HalfPi as $">,
            Constant<Value>([](auto& value) { value.Set05Pi(); }),
            {.section = Section::Constants,
             .summary = "Half of the circle constant.",
             .example = R"(
Print BigNumberVQZ.HalfPi)"}},
        Row{Declaration<Value, "TwoPi as $">,
            Constant<Value>([](auto& value) { value.Set2Pi(); }),
            {.section = Section::Constants, .summary = "Twice the circle constant.", .example = R"(
Print BigNumberVQZ.TwoPi)"}},
        Row{Declaration<Value, "E as $">,
            Constant<Value>([](auto& value) { value.SetE(); }),
            {.section = Section::Constants,
             .summary = "The base of the natural logarithm.",
             .example = R"(
Print BigNumberVQZ.E)"}},
        Row{Declaration<Value, "Ln2 as $">,
            Constant<Value>([](auto& value) { value.SetLn2(); }),
            {.section = Section::Constants, .summary = "The natural logarithm of 2.", .example = R"(
Print BigNumberVQZ.Ln2)"}},
        Row{Declaration<Value, "Ln10 as $">,
            Constant<Value>([](auto& value) { value.SetLn10(); }),
            {.section = Section::Constants,
             .summary = "The natural logarithm of 10.",
             .example = R"(
Print BigNumberVQZ.Ln10)"}},
        Row{Declaration<Value, "Rand as $">,
            RandomNumber<Value, "GetRand">(),
            {.section = Section::Constants,
             .summary = "A positive number of random mantissa and random exponent: anywhere in the "
                        "class's range, not in [0, 1).",
             .details = "Each call makes another number. The example makes a random integer of as "
                        "many bits as it says.",
             .range = "all positive numbers of the class",
             .example = R"(
Dim bits As Integer = 100
Dim two As BigNumberVQZ = "2"
Dim bytes As MemoryBlock = BigNumberVQZ.Rand.DataMantissa
Dim random As New BigNumberVQZ
For i As Integer = 0 To 31
  random = random * "256" + BigNumberVQZ.NumberWithInteger(bytes.Byte(i))
Next
random = (random / two ^ "156").Floor
Print Str(random >= "0" And random < two ^ "100"))"}},
    };
}

}  // namespace vqz
