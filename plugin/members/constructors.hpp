// The constructors of the number classes, in the order of the table.
#pragma once

#include <array>
#include <cstdint>

#include "number/conversions.hpp"
#include "number/lifecycle.hpp"
#include "number/text.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The routine of "Constructor(value as String)" and of "Operator_Convert(value as String)".
template <typename Value>
NamedRoutine ConstructFromBase10() {
    return ConstructFromText<Value, "ConstructorString", "Constructor">();
}

/// The rows of the constructors.
template <typename Value, HelpTexts Texts>
auto NumberConstructors() {
    using Row = MethodDescription<Texts>;
    return std::array{
        Row{"Constructor",
            ConstructEmpty<Value, "ConstructorEmpty">(),
            {.section = Section::Making, .summary = "Makes 0.", .example = R"(
Dim sum As New BigNumberVQZ
Print sum)"}},
        Row{"Constructor(value as String)",
            ConstructFromBase10<Value>(),
            {.section = Section::Making,
             .summary = "Makes the number that a text in base 10 shows.",
             .details = "Reads as far as a number goes and takes a point or a comma for the "
                        "decimal mark. A text without a number makes 0. A fraction is rounded as "
                        "it is read, and an exponent multiplies what it has become: Round the "
                        "number of 1.016e3 to get 1016. The message of a failure has nil for the "
                        "number, which is not there yet.",
             .fails = "an exponent beyond the range",
             .example = R"(
Dim price As New BigNumberVQZ("19.99")
Print price)",
             .failing = R"(
Dim huge As New BigNumberVQZ("1e99999999999999999999"))"}},
        Row{"Constructor(value as Int32)",
            ConstructFrom<Value, "ConstructorInt32", std::int32_t>(),
            {.section = Section::Making, .summary = "Makes the number of an Int32.", .example = R"(
Dim count As Int32 = -2147483648
Dim number As New BigNumberVQZ(count)
Print number)"}},
        Row{"Constructor(value as Int64)",
            ConstructFrom<Value, "ConstructorInt64", std::int64_t>(),
            {.section = Section::Making, .summary = "Makes the number of an Int64.", .example = R"(
Dim stars As Int64 = 200000000000
Dim number As New BigNumberVQZ(stars)
Print number)"}},
        Row{"Constructor(value as UInt32)",
            ConstructFrom<Value, "ConstructorUInt32", std::uint32_t>(),
            {.section = Section::Making, .summary = "Makes the number of a UInt32.", .example = R"(
Dim address As UInt32 = 4294967295
Dim number As New BigNumberVQZ(address)
Print number)"}},
        Row{"Constructor(value as UInt64)",
            ConstructFrom<Value, "ConstructorUInt64", std::uint64_t>(),
            {.section = Section::Making, .summary = "Makes the number of a UInt64.", .example = R"(
Dim grains As UInt64 = 18446744073709551615
Dim number As New BigNumberVQZ(grains)
Print number.GetStringValue(10, False, 20))"}},
        Row{"Constructor(value as Double)",
            ConstructFrom<Value, "ConstructorDouble", double>(),
            {.section = Section::Making,
             .summary = "Makes the exact number of a Double.",
             .details = "Infinite Doubles and those that are no number make NaN.",
             .example = R"(
Dim tenth As Double = 0.1
Dim number As New BigNumberVQZ(tenth)
Print number)"}},
        Row{"Constructor(value as Single)",
            ConstructFrom<Value, "ConstructorSingle", float>(),
            {.section = Section::Making,
             .summary = "Makes the exact number of a Single.",
             .details = "Infinite Singles and those that are no number make NaN.",
             .example = R"(
Dim tenth As Single = 0.1
Dim number As New BigNumberVQZ(tenth)
Print number)"}},
        Row{"Constructor(value as Currency)",
            ConstructFrom<Value, "ConstructorCurrency", CurrencyAmount>(),
            {.section = Section::Making,
             .summary = "Makes the number of a Currency.",
             .example = R"(
Dim price As Currency = 19.99
Dim number As New BigNumberVQZ(price)
Print number)"}},
        Row{Declaration<Value, "Constructor(other as $)">,
            ConstructCopy<Value, "ConstructorCopy">(),
            {.section = Section::Making,
             .summary = "Makes a copy; Nil gives NaN.",
             .details = "Assigning a number to another variable makes no copy: both variables "
                        "name one number then.",
             .example = R"(
Dim price As New BigNumberVQZ("19.99")
Dim rounded As New BigNumberVQZ(price)
rounded.IntegerValue = 20
Print price)"}},
    };
}

}  // namespace vqz
