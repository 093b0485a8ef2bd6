// Addition and subtraction of numbers.
#pragma once

#include <algorithm>
#include <utility>

#include "number/kernels/shift_words.hpp"
#include "number/kernels/specialisations.hpp"
#include "number/kernels/word_sums.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// By how many bits the smaller of two numbers is to be moved: the magnitude of the difference of
/// their exponents as ttmath computes it, which wraps. For more than the bits of W words it
/// returns one bit more than these.
template <ttmath::uint E, ttmath::uint W>
Word ExponentDistance(const ttmath::Int<E>& greater, const ttmath::Int<E>& smaller) {
    constexpr Word TooFar = W * WordBits + 1;
    if (std::equal(greater.table + 1, greater.table + E, smaller.table + 1)) {
        return std::min(greater.table[0] - smaller.table[0], TooFar);
    }
    ttmath::Int<E> distance(greater);
    distance.Sub(smaller);
    const bool isHuge = distance.Abs() != 0 || std::any_of(distance.table + 1, distance.table + E,
                                                           [](Word word) { return word != 0; });
    return isHuge ? TooFar : std::min(distance.table[0], TooFar);
}

/// What adding leaves below the mantissa: the first bit, and whether all others are 0.
struct Remains {
    bool firstBit;
    bool othersZero;
};

/// What a right shift of a mantissa by `bits` bits, from 1 to all of them, moves out.
template <int W>
[[gnu::always_inline]] inline Remains RemainsOfShift(const ttmath::UInt<W>& mantissa, Word bits) {
    const Word first = bits - 1;
    const Word word = mantissa.table[first / WordBits];
    return {.firstBit = (word >> (first % WordBits) & 1) != 0,
            .othersZero = mantissa.AreFirstBitsZero(first)};
}

/// me = greater +- smaller, or the same the other way round: `greater` and `smaller` are `me` and
/// `other` in the order of their magnitudes. Both are not 0.
template <ttmath::uint E, ttmath::uint W>
Word AddOrdered(ttmath::Big<E, W>& me, const ttmath::Big<E, W>& greater,
                const ttmath::Big<E, W>& smaller, bool round) {
    constexpr Word Bits = W * WordBits;
    // By so many bits `smaller` moves to the right. From `Bits` on nothing of its mantissa is left
    // in the result; at exactly `Bits` its highest bit still decides about rounding.
    const Word distance = ExponentDistance<E, W>(greater.exponent, smaller.exponent);
    const bool isSum = greater.IsSign() == smaller.IsSign();
    Remains remains{.firstBit = false, .othersZero = true};
    if (distance > 0 && distance <= Bits) {
        remains = RemainsOfShift<W>(smaller.mantissa, distance);
    }
    Word moved[W];
    if (distance < Bits) {
        ShiftRight<W>(smaller.mantissa.table, distance, moved);
    }
    if (&me != &greater) {
        me.exponent = greater.exponent;
        me.info = greater.info;
    }
    Word carry = 0;
    if (distance >= Bits) {
        if (&me != &greater) {
            me.mantissa = greater.mantissa;
        }
        if (distance > Bits) {
            return 0;
        }
    } else if (!isSum) {
        SubtractWords<W>(greater.mantissa.table, moved, me.mantissa.table);
    } else if (AddWords<W>(greater.mantissa.table, moved, me.mantissa.table)) {
        remains = {.firstBit = me.mantissa.IsTheLowestBitSet(),
                   .othersZero = !remains.firstBit && remains.othersZero};
        me.mantissa.Rcr(1, 1);
        carry += me.exponent.AddOne();
    }
    // As ttmath does: a half or more that was shifted out changes the last bit; exactly half does
    // so only where that bit is set.
    const bool isRounded = round && remains.firstBit;
    if (isRounded && (!remains.othersZero || me.mantissa.IsTheLowestBitSet())) {
        if (!isSum) {
            me.mantissa.SubOne();
        } else if (me.mantissa.AddOne() != 0) {
            me.mantissa.Rcr(1, 1);
            carry += me.exponent.AddOne();
        }
    }
    if (isRounded || distance < Bits) {
        carry += me.Standardizing();
    }
    return me.CheckCarry(carry);
}

/// me = me + other, or me - other when `adding` is false. `other` is a copy of the operand. Returns
/// a carry when the exponent overflows, and for a NaN.
template <ttmath::uint E, ttmath::uint W>
Word Add(ttmath::Big<E, W>& me, ttmath::Big<E, W>& other, bool round, bool adding) {
    if (me.IsNan() || other.IsNan()) {
        return me.CheckCarry(1);
    }
    if (!adding) {
        other.ChangeSign();
    }
    const bool isSwapped = me.SmallerWithoutSignThan(other);
    if ((isSwapped ? me : other).IsZero()) {
        if (isSwapped) {
            me = other;
        }
        return 0;
    }
    return isSwapped ? AddOrdered(me, other, me, round) : AddOrdered(me, me, other, round);
}

}  // namespace vqz::kernels
