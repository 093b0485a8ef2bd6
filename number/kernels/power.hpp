// Powers with an integer as exponent.
#pragma once

#include <bit>
#include <cstdint>
#include <optional>

#include "number/kernels/growing_integer.hpp"
#include "number/kernels/plain_exponent.hpp"
#include "number/kernels/specialisations.hpp"

namespace vqz::kernels {

/// number^power, if the number is a word times a power of 2 and its power fits into the mantissa:
/// no square or product on the way to it would be rounded, so that it does not matter how it is
/// computed.
template <ttmath::uint E, ttmath::uint W>
std::optional<ttmath::Big<E, W>> ExactPower(const ttmath::Big<E, W>& number, Word power) {
    // The odd factor's exponent is a plain exponent plus less than a mantissa's bits. Times a power
    // of at most a mantissa's bits it stays below 2^31.
    constexpr auto bits = std::int64_t{WordBits} * W;
    static_assert((PlainExponentLimit + bits) * bits < std::int64_t{1} << 31);
    const auto exponent = PlainExponent(number);
    if (!exponent || WithoutLowZeros(number.mantissa.table, W) != 1 || power > WordBits * W) {
        return {};
    }
    const Word top = number.mantissa.table[W - 1];
    const int twos = std::countr_zero(top);
    const Word odd = top >> twos;
    const Word powers = power;
    GrowingInteger<W> result;
    result.Append(1, 1);
    // As many factors at once as a word holds.
    while (power > 0) {
        Word factor = odd;
        for (--power; power > 0 && High(DoubleWord{factor} * odd) == 0; --power) {
            factor *= odd;
        }
        if (!result.Append(factor, 0)) {
            return {};
        }
    }
    ttmath::Big<E, W> value;
    result.StoreTo(value);
    const int exponentOfOdd = *exponent + static_cast<int>(WordBits * (W - 1)) + twos;
    value.exponent.Add(ttmath::Int<E>(exponentOfOdd * static_cast<ttmath::sint>(powers)));
    if (number.IsSign() && powers % 2 != 0) {
        value.SetSign();
    }
    return value;
}

/// number = number^power. Returns 1 when that gets too large, 2 for 0^0.
template <ttmath::uint E, ttmath::uint W>
Word RaiseToPower(ttmath::Big<E, W>& number, Word power) {
    if (const auto exact = ExactPower(number, power)) {
        number = *exact;
        return 0;
    }
    return number.Pow(ttmath::UInt<1>(power));
}

/// Whether the square of a number, which is not NaN, is the number itself, and the carry 0: 0, and
/// 1 with any of the flags that have no meaning.
template <ttmath::uint E, ttmath::uint W>
bool IsItsSquare(const ttmath::Big<E, W>& number, const ttmath::Big<E, W>& one) {
    return number.IsZero() ||
           (!number.IsSign() && number.exponent == one.exponent && number.mantissa == one.mantissa);
}

/// number = number^[|power|], as Big::PowUInt; `power` is changed.
template <ttmath::uint E, ttmath::uint W>
Word RaiseToPower(ttmath::Big<E, W>& number, ttmath::Big<E, W>& power) {
    if (number.IsNan() || power.IsNan()) {
        return number.CheckCarry(1);
    }
    if (number.IsZero()) {
        if (power.IsZero()) {
            number.SetNan();
            return 2;
        }
        return 0;
    }
    if (power.IsSign()) {
        power.Abs();
    }
    // With the zero flag and a mantissa other than 0, IsInteger and ToUInt would see a 0, but the
    // loop below, like ttmath's, sees the bits. So the shortcut is for plain exponents only.
    Word small = 0;
    if (PlainExponent(power) && power.IsInteger() && power.ToUInt(small) == 0) {
        if (const auto exact = ExactPower(number, small)) {
            number = *exact;
            return 0;
        }
    }
    // Binary exponentiation: each set bit of the power multiplies by the square for its place.
    ttmath::Big<E, W> square = number;
    ttmath::Big<E, W> one;
    one.SetOne();
    number = one;
    Word carry = 0;
    while (carry == 0) {
        if (power.Mod2() != 0) {
            carry += number.Mul(square);
        }
        carry += power.exponent.SubOne();
        if (power < one) {
            break;
        }
        // A power above 2^(32 W) has only zeros down to exponent 0, so that the next steps only
        // square. Where squaring changes nothing, they are left out: for 1 to the power of a huge
        // number, and for `Exp` of one whose mantissa is 0, they could be 2^(32 E - 1).
        if (!power.exponent.IsSign() && IsItsSquare(square, one)) {
            power.exponent.SetZero();
        }
        carry += square.Mul(square);
    }
    return number.CheckCarry(carry);
}

}  // namespace vqz::kernels
