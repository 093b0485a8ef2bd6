// Numbers to text and back, with every option, encoding and mistake.
#include <array>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace {

using namespace std::string_view_literals;
using host_interface::HostTextEncoding;
using host_interface::Integer;
using tests::Address;
using tests::CallRoutine;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::LogLines;
using tests::NumberClass;
using tests::Object;
using tests::String;
using tests::TakeRaised;

constexpr const char* Formatted =
    "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as Integer "
    "= 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = \".\") as String";
constexpr const char* InBase = "StringValue(Base as Integer) as String";
constexpr const char* SetWithRest =
    "SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref ValueRead as "
    "boolean)";
constexpr const char* FromText = "Constructor(value as String)";
constexpr const char* ToText = "Operator_Convert as String";

/// A number's text is a NaN in this form, whatever made it one.
constexpr const char* NanText = "NaN";

constexpr Integer BadBases[] = {0, 1, 17, -1, 18, 256, INT32_MIN, INT32_MAX};

/// The options of `GetStringValue`, at first the defaults that the declaration gives.
struct Format {
    Integer base = 10;
    bool scientific = false;
    Integer scientificFrom = 15;
    Integer round = -1;
    bool trimZeros = true;
    std::string_view comma = ".";
};

HeldString GetFormatted(NumberClass& number, Object self, const Format& format, String comma) {
    return number.Call<HeldString>(Formatted, self, format.base, format.scientific,
                                   format.scientificFrom, format.round, format.trimZeros, comma);
}

/// The text in a host string, or "null".
std::string Shown(const HeldString& text) {
    return text ? standin::Host::Current().Bytes(text.Get()) : "null";
}

/// What a call of `SetStringValue` left behind.
struct Rest {
    HeldString afterText;
    bool valueRead = false;
};

/// Calls `SetStringValue`. The bytes around the Boolean must stay as they are.
Rest SetText(NumberClass& number, Object self, String text, Integer base,
             HeldString afterBefore = {}) {
    String after = afterBefore.Release();
    std::array<std::uint8_t, 3> valueRead = {0xEE, 0xFF, 0xEE};
    number.Call<void>(SetWithRest, self, text, base, &after, &valueRead[1]);
    CHECK(valueRead[0] == 0xEE);
    CHECK(valueRead[2] == 0xEE);
    CHECK(valueRead[1] <= 1);
    return {HeldString(after), valueRead[1] != 0};
}

std::string FailureOf(std::string_view name, std::string_view number) {
    return std::string("BigNumberErrorExceptionVQZ: ")
        .append(name)
        .append(" operation failed with number ")
        .append(number)
        .append(".");
}

/// "12.5" in every encoding whose text can be read.
struct EncodedText {
    HostTextEncoding encoding;
    std::string_view bytes;
};
constexpr EncodedText TwelveAndAHalf[] = {
    {HostTextEncoding::Ascii, "12.5"sv},
    {HostTextEncoding::Utf8, "12.5"sv},
    {HostTextEncoding::Latin1, "12.5"sv},
    {HostTextEncoding::WindowsAnsi, "12.5"sv},
    {HostTextEncoding::MacRoman, "12.5"sv},
    {HostTextEncoding::Unknown, "12.5"sv},
    {HostTextEncoding::Utf16, "1\0002\0.\0005\0"sv},
    {HostTextEncoding::Utf16LittleEndian, "1\0002\0.\0005\0"sv},
    {HostTextEncoding::Utf16BigEndian, "\0001\0002\0.\0005"sv},
    {HostTextEncoding::Utf32, "1\0\0\0002\0\0\0.\0\0\0005\0\0\0"sv},
    {HostTextEncoding::Utf32LittleEndian, "1\0\0\0002\0\0\0.\0\0\0005\0\0\0"sv},
    {HostTextEncoding::Utf32BigEndian, "\0\0\0001\0\0\0002\0\0\0.\0\0\0005"sv},
};

/// "12.5é" in every encoding that has the letter.
constexpr EncodedText WithAccent[] = {
    {HostTextEncoding::Utf8, "12.5\xC3\xA9"sv},
    {HostTextEncoding::Latin1, "12.5\xE9"sv},
    {HostTextEncoding::WindowsAnsi, "12.5\xE9"sv},
    {HostTextEncoding::MacRoman, "12.5\x8E"sv},
    {HostTextEncoding::Unknown, "12.5\xE9"sv},
    {HostTextEncoding::Utf16, "1\0002\0.\0005\0\xE9\0"sv},
    {HostTextEncoding::Utf16BigEndian, "\0001\0002\0.\0005\0\xE9"sv},
    {HostTextEncoding::Utf32LittleEndian, "1\0\0\0002\0\0\0.\0\0\0005\0\0\0\xE9\0\0\0"sv},
};

constexpr std::optional<double> HostVersions[] = {std::nullopt, 2011.99, 2012.0, 2023.04};

}  // namespace

TEST_CASE("A number's text has all its digits in base 10") {
    LoadedPlugin plugin;
    struct Row {
        const char* source;
        const char* text;
    };
    constexpr Row Rows[] = {
        {"123.4500", "123.45"},
        {"0", "0"},
        {"-0", "0"},
        {"-7", "-7"},
        {"+7", "7"},
        {" 12", "12"},
        {"0.001", "0.001"},
        {".5", "0.5"},
        {"5.", "5"},
        {"12,5", "12.5"},
        {"1e5", "100000"},
        {"1e-20", "1e-20"},
        {"1000000000000000", "1000000000000000"},
        {"10000000000000000", "1e+16"},
        {"12345678901234567890", "1.234567890123456789e+19"},
        {"99999999999999999999999999999999999999999999999999",
         "9.9999999999999999999999999999999999999999999999999e+49"},
    };
    for (NumberClass& number : plugin.classes()) {
        for (const Row& row : Rows) {
            CAPTURE(row.source);
            const HeldObject object = number.Make(row.source);
            CHECK(Shown(number.Get<HeldString>("StringValue", object.Get())) == row.text);
            CHECK(Shown(number.Call<HeldString>(ToText, object.Get())) == row.text);
            CHECK(Shown(number.Call<HeldString>(InBase, object.Get(), Integer{10})) == row.text);
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("Text for the host is UTF-8 on hosts of every age") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version.value_or(0.0));
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        for (NumberClass& number : plugin.classes()) {
            const HeldObject object = number.Make("12.5");
            const HeldString texts[] = {
                number.Get<HeldString>("StringValue", object.Get()),
                number.Call<HeldString>(ToText, object.Get()),
                number.Call<HeldString>(InBase, object.Get(), Integer{10}),
                GetFormatted(number, object.Get(), {}, nullptr),
            };
            for (const HeldString& text : texts) {
                CHECK(tests::Described(text.Get()) == "UTF-8 31 32 2E 35");
                CHECK(plugin.host().References(text.Get()) == 1);
            }
        }
    }
}

TEST_CASE("Nil and a NaN have the text NaN in every form") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject nan = number.MakeNan();
        for (const Object self : {Object{}, nan.Get()}) {
            CHECK(Shown(number.Get<HeldString>("StringValue", self)) == NanText);
            CHECK(Shown(number.Call<HeldString>(ToText, self)) == NanText);
            CHECK(Shown(number.Call<HeldString>(InBase, self, Integer{16})) == NanText);
            CHECK(Shown(GetFormatted(number, self, {}, nullptr)) == NanText);
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("A number is written in every base from 2 to 16") {
    LoadedPlugin plugin;
    constexpr const char* TwoHundred[] = {"11001000", "21102", "3020", "1300", "532",
                                          "404",      "310",   "242",  "200",  "172",
                                          "148",      "125",   "104",  "D5",   "C8"};
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("200");
        const HeldObject negative = number.Make("-200.5");
        for (Integer base = 2; base <= 16; ++base) {
            CAPTURE(base);
            const char* expected = TwoHundred[base - 2];
            CHECK(Shown(number.Call<HeldString>(InBase, object.Get(), base)) == expected);
            CHECK(Shown(GetFormatted(number, object.Get(), {.base = base}, nullptr)) == expected);
        }
        CHECK(Shown(number.Call<HeldString>(InBase, negative.Get(), Integer{2})) == "-11001000.1");
        CHECK(Shown(number.Call<HeldString>(InBase, negative.Get(), Integer{16})) == "-C8.8");
    }
}

TEST_CASE("A base outside of 2 to 16 fails, answers no text and leaves the number alone") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("255");
        const std::string bytes = number.ValueBytes(object.Get());
        for (const Integer base : BadBases) {
            CAPTURE(base);
            CHECK_FALSE(number.Call<HeldString>(InBase, object.Get(), base));
            CHECK(TakeRaised(plugin.host()) == FailureOf("StringValue", "255"));
            CHECK_FALSE(GetFormatted(number, object.Get(), {.base = base}, nullptr));
            CHECK(TakeRaised(plugin.host()) == FailureOf("DoubleValue", "255"));
            CHECK(number.ValueBytes(object.Get()) == bytes);
        }
        // ttmath writes a NaN without looking at the base.
        CHECK(Shown(number.Call<HeldString>(InBase, nullptr, Integer{17})) == NanText);
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("GetStringValue follows each of its options") {
    LoadedPlugin plugin;
    struct Row {
        const char* source;
        Format format;
        const char* text;
    };
    constexpr Row Rows[] = {
        {"3.14159", {}, "3.14159"},
        {"3.14159", {.round = 2, .comma = ","}, "3,14"},
        {"3.14159", {.round = 4}, "3.1416"},
        {"3.14159", {.round = 0}, "3"},
        {"2.5", {.round = 0}, "3"},
        {"-2.5", {.round = 0}, "-3"},
        {"1.5", {.round = 4}, "1.5"},
        {"1.5", {.round = 4, .trimZeros = false}, "1.5000"},
        {"12345", {.scientific = true}, "1.2345e+4"},
        {"0.5", {.scientific = true}, "5e-1"},
        {"12345", {.scientificFrom = 3}, "1.2345e+4"},
        {"12345", {.scientificFrom = 30}, "12345"},
        {"1e20", {}, "1e+20"},
        {"1e20", {.scientificFrom = 30}, "100000000000000000000"},
        {"255.5", {.base = 16}, "FF.8"},
        {"255.5", {.base = 2, .comma = ":"}, "11111111:1"},
        {"12.5", {.comma = ""}, "12.5"},
        {"12.5", {.comma = ";-"}, "12;5"},
        {"12.5", {.comma = "\0;"sv}, "12.5"},
        {"12.5", {.comma = "7"}, "1275"},
        {"12", {.comma = ";"}, "12"},
        // Only one byte of a character is used.
        {"12.5",
         {.comma = "\xC3\xA9"sv},
         "12\xC3"
         "5"},
    };
    for (NumberClass& number : plugin.classes()) {
        for (const Row& row : Rows) {
            CAPTURE(row.source);
            CAPTURE(row.text);
            const HeldObject object = number.Make(row.source);
            const HeldString comma = plugin.MakeString(row.format.comma);
            CHECK(Shown(GetFormatted(number, object.Get(), row.format, comma.Get())) == row.text);
            CHECK((!comma || plugin.host().References(comma.Get()) == 1));
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("The separator of GetStringValue may come in any encoding") {
    struct Row {
        HostTextEncoding encoding;
        std::string_view bytes;
        const char* text;
    };
    constexpr Row Rows[] = {
        {HostTextEncoding::Ascii, ",", "12,5"},
        {HostTextEncoding::Latin1, ",", "12,5"},
        {HostTextEncoding::Unknown, ",", "12,5"},
        {HostTextEncoding::Utf16, ",\0"sv, "12,5"},
        {HostTextEncoding::Utf16BigEndian, "\0,"sv, "12,5"},
        {HostTextEncoding::Utf32, ",\0\0\0"sv, "12,5"},
        {HostTextEncoding::Latin1, "\xE9",
         "12\xC3"
         "5"},
        {static_cast<HostTextEncoding>(0x1234), ",", "12.5"},  // cannot be read
    };
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        for (const bool unterminated : {false, true}) {
            LoadedPlugin plugin(
                standin::HostOptions{.version = version, .unterminatedStrings = unterminated});
            for (NumberClass& number : plugin.classes()) {
                const HeldObject object = number.Make("12.5");
                for (const Row& row : Rows) {
                    CAPTURE(static_cast<std::uint32_t>(row.encoding));
                    const HeldString comma = plugin.MakeString(row.bytes, row.encoding);
                    CHECK(Shown(GetFormatted(number, object.Get(), {}, comma.Get())) == row.text);
                }
                const HeldString empty(plugin.host().MakeEmptyString(HostTextEncoding::Utf8));
                CHECK(Shown(GetFormatted(number, object.Get(), {}, empty.Get())) == "12.5");
            }
        }
    }
}

TEST_CASE("Text is read in every encoding by everything that takes text") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        for (const bool unterminated : {false, true}) {
            CAPTURE(version.value_or(0.0));
            LoadedPlugin plugin(
                standin::HostOptions{.version = version, .unterminatedStrings = unterminated});
            for (NumberClass& number : plugin.classes()) {
                for (const EncodedText& source : TwelveAndAHalf) {
                    CAPTURE(static_cast<std::uint32_t>(source.encoding));
                    const HeldString text = plugin.MakeString(source.bytes, source.encoding);
                    const HeldObject object = number.Unconstructed();
                    number.Call<void>(FromText, object.Get(), text.Get());
                    CHECK(number.Text(object.Get()) == "12.5");

                    number.Call<void>("Constructor", object.Get());
                    number.Set("StringValue", object.Get(), text.Get());
                    CHECK(number.Text(object.Get()) == "12.5");

                    CallRoutine<void>(number.Method(InBase).setter, object.Get(), Integer{16},
                                      text.Get());
                    CHECK(number.Text(object.Get()) == "18.3125");

                    const Rest rest = SetText(number, object.Get(), text.Get(), 10);
                    CHECK(number.Text(object.Get()) == "12.5");
                    CHECK(rest.valueRead);
                    CHECK_FALSE(rest.afterText);
                    CHECK(plugin.host().References(text.Get()) == 1);
                }
            }
            CHECK(TakeRaised(plugin.host()) == "");
        }
    }
}

TEST_CASE("What was left of a text is UTF-8, whatever its encoding was") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        for (const bool unterminated : {false, true}) {
            CAPTURE(version.value_or(0.0));
            LoadedPlugin plugin(
                standin::HostOptions{.version = version, .unterminatedStrings = unterminated});
            for (NumberClass& number : plugin.classes()) {
                for (const EncodedText& source : WithAccent) {
                    CAPTURE(static_cast<std::uint32_t>(source.encoding));
                    const HeldString text = plugin.MakeString(source.bytes, source.encoding);
                    const HeldObject object = number.Unconstructed();
                    const Rest rest = SetText(number, object.Get(), text.Get(), 10);
                    CHECK(number.Text(object.Get()) == "12.5");
                    CHECK(rest.valueRead);
                    CHECK(tests::Described(rest.afterText.Get()) == "UTF-8 C3 A9");
                }
            }
            CHECK(TakeRaised(plugin.host()) == "");
        }
    }
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("Bytes behind a text that look like digits are not read") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        for (NumberClass& number : plugin.classes()) {
            for (const HostTextEncoding encoding :
                 {HostTextEncoding::Ascii, HostTextEncoding::Utf8, HostTextEncoding::Latin1,
                  HostTextEncoding::Unknown}) {
                const HeldString text = plugin.MakeString("12", encoding);
                // The byte behind the text is the host's to use.
                const_cast<char*>(text.Get()->storage)[1 + 2] = '3';
                const HeldObject object = number.Unconstructed();
                number.Call<void>(FromText, object.Get(), text.Get());
                CHECK(number.Text(object.Get()) == "12");
                number.Set("StringValue", object.Get(), text.Get());
                CHECK(number.Text(object.Get()) == "12");
                const Rest rest = SetText(number, object.Get(), text.Get(), 10);
                CHECK(number.Text(object.Get()) == "12");
                CHECK_FALSE(rest.afterText);
            }
        }
    }
}
#endif

TEST_CASE("SetStringValue tells the rest of the text and whether there were digits") {
    LoadedPlugin plugin;
    struct Row {
        std::string_view text;
        Integer base;
        const char* value;
        std::string_view rest;
        bool valueRead;
    };
    constexpr Row Rows[] = {
        {"12.5abc", 10, "12.5", "abc", true},
        {"abc", 10, "0", "abc", false},
        {"", 10, "0", "", false},
        {"12", 10, "12", "", true},
        {"  12 ", 10, "12", " ", true},
        {"1.2.3", 10, "1.2", ".3", true},
        {"1e", 10, "1", "e", true},
        {"1e5x", 10, "100000", "x", true},
        {"-", 10, "0", "", false},
        {"12\0003"sv, 10, "12", "\0003"sv, true},
        {"\0"
         "12"sv,
         10, "0",
         "\0"
         "12"sv,
         false},
        {"ff", 16, "255", "", true},
        {"FF.8g", 16, "255.5", "g", true},
        {"102", 2, "2", "2", true},
        {"zz", 16, "0", "zz", false},
        {"1e5", 16, "485", "", true},
        {"777", 8, "511", "", true},
    };
    for (NumberClass& number : plugin.classes()) {
        for (const Row& row : Rows) {
            CAPTURE(std::string(row.text));
            CAPTURE(row.base);
            const HeldObject object = number.Make("99");
            const HeldString text = plugin.MakeString(row.text);
            const Rest rest = SetText(number, object.Get(), text.Get(), row.base);
            CHECK(number.Text(object.Get()) == row.value);
            CHECK(rest.valueRead == row.valueRead);
            CHECK(plugin.host().Bytes(rest.afterText.Get()) == row.rest);
            CHECK(static_cast<bool>(rest.afterText) == !row.rest.empty());
            CHECK(TakeRaised(plugin.host()) == "");
        }
    }
}

TEST_CASE("Text that AfterText holds is released, and Text and AfterText may be one variable") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("99");
        {
            const HeldString text = plugin.MakeString("12abc");
            HeldString before = plugin.MakeString("before");
            plugin.host().Lock(before.Get());
            const HeldString watched(before.Get());
            const Rest rest = SetText(number, object.Get(), text.Get(), 10, std::move(before));
            CHECK(plugin.host().References(watched.Get()) == 1);
            CHECK(plugin.host().Bytes(rest.afterText.Get()) == "abc");
        }
        for (const std::string_view source : {"34xyz"sv, "34"sv, "xyz"sv, "34\xC3\xA9"sv}) {
            HeldString variable = plugin.MakeString(source);
            const String text = variable.Get();
            const Rest rest = SetText(number, object.Get(), text, 10, std::move(variable));
            CHECK(number.Text(object.Get()) == (source == "xyz" ? "0" : "34"));
            CHECK(plugin.host().Bytes(rest.afterText.Get()) ==
                  (source == "xyz" ? source : source.substr(2)));
        }
        CHECK(plugin.host().Counts().stringsAlive == 0);
    }
}

TEST_CASE("A bad base fails to read text, and the value is replaced by a NaN all the same") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldString text = plugin.MakeString("12.5");
        for (const Integer base : BadBases) {
            CAPTURE(base);
            const HeldObject object = number.Make("7");
            CallRoutine<void>(number.Method(InBase).setter, object.Get(), base, text.Get());
            CHECK(TakeRaised(plugin.host()) == FailureOf("StringValue", "7"));
            CHECK(number.Get<bool>("IsNan", object.Get()));

            number.Call<void>("Constructor", object.Get());
            const Rest rest = SetText(number, object.Get(), text.Get(), base);
            CHECK(TakeRaised(plugin.host()) == FailureOf("SetStringValue", "0"));
            CHECK(number.Get<bool>("IsNan", object.Get()));
            CHECK_FALSE(rest.valueRead);
            CHECK(plugin.host().Bytes(rest.afterText.Get()) == "12.5");
        }
    }
}

TEST_CASE("Text that no number of the class can hold fails, and the value is replaced") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        for (const std::string& source :
             {"1e" + std::string(1000, '9'), "-1e-" + std::string(1000, '9')}) {
            const HeldString text = plugin.MakeString(source);

            const HeldObject object = number.Unconstructed();
            number.Call<void>(FromText, object.Get(), text.Get());
            CHECK(TakeRaised(plugin.host()) == FailureOf("Constructor", "nil"));
            CHECK(number.Get<bool>("IsNan", object.Get()));

            const HeldObject other = number.Make("-7.5");
            number.Call<void>(FromText, other.Get(), text.Get());
            CHECK(TakeRaised(plugin.host()) == FailureOf("Constructor", "-7.5"));
            CHECK(number.Get<bool>("IsNan", other.Get()));

            number.Call<void>("Constructor", other.Get());
            number.Set("StringValue", other.Get(), text.Get());
            CHECK(TakeRaised(plugin.host()) == FailureOf("StringValue", "0"));
            CHECK(number.Get<bool>("IsNan", other.Get()));
            number.Set("StringValue", other.Get(), text.Get());
            CHECK(TakeRaised(plugin.host()) == FailureOf("StringValue", NanText));

            const Rest rest = SetText(number, other.Get(), text.Get(), 10);
            CHECK(TakeRaised(plugin.host()) == FailureOf("SetStringValue", NanText));
            CHECK(rest.valueRead);
            CHECK_FALSE(rest.afterText);
        }
    }
}

TEST_CASE("Text that is not a number, and no text at all, make zero without an exception") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldString empty(plugin.host().MakeEmptyString(HostTextEncoding::Utf16));
        const HeldString letters = plugin.MakeString("hello");
        const HeldString unreadable =
            plugin.MakeString("12", static_cast<HostTextEncoding>(0x1234));
        for (const String text : {String{}, empty.Get(), letters.Get(), unreadable.Get()}) {
            const HeldObject object = number.Make("7");
            number.Set("StringValue", object.Get(), text);
            CHECK(number.Text(object.Get()) == "0");
            number.Call<void>(FromText, object.Get(), text);
            CHECK(number.Text(object.Get()) == "0");
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("A megabyte of digits is read in less than ten seconds") {
    LoadedPlugin plugin;
    constexpr std::size_t Digits = 1 << 20;
    std::string source(Digits, '0');
    source[0] = '1';
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldString text = plugin.MakeString(source);
        const HeldObject object = number.Unconstructed();
        const std::clock_t start = std::clock();
        const Rest rest = SetText(number, object.Get(), text.Get(), 10);
        const std::clock_t spent = std::clock() - start;
        CHECK(spent < 10 * CLOCKS_PER_SEC);
        // The last digits of a value of this size are ttmath's own.
        CHECK(number.Text(object.Get()).find("e+104857") != std::string::npos);
        CHECK(rest.valueRead);
        CHECK_FALSE(rest.afterText);
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("Each reading and writing of text logs its own name, and failures two lines more") {
    LoadedPlugin plugin;
    const std::string_view report = "RaiseOverflowException";
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject object = number.Make("5");
        const Object self = object.Get();
        const HeldString text = plugin.MakeString("7");
        CHECK(plugin.LogOf([&] { number.Get<HeldString>("StringValue", self); }) ==
              LogLines({"GetStringValue"}));
        CHECK(plugin.LogOf([&] { number.Call<HeldString>(ToText, self); }) ==
              LogLines({"GetStringValue"}));
        CHECK(plugin.LogOf([&] { number.Call<HeldString>(InBase, self, Integer{16}); }) ==
              LogLines({"GetStringValueBase"}));
        CHECK(plugin.LogOf([&] { GetFormatted(number, self, {}, nullptr); }) ==
              LogLines({"GetStringValueExt"}));
        CHECK(plugin.LogOf([&] { number.Set("StringValue", self, text.Get()); }) ==
              LogLines({"SetStringValue"}));
        CHECK(plugin.LogOf([&] {
            CallRoutine<void>(number.Method(InBase).setter, self, Integer{16}, text.Get());
        }) == LogLines({"SetStringValueBase"}));
        CHECK(plugin.LogOf([&] { SetText(number, self, text.Get(), 10); }) ==
              LogLines({"SetStringValueExt"}));

        CHECK(plugin.LogOf([&] { number.Call<HeldString>(InBase, self, Integer{17}); }) ==
              LogLines({"GetStringValueBase", report, report}));
        CHECK(TakeRaised(plugin.host()) != "");
        CHECK(plugin.LogOf([&] { GetFormatted(number, self, {.base = 1}, nullptr); }) ==
              LogLines({"GetStringValueExt", report, report}));
        CHECK(TakeRaised(plugin.host()) != "");
        CHECK(plugin.LogOf([&] {
            CallRoutine<void>(number.Method(InBase).setter, self, Integer{0}, text.Get());
        }) == LogLines({"SetStringValueBase", report, report}));
        CHECK(TakeRaised(plugin.host()) != "");
        CHECK(plugin.LogOf([&] { SetText(number, self, text.Get(), 0); }) ==
              LogLines({"SetStringValueExt", report, report}));
        CHECK(TakeRaised(plugin.host()) != "");
    }
}

TEST_CASE("Reading text that must be converted logs what the bridge does") {
    LoadedPlugin plugin;
    NumberClass& number = plugin.bigNumber();
    const HeldObject object = number.Make("5");
    const HeldString text = plugin.MakeString("1\0002\0"sv, HostTextEncoding::Utf16);
    CHECK(plugin.LogOf([&] { number.Set("StringValue", object.Get(), text.Get()); }) ==
          LogLines(
              {"SetStringValue", "REALGetStringData ok. Length 2", "REALDisposeStringData UTF8"}));
}

TEST_CASE("A text that becomes a number is logged with its address before it is converted") {
    LoadedPlugin plugin(standin::HostOptions{.newInstanceRunsConstructor = true});
    for (NumberClass& number : plugin.classes()) {
        const auto logOfMaking = [&](String text) {
            // The number lives on, so that its end is not in the log.
            HeldObject made;
            return plugin.LogOf([&] {
                made = CallRoutine<HeldObject>(
                    number.SharedMethod("NumberWithString(value as String) as $").function, text);
            });
        };
        const HeldString plain = plugin.MakeString("12");
        CHECK(logOfMaking(plain.Get()) ==
              LogLines({"NumberWithString " + Address(plain.Get()) + ": 12", "ConstructorEmpty"}));

        // The converted text is given back after the number object has been made.
        const HeldString converted = plugin.MakeString("12\xE9", HostTextEncoding::Latin1);
        CHECK(logOfMaking(converted.Get()) ==
              LogLines({"REALGetStringData ok. Length 4",
                        "NumberWithString " + Address(converted.Get()) + ": 12\xC3\xA9",
                        "REALDisposeStringData UTF8", "REALGetStringData ok. Length 4",
                        "ConstructorEmpty", "REALDisposeStringData UTF8"}));
        CHECK(logOfMaking(nullptr) ==
              LogLines({"NumberWithString " + Address(nullptr) + ": ", "ConstructorEmpty"}));
    }
}
