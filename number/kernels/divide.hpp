// Division of numbers.
#pragma once

#include <algorithm>
#include <iterator>

#include BIGNUMBER_PROCESSOR_WORD_DIVISION
#include "number/kernels/factor_division.hpp"
#include "number/kernels/factors.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/mantissa_product.hpp"
#include "number/kernels/scaled_words.hpp"
#include "number/kernels/vector_kernels.hpp"

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
        } else if (!DivideLong(dividend, divisor, divisorCount)) {
            CorrectExactly(dividend, divisor);
        }
    }

    /// The bit above the words.
    bool hasTopBit() const { return topBit_; }
    /// The W words below it.
    const Word* words() const { return words_ + Slack; }

private:
    /// Words below the quotient: the guard factor, or what whole groups of limbs reach into, where
    /// the guard word is the last one.
    static constexpr int Slack =
        AreFactorsWide ? FactorWords : GroupCount(LimbCount(W)) * GroupWords - W;
    static_assert(Slack > 0);

    bool topBit_ = false;
    alignas(Factor) Word words_[Slack + W];

    /// Schoolbook division by a divisor of one digit.
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

    /// Returns whether the words are decided.
    bool DivideLong(const Word* dividend, const Word* divisor, int divisorCount) {
        bool isDecided = false;
        if constexpr (AreFactorsWide) {
            isDecided = DivideByFactors(dividend, divisor, divisorCount);
        } else {
            isDecided = DivideByLimbs(dividend, divisor, divisorCount);
        }
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        // Exact words are made 1 too small, so that the correction has something to correct.
        if (isDecided) {
            SubtractOne();
        }
        return false;
#else
        return isDecided;
#endif
    }

    bool DivideByLimbs(const Word* dividend, const Word* divisor, int divisorCount) {
        topBit_ =
            vectorKernels->Of<W>().divide(dividend, divisor, divisorCount, std::end(words_)) != 0;
        // The unit of the last limb, in units of the guard word.
        constexpr Word Unit = Word{1} << ((W + 1) * WordBits - LimbCount(W) * LimbBits);
        return IsDecided(words_[Slack - 1], 2 * Unit);
    }

    bool DivideByFactors(const Word* dividend, const Word* divisor, int divisorCount) {
        using Division = FactorDivision<W>;
        StoredFactor* fraction = FactorsOf(words_);
        topBit_ = Division::Divide(dividend, divisor, divisorCount, fraction) != 0;
        return IsDecided(Factor{*fraction}, Division::MaxError);
    }

    /// Whether what is above the guard stays the same when up to `error` is added to it.
    template <typename Guard>
    static bool IsDecided(Guard guard, Guard error) {
        return guard <= ~error;
    }

    /// Adds 1 if the quotient is 1 too small, which the remainder shows: it is less than twice
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
        topBit_ = false;  // GCOVR_EXCL_LINE: 1 exactly comes out 1 too small by itself
    }
#endif
};

/// The quotient of two normalised mantissas. When it has one bit more than W words, its lowest bit
/// is not kept: it counts as half of the last bit that is.
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
template <ttmath::uint W>
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

/// me = me / other. Returns 1 when the exponent overflows and for a NaN, 2 for a division by zero.
template <ttmath::uint E, ttmath::uint W>
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
