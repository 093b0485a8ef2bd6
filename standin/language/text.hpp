// Text of the running program, character by character in its own encoding.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language {

/// Where each character of a text begins, in bytes, and after the last one its end. The encoding
/// tells what a character is; bytes that are not well-formed in it count one by one.
std::vector<std::size_t> CharacterBounds(std::string_view bytes, HostTextEncoding encoding);

/// Both texts in one. Texts of different encodings meet in UTF-8; where one has no known encoding
/// the bytes are joined as they are and the other's encoding is kept.
Value Join(const Value& left, const Value& right, const Machine& machine);

/// The shortest text that reads back as the same number; whole numbers have no decimal point.
std::string ShortestText(double value);
std::string ShortestText(float value);
std::string TextOf(CurrencyAmount amount);
/// "True" or "False".
std::string_view TextOf(bool value);

/// The amount that digits with a decimal point tell. None when Currency cannot hold it exactly, or
/// when the digits have an exponent.
std::optional<CurrencyAmount> AmountIn(std::string_view digits, bool isNegative);

/// The number that a text begins with, 0 when it begins with none; `&h`, `&b` and `&o` forms,
/// "inf" and "nan" count as numbers.
double NumberIn(std::string_view text);

}  // namespace standin::language
