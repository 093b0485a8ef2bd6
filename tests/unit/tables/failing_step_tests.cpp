// What is left when a member fails halfway: outputs have the values of the step before the
// failure, and what a conversion or the host wrote before failing shows only where it is meant to.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/watched_plugin.hpp"

namespace {

using host_interface::BooleanWord;
using host_interface::Integer;
using host_interface::StringData;
using host_interface::VariantTypeCode;
using tests::HeldObject;
using tests::HeldString;
using tests::HostTextEncoding;
using tests::LoadedPlugin;
using tests::NumberClass;
using tests::NumberWithVariant;
using tests::Object;
using tests::Replace;
using tests::String;
using tests::TakeRaised;
using tests::WatchedPlugin;

namespace functions = host_interface::functions;

/// A reader of a property that writes 65 and returns that it failed.
template <typename Value>
BooleanWord WriteAndFail(Object, const char*, Value* out) {
    *out = Value{65};
    return 0;
}

/// The same for text.
BooleanWord WriteTextAndFail(Object, const char*, String* out) {
    *out = standin::Host::Current().MakeString("65", HostTextEncoding::Utf8);
    return 0;
}

/// Writes the type Int32 and returns that it failed.
BooleanWord WriteTypeAndFail(Object, const char* name, Integer* out) {
    *out = std::string_view(name) == "Type" ? 2 : 0;
    return 0;
}

template <typename Value>
BooleanWord FailToSet(Object, const char*, Value) {
    return 0;
}

int disposed = 0;

/// Fills the record and returns that it failed.
BooleanWord LendAndFail(String, std::uint32_t encoding, StringData* out) {
    *out = {.data = "65", .length = 2, .encoding = encoding, .hostPointer = nullptr, .hostWord = 0};
    return 0;
}

void CountDisposed(StringData*) {
    ++disposed;
}

Integer NegativeSize(Object) {
    return -1;
}

HeldObject Variant(WatchedPlugin& plugin, std::int32_t code) {
    return HeldObject(plugin.host().MakeVariant(code, std::int64_t{7}));
}

constexpr std::string_view OverflowOf = "BigNumberErrorExceptionVQZ: ";

}  // namespace

TEST_CASE("A number that does not fit gives 0, whatever its low bits are") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const auto raises = [&](const char* name) {
            CHECK(TakeRaised(plugin.host())
                      .starts_with(std::string(OverflowOf) + name + " operation failed"));
        };
        constexpr std::array Beyond =
            HOST_INTERFACE_32_BIT != 0
                ? std::array{"4294967301", "-4294967301", "2147483653", "-2147483653"}
                : std::array{"18446744073709551621", "-18446744073709551621", "9223372036854775813",
                             "-9223372036854775813"};
        for (const char* text : Beyond) {
            CAPTURE(text);
            const HeldObject value = number.Make(text);
            CHECK(number.Get<Integer>("IntegerValue", value.Get()) == 0);
            raises("IntegerValue");
        }
        for (const char* text : {"18446744073709551621", "-18446744073709551621",
                                 "9223372036854775813", "-9223372036854775813"}) {
            CAPTURE(text);
            const HeldObject value = number.Make(text);
            CHECK(number.Get<std::int64_t>("Int64Value", value.Get()) == 0);
            raises("Int64Value");
        }
        for (const char* text : {"18446744073709551621", "-18446744073709551621", "-5"}) {
            CAPTURE(text);
            const HeldObject value = number.Make(text);
            CHECK(number.Get<std::uint64_t>("UInt64Value", value.Get()) == 0);
            raises("UInt64Value");
        }
        for (const char* text : {"1844674407370955.1621", "-1844674407370955.1621",
                                 "922337203685477.5813", "-922337203685477.5813"}) {
            CAPTURE(text);
            const HeldObject value = number.Make(text);
            CHECK(number.Get<std::int64_t>("CurrencyValue", value.Get()) == 0);
            raises("CurrencyValue");
        }
        for (const char* text : {"1e400", "-1e400"}) {
            CAPTURE(text);
            const HeldObject value = number.Make(text);
            CHECK(number.Get<double>("DoubleValue", value.Get()) == 0.0);
            raises("DoubleValue");
        }
    }
}

TEST_CASE("A property of a Variant counts as it was written, though the host tells of a failure") {
    struct Row {
        const char* reader;
        tests::Replacement property;
        std::int32_t code;
    };
    const auto integerClass = static_cast<std::int32_t>(VariantTypeCode::Int32);
    const Row rows[] = {
        {"VariantToInt32",
         Replace<functions::REALGetPropValueInt>("REALGetPropValueInt", &WriteAndFail),
         integerClass},
        {"VariantToInt64",
         Replace<functions::REALGetPropValueInt64>("REALGetPropValueInt64", &WriteAndFail),
         static_cast<std::int32_t>(VariantTypeCode::Int64)},
        {"VariantToUInt32",
         Replace<functions::REALGetPropValueUInt32>("REALGetPropValueUInt32", &WriteAndFail),
         static_cast<std::int32_t>(VariantTypeCode::Color)},
        {"VariantToSingle",
         Replace<functions::REALGetPropValueSingle>("REALGetPropValueSingle", &WriteAndFail),
         static_cast<std::int32_t>(VariantTypeCode::Single)},
        {"VariantToString",
         Replace<functions::REALGetPropValueString>("REALGetPropValueString", &WriteTextAndFail),
         static_cast<std::int32_t>(VariantTypeCode::Text)},
    };
    for (const Row& row : rows) {
        CAPTURE(row.reader);
        WatchedPlugin plugin({row.property});
        WatchedPlugin::Hide(row.reader);
        for (NumberClass& number : plugin.classes()) {
            const HeldObject variant = Variant(plugin, row.code);
            CHECK(number.Text(NumberWithVariant(number, variant.Get()).Get()) == "65");
            CHECK(TakeRaised(plugin.host()) == "");
        }
    }
    SUBCASE("a Double, which only the setter reads as one") {
        WatchedPlugin plugin(
            {Replace<functions::REALGetPropValueDouble>("REALGetPropValueDouble", &WriteAndFail)});
        WatchedPlugin::Hide("VariantToDouble");
        for (NumberClass& number : plugin.classes()) {
            const HeldObject set = number.Make("7");
            const HeldObject variant =
                Variant(plugin, static_cast<std::int32_t>(VariantTypeCode::Double));
            number.Set("VariantValue", set.Get(), variant.Get());
            CHECK(number.Text(set.Get()) == "65");
        }
    }
    SUBCASE("a Currency, which has a property only") {
        WatchedPlugin plugin({Replace<functions::REALGetPropValueCurrency>(
            "REALGetPropValueCurrency", &WriteAndFail)});
        for (NumberClass& number : plugin.classes()) {
            const HeldObject variant =
                Variant(plugin, static_cast<std::int32_t>(VariantTypeCode::Currency));
            CHECK(number.Text(NumberWithVariant(number, variant.Get()).Get()) == "0.0065");
        }
    }
    SUBCASE("a UInt64, which its class tells") {
        WatchedPlugin plugin(
            {Replace<functions::REALGetPropValueUInt64>("REALGetPropValueUInt64", &WriteAndFail)});
        WatchedPlugin::Hide("VariantToUInt64");
        for (NumberClass& number : plugin.classes()) {
            const HeldObject variant(plugin.host().MakeVariant(
                static_cast<std::int32_t>(VariantTypeCode::Int64), std::uint64_t{7}));
            CHECK(number.Text(NumberWithVariant(number, variant.Get()).Get()) == "65");
        }
    }
    SUBCASE("the type") {
        WatchedPlugin plugin({Replace<functions::REALGetPropValueInteger>("REALGetPropValueInteger",
                                                                          &WriteTypeAndFail)});
        WatchedPlugin::Hide("REALLoadGlobalMethod");
        for (NumberClass& number : plugin.classes()) {
            const HeldObject variant =
                Variant(plugin, static_cast<std::int32_t>(VariantTypeCode::Structure));
            CHECK(number.Text(NumberWithVariant(number, variant.Get()).Get()) == "7");
        }
    }
}

TEST_CASE("Bytes that the host lends while it tells of a failure are neither read nor given back") {
    WatchedPlugin plugin(
        {Replace<functions::PluginGetStringData>("PluginGetStringData", &LendAndFail),
         Replace<functions::PluginDisposeStringData>("PluginDisposeStringData", &CountDisposed)});
    disposed = 0;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("7");
        const HeldString text = plugin.MakeString("5\xE9", HostTextEncoding::Latin1);
        number.Set("StringValue", object.Get(), text.Get());
        CHECK(number.Text(object.Get()) == "0");
        // Without its text the separator is a point.
        number.Call<void>("Constructor(value as Double)", object.Get(), 2.5);
        const auto shown = number.Call<HeldString>(
            "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as "
            "Integer = 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = "
            "\".\") as String",
            object.Get(), Integer{10}, false, Integer{15}, Integer{-1}, true, text.Get());
        CHECK(plugin.host().Bytes(shown.Get()) == "2.5");
    }
    CHECK(disposed == 0);
    CHECK(TakeRaised(plugin.host()) == "");
}

TEST_CASE("An exception whose properties cannot be set is raised all the same") {
    const std::vector<tests::Replacement> message = {
        Replace<functions::REALSetPropValueString>("REALSetPropValueString", &FailToSet)};
    const std::vector<tests::Replacement> number = {
        Replace<functions::REALSetPropValueInteger>("REALSetPropValueInteger", &FailToSet)};
    for (const std::vector<tests::Replacement>* replacements : {&message, &number}) {
        WatchedPlugin plugin(*replacements);
        const HeldObject one = plugin.bigNumber().Make("1");
        const auto quotient = plugin.bigNumber().Call<HeldObject>(
            "Operator_Divide(other as $) as $", one.Get(), nullptr);
        CHECK_FALSE(quotient);
        const std::string text = replacements == &message
                                     ? ""
                                     : "Operator_Divide operation failed with numbers 1 and nil.";
        CHECK(TakeRaised(plugin.host()) == std::string(OverflowOf) + text);
    }
}

TEST_CASE("A block whose size is below 0 counts as one of size 0 and changes nothing") {
    WatchedPlugin plugin(
        {Replace<functions::memoryBlockGetSize>("memoryBlockGetSize", &NegativeSize)});
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("-3.75");
        for (const char* part : {"DataMantissa", "DataExponent"}) {
            const auto block = number.Get<HeldObject>(part, object.Get());
            const std::string before = number.ValueBytes(object.Get());
            const std::string size = std::to_string(plugin.host().BlockBytes(block.Get()).size());
            number.Set(part, object.Get(), block.Get());
            CHECK(number.ValueBytes(object.Get()) == before);
            std::string expected =
                "OutOfBoundsException: The parameter MemoryBlock.Size to method DataMantissa is "
                "too small. Range is ";
            expected.append(size).append(" to ").append(size).append(", but value is 0.");
            CHECK(TakeRaised(plugin.host()) == expected);
        }
    }
}

TEST_CASE("Text that no number can hold raises, and a NaN is made all the same") {
    LoadedPlugin plugin;
    const HeldString text = plugin.MakeString("1e" + std::string(1000, '9'));
    const HeldObject variant(
        plugin.host().MakeVariant(static_cast<std::int32_t>(VariantTypeCode::String), text.Get()));
    for (NumberClass& number : plugin.classes()) {
        const auto fromText = tests::CallRoutine<HeldObject>(
            number.SharedMethod("NumberWithString(value as String) as $").function, text.Get());
        CHECK(TakeRaised(plugin.host()) ==
              std::string(OverflowOf) + "Constructor operation failed.");
        REQUIRE(fromText);
        CHECK(number.Get<bool>("IsNan", fromText.Get()));

        const HeldObject fromVariant = NumberWithVariant(number, variant.Get());
        CHECK(TakeRaised(plugin.host()) ==
              std::string(OverflowOf) + "Constructor operation failed.");
        REQUIRE(fromVariant);
        CHECK(number.Get<bool>("IsNan", fromVariant.Get()));

        // The setter reports the number that the Variant's type made 0 before.
        const HeldObject set = number.Make("7");
        number.Set("VariantValue", set.Get(), variant.Get());
        CHECK(TakeRaised(plugin.host()) ==
              std::string(OverflowOf) + "StringValue operation failed with number 0.");
        CHECK(number.Get<bool>("IsNan", set.Get()));
    }
}
