// Exponents as machine integers.
#pragma once

#include <optional>

#include "number/kernels/specialisations.hpp"

namespace vqz::kernels {

/// The greatest magnitude of a plain exponent.
inline constexpr int PlainExponentLimit = 1 << 19;

/// A number's exponent, provided it is a number like any other: neither NaN nor zero, its top bit
/// set, and so near to 1 that its powers, and those in a series, have exponents that fit an int.
template <ttmath::uint E, ttmath::uint W>
std::optional<int> PlainExponent(const ttmath::Big<E, W>& number) {
    ttmath::sint exponent = 0;
    const bool isNanOrZero = (number.info & (TTMATH_BIG_NAN | TTMATH_BIG_ZERO)) != 0;
    if (isNanOrZero || !number.mantissa.IsTheHighestBitSet() ||
        number.exponent.ToInt(exponent) != 0 || exponent < -PlainExponentLimit ||
        exponent > PlainExponentLimit) {
        return {};
    }
    return exponent;
}

}  // namespace vqz::kernels
