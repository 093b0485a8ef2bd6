// Products of mantissas.
#pragma once

#include <algorithm>
#include <iterator>
#include <utility>

#include BIGNUMBER_PROCESSOR_WORD_PRODUCTS
#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_kernels.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// Mantissas of up to this many words are multiplied by unrolled code.
inline constexpr int MaxUnrolledWords = 8;

/// The product of two mantissas of W words, seen as fractions: a shorter product fills the highest
/// of its 2 * W words.
template <int W>
class MantissaProduct {
public:
    /// How much of the product is wanted.
    enum class Precision { Full, Leading };

    /// Full: all 2 * W words. Leading, for normalised mantissas: the upper W words and the bit of
    /// the guard word that rounds them. What lies below that bit may then be too small. It is
    /// not 0, and the exact value of these bits is not 0 either.
    MantissaProduct(const Word* left, const Word* right, Precision precision) {
        const int leftCount = WithoutLowZeros(left, W);
        const int rightCount = WithoutLowZeros(right, W);
        if constexpr (W <= MaxUnrolledWords) {
            if (leftCount == W && rightCount == W) {
                MultiplyWordColumns(left, right, precision);
                return;
            }
        }
        if constexpr (W * W > MaxWordProducts) {
            if (leftCount * rightCount > MaxWordProducts) {
                MultiplyByLimbs(left + W, leftCount, right + W, rightCount, precision);
                return;
            }
        }
        MultiplyWords(left + W - leftCount, leftCount, right + W - rightCount, rightCount);
    }

    /// The upper W words. The guard word lies before them.
    const Word* upper() const { return words_ + Slack + W; }
    /// The lower W words, the guard word last.
    const Word* lower() const { return words_ + Slack; }

private:
    /// Words below the product, because limbs are joined by whole groups.
    static constexpr int Slack = GroupCount(2 * LimbCount(W)) * GroupWords - 2 * W;

    Word words_[Slack + 2 * W];

    Word* end() { return std::end(words_); }

    /// Schoolbook multiplication, row by row.
    void MultiplyWords(const Word* left, int leftCount, const Word* right, int rightCount) {
        Word* product = end() - (leftCount + rightCount);
        std::fill(words_, product + leftCount, 0);
        for (int j = 0; j < rightCount; ++j, ++product) {
            Word carry = 0;
            for (int i = 0; i < leftCount; ++i) {
                carry = AddProduct(product[i], left[i], right[j], carry);
            }
            product[leftCount] = carry;
        }
    }

    /// Schoolbook multiplication, column by column of words, each summed up in three words. For the
    /// leading words, columns 0 to W - 3 are left out: at most k + 1 products below 2^64 in column
    /// k, together less than W * 2^(64 + 32 (W - 3)), are less than W units of the guard word W
    /// - 1.
    void MultiplyWordColumns(const Word* left, const Word* right, Precision precision) {
        if (precision == Precision::Leading) {
            ComputeWordColumns<W - 2>(left, right);
            if (IsDecided(upper()[-1], W)) {
                return;
            }
        }
        ComputeWordColumns<0>(left, right);
    }

    template <int First>
    void ComputeWordColumns(const Word* left, const Word* right) {
        std::fill(words_, words_ + Slack + First, 0);
        Word* product = words_ + Slack;
        ColumnSum sum;
        [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline)) {
            ((AddWordColumn<First + K>(left, right, sum), product[First + K] = sum.Next()), ...);
        }
        (std::make_integer_sequence<int, 2 * W - 1 - First>{});
        product[2 * W - 1] = sum.Next();
    }

    /// If this were a call, the compiler would keep the sum in memory.
    template <int K>
    [[gnu::always_inline]] static void AddWordColumn(const Word* left, const Word* right,
                                                     ColumnSum& sum) {
        constexpr int First = std::max(0, K - W + 1);
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            (sum.AddProduct(left[First + I], right[K - First - I]), ...);
        }
        (std::make_integer_sequence<int, std::min(K, W - 1) - First + 1>{});
    }

    /// Schoolbook multiplication, column by column; for the leading words, without the columns that
    /// can hardly matter.
    ///
    /// Column k weighs 2^(-28 (k + 2)) and sums up at most n products below 2^56, where n is the
    /// number of limbs of a factor: it is less than n * 2^(-28 k). A unit of the guard word is
    /// 2^(-32 (W + 1)). When columns up to K - 1 are computed and 28 * K >= 32 * (W + 1), all
    /// others together are less than n * 2^(-28 K) * (1 + 2^-27), that is, at most n units.
    void MultiplyByLimbs(const Word* leftEnd, int leftCount, const Word* rightEnd, int rightCount,
                         Precision precision) {
        const auto compute = [&](int columns) {
            vectorKernels->Of<W>().multiply(leftEnd, leftCount, rightEnd, rightCount, columns,
                                            end());
            std::fill(words_, end() - GroupCount(columns + 1) * GroupWords, 0);
        };
        constexpr int LeadingColumns = LimbCount(W + 1);
        const int columns = LimbCount(leftCount) + LimbCount(rightCount) - 1;
        if (precision == Precision::Leading && columns > LeadingColumns) {
            compute(LeadingColumns);
            if (IsDecided(upper()[-1], LimbCount(std::min(leftCount, rightCount)))) {
                return;
            }
        }
        compute(columns);
    }

    /// Whether the words above the guard, and how they are rounded, stay the same when up to
    /// `error` units are added to it. The bit that rounds is its highest or, when the product has
    /// a leading 0 bit, the next. The bits below must not carry into these, nor be all 0: whether
    /// they are a half would be open then.
    static bool IsDecided([[maybe_unused]] Word guard, [[maybe_unused]] int error) {
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        return false;
#else
        constexpr Word Rest = (Word{1} << (WordBits - 2)) - 1;
        const Word rest = guard & Rest;
        return rest != 0 && rest <= Rest - static_cast<Word>(error);
#endif
    }
};

}  // namespace vqz::kernels
