// Division of numbers.
#pragma once

#include "number/kernels/scaled_words.hpp"

namespace vqz::kernels {

/// me = me / other. Answers 1 when the exponent overflows and for a NaN, 2 for a division by zero.
template <std::size_t E, std::size_t W>
Word Divide(ttmath::Big<E, W>& me, const ttmath::Big<E, W>& other, bool round) {
    if (me.IsNan() || other.IsNan()) {
        return me.CheckCarry(1);
    }
    if (other.IsZero()) {
        me.SetNan();
        return 2;
    }
    if (me.IsZero()) {
        return 0;
    }
    ttmath::UInt<2 * W> dividend;
    ttmath::UInt<2 * W> divisor;
    dividend.SetZero();
    divisor.SetZero();
    std::copy_n(me.mantissa.table, W, dividend.table + W);
    std::copy_n(other.mantissa.table, W, divisor.table);
    dividend.Div(divisor);
    const ScaledWords<W> quotient = Scale<W>(dividend);
    Word carry = me.exponent.Sub(quotient.shift);
    carry += me.exponent.Sub(other.exponent);
    return Finish(me, quotient, round, me.IsSign() != other.IsSign(), carry);
}

}  // namespace vqz::kernels
