// Exponents as integers of the machine.
#pragma once

#include <optional>

#include "number/kernels/specialisations.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The greatest magnitude of a plain exponent.
inline constexpr int PlainExponentLimit = 1 << 19;

/// A number's exponent, provided it is a number like any other: neither NaN nor zero, its top bit
/// set, and so near to 1 that no power in a series can leave the range of exponents.
template <std::size_t E, std::size_t W>
std::optional<int> PlainExponent(const ttmath::Big<E, W>& number) {
    ttmath::sint exponent = 0;
    if ((number.info & (TTMATH_BIG_NAN | TTMATH_BIG_ZERO)) != 0 ||
        (number.mantissa.table[W - 1] & TopBit) == 0 || number.exponent.ToInt(exponent) != 0 ||
        static_cast<Word>(exponent) + PlainExponentLimit > 2 * PlainExponentLimit) {
        return {};
    }
    return exponent;
}

}  // namespace vqz::kernels
