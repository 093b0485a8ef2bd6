#include "standin/language/unicode.hpp"

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

}  // namespace standin::language
