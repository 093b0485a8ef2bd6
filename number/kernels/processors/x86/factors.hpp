// Factors, what the processor multiplies at once: words of 32 bits.
#pragma once

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/processors/x86/word_division.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// A factor, the product of two, and a factor as it lies in memory, in a row of words.
using Factor = Word;
using DoubleFactor = DoubleWord;
using StoredFactor = Word;

/// Mantissas of up to this many factors are multiplied by code without loops.
inline constexpr int MaxUnrolledFactors = 8;
/// For more products of factors than this, adding them up row by row is not the fastest way.
inline constexpr int MaxRowProducts = 160;

inline namespace BIGNUMBER_INSTRUCTION_SET {

static_assert(WordBits == 32, "mul works on 32 bits here");

/// (high, low) / divisor, for high < divisor.
inline Factor DivideFactors(Factor high, Factor low, Factor divisor, Factor& remainder) {
    return DivideWords(high, low, divisor, remainder);
}

/// target += left * right + carry. Returns the factor that is carried over. The compiler would keep
/// the carry in memory.
inline Factor AddProduct(StoredFactor& target, Factor left, Factor right, Factor carry) {
    Factor high = 0;
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

/// A sum of products of factors, and of what the sum before carries over.
class ColumnSum {
public:
    /// Adds left * right. The compiler would find the carry by a comparison.
    // NOLINTNEXTLINE(misc-unused-parameters): the assembly uses them.
    void AddProduct(Factor left, Factor right) {
        asm("mull %[right]\n\t"
            "addl %%eax, %[low]\n\t"
            "adcl %%edx, %[middle]\n\t"
            "adcl $0, %[high]"
            : [low] "+r"(low_), [middle] "+r"(middle_), [high] "+rm"(high_), "+a"(left)
            : [right] "rm"(right)
            : "edx", "cc");
    }

    /// Returns the lowest factor; the others are carried over to the next column.
    Factor Next() {
        const Factor lowest = low_;
        low_ = middle_;
        middle_ = high_;
        high_ = 0;
        return lowest;
    }

private:
    Factor low_ = 0;
    Factor middle_ = 0;
    Factor high_ = 0;
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
