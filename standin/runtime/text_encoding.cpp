#include "standin/runtime/text_encoding.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>

#include "standin/runtime/platform.hpp"

namespace standin {
namespace {

using host_interface::HostTextEncoding;

struct EncodingFacts {
    HostTextEncoding code;
    const char* name;
    std::size_t unitSize;
    std::endian order;
};

constexpr std::array Encodings = {
    EncodingFacts{HostTextEncoding::MacRoman, "MacRoman", 1, std::endian::native},
    EncodingFacts{HostTextEncoding::Utf16, "UTF-16", 2, std::endian::native},
    EncodingFacts{HostTextEncoding::Latin1, "Latin-1", 1, std::endian::native},
    EncodingFacts{HostTextEncoding::WindowsAnsi, "Windows-1252", 1, std::endian::native},
    EncodingFacts{HostTextEncoding::Ascii, "ASCII", 1, std::endian::native},
    EncodingFacts{HostTextEncoding::Utf8, "UTF-8", 1, std::endian::native},
    EncodingFacts{HostTextEncoding::Utf32, "UTF-32", 4, std::endian::native},
    EncodingFacts{HostTextEncoding::Utf16BigEndian, "UTF-16BE", 2, std::endian::big},
    EncodingFacts{HostTextEncoding::Utf16LittleEndian, "UTF-16LE", 2, std::endian::little},
    EncodingFacts{HostTextEncoding::Utf32BigEndian, "UTF-32BE", 4, std::endian::big},
    EncodingFacts{HostTextEncoding::Utf32LittleEndian, "UTF-32LE", 4, std::endian::little},
};

constexpr char16_t Replacement = 0xFFFD;
constexpr char32_t LastCodePoint = 0x10FFFF;
constexpr char32_t FirstSupplementary = 0x10000;

constexpr bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
constexpr bool IsSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}

const EncodingFacts* Find(HostTextEncoding encoding) {
    const auto* found = std::ranges::find(Encodings, encoding, &EncodingFacts::code);
    return found == Encodings.end() ? nullptr : found;
}

/// The position in memory of byte k of a unit, k counted from the least significant one.
std::size_t BytePosition(std::size_t k, std::size_t unitSize, std::endian order) {
    return order == std::endian::little ? k : unitSize - 1 - k;
}

/// The whole units of a wide text; a rest at the end becomes the replacement character.
std::u32string ReadUnits(std::string_view bytes, const EncodingFacts& facts) {
    std::u32string units;
    units.reserve(bytes.size() / facts.unitSize + 1);
    while (bytes.size() >= facts.unitSize) {
        std::uint32_t unit = 0;
        for (std::size_t k = 0; k < facts.unitSize; ++k) {
            const auto byte =
                static_cast<unsigned char>(bytes[BytePosition(k, facts.unitSize, facts.order)]);
            unit |= static_cast<std::uint32_t>(byte) << (8 * k);
        }
        units += static_cast<char32_t>(unit);
        bytes.remove_prefix(facts.unitSize);
    }
    if (!bytes.empty()) {
        units += Replacement;
    }
    return units;
}

void WriteUnit(std::string& bytes, char32_t unit, const EncodingFacts& facts) {
    std::array<char, 4> buffer{};
    for (std::size_t k = 0; k < facts.unitSize; ++k) {
        buffer[BytePosition(k, facts.unitSize, facts.order)] =
            static_cast<char>(static_cast<std::uint32_t>(unit) >> (8 * k) & 0xFFU);
    }
    bytes.append(buffer.data(), facts.unitSize);
}

void AppendCodePoint(std::u16string& text, char32_t code) {
    if (code > LastCodePoint || IsSurrogate(code)) {
        text += Replacement;
    } else if (code < FirstSupplementary) {
        text += static_cast<char16_t>(code);
    } else {
        const char32_t rest = code - FirstSupplementary;
        text += static_cast<char16_t>(0xD800 + (rest >> 10U));
        text += static_cast<char16_t>(0xDC00 + (rest & 0x3FFU));
    }
}

/// Calls `take` with every code point of a text; a surrogate without its partner is the
/// replacement character.
template <typename Units, typename Take>
void ForEachCodePoint(const Units& units, Take take) {
    for (std::size_t k = 0; k < units.size(); ++k) {
        const char32_t unit = units[k];
        if (IsHighSurrogate(unit) && k + 1 < units.size() && IsLowSurrogate(units[k + 1])) {
            take(FirstSupplementary + ((unit - 0xD800) << 10U) + (units[k + 1] - 0xDC00));
            ++k;
        } else {
            take(IsSurrogate(unit) ? char32_t{Replacement} : unit);
        }
    }
}

std::u16string DecodeAscii(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        text += code < 0x80 ? static_cast<char16_t>(code) : Replacement;
    }
    return text;
}

std::string EncodeAscii(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    ForEachCodePoint(text,
                     [&](char32_t code) { bytes += code < 0x80 ? static_cast<char>(code) : '?'; });
    return bytes;
}

/// Any known encoding as well-formed UTF-16.
std::u16string Decode(std::string_view bytes, const EncodingFacts& facts) {
    if (facts.code == HostTextEncoding::Ascii) {
        return DecodeAscii(bytes);
    }
    if (facts.unitSize == 1) {
        return platform::DecodeBytes(bytes, facts.code);
    }
    const std::u32string units = ReadUnits(bytes, facts);
    std::u16string text;
    text.reserve(units.size());
    if (facts.unitSize == 2) {
        ForEachCodePoint(units, [&](char32_t code) { AppendCodePoint(text, code); });
    } else {
        for (const char32_t unit : units) {
            AppendCodePoint(text, unit);
        }
    }
    return text;
}

/// None of the 8-bit encodings but UTF-8 has a character above U+FFFF. Replacing the pairs here
/// makes one '?' of each, where a converter may count units.
std::u16string WithoutPairs(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    ForEachCodePoint(text, [&](char32_t code) {
        result += code < FirstSupplementary ? static_cast<char16_t>(code) : u'?';
    });
    return result;
}

std::string Encode(std::u16string_view text, const EncodingFacts& facts) {
    if (facts.code == HostTextEncoding::Ascii) {
        return EncodeAscii(text);
    }
    if (facts.code == HostTextEncoding::Utf8) {
        return platform::EncodeBytes(text, facts.code);
    }
    if (facts.unitSize == 1) {
        return platform::EncodeBytes(WithoutPairs(text), facts.code);
    }
    std::string bytes;
    bytes.reserve(text.size() * facts.unitSize);
    if (facts.unitSize == 2) {
        for (const char16_t unit : text) {
            WriteUnit(bytes, unit, facts);
        }
    } else {
        ForEachCodePoint(text, [&](char32_t code) { WriteUnit(bytes, code, facts); });
    }
    return bytes;
}

}  // namespace

std::string EncodingName(HostTextEncoding encoding) {
    if (encoding == HostTextEncoding::Unknown) {
        return "unknown encoding";
    }
    if (const EncodingFacts* facts = Find(encoding)) {
        return facts->name;
    }
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "encoding 0x%08X", static_cast<unsigned>(encoding));
    return text.data();
}

std::optional<std::string> ConvertText(std::string_view bytes, HostTextEncoding from,
                                       HostTextEncoding to) {
    const EncodingFacts* source = Find(from);
    const EncodingFacts* target = Find(to);
    if (source == nullptr || target == nullptr) {
        return std::nullopt;
    }
    if (source == target) {
        return std::string(bytes);
    }
    return Encode(Decode(bytes, *source), *target);
}

bool ExtendsAscii(HostTextEncoding encoding) {
    const EncodingFacts* facts = Find(encoding);
    return facts != nullptr && facts->unitSize == 1;
}

}  // namespace standin
