// Characters of UTF-8 text, code point by code point.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace standin::language {

/// One decoded character and the number of bytes it takes.
struct DecodedCharacter {
    char32_t codePoint;
    std::size_t size;
};

/// The character that begins at `offset`, which must be inside the text. No value when the bytes
/// there are not well-formed UTF-8 (overlong forms, surrogates and cut sequences included).
std::optional<DecodedCharacter> DecodeUtf8(std::string_view text, std::size_t offset);

/// The UTF-8 bytes of a code point; U+FFFD for what is not a Unicode scalar value.
std::string EncodeUtf8(char32_t codePoint);

/// The offset of the first byte that is not part of well-formed UTF-8, if there is one.
std::optional<std::size_t> FindInvalidUtf8(std::string_view text);

/// Text with all letters small or capital, in the Latin, Greek, Cyrillic and Armenian alphabets.
/// The size in bytes stays: letters whose other form has another size, as ß, are left as they are,
/// and so are bytes that are not well-formed UTF-8.
std::string Lowercase(std::string_view utf8);
std::string Uppercase(std::string_view utf8);

}  // namespace standin::language
