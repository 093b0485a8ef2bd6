// Multiplication of numbers.
#pragma once

#include "number/kernels/scaled_words.hpp"

namespace vqz::kernels {

/// me = me * other. Answers a carry when the exponent overflows, and for a NaN.
template <std::size_t E, std::size_t W>
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
    ttmath::UInt<2 * W> full;
    me.mantissa.MulBig(other.mantissa, full);
    const ScaledWords<W> product = Scale<W>(full);
    Word carry = me.exponent.Add(Word{W * WordBits} - product.shift);
    carry += me.exponent.Add(other.exponent);
    return Finish(me, product, round, me.IsSign() != other.IsSign(), carry);
}

}  // namespace vqz::kernels
