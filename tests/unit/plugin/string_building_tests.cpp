// Host strings from bytes, on hosts of every age.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "host/string_building.hpp"
#include "host/strings.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"

namespace {

using namespace std::string_view_literals;
using host_interface::HostTextEncoding;
using standin::Allocation;
using tests::Described;
using tests::DirectHost;
using tests::LogLines;

/// Hosts that build strings in three ways: by bytes alone, with an encoding, and from UTF-32 too.
constexpr double HostsOfEveryAge[] = {2011.99, 2012.0, 2012.99, 2013.0, 2023.04};

std::string Built(std::string_view bytes, HostTextEncoding encoding) {
    const auto built = vqz::REALBuildUnicodeString(
        bytes.data(), static_cast<std::int64_t>(bytes.size()), encoding);
    return Described(built.Get());
}

/// The UTF-32 string of these code points, described.
std::string BuiltFromCodePoints(const std::vector<std::uint32_t>& codePoints) {
    const std::size_t size = codePoints.size() * sizeof(std::uint32_t);
    return Built({reinterpret_cast<const char*>(codePoints.data()), size}, HostTextEncoding::Utf32);
}

std::string BuiltFromUnits(std::u16string_view units) {
    const auto byteCount = std::int64_t{sizeof(char16_t)} * static_cast<std::int64_t>(units.size());
    const auto built = vqz::REALBuildUnicodeStringUTF16(units.data(), byteCount);
    return Described(built.Get());
}

/// What `Utf32ToUtf16` writes for these code points. The output is as small as it may be, so that a
/// sanitizer sees every unit too many.
std::u16string Converted(const std::vector<std::uint32_t>& codePoints) {
    constexpr char16_t Untouched = 0xABCD;
    std::vector<char16_t> output(vqz::Utf16Capacity(codePoints.size()), Untouched);
    const std::size_t count =
        vqz::Utf32ToUtf16(codePoints.data(), codePoints.size(), output.data());
    REQUIRE(count < output.size());
    CHECK(output[count] == 0);
    for (std::size_t index = count + 1; index < output.size(); ++index) {
        CHECK(output[index] == Untouched);
    }
    return {output.data(), count};
}

std::string Repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (std::size_t index = 0; index < count; ++index) {
        result += text;
    }
    return result;
}

}  // namespace

TEST_CASE("Eight-bit text without a byte above 0x7F is built as ASCII, other text as it is") {
    struct Row {
        HostTextEncoding encoding;
        std::string_view bytes;
        const char* expected;
    };
    constexpr Row Rows[] = {
        {HostTextEncoding::WindowsAnsi, "Caf\xE9", "Windows 43 61 66 E9"},
        {HostTextEncoding::WindowsAnsi, "Cafe", "ASCII 43 61 66 65"},
        {HostTextEncoding::MacRoman, "Caf\x8E", "MacRoman 43 61 66 8E"},
        {HostTextEncoding::MacRoman, "Cafe", "ASCII 43 61 66 65"},
        {HostTextEncoding::Latin1, "Caf\xE9", "Latin1 43 61 66 E9"},
        {HostTextEncoding::Latin1, "Cafe", "ASCII 43 61 66 65"},
        {HostTextEncoding::Unknown, "Caf\xE9", "unknown 43 61 66 E9"},
        {HostTextEncoding::Unknown, "Cafe", "ASCII 43 61 66 65"},
        {HostTextEncoding::WindowsAnsi, "\x7F", "ASCII 7F"},
        {HostTextEncoding::WindowsAnsi, "\x80", "Windows 80"},
        {HostTextEncoding::WindowsAnsi,
         "\xE9"
         "afe",
         "Windows E9 61 66 65"},
        {HostTextEncoding::Utf8, "Caf\xC3\xA9", "UTF-8 43 61 66 C3 A9"},
        {HostTextEncoding::Utf8, "Cafe", "UTF-8 43 61 66 65"},
        {HostTextEncoding::Ascii, "Cafe", "ASCII 43 61 66 65"},
        {HostTextEncoding::Ascii, "Caf\xE9", "ASCII 43 61 66 E9"},
        {HostTextEncoding::Ascii, "1\0002"sv, "ASCII 31 00 32"},
    };
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        DirectHost host(version);
        for (const Row& row : Rows) {
            CAPTURE(row.bytes);
            std::string built;
            CHECK(host.LogOf([&] { built = Built(row.bytes, row.encoding); }) == "");
            CHECK(built == row.expected);
        }
    }
}

TEST_CASE("A code that the bridge does not know is passed on, with a line in the log") {
    struct Row {
        std::uint32_t code;
        std::string description;
    };
    const Row rows[] = {{0x10000100, "268435712"}, {0x14000100, "335544576"},
                        {0x18000100, "402653440"}, {0x1C000100, "469762304"},
                        {0x00000202, "514"},       {0xFFFFFFFF, "4294967295"}};
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        DirectHost host(version);
        for (const Row& row : rows) {
            const auto encoding = static_cast<HostTextEncoding>(row.code);
            std::string built;
            CHECK(host.LogOf([&] { built = Built("abcd", encoding); }) ==
                  LogLines({"Unknown encoding in REALBuildUnicodeString " + row.description}));
            CHECK(built == "code " + row.description + " 61 62 63 64");
            CHECK(Built("abcd", encoding) == built);
            CHECK(host.TakeDebugLog().empty());
        }
    }
}

TEST_CASE("Counts without text build nothing") {
    DirectHost host;
    constexpr std::int64_t OneTooMany = 0x80000000;
    const auto build = [](const void* data, std::int64_t count) {
        return Described(vqz::REALBuildUnicodeString(data, count, HostTextEncoding::Utf8).Get());
    };
    CHECK(host.LogOf([&] {
        CHECK(build("x", 0) == "null");
        CHECK(build("x", -1) == "null");
        CHECK(build("x", INT64_MIN) == "null");
        CHECK(build(nullptr, 0) == "null");
        CHECK(build(nullptr, 5) == "null");
    }) == "");
    const std::string tooBig = LogLines({"Count too big for REALBuildUnicodeString."});
    CHECK(host.LogOf([&] { CHECK(build("x", OneTooMany) == "null"); }) == tooBig);
    CHECK(host.LogOf([&] { CHECK(build("x", INT64_MAX) == "null"); }) == tooBig);
    CHECK(build("x", OneTooMany) == "null");
    CHECK(host.TakeDebugLog().empty());
}

TEST_CASE("UTF-16 becomes a UTF-8 string on hosts of every age") {
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        const DirectHost host(version);
        CHECK(BuiltFromUnits(u"12") == "UTF-8 31 32");
        CHECK(BuiltFromUnits(u"Caf\u00E9") == "UTF-8 43 61 66 C3 A9");
        CHECK(BuiltFromUnits(u"\u20AC") == "UTF-8 E2 82 AC");
        CHECK(BuiltFromUnits(u"\U0001F600") == "UTF-8 F0 9F 98 80");
        const std::u16string_view units = u"\u20AC1";
        CHECK(Built({reinterpret_cast<const char*>(units.data()), 4}, HostTextEncoding::Utf16) ==
              "UTF-8 E2 82 AC 31");
    }
}

TEST_CASE("No UTF-16 units at all count as a failed string on an old host") {
    const std::string outOfMemory = LogLines({"Out of memory in REALBuildUnicodeStringUTF16."});
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        DirectHost host(version);
        CHECK(host.LogOf([] { CHECK(BuiltFromUnits(u"") == "null"); }) ==
              (version < 2012.0 ? outOfMemory : ""));
    }
}

TEST_CASE("UTF-32 becomes a UTF-8 string on hosts of every age") {
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        const DirectHost host(version);
        CHECK(BuiltFromCodePoints({'1', '2'}) == "UTF-8 31 32");
        CHECK(BuiltFromCodePoints({0xE9, 0x20AC, 0x1F600, 0xFFFF}) ==
              "UTF-8 C3 A9 E2 82 AC F0 9F 98 80 EF BF BF");
        CHECK(BuiltFromCodePoints({0x10FFFF}) == "UTF-8 F4 8F BF BF");
        CHECK(BuiltFromCodePoints({0x110000}) == "UTF-8 EF BF BD");
    }
}

TEST_CASE("Old hosts get UTF-32 without surrogates and without a rest of less than four bytes") {
    for (const double version : {2011.99, 2012.0}) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        const DirectHost host(version);
        CHECK(BuiltFromCodePoints({'a', 0xD800, 0xDFFF, 'b'}) == "UTF-8 61 62");
        const std::uint32_t units[] = {'a', 'b'};
        CHECK(Built({reinterpret_cast<const char*>(units), 7}, HostTextEncoding::Utf32) ==
              "UTF-8 61");
        CHECK(Built({reinterpret_cast<const char*>(units), 3}, HostTextEncoding::Utf32) == "null");
        CHECK(BuiltFromCodePoints({0xDC00}) == "null");
    }
}

TEST_CASE("UTF-32 of any length is converted whole, however much room its characters need") {
    struct Row {
        std::uint32_t codePoint;
        std::string_view utf8;
    };
    constexpr Row Rows[] = {{'7', " 37"}, {0x20AC, " E2 82 AC"}, {0x1F600, " F0 9F 98 80"}};
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        const DirectHost host(version);
        const int buffersBefore = tests::LivingBuffers();
        for (const Row& row : Rows) {
            for (const std::size_t count : {1U, 100U, 150U, 199U, 200U, 201U, 500U, 5000U}) {
                CAPTURE(version);
                CAPTURE(row.codePoint);
                CAPTURE(count);
                const std::vector<std::uint32_t> codePoints(count, row.codePoint);
                CHECK(BuiltFromCodePoints(codePoints) == "UTF-8" + Repeated(row.utf8, count));
            }
        }
        CHECK(tests::LivingBuffers() == buffersBefore);
    }
}

TEST_CASE("UTF-32 may lie at any address") {
    const DirectHost host(HOST_INTERFACE_32_BIT != 0 ? 2012.0 : 2023.04);
    const std::uint32_t codePoints[] = {'1', 0x1F600};
    char bytes[sizeof codePoints + 1] = {};
    std::memcpy(bytes + 1, codePoints, sizeof codePoints);
    CHECK(Built({bytes + 1, sizeof codePoints}, HostTextEncoding::Utf32) == "UTF-8 31 F0 9F 98 80");
}

TEST_CASE("Code points become UTF-16 units one by one") {
    using Units = std::u16string;
    struct Row {
        std::vector<std::uint32_t> codePoints;
        Units units;
    };
    const Row rows[] = {
        {{}, {}},
        {{0}, Units(1, u'\0')},
        {{'a'}, u"a"},
        {{0xD7FF}, {u'\xD7FF'}},
        {{0xD800}, {}},
        {{0xDBFF}, {}},
        {{0xDC00}, {}},
        {{0xDFFF}, {}},
        {{0xE000}, {u'\xE000'}},
        {{0xFFFF}, {u'\xFFFF'}},
        {{0x10000}, {u'\xD800', u'\xDC00'}},
        {{0x1F600}, {u'\xD83D', u'\xDE00'}},
        {{0x10FFFF}, {u'\xDBFF', u'\xDFFF'}},
        {{0x110000}, {u'\xFFFD'}},
        {{0xFFFFFFFF}, {u'\xFFFD'}},
        {{'a', 0xD83D, 0xDE00, 0x1F600, 0x110000, 'b'},
         {u'a', u'\xD83D', u'\xDE00', u'\xFFFD', u'b'}},
        {std::vector<std::uint32_t>(500, 0x1F600),
         [] {
             Units units;
             for (int count = 0; count < 500; ++count) {
                 units += {u'\xD83D', u'\xDE00'};
             }
             return units;
         }()},
    };
    for (const Row& row : rows) {
        CHECK((Converted(row.codePoints) == row.units));
    }
}

TEST_CASE("Text up to a NUL becomes a host string") {
    for (const double version : HostsOfEveryAge) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version);
        const DirectHost host(version);
        const auto built = [](const char* text, HostTextEncoding encoding) {
            return Described(vqz::CString2RB(text, encoding).Get());
        };
        CHECK(built("12.5", HostTextEncoding::Utf8) == "UTF-8 31 32 2E 35");
        CHECK(built("12.5", HostTextEncoding::Ascii) == "ASCII 31 32 2E 35");
        constexpr char WithNul[] = {'1', '2', '\0', '5', '\0'};
        CHECK(built(WithNul, HostTextEncoding::Utf8) == "UTF-8 31 32");
        for (const HostTextEncoding encoding :
             {HostTextEncoding::MacRoman, HostTextEncoding::Utf16, HostTextEncoding::Latin1,
              HostTextEncoding::WindowsAnsi, HostTextEncoding::Ascii, HostTextEncoding::Utf8,
              HostTextEncoding::Utf32, HostTextEncoding::Unknown,
              HostTextEncoding::Utf16BigEndian}) {
            CHECK(built("", encoding) == "null");
            CHECK(built(nullptr, encoding) == "null");
        }
    }
}

TEST_CASE("Text that does not fit its encoding is built all the same, with a line in the log") {
    DirectHost host;
    struct Row {
        const char* text;
        HostTextEncoding encoding;
        std::string log;
    };
    const std::string utf16 =
        LogLines({"Error: kREALTextEncodingUTF16 not useful for CString2RB!"});
    const std::string utf32 =
        LogLines({"Error: kREALTextEncodingUTF32 not useful for CString2RB!"});
    const Row rows[] = {
        {"ab", HostTextEncoding::Utf16, utf16},
        {"", HostTextEncoding::Utf16, utf16},
        {nullptr, HostTextEncoding::Utf16, utf16},
        {"abcd", HostTextEncoding::Utf32, utf32},
        {nullptr, HostTextEncoding::Utf32, utf32},
        {"Caf\xE9 \xE9", HostTextEncoding::Ascii,
         LogLines({"Error: text is not ascii Caf\xE9 \xE9"})},
        {"Cafe", HostTextEncoding::Ascii, ""},
        {"", HostTextEncoding::Ascii, ""},
        {nullptr, HostTextEncoding::Ascii, ""},
        {"Caf\xE9", HostTextEncoding::WindowsAnsi, ""},
        {"Caf\xC3\xA9", HostTextEncoding::Utf8, ""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.log);
        CHECK(host.LogOf([&] { vqz::CString2RB(row.text, row.encoding); }) == row.log);
        vqz::CString2RB(row.text, row.encoding);
        CHECK(host.TakeDebugLog().empty());
    }
    CHECK(Described(vqz::CString2RB("Caf\xE9", HostTextEncoding::Ascii).Get()) ==
          "ASCII 43 61 66 E9");
    CHECK(Described(vqz::CString2RB("a\x01", HostTextEncoding::Utf16).Get()) == "UTF-8 C5 A1");
}

TEST_CASE("A host that cannot make the string gives null, and nothing is left behind") {
    struct Row {
        double hostVersion;
        HostTextEncoding encoding;
        int failing;
        std::string log;
    };
    const std::string outOfMemory = LogLines({"Out of memory in REALBuildUnicodeStringUTF16."});
    const Row rows[] = {
        {2011.99, HostTextEncoding::Utf8, 1, ""},
        {2012.0, HostTextEncoding::Utf8, 1, ""},
        {2011.99, HostTextEncoding::Utf16, 1, outOfMemory},
        {2011.99, HostTextEncoding::Utf16, 2, ""},
        {2012.0, HostTextEncoding::Utf16, 1, ""},
        {2012.0, HostTextEncoding::Utf16, 2, ""},
        {2011.99, HostTextEncoding::Utf32, 1, outOfMemory},
        {2011.99, HostTextEncoding::Utf32, 2, ""},
        {2012.0, HostTextEncoding::Utf32, 1, ""},
        {2012.0, HostTextEncoding::Utf32, 2, ""},
        {2013.0, HostTextEncoding::Utf32, 1, ""},
        {2013.0, HostTextEncoding::Utf32, 2, ""},
        {2023.04, HostTextEncoding::Utf8, 1, ""},
        {2023.04, HostTextEncoding::Utf16, 2, ""},
        {2023.04, HostTextEncoding::Utf32, 1, ""},
    };
    for (const Row& row : rows) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        CAPTURE(row.failing);
        DirectHost host(row.hostVersion);
        host.FailAllocation(Allocation::String, row.failing, true);
        CHECK(host.LogOf([&] { CHECK(Built("a\0\0\0b\0\0\0"sv, row.encoding) == "null"); }) ==
              row.log);
        host.StopFailing();
        CHECK(tests::TakeRaised(host) == "");
    }
}

TEST_CASE("Without memory only UTF-32 of 200 code points and more fails, on old hosts") {
    const std::vector<std::uint32_t> shortText(199, 0x1F600);
    const std::vector<std::uint32_t> longText(200, 0x1F600);
    for (const double version : {2011.99, 2012.99}) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        DirectHost host(version);
        const tests::FailingBuffers failing;
        CHECK(BuiltFromCodePoints(shortText) == "UTF-8" + Repeated(" F0 9F 98 80", 199));
        CHECK(host.LogOf([&] { CHECK(BuiltFromCodePoints(longText) == "null"); }) ==
              LogLines({"Out of memory in REALBuildUnicodeStringUTF32."}));
        CHECK(BuiltFromCodePoints(longText) == "null");
        CHECK(host.TakeDebugLog().empty());
    }
    const DirectHost newHost(HOST_INTERFACE_32_BIT != 0 ? 2013.0 : 2023.04);
    const tests::FailingBuffers failing;
    CHECK(BuiltFromCodePoints(longText) == "UTF-8" + Repeated(" F0 9F 98 80", 200));
}
