// How the quotient of two mantissas is computed on a processor that multiplies factors of more than
// a word.
//
// It is the division of limb_division.hpp, which tells how and why, with greater limbs. These are
// whole bytes, and a byte less than a factor: 56 bits for factors of 64, with which the numbers
// below are. Products are added up in double factors.
//
// First, both numbers, fractions from 1/2 to 1, are multiplied by the inverse of the divisor's
// first factor t, m = 2^127 / (t + 1), rounded down:
//
//     1 - d = divisor * m / 2^63,    quotient = dividend * m / 2^63 / (1 - d).
//
// Rounding m down takes off 2^-63 of it at most, and t + 1 in place of the divisor as much again:
// 0 < d < 2^-62. Then the limbs of both are cut out. Limb i weighs 2^(-56 i); limb 0 is the integer
// part, and limbs 0 and 1 of d are 0.
//
// Second, column k is completed when its turn comes, by all products of digits and limbs of d that
// fall in it,
//
//     left(k) = dividend(k) + sum over i < k of digit(i) * d(k - i).
//
// Limbs of both are multiplied by 2^8, which makes them as long as factors. Then the upper factor
// of a column is what it carries into the one above.
//
// Digit k takes column k and what the next two columns carry into it, of which it leaves the limbs.
// Let all digits be below b * 2^56. In units of column k there is left then
//
//  - less than 1 of the next column and less than 2^-56 of the one behind it,
//  - of the later columns, each below 2^118, together less than 2^-49,
//  - of the digit itself, for the columns behind it, less than b * 2^56 * d < b / 64.
//
// This is what the next digit finds, in units of 2^56: b = 1 + b / 64 + 2^-49 + 2^-56, b < 1.02. A
// column sums up less than 38 products below b * 2^112 and a limb of the dividend, together less
// than 2^118, or 2^126 with the factor 2^8.
//
// So less than 2 units are left behind the last digit, too.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "number/kernels/factors.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The quotient of mantissas of W words.
template <int W>
class FactorDivision {
    static constexpr int ByteBits = 8;
    static constexpr int LimbBits = FactorBits - ByteBits;
    static constexpr std::ptrdiff_t LimbBytes = LimbBits / ByteBits;

    static constexpr int LimbCount(int words) {
        return (words * WordBits + LimbBits - 1) / LimbBits;
    }
    /// Digit 0 is the integer part, the others are limbs of the fraction.
    static constexpr int Digits = 1 + LimbCount(W);
    static_assert(!AreFactorsWide || (FactorBits == 64 && Digits <= 38), "as the bounds assume");
    /// Quotients of up to this many digits are computed without loops.
    static constexpr int MaxUnrolledDigits = 8;

    /// The factors of a mantissa.
    static constexpr int MantissaFactors = W / FactorWords;

public:
    /// The factors of a quotient's fraction: as many as a mantissa's, and a guard below them.
    static constexpr int FractionFactors = MantissaFactors + 1;
    /// The bits of the guard below the last digit.
    static constexpr int BitsBelow = FractionFactors * FactorBits - (Digits - 1) * LimbBits;
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
        const int divisorFactors =
            Digits <= MaxUnrolledDigits ? MantissaFactors : FactorCount(divisorCount);
        Factor limbs[Digits + 2];
        Scaled::template Make<false>(dividend, MantissaFactors, inverse).CutUp(limbs);
        limbs[Digits + 1] = 0;
        Factor d[Digits + 1];
        Scaled::template Make<true>(divisor, divisorFactors, inverse).CutUp(d);
        Factor digits[Digits];
        DigitChain chain{.current = limbs[0] >> ByteBits, .next = limbs[1]};
        if constexpr (Digits <= MaxUnrolledDigits) {
            [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline)) {
                ((digits[K] = chain.Next(Column<K>(limbs, d, digits), d[2])), ...);
            }
            (std::make_integer_sequence<int, Digits>{});
        } else {
            // Limbs of d behind this one are 0.
            const int last = std::min(Digits, LimbCount((divisorFactors + 1) * FactorWords));
            for (int k = 0; k < Digits; ++k) {
                DoubleFactor column = limbs[k + 2];
                const int first = std::max(0, k + 2 - last);
                const Factor* factor = d + (k + 2 - first);
#pragma GCC unroll 4
                for (int i = first; i < k; ++i, --factor) {
                    column += DoubleFactor{digits[i]} * *factor;
                }
                digits[k] = chain.Next(column, d[2]);
            }
        }
        return Join(digits, fraction);
    }

private:
    /// A mantissa times the inverse, where 2^63 of the top factor make 1. There is a factor of
    /// zeros below it.
    class Scaled {
    public:
        /// The product, of the highest `count` factors of the mantissa; the others are 0. With
        /// `Negated` it is 1 minus the product, which is below 1. (Of a whole mantissa it is a unit
        /// of the lowest factor less. This makes quotients smaller by less than twice as much,
        /// which is nothing beside a unit of the last digit.)
        template <bool Negated>
        [[gnu::always_inline]] static Scaled Make(const Word* mantissa, int count, Factor inverse) {
            Scaled result;
            Factor* factors = result.factors_;
            const StoredFactor* source = FactorsOf(mantissa);
            const int begin = 1 + MantissaFactors - count;
            std::fill(factors, factors + begin, 0);
            constexpr Factor flip = Negated ? ~Factor{0} : 0;
            Factor carry = 0;
#pragma GCC unroll 4
            for (int i = begin; i <= MantissaFactors; ++i) {
                const DoubleFactor product = DoubleFactor{source[i - 1]} * inverse + carry;
                factors[i] = static_cast<Factor>(product) ^ flip;
                carry = static_cast<Factor>(product >> FactorBits);
            }
            factors[Top] = carry ^ (flip >> 1);
            if (Negated && begin > 1) {
                for (int i = begin; ++factors[i] == 0; ++i) {
                }
            }
            return result;
        }

        /// Cuts out limbs 0 to `Digits`, multiplied by 2^8.
        [[gnu::always_inline]] void CutUp(Factor* limbs) const {
            // Limb i lies above bit Top * FactorBits + FactorBits - 1 - LimbBits * i.
            constexpr Factor mask = ~Factor{0} << ByteBits;
            limbs[0] = factors_[Top] >> (FactorBits - 1) << ByteBits;
            if constexpr (Digits <= MaxUnrolledDigits) {
#pragma GCC unroll 8
                for (int i = 1; i <= Digits; ++i) {
                    const int bit = Top * FactorBits + LimbBits * (1 - i) - 1;
                    const int index = bit / FactorBits;
                    limbs[i] =
                        static_cast<Factor>(
                            (DoubleFactor{factors_[index + 1]} << FactorBits | factors_[index]) >>
                            bit % FactorBits) &
                        mask;
                }
            } else {
                // Its lowest bit is the highest bit of a byte, the first one of the limb's.
                const auto* end = reinterpret_cast<const unsigned char*>(factors_ + Top + 1);
                for (int i = 1; i <= Digits; ++i) {
                    Factor bytes = 0;
                    std::memcpy(&bytes, end - 1 - LimbBytes * i, sizeof(bytes));
                    limbs[i] = bytes << 1 & mask;
                }
            }
        }

    private:
        static constexpr int Top = MantissaFactors + 1;
        static_assert(1 + LimbBytes * Digits <= (Top + 1) * int{sizeof(Factor)});

        Factor factors_[Top + 1];
    };

    /// What goes from digit to digit: the current column, and the next one, multiplied by 2^8.
    struct DigitChain {
        Factor current;
        DoubleFactor next;

        /// The digit of the current column. `column` is the one two behind it, to which its product
        /// with `factor` is not yet added.
        [[gnu::always_inline]] Factor Next(DoubleFactor column, Factor factor) {
            next += column >> FactorBits << ByteBits;
            const Factor digit = current + static_cast<Factor>(next >> FactorBits);
            current = static_cast<Factor>(next) >> ByteBits;
            next = static_cast<Factor>(column) + DoubleFactor{digit} * factor;
            return digit;
        }
    };

    /// Column K + 2, but for the product of digit K.
    template <int K>
    [[gnu::always_inline]] static DoubleFactor Column(const Factor* limbs, const Factor* d,
                                                      const Factor* digits) {
        DoubleFactor column = limbs[K + 2];
        constexpr int First = std::max(0, K + 2 - Digits);
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            ((column += DoubleFactor{digits[First + I]} * d[K + 2 - First - I]), ...);
        }
        (std::make_integer_sequence<int, K - First>{});
        return column;
    }

    /// Adds up the digits. Returns the integer part.
    static Factor Join(const Factor* digits, StoredFactor* fraction) {
        DoubleFactor bits = 0;
        int count = BitsBelow;
#pragma GCC unroll 40
        for (int k = Digits - 1; k > 0; --k) {
            bits += DoubleFactor{digits[k]} << count;
            count += LimbBits;
            if (count >= FactorBits) {
                *fraction++ = static_cast<Factor>(bits);
                bits >>= FactorBits;
                count -= FactorBits;
            }
        }
        return digits[0] + static_cast<Factor>(bits);
    }
};

}  // namespace vqz::kernels
