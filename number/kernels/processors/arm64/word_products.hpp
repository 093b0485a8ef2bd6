// Products and quotients of words. The language's own operators on double words are single
// instructions here.
#pragma once

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

static_assert(WordBits == 32, "a register holds the product of two words");

/// (high, low) / divisor, for high < divisor.
inline Word DivideWords(Word high, Word low, Word divisor, Word& remainder) {
    const DoubleWord dividend = Join(high, low);
    const DoubleWord quotient = dividend / divisor;
    remainder = Low(dividend - quotient * divisor);
    return Low(quotient);
}

/// target += left * right + carry. Returns the word that is carried over.
inline Word AddProduct(Word& target, Word left, Word right, Word carry) {
    const DoubleWord sum = DoubleWord{left} * right + target + carry;
    target = Low(sum);
    return High(sum);
}

/// A sum of products of words, and of what the sum before carries over.
class ColumnSum {
public:
    /// Adds left * right.
    void AddProduct(Word left, Word right) {
        const bool carry = __builtin_add_overflow(lower_, DoubleWord{left} * right, &lower_);
        above_ += carry ? 1U : 0U;
    }

    /// Returns the lowest word; the others are carried over to the next column.
    Word Next() {
        const Word lowest = Low(lower_);
        lower_ = Join(above_, High(lower_));
        above_ = 0;
        return lowest;
    }

private:
    DoubleWord lower_ = 0;
    Word above_ = 0;
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
