// Variants in and out: what each type code becomes, and which Variant a number gives.
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace {

using host_interface::HostTextEncoding;
using tests::Address;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::LogLines;
using tests::NumberClass;
using tests::Object;
using tests::TakeRaised;

constexpr std::string_view Unsupported = "UnsupportedOperationException: Conversion not supported.";

/// What a Variant of a type code is read as: the event that the shared method's log shows for it,
/// nothing for a code that is not taken.
std::string_view EventOf(std::int32_t code) {
    switch (code) {
        case 2:
        case 11:
            return "NumberWithInt32";
        case 3:
            return "NumberWithInt64";
        case 4:
            return "NumberWithSingle";
        case 5:
            return "NumberWithDouble";
        case 6:
            return "NumberWithCurrency";
        case 8:
        case 18:
        case 19:
        case 20:
        case 21:
        case 23:
        case 37:
            return "NumberWithString";
        case 16:
        case 102:
            return "NumberWithUInt32";
        case 103:
            return "NumberWithUInt64";
        default:
            return {};
    }
}

bool IsText(std::int32_t code) {
    return EventOf(code) == "NumberWithString";
}

/// A Variant of any type code that holds 65, as text where the code is one of text.
HeldObject VariantOf(LoadedPlugin& plugin, std::int32_t code) {
    if (IsText(code)) {
        const HeldString text = plugin.MakeString("65");
        return HeldObject(plugin.host().MakeVariant(code, text.Get()));
    }
    const bool real = code == 4 || code == 5;
    const standin::VariantValue value =
        real ? standin::VariantValue(65.0) : standin::VariantValue(std::int64_t{65});
    // A Currency is held as the amount times 10,000.
    constexpr std::int64_t SixtyFiveAsCurrency = 650000;
    return HeldObject(plugin.host().MakeVariant(
        code, code == 6 ? standin::VariantValue(SixtyFiveAsCurrency) : value));
}

HeldObject NumberWith(NumberClass& number, Object variant) {
    return tests::CallRoutine<HeldObject>(
        number.SharedMethod("NumberWithVariant(value as variant) as $").function, variant);
}

}  // namespace

TEST_CASE("Every type code of a Variant becomes a number or is refused") {
    LoadedPlugin plugin;
    std::vector<std::int32_t> codes = {102, 103, 104, 200, 4096, 4096 + 2, 4096 + 8, 4096 + 9};
    for (std::int32_t code = -1; code <= 40; ++code) {
        codes.push_back(code);
    }
    for (NumberClass& number : plugin.classes()) {
        for (const std::int32_t code : codes) {
            const bool madeElsewhere = code == 0 || code == 7 || code == 9 || code == 38;
            if (madeElsewhere) {
                continue;
            }
            CAPTURE(code);
            const HeldObject variant = VariantOf(plugin, code);
            REQUIRE(plugin.host().VariantType(variant.Get()) == code);
            const bool supported = !EventOf(code).empty();

            const HeldObject made = NumberWith(number, variant.Get());
            CHECK(TakeRaised(plugin.host()) == (supported ? "" : Unsupported));
            CHECK((made ? number.Text(made.Get()) : "null") == (supported ? "65" : "null"));

            const HeldObject set = number.Make("7");
            number.Set("VariantValue", set.Get(), variant.Get());
            CHECK(TakeRaised(plugin.host()) == (supported ? "" : Unsupported));
            CHECK(number.Text(set.Get()) == (supported ? "65" : "0"));
        }
    }
}

TEST_CASE("Nil, dates and objects in a Variant") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        NumberClass& otherClass =
            &number == &plugin.bigNumber() ? plugin.biggerNumber() : plugin.bigNumber();
        const HeldObject emptyVariant(plugin.host().MakeVariant(0, std::monostate()));
        const HeldObject date(plugin.host().MakeDate(1234.5));
        const HeldObject dateTime(plugin.host().MakeDateTime(-7.25));
        const HeldObject sameClass = number.Make("2.5");
        const HeldObject foreign = otherClass.Make("2.5");
        const HeldObject block(plugin.host().MakeMemoryBlock("bytes"));
        struct Row {
            Object variant;
            const char* made;
            const char* set;
            bool raises;
        };
        const Row rows[] = {
            {nullptr, "null", "0", false},           {emptyVariant.Get(), "null", "0", false},
            {date.Get(), "1234.5", "1234.5", false}, {dateTime.Get(), "-7.25", "-7.25", false},
            {sameClass.Get(), "2.5", "2.5", false},  {foreign.Get(), "null", "0", true},
            {block.Get(), "null", "0", true},
        };
        for (const Row& row : rows) {
            CAPTURE(row.made);
            const std::string_view raised = row.raises ? Unsupported : "";
            const HeldObject made = NumberWith(number, row.variant);
            CHECK((made ? number.Text(made.Get()) : "null") == row.made);
            CHECK(TakeRaised(plugin.host()) == raised);
            const HeldObject set = number.Make("7");
            number.Set("VariantValue", set.Get(), row.variant);
            CHECK(number.Text(set.Get()) == row.set);
            CHECK(TakeRaised(plugin.host()) == raised);
        }
        // The number is 0 by the time it is read for itself.
        number.Set("VariantValue", sameClass.Get(), sameClass.Get());
        CHECK(number.Text(sameClass.Get()) == "0");
    }
}

TEST_CASE("The shared method logs itself and the conversion that it leaves the rest to") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const auto logOfMaking = [&](Object variant) {
            // The number lives on, so that its end is not in the log.
            HeldObject made;
            return plugin.LogOf([&] { made = NumberWith(number, variant); });
        };
        for (const std::int32_t code : {2, 3, 4, 5, 6, 11, 16, 102, 103}) {
            CAPTURE(code);
            CHECK(logOfMaking(VariantOf(plugin, code).Get()) ==
                  LogLines({"NumberWithVariant", EventOf(code)}));
        }
        for (const std::int32_t code : {8, 18, 19, 20, 21, 23, 37}) {
            CAPTURE(code);
            // This text has to be converted, once for the log and once for the number.
            const HeldString text = plugin.MakeString("12\xE9", HostTextEncoding::Latin1);
            const HeldObject variant(plugin.host().MakeVariant(code, text.Get()));
            CHECK(logOfMaking(variant.Get()) ==
                  LogLines({"NumberWithVariant", "REALGetStringData ok. Length 4",
                            "NumberWithString " + Address(text.Get()) + ": 12\xC3\xA9",
                            "REALDisposeStringData UTF8", "REALGetStringData ok. Length 4",
                            "REALDisposeStringData UTF8"}));
        }
        CHECK(logOfMaking(nullptr) == LogLines({"NumberWithVariant"}));
        const HeldObject date(plugin.host().MakeDate(2.0));
        CHECK(logOfMaking(date.Get()) ==
              LogLines({"NumberWithVariant", "GetDateTotalSeconds 2.000000", "NumberWithDouble"}));
    }
}

TEST_CASE("The setter logs the setter that it leaves the rest to") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("1");
        const auto logOfSetting = [&](Object variant) {
            return plugin.LogOf([&] { number.Set("VariantValue", object.Get(), variant); });
        };
        CHECK(logOfSetting(VariantOf(plugin, 2).Get()) == LogLines({"SetVariantValue"}));
        CHECK(logOfSetting(VariantOf(plugin, 4).Get()) ==
              LogLines({"SetVariantValue", "SetDoubleValue"}));
        CHECK(logOfSetting(VariantOf(plugin, 6).Get()) ==
              LogLines({"SetVariantValue", "SetCurrencyValue", "CurrencyToNumber 650000",
                        "n 65.000000"}));
        CHECK(logOfSetting(VariantOf(plugin, 8).Get()) ==
              LogLines({"SetVariantValue", "SetStringValue"}));
    }
}

TEST_CASE("A Double keeps its precision in the setter and is a Single in the shared method") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject variant(plugin.host().MakeVariant(5, 0.1));
        const HeldObject set = number.Make("0");
        number.Set("VariantValue", set.Get(), variant.Get());
        CHECK(number.Text(set.Get()) ==
              "0.1000000000000000055511151231257827021181583404541015625");
        CHECK(number.Text(NumberWith(number, variant.Get()).Get()) ==
              "0.100000001490116119384765625");
    }
}

TEST_CASE("A number gives the narrowest integer Variant, and text beyond Int64") {
    LoadedPlugin plugin;
    struct Row {
        const char* number;
        std::int32_t type;
        const char* text;
    };
    constexpr Row Rows[] = {
        {"0", 2, "0"},
        {"5", 2, "5"},
        {"-2147483648", 2, "-2147483648"},
        {"2147483647", 2, "2147483647"},
        {"2147483648", 3, "2147483648"},
        {"-2147483649", 3, "-2147483649"},
        {"1099511627776", 3, "1099511627776"},
        {"9223372036854775807", 3, "9223372036854775807"},
        {"-9223372036854775808", 3, "-9223372036854775808"},
        {"9223372036854775808", 8, "9.223372036854775808e+18"},
        {"18446744073709551615", 8, "1.8446744073709551615e+19"},
        {"1180591620717411303424", 8, "1.180591620717411303424e+21"},
        {"1.5", 8, "1.5"},
        {"-0.25", 8, "-0.25"},
    };
    for (NumberClass& number : plugin.classes()) {
        for (const Row& row : Rows) {
            CAPTURE(row.number);
            const HeldObject object = number.Make(row.number);
            const auto variant = number.Get<HeldObject>("VariantValue", object.Get());
            CHECK(plugin.host().VariantType(variant.Get()) == row.type);
            const HeldString text(plugin.host().VariantAsString(variant.Get()));
            CHECK(plugin.host().Bytes(text.Get()) == row.text);
        }
        // A missing number is a NaN with the zero flag, which counts as an integer.
        const auto ofNil = number.Get<HeldObject>("VariantValue", nullptr);
        CHECK(plugin.host().VariantType(ofNil.Get()) == 2);
    }
}

TEST_CASE("Hosts without classes for unsigned Variants, readers or a type method are served") {
    for (const char* missing :
         {"_VariantUInt32", "_VariantUInt64", "VarType(value As Variant) As Integer",
          "VariantToInt32", "VariantToInt64", "VariantToUInt32", "VariantToUInt64",
          "VariantToDouble", "VariantToSingle", "VariantToString", "REALGetPropValueCurrency"}) {
        CAPTURE(missing);
        LoadedPlugin plugin(standin::HostOptions{.missing = {missing}});
        for (NumberClass& number : plugin.classes()) {
            for (const std::int32_t code : {2, 3, 4, 5, 6, 8, 16}) {
                CAPTURE(code);
                const HeldObject variant = VariantOf(plugin, code);
                CHECK(number.Text(NumberWith(number, variant.Get()).Get()) == "65");
                const HeldObject set = number.Make("7");
                number.Set("VariantValue", set.Get(), variant.Get());
                CHECK(number.Text(set.Get()) == "65");
            }
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("Without its reader a Variant is read by the property that belongs to it, or is 0") {
    struct Row {
        const char* reader;
        const char* property;
        std::int32_t code;
        const char* set;
        const char* made;
    };
    constexpr Row Rows[] = {
        {"VariantToInt32", "Int32Value", 2, "0", "0"},
        {"VariantToInt64", "LongValue", 3, "0", "0"},
        {"VariantToUInt32", "UInt32Value", 102, "0", "0"},
        {"VariantToUInt64", "UInt64Value", 103, "0", "0"},
        {"VariantToSingle", "SingleValue", 5, "65", "0"},
        {"VariantToDouble", "DoubleValue", 5, "0", "65"},
        {"none", "CurrencyValue", 6, "0", "0"},
        {"VariantToString", "StringValue", 8, "0", "0"},
    };
    for (const Row& row : Rows) {
        CAPTURE(std::string(row.property));
        LoadedPlugin plugin(standin::HostOptions{.missing = {row.reader, row.property}});
        for (NumberClass& number : plugin.classes()) {
            const HeldObject variant = VariantOf(plugin, row.code);
            const HeldObject set = number.Make("7");
            number.Set("VariantValue", set.Get(), variant.Get());
            CHECK(number.Text(set.Get()) == row.set);
            CHECK(number.Text(NumberWith(number, variant.Get()).Get()) == row.made);
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("An unsigned Variant is told from a signed one where the host has its class") {
    struct Row {
        const char* missing;
        const char* narrow;
        const char* wide;
    };
    constexpr Row Rows[] = {
        {"none", "4294967295", "1.8446744073709551615e+19"},
        {"_VariantUInt32", "-1", "1.8446744073709551615e+19"},
        {"_VariantUInt64", "4294967295", "-1"},
    };
    for (const Row& row : Rows) {
        CAPTURE(row.missing);
        LoadedPlugin plugin(standin::HostOptions{.missing = {row.missing}});
        for (NumberClass& number : plugin.classes()) {
            const HeldObject narrow(plugin.host().MakeVariant(2, std::uint64_t{0xFFFFFFFF}));
            const HeldObject wide(plugin.host().MakeVariant(3, ~std::uint64_t{0}));
            CHECK(number.Text(NumberWith(number, narrow.Get()).Get()) == row.narrow);
            CHECK(number.Text(NumberWith(number, wide.Get()).Get()) == row.wide);
        }
    }
}
