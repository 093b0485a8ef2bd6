// An exact result before it is rounded to a number: its leading words and what lies below them.
#pragma once

#include <algorithm>
#include <cstdint>

#include "number/kernels/specialisations.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// What an exact result holds below its leading words, compared with half of their last bit.
enum class Tail : std::uint8_t { BelowHalf, Half, AboveHalf };

/// A non-negative integer of 2 * W words, shifted left until its top bit is set.
template <ttmath::uint W>
struct ScaledWords {
    /// The upper half after the shift.
    Word words[W];
    /// What the lower half is after the shift.
    Tail tail;
    /// By how many bits it was shifted; 0 for the integer 0.
    Word shift;
};

/// Splits an integer of 2 * W words, which is shifted in place.
template <ttmath::uint W>
ScaledWords<W> Scale(ttmath::UInt<2 * W>& integer) {
    ScaledWords<W> result;
    result.shift = integer.CompensationToLeft();
    std::copy_n(integer.table + W, W, result.words);
    Word rest = integer.table[W - 1] & (TopBit - 1);
    for (std::size_t i = 0; i < W - 1; ++i) {
        rest |= integer.table[i];
    }
    const bool atLeastHalf = (integer.table[W - 1] & TopBit) != 0;
    result.tail = !atLeastHalf ? Tail::BelowHalf : rest == 0 ? Tail::Half : Tail::AboveHalf;
    return result;
}

/// An exponent of two words as a machine integer.
inline std::int64_t ToInteger(const ttmath::Int<2>& exponent) {
    return static_cast<std::int64_t>(Join(exponent.table[1], exponent.table[0]));
}
inline void SetInteger(ttmath::Int<2>& exponent, std::int64_t value) {
    exponent.table[0] = Low(static_cast<DoubleWord>(value));
    exponent.table[1] = High(static_cast<DoubleWord>(value));
}

/// exponent += term, with ttmath's carry on overflow.
template <ttmath::uint E>
Word AddToExponent(ttmath::Int<E>& exponent, const ttmath::Int<E>& term) {
    if constexpr (E == 2) {
        std::int64_t sum = 0;
        const bool carry = __builtin_add_overflow(ToInteger(exponent), ToInteger(term), &sum);
        SetInteger(exponent, sum);
        return carry ? 1 : 0;
    } else {
        return exponent.Add(term);
    }
}

/// exponent -= term, with ttmath's carry on overflow.
template <ttmath::uint E>
Word SubtractFromExponent(ttmath::Int<E>& exponent, const ttmath::Int<E>& term) {
    if constexpr (E == 2) {
        std::int64_t difference = 0;
        const bool carry =
            __builtin_sub_overflow(ToInteger(exponent), ToInteger(term), &difference);
        SetInteger(exponent, difference);
        return carry ? 1 : 0;
    } else {
        return exponent.Sub(term);
    }
}

/// Makes `number`, whose exponent is set already, the number of these leading words: rounds half to
/// even, sets the sign and standardises. `carry` is not 0 if the exponent has overflowed
/// before. If it has overflowed before or here, makes the number a NaN and returns 1, otherwise 0.
template <ttmath::uint E, ttmath::uint W>
Word Finish(ttmath::Big<E, W>& number, const ScaledWords<W>& result, bool round, bool negative,
            Word carry) {
    std::copy_n(result.words, W, number.mantissa.table);
    const bool up = result.tail == Tail::AboveHalf ||
                    (result.tail == Tail::Half && number.mantissa.IsTheLowestBitSet());
    if (round && up && number.mantissa.AddOne() != 0) {
        number.mantissa.table[W - 1] = TopBit;
        carry |= number.exponent.AddOne();
    }
    if (negative) {
        number.SetSign();
    } else {
        number.Abs();
    }
    carry |= number.Standardizing();
    return number.CheckCarry(carry);
}

}  // namespace vqz::kernels
