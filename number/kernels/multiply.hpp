// Multiplication of numbers.
#pragma once

#include <algorithm>
#include <bit>

#include "number/kernels/mantissa_product.hpp"
#include "number/kernels/scaled_words.hpp"
#include "number/kernels/shift_words.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The product of two normalised mantissas.
template <int W>
ScaledWords<W> MultiplyNormalised(const Word* left, const Word* right) {
    using Product = MantissaProduct<W>;
    const Product product(left, right, Product::Precision::Leading);
    const Word* upper = product.upper();
    ScaledWords<W> result;
    result.shift = (upper[W - 1] & TopBit) == 0 ? 1 : 0;
    if (result.shift == 0) {
        std::copy_n(upper, W, result.words);
    } else {
        for (int i = 0; i < W; ++i) {
            result.words[i] = (upper[i] << 1) | (upper[i - 1] >> (WordBits - 1));
        }
    }
    const Word guard = upper[-1] << result.shift;
    if ((guard & TopBit) == 0) {
        result.tail = Tail::BelowHalf;
    } else {
        const bool isHalf = guard == TopBit && WithoutLowZeros(product.lower(), W - 1) == 0;
        result.tail = isHalf ? Tail::Half : Tail::AboveHalf;
    }
    return result;
}

/// The product of two mantissas of any form, by ttmath.
template <ttmath::uint W>
ScaledWords<W> MultiplyExactly(ttmath::UInt<W>& left, const ttmath::UInt<W>& right) {
    ttmath::UInt<2 * W> product;
    left.MulBig(right, product);
    return Scale<W>(product);
}

/// me = me * other. Returns a carry when the exponent overflows, and for a NaN.
template <ttmath::uint E, ttmath::uint W>
Word Multiply(ttmath::Big<E, W>& me, const ttmath::Big<E, W>& other, bool round) {
    if (me.IsNan() || other.IsNan()) {
        return me.CheckCarry(1);
    }
    if (me.IsZero()) {
        return 0;
    }
    if (other.IsZero()) {
        me.SetZero();
        return 0;
    }
    const bool areNormalised =
        me.mantissa.IsTheHighestBitSet() && other.mantissa.IsTheHighestBitSet();
    const ScaledWords<W> product =
        areNormalised ? MultiplyNormalised<W>(me.mantissa.table, other.mantissa.table)
                      : MultiplyExactly(me.mantissa, other.mantissa);
    // For mantissas that are not normalised this may wrap around; ttmath adds the wrapped value,
    // too.
    const Word gained = W * WordBits - product.shift;
    Word carry = AddToExponent<E>(me.exponent, gained);
    carry += AddToExponent<E>(me.exponent, other.exponent);
    return Finish(me, product, round, me.IsSign() != other.IsSign(), carry);
}

/// me = me * factor; bits beyond the mantissa's end are cut off. Returns a carry when the
/// exponent overflows, and for a NaN.
template <ttmath::uint E, ttmath::uint W>
Word MultiplyByWord(ttmath::Big<E, W>& me, Word factor) {
    if (me.IsNan()) {
        return 1;
    }
    if (me.IsZero()) {
        return 0;
    }
    if (factor == 0) {
        me.SetZero();
        return 0;
    }
    Word product[W + 1];
    Word above = 0;
    for (std::size_t i = 0; i < W; ++i) {
        const DoubleWord column = DoubleWord{me.mantissa.table[i]} * factor + above;
        product[i] = Low(column);
        above = High(column);
    }
    product[W] = above;
    const auto gained = static_cast<Word>(std::bit_width(above));
    ShiftRight<W + 1>(product, gained, product);
    std::copy_n(product, W, me.mantissa.table);
    Word carry = AddToExponent<E>(me.exponent, gained);
    carry += me.Standardizing();
    return me.CheckCarry(carry);
}

}  // namespace vqz::kernels
