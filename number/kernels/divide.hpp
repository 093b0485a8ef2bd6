// Division of numbers.
#pragma once

#include <algorithm>
#include <iterator>
#include <utility>

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
    const Word* words() const { return words_ + Slack; }

private:
    /// The quotient's digits are limbs: digit 0 is the top bit, the others are the words and some
    /// bits more.
    static constexpr int Digits = LimbCount(W) + 1;
    /// Words below the quotient, that whole groups reach into. The guard word is the last one.
    static constexpr int Slack = GroupCount(Digits - 1) * GroupWords - W;
    /// The columns whose sums are computed together.
    static constexpr int Block = 8;
    static_assert(Slack > 0 && LimbPadding >= Block);

    /// The dividend's limbs are no factors.
    using Numerator = LimbBuffer<W, 0>;

    bool topBit_ = false;
    Word words_[Slack + W];

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
    /// Digit k is how often the divisor goes into x = remaining(k) + 2^(-28) remaining(k + 1) +
    /// ..., all columns reduced by the digits before k. The digit must never be too great, so that
    /// all remainders stay positive; it may be too small, since the next digit, which may be
    /// greater than a limb, makes up for it. Let v be the divisor in units of its first limb, 2^27
    /// <= v < 2^28, let it have n <= 74 limbs, and let all digits be below b * 2^28.
    ///
    ///  - `current` is the first two columns. The columns behind them are not less than -n * b in
    ///    its units, so x > current - LaterColumns.
    ///  - The estimate cuts off 25 bits, which are less than 1/4 of v. It multiplies by an inverse
    ///    that is too small by 2^-31 of it for the divisor's bits that it does not see and by
    ///    another 2^-31 for its own, together by less than b * 2^28 / 2^30 = b / 4 of a digit.
    ///    Cutting off the digit's fraction takes less than 1. A digit is too small by b / 4
    ///    + 1.2501 at most.
    ///  - This is what is left for the next digit, in units of 2^28: b = b / 4 + 1.2501, b < 1.67.
    ///  - A column of remaining(k) is more than -74 * 1.67 * 2^56 > -2^63: lanes do not overflow.
    ///
    /// The last digit is too small by less than 2, too, and it has some bits more than the words
    /// need. Answers whether the words are decided.
    bool DivideByLimbs(const Word* dividend, const Word* divisor, int divisorCount) {
        const Numerator numerator(dividend + W, W);
        const LimbBuffer<W> denominator(divisor + W, divisorCount);
        DigitChain chain(denominator, divisor[W - 1], numerator[0]);
        Limb digits[GroupCount(Digits - 1) * GroupLimbs + 1];
        constexpr int FullBlocks = Digits / Block * Block;
        for (int start = 0; start < FullBlocks; start += Block) {
            ComputeBlock<Block>(start, numerator, denominator, chain, digits);
        }
        ComputeBlock<Digits - FullBlocks>(FullBlocks, numerator, denominator, chain, digits);
        std::fill(digits + Digits, std::end(digits), 0);
        topBit_ =
            digits[0] + JoinColumns(digits + 1, GroupCount(Digits - 1), std::end(words_)) != 0;
        constexpr Word Unit = Word{1} << ((W + 1) * WordBits - (Digits - 1) * LimbBits);
        const bool isDecided = IsDecided(words_[Slack - 1], 2 * Unit);
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        // Exact words are made 1 too small, for the correction to make up for it.
        if (isDecided) {
            SubtractOne();
        }
        return false;
#else
        return isDecided;
#endif
    }

    /// What goes from digit to digit.
    class DigitChain {
    public:
        DigitChain(const LimbBuffer<W>& denominator, Word divisorTop, Limb numeratorTop)
            : current_(numeratorTop) {
            std::copy_n(denominator.data(), Block + 1, divisor_);
            // 2^63 / (divisorTop + 1), which has 32 bits. For the greatest divisor 2^63 /
            // divisorTop is the same.
            Word rest = 0;
            inverse_ = DivideWords(TopBit, 0, divisorTop + (~divisorTop != 0 ? 1 : 0), rest);
        }

        /// The digit of the current column. `remaining` are the `Count` columns behind it, from
        /// which the digit is subtracted.
        template <int Count>
        [[gnu::always_inline]] Word Next(DoubleWord* remaining) {
            constexpr std::int64_t LaterColumns = 128;
            current_ +=
                static_cast<DoubleWord>(static_cast<std::int64_t>(remaining[0]) >> LimbBits);
            const std::int64_t safe = static_cast<std::int64_t>(current_) - LaterColumns;
            const Word visible = safe < 0 ? 0 : Low(static_cast<DoubleWord>(safe) >> VisibleFrom);
            const Word digit = High(DoubleWord{visible} * inverse_) >> 2;
            current_ -= DoubleWord{divisor_[0]} * digit;
            current_ = (current_ << LimbBits) + (Low(remaining[0]) & LimbMask) -
                       DoubleWord{divisor_[1]} * digit;
#pragma GCC unroll 8
            for (int i = 1; i < Count; ++i) {
                remaining[i] -= digit * DoubleWord{divisor_[i + 1]};
            }
            return digit;
        }

    private:
        /// visible * 2^25 / (v in units of 2^28) * 2^34 = visible * 2^63 / divisor.
        static constexpr int VisibleFrom = 25;

        DoubleWord current_;
        Word inverse_;
        /// The divisor's first limbs.
        Word divisor_[Block + 1];
    };

    /// Computes digits `start` to `start + Count - 1`.
    template <int Count>
    static void ComputeBlock(int start, const Numerator& numerator,
                             const LimbBuffer<W>& denominator, DigitChain& chain, Limb* digits) {
        // The columns behind the first one, which the chain has already.
        DoubleWord remaining[ColumnStep];
        if (start == 0) {
            std::copy_n(numerator.data() + 1, Count, remaining);
        } else {
            columnSums(digits, start, denominator.data(), denominator.count(), start + 1,
                       start + 1 + Count, remaining);
            for (int i = 0; i < Count; ++i) {
                remaining[i] = numerator[start + 1 + i] - remaining[i];
            }
        }
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            ((digits[start + I] = chain.template Next<Count - I>(remaining + I)), ...);
        }
        (std::make_integer_sequence<int, Count>{});
    }

    /// Whether the words above the guard stay the same when up to `error` is added to it.
    static bool IsDecided(Word guard, Word error) {
        return guard <= ~error;
    }

    /// Adds 1 if the quotient is 1 too small, which the remainder tells: it is less than twice
    /// the divisor, so that W + 1 words of it suffice.
    void CorrectExactly(const Word* dividend, const Word* divisor) {
        using Product = MantissaProduct<W>;
        const Product product(words(), divisor, Product::Precision::Full);
        // remainder = dividend * 2^(32 W) - (top bit and words) * divisor
        bool borrow = false;
        Word remainder[W];
        for (int i = 0; i < W; ++i) {
            const DoubleWord difference = DoubleWord{0} - product.lower()[i] - borrow;
            remainder[i] = Low(difference);
            borrow = High(difference) != 0;
        }
        const Word above =
            dividend[0] - (topBit_ ? divisor[0] : 0) - product.upper()[0] - (borrow ? 1 : 0);
        if (above != 0 ||
            !std::lexicographical_compare(std::rbegin(remainder), std::rend(remainder),
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

#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
    void SubtractOne() {
        for (int i = Slack; i < Slack + W; ++i) {
            if (words_[i]-- != 0) {
                return;
            }
        }
        topBit_ = false;
    }
#endif
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
        std::copy_n(words, W, result.words);
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
    Word carry = SubtractFromExponent<E>(me.exponent, quotient.shift);
    carry += SubtractFromExponent<E>(me.exponent, other.exponent);
    return Finish(me, quotient, round, me.IsSign() != other.IsSign(), carry);
}

}  // namespace vqz::kernels
