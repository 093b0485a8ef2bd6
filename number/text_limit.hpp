// The longest text that a number is written as.
//
// A text without an exponent has as many digits as the number has places, up to 2^31. A 32-bit
// process has no memory for that. A 64-bit one does, and would be busy with gigabytes: it refuses
// what a 32-bit one cannot write, before it writes anything, by the same exception.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "number/value/number_value.hpp"

namespace vqz {

/// How a number is written; the defaults write all digits in base 10.
using TextFormat = ttmath::Conv;

/// The most characters of a whole number that the 32-bit Windows library could write, in a process
/// of 2 GB: measured under Wine 8.0, where the next longer one failed for want of memory.
inline constexpr std::int64_t LongestWholeText = 1'124'597'721;
/// The most zeros that a fraction could begin with there, the one before the separator included:
/// ttmath has three times their memory in use to write them.
inline constexpr std::int64_t MostLeadingZeros = 495'779'730;

/// A number as it is written with an exponent: how many digits there are, and the exponent.
struct WrittenDigits {
    std::int64_t count;
    std::int64_t exponent;
};

/// Nothing when the exponent is beyond 64 bits, or when the number has no digits.
template <typename Value>
std::optional<WrittenDigits> DigitsOf(const Value& value, TextFormat format) {
    format.scient = true;
    format.round = -1;
    format.trim_zeroes = false;
    format.comma = '.';
    std::string text;
    if (value.ToString(text, format) != 0) {
        return std::nullopt;
    }
    const std::string_view mark = format.base == 10 ? "e" : "*10^";
    const std::size_t end = text.find(mark);
    if (end == std::string::npos) {
        return std::nullopt;
    }
    WrittenDigits digits{static_cast<std::int64_t>(end), 0};
    digits.count -= text.front() == '-' ? 1 : 0;
    digits.count -= digits.count > 1 ? 1 : 0;
    const char* exponent = text.data() + end + mark.size();
    exponent += *exponent == '+' ? 1 : 0;
    const auto read = std::from_chars(exponent, text.data() + text.size(), digits.exponent,
                                      static_cast<int>(format.base));
    return read.ec == std::errc() ? std::optional(digits) : std::nullopt;
}

/// Throws what a 32-bit process throws when the text of the number would be longer than it can
/// write.
template <typename Value>
void RefuseGiantText(const Value& value, const TextFormat& format) {
    // What the mantissa adds to the places of the exponent, with room to spare.
    constexpr std::int64_t MostDigits = 10'000;
    if (format.scient || format.scient_from < MostLeadingZeros - MostDigits) {
        return;
    }
    const std::optional<WrittenDigits> digits = DigitsOf(value, format);
    if (!digits || digits->exponent > format.scient_from ||
        digits->exponent < -std::int64_t{format.scient_from}) {
        return;
    }
    if (digits->exponent < 0) {
        if (-digits->exponent > MostLeadingZeros) {
            throw std::bad_alloc();
        }
    } else if (digits->exponent >= digits->count - 1) {
        // ttmath reserves a few characters more.
        constexpr std::int64_t Reserve = 6;
        const std::int64_t length = digits->exponent + 1;
        if (length + Reserve > INT32_MAX) {
            throw std::length_error("basic_string::_M_create");
        }
        if (length > LongestWholeText) {
            throw std::bad_alloc();
        }
    }
}

}  // namespace vqz
