// The small terms of a power series, added in fixed point.
//
// A series S = t0 + t1 + t2 + ... is summed by rounding: each term is a number of W words itself,
// and each partial sum is rounded to W words. Once a term is far below the sum, the sum keeps its
// exponent, so that adding a term means adding an integer to the sum's mantissa: the term divided
// by the unit of the mantissa's last bit and rounded. For this the term need not be known to W
// words, only so well that the nearest integer is beyond doubt.
//
// Here terms are fixed-point numbers, counted in that unit: limbs of 28 bits, of which the lowest
// three lie below the unit. Each term is the one before times a factor below 1/2, the series'
// multiplier m times a small fraction a/d; of the product only the limbs that the term keeps are
// computed. Terms get shorter, and so does the work.
//
// How far such a term may be off, in units:
//
// - The plain sum rounds at most four numbers on the way from one term to the next, each by 2^-32W
// of
//   its size. A term before MaxTerms differs from the exact one by at most 4 * 2^11 * 2^-32W of its
//   size; the tail begins with terms below 2^(32W - 40) units, which leaves 2^13 * 2^-40 = 2^-27.
//   The tail's first term is taken over from the plain sum with such an error, too: another 2^-27
//   at most, but for both to be reached there would have to be twice as many terms.
// - Factors are cut off where a term's lowest limb ends, and products below that. With n < 2^7
// limbs and
//   factor limbs below 2.85 * 2^28 each neglected column is less than n * 2.85 * 2^56 = 2^64.6, one
//   limb below the lowest, which counts 2^-84: less than 2^-47. Each further column counts 2^-28 of
//   that. As factors are below 1/2, the sum of all such errors stays below 2^-46.
//
// Together less than 2^-26, the TieMargin: a term that is nearer to the middle between two integers
// ends the attempt, and the series is summed on plainly.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>

#include <emmintrin.h>

#include "number/kernels/column_sums.hpp"
#include "number/kernels/limbs.hpp"

namespace vqz::kernels {

/// How a term follows from the one before: times the series' multiplier, times numerator /
/// denominator, which is at most 1.
struct TermRatio {
    std::uint32_t numerator;
    std::uint32_t denominator;
};

/// The sum of a series after so many terms, as the tail needs it.
template <std::size_t W>
struct TailStart {
    using Mantissa = std::span<const std::uint32_t, W>;

    Mantissa sum;
    /// The term that was added last, and by how much its exponent is below the sum's.
    Mantissa term;
    int termShift;
    /// The multiplier is its mantissa, with the point before the top bit, divided by
    /// 2^multiplierShift.
    Mantissa multiplier;
    int multiplierShift;
    /// Whether the next term is subtracted from the sum's magnitude, and whether that alternates.
    bool subtract;
    bool alternate;
};

/// The tail of one series, whose numbers have W words.
template <std::size_t W>
class SeriesTail {
public:
    /// Terms of a higher index are not computed here; it bounds errors and denominators.
    static constexpr std::uint32_t MaxTerms = (1U << 11) - 4;
    /// Terms are computed in groups of so many.
    static constexpr std::uint32_t GroupSize = 4;

    explicit SeriesTail(const TailStart<W>& start)
        : count_(LimbsOf(Bits - start.termShift) + GuardLimbs),
          firstFactor_(start.multiplierShift / LimbBits),
          subtract_(start.subtract),
          alternate_(start.alternate) {
        for (int i = 0; i < count_; ++i) {
            term()[i] =
                LimbAt(start.term, start.termShift + LimbBits * (count_ - GuardLimbs - 1 - i));
        }
        for (int j = firstFactor_; j < count_; ++j) {
            multiplier_[j] =
                LimbAt(start.multiplier, Bits + start.multiplierShift - LimbBits * (j + 1));
        }
    }

    /// Computes terms from index `first` on until adding them changes nothing: a single term, or
    /// with `wholeGroups` a group of four together. ratio(i) tells how term i follows from the one
    /// before. Answers the index of the last term, or 0 if a term cannot be rounded with certainty.
    template <typename Ratio>
    std::uint32_t Run(std::uint32_t first, bool wholeGroups, Ratio ratio) {
        for (; first + GroupSize <= MaxTerms; first += GroupSize) {
            MakeFactors({ratio(first), ratio(first + 1), ratio(first + 2), ratio(first + 3)});
            std::int64_t change = 0;
            for (std::uint32_t i = 0; i < GroupSize; ++i) {
                Multiply(factors_[i].data());
                const std::int64_t added = Accumulate();
                if (added == NearTie) {
                    return 0;
                }
                if (added == 0 && !wholeGroups) {
                    return first + i;
                }
                change += added;
            }
            if (change == 0 && wholeGroups) {
                return first + GroupSize - 1;
            }
        }
        return 0;
    }

    /// Adds all terms to the sum's mantissa.
    void AddTo(std::span<Word, W> sum) const {
        std::int64_t limb = 0;
        DoubleWord bits = 0;
        int bitCount = 0;
        DoubleWord carry = 0;
        int next = count_ - GuardLimbs;
        for (Word& word : sum) {
            while (bitCount < WordBits) {
                --next;
                limb += next >= 0 ? total_[next] : 0;
                bits |= DoubleWord{static_cast<Word>(limb) & LimbMask} << bitCount;
                limb >>= LimbBits;
                bitCount += LimbBits;
            }
            carry += DoubleWord{word} + Low(bits);
            word = Low(carry);
            carry = High(carry);
            bits >>= WordBits;
            bitCount -= WordBits;
        }
    }

private:
    static constexpr int Bits = WordBits * W;
    static constexpr int GuardLimbs = 3;

    static constexpr int LimbsOf(int bits) { return (bits + LimbBits - 1) / LimbBits; }

    static constexpr int MaxLimbs = LimbsOf(Bits) + GuardLimbs;
    // A column of a product is a sum of so many products of a factor's limb, below 2.86 * 2^28, and
    // a term's, below 2^28 + 2^8. It must fit into 64 bits.
    static_assert(MaxLimbs * 2.87 < 256);

    static constexpr std::int64_t NearTie = INT64_MAX;
    static constexpr std::int64_t Large = std::int64_t{1} << 40;

    using Lanes = __m128i;
    using Factor = std::array<Limb, MaxLimbs>;

    /// Limbs of terms, the highest first; limb i counts 2^(28 (count_ - GuardLimbs - 1 - i)) units.
    int count_;
    /// Limbs of the term before this one are 0.
    int begin_ = 0;
    std::array<Limb, LimbPadding + MaxLimbs + LimbPadding> term_{};
    /// The sum of the rounded terms, in the same limbs, each with a sign of its own. The last
    /// GuardLimbs hold nothing.
    std::array<std::int64_t, MaxLimbs + 1> total_{};
    /// Limb j counts 2^(-28 (j + 1)).
    Factor multiplier_;
    /// What leads from each term of a group to the next, in the same limbs.
    std::array<Factor, GroupSize> factors_;
    /// Limbs of the multiplier before this one are 0.
    int firstFactor_;
    bool subtract_;
    bool alternate_;

    Limb* term() { return term_.data() + LimbPadding; }

    /// The 28 bits of a mantissa from the given one on, which may lie outside.
    static Limb LimbAt(std::span<const Word, W> mantissa, int position) {
        const int index = position >> 5;
        const auto wordAt = [&mantissa](int i) -> Word {
            return i >= 0 && i < static_cast<int>(W) ? mantissa[static_cast<std::size_t>(i)] : 0;
        };
        const DoubleWord two = Join(wordAt(index + 1), wordAt(index));
        return Low(two >> (position & 31)) & LimbMask;
    }

    /// Multiplies the multiplier by two ratios, limb by limb from the top, as in division by hand:
    /// what remains after a limb counts 2^28 in the next. The two divisions go side by side in two
    /// lanes.
    ///
    /// With numerator and denominator d shifted so that 2^23 <= d < 2^24, and r = floor((2^55 - 1)
    /// / d), the quotient of n by d is taken as ((n >> 22) * r) >> 33. It is not too large, and too
    /// small by less than 1/2 for the bits of n that are left out (2^22 / d), 0.36 for those of r
    /// (a quotient below 2.86 * 2^28 times 2^-31), and 1 for rounding down. What remains is
    /// below 1.86 d, and as the numerator is not above d, the next n is below 2.86 * 2^28 d < 2^54,
    /// the quotient below 2.86 * 2^28.
    void MakeFactors(const std::array<TermRatio, GroupSize>& ratios) {
        constexpr int denominatorBits = 24;
        constexpr int pairs = GroupSize / 2;
        Lanes numerators[pairs];
        Lanes denominators[pairs];
        Lanes reciprocals[pairs];
        for (int p = 0; p < pairs; ++p) {
            DoubleWord lanes[3][2];
            for (int lane = 0; lane < 2; ++lane) {
                const TermRatio ratio = ratios[static_cast<std::size_t>(2 * p + lane)];
                const int shift = denominatorBits - std::bit_width(ratio.denominator);
                const Word denominator = ratio.denominator << shift;
                lanes[0][lane] = ratio.numerator << shift;
                lanes[1][lane] = denominator;
                lanes[2][lane] = ((DoubleWord{1} << (31 + denominatorBits)) - 1) / denominator;
            }
            numerators[p] = Load(lanes[0]);
            denominators[p] = Load(lanes[1]);
            reciprocals[p] = Load(lanes[2]);
        }
        Lanes rests[pairs] = {};
        for (int j = firstFactor_; j < count_ - begin_; ++j) {
            const Lanes limb = _mm_set1_epi64x(static_cast<std::int64_t>(multiplier_[j]));
#pragma GCC unroll 2
            for (int p = 0; p < pairs; ++p) {
                const Lanes dividend = _mm_add_epi64(_mm_slli_epi64(rests[p], LimbBits),
                                                     _mm_mul_epu32(limb, numerators[p]));
                const Lanes quotient = _mm_srli_epi64(
                    _mm_mul_epu32(_mm_srli_epi64(dividend, denominatorBits - 2), reciprocals[p]),
                    33);
                rests[p] = _mm_sub_epi64(dividend, _mm_mul_epu32(quotient, denominators[p]));
                _mm_storel_epi64(reinterpret_cast<Lanes*>(&factors_[2 * p][j]), quotient);
                _mm_storel_epi64(reinterpret_cast<Lanes*>(&factors_[2 * p + 1][j]),
                                 _mm_unpackhi_epi64(quotient, quotient));
            }
        }
    }

    /// Multiplies the term by a factor, without the columns below the term's last limb.
    void Multiply(const Limb* factor) {
        // Columns are handed to limbs in pairs; the carries of the highest one need two limbs more.
        constexpr int above = 4;
        alignas(32) std::array<DoubleWord, above + MaxLimbs + ColumnStep> sums;
        std::fill_n(sums.begin(), above, 0);
        const int top = begin_ + firstFactor_ + 1;
        const int columns = count_ - top;
        int end = count_;
        if (columns > 0) {
            columnSums(factor + firstFactor_, columns, term() + begin_, columns, 0, columns,
                       sums.data() + above);
            Carry(sums.data() + above, columns);
            end = top - 2;
        }
        for (; begin_ < end; ++begin_) {
            term()[begin_] = 0;
        }
        while (begin_ < count_ && term()[begin_] == 0) {
            ++begin_;
        }
    }

    /// Makes the last limbs of the term of as many columns, and two more limbs of their carries.
    /// What exceeds 28 bits of a column is handed on, twice: the first time up to 36 bits, the
    /// second time up to 8. Limbs are below 2^28 + 2^8 then, which is good enough.
    void Carry(const DoubleWord* sums, int columns) {
        const Lanes mask = _mm_set1_epi64x(LimbMask);
        const auto handOn = [mask](Lanes limbs, Lanes& below) {
            const Lanes carries = _mm_srli_epi64(limbs, LimbBits);
            const Lanes shifted = _mm_castpd_si128(
                _mm_shuffle_pd(_mm_castsi128_pd(carries), _mm_castsi128_pd(below), 1));
            below = carries;
            return _mm_add_epi64(_mm_and_si128(limbs, mask), shifted);
        };
        Lanes first = _mm_setzero_si128();
        Lanes second = _mm_setzero_si128();
        Limb* limbs = term() + count_ - columns;
        // With an odd number of columns the last pair has one that is not wanted.
        for (int i = (columns - 1) & ~1; i >= -2; i -= 2) {
            Store(limbs + i, handOn(handOn(Load(sums + i), first), second));
        }
        limbs[columns] = 0;
    }

    static Lanes Load(const void* two) {
        return _mm_loadu_si128(static_cast<const Lanes*>(two));
    }

    static void Store(void* two, Lanes lanes) {
        _mm_storeu_si128(static_cast<Lanes*>(two), lanes);
    }

    /// Rounds the term to an integer and adds it to, or subtracts it from, the total. Answers what
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
        const auto unit = static_cast<std::int64_t>((guard >> fractionBits) + (fraction >= half));
        const std::int64_t sign = subtract_ ? -1 : 1;
        subtract_ ^= alternate_;
        const int last = count_ - GuardLimbs - 1;
        if (sign > 0) {
            AddTerm([](Lanes total, Lanes limbs) { return _mm_add_epi64(total, limbs); });
        } else {
            AddTerm([](Lanes total, Lanes limbs) { return _mm_sub_epi64(total, limbs); });
        }
        total_[last] += sign * unit;
        return begin_ < last ? Large : sign * (static_cast<std::int64_t>(term()[last]) + unit);
    }

    template <typename Operation>
    void AddTerm(Operation operation) {
        for (int i = begin_; i < count_ - GuardLimbs; i += 2) {
            Store(&total_[i], operation(Load(&total_[i]), Load(term() + i)));
        }
    }

#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
    // An attempt or two in each series.
    static constexpr DoubleWord TieMargin = DoubleWord{1} << 50;
#else
    static constexpr DoubleWord TieMargin = DoubleWord{1} << (2 * LimbBits - 26);
#endif
};

}  // namespace vqz::kernels
