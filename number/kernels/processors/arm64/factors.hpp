// Factors, what the processor multiplies at once: two words together, 64 bits.
#pragma once

#include <bit>
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

/// (high, low) / divisor, for high < divisor. There is no instruction for it: as in division by
/// hand the quotient has two digits, which are words. The first word of a divisor with its top bit
/// set tells a digit, or up to 2 more.
inline Factor DivideFactors(Factor high, Factor low, Factor divisor, Factor& remainder) {
    const int shift = std::countl_zero(divisor);
    const Factor normal = divisor << shift;
    const DoubleFactor dividend = ((DoubleFactor{high} << 64) | low) << shift;
    const Factor next = static_cast<Factor>(dividend);
    Factor rest = static_cast<Factor>(dividend >> 64);
    const auto divide = [&rest, normal](Word word) {
        Factor digit = rest / High(normal);
        Factor digitRest = rest - digit * High(normal);
        while (High(digitRest) == 0 &&
               (High(digit) != 0 || digit * Low(normal) > Join(Low(digitRest), word))) {
            --digit;
            digitRest += High(normal);
        }
        // What wraps is left out on both sides.
        rest = Join(Low(rest), word) - digit * normal;
        return Low(digit);
    };
    const Word first = divide(High(next));
    const Word second = divide(Low(next));
    remainder = rest >> shift;
    return Join(first, second);
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
    /// Adds left * right. The compiler would find the carry by comparisons.
    void AddProduct(Factor left, Factor right) {
        const DoubleFactor product = DoubleFactor{left} * right;
        asm("adds %[low], %[low], %[productLow]\n\t"
            "adcs %[middle], %[middle], %[productHigh]\n\t"
            "adc %[high], %[high], xzr"
            : [low] "+&r"(low_), [middle] "+&r"(middle_), [high] "+&r"(high_)
            : [productLow] "r"(static_cast<Factor>(product)), [productHigh] "r"(static_cast<Factor>(
                                                                  product >> 64))
            : "cc");
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
