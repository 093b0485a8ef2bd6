// What is as wide as a pointer of the host: Integer and UInteger, the sizes of memory blocks and of
// texts. What differs between hosts of 32 and 64 bits is told apart by `IsWide`.
#include <cstdint>
#include <limits>
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/tables/watched_plugin.hpp"

namespace {

using host_interface::BooleanWord;
using host_interface::Integer;
using host_interface::Object;
using host_interface::String;
using host_interface::UInteger;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::NumberClass;
using tests::TakeRaised;

constexpr bool IsWide = sizeof(Integer) == 8;

constexpr const char* MultiplyByInteger = "Multiply(value as Integer) as $";

std::string Raised(NumberClass& number, const std::string& name, const std::string& shown) {
    return "BigNumberErrorExceptionVQZ: " + number.Declaration(name) + " operation failed with " +
           shown + ".";
}

}  // namespace

TEST_CASE("Integer and UInteger are converted in their full width") {
    LoadedPlugin plugin;
    constexpr Integer Smallest = std::numeric_limits<Integer>::min();
    constexpr Integer Largest = std::numeric_limits<Integer>::max();
    constexpr UInteger LargestUnsigned = std::numeric_limits<UInteger>::max();
    for (NumberClass& number : plugin.classes()) {
        for (const Integer value : {Smallest, Integer{-1}, Integer{0}, Integer{7}, Largest}) {
            const HeldObject made(tests::CallRoutine<HeldObject>(
                number.SharedMethod("NumberWithInteger(value as Integer) as $").function, value));
            CHECK(number.Get<HeldString>("StringValue", made.Get()));
            CHECK(number.Get<Integer>("IntegerValue", made.Get()) == value);
            const HeldObject object = number.Make("1");
            number.Set("IntegerValue", object.Get(), value);
            CHECK(number.ValueBytes(object.Get()) == number.ValueBytes(made.Get()));
            CHECK(number.ValueBytes(object.Get()) ==
                  number.ValueBytes(number.Make(std::to_string(value)).Get()));
        }
        const HeldObject made(tests::CallRoutine<HeldObject>(
            number.SharedMethod("NumberWithUInteger(value as UInteger) as $").function,
            LargestUnsigned));
        CHECK(number.ValueBytes(made.Get()) ==
              number.ValueBytes(number.Make(std::to_string(LargestUnsigned)).Get()));
    }
}

TEST_CASE("IntegerValue fails beyond the Integer of the host, under its own name") {
    LoadedPlugin plugin;
    const std::string beyond = IsWide ? "9223372036854775808" : "2147483648";
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make(beyond);
        CHECK(plugin.LogOf([&] { CHECK(number.Get<Integer>("IntegerValue", object.Get()) == 0); })
                  .starts_with("VQZ Debug: GetIntegerValue\n"));
        CHECK(TakeRaised(plugin.host()) ==
              Raised(number, "IntegerValue", "number " + number.Text(object.Get())));
        CHECK(number.Get<Integer>("IntegerValue", number.Make("-" + beyond).Get()) ==
              std::numeric_limits<Integer>::min());
    }
}

TEST_CASE("Results of the type Integer fill the word") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject one = number.Make("1");
        const HeldObject two = number.Make("2");
        CHECK(number.Call<Integer>("Operator_Compare(other as $) as Integer", one.Get(),
                                   two.Get()) == -1);
        CHECK(number.Call<Integer>("Operator_Compare(other as $) as Integer", two.Get(),
                                   one.Get()) == 1);
        CHECK(number.Call<Integer>("Modulate2 as Integer", one.Get()) == 1);
        CHECK(number.Call<Integer>("Modulate2 as Integer", two.Get()) == 0);
        CHECK(number.Get<Integer>("DataFlags", number.Make("-1").Get()) == 128);
    }
}

TEST_CASE("DataFlags takes the low byte of whatever the Integer is") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("1");
        number.Set("DataFlags", object.Get(), static_cast<Integer>(0x7ABBCCDD'11223380LL));
        CHECK(number.Get<Integer>("DataFlags", object.Get()) == 128);
        number.Set("DataFlags", object.Get(), Integer{-256});
        CHECK(number.Get<Integer>("DataFlags", object.Get()) == 0);
    }
}

TEST_CASE("Within 32 bits a product with an Integer is the same on every host") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject third = number.Make("-0.125");
        for (const Integer factor :
             {Integer{INT32_MIN}, Integer{-1}, Integer{3}, Integer{INT32_MAX}}) {
            const auto product = number.Call<HeldObject>(MultiplyByInteger, third.Get(), factor);
            const auto expected = number.Call<HeldObject>(
                "Multiply(other as $, round as boolean = true) as $", third.Get(),
                number.Make(std::to_string(factor)).Get(), true);
            CHECK(number.ValueBytes(product.Get()) == number.ValueBytes(expected.Get()));
        }
    }
}

#if !HOST_INTERFACE_32_BIT

namespace {

namespace functions = host_interface::functions;
using host_interface::HostTextEncoding;
using host_interface::StringData;
using tests::Replace;
using tests::WatchedPlugin;

constexpr const char* GetStringValue =
    "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as Integer "
    "= 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = \".\") as String";

/// The number as text in base 10 with these options; "null" for no text.
std::string Formatted(NumberClass& number, LoadedPlugin& plugin, Object self,
                      Integer scientificFrom, Integer round) {
    const auto text = number.Call<HeldString>(GetStringValue, self, Integer{10}, false,
                                              scientificFrom, round, true, String{});
    return text ? plugin.host().Bytes(text.Get()) : "null";
}

}  // namespace

TEST_CASE("Beyond 32 bits a product with an Integer is that with its number, rounded") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject one = number.Make("1");
        const auto third = number.Call<HeldObject>("Operator_Divide(other as $) as $", one.Get(),
                                                   number.Make("3").Get());
        for (const Integer factor :
             {Integer{INT32_MAX} + 1, Integer{INT32_MIN} - 1, Integer{INT64_MIN},
              Integer{0x1'00000000}, Integer{0x7FFFFFFF'FFFFFFFF}}) {
            const HeldObject made = number.Make(std::to_string(factor));
            const auto expected = number.Call<HeldObject>("Operator_Multiply(other as $) as $",
                                                          third.Get(), made.Get());
            HeldObject product;
            CHECK(plugin.LogOf([&] {
                product = number.Call<HeldObject>(MultiplyByInteger, third.Get(), factor);
            }) == tests::LogLines({"MulInt"}));
            CHECK(number.ValueBytes(product.Get()) == number.ValueBytes(expected.Get()));
        }
        const HeldObject nan = number.MakeNan();
        CHECK_FALSE(number.Call<HeldObject>(MultiplyByInteger, nan.Get(), Integer{0x1'00000000}));
        CHECK(TakeRaised(plugin.host()) ==
              Raised(number, "Multiply", "numbers NaN and 4294967296"));
    }
}

TEST_CASE("A base beyond 32 bits fails like 17") {
    LoadedPlugin plugin;
    constexpr Integer Wrapping = Integer{0x1'00000000} + 10;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("12");
        for (const Integer base : {Integer{17}, Wrapping, -Wrapping, Integer{INT64_MIN}}) {
            CHECK_FALSE(number.Call<HeldString>("StringValue(Base as Integer) as String",
                                                object.Get(), base));
            CHECK(TakeRaised(plugin.host()) == Raised(number, "StringValue", "number 12"));
            CHECK_FALSE(number.Call<HeldString>(GetStringValue, object.Get(), base, false,
                                                Integer{15}, Integer{-1}, true, String{}));
            CHECK(TakeRaised(plugin.host()) == Raised(number, "DoubleValue", "number 12"));
            const HeldObject target = number.Make("5");
            const HeldString text = plugin.MakeString("12");
            tests::CallRoutine<void>(number.Method("StringValue(Base as Integer) as String").setter,
                                     target.Get(), base, text.Get());
            CHECK(TakeRaised(plugin.host()) == Raised(number, "StringValue", "number 5"));
        }
    }
}

TEST_CASE("The limits of a format behave like the nearest number of 32 bits") {
    LoadedPlugin plugin;
    constexpr Integer Wrapping = Integer{0x1'00000000};
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("1e30");
        const std::string digits = "1" + std::string(30, '0');
        CHECK(Formatted(number, plugin, object.Get(), Wrapping + 2, -1) == digits);
        CHECK(Formatted(number, plugin, object.Get(), INT64_MAX, -1) == digits);
        CHECK(Formatted(number, plugin, object.Get(), 15, -1) == "1e+30");
        const HeldObject fraction = number.Make("0.123456");
        CHECK(Formatted(number, plugin, fraction.Get(), 15, Wrapping + 2) ==
              Formatted(number, plugin, fraction.Get(), 15, INT32_MAX));
        CHECK(Formatted(number, plugin, fraction.Get(), 15, -Wrapping + 2) ==
              Formatted(number, plugin, fraction.Get(), 15, INT32_MIN));
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

namespace {

Integer SizeBeyond32Bits(Object) {
    return Integer{0x1'00000000} + 32;
}

int loansGiven = 0;
int loansReturned = 0;

/// How many bytes the host says that it lends.
std::size_t lentLength = 0;

/// Lends bytes and says that there are more of them.
BooleanWord LendTooMany(String, std::uint32_t encoding, StringData* out) {
    *out = {.data = "12.5",
            .length = lentLength,
            .encoding = encoding,
            .hostPointer = nullptr,
            .hostWord = 0};
    ++loansGiven;
    return 0xABCDEF01;
}

void TakeBack(StringData*) {
    ++loansReturned;
}

/// A type whose low 32 bits are those of a text.
Integer TypeBeyond32Bits(Object) {
    return Integer{0x1'00000000} + 8;
}

void* LoadNothingButType(const char*, const char*) {
    return reinterpret_cast<void*>(&TypeBeyond32Bits);
}

}  // namespace

TEST_CASE("A memory block of more than 4 GB is refused with its size") {
    WatchedPlugin plugin(
        {Replace<functions::memoryBlockGetSize>("memoryBlockGetSize", &SizeBeyond32Bits)});
    const HeldObject object = plugin.bigNumber().Make("1");
    const auto block = plugin.bigNumber().Get<HeldObject>("DataMantissa", object.Get());
    const std::string before = plugin.bigNumber().ValueBytes(object.Get());
    plugin.bigNumber().Set("DataMantissa", object.Get(), block.Get());
    const std::string raised = TakeRaised(plugin.host());
    CHECK(raised.starts_with("OutOfBoundsException: The parameter MemoryBlock.Size "));
    CHECK(raised.ends_with(" is too big. Range is 32 to 32, but value is 4294967328."));
    CHECK(plugin.bigNumber().ValueBytes(object.Get()) == before);
}

TEST_CASE("Text of 2 GB and more counts as failed, and its bytes are given back") {
    SUBCASE("2 GB") {
        lentLength = std::size_t{INT32_MAX} + 1;
    }
    // In 32 bits this would be the length of the text.
    SUBCASE("4 GB and the text") {
        lentLength = (std::size_t{1} << 32U) + 4;
    }
    WatchedPlugin plugin(
        {Replace<functions::PluginGetStringData>("PluginGetStringData", &LendTooMany),
         Replace<functions::PluginDisposeStringData>("PluginDisposeStringData", &TakeBack)});
    for (NumberClass& number : plugin.classes()) {
        for (const HostTextEncoding encoding : {HostTextEncoding::Utf8, HostTextEncoding::Utf16}) {
            loansGiven = 0;
            loansReturned = 0;
            const HeldObject object = number.Make("7");
            CHECK(loansReturned == loansGiven);
            const HeldString text = plugin.MakeString("1234", encoding);
            plugin.SwitchDebugLog(true);
            plugin.host().TakeDebugLog();
            number.Set("StringValue", object.Get(), text.Get());
            plugin.SwitchDebugLog(false);
            const std::string log = tests::Joined(plugin.host().TakeDebugLog());
            CHECK(log.find("REALGetStringData failed.") != std::string::npos);
            CHECK(loansGiven > 0);
            CHECK(loansReturned == loansGiven);
            CHECK(number.Text(object.Get()) == "0");
        }
    }
    CHECK(TakeRaised(plugin.host()) == "");
}

TEST_CASE("A Variant whose type is beyond 32 bits cannot become a number") {
    WatchedPlugin plugin(
        {Replace<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod", &LoadNothingButType)});
    const HeldString text = plugin.MakeString("12");
    const HeldObject variant(plugin.host().MakeVariant(8, text.Get()));
    CHECK_FALSE(NumberWithVariant(plugin.bigNumber(), variant.Get()));
    CHECK(TakeRaised(plugin.host()) == "UnsupportedOperationException: Conversion not supported.");
}

TEST_CASE("No text is begun that a 32-bit process could not write") {
    LoadedPlugin plugin;
    const std::string outOfMemory =
        "OutOfMemoryException: Failed to allocate memory: std::bad_alloc";
    const std::string tooLong = "RuntimeException: C++ Exception: basic_string::_M_create";
    const auto refused = [&](const char* text) {
        std::string raised;
        for (NumberClass& number : plugin.classes()) {
            const HeldObject object = number.Make(text);
            CHECK(Formatted(number, plugin, object.Get(), INT32_MAX, -1) == "null");
            raised = TakeRaised(plugin.host());
        }
        return raised;
    };
    CHECK(refused("1e1124597721") == outOfMemory);
    CHECK(refused("-1e1300000000") == outOfMemory);
    CHECK(refused("1e2147483640") == outOfMemory);
    CHECK(refused("1e2147483642") == tooLong);
    CHECK(refused("1e2147483645") == tooLong);
    CHECK(refused("1e-495779732") == outOfMemory);
    CHECK(refused("1e-2147483645") == outOfMemory);
    // With an exponent every number has a text, and so has one of a few millions of digits.
    NumberClass& number = plugin.bigNumber();
    CHECK(Formatted(number, plugin, number.Make("1e2147483640").Get(), 2147483639, -1) ==
          "1e+2147483640");
    CHECK(Formatted(number, plugin, number.Make("1e3000000").Get(), INT32_MAX, -1) ==
          "1" + std::string(3000000, '0'));
    CHECK(Formatted(number, plugin, number.Make("1e-3000000").Get(), INT32_MAX, 5) == "0");
    CHECK(TakeRaised(plugin.host()) == "");
}
#endif
