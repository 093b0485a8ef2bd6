// How the quotient of two long mantissas is computed with vectors of any width.
//
// It is schoolbook division with limbs as digits, rearranged in two ways.
//
// First, both numbers are multiplied by an inverse of the divisor's first word, which makes the
// divisor 1 - d for a small fraction d: then a digit of the quotient is what is left of the
// dividend at its place, without an estimate, and what is taken off becomes something to add. Let
// dividend and divisor be fractions, 1/2 <= divisor < 1, and let the inverse be m = 2^63 / (t + 1),
// rounded down, where t is the divisor's first word. Then
//
//     1 - d = divisor * m / 2^31,    quotient = dividend * m / 2^31 / (1 - d).
//
// (Both are cut into limbs with three zero bits before them, which divides them by 2^3: then their
// limbs times m weigh 2^-28 as much as limbs, and need no shift.)
//
// Rounding m down takes off 2^-31 of it at most, and t + 1 in place of the divisor as much again:
// 0 < d < 2^-30.
//
// Second, instead of changing all that is left of the dividend for each digit, each column of it is
// completed when its turn comes, by all products of digits and limbs of d that fall in it,
//
//     left(k) = dividend(k) + sum over i < k of digit(i) * d(k - i),
//
// which are column sums as in a multiplication. Blocks of columns get the sums of the digits before
// the block at once; within a block each digit's products are added as soon as it is known. Nothing
// is ever negative: a digit is never too great. It may be too small, since the next digit, which
// may be greater than a limb, makes up for it.
//
// Digit k is column k and what the next two columns carry into it; of these two their low 28 bits
// remain. Let all digits be below b * 2^28. In units of column k, what is left then is
//
//  - less than 1 of the next column and less than 2^-28 of the one behind it,
//  - of the later columns, each below 2^63, together less than 2^-20,
//  - of the digit itself, for the columns behind it, less than b * 2^28 * d < b / 4.
//
// This is what the next digit finds, in units of 2^28: b = 1 + b / 4 + 2^-20 + 2^-28, b < 1.34. A
// column sums up at most LimbCount(W, 3) <= 74 products below b * 2^56, since limb 0 of d is 0, one
// product of a limb of the dividend and m, below 2^60, and a carry, together less than 2^63.
//
// So less than 2 units are left behind the last digit, too.
#pragma once

#include <algorithm>
#include <iterator>
#include <utility>

#include BIGNUMBER_PROCESSOR_PAIR
#include BIGNUMBER_PROCESSOR_WORD_DIVISION
#include "number/kernels/column_sums.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_traits.hpp"

namespace vqz::kernels {

/// The quotient of mantissas of W words.
template <VectorLanes Lanes, int W>
class LimbDivision {
public:
    /// See SizedVectorKernels::divide.
    static Word Divide(const Word* dividend, const Word* divisor, int divisorCount,
                       Word* quotientEnd) {
        // For the greatest first word t, t + 1 would not fit; 2^63 / t, rounded down, is the same.
        const Word top = divisor[W - 1];
        Word rest = 0;
        const Word inverse = DivideWords(TopBit, 0, top + (~top != 0 ? 1 : 0), rest);
        const LimbBuffer<W, 2, Lead> limbs(dividend + W, W);
        const Factor factor(divisor + W, divisorCount, inverse);
        const BlockFactors blockFactors(factor);
        DigitChain chain;
        Limb digits[1 + Groups * GroupLimbs];
        constexpr int FullBlocks = Digits / Block * Block;
        for (int start = 0; start < FullBlocks; start += Block) {
            ComputeBlock<Block>(start, limbs.data(), inverse, factor, blockFactors, chain, digits);
        }
        ComputeBlock<Digits - FullBlocks>(FullBlocks, limbs.data(), inverse, factor, blockFactors,
                                          chain, digits);
        std::fill(digits + Digits, std::end(digits), 0);
        return Low(digits[0] + JoinColumns<false>(digits + 1, Groups, quotientEnd));
    }

private:
    /// Digit 0 is the integer part, the others are limbs of the fraction.
    static constexpr int Digits = 1 + LimbCount(W);
    static constexpr int Groups = GroupCount(Digits - 1);
    /// The digits whose columns are summed up together.
    static constexpr int Block = 8;
    static_assert(Digits % Block != 0 && Block <= ColumnStep);

    using Vector = Pair::Vector;

    /// The zero bits before the limbs of dividend and divisor.
    static constexpr int Lead = WordBits - 1 - LimbBits;
    static_assert(Lead == 3 && WordBits <= Pair::FactorBits, "as the bounds above assume");

    /// The limbs of d = 1 - divisor * m / 2^31: limb i weighs 2^(-28 (i + 1)), and limb 0 is 0.
    /// There is one more than the divisor has. The last one may be 2^28.
    class Factor {
    public:
        Factor(const Word* divisorEnd, int divisorCount, Word inverse)
            : limbs_(divisorEnd, divisorCount) {
            const Vector mask = Pair::LowOnly(LimbMask);
            const Vector multiplier = Pair::LowOnly(inverse);
            Vector sum = {};
            Limb* limbs = limbs_.data();
            for (int i = limbs_.count(); i > 0; --i) {
                sum = Pair::Add(Pair::ShiftRight<LimbBits>(sum),
                                Pair::Multiply(Pair::LoadLow(limbs + i - 1), multiplier));
                // The complement: all bits of a limb that the sum does not have.
                Pair::StoreLow(limbs + i, Pair::Missing(sum, mask));
            }
            // For 0 < d < 2^-30.
            limbs[0] = 0;
            ++limbs[limbs_.count()];
        }

        const Limb* data() const { return limbs_.data(); }
        int count() const { return limbs_.count() + 1; }

    private:
        /// With room for the last limb before the padding.
        LimbBuffer<W, LimbPadding + 2, Lead> limbs_;
    };

    /// Limbs of d from the second on, each in the low lane of a register.
    struct BlockFactors {
        explicit BlockFactors(const Factor& factor) {
            for (int i = 0; i < Block; i += 2) {
                lanes[i] = Pair::Load(factor.data() + i + 1);
                lanes[i + 1] = Pair::High(lanes[i]);
            }
        }

        Vector lanes[Block];
    };

    /// What goes from digit to digit: the current column and the next one, in the low lanes of
    /// registers.
    struct DigitChain {
        Vector current = {};
        Vector next = {};

        /// The digit of the current column. `columns` are the `Count` columns that begin two behind
        /// it, to which its products are added.
        template <int Count>
        [[gnu::always_inline]] Vector Next(const BlockFactors& factors, Vector* columns) {
            const Vector mask = Pair::LowOnly(LimbMask);
            next = Pair::Add(next, Pair::ShiftRight<LimbBits>(columns[0]));
            const Vector digit = Pair::Add(current, Pair::ShiftRight<LimbBits>(next));
            current = Pair::And(next, mask);
            next = Pair::Add(Pair::And(columns[0], mask), Pair::Multiply(digit, factors.lanes[0]));
#pragma GCC unroll 8
            for (int i = 1; i < Count; ++i) {
                columns[i] = Pair::Add(columns[i], Pair::Multiply(digit, factors.lanes[i]));
            }
            return digit;
        }
    };

    /// Computes digits `start` to `start + Count - 1`.
    template <int Count>
    static void ComputeBlock(int start, const Limb* dividend, Word inverse, const Factor& factor,
                             const BlockFactors& factors, DigitChain& chain, Limb* digits) {
        // The columns from start + 2 on; the chain has those before.
        alignas(16) DoubleWord sums[ColumnStep];
        if (start == 0) {
            std::fill_n(sums, Block, 0);
        } else {
            ColumnSums<Lanes>(digits, start, factor.data(), factor.count(), start + 1, Count, sums);
        }
        const Vector inverses = Pair::Both(inverse);
        Vector columns[Block];
#pragma GCC unroll 8
        for (int i = 0; i < Count; i += 2) {
            const Vector limbs = Pair::LoadAligned(dividend + start + i);
            columns[i] = Pair::Add(Pair::LoadAligned(sums + i), Pair::Multiply(limbs, inverses));
            columns[i + 1] = Pair::High(columns[i]);
        }
        DigitChain state = chain;
        [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
            (Pair::StoreLow(digits + start + I,
                            state.template Next<Count - I>(factors, columns + I)),
             ...);
        }
        (std::make_integer_sequence<int, Count>{});
        chain = state;
    }
};

}  // namespace vqz::kernels
