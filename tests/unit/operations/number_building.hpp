// Numbers made from their bits, for operands of tests.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "tests/unit/operations/number.hpp"

namespace operation_tests {

/// The number with the opposite sign.
template <typename AnyNumber>
AnyNumber Negated(AnyNumber number) {
    number.flags ^= number_flags::Negative;
    return number;
}

/// Writes a signed exponent over all exponent words.
template <typename AnyNumber>
void SetExponent(AnyNumber& number, std::int64_t exponent) {
    const auto bits = static_cast<std::uint64_t>(exponent);
    number.exponent.fill(exponent < 0 ? 0xFFFFFFFF : 0);
    number.exponent[0] = static_cast<std::uint32_t>(bits);
    number.exponent[1] = static_cast<std::uint32_t>(bits >> 32);
}

/// magnitude * 2^scale; the magnitude is not 0.
template <typename AnyNumber>
AnyNumber Scaled(std::uint64_t magnitude, std::int64_t scale = 0) {
    const int shift = std::countl_zero(magnitude);
    const std::uint64_t top = magnitude << shift;
    AnyNumber number;
    auto word = number.mantissa.rbegin();
    word[0] = static_cast<std::uint32_t>(top >> 32);
    word[1] = static_cast<std::uint32_t>(top);
    SetExponent(number, scale - shift - (AnyNumber::MantissaBits - 64));
    return number;
}

/// The number of a machine integer.
template <typename AnyNumber>
AnyNumber Whole(std::int64_t value) {
    if (value == 0) {
        return {.flags = number_flags::Zero};
    }
    const auto magnitude = static_cast<std::uint64_t>(value < 0 ? -value : value);
    const auto number = Scaled<AnyNumber>(magnitude);
    return value < 0 ? Negated(number) : number;
}

/// The NaN that a missing object reads as: no other bits set.
template <typename AnyNumber>
AnyNumber Nan() {
    return {.flags = number_flags::Zero | number_flags::NotANumber};
}

/// The largest exponent there is, and with `lowest` the smallest one.
template <typename AnyNumber>
void SetExtremeExponent(AnyNumber& number, bool lowest) {
    number.exponent.fill(lowest ? 0 : 0xFFFFFFFF);
    number.exponent.back() = lowest ? 0x80000000 : 0x7FFFFFFF;
}

/// The largest finite number.
template <typename AnyNumber>
AnyNumber Largest() {
    AnyNumber number;
    number.mantissa.fill(0xFFFFFFFF);
    SetExtremeExponent(number, false);
    return number;
}

/// The smallest number above 0.
template <typename AnyNumber>
AnyNumber Smallest() {
    AnyNumber number;
    number.mantissa.back() = 0x80000000;
    SetExtremeExponent(number, true);
    return number;
}

/// A multi-word integer plus one, wrapping.
template <typename Words>
void Increment(Words& words) {
    for (auto& word : words) {
        if (++word != 0) {
            return;
        }
    }
}

/// A multi-word integer minus one, wrapping.
template <typename Words>
void Decrement(Words& words) {
    for (auto& word : words) {
        if (word-- != 0) {
            return;
        }
    }
}

/// The next number of larger magnitude; the number is neither 0 nor the largest.
template <typename AnyNumber>
AnyNumber OneUnitOutward(AnyNumber number) {
    Increment(number.mantissa);
    if (number.mantissa.back() == 0) {
        number.mantissa.back() = 0x80000000;
        Increment(number.exponent);
    }
    return number;
}

/// The next number of smaller magnitude; the number is neither 0 nor the smallest.
template <typename AnyNumber>
AnyNumber OneUnitInward(AnyNumber number) {
    Decrement(number.mantissa);
    if (number.mantissa.back() < 0x80000000) {
        number.mantissa.fill(0xFFFFFFFF);
        Decrement(number.exponent);
    }
    return number;
}

}  // namespace operation_tests
