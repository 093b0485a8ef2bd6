// A number as the host sees it: the words of exponent and mantissa and the byte of flags.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

namespace operation_tests {

/// Bits of a number's flags.
namespace number_flags {
inline constexpr std::uint8_t Zero = 32;
inline constexpr std::uint8_t NotANumber = 64;
inline constexpr std::uint8_t Negative = 128;
}  // namespace number_flags

/// Sign, exponent and mantissa of a number of one precision, least significant words first. The
/// value is mantissa * 2^exponent; the exponent is signed, in two's complement.
template <std::size_t ExponentWords, std::size_t MantissaWords>
struct Number {
    static constexpr int ExponentBits = 32 * ExponentWords;
    static constexpr int MantissaBits = 32 * MantissaWords;

    std::array<std::uint32_t, ExponentWords> exponent{};
    std::array<std::uint32_t, MantissaWords> mantissa{};
    std::uint8_t flags = 0;

    bool operator==(const Number&) const = default;

    bool IsNan() const { return (flags & number_flags::NotANumber) != 0; }
    bool IsZero() const { return (flags & number_flags::Zero) != 0; }
    bool IsNegative() const { return (flags & number_flags::Negative) != 0; }
};

/// The numbers of BigNumberVQZ and of BiggerNumberVQZ.
using Number256 = Number<2, 8>;
using Number2048 = Number<16, 64>;

/// The host's name of the class whose numbers these are.
template <typename AnyNumber>
inline constexpr const char* ClassName = nullptr;
template <>
inline constexpr const char* ClassName<Number256> = "BigNumberVQZ";
template <>
inline constexpr const char* ClassName<Number2048> = "BiggerNumberVQZ";

/// The digits of all words, most significant first.
template <typename Words>
std::string HexOf(const Words& words) {
    std::string digits;
    std::for_each(words.rbegin(), words.rend(), [&digits](std::uint32_t word) {
        for (int shift = 28; shift >= 0; shift -= 4) {
            digits += "0123456789abcdef"[(word >> shift) & 0xF];
        }
    });
    return digits;
}

/// Shows the flags and all words, most significant first.
template <std::size_t ExponentWords, std::size_t MantissaWords>
std::ostream& operator<<(std::ostream& out, const Number<ExponentWords, MantissaWords>& number) {
    return out << "flags " << unsigned{number.flags} << " mantissa " << HexOf(number.mantissa)
               << " exponent " << HexOf(number.exponent);
}

}  // namespace operation_tests
