// How the quotient of two mantissas is computed on a processor that multiplies factors of more than
// a word.
//
// It is the division of limb_division.hpp, which tells how and why, with limbs of 8 bits less than
// a factor, whose products are added up in double factors. Of 64 bits they are 56, that is, 7
// bytes. What is different here is numbers.
//
// The inverse of the divisor's first factor t is m = 2^127 / (t + 1), rounded down. Dividend and
// divisor are cut into limbs with seven zero bits before them, which divides them by 2^7, and
//
//     1 - d = divisor * m / 2^63,    quotient = dividend * m / 2^63 / (1 - d).
//
// Rounding m down takes off 2^-63 of it at most, and t + 1 in place of the divisor as much again:
// 0 < d < 2^-62.
//
// Digit k takes column k and what the next two columns carry into it, of which it leaves the limbs.
// Let all digits be below b * 2^56. In units of column k there is left then
//
//  - less than 1 of the next column and less than 2^-56 of the one behind it,
//  - of the later columns, each below 2^121, together less than 2^-46,
//  - of the digit itself, for the columns behind it, less than b * 2^56 * d < b / 64.
//
// This is what the next digit finds, in units of 2^56: b = 1 + b / 64 + 2^-46 + 2^-56, b < 1.02. A
// column sums up at most 37 products below b * 2^112, since limb 0 of d is 0, and one product of a
// limb of the dividend and m, below 2^120: together less than 2^121.
//
// So less than 2 units are left behind the last digit, too.
#pragma once

#include <algorithm>
#include <cstring>
#include <utility>

#include "number/kernels/factors.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The quotient of mantissas of W words.
template <int W>
class FactorDivision {
    static constexpr int ByteBits = 8;
    /// Limbs are whole bytes, and a factor holds one behind the zero bits before it.
    static constexpr int LimbBits = FactorBits - ByteBits;
    static constexpr int LimbBytes = LimbBits / ByteBits;
    static constexpr Factor LimbMask = (Factor{1} << LimbBits) - 1;
    /// The zero bits before the limbs of dividend and divisor.
    static constexpr int Lead = FactorBits - 1 - LimbBits;

    static constexpr int LimbCount(int words, int lead) {
        return (lead + words * WordBits + LimbBits - 1) / LimbBits;
    }
    static constexpr int Limbs = LimbCount(W, Lead);
    /// Digit 0 is the integer part, the others are limbs of the fraction.
    static constexpr int Digits = 1 + LimbCount(W, 0);
    static_assert(!AreFactorsWide || (Lead == 7 && Limbs <= 37), "as the bounds above assume");
    /// Quotients of up to this many digits are computed without loops.
    static constexpr int MaxUnrolledDigits = 40;

public:
    /// The factors of a fraction: those of a mantissa, and a guard below them.
    static constexpr int Factors = W / FactorWords + 1;
    /// The bits of the guard below the last digit.
    static constexpr int BitsBelow = Factors * FactorBits - (Digits - 1) * LimbBits;
    /// The fraction may be less than this too small, in units of the guard.
    static constexpr Factor MaxError = Factor{2} << BitsBelow;

    /// Divides two normalised mantissas, seen as fractions; the divisor's lowest words but
    /// `divisorCount` are 0. Returns the integer part of the quotient, and writes the factors of
    /// its fraction. The quotient is less than MaxError too small, and never too great.
    static Factor Divide(const Word* dividend, const Word* divisor, int divisorCount,
                         StoredFactor* fraction) {
        // For the greatest first factor, 2^127 / t is the same.
        constexpr Factor topBit = Factor{1} << (FactorBits - 1);
        const Factor top = FactorsOf(divisor + W)[-1];
        Factor rest = 0;
        const Factor inverse = DivideFactors(topBit, 0, top + (~top != 0 ? 1 : 0), rest);
        FactorDivision division(inverse);
        division.CutUp(dividend, division.dividend_);
        division.SetFactor(divisor, divisorCount);
        [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline)) {
            (division.template ComputeDigit<K>(), ...);
        }
        (std::make_integer_sequence<int, Digits>{});
        return division.Join(fraction);
    }

private:
    explicit FactorDivision(Factor inverse) : inverse_(inverse) {}

    Factor inverse_;
    Factor dividend_[Limbs];
    /// The limbs of d = 1 - divisor * m / 2^63: limb i weighs 2^(-56 (i + 1)), and limb 0 is 0. The
    /// last one may be 2^56.
    Factor factor_[Limbs + 1];
    Factor digits_[Digits];
    /// What goes from digit to digit: the current column and the next one.
    Factor current_ = 0;
    DoubleFactor next_ = 0;

    /// Cuts a mantissa into limbs, the highest first.
    static void CutUp(const Word* words, Factor* limbs) {
        const auto* end = reinterpret_cast<const unsigned char*>(words + W);
        const auto load = [](const void* bytes) __attribute__((always_inline)) {
            Factor factor = 0;
            std::memcpy(&factor, bytes, sizeof(Factor));
            return factor;
        };
        // The first limb has no byte above it, the last one reaches below the words.
        limbs[0] = load(end - sizeof(Factor)) >> (Lead + ByteBits);
        for (int i = 1; i < Limbs - 1; ++i) {
            limbs[i] = (load(end - LimbBytes * (i + 1)) >> Lead) & LimbMask;
        }
        constexpr int below = LimbBytes * Limbs * ByteBits - W * WordBits;
        limbs[Limbs - 1] = (load(words) << below >> Lead) & LimbMask;
    }

    void SetFactor(const Word* divisor, [[maybe_unused]] int divisorCount) {
        Factor limbs[Limbs];
        CutUp(divisor, limbs);
        DoubleFactor sum = 0;
        for (int i = Limbs; i > 0; --i) {
            sum = (sum >> LimbBits) + DoubleFactor{limbs[i - 1]} * inverse_;
            // What is missing to a limb of ones.
            factor_[i] = ~static_cast<Factor>(sum) & LimbMask;
        }
        // For 0 < d < 2^-62.
        factor_[0] = 0;
        ++factor_[Limbs];
    }

    template <int K>
    [[gnu::always_inline]] void ComputeDigit() {
        // Column K + 2, but for the product of this digit.
        DoubleFactor column = 0;
        if constexpr (K < Limbs) {
            column = DoubleFactor{dividend_[K]} * inverse_;
        }
        constexpr int First = std::max(0, K + 1 - Limbs);
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            ((column += DoubleFactor{digits_[First + I]} * factor_[K + 1 - First - I]), ...);
        }
        (std::make_integer_sequence<int, K - First>{});
        next_ += column >> LimbBits;
        const Factor digit = current_ + static_cast<Factor>(next_ >> LimbBits);
        current_ = static_cast<Factor>(next_) & LimbMask;
        next_ = (static_cast<Factor>(column) & LimbMask) + DoubleFactor{digit} * factor_[1];
        digits_[K] = digit;
    }

    /// Adds up the digits. Returns the integer part.
    Factor Join(StoredFactor* fraction) const {
        DoubleFactor bits = 0;
        int count = BitsBelow;
#pragma GCC unroll 40
        for (int k = Digits - 1; k > 0; --k) {
            bits += DoubleFactor{digits_[k]} << count;
            count += LimbBits;
            if (count >= FactorBits) {
                *fraction++ = static_cast<Factor>(bits);
                bits >>= FactorBits;
                count -= FactorBits;
            }
        }
        return digits_[0] + static_cast<Factor>(bits);
    }
};

}  // namespace vqz::kernels
