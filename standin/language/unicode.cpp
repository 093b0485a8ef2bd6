#include "standin/language/unicode.hpp"

#include <algorithm>
#include <array>

namespace standin::language {
namespace {

constexpr char32_t ReplacementCharacter = 0xFFFD;
constexpr char32_t LastCodePoint = 0x10FFFF;

constexpr bool IsSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

/// What a lead byte announces: the length of the sequence, the lead's own bits, and the smallest
/// code point that needs that length.
struct Lead {
    std::size_t size;
    char32_t bits;
    char32_t smallest;
};

constexpr std::optional<Lead> LeadOf(unsigned char byte) {
    if (byte < 0x80) {
        return Lead{1, byte, 0};
    }
    if (byte >= 0xC0 && byte < 0xE0) {
        return Lead{2, byte & 0x1FU, 0x80};
    }
    if (byte >= 0xE0 && byte < 0xF0) {
        return Lead{3, byte & 0x0FU, 0x800};
    }
    if (byte >= 0xF0 && byte < 0xF8) {
        return Lead{4, byte & 0x07U, 0x10000};
    }
    return std::nullopt;
}

/// Capital letters, every `step`th character of a range, and how far behind each its small one is.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t distance;

    constexpr bool Contain(char32_t letter) const {
        return letter >= first && letter <= last && (letter - first) % step == 0;
    }
};

/// Capital and small letter need as many bytes of UTF-8.
constexpr auto AllCapitals = std::to_array<Capitals>({
    // Latin.
    {U'A', U'Z', 1, 32},
    {0xC0, 0xD6, 1, 32},
    {0xD8, 0xDE, 1, 32},
    {0x100, 0x12E, 2, 1},
    {0x132, 0x136, 2, 1},
    {0x139, 0x147, 2, 1},
    {0x14A, 0x176, 2, 1},
    {0x179, 0x17D, 2, 1},
    {0x1E00, 0x1E94, 2, 1},
    {0x1EA0, 0x1EFE, 2, 1},
    // Greek.
    {0x386, 0x386, 1, 38},
    {0x388, 0x38A, 1, 37},
    {0x38C, 0x38C, 1, 64},
    {0x38E, 0x38F, 1, 63},
    {0x391, 0x3A1, 1, 32},
    {0x3A3, 0x3AB, 1, 32},
    // Cyrillic.
    {0x400, 0x40F, 1, 80},
    {0x410, 0x42F, 1, 32},
    {0x460, 0x480, 2, 1},
    {0x48A, 0x4BE, 2, 1},
    {0x4C1, 0x4CD, 2, 1},
    {0x4D0, 0x52E, 2, 1},
    // Armenian.
    {0x531, 0x556, 1, 48},
});

char32_t SmallOf(char32_t letter) {
    const auto* found = std::ranges::find_if(
        AllCapitals, [letter](const Capitals& row) { return row.Contain(letter); });
    return found == AllCapitals.end() ? letter : letter + found->distance;
}

char32_t CapitalOf(char32_t letter) {
    const auto* found = std::ranges::find_if(
        AllCapitals, [letter](const Capitals& row) { return row.Contain(letter - row.distance); });
    return found == AllCapitals.end() ? letter : letter - found->distance;
}

template <char32_t (*Change)(char32_t)>
std::string Changed(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t offset = 0; offset < utf8.size();) {
        const auto character = DecodeUtf8(utf8, offset);
        const auto size = character ? character->size : 1;
        const auto changed = character ? Change(character->codePoint) : 0;
        if (character && changed != character->codePoint) {
            result += EncodeUtf8(changed);
        } else {
            result += utf8.substr(offset, size);
        }
        offset += size;
    }
    return result;
}

}  // namespace

std::optional<DecodedCharacter> DecodeUtf8(std::string_view text, std::size_t offset) {
    const auto lead = LeadOf(static_cast<unsigned char>(text[offset]));
    if (!lead || lead->size > text.size() - offset) {
        return std::nullopt;
    }
    char32_t codePoint = lead->bits;
    for (std::size_t i = 1; i < lead->size; ++i) {
        const auto byte = static_cast<unsigned char>(text[offset + i]);
        if ((byte & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    if (codePoint < lead->smallest || codePoint > LastCodePoint || IsSurrogate(codePoint)) {
        return std::nullopt;
    }
    return DecodedCharacter{codePoint, lead->size};
}

std::string EncodeUtf8(char32_t codePoint) {
    if (codePoint > LastCodePoint || IsSurrogate(codePoint)) {
        codePoint = ReplacementCharacter;
    }
    const auto trailing = [codePoint](unsigned shift) {
        return static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
    };
    if (codePoint < 0x80) {
        return {static_cast<char>(codePoint)};
    }
    if (codePoint < 0x800) {
        return {static_cast<char>(0xC0U | (codePoint >> 6U)), trailing(0)};
    }
    if (codePoint < 0x10000) {
        return {static_cast<char>(0xE0U | (codePoint >> 12U)), trailing(6), trailing(0)};
    }
    return {static_cast<char>(0xF0U | (codePoint >> 18U)), trailing(12), trailing(6), trailing(0)};
}

std::optional<std::size_t> FindInvalidUtf8(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        if (!character) {
            return offset;
        }
        offset += character->size;
    }
    return std::nullopt;
}

std::string Lowercase(std::string_view utf8) {
    return Changed<SmallOf>(utf8);
}

std::string Uppercase(std::string_view utf8) {
    return Changed<CapitalOf>(utf8);
}

}  // namespace standin::language
