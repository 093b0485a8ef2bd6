// Reading host strings: every encoding through both getters, on hosts before and after 2012.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "host/byte_view.hpp"
#include "host/rb_text.hpp"
#include "host/terminated_text.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"

namespace {

using namespace std::string_view_literals;
using host_interface::HostTextEncoding;
using standin::Allocation;
using tests::DirectHost;
using tests::HeldString;
using tests::LogLines;
#if !HOST_INTERFACE_32_BIT
using tests::Rebound;
#endif
using vqz::rbText;
using vqz::TextKind;
using vqz::TextSlot;

#if HOST_INTERFACE_32_BIT
constexpr double OldHost = 2011.99;
constexpr double NewHost = 2012.0;
constexpr double BothHosts[] = {OldHost, NewHost};
#else
// No 64-bit host is as old as that.
constexpr double NewHost = standin::First64BitVersion;
constexpr double BothHosts[] = {NewHost};
#endif
/// How many loans of its bytes a text in place has: none where the string can be read.
constexpr int LoansInPlace = HOST_INTERFACE_32_BIT != 0 ? 0 : 1;

/// Whether a text is where the string's own bytes are, as far as that can be seen.
bool IsInPlace([[maybe_unused]] const char* text, [[maybe_unused]] host_interface::String source) {
#if HOST_INTERFACE_32_BIT
    return text == source->storage + 1;
#else
    return true;
#endif
}

/// A code that neither the plug-in nor the host knows.
constexpr auto Nonsense = static_cast<HostTextEncoding>(0x00001234);

constexpr TextSlot EightBitSlots[] = {TextSlot::Windows, TextSlot::MacRoman, TextSlot::Ascii,
                                      TextSlot::Utf8, TextSlot::Latin1};

#if !HOST_INTERFACE_32_BIT
std::size_t lentLength = 0;
int disposals = 0;

host_interface::BooleanWord LendNothing(host_interface::String, std::uint32_t,
                                        host_interface::StringData* lent) {
    *lent = {};
    lent->length = lentLength;
    return 1;
}

/// No bytes, at an address that cannot be read.
host_interface::BooleanWord LendNothingSomewhere(host_interface::String, std::uint32_t,
                                                 host_interface::StringData* lent) {
    *lent = {};
    lent->data = reinterpret_cast<decltype(lent->data)>(1);
    return 1;
}

void CountDisposal(host_interface::StringData*) {
    ++disposals;
}

/// Finds a rebound "PluginGetStringData", so that another function can be rebound after it.
void BindLoans() {
    host_interface::StringData lent;
    CHECK(vqz::host::PluginGetStringData(nullptr, 0, &lent));
}
#endif

constexpr std::size_t Index(TextSlot slot) {
    return static_cast<std::size_t>(slot);
}

HeldString Make(std::string_view bytes, HostTextEncoding encoding) {
    return HeldString(standin::Host::Current().MakeString(bytes, encoding));
}

/// One of the two getters, with what its slot is called.
struct Getter {
    const char* (rbText::*get)();
    TextSlot slot;
};
constexpr Getter Getters[] = {{&rbText::AsciiText, TextSlot::Ascii},
                              {&rbText::Utf8Text, TextSlot::Utf8}};

/// The sum of references, string data and buffers that an `rbText` holds beside its source.
int Acquired(const rbText& text) {
    int count = 0;
    for (std::size_t slot = 0; slot < vqz::TextSlotCount; ++slot) {
        count += text.converted[slot] != nullptr ? 1 : 0;
        count += text.hasStringData[slot] ? 1 : 0;
        count += text.temp[slot] != nullptr ? 1 : 0;
    }
    return count;
}

struct EncodedText {
    HostTextEncoding encoding;
    std::string_view bytes;
};

constexpr HostTextEncoding EightBitEncodings[] = {
    HostTextEncoding::MacRoman, HostTextEncoding::Latin1, HostTextEncoding::WindowsAnsi,
    HostTextEncoding::Ascii, HostTextEncoding::Utf8};

bool IsEightBit(HostTextEncoding encoding) {
    return std::ranges::find(EightBitEncodings, encoding) != std::end(EightBitEncodings);
}

/// "é1" in all encodings but ASCII and unknown ones.
constexpr EncodedText Accented[] = {
    {HostTextEncoding::MacRoman, "\x8E\x31"sv},
    {HostTextEncoding::Latin1, "\xE9\x31"sv},
    {HostTextEncoding::WindowsAnsi, "\xE9\x31"sv},
    {HostTextEncoding::Utf8, "\xC3\xA9\x31"sv},
    {HostTextEncoding::Utf16, "\xE9\x00\x31\x00"sv},
    {HostTextEncoding::Utf16LittleEndian, "\xE9\x00\x31\x00"sv},
    {HostTextEncoding::Utf16BigEndian, "\x00\xE9\x00\x31"sv},
    {HostTextEncoding::Utf32, "\xE9\x00\x00\x00\x31\x00\x00\x00"sv},
    {HostTextEncoding::Utf32LittleEndian, "\xE9\x00\x00\x00\x31\x00\x00\x00"sv},
    {HostTextEncoding::Utf32BigEndian, "\x00\x00\x00\xE9\x00\x00\x00\x31"sv},
};

/// "1.5" in the encodings whose units are wider than a byte.
constexpr EncodedText WidePlain[] = {
    {HostTextEncoding::Utf16, "\x31\x00.\x00\x35\x00"sv},
    {HostTextEncoding::Utf16LittleEndian, "\x31\x00.\x00\x35\x00"sv},
    {HostTextEncoding::Utf16BigEndian, "\x00\x31\x00.\x00\x35"sv},
    {HostTextEncoding::Utf32, "\x31\x00\x00\x00.\x00\x00\x00\x35\x00\x00\x00"sv},
    {HostTextEncoding::Utf32LittleEndian, "\x31\x00\x00\x00.\x00\x00\x00\x35\x00\x00\x00"sv},
    {HostTextEncoding::Utf32BigEndian, "\x00\x00\x00\x31\x00\x00\x00.\x00\x00\x00\x35"sv},
};

}  // namespace

TEST_CASE("No string reads as empty text in every slot") {
    for (const double version : BothHosts) {
        DirectHost host(version);
        CHECK(host.LogOf([] {
            rbText text(nullptr);
            CHECK(text.kind == TextKind::Shared);
            CHECK(text.encoding == HostTextEncoding::Ascii);
            CHECK_FALSE(text.failed);
            CHECK(text.AsciiText() == ""sv);
            CHECK(text.Utf8Text() == ""sv);
            CHECK(text.Utf8Length() == 0);
            for (std::size_t slot = 0; slot < vqz::TextSlotCount; ++slot) {
                CHECK(text.length[slot] == 0);
                REQUIRE(text.data[slot] != nullptr);
                CHECK(text.data[slot] == ""sv);
            }
            // The empty wide texts end with a wide NUL.
            for (std::size_t byte = 0; byte < 4; ++byte) {
                CHECK(text.data[Index(TextSlot::Utf32)][byte] == '\0');
            }
            CHECK(text.checkWord1 == 0x56515A54);
            CHECK(text.checkWord2 == 0x56515A54);
            CHECK(text.spare == 0);
        }) == "");
    }
}

TEST_CASE("The slots of both getters have a length only after the getter ran") {
    const DirectHost host;
    const HeldString source = Make("\xC3\xA9", HostTextEncoding::Utf8);
    rbText text(source.Get());
    for (const std::int32_t length : text.length) {
        CHECK(length == -1);
    }
    CHECK(text.kind == TextKind::Unchecked);
    text.Utf8Text();
    CHECK(text.length[Index(TextSlot::Utf8)] == 2);
    CHECK(text.length[Index(TextSlot::Ascii)] == -1);
}

TEST_CASE("Pure ASCII in an eight-bit encoding is handed out in place, without a call or a line") {
    for (const double version : BothHosts) {
        for (const bool unterminated : {false, true}) {
            DirectHost host(
                standin::HostOptions{.version = version, .unterminatedStrings = unterminated});
            for (const HostTextEncoding encoding : EightBitEncodings) {
                for (const Getter& getter : Getters) {
                    CAPTURE(static_cast<std::uint32_t>(encoding));
                    const HeldString source = Make("12.5", encoding);
                    CHECK(host.LogOf([&] {
                        rbText text(source.Get());
                        const char* read = (text.*getter.get)();
                        CHECK(IsInPlace(read, source.Get()));
                        CHECK(host.Counts().stringDataHeld == LoansInPlace);
                        CHECK(std::string_view(read, 4) == "12.5");
                        CHECK(text.kind == TextKind::Shared);
                        CHECK_FALSE(text.failed);
                        CHECK(Acquired(text) == 0);
                        for (const TextSlot slot : EightBitSlots) {
                            CHECK(text.length[Index(slot)] == 4);
                            CHECK(static_cast<const void*>(text.data[Index(slot)]) == read);
                        }
                        CHECK(host.References(source.Get()) == 2 + LoansInPlace);
                    }) == "");
                    CHECK(host.References(source.Get()) == 1);
                }
            }
        }
    }
}

TEST_CASE("An empty string in an eight-bit encoding reads as empty text") {
    for (const double version : BothHosts) {
        DirectHost host(standin::HostOptions{.version = version, .unterminatedStrings = true});
        for (const HostTextEncoding encoding : EightBitEncodings) {
            const HeldString source(host.MakeEmptyString(encoding));
            CHECK(host.LogOf([&] {
                rbText text(source.Get());
                CHECK(text.AsciiText() == ""sv);
                CHECK(text.kind == TextKind::Shared);
                CHECK(text.Utf8Text() == ""sv);
                CHECK(Acquired(text) == 0);
            }) == "");
        }
    }
}

TEST_CASE("A byte above 0x7F is found at every place of a text of every length") {
    const DirectHost host;
    for (const std::size_t length : {1U, 2U, 7U, 8U, 9U, 16U, 20U, 21U, 22U, 23U, 24U, 29U, 30U}) {
        const std::string plain(length, '\x7F');
        {
            const HeldString source = Make(plain, HostTextEncoding::Latin1);
            rbText text(source.Get());
            CHECK(text.AsciiText() == plain);
            CHECK(text.kind == TextKind::Shared);
        }
        for (std::size_t place = 0; place < length; ++place) {
            CAPTURE(length);
            CAPTURE(place);
            std::string bytes = plain;
            bytes[place] = '\x80';
            const HeldString source = Make(bytes, HostTextEncoding::Latin1);
            rbText text(source.Get());
            std::string expected = plain;
            expected[place] = '?';
            CHECK(text.AsciiText() == expected);
            CHECK(text.kind == TextKind::NeedsConversion);
        }
    }
}

TEST_CASE("A host from 2012 on lends the bytes of text beyond ASCII") {
    DirectHost host(NewHost);
    for (const EncodedText& encoded : Accented) {
        CAPTURE(static_cast<std::uint32_t>(encoded.encoding));
        const HeldString source = Make(encoded.bytes, encoded.encoding);
        const int loansOfSource = IsEightBit(encoded.encoding) ? LoansInPlace : 0;
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.AsciiText() == "?1"sv);
            CHECK(text.hasStringData[Index(TextSlot::Ascii)]);
            CHECK(host.Counts().stringDataHeld == 1 + loansOfSource);
            CHECK_FALSE(text.failed);
        }) == LogLines({"REALGetStringData...", "REALGetStringData ok. Length 2",
                        "REALDisposeStringData ASCII"}));

        const bool isUtf8 = encoded.encoding == HostTextEncoding::Utf8;
        const std::string log =
            LogLines({"REALGetStringData ok. Length 3", "REALDisposeStringData UTF8"});
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.Utf8Text() == "\xC3\xA9\x31"sv);
            CHECK(text.Utf8Length() == 3);
            CHECK(text.hasStringData[Index(TextSlot::Utf8)] == !isUtf8);
            CHECK(host.Counts().stringDataHeld == (isUtf8 ? 0 : 1) + loansOfSource);
            CHECK_FALSE(text.failed);
        }) == (isUtf8 ? "" : log));
    }
    CHECK(host.Counts().stringDataHeld == 0);
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("A host before 2012 converts text beyond ASCII into another string") {
    DirectHost host(OldHost);
    for (const EncodedText& encoded : Accented) {
        CAPTURE(static_cast<std::uint32_t>(encoded.encoding));
        const bool isUtf8 = encoded.encoding == HostTextEncoding::Utf8;
        const HeldString source = Make(encoded.bytes, encoded.encoding);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.AsciiText() == "?1"sv);
            REQUIRE(text.converted[Index(TextSlot::Ascii)] != nullptr);
            CHECK(host.Encoding(text.converted[Index(TextSlot::Ascii)]) == HostTextEncoding::Ascii);
            CHECK(text.Utf8Text() == "\xC3\xA9\x31"sv);
            CHECK((text.converted[Index(TextSlot::Utf8)] != nullptr) == !isUtf8);
            CHECK(host.Counts().stringDataHeld == 0);
            CHECK_FALSE(text.failed);
        }) == "");
        CHECK(host.Counts().stringsAlive == 1);
    }
}

#endif

TEST_CASE("Wide text is converted even when it is pure ASCII") {
    for (const double version : BothHosts) {
        for (const EncodedText& encoded : WidePlain) {
            for (const Getter& getter : Getters) {
                CAPTURE(version);
                CAPTURE(static_cast<std::uint32_t>(encoded.encoding));
                const DirectHost host(version);
                const HeldString source = Make(encoded.bytes, encoded.encoding);
                rbText text(source.Get());
                CHECK(text.kind == TextKind::NeedsConversion);
                CHECK((text.*getter.get)() == "1.5"sv);
                CHECK(Acquired(text) == 1);
            }
        }
    }
}

TEST_CASE("Text called ASCII with other bytes in it is UTF-8 as it stands") {
    for (const double version : BothHosts) {
        DirectHost host(version);
        const HeldString source = Make("\xE9\x31", HostTextEncoding::Ascii);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.Utf8Text() == "\xE9\x31"sv);
            CHECK(IsInPlace(text.Utf8Text(), source.Get()));
            CHECK(host.Counts().stringDataHeld == LoansInPlace);
            CHECK(Acquired(text) == 0);
        }) == "");
    }
}

TEST_CASE("A getter that ran once asks the host for nothing more") {
    for (const double version : BothHosts) {
        for (const Getter& getter : Getters) {
            DirectHost host(version);
            const HeldString source = Make("\xE9\x31", HostTextEncoding::Latin1);
            rbText text(source.Get());
            const char* first = (text.*getter.get)();
            const std::uint64_t stringsMade = host.Counts().stringsMade;
            const int acquired = Acquired(text);
            host.FailAllocation(Allocation::String, 1, true);
            CHECK(static_cast<const void*>((text.*getter.get)()) == first);
            host.StopFailing();
            CHECK(host.Counts().stringsMade == stringsMade);
            CHECK(Acquired(text) == acquired);
            CHECK_FALSE(text.failed);
        }
    }
}

TEST_CASE("Pure ASCII of unknown encoding is handed out in place") {
    for (const double version : BothHosts) {
        DirectHost host(version);
        const HeldString source = Make("12.5", HostTextEncoding::Unknown);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.kind == TextKind::Shared);
            CHECK(text.encoding == HostTextEncoding::Unknown);
            CHECK(text.source == source.Get());
            CHECK_FALSE(text.failed);
            CHECK(text.Utf8Text() == "12.5"sv);
        }) == "");
    }
}

TEST_CASE("Other text of unknown encoding is taken for Windows ANSI and counts as failed") {
    for (const double version : BothHosts) {
        CAPTURE(version);
        DirectHost host(version);
        const HeldString source = Make("\x80\x31", HostTextEncoding::Unknown);
        const int buffersBefore = tests::LivingBuffers();
        std::optional<rbText> text;
        CHECK(host.LogOf([&] { text.emplace(source.Get()); }) ==
              LogLines({"REALBuildUnicodeString failed"}));
        CHECK(tests::LivingBuffers() == buffersBefore);
        CHECK(text->failed);
        CHECK(text->kind == TextKind::NeedsConversion);
        CHECK(text->encoding == HostTextEncoding::WindowsAnsi);
        CHECK(text->source != source.Get());
        CHECK(host.References(text->source) == 1);
        CHECK(host.References(source.Get()) == 1);
        CHECK(text->Utf8Text() == "\xE2\x82\xAC\x31"sv);
        CHECK(text->AsciiText() == "?1"sv);
        text.reset();
        CHECK(host.Counts().stringsAlive == 1);
    }
}

TEST_CASE("Text of unknown encoding that cannot be rebuilt is empty") {
    for (const double version : BothHosts) {
        DirectHost host(version);
        const HeldString source = Make("\x80\x31", HostTextEncoding::Unknown);
        host.FailAllocation(Allocation::String, 1 + LoansInPlace, false);
        rbText text(source.Get());
        CHECK(text.failed);
        CHECK(text.source == nullptr);
        CHECK(text.Utf8Text() == ""sv);
        CHECK(text.AsciiText() == ""sv);
        CHECK(host.References(source.Get()) == 1);
    }
}

TEST_CASE("Without memory, text of unknown encoding is left as it is") {
    DirectHost host(NewHost);
    const HeldString source = Make("\x80\x31", HostTextEncoding::Unknown);
    const tests::FailingBuffers failing;
    std::optional<rbText> text;
    CHECK(host.LogOf([&] { text.emplace(source.Get()); }) == LogLines({"Out of Memory."}));
    CHECK(text->failed);
    // The bytes were looked at before: the state says that they are still to be.
    CHECK(text->kind == TextKind::Unchecked);
    CHECK(text->source == source.Get());
    CHECK(text->encoding == HostTextEncoding::Unknown);
}

TEST_CASE("Text in an encoding that nobody knows is left to the host, which fails") {
    SUBCASE("a new host") {
        DirectHost host(NewHost);
        const HeldString source = Make("12", Nonsense);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.kind == TextKind::Unrecognised);
            CHECK(text.AsciiText() == ""sv);
            CHECK(text.failed);
        }) == LogLines({"REALGetStringData...", "REALGetStringData failed."}));
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.Utf8Text() == ""sv);
            CHECK(text.Utf8Length() == 0);
            CHECK(text.failed);
            CHECK(Acquired(text) == 0);
        }) == LogLines({"REALGetStringData failed."}));
    }
#if HOST_INTERFACE_32_BIT
    SUBCASE("an old host") {
        DirectHost host(OldHost);
        const HeldString source = Make("12", Nonsense);
        for (const Getter& getter : Getters) {
            CHECK(host.LogOf([&] {
                rbText text(source.Get());
                CHECK((text.*getter.get)() == ""sv);
                CHECK(text.failed);
                CHECK(Acquired(text) == 0);
            }) == LogLines({"REALConvertString failed"}));
        }
    }
#endif
}

TEST_CASE("A host without memory for the conversion gives empty text") {
    for (const double version : BothHosts) {
        for (const Getter& getter : Getters) {
            DirectHost host(version);
            const HeldString source = Make("\xE9\x31", HostTextEncoding::Latin1);
            rbText text(source.Get());
            host.FailAllocation(Allocation::String, 1 + LoansInPlace, false);
            CHECK((text.*getter.get)() == ""sv);
            CHECK(text.failed);
            // A failed slot is not tried again.
            CHECK((text.*getter.get)() == ""sv);
        }
    }
}

TEST_CASE("Text without a NUL behind it is copied, and the copy freed") {
    struct Row {
        double hostVersion;
        EncodedText encoded;
        Getter getter;
        std::string_view expected;
        std::string log;
    };
    const EncodedText latin1{HostTextEncoding::Latin1, "\xE9\x31"sv};
    const EncodedText utf8{HostTextEncoding::Utf8, "\xC3\xA9\x31"sv};
    const EncodedText ascii{HostTextEncoding::Ascii, "\xE9\x31"sv};
    const auto& [asciiGetter, utf8Getter] = Getters;
    const std::string_view fixed = "String is not zero terminated. Fixed.";
    const Row rows[] = {
        {NewHost, latin1, asciiGetter, "?1",
         LogLines({"REALGetStringData...", "REALGetStringData ok. Length 2", fixed,
                   "REALDisposeStringData ASCII", "FreeMemoryNow tempASCII"})},
        {NewHost, latin1, utf8Getter, "\xC3\xA9\x31",
         LogLines({"REALGetStringData ok. Length 3", fixed, "REALDisposeStringData UTF8",
                   "FreeMemoryNow tempUTF8"})},
#if HOST_INTERFACE_32_BIT
        {OldHost, latin1, asciiGetter, "?1", LogLines({fixed, "FreeMemoryNow tempASCII"})},
        {OldHost, latin1, utf8Getter, "\xC3\xA9\x31", LogLines({fixed, "FreeMemoryNow tempUTF8"})},
        {OldHost, utf8, utf8Getter, "\xC3\xA9\x31", LogLines({fixed, "FreeMemoryNow tempUTF8"})},
#endif
        {NewHost, utf8, utf8Getter, "\xC3\xA9\x31", LogLines({fixed, "FreeMemoryNow tempUTF8"})},
        {NewHost, ascii, utf8Getter, "\xE9\x31", LogLines({fixed, "FreeMemoryNow tempUTF8"})},
    };
    for (const Row& row : rows) {
        CAPTURE(row.log);
        DirectHost host(
            standin::HostOptions{.version = row.hostVersion, .unterminatedStrings = true});
        const int buffersBefore = tests::LivingBuffers();
        const HeldString source = Make(row.encoded.bytes, row.encoded.encoding);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK((text.*row.getter.get)() == row.expected);
            CHECK(text.length[Index(row.getter.slot)] ==
                  static_cast<std::int32_t>(row.expected.size()));
            CHECK(static_cast<const void*>(text.temp[Index(row.getter.slot)]) ==
                  text.data[Index(row.getter.slot)]);
        }) == row.log);
        CHECK(tests::LivingBuffers() == buffersBefore);
    }
}

TEST_CASE("Converted text of no length is not copied, whatever stands behind it") {
    for (const double version : BothHosts) {
        DirectHost host(standin::HostOptions{.version = version, .unterminatedStrings = true});
        const HeldString source(host.MakeEmptyString(HostTextEncoding::Utf16));
        const std::string log = host.LogOf([&] {
            rbText text(source.Get());
            text.Utf8Text();
            CHECK(text.Utf8Length() == 0);
            CHECK(text.temp[Index(TextSlot::Utf8)] == nullptr);
            CHECK_FALSE(text.failed);
        });
        CHECK(log == (version == NewHost ? LogLines({"REALGetStringData ok. Length 0",
                                                     "REALDisposeStringData UTF8"})
                                         : ""));
    }
}

TEST_CASE("Without memory for the copy, text without a NUL behind it is empty") {
    DirectHost host(standin::HostOptions{.version = NewHost, .unterminatedStrings = true});
    const HeldString source = Make("\xC3\xA9\x31", HostTextEncoding::Utf8);
    const tests::FailingBuffers failing;
    CHECK(host.LogOf([&] {
        rbText text(source.Get());
        CHECK(text.Utf8Text() == ""sv);
        CHECK(text.Utf8Length() == 0);
    }) == LogLines({"String is not zero terminated. Fixed.", "Out of memory"}));
}

TEST_CASE("The end of a record releases every slot, in the order of the slots") {
    DirectHost host(NewHost);
    const HeldString source = Make("12", HostTextEncoding::Utf8);
    const HeldString other = Make("34", HostTextEncoding::Utf8);
    struct SlotMessages {
        TextSlot slot;
        std::string_view stringData;
        std::string_view buffer;
    };
    constexpr SlotMessages Messages[] = {
        {TextSlot::Windows, "REALDisposeStringData Windows", "FreeMemoryNow tempWindows"},
        {TextSlot::MacRoman, "REALDisposeStringData MacRoman", "FreeMemoryNow tempMacRoman"},
        {TextSlot::Ascii, "REALDisposeStringData ASCII", "FreeMemoryNow tempASCII"},
        {TextSlot::Utf8, "REALDisposeStringData UTF8", "FreeMemoryNow tempUTF8"},
        {TextSlot::Latin1, "REALDisposeStringData Latin1", "FreeMemoryNow tempLatin1"},
        {TextSlot::Utf16, "REALDisposeStringData UTF16", "FreeMemoryNow tempUTF16"},
        {TextSlot::Utf32, "REALDisposeStringData UTF32", "FreeMemoryNow tempUTF32"},
    };
    const int buffersBefore = tests::LivingBuffers();
    std::vector<std::string_view> expectedOrder;
    {
        std::optional<rbText> text(std::in_place, source.Get());
        for (const SlotMessages& row : Messages) {
            const std::size_t slot = Index(row.slot);
            text->temp[slot] = static_cast<char*>(vqz::platform::AllocateZeroed(4));
            text->hasStringData[slot] = vqz::host::PluginGetStringData(
                source.Get(), static_cast<std::uint32_t>(HostTextEncoding::Utf8),
                &text->stringData[slot]);
            host.Lock(other.Get());
            text->converted[slot] = other.Get();
            expectedOrder.push_back(row.stringData);
        }
        for (const SlotMessages& row : Messages) {
            expectedOrder.push_back(row.buffer);
        }
        std::string expected;
        for (const std::string_view line : expectedOrder) {
            expected += LogLines({line});
        }
        CHECK(host.Counts().stringDataHeld == 7);
        CHECK(host.References(other.Get()) == 8);
        CHECK(host.LogOf([&] { text.reset(); }) == expected);
    }
    CHECK(host.Counts().stringDataHeld == 0);
    CHECK(host.References(other.Get()) == 1);
    CHECK(tests::LivingBuffers() == buffersBefore);
}

TEST_CASE("Corrupted check words are logged, and everything is released all the same") {
    DirectHost host(NewHost);
    const HeldString source = Make("\xE9\x31", HostTextEncoding::Latin1);
    CHECK(host.LogOf([&] {
        rbText text(source.Get());
        text.checkWord1 = 0;
    }) == LogLines({"Check1 in rbText invalid 0"}));
    CHECK(host.LogOf([&] {
        rbText text(source.Get());
        text.checkWord2 = 0xFFFFFFFF;
    }) == LogLines({"Check2 in rbText invalid 4294967295"}));
    CHECK(host.LogOf([&] {
        rbText text(source.Get());
        text.Utf8Text();
        text.checkWord1 = 1;
        text.checkWord2 = 2;
    }) == LogLines({"REALGetStringData ok. Length 3", "Check1 in rbText invalid 1",
                    "Check2 in rbText invalid 2", "REALDisposeStringData UTF8"}));
    {
        rbText text(source.Get());
        text.checkWord1 = 0;
    }
    CHECK(host.TakeDebugLog().empty());
    CHECK(host.References(source.Get()) == 1);
}

TEST_CASE("A byte view shows the bytes as the host stores them and keeps the string alive") {
    DirectHost host;
    {
        HeldString source = Make("1\0\xE9"sv, HostTextEncoding::Latin1);
        const vqz::ByteView view(source.Get(), HostTextEncoding::Latin1);
        CHECK(host.References(source.Get()) == 2);
        source = HeldString();
        CHECK(std::string(view.data(), static_cast<std::size_t>(view.length())) == "1\0\xE9"sv);
    }
    CHECK(host.Counts().stringsAlive == 0);
    const vqz::ByteView none(host_interface::String{}, HostTextEncoding::Utf8);
    CHECK(none.data() == nullptr);
    CHECK(none.length() == 0);
}

TEST_CASE("A terminated text ends with a NUL, whatever the host stores behind it") {
    const EncodedText sources[] = {
        {HostTextEncoding::Ascii, "12.5"sv},
        {HostTextEncoding::Utf8, "12.5"sv},
        {HostTextEncoding::Unknown, "12.5"sv},
        {HostTextEncoding::Latin1, "12.5"sv},
        {HostTextEncoding::Utf16, "\x31\x00\x32\x00.\x00\x35\x00"sv},
    };
    for (const double version : BothHosts) {
        for (const bool unterminated : {false, true}) {
            const DirectHost host(
                standin::HostOptions{.version = version, .unterminatedStrings = unterminated});
            for (const EncodedText& encoded : sources) {
                CAPTURE(static_cast<std::uint32_t>(encoded.encoding));
                const HeldString source = Make(encoded.bytes, encoded.encoding);
                const vqz::TerminatedText text(source.Get());
                CHECK(text.begin() == "12.5"sv);
                CHECK(text.end() == text.begin() + 4);
            }
        }
    }
}

TEST_CASE("A terminated text keeps NULs inside, and is empty for no string and for failures") {
    DirectHost host(standin::HostOptions{.unterminatedStrings = true});
    const HeldString withNul = Make("1\0002"sv, HostTextEncoding::Utf8);
    const vqz::TerminatedText text(withNul.Get());
    CHECK(std::string(text.begin(), text.end()) == "1\0002"sv);
    CHECK(*text.end() == '\0');

    const HeldString empty(host.MakeEmptyString(HostTextEncoding::Utf8));
    const HeldString emptyWide(host.MakeEmptyString(HostTextEncoding::Utf16));
    const HeldString unreadable = Make("12", Nonsense);
    for (const host_interface::String source :
         {empty.Get(), emptyWide.Get(), unreadable.Get(), host_interface::String{}}) {
        const vqz::TerminatedText nothing(source);
        CHECK(nothing.begin() == ""sv);
        CHECK(nothing.end() == nothing.begin());
    }
}

#if !HOST_INTERFACE_32_BIT
TEST_CASE(
    "A text whose bytes the host does not lend is empty and counts as failed, with one line") {
    DirectHost host;
    for (const HostTextEncoding encoding : EightBitEncodings) {
        CAPTURE(static_cast<std::uint32_t>(encoding));
        const HeldString source = Make("12.5", encoding);
        host.FailAllocation(Allocation::String, 1, false);
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.Utf8Text() == ""sv);
            CHECK(text.AsciiText() == ""sv);
            CHECK(text.Utf8Length() == 0);
            CHECK(text.failed);
        }) == LogLines({"REALGetStringData failed."}));
        CHECK(host.References(source.Get()) == 1);
    }
    CHECK(host.Counts().stringDataHeld == 0);
}

TEST_CASE("Bytes that the host lends without an address are none") {
    DirectHost host;
    const Rebound lend(vqz::host::PluginGetStringData, &LendNothing);
    BindLoans();
    const Rebound dispose(vqz::host::PluginDisposeStringData, &CountDisposal);
    for (const HostTextEncoding encoding : EightBitEncodings) {
        CAPTURE(static_cast<std::uint32_t>(encoding));
        const HeldString source = Make("12.5", encoding);
        lentLength = 4;
        disposals = 0;
        CHECK(host.LogOf([&] {
            rbText text(source.Get());
            CHECK(text.Utf8Text() == ""sv);
            CHECK(text.Utf8Length() == 0);
            CHECK(text.failed);
        }) == LogLines({"REALGetStringData failed."}));
        CHECK(disposals == 1);

        lentLength = 0;
        const rbText text(source.Get());
        CHECK_FALSE(text.failed);
    }
}

TEST_CASE("What stands at the address of no converted bytes is not looked at") {
    DirectHost host;
    const HeldString source = Make("\x31\x00"sv, HostTextEncoding::Utf16);
    const Rebound lend(vqz::host::PluginGetStringData, &LendNothingSomewhere);
    BindLoans();
    const Rebound dispose(vqz::host::PluginDisposeStringData, &CountDisposal);
    const vqz::TerminatedText text(source.Get());
    CHECK(text.begin() == ""sv);
    CHECK(text.end() == text.begin());
}
#endif
