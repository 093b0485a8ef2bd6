// The strings of the stand-in host as a plug-in sees them, and what it is told when a plug-in
// handles them wrongly.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "standin_support.hpp"

using namespace std::string_view_literals;
using namespace standin_tests;
using host_interface::StringData;
using standin::Allocation;
using standin::Host;
using standin::HostOptions;
using standin::HostTextEncoding;
using standin::String;

namespace {

constexpr auto Utf8Code = static_cast<std::uint32_t>(HostTextEncoding::Utf8);
constexpr auto AsciiCode = static_cast<std::uint32_t>(HostTextEncoding::Ascii);
constexpr auto UnknownCode = static_cast<std::uint32_t>(HostTextEncoding::Unknown);

/// A Boolean of which only the low byte counts.
bool LowByte(host_interface::BooleanWord word) {
    return (word & 0xFFU) != 0;
}

/// A handle that no host gave.
String ForeignHandle() {
    static std::array<std::byte, 64> memory;
    return reinterpret_cast<String>(memory.data());
}

/// The string functions, as a plug-in holds them.
struct StringFunctions {
    functions::REALBuildString* build = HostFunction<functions::REALBuildString>("REALBuildString");
    functions::REALBuildStringWithEncoding* buildAs =
        HostFunction<functions::REALBuildStringWithEncoding>("REALBuildStringWithEncoding");
    functions::REALLockString* lock = HostFunction<functions::REALLockString>("REALLockString");
    functions::REALUnlockString* unlock =
        HostFunction<functions::REALUnlockString>("REALUnlockString");
    functions::PluginGetStringData* getData =
        HostFunction<functions::PluginGetStringData>("PluginGetStringData");
    functions::PluginDisposeStringData* dispose =
        HostFunction<functions::PluginDisposeStringData>("PluginDisposeStringData");
    functions::REALGetStringEncoding* encoding =
        HostFunction<functions::REALGetStringEncoding>("REALGetStringEncoding");
    functions::REALSetStringEncoding* setEncoding =
        HostFunction<functions::REALSetStringEncoding>("REALSetStringEncoding");
    functions::REALConvertString* convert =
        HostFunction<functions::REALConvertString>("REALConvertString");
};

}  // namespace

#if HOST_INTERFACE_32_BIT
TEST_CASE("a string's text begins one byte after its storage and ends with NUL") {
    Host host;
    const StringFunctions strings;
    String text = strings.buildAs("caf\xC3\xA9", 5, Utf8Code);
    REQUIRE(text != nullptr);
    CHECK(text->length == 5);
    CHECK(std::memcmp(text->storage + 1, "caf\xC3\xA9", 6) == 0);
    CHECK(strings.encoding(text) == Utf8Code);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}
#else
TEST_CASE("a string's own encoding gives its bytes as they are") {
    Host host;
    const StringFunctions strings;
    // Malformed, so that a conversion would show.
    String text = strings.buildAs("caf\xC3", 4, Utf8Code);
    REQUIRE(text != nullptr);
    StringData data{};
    REQUIRE(LowByte(strings.getData(text, strings.encoding(text), &data)));
    CHECK(std::string_view(data.data, data.length) == "caf\xC3");
    strings.dispose(&data);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}
#endif

TEST_CASE("a host may leave something else than NUL behind a text") {
    Host host(HostOptions{.unterminatedStrings = true});
    const StringFunctions strings;
    String text = strings.buildAs("abc", 3, AsciiCode);
#if HOST_INTERFACE_32_BIT
    CHECK(text->storage[1 + 3] != '\0');
#endif
    StringData data{};
    REQUIRE(LowByte(strings.getData(text, Utf8Code, &data)));
    CHECK(data.data[data.length] != '\0');
    strings.dispose(&data);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}

TEST_CASE("an empty text is the null handle, and a string of length zero is legal too") {
    Host host;
    const StringFunctions strings;
    CHECK(strings.build("", 0) == nullptr);
    CHECK(host.MakeString("", HostTextEncoding::Utf8) == nullptr);
    strings.lock(nullptr);
    strings.unlock(nullptr);

    String empty = host.MakeEmptyString(HostTextEncoding::Latin1);
    REQUIRE(empty != nullptr);
#if HOST_INTERFACE_32_BIT
    CHECK(empty->length == 0);
#endif
    CHECK(host.Encoding(empty) == HostTextEncoding::Latin1);
    StringData data{};
    REQUIRE(LowByte(strings.getData(empty, Utf8Code, &data)));
    CHECK(data.length == 0);
    strings.dispose(&data);
    strings.unlock(empty);
    CHECK(host.Leaks().empty());
}

TEST_CASE("strings without an encoding are of unknown encoding until one is set") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("abc", 3);
    CHECK(strings.encoding(text) == UnknownCode);
    CHECK(strings.convert(text, Utf8Code) == nullptr);
    strings.setEncoding(text, AsciiCode);
    String converted = strings.convert(text, Utf8Code);
    CHECK(host.Bytes(converted) == "abc");
    strings.unlock(converted);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}

TEST_CASE("references are counted") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("abc", 3);
    CHECK(host.References(text) == 1);
    strings.lock(text);
    CHECK(host.References(text) == 2);
    strings.unlock(text);
    CHECK(host.Counts().stringsAlive == 1);
    strings.unlock(text);
    CHECK(host.Counts().stringsMade == 1);
    CHECK(host.Counts().stringsAlive == 0);
    CHECK(host.Leaks().empty());
}

TEST_CASE("a leak is named with its text and its references") {
    Host host;
    const StringFunctions strings;
    String text = strings.buildAs("leaked\n", 7, Utf8Code);
    strings.lock(text);
    CHECK(Only(host.Leaks()) ==
          "still alive: string #1 \"leaked\\x0A\" (UTF-8, 7 bytes), references: 2");
    CHECK(host.Violations().empty());
    host.ResetLedger();
    CHECK(host.Leaks().empty());
    strings.unlock(text);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}

TEST_CASE("an over-release and any use after the release are violations") {
    Host host;
    const StringFunctions strings;
    const auto released = [&] {
        String text = strings.buildAs("gone", 4, AsciiCode);
        strings.unlock(text);
        return text;
    };
    strings.unlock(released());
    CHECK(Only(TakeViolations(host)) ==
          "REALUnlockString: string #1 \"gone\" (ASCII, 4 bytes) was released before");
    strings.lock(released());
    CHECK(Contains(Only(TakeViolations(host)), "REALLockString: string #2"));
    CHECK(strings.convert(released(), Utf8Code) == nullptr);
    CHECK(Contains(Only(TakeViolations(host)), "REALConvertString: string #3"));
    StringData data{};
    CHECK_FALSE(LowByte(strings.getData(released(), Utf8Code, &data)));
    CHECK(Contains(Only(TakeViolations(host)), "PluginGetStringData: string #4"));
    host.Unlock(released());
    CHECK(Contains(Only(TakeViolations(host)), "stand-in host: string #5"));
}

TEST_CASE("a handle that the host never gave is a violation") {
    Host host;
    const StringFunctions strings;
    strings.unlock(ForeignHandle());
    CHECK(Only(TakeViolations(host)) == "REALUnlockString: the handle is no string of this host");
}

TEST_CASE("impossible lengths and missing bytes are violations") {
    Host host;
    const StringFunctions strings;
    CHECK(strings.build("abc", -1) == nullptr);
    CHECK(Only(TakeViolations(host)) == "REALBuildString: the length is negative");
    CHECK(strings.buildAs(nullptr, 3, Utf8Code) == nullptr);
    CHECK(Only(TakeViolations(host)) == "REALBuildStringWithEncoding: no bytes");
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("writing into a string is noticed when it dies") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("abc", 3);
    const_cast<char*>(text->storage)[1] = 'X';
    strings.unlock(text);
    CHECK(Contains(Only(TakeViolations(host)), "was changed, but strings belong to the host"));

    String shortened = strings.build("abc", 3);
    shortened->length = 2;
    strings.unlock(shortened);
    CHECK(Contains(Only(TakeViolations(host)), "was changed"));
}
#endif

#if HOST_INTERFACE_32_BIT && !defined(__SANITIZE_ADDRESS__)
TEST_CASE("the old text cannot be read after the release") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("secret", 6);
    const char* bytes = text->storage + 1;
    strings.unlock(text);
    CHECK(std::memcmp(bytes, "secret", 6) != 0);
}

TEST_CASE("writing through an old pointer is noticed") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("abc", 3);
    auto* bytes = const_cast<char*>(text->storage);
    strings.unlock(text);
    CHECK(host.Violations().empty());
    bytes[1] = 'X';
    CHECK(Only(host.Violations()) == "string #1 was written to after its release");
    // Each once.
    CHECK(Only(TakeViolations(host)) == "string #1 was written to after its release");
    text->length = 5;
    CHECK(Only(TakeViolations(host)) == "string #1 was written to after its release");
    CHECK(host.Violations().empty());
}
#endif

TEST_CASE("string data is the text in the asked encoding, held until it is given back") {
    Host host;
    const StringFunctions strings;
    String text = strings.buildAs("\xE9", 1, static_cast<std::uint32_t>(HostTextEncoding::Latin1));
    StringData data{};
    const host_interface::BooleanWord answer = strings.getData(text, Utf8Code, &data);
    CHECK((answer & 0xFFU) == 1);
    CHECK((answer >> 8U) != 0);
    CHECK(std::string_view(data.data, data.length) == "\xC3\xA9");
    CHECK(data.data[data.length] == '\0');
    CHECK(data.encoding == Utf8Code);
    CHECK(host.Counts().stringDataHeld == 1);
    CHECK(Contains(host.Leaks().at(1), "not given back: string data #1 \"\\xC3\\xA9\" (UTF-8"));
    strings.unlock(text);
    CHECK(std::string_view(data.data, data.length) == "\xC3\xA9");
    strings.dispose(&data);
    CHECK(host.Counts().stringDataHeld == 0);
    CHECK(host.Leaks().empty());
}

TEST_CASE("string data of a null string is empty and has to be given back too") {
    Host host;
    const StringFunctions strings;
    StringData data{};
    REQUIRE(LowByte(strings.getData(nullptr, Utf8Code, &data)));
    CHECK(data.length == 0);
    CHECK(data.data != nullptr);
    strings.dispose(&data);
    CHECK(host.Leaks().empty());
}

TEST_CASE("string data in no known encoding fails, but the bytes as they are can be had") {
    Host host;
    const StringFunctions strings;
    String text = strings.build("\xFF\x01", 2);
    StringData data{};
    const host_interface::BooleanWord answer = strings.getData(text, Utf8Code, &data);
    CHECK((answer & 0xFFU) == 0);
    CHECK(answer != 0);
    CHECK(data.data == nullptr);
    REQUIRE(LowByte(strings.getData(text, UnknownCode, &data)));
    CHECK(std::string_view(data.data, data.length) == "\xFF\x01");
    strings.dispose(&data);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}

TEST_CASE("string data is given back exactly once, through the record that was filled") {
    Host host;
    const StringFunctions strings;
    String text = strings.buildAs("abc", 3, AsciiCode);
    StringData data{};

    REQUIRE(LowByte(strings.getData(text, AsciiCode, &data)));
    strings.dispose(&data);
    strings.dispose(&data);
    CHECK(Only(TakeViolations(host)) ==
          "PluginDisposeStringData: string data #1 was given back before");

    REQUIRE(LowByte(strings.getData(text, AsciiCode, &data)));
    StringData copy = data;
    strings.dispose(&copy);
    CHECK(Contains(Only(host.Violations()),
                   "PluginDisposeStringData: a copy of the record of string data #2"));
    CHECK(Contains(host.Leaks().at(1), "not given back: string data #2"));
    strings.dispose(&data);
    host.ResetLedger();

    StringData never{};
    strings.dispose(&never);
    CHECK(Contains(Only(TakeViolations(host)), "a record that the host never filled"));

    REQUIRE(LowByte(strings.getData(text, AsciiCode, &data)));
    REQUIRE(LowByte(strings.getData(text, AsciiCode, &data)));
    CHECK(Contains(Only(TakeViolations(host)), "the record is filled again"));
    strings.dispose(&data);

    REQUIRE(LowByte(strings.getData(text, AsciiCode, &data)));
    const std::uint32_t word = data.hostWord;
    data.hostWord = 77;
    strings.dispose(&data);
    CHECK(Contains(Only(TakeViolations(host)), "was overwritten"));
    data.hostWord = word;
    strings.dispose(&data);
    strings.unlock(text);
    CHECK(host.Leaks().empty());
}

TEST_CASE("the asked allocation of a string fails, once or from then on") {
    Host host;
    const StringFunctions strings;
    host.FailAllocation(Allocation::String, 2, false);
    String first = strings.build("1", 1);
    CHECK(first != nullptr);
    CHECK(strings.build("2", 1) == nullptr);
    String third = strings.build("3", 1);
    CHECK(third != nullptr);

    host.FailAllocation(Allocation::String, 1, true);
    CHECK(strings.build("4", 1) == nullptr);
    strings.setEncoding(first, AsciiCode);
    CHECK(strings.convert(first, Utf8Code) == nullptr);
    StringData data{};
    CHECK_FALSE(LowByte(strings.getData(first, Utf8Code, &data)));
    host.StopFailing();
    String last = strings.build("5", 1);
    CHECK(last != nullptr);
    strings.unlock(first);
    strings.unlock(third);
    strings.unlock(last);
    CHECK(host.Leaks().empty());
}

TEST_CASE("hundreds of thousands of strings come and go, and the dead stay known for a while") {
    Host host;
    const StringFunctions strings;
    String previous = nullptr;
    for (int k = 0; k < 300'000; ++k) {
        String text = strings.build("0123456789", 10);
        // No address comes back at once.
        REQUIRE(text != previous);
        strings.unlock(text);
        previous = text;
    }
    CHECK(host.Counts().stringsMade == 300'000);
    CHECK(host.Leaks().empty());
    strings.unlock(previous);
    CHECK(Contains(Only(TakeViolations(host)), "string #300000"));
}

TEST_CASE("violations in a loop are reported a hundred times and then counted") {
    Host host;
    const StringFunctions strings;
    for (int k = 0; k < 250; ++k) {
        strings.unlock(ForeignHandle());
    }
    const std::vector<std::string> violations = host.Violations();
    CHECK(violations.size() == 101);
    CHECK(violations.back() == "and 150 more violations");
}
