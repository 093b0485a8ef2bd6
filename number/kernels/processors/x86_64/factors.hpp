// Factors, what the processor multiplies at once: two words together, 64 bits.
#pragma once

#include <cstdint>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(WordBits == 32, "a factor is two words of 32 bits");

/// A factor, and the product of two.
using Factor = std::uint64_t;
__extension__ using DoubleFactor = unsigned __int128;
/// A factor as it lies in memory, in a row of words, which says nothing of its alignment.
using StoredFactor __attribute__((may_alias, aligned(alignof(Word)))) = Factor;

/// Mantissas of up to this many factors are multiplied by code without loops.
inline constexpr int MaxUnrolledFactors = 32;
/// For more products of factors than this, adding them up row by row is not the fastest way.
inline constexpr int MaxRowProducts = 32;

/// (high, low) / divisor, for high < divisor. There is no operator for it: the language would
/// divide two double factors, which is a library call.
inline Factor DivideFactors(Factor high, Factor low, Factor divisor, Factor& remainder) {
    Factor quotient = 0;
    asm("divq %4" : "=a"(quotient), "=d"(remainder) : "a"(low), "d"(high), "rm"(divisor) : "cc");
    return quotient;
}

/// target += left * right + carry. Returns the factor that is carried over.
inline Factor AddProduct(StoredFactor& target, Factor left, Factor right, Factor carry) {
    const DoubleFactor sum = DoubleFactor{left} * right + target + carry;
    target = static_cast<Factor>(sum);
    return static_cast<Factor>(sum >> 64);
}

/// A sum of products of factors, and of what the sum before carries over.
class ColumnSum {
public:
    /// Adds left * right. The compiler would find the carry by a comparison.
    // NOLINTNEXTLINE(misc-unused-parameters): the assembly uses them.
    void AddProduct(Factor left, Factor right) {
        asm("mulq %[right]\n\t"
            "addq %%rax, %[low]\n\t"
            "adcq %%rdx, %[middle]\n\t"
            "adcq $0, %[high]"
            : [low] "+r"(low_), [middle] "+r"(middle_), [high] "+r"(high_), "+a"(left)
            : [right] "rm"(right)
            : "rdx", "cc");
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

}  // namespace vqz::kernels
