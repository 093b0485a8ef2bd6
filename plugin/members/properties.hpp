// The properties of the number classes, in the order of the table.
#pragma once

#include <array>

#include "number/conversions.hpp"
#include "number/predicates.hpp"
#include "number/raw_access.hpp"
#include "number/text.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The rows of the properties.
template <typename Value, HelpTexts Texts>
auto NumberProperties() {
    using Row = PropertyDescription<Texts>;
    return std::array{
        Row{.name = "IsZero",
            .type = "Boolean",
            .getter = TestValue<Value, "IsZero">([](const auto& value) { return value.IsZero(); }),
            .help = {.section = Section::Tests,
                     .summary = "Whether the number is zero.",
                     .details = "True of NaN and of Nil as well: ask IsNan first where they can "
                                "turn up.",
                     .example = R"(
Dim balance As BigNumberVQZ = "0.00"
Print Str(balance.IsZero))"}},
        Row{.name = "IsNegative",
            .type = "Boolean",
            .getter = TestValue<Value, "IsSign">([](const auto& value) { return value.IsSign(); }),
            .help = {.section = Section::Tests,
                     .summary = "Whether the number is below zero.",
                     .details = "There is no negative zero. Nil and NaN are not negative.",
                     .example = R"(
Dim balance As BigNumberVQZ = "-12.50"
Print Str(balance.IsNegative))"}},
        Row{.name = "IsNan",
            .type = "Boolean",
            .getter = TestValue<Value, "IsNan">([](const auto& value) { return value.IsNan(); }),
            .help = {.section = Section::Tests,
                     .summary = "Whether this is not a number; also true of Nil.",
                     .details = "Comparing cannot tell: NaN compares as equal to 0.",
                     .example = R"(
Dim unassigned As BigNumberVQZ
Print Str(unassigned.IsNan)
Print Str(BigNumberVQZ.Zero.IsNan))"}},
        Row{.name = "IsInteger",
            .type = "Boolean",
            .getter =
                TestValue<Value, "IsInteger">([](const auto& value) { return value.IsInteger(); }),
            .help = {.section = Section::Tests,
                     .summary = "Whether the number has no fraction; also true of NaN and Nil.",
                     .details = "Numbers beyond the precision have no bits left for a fraction and "
                                "are all integers.",
                     .example = R"(
Dim pages As BigNumberVQZ = "120"
Print Str(pages.IsInteger)
Print Str((pages / "7").IsInteger))"}},
        Row{.name = "IntegerValue",
            .type = "Integer",
            .getter = GetProperty<Value, "GetIntegerValue", "IntegerValue", Integer>(),
            .setter = SetProperty<Value, "SetIntegerValue", Integer>(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as an Integer, its fraction cut off.",
                     .details = "An Integer has 64 bits in a 64-bit application and 32 bits in a "
                                "32-bit one. NaN and Nil give 0. Setting it never fails.",
                     .range = "those of Int64 in a 64-bit application, those of Int32 in a 32-bit "
                              "one",
                     .fails = "numbers outside of that range and for numbers between -1 and 0, "
                              "which give 0",
                     .example = R"(
Dim price As BigNumberVQZ = "19.99"
Print Str(price.IntegerValue)
price.IntegerValue = 20
Print price)",
                     .failing = R"(
Dim large As BigNumberVQZ = "1e19"
Print Str(large.IntegerValue)

Dim loss As BigNumberVQZ = "-0.4"
Print Str(loss.IntegerValue))"}},
        Row{.name = "Int64Value",
            .type = "Int64",
            .getter = GetProperty<Value, "GetInt64Value", "Int64Value", std::int64_t>(),
            .setter = SetProperty<Value, "SetInt64Value", std::int64_t>(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as an Int64, its fraction cut off.",
                     .details = "NaN and Nil give 0. Setting it never fails.",
                     .range = "-9223372036854775808 to 9223372036854775807",
                     .fails = "numbers outside of that range and for numbers between -1 and 0, "
                              "which give 0",
                     .example = R"(
Dim stars As BigNumberVQZ = "2e11"
Print Str(stars.Int64Value))",
                     .failing = R"(
Dim loss As BigNumberVQZ = "-0.4"
Print Str(loss.Int64Value))"}},
        Row{.name = "UInt64Value",
            .type = "UInt64",
            .getter = GetProperty<Value, "GetUInt64Value", "UInt64Value", std::uint64_t>(),
            .setter = SetProperty<Value, "SetUInt64Value", std::uint64_t>(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as a UInt64, its fraction cut off.",
                     .details = "NaN and Nil give 0. Setting it never fails.",
                     .range = "0 to 18446744073709551615",
                     .fails = "negative numbers and numbers beyond that range, which give 0",
                     .example = R"(
Dim two As BigNumberVQZ = "2"
Print Str((two ^ "64" - "1").UInt64Value))",
                     .failing = R"(
Dim debt As BigNumberVQZ = "-1"
Print Str(debt.UInt64Value))"}},
        Row{.name = "DoubleValue",
            .type = "Double",
            .getter = GetProperty<Value, "GetDoubleValue", "DoubleValue", double>(),
            .setter = SetProperty<Value, "SetDoubleValue", double>(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as a Double, cut to the precision of one.",
                     .details =
                         "Bits beyond those of a Double are cut off, not rounded, so 0.1 "
                         "does not give the Double 0.1. Setting it takes the Double with all "
                         "its bits, which is seldom the decimal number that the program "
                         "shows. NaN and Nil give 0.",
                     .range = "-1.7976931348623157e+308 to 1.7976931348623157e+308",
                     .fails = "numbers too large or too small for a Double, which give 0",
                     .example = R"(
Dim tenth As BigNumberVQZ = "0.1"
Print Str(tenth.DoubleValue)
tenth.DoubleValue = 0.1
Print tenth)",
                     .failing = R"(
Dim large As BigNumberVQZ = "1e400"
Print Str(large.DoubleValue))"}},
        Row{.name = "StringValue",
            .type = "String",
            .getter = GetText<Value, "GetStringValue", "StringValue">(),
            .setter = SetText<Value, "SetStringValue", "StringValue">(),
            .help = {.section = Section::Text,
                     .summary = "The number as text in base 10.",
                     .details = "The text is rounded to at most 77 significant digits "
                                "(BiggerNumberVQZ: 617). From 10^16 on it is scientific; "
                                "GetStringValue moves that limit, and then zeros stand in the "
                                "places of an integer after the digits. NaN and Nil give NaN. "
                                "Setting it reads as far as a number goes, takes a point or a "
                                "comma for the decimal mark, and gives 0 where there is none; the "
                                "old value is gone in any case. Scientific text, whose fraction is "
                                "rounded as it is read, can miss the integer that it was written "
                                "for: Round it, or write the integer without an exponent.",
                     .fails = "a text, when it is set, whose exponent is beyond the range",
                     .example = R"(
Dim price As New BigNumberVQZ
price.StringValue = "19,9900 EUR"
Print price.StringValue
price.StringValue = "1e15"
Print price.StringValue)",
                     .failing = R"(
Dim huge As New BigNumberVQZ
huge.StringValue = "1e99999999999999999999")"}},
        Row{.name = "CurrencyValue",
            .type = "Currency",
            .getter = GetCurrency<Value, "GetCurrencyValue", "CurrencyValue">(),
            .setter = SetProperty<Value, "SetCurrencyValue", CurrencyAmount>(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as a Currency, rounded to four decimal places.",
                     .details = "Halves are rounded away from zero. But few halves are exact: "
                                "the number of 2.00005 is less than that and gives 2, while "
                                "GetStringValue, which rounds the decimal digits, writes 2.0001. "
                                "NaN and Nil give 0. Setting it never fails.",
                     .range = "-922337203685477.5808 to 922337203685477.5807",
                     .fails = "amounts outside of that range, which give 0. But positive numbers "
                              "above about Max / 10,000 give 0 without an exception",
                     .example = R"(
Dim amount As BigNumberVQZ = "1.23456"
Print Str(amount.CurrencyValue)
Dim price As Currency = 19.99
amount.CurrencyValue = price
Print amount)",
                     .failing = R"(
Dim fortune As BigNumberVQZ = "1e15"
Print Str(fortune.CurrencyValue))"}},
        Row{.name = "VariantValue",
            .type = "Variant",
            .getter = GetVariant<Value, "GetVariantValue">(),
            .setter = SetVariant<Value, "SetVariantValue">(),
            .help = {.section = Section::HostValues,
                     .summary = "The number as a Variant: an Int32 or Int64 when it is one, else "
                                "text.",
                     .details = "Integers beyond Int64 become text too. It can be set from "
                                "numbers of every kind, text, dates (as seconds), Booleans, "
                                "colours and numbers of the same class; a Double keeps its full "
                                "precision, and Nil gives 0.",
                     .fails =
                         "a Variant, when it is set, that holds anything else, which leaves 0, and "
                         "for a text with an exponent beyond the range, which leaves NaN",
                     .example = R"(
Dim number As BigNumberVQZ = "12"
Dim v As Variant = number.VariantValue
Print Str(v.Type)
number.VariantValue = 0.5
Print number)",
                     .failing = R"(
Dim number As BigNumberVQZ = "12"
number.VariantValue = New MemoryBlock(4)

Dim number As BigNumberVQZ = "12"
number.VariantValue = "1e99999999999999999999")"}},
        Row{.name = "DataMantissa",
            .type = "MemoryBlock",
            .getter = GetPart<Value, &Value::mantissa>(),
            .setter = SetPart<Value, &Value::mantissa, "DataMantissa">(),
            .help = {.section = Section::Inside,
                     .summary = "The bytes of the mantissa, least significant first.",
                     .details = "32 bytes in a BigNumberVQZ, 256 in a BiggerNumberVQZ, always a "
                                "copy. Any content can be set; it is neither checked nor changed.",
                     .units = "bytes",
                     .fails = "Nil objects, and for a block, when it is set, that is Nil or of "
                              "another size",
                     .example = R"(
Dim one As BigNumberVQZ = "1"
Dim bytes As MemoryBlock = one.DataMantissa
Print Str(bytes.Size)
Print Str(bytes.Byte(31)))",
                     .failing = R"(
Dim number As BigNumberVQZ = "1"
number.DataMantissa = New MemoryBlock(31)

Dim number As BigNumberVQZ = "1"
number.DataMantissa = Nil

Dim unassigned As BigNumberVQZ
Print Str(unassigned.DataMantissa.Size))"}},
        Row{.name = "DataExponent",
            .type = "MemoryBlock",
            .getter = GetPart<Value, &Value::exponent>(),
            // Its failures name the other property; the help says so.
            .setter = SetPart<Value, &Value::exponent, "DataMantissa">(),
            .help = {.section = Section::Inside,
                     .summary = "The bytes of the signed exponent, least significant first.",
                     .details = "8 bytes in a BigNumberVQZ, 64 in a BiggerNumberVQZ. A number is "
                                "its mantissa times 2 to the power of its exponent. A wrong size "
                                "is reported under the name DataMantissa.",
                     .units = "bytes",
                     .fails = "Nil objects, and for a block, when it is set, that is Nil or of "
                              "another size",
                     .example = R"(
Dim one As BigNumberVQZ = "1"
Print Str(one.DataExponent.Int64Value(0)))",
                     .failing = R"(
Dim number As BigNumberVQZ = "1"
number.DataExponent = New MemoryBlock(9)

Dim number As BigNumberVQZ = "1"
number.DataExponent = Nil

Dim unassigned As BigNumberVQZ
Print Str(unassigned.DataExponent.Size))"}},
        Row{.name = "DataFlags",
            .type = "Integer",
            .getter = GetFlags<Value>(),
            .setter = SetFlags<Value>(),
            .help = {.section = Section::Inside,
                     .summary = "The flags: 128 negative, 64 not a number, 32 zero.",
                     .details = "Setting it keeps the lowest 8 bits.",
                     .range = "0 to 255",
                     .fails = "Nil objects",
                     .example = R"(
Dim debt As BigNumberVQZ = "-5"
Print Str(debt.DataFlags)
Print Str(BigNumberVQZ.Nan.DataFlags))",
                     .failing = R"(
Dim unassigned As BigNumberVQZ
Print Str(unassigned.DataFlags))"}},
    };
}

/// The rows of the shared properties, which both classes have in common.
template <HelpTexts Texts>
auto NumberSharedProperties() {
    namespace flags = host_interface::flags;
    return std::array{PropertyDescription<Texts>{
        .name = "Debugging",
        .type = "Boolean",
        .getter = MakeUnguardedRoutine<Unguarded::NothingThrows, NotLogged>(
            [] { return AsBooleanWord(DebugEnabled); }),
        .setter = MakeUnguardedRoutine<Unguarded::NothingThrows, NotLogged>(
            [](BooleanWord value) { DebugEnabled = IsTrue(value); }),
        .flags = flags::RunTimeOnly | flags::AllTargets | flags::PublicScope,
        .hidden = true,
        .help = {.section = Section::Inside,
                 .summary = "Whether the plug-in writes its debug log.",
                 .details = "One switch for both classes. It is on from the start when the "
                            "environment variable VQZDEBUG is 1, true or yes.",
                 .example = R"(
Print Str(BigNumberVQZ.Debugging)
BigNumberVQZ.Debugging = True
Print Str(BiggerNumberVQZ.Debugging)
BigNumberVQZ.Debugging = False)"}}};
}

}  // namespace vqz
