// Multiplication of numbers.
#pragma once

#include <algorithm>
#include <array>

#include "number/kernels/column_sums.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/scaled_words.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// Up to this many products of words, the schoolbook with words is faster than with limbs.
inline constexpr int MaxWordProducts = 160;

/// The product of two normalised mantissas, or as much of it as decides its leading W words.
template <int W>
class MantissaProduct {
public:
    MantissaProduct(const Word* left, const Word* right)
        : leftCount_(WithoutLowZeros(left, W)),
          rightCount_(WithoutLowZeros(right, W)),
          count_(leftCount_ + rightCount_) {
        left += W - leftCount_;
        right += W - rightCount_;
        // A product of few words is followed by zeros.
        std::fill_n(words_.begin(), std::max(0, Below - (count_ - W - 1)), 0);
        if (leftCount_ * rightCount_ <= MaxWordProducts) {
            MultiplyWords(left, right);
        } else {
            MultiplyLimbs(LimbBuffer<W>(left, leftCount_), LimbBuffer<W>(right, rightCount_));
        }
    }

    ScaledWords<W> Scaled() const {
        ScaledWords<W> result;
        const Word* top = product() + count_ - W;
        const Word guard = top[-1];
        result.shift = (top[W - 1] & TopBit) == 0 ? 1 : 0;
        if (result.shift == 0) {
            std::copy_n(top, W, result.words.begin());
        } else {
            for (int i = 0; i < W; ++i) {
                result.words[i] = (top[i] << 1) | (top[i - 1] >> (WordBits - 1));
            }
        }
        const Word tail = guard << result.shift;
        if ((tail & TopBit) == 0) {
            result.tail = Tail::BelowHalf;
        } else {
            const bool isHalf = tail == TopBit && std::all_of(product() + firstWord_, top - 1,
                                                              [](Word word) { return word == 0; });
            result.tail = isHalf ? Tail::Half : Tail::AboveHalf;
        }
        return result;
    }

private:
    /// Room for zeros below the product, which has 2 words at least.
    static constexpr int Below = W - 1;
    /// Room for the product in whole groups.
    static constexpr int Capacity = (2 * W / GroupWords + 2) * GroupWords;
    static constexpr int ColumnCapacity = Capacity / GroupWords * GroupLimbs;

    int leftCount_;
    int rightCount_;
    /// The product's words.
    int count_;
    /// The first one that was computed.
    int firstWord_ = 0;
    std::array<Word, Below + Capacity> words_;

    Word* product() { return words_.data() + Below; }
    const Word* product() const { return words_.data() + Below; }

    /// The schoolbook, row by row.
    void MultiplyWords(const Word* left, const Word* right) {
        std::fill_n(product(), leftCount_, 0);
        for (int j = 0; j < rightCount_; ++j) {
            Word* row = product() + j;
            DoubleWord carry = 0;
            for (int i = 0; i < leftCount_; ++i) {
                carry += DoubleWord{left[i]} * right[j] + row[i];
                row[i] = Low(carry);
                carry = High(carry);
            }
            row[leftCount_] = Low(carry);
        }
    }

    /// The schoolbook, column by column, and without the columns that can hardly matter.
    ///
    /// The number's words are the upper W of the product; the guard word below them decides the
    /// rounding. Left out are columns 0 to K - 1, where 28 * (K + 1) <= 32 * g for the guard's
    /// index g. A column k sums up at most k + 1 products below 2^56, and weighs 2^(28 k); so what
    /// is left out is less than
    ///
    ///     sum over k < K of (k + 1) * 2^(56 + 28 k)  <  (K + 1) * 2^(28 (K + 1))  <=  (K + 1) *
    ///     2^(32 g),
    ///
    /// which is K + 1 units of the guard word.
    void MultiplyLimbs(const LimbBuffer<W>& left, const LimbBuffer<W>& right) {
        const int guard = count_ - W - 1;
        const int firstColumn = std::max(0, guard * WordBits / LimbBits - 1);
        ComputeColumns(left, right, firstColumn);
        if (firstColumn > 0 && !IsDecided(product()[guard], firstColumn)) {
            ComputeColumns(left, right, 0);
        }
    }

    /// Whether the words above the guard, and how they are rounded, stay the same when up to
    /// `error` units are added to it. The bit that rounds is its highest or, when the product has
    /// a leading 0 bit, the next. The bits below must not carry into these, nor be all 0: whether
    /// they are a half would be open then.
    static bool IsDecided(Word guard, Word error) {
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        return false;
#else
        constexpr Word Rest = (Word{1} << (WordBits - 2)) - 1;
        const Word rest = guard & Rest;
        return rest != 0 && rest <= Rest - error;
#endif
    }

    void ComputeColumns(const LimbBuffer<W>& left, const LimbBuffer<W>& right, int firstColumn) {
        const int firstGroup = firstColumn / GroupLimbs;
        const int endGroup = (left.count() + right.count() + GroupLimbs - 1) / GroupLimbs;
        std::array<DoubleWord, ColumnCapacity + ColumnStep> sums;
        const int skipped = firstColumn - firstGroup * GroupLimbs;
        std::fill_n(sums.begin(), skipped, 0);
        columnSums(left.data(), left.count(), right.data(), right.count(), firstColumn,
                   endGroup * GroupLimbs, sums.data() + skipped);
        firstWord_ = firstGroup * GroupWords;
        JoinColumns(sums.data(), endGroup - firstGroup, product() + firstWord_);
    }
};

/// The product of two mantissas of any form, by ttmath.
template <std::size_t W>
ScaledWords<W> MultiplyExactly(ttmath::UInt<W>& left, const ttmath::UInt<W>& right) {
    ttmath::UInt<2 * W> product;
    left.MulBig(right, product);
    return Scale<W>(product);
}

/// me = me * other. Answers a carry when the exponent overflows, and for a NaN.
template <std::size_t E, std::size_t W>
Word Multiply(ttmath::Big<E, W>& me, const ttmath::Big<E, W>& other, bool round) {
    if (me.IsNan() || other.IsNan()) {
        return me.CheckCarry(1);
    }
    if (me.IsZero()) {
        return 0;
    }
    if (other.IsZero()) {
        me.SetZero();
        return 0;
    }
    const bool areNormalised =
        me.mantissa.IsTheHighestBitSet() && other.mantissa.IsTheHighestBitSet();
    const ScaledWords<W> product =
        areNormalised ? MantissaProduct<W>(me.mantissa.table, other.mantissa.table).Scaled()
                      : MultiplyExactly(me.mantissa, other.mantissa);
    Word carry = me.exponent.Add(Word{W * WordBits} - product.shift);
    carry += me.exponent.Add(other.exponent);
    return Finish(me, product, round, me.IsSign() != other.IsSign(), carry);
}

}  // namespace vqz::kernels
