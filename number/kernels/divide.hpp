// Division of numbers.
#pragma once

#include <algorithm>
#include <array>
#include <functional>

#include "number/kernels/mantissa_product.hpp"
#include "number/kernels/scaled_words.hpp"

namespace vqz::kernels {

/// The quotient of two normalised mantissas of W words: dividend * 2^(32 W) / divisor, rounded
/// down. It has a bit more than W words at most.
template <int W>
class MantissaQuotient {
public:
    MantissaQuotient(const Word* dividend, const Word* divisor) {
        const int divisorCount = WithoutLowZeros(divisor, W);
        if (divisorCount == 1) {
            DivideByWord(dividend, divisor[W - 1]);
        } else if (!DivideByLimbs(dividend, divisor, divisorCount)) {
            CorrectExactly(dividend, divisor);
        }
    }

    /// The bit above the words.
    bool hasTopBit() const { return topBit_; }
    /// The W words below it.
    const Word* words() const { return words_.data() + Slack; }

private:
    /// The quotient's digits are limbs: digit 0 is the top bit, the others are the words and some
    /// bits more.
    static constexpr int Digits = LimbCount(W) + 1;
    /// Words below the quotient, that whole groups reach into. The guard word is the last one.
    static constexpr int Slack = GroupCount(Digits - 1) * GroupWords - W;
    /// The columns whose sums are computed together.
    static constexpr int Block = 8;
    static_assert(Slack > 0 && LimbPadding >= Block);

    bool topBit_ = false;
    std::array<Word, Slack + W> words_;

    /// The schoolbook's division by one digit.
    void DivideByWord(const Word* dividend, Word divisor) {
        Word remainder = dividend[W - 1];
        topBit_ = remainder >= divisor;
        if (topBit_) {
            remainder -= divisor;
        }
        for (int i = W - 1; i > 0; --i) {
            words_[Slack + i] = DivideWords(remainder, dividend[i - 1], divisor, remainder);
        }
        words_[Slack] = DivideWords(remainder, 0, divisor, remainder);
    }

    /// The schoolbook's division with limbs as digits, turned around: instead of subtracting a
    /// multiple of the divisor for each digit, each column of the dividend is reduced when its turn
    /// comes, by all products of digits and divisor limbs that fall in it,
    ///
    ///     remaining(k) = dividend(k) - sum over i < k of digit(i) * divisor(k - i),
    ///
    /// which are column sums as in a multiplication. Blocks of columns get the sums of the digits
    /// before the block at once; within a block each digit is subtracted as soon as it is known.
    ///
    /// Digit k is what the divisor goes into x = remaining(k) + 2^(-28) remaining(k + 1) + ..., all
    /// later columns reduced by the digits before k only. It is estimated by t, the first two of
    /// these, and must never be too great: all remainders stay positive, while a digit may be a bit
    /// greater than a limb. Let v be the divisor in units of its first limb, 2^27 <= v < 2^28, and
    /// b the greatest digit over 2^28.
    ///
    ///  - The columns from k + 2 on are at least -n * b * 2^56 each for n limbs, so x > t - 2 * n *
    ///  b;
    ///    n is 74 at most and b < 1.34 (below), hence LaterColumns = 256 is subtracted.
    ///  - The estimate divides by d > 8 v, d <= 8 v + 1, and is rounded down. With x < t + 2 it
    ///  stays
    ///    below x / v by less than x / v / (8 v) + 8 * 258 / d + 1 < b * 2^28 / 2^30 + 1.00001.
    ///  - What is left is the next digit's x / v: b = b / 4 + 1.00001, so b < 1.34.
    ///  - A column of remaining(k) is at most 74 * 1.34 * 2^56 < 2^63: lanes do not overflow.
    ///
    /// The last digit leaves the quotient open by less than 1.34 of its units, and it has some bits
    /// more than the words need. Answers whether the words are decided.
    bool DivideByLimbs(const Word* dividend, const Word* divisor, int divisorCount) {
        constexpr std::int64_t LaterColumns = 256;
        const LimbBuffer<W> numerator(dividend + W, W);
        const LimbBuffer<W> denominator(divisor + W, divisorCount);
        // The divisor's upper 31 bits, plus 1.
        const Word estimator = (divisor[W - 1] >> 1) + 1;

        std::array<Limb, GroupCount(Digits - 1) * GroupLimbs + 1> digits;
        std::int64_t current = static_cast<std::int64_t>(numerator[0]);
        for (int start = 0; start < Digits; start += Block) {
            // The columns behind the block's first one.
            std::array<std::int64_t, ColumnStep> remaining;
            std::array<DoubleWord, ColumnStep> sums{};
            if (start > 0) {
                columnSums(digits.data(), start, denominator.data(), denominator.count(), start + 1,
                           start + 1 + Block, sums.data());
            }
            for (int i = 0; i < Block; ++i) {
                remaining[i] = static_cast<std::int64_t>(numerator[start + 1 + i] - sums[i]);
            }
            const int count = std::min(Block, Digits - start);
            for (int i = 0; i < count; ++i) {
                current += remaining[i] >> LimbBits;
                const std::int64_t safe = current - LaterColumns;
                Word rest = 0;
                const Word digit = safe < 0 ? 0
                                            : DivideWords(High(static_cast<DoubleWord>(safe) << 3),
                                                          Low(static_cast<DoubleWord>(safe) << 3),
                                                          estimator, rest);
                digits[start + i] = digit;
                const DoubleWord left = static_cast<DoubleWord>(current) - denominator[0] * digit;
                current = static_cast<std::int64_t>((left << LimbBits) +
                                                    (static_cast<Word>(remaining[i]) & LimbMask) -
                                                    denominator[1] * digit);
                for (int j = i + 1; j < Block; ++j) {
                    remaining[j] -= static_cast<std::int64_t>(denominator[j - i + 1] * digit);
                }
            }
        }
        std::fill(digits.begin() + Digits, digits.end(), 0);
        topBit_ = digits[0] + JoinColumns(digits.data() + 1, GroupCount(Digits - 1),
                                          words_.data() + words_.size()) !=
                  0;
        constexpr Word Unit = Word{1} << ((W + 1) * WordBits - (Digits - 1) * LimbBits);
        return IsDecided(words_[Slack - 1], 2 * Unit);
    }

    /// Whether the words above the guard stay the same when up to `error` is added to it.
    static bool IsDecided([[maybe_unused]] Word guard, [[maybe_unused]] Word error) {
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        return false;
#else
        return guard <= ~error;
#endif
    }

    /// Adds 1 if the quotient is 1 too small, which the remainder tells: it is less than twice
    /// the divisor, so that W + 1 words of it suffice.
    void CorrectExactly(const Word* dividend, const Word* divisor) {
        using Product = MantissaProduct<W>;
        const Product product(words(), divisor, Product::Precision::Full);
        // remainder = dividend * 2^(32 W) - (top bit and words) * divisor
        bool borrow = false;
        std::array<Word, W> remainder;
        for (int i = 0; i < W; ++i) {
            const DoubleWord difference = DoubleWord{0} - product.lower()[i] - borrow;
            remainder[i] = Low(difference);
            borrow = High(difference) != 0;
        }
        const Word above =
            dividend[0] - (topBit_ ? divisor[0] : 0) - product.upper()[0] - (borrow ? 1 : 0);
        if (above != 0 || !std::lexicographical_compare(remainder.rbegin(), remainder.rend(),
                                                        std::make_reverse_iterator(divisor + W),
                                                        std::make_reverse_iterator(divisor))) {
            AddOne();
        }
    }

    void AddOne() {
        for (int i = Slack; i < Slack + W; ++i) {
            if (++words_[i] != 0) {
                return;
            }
        }
        topBit_ = true;
    }
};

/// The quotient of two normalised mantissas. Of one more than W words the last bit is a half.
template <int W>
ScaledWords<W> DivideNormalised(const Word* dividend, const Word* divisor) {
    const MantissaQuotient<W> quotient(dividend, divisor);
    const Word* words = quotient.words();
    ScaledWords<W> result;
    if (!quotient.hasTopBit()) {
        result.shift = W * WordBits;
        result.tail = Tail::BelowHalf;
        std::copy_n(words, W, result.words.begin());
    } else {
        result.shift = W * WordBits - 1;
        result.tail = (words[0] & 1) != 0 ? Tail::Half : Tail::BelowHalf;
        for (int i = 0; i < W - 1; ++i) {
            result.words[i] = (words[i] >> 1) | (words[i + 1] << (WordBits - 1));
        }
        result.words[W - 1] = (words[W - 1] >> 1) | TopBit;
    }
    return result;
}

/// The quotient of two mantissas of any form, by ttmath.
template <std::size_t W>
ScaledWords<W> DivideExactly(const ttmath::UInt<W>& left, const ttmath::UInt<W>& right) {
    ttmath::UInt<2 * W> dividend;
    ttmath::UInt<2 * W> divisor;
    dividend.SetZero();
    divisor.SetZero();
    std::copy_n(left.table, W, dividend.table + W);
    std::copy_n(right.table, W, divisor.table);
    dividend.Div(divisor);
    return Scale<W>(dividend);
}

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
    const bool areNormalised =
        me.mantissa.IsTheHighestBitSet() && other.mantissa.IsTheHighestBitSet();
    const ScaledWords<W> quotient =
        areNormalised ? DivideNormalised<W>(me.mantissa.table, other.mantissa.table)
                      : DivideExactly(me.mantissa, other.mantissa);
    Word carry = me.exponent.Sub(quotient.shift);
    carry += me.exponent.Sub(other.exponent);
    return Finish(me, quotient, round, me.IsSign() != other.IsSign(), carry);
}

}  // namespace vqz::kernels
