// Products and quotients of words, with the instructions that multiply and divide them.
#pragma once

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

static_assert(WordBits == 32, "mul and div work on 32 bits here");

/// (high, low) / divisor, for high < divisor. There is no operator for it: the language would
/// divide two double words, which is a library call on a 32-bit processor.
inline Word DivideWords(Word high, Word low, Word divisor, Word& remainder) {
    Word quotient = 0;
    asm("divl %4" : "=a"(quotient), "=d"(remainder) : "a"(low), "d"(high), "rm"(divisor) : "cc");
    return quotient;
}

/// target += left * right + carry. Returns the word that is carried over. The compiler would keep
/// the carry in memory.
inline Word AddProduct(Word& target, Word left, Word right, Word carry) {
    Word high = 0;
    asm("mull %[right]\n\t"
        "addl %[carry], %%eax\n\t"
        "adcl $0, %%edx\n\t"
        "addl %%eax, %[target]\n\t"
        "adcl $0, %%edx"
        : [target] "+m"(target), "=&d"(high), "+&a"(left)
        : [right] "r"(right), [carry] "r"(carry)
        : "cc");
    return high;
}

/// The sum of the products of words in a column, and of what the column before carries over.
class ColumnSum {
public:
    /// Adds left * right. The compiler would find the carry by a comparison.
    // NOLINTNEXTLINE(misc-unused-parameters): the assembly uses them.
    void AddProduct(Word left, Word right) {
        asm("mull %[right]\n\t"
            "addl %%eax, %[low]\n\t"
            "adcl %%edx, %[middle]\n\t"
            "adcl $0, %[high]"
            : [low] "+r"(low_), [middle] "+r"(middle_), [high] "+rm"(high_), "+a"(left)
            : [right] "rm"(right)
            : "edx", "cc");
    }

    /// Returns the lowest word; the others are carried over to the next column.
    Word Next() {
        const Word lowest = low_;
        low_ = middle_;
        middle_ = high_;
        high_ = 0;
        return lowest;
    }

private:
    Word low_ = 0;
    Word middle_ = 0;
    Word high_ = 0;
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
