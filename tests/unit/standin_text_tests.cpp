// Text in every encoding of the stand-in host, by the converters of the system it runs on.
#include <string>
#include <string_view>

#include "standin_support.hpp"

using namespace std::string_view_literals;
using namespace standin_tests;
using standin::Host;
using standin::HostTextEncoding;
using standin::String;

namespace {

/// The bytes of a text in one encoding after a conversion by the host.
std::string Converted(Host& host, std::string_view bytes, HostTextEncoding from,
                      HostTextEncoding to) {
    String source = host.MakeString(bytes, from);
    String result = host.Convert(source, to);
    REQUIRE(result != nullptr);
    CHECK(host.Encoding(result) == to);
    std::string text = host.Bytes(result);
    host.Unlock(result);
    host.Unlock(source);
    return text;
}

struct Sample {
    const char* name;
    HostTextEncoding encoding;
    std::string_view bytes;
};

/// "Zoë €" in each encoding that has all of it.
constexpr Sample Samples[] = {
    {"UTF-8", HostTextEncoding::Utf8, "Zo\xC3\xAB \xE2\x82\xAC"sv},
    {"UTF-16", HostTextEncoding::Utf16, "Z\0o\0\xEB\0 \0\xAC\x20"sv},
    {"UTF-16LE", HostTextEncoding::Utf16LittleEndian, "Z\0o\0\xEB\0 \0\xAC\x20"sv},
    {"UTF-16BE", HostTextEncoding::Utf16BigEndian, "\0Z\0o\0\xEB\0 \x20\xAC"sv},
    {"UTF-32", HostTextEncoding::Utf32, "Z\0\0\0o\0\0\0\xEB\0\0\0 \0\0\0\xAC\x20\0\0"sv},
    {"UTF-32LE", HostTextEncoding::Utf32LittleEndian,
     "Z\0\0\0o\0\0\0\xEB\0\0\0 \0\0\0\xAC\x20\0\0"sv},
    {"UTF-32BE", HostTextEncoding::Utf32BigEndian, "\0\0\0Z\0\0\0o\0\0\0\xEB\0\0\0 \0\0\x20\xAC"sv},
    {"Windows-1252", HostTextEncoding::WindowsAnsi, "Zo\xEB \x80"sv},
    {"MacRoman", HostTextEncoding::MacRoman, "Zo\x91 \xDB"sv},
};

}  // namespace

TEST_CASE("every pair of encodings converts in both directions") {
    Host host;
    for (const Sample& from : Samples) {
        for (const Sample& to : Samples) {
            CAPTURE(from.name);
            CAPTURE(to.name);
            CHECK(Converted(host, from.bytes, from.encoding, to.encoding) == to.bytes);
        }
    }
    CHECK(host.Leaks().empty());
}

TEST_CASE("Latin-1 is the first 256 code points") {
    Host host;
    std::string all;
    std::string wide;
    for (int code = 1; code < 256; ++code) {
        all += static_cast<char>(code);
        wide += static_cast<char>(code);
        wide += '\0';
    }
    CHECK(Converted(host, all, HostTextEncoding::Latin1, HostTextEncoding::Utf16LittleEndian) ==
          wide);
    CHECK(Converted(host, wide, HostTextEncoding::Utf16LittleEndian, HostTextEncoding::Latin1) ==
          all);
}

TEST_CASE("the unused codes of Windows-1252 are C1 controls, both ways") {
    Host host;
    constexpr std::string_view Unused = "\x81\x8D\x8F\x90\x9D";
    constexpr std::string_view Utf8 = "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D";
    CHECK(Converted(host, Unused, HostTextEncoding::WindowsAnsi, HostTextEncoding::Utf8) == Utf8);
    CHECK(Converted(host, Utf8, HostTextEncoding::Utf8, HostTextEncoding::WindowsAnsi) == Unused);
    // A control whose code is a printable character there cannot be expressed.
    CHECK(Converted(host, "\xC2\x80", HostTextEncoding::Utf8, HostTextEncoding::WindowsAnsi) ==
          "?");
}

TEST_CASE("what an encoding cannot express is one question mark for each character") {
    Host host;
    constexpr std::string_view Text = "a\xCE\xA9\xF0\x9F\x98\x80z";  // a, Omega, an emoji, z
    CHECK(Converted(host, Text, HostTextEncoding::Utf8, HostTextEncoding::Ascii) == "a??z");
    CHECK(Converted(host, Text, HostTextEncoding::Utf8, HostTextEncoding::Latin1) == "a??z");
    CHECK(Converted(host, Text, HostTextEncoding::Utf8, HostTextEncoding::WindowsAnsi) == "a??z");
    CHECK(Converted(host, "\xF0\x9F\x98\x80z", HostTextEncoding::Utf8,
                    HostTextEncoding::MacRoman) == "?z");
    // Never a look-alike.
    CHECK(Converted(host, "\xC3\xA9", HostTextEncoding::Utf8, HostTextEncoding::Ascii) == "?");
}

TEST_CASE("code points above U+FFFF are pairs in UTF-16 and single in UTF-32") {
    Host host;
    constexpr std::string_view Emoji = "\xF0\x9F\x98\x80";
    CHECK(Converted(host, Emoji, HostTextEncoding::Utf8, HostTextEncoding::Utf16LittleEndian) ==
          "\x3D\xD8\x00\xDE"sv);
    CHECK(Converted(host, Emoji, HostTextEncoding::Utf8, HostTextEncoding::Utf32BigEndian) ==
          "\x00\x01\xF6\x00"sv);
    CHECK(Converted(host, "\x00\x01\xF6\x00"sv, HostTextEncoding::Utf32BigEndian,
                    HostTextEncoding::Utf8) == Emoji);
}

TEST_CASE("malformed text becomes replacement characters and never more") {
    Host host;
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    const auto fromUtf8 = [&](std::string_view bytes) {
        const std::string wide =
            Converted(host, bytes, HostTextEncoding::Utf8, HostTextEncoding::Utf16);
        return Converted(host, wide, HostTextEncoding::Utf16, HostTextEncoding::Utf8);
    };
    CHECK(fromUtf8("A\x80Z") == "A" + std::string(Replacement) + "Z");
    CHECK(fromUtf8("A\xE2\x82") == "A" + std::string(Replacement));
    CHECK(fromUtf8("A\xE2\x82Z") == "A" + std::string(Replacement) + "Z");
    CHECK(fromUtf8("\xC0\x80") == std::string(Replacement) + std::string(Replacement));

    CHECK(Converted(host, "\x00\xD8"sv, HostTextEncoding::Utf16LittleEndian,
                    HostTextEncoding::Utf8) == Replacement);
    CHECK(Converted(host, "\x00\xDCZ\0"sv, HostTextEncoding::Utf16LittleEndian,
                    HostTextEncoding::Utf8) == std::string(Replacement) + "Z");
    CHECK(Converted(host, "Z\0\x41"sv, HostTextEncoding::Utf16LittleEndian,
                    HostTextEncoding::Utf8) == "Z" + std::string(Replacement));
    CHECK(Converted(host, "\x00\x11\x00\x00"sv, HostTextEncoding::Utf32BigEndian,
                    HostTextEncoding::Utf8) == Replacement);
    CHECK(Converted(host, "\x00\x00\xD8\x00"sv, HostTextEncoding::Utf32BigEndian,
                    HostTextEncoding::Utf8) == Replacement);
    CHECK(Converted(host, "A\xE9", HostTextEncoding::Ascii, HostTextEncoding::Utf8) ==
          "A" + std::string(Replacement));
}

TEST_CASE("a text with zeros and a long text keep their length") {
    Host host;
    CHECK(Converted(host, "a\0b"sv, HostTextEncoding::Utf8, HostTextEncoding::Latin1) == "a\0b"sv);
    std::string longText;
    for (int k = 0; k < 10'000; ++k) {
        longText += "x\xC3\xA9";
    }
    const std::string latin =
        Converted(host, longText, HostTextEncoding::Utf8, HostTextEncoding::Latin1);
    CHECK(latin.size() == 20'000);
    CHECK(Converted(host, latin, HostTextEncoding::Latin1, HostTextEncoding::Utf8) == longText);
}

TEST_CASE("an unknown encoding and a code that nobody knows cannot be converted") {
    Host host;
    constexpr auto NobodyKnows = static_cast<HostTextEncoding>(0x0BAD);
    String unknown = host.MakeString("abc", HostTextEncoding::Unknown);
    String strange = host.MakeString("abc", NobodyKnows);
    String plain = host.MakeString("abc", HostTextEncoding::Utf8);
    CHECK(host.Convert(unknown, HostTextEncoding::Utf8) == nullptr);
    CHECK(host.Convert(strange, HostTextEncoding::Utf8) == nullptr);
    CHECK(host.Convert(plain, HostTextEncoding::Unknown) == nullptr);
    CHECK(host.Convert(plain, NobodyKnows) == nullptr);
    CHECK(host.Convert(nullptr, HostTextEncoding::Utf8) == nullptr);
    CHECK(host.Utf8(unknown) == "abc");
    host.Unlock(unknown);
    host.Unlock(strange);
    host.Unlock(plain);
    CHECK(host.Leaks().empty());
}

TEST_CASE("joining keeps the encoding that holds both texts") {
    Host host;
    const auto join = HostFunction<functions::RuntimeAddString>("RuntimeAddString");
    const auto joined = [&](std::string_view left, HostTextEncoding leftEncoding,
                            std::string_view right, HostTextEncoding rightEncoding,
                            HostTextEncoding expected) {
        String first = host.MakeString(left, leftEncoding);
        String second = host.MakeString(right, rightEncoding);
        String both = join(first, second);
        CHECK(host.Encoding(both) == expected);
        std::string bytes = host.Bytes(both);
        host.Unlock(first);
        host.Unlock(second);
        host.Unlock(both);
        return bytes;
    };
    CHECK(joined("ab", HostTextEncoding::Ascii, "cd", HostTextEncoding::Ascii,
                 HostTextEncoding::Ascii) == "abcd");
    CHECK(joined("ab", HostTextEncoding::Ascii, "\xC3\xA9", HostTextEncoding::Utf8,
                 HostTextEncoding::Utf8) == "ab\xC3\xA9");
    CHECK(joined("\xE9", HostTextEncoding::Latin1, "b", HostTextEncoding::Ascii,
                 HostTextEncoding::Latin1) ==
          "\xE9"
          "b");
    CHECK(joined("\xE9", HostTextEncoding::Latin1, "\xC3\xA9", HostTextEncoding::Utf8,
                 HostTextEncoding::Utf8) == "\xC3\xA9\xC3\xA9");
    CHECK(joined("a\0"sv, HostTextEncoding::Utf16LittleEndian, "b", HostTextEncoding::Ascii,
                 HostTextEncoding::Utf8) == "ab");
    CHECK(joined("\xE9", HostTextEncoding::Unknown, "b", HostTextEncoding::Ascii,
                 HostTextEncoding::Unknown) ==
          "\xE9"
          "b");
    CHECK(join(nullptr, nullptr) == nullptr);

    String only = host.MakeString("only", HostTextEncoding::Ascii);
    String copy = join(nullptr, only);
    CHECK(host.Bytes(copy) == "only");
    host.Unlock(copy);
    host.Unlock(only);
    CHECK(host.Leaks().empty());
}
