// Products of mantissas.
#pragma once

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "number/kernels/factors.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_kernels.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The product of two mantissas of W words, seen as fractions: its words begin at the top.
template <int W>
class MantissaProduct {
public:
    /// How much of the product is wanted.
    enum class Precision { Full, Leading };

    /// Full: all 2 * W words. Leading, for normalised mantissas: the upper W words and the bit of
    /// the guard word that rounds them. What lies below that bit may then be too small. It is
    /// not 0, and the exact value of these bits is not 0 either.
    MantissaProduct(const Word* left, const Word* right, Precision precision) {
        const int leftCount = FactorCount(WithoutLowZeros(left, W));
        const int rightCount = FactorCount(WithoutLowZeros(right, W));
        if constexpr (Factors <= MaxUnrolledFactors) {
            if (leftCount == Factors && rightCount == Factors) {
                MultiplyFullColumns(FactorsOf(left), FactorsOf(right), precision);
                return;
            }
        }
        if constexpr (Factors * Factors > MaxRowProducts) {
            if (leftCount * rightCount > MaxRowProducts) {
                if constexpr (AreFactorsWide) {
                    MultiplyColumns(FactorsOf(left + W) - leftCount, leftCount,
                                    FactorsOf(right + W) - rightCount, rightCount, precision);
                } else {
                    MultiplyByLimbs(left + W, leftCount, right + W, rightCount, precision);
                }
                return;
            }
        }
        MultiplyRows(FactorsOf(left + W) - leftCount, leftCount, FactorsOf(right + W) - rightCount,
                     rightCount);
    }

    /// The upper W words. The guard word lies before them.
    const Word* upper() const { return words_ + Slack + W; }
    /// The lower W words, the guard word last.
    const Word* lower() const { return words_ + Slack; }

private:
    /// The factors of a mantissa.
    static constexpr int Factors = W / FactorWords;
    /// Words below the product, that whole groups of limbs may reach into.
    static constexpr int Slack =
        AreFactorsWide ? 0 : GroupCount(2 * LimbCount(W)) * GroupWords - 2 * W;

    alignas(Factor) Word words_[Slack + 2 * W];

    Word* end() { return std::end(words_); }

    /// The product's factors from the given one on.
    StoredFactor* factors(int first) { return FactorsOf(words_ + Slack) + first; }

    /// Clears what is below the given factor.
    void ClearBelow(int factor) { std::fill(words_, words_ + Slack + factor * FactorWords, 0); }

    /// The schoolbook, row by row.
    void MultiplyRows(const StoredFactor* left, int leftCount, const StoredFactor* right,
                      int rightCount) {
        const int below = 2 * Factors - (leftCount + rightCount);
        ClearBelow(below + leftCount);
        StoredFactor* product = factors(below);
        for (int j = 0; j < rightCount; ++j, ++product) {
            Factor carry = 0;
            for (int i = 0; i < leftCount; ++i) {
                carry = AddProduct(product[i], left[i], right[j], carry);
            }
            product[leftCount] = carry;
        }
    }

    /// The lowest column of factors that is computed for the leading words. For factors of B bits,
    /// columns 0 to n - 3 are left out: at most k + 1 products below 2^(2 B) in column k, together
    /// less than n * 2^(2 B + B (n - 3)), are less than n units of the guard factor n - 1.
    static constexpr int FirstLeadingColumn = Factors - 2;

    /// Whether columns from FirstLeadingColumn on are enough.
    bool AreLeadingColumnsEnough() { return IsDecided(Factor{*factors(Factors - 1)}, Factors); }

    /// The schoolbook, column by column of factors, which are summed up in three factors.
    void MultiplyFullColumns(const StoredFactor* left, const StoredFactor* right,
                             Precision precision) {
        if (precision == Precision::Leading) {
            ComputeFullColumns<FirstLeadingColumn>(left, right);
            if (AreLeadingColumnsEnough()) {
                return;
            }
        }
        if constexpr (AreFactorsWide) {
            // Needed too rarely for as much code.
            ComputeColumns(left, Factors, right, Factors, 0);
        } else {
            ComputeFullColumns<0>(left, right);
        }
    }

    template <int First>
    void ComputeFullColumns(const StoredFactor* left, const StoredFactor* right) {
        ClearBelow(First);
        StoredFactor* product = factors(0);
        ColumnSum sum;
        [&]<int... K>(std::integer_sequence<int, K...>) __attribute__((always_inline)) {
            ((AddFullColumn<First + K>(left, right, sum), product[First + K] = sum.Next()), ...);
        }
        (std::make_integer_sequence<int, 2 * Factors - 1 - First>{});
        product[2 * Factors - 1] = sum.Next();
    }

    /// If this were a call, the compiler would keep the sum in memory.
    template <int K>
    [[gnu::always_inline]] static void AddFullColumn(const StoredFactor* left,
                                                     const StoredFactor* right, ColumnSum& sum) {
        constexpr int First = std::max(0, K - Factors + 1);
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            (sum.AddProduct(left[First + I], right[K - First - I]), ...);
        }
        (std::make_integer_sequence<int, std::min(K, Factors - 1) - First + 1>{});
    }

    /// The same for factors of any length, which end at the mantissas' tops.
    void MultiplyColumns(const StoredFactor* left, int leftCount, const StoredFactor* right,
                         int rightCount, Precision precision) {
        const int below = 2 * Factors - leftCount - rightCount;
        const int first = FirstLeadingColumn - below;
        if (precision == Precision::Leading && first > 0) {
            ComputeColumns(left, leftCount, right, rightCount, first);
            if (AreLeadingColumnsEnough()) {
                return;
            }
        }
        ComputeColumns(left, leftCount, right, rightCount, 0);
    }

    void ComputeColumns(const StoredFactor* left, int leftCount, const StoredFactor* right,
                        int rightCount, int first) {
        const int columns = leftCount + rightCount - 1;
        const int below = 2 * Factors - 1 - columns;
        ClearBelow(below + first);
        StoredFactor* product = factors(below);
        ColumnSum sum;
        for (int k = first; k < columns; ++k) {
            const int begin = std::max(0, k - rightCount + 1);
            const StoredFactor* const end = left + std::min(k + 1, leftCount);
            const StoredFactor* other = right + (k - begin);
#pragma GCC unroll 4
            for (const StoredFactor* factor = left + begin; factor != end; ++factor, --other) {
                sum.AddProduct(*factor, *other);
            }
            product[k] = sum.Next();
        }
        product[columns] = sum.Next();
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
    template <typename Guard>
    static bool IsDecided([[maybe_unused]] Guard guard, [[maybe_unused]] int error) {
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
        return false;
#else
        constexpr Guard Rest = (Guard{1} << (std::numeric_limits<Guard>::digits - 2)) - 1;
        const Guard rest = guard & Rest;
        return rest != 0 && rest <= Rest - static_cast<Guard>(error);
#endif
    }
};

}  // namespace vqz::kernels
