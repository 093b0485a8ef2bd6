// The shared methods of the number classes that make a number from a host value, and the one that
// returns the name of ttmath's build, in the order of the table.
#pragma once

#include <array>
#include <cstdint>

#include "host/strings.hpp"
#include "number/conversions.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The rows of these methods but the last one of the table.
template <typename Value, HelpTexts Texts>
auto NumberMakers() {
    using Row = MethodDescription<Texts>;
    return std::array{
        Row{.declaration = "LibTypeStr as String",
            .function = MakeUnguardedRoutine<Unguarded::NothingThrows, NotLogged>(
                [] { return CString2RB(Value::LibTypeStr(), HostTextEncoding::Ascii).Release(); }),
            .help = {.section = Section::Inside,
                     .summary = "The name of the arithmetic library's build.",
                     .example = R"(
Print BigNumberVQZ.LibTypeStr)"},
            .hidden = true},
        Row{Declaration<Value, "NumberWithInteger(value as Integer) as $">,
            NumberWith<Value, "NumberWithInteger", Integer>(),
            {.section = Section::Making,
             .summary = "The number of an Integer.",
             .details = "An Integer has 64 bits in a 64-bit application and 32 bits in a "
                        "32-bit one.",
             .example = R"(
Dim value As Integer = -42
Print BigNumberVQZ.NumberWithInteger(value))"}},
        Row{Declaration<Value, "NumberWithInt64(value as Int64) as $">,
            NumberWith<Value, "NumberWithInt64", std::int64_t>(),
            {.section = Section::Making, .summary = "The number of an Int64.", .example = R"(
Dim value As Int64 = -200000000000
Print BigNumberVQZ.NumberWithInt64(value))"}},
        Row{Declaration<Value, "NumberWithInt32(value as Int32) as $">,
            NumberWith<Value, "NumberWithInt32", std::int32_t>(),
            {.section = Section::Making, .summary = "The number of an Int32.", .example = R"(
Dim value As Int32 = -42
Print BigNumberVQZ.NumberWithInt32(value))"}},
        Row{Declaration<Value, "NumberWithUInt64(value as UInt64) as $">,
            NumberWith<Value, "NumberWithUInt64", std::uint64_t>(),
            {.section = Section::Making, .summary = "The number of a UInt64.", .example = R"(
Dim value As UInt64 = 200000000000
Print BigNumberVQZ.NumberWithUInt64(value))"}},
        Row{Declaration<Value, "NumberWithUInt32(value as UInt32) as $">,
            NumberWith<Value, "NumberWithUInt32", std::uint32_t>(),
            {.section = Section::Making, .summary = "The number of a UInt32.", .example = R"(
Dim value As UInt32 = 4294967295
Print BigNumberVQZ.NumberWithUInt32(value))"}},
        Row{Declaration<Value, "NumberWithVariant(value as variant) as $">,
            NumberWithVariant<Value, "NumberWithVariant">(),
            {.section = Section::Making,
             .summary = "The number of what a Variant holds; a Double counts as a Single.",
             .details = "Takes numbers of every kind, text, dates (as seconds), Booleans, colours "
                        "and numbers of the same class. Nil gives Nil. The property VariantValue "
                        "keeps a Double's full precision.",
             .fails = "a Variant that holds anything else, which gives Nil, and for a text with an "
                      "exponent beyond the range",
             .example = R"(
Print BigNumberVQZ.NumberWithVariant(0.1)
Print BigNumberVQZ.NumberWithVariant("0.1"))",
             .failing = R"(
Print BigNumberVQZ.NumberWithVariant(New MemoryBlock(4))

Print BigNumberVQZ.NumberWithVariant("1e99999999999999999999"))"}},
        Row{Declaration<Value, "NumberWithSingle(value as single) as $">,
            NumberWith<Value, "NumberWithSingle", float>(),
            {.section = Section::Making,
             .summary = "The exact number of a Single.",
             .details = "Infinite values and those that are no number give NaN.",
             .example = R"(
Dim value As Single = 0.1
Print BigNumberVQZ.NumberWithSingle(value))"}},
        Row{Declaration<Value, "NumberWithDouble(value as double) as $">,
            NumberWith<Value, "NumberWithDouble", double>(),
            {.section = Section::Making,
             .summary = "The exact number of a Double.",
             .details = "Infinite values and those that are no number give NaN. The text \"0.1\" "
                        "makes 0.1 to all digits of the class.",
             .example = R"(
Dim value As Double = 0.1
Print BigNumberVQZ.NumberWithDouble(value))"}},
        Row{Declaration<Value, "NumberWithCurrency(value as Currency) as $">,
            NumberWith<Value, "NumberWithCurrency", CurrencyAmount>(),
            {.section = Section::Making, .summary = "The number of a Currency.", .example = R"(
Dim value As Currency = 19.99
Print BigNumberVQZ.NumberWithCurrency(value))"}},
        Row{Declaration<Value, "NumberWithString(value as String) as $">,
            NumberWithText<Value, "NumberWithString", "Constructor">(),
            {.section = Section::Making,
             .summary = "The number that a text in base 10 shows.",
             .details = "Reads as far as a number goes and takes a point or a comma for the "
                        "decimal mark. A text without a number gives 0. A fraction is rounded as "
                        "it is read, and an exponent multiplies what it has become: Round the "
                        "number of 1.016e3 to get 1016. A failure is reported under the name "
                        "Constructor.",
             .fails = "an exponent beyond the range",
             .example = R"(
Print BigNumberVQZ.NumberWithString("19,99 EUR"))",
             .failing = R"(
Print BigNumberVQZ.NumberWithString("1e99999999999999999999"))"}},
    };
}

/// The last row of the table, which is hidden from hosts that do not know the type UInteger.
template <typename Value, HelpTexts Texts>
auto NumberMakerWithUInteger() {
    return std::array{
        MethodDescription<Texts>{
            Declaration<Value, "NumberWithUInteger(value as UInteger) as $">,
            NumberWith<Value, "NumberWithUInteger", UInteger>(),
            {.section = Section::Making,
             .summary = "The number of a UInteger.",
             .details = "A UInteger has 64 bits in a 64-bit application and 32 bits in a 32-bit "
                        "one. Hosts older than 2015 do not show this method.",
             .example = R"(
Dim value As UInteger = 4294967295
Print BigNumberVQZ.NumberWithUInteger(value))"}},
    };
}

}  // namespace vqz
