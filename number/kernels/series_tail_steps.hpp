// How the tail of a series is computed with vectors of any width; series_tail.hpp explains what
// is computed.
#pragma once

#include "number/kernels/column_sums.hpp"
#include "number/kernels/series_tail.hpp"
#include "number/kernels/vector_traits.hpp"

namespace vqz::kernels {

/// The tail of one series, whose numbers have W words.
template <int W, VectorLanes Lanes>
class SeriesTail {
public:
    explicit SeriesTail(const TailStart& start)
        : start_(start),
          count_(LimbsOf(Bits - start.termShift) + GuardLimbs),
          firstFactor_(start.multiplierShift / LimbBits),
          subtract_(start.subtract) {
        for (int i = 0; i < count_; ++i) {
            term()[i] =
                LimbAt(start.term, start.termShift + LimbBits * (count_ - GuardLimbs - 1 - i));
        }
        for (int j = firstFactor_; j < count_; ++j) {
            multiplier_[j] =
                LimbAt(start.multiplier, Bits + start.multiplierShift - LimbBits * (j + 1));
        }
    }

    /// Computes the terms and adds them up. Returns the index of the last one, or 0 if one cannot
    /// be rounded with certainty.
    Word Run() {
        std::int64_t change = 0;
        for (Word first = start_.next; first + FactorCount <= MaxTerms; first += FactorCount) {
            MakeFactors(first);
            for (Word i = 0; i < FactorCount; ++i) {
                Multiply(factors_ + i);
                const std::int64_t added = Accumulate();
                if (added == NearTie) {
                    return 0;
                }
                change += added;
                if (!start_.wholeGroups || (first + i) % 4 == 0) {
                    if (change == 0) {
                        return first + i;
                    }
                    change = 0;
                }
            }
        }
        // The logarithm of a mantissa with leading zero bits may take more terms, some thousands.
        return 0;
    }

    /// Adds all terms to the sum's mantissa.
    void AddTo(Word* sum) const {
        std::int64_t limb = 0;
        DoubleWord bits = 0;
        int bitCount = 0;
        DoubleWord carry = 0;
        int next = count_ - GuardLimbs;
        for (Word* word = sum; word != sum + W; ++word) {
            while (bitCount < WordBits) {
                --next;
                limb += next >= 0 ? total_[next] : 0;
                bits |= (static_cast<DoubleWord>(limb) & LimbMask) << bitCount;
                limb >>= LimbBits;
                bitCount += LimbBits;
            }
            carry += DoubleWord{*word} + Low(bits);
            *word = Low(carry);
            carry >>= WordBits;
            bits >>= WordBits;
            bitCount -= WordBits;
        }
    }

private:
    using Vector = typename Lanes::Vector;

    static constexpr int Bits = WordBits * W;
    static constexpr int GuardLimbs = 3;
    /// Four vectors of factors are made at a time, so that their divisions do not wait for each
    /// other.
    static constexpr int FactorVectors = 4;
    static constexpr int FactorCount = FactorVectors * Lanes::Count;

    static constexpr int LimbsOf(int bits) { return (bits + LimbBits - 1) / LimbBits; }

    static constexpr int MaxLimbs = LimbsOf(Bits) + GuardLimbs;
    // A column of a product is a sum of so many products of a factor's limb, below 2.86 * 2^28, and
    // a term's, below 2^28 + 2^8. It must fit into 64 bits.
    static_assert(MaxLimbs * 2.87 < 256);

    static constexpr std::int64_t NearTie = INT64_MAX;
    static constexpr std::int64_t Large = std::int64_t{1} << 40;

#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
    // Of 32 terms one or two are too near then.
    static constexpr DoubleWord TieMargin = DoubleWord{1} << (2 * LimbBits - 6);
#else
    static constexpr DoubleWord TieMargin = DoubleWord{1} << (2 * LimbBits - 26);
#endif

    const TailStart& start_;
    /// Limbs of terms, the highest first; limb i counts 2^(28 (count_ - GuardLimbs - 1 - i)) units.
    int count_;
    /// Limbs of the multiplier before this one are 0.
    int firstFactor_;
    bool subtract_;
    /// Limbs of the term before this one are 0.
    int begin_ = 0;
    Limb term_[LimbPadding + MaxLimbs + LimbPadding] = {};
    /// The sum of the rounded terms, in the same limbs, each with a sign of its own. The last
    /// GuardLimbs and what follows hold nothing.
    std::int64_t total_[MaxLimbs + Lanes::Count] = {};
    /// Limb j counts 2^(-28 (j + 1)).
    Limb multiplier_[MaxLimbs];
    /// What leads from each term to the next, in the same limbs, FactorCount limbs side by side.
    Limb factors_[MaxLimbs * FactorCount];

    Limb* term() {
        return term_ + LimbPadding;
    }

    /// The 28 bits of a mantissa from the given one on, which may lie outside.
    static Limb LimbAt(const Word* mantissa, int position) {
        // Rounded down, also below 0.
        constexpr int IndexShift = std::bit_width(static_cast<Word>(WordBits)) - 1;
        const int index = position >> IndexShift;
        const auto wordAt = [mantissa](int i) -> DoubleWord {
            return i >= 0 && i < W ? mantissa[i] : 0;
        };
        const DoubleWord two = wordAt(index + 1) << WordBits | wordAt(index);
        return (two >> (position & (WordBits - 1))) & LimbMask;
    }

    /// Multiplies the multiplier by ratios, limb by limb from the top, as in division by hand: what
    /// remains after a limb counts 2^28 in the next. Each ratio has a lane of its own.
    ///
    /// With a denominator d of 24 bits and its reciprocal r, the quotient of n by d is taken as
    /// ((n >> 22) * r) >> 33. It is not too large, and too small by less than 1/2 for the bits of n
    /// that are left out (2^22 / d), 0.36 for those of r (a quotient below 2.86 * 2^28 times
    /// 2^-31), and 1 for rounding down. What remains is below 1.86 d, and as the numerator is not
    /// above d, the next n is below 2.86 * 2^28 d < 2^54, the quotient below 2.86 * 2^28.
    void MakeFactors(Word first) {
        Vector numerators[FactorVectors];
        Vector denominators[FactorVectors];
        Vector reciprocals[FactorVectors];
        for (int v = 0; v < FactorVectors; ++v) {
            Limb numerator[Lanes::Count];
            Limb denominator[Lanes::Count];
            Limb reciprocal[Lanes::Count];
            for (int lane = 0; lane < Lanes::Count; ++lane, ++first) {
                const PreparedRatio ratio = start_.ratio(first);
                numerator[lane] = ratio.numerator;
                denominator[lane] = ratio.denominator;
                reciprocal[lane] = ratio.reciprocal;
            }
            numerators[v] = Lanes::Load(numerator);
            denominators[v] = Lanes::Load(denominator);
            reciprocals[v] = Lanes::Load(reciprocal);
        }
        Vector rests[FactorVectors] = {};
        Limb* factor = factors_ + firstFactor_ * FactorCount;
        for (int j = firstFactor_; j < count_ - begin_; ++j) {
            const Vector limb = Lanes::Broadcast(multiplier_ + j);
#pragma GCC unroll 4
            for (int v = 0; v < FactorVectors; ++v, factor += Lanes::Count) {
                const Vector dividend = Lanes::Add(Lanes::template ShiftLeft<LimbBits>(rests[v]),
                                                   Lanes::Multiply(limb, numerators[v]));
                const Vector quotient = Lanes::template ShiftRight<33>(Lanes::Multiply(
                    Lanes::template ShiftRight<PreparedRatio::DenominatorBits - 2>(dividend),
                    reciprocals[v]));
                rests[v] = Lanes::Subtract(dividend, Lanes::Multiply(quotient, denominators[v]));
                Lanes::Store(factor, quotient);
            }
        }
    }

    /// Multiplies the term by a factor, without the columns below the term's last limb. The right
    /// factor is followed by the term's other limbs instead of a padding: they add to neglected
    /// columns only, which are more exact for it.
    void Multiply(const Limb* factor) {
        // Columns are handed to limbs by vectors; the carries of the highest one need two limbs
        // more.
        constexpr int above = Lanes::Count;
        alignas(32) DoubleWord sums[above + MaxLimbs + ColumnStep];
        const int top = begin_ + firstFactor_ + 1;
        const int columns = count_ - top;
        int end = count_;
        if (columns > 0) {
            ColumnSums<Lanes, FactorCount>(factor + firstFactor_ * FactorCount, columns,
                                           term() + begin_, columns, 0, columns, sums + above);
            Lanes::Store(sums, Vector{});
            Carry(sums + above, columns);
            end = top - 2;
        }
        for (; begin_ < end; ++begin_) {
            term()[begin_] = 0;
        }
        while (begin_ < count_ && term()[begin_] == 0) {
            ++begin_;
        }
    }

    /// Turns columns into as many last limbs of the term, and their carries into two more limbs.
    /// What exceeds 28 bits of a column is handed on to the column above, twice: the first time up
    /// to 36 bits, the second time up to 8. Limbs are below 2^28 + 2^8 then, which is good enough.
    void Carry(const DoubleWord* sums, int columns) {
        const Limb maskLimb = LimbMask;
        const Vector mask = Lanes::Broadcast(&maskLimb);
        Vector first = {};
        Vector second = {};
        Limb* limbs = term() + count_ - columns;
        for (int i = (columns - 1) & -Lanes::Count; i >= -Lanes::Count; i -= Lanes::Count) {
            Lanes::Store(limbs + i,
                         HandOn(HandOn(Lanes::Load(sums + i), mask, first), mask, second));
        }
        // The last vector may have had columns more than wanted.
        for (int i = 0; i < Lanes::Count - 1; ++i) {
            limbs[columns + i] = 0;
        }
    }

    static Vector HandOn(Vector limbs, Vector mask, Vector& below) {
        const Vector carries = Lanes::template ShiftRight<LimbBits>(limbs);
        const Vector result = Lanes::Add(Lanes::And(limbs, mask), Lanes::Follow(carries, below));
        below = carries;
        return result;
    }

    /// Rounds the term to an integer and adds it to, or subtracts it from, the total. Returns what
    /// was added, with its sign; or Large for more than a limb, whatever its sign; or NearTie.
    std::int64_t Accumulate() {
        constexpr int fractionBits = 2 * LimbBits;
        constexpr DoubleWord half = DoubleWord{1} << (fractionBits - 1);
        const Limb* end = term() + count_;
        const DoubleWord guard = (end[-3] << LimbBits) + end[-2] + (end[-1] >> LimbBits);
        const DoubleWord fraction = guard & (2 * half - 1);
        if (fraction + TieMargin - half < 2 * TieMargin) {
            return NearTie;
        }
        const auto unit =
            static_cast<std::int64_t>((guard >> fractionBits) + (fraction >= half ? 1 : 0));
        const std::int64_t sign = subtract_ ? -1 : 1;
        for (int i = begin_; i < count_ - GuardLimbs; i += Lanes::Count) {
            const Vector total = Lanes::Load(total_ + i);
            const Vector limbs = Lanes::Load(term() + i);
            Lanes::Store(total_ + i,
                         subtract_ ? Lanes::Subtract(total, limbs) : Lanes::Add(total, limbs));
        }
        subtract_ ^= start_.alternate;
        const int last = count_ - GuardLimbs - 1;
        total_[last] += sign * unit;
        return begin_ < last ? Large : sign * (static_cast<std::int64_t>(term()[last]) + unit);
    }
};

}  // namespace vqz::kernels
