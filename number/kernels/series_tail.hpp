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

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

#include <emmintrin.h>

#include "number/kernels/specialisations.hpp"

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
        : size_(LimbsOf(Bits - start.termShift + GuardLimbs * LimbBits)),
          firstFactor_(static_cast<std::size_t>(start.multiplierShift / LimbBits) + 1),
          subtract_(start.subtract),
          alternate_(start.alternate) {
        for (std::size_t i = 0; i < size_; ++i) {
            term_[i] =
                LimbAt(start.term, LimbBits * static_cast<int>(i - GuardLimbs) + start.termShift);
        }
        for (std::size_t j = firstFactor_; j < size_; ++j) {
            multiplier_.limbs[j] = _mm_set1_epi64x(LimbAt(
                start.multiplier, Bits + start.multiplierShift - LimbBits * static_cast<int>(j)));
        }
    }

    /// Computes terms from index `first` on until adding them changes nothing: a single term, or
    /// with `wholeGroups` a group of four together. ratio(i) tells how term i follows from the one
    /// before. Answers the index of the last term, or 0 if a term cannot be rounded with certainty.
    template <typename Ratio>
    std::uint32_t Run(std::uint32_t first, bool wholeGroups, Ratio ratio) {
        for (; first + GroupSize <= MaxTerms; first += GroupSize) {
            std::array<TermRatio, GroupSize> ratios;
            for (std::uint32_t i = 0; i < GroupSize; ++i) {
                ratios[i] = ratio(first + i);
            }
            MakeFactors(ratios);
            std::int64_t change = 0;
            for (std::uint32_t i = 0; i < GroupSize; ++i) {
                Multiply(factors_[i]);
                const auto added = Accumulate();
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
    void AddTo(std::span<std::uint32_t, W> sum) const {
        std::int64_t limbCarry = 0;
        std::uint64_t bits = 0;
        int bitCount = 0;
        std::size_t next = 0;
        std::uint64_t carry = 0;
        for (std::uint32_t& word : sum) {
            while (bitCount < 32) {
                limbCarry += next < total_.size() ? total_[next] : 0;
                bits |= (static_cast<std::uint64_t>(limbCarry) & LimbMask) << bitCount;
                limbCarry >>= LimbBits;
                bitCount += LimbBits;
                ++next;
            }
            carry += std::uint64_t{word} + static_cast<std::uint32_t>(bits);
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
            bits >>= 32;
            bitCount -= 32;
        }
    }

private:
    static constexpr int Bits = 32 * W;
    static constexpr int LimbBits = 28;
    static constexpr std::uint64_t LimbMask = (1U << LimbBits) - 1;
    static constexpr int GuardLimbs = 3;
    /// Products are computed eight columns at a time; terms are followed by so many zero limbs.
    static constexpr std::size_t Block = 8;

    static constexpr std::size_t LimbsOf(int bits) {
        return static_cast<std::size_t>((bits + LimbBits - 1) / LimbBits);
    }

    static constexpr std::size_t MaxLimbs = LimbsOf(Bits + GuardLimbs * LimbBits);
    // A column of a product is a sum of so many products of a factor's limb, below 2.85 * 2^28, and
    // a term's, below 2^28 + 2^8. It must fit into 64 bits.
    static_assert(MaxLimbs * 2.86 < 256);

    static constexpr std::int64_t NearTie = INT64_MAX;
    static constexpr std::int64_t Large = std::int64_t{1} << 40;

    using Lanes = __m128i;

    /// Limb j counts 2^(-28 j). Each stands in both lanes.
    struct Factor {
        Lanes limbs[MaxLimbs];
    };

    /// Limb i counts 2^(28 (i - GuardLimbs)) units.
    alignas(16) std::array<std::uint64_t, MaxLimbs + 2 * Block> term_{};
    /// The sum of the rounded terms: limb i counts 2^(28 i) units and has a sign of its own.
    alignas(16) std::array<std::int64_t, MaxLimbs + 2 * Block> total_{};
    Factor multiplier_;
    std::array<Factor, GroupSize> factors_;
    /// Limbs of the term; those above are 0.
    std::size_t size_;
    /// Limbs of the multiplier before this one are 0.
    std::size_t firstFactor_;
    bool subtract_;
    bool alternate_;

    /// The 28 bits of a mantissa from the given one on, which may lie outside.
    static std::uint32_t LimbAt(std::span<const std::uint32_t, W> mantissa, int position) {
        const int index = position >> 5;
        const auto wordAt = [&mantissa](int i) -> std::uint64_t {
            return i >= 0 && i < static_cast<int>(W) ? mantissa[static_cast<std::size_t>(i)] : 0;
        };
        const std::uint64_t two = wordAt(index) | wordAt(index + 1) << 32;
        return static_cast<std::uint32_t>((two >> (position & 31)) & LimbMask);
    }

    /// Multiplies the multiplier by each ratio, limb by limb from the top, as in division by hand:
    /// what remains after a limb counts 2^28 in the next. Two divisions go side by side in the two
    /// lanes.
    ///
    /// With numerator and denominator d shifted so that 2^23 <= d < 2^24, and r = floor((2^55 - 1)
    /// / d), the quotient of n by d is taken as ((n >> 22) * r) >> 33. It is not too large, and too
    /// small by less than 1/2 for the bits of n that are left out (2^22 / d), 0.36 for those of r
    /// (a quotient below 2.85 * 2^28 times 2^-31), and 1 for rounding down. What remains is
    /// below 1.86 d, and as the numerator is not above d, the next n is below 2.86 * 2^28 d < 2^54,
    /// the quotient below 2.86 * 2^28.
    void MakeFactors(const std::array<TermRatio, GroupSize>& ratios) {
        MakeTwoFactors(ratios[0], ratios[1], factors_[0], factors_[1]);
        MakeTwoFactors(ratios[2], ratios[3], factors_[2], factors_[3]);
    }

    void MakeTwoFactors(TermRatio low, TermRatio high, Factor& lowFactor, Factor& highFactor) {
        constexpr int denominatorBits = 24;
        const int lowShift = denominatorBits - std::bit_width(low.denominator);
        const int highShift = denominatorBits - std::bit_width(high.denominator);
        low = {low.numerator << lowShift, low.denominator << lowShift};
        high = {high.numerator << highShift, high.denominator << highShift};
        const auto reciprocal = [](std::uint32_t denominator) {
            return static_cast<std::int64_t>(((std::uint64_t{1} << (31 + denominatorBits)) - 1) /
                                             denominator);
        };
        const Lanes numerators = _mm_set_epi64x(high.numerator, low.numerator);
        const Lanes denominators = _mm_set_epi64x(high.denominator, low.denominator);
        const Lanes reciprocals =
            _mm_set_epi64x(reciprocal(high.denominator), reciprocal(low.denominator));
        Lanes rest = _mm_setzero_si128();
        for (std::size_t j = firstFactor_; j < size_; ++j) {
            const Lanes dividend = _mm_add_epi64(_mm_slli_epi64(rest, LimbBits),
                                                 _mm_mul_epu32(multiplier_.limbs[j], numerators));
            const Lanes quotient = _mm_srli_epi64(
                _mm_mul_epu32(_mm_srli_epi64(dividend, denominatorBits - 2), reciprocals), 33);
            rest = _mm_sub_epi64(dividend, _mm_mul_epu32(quotient, denominators));
            lowFactor.limbs[j] = _mm_unpacklo_epi64(quotient, quotient);
            highFactor.limbs[j] = _mm_unpackhi_epi64(quotient, quotient);
        }
    }

    static Lanes Load(const std::uint64_t* limbs) {
        return _mm_loadu_si128(reinterpret_cast<const Lanes*>(limbs));
    }

    static void Store(std::uint64_t* limbs, Lanes lanes) {
        _mm_storeu_si128(reinterpret_cast<Lanes*>(limbs), lanes);
    }

    /// Multiplies the term by a factor: column c is the sum of factor[j] * term[c + j]. Later
    /// columns need no earlier limb of the term, so that the product takes its place.
    void Multiply(const Factor& factor) {
        for (std::size_t column = 0; column < size_; column += Block) {
            Lanes sums[Block / 2] = {};
            for (std::size_t j = firstFactor_; column + j < size_; ++j) {
                const std::uint64_t* limbs = &term_[column + j];
                for (std::size_t lane = 0; lane < Block / 2; ++lane) {
                    sums[lane] = _mm_add_epi64(
                        sums[lane], _mm_mul_epu32(factor.limbs[j], Load(limbs + 2 * lane)));
                }
            }
            for (std::size_t lane = 0; lane < Block / 2; ++lane) {
                Store(&term_[column + 2 * lane], sums[lane]);
            }
        }
        Carry();
        while (size_ > 0 && term_[size_ - 1] == 0) {
            --size_;
        }
    }

    /// Hands on what exceeds 28 bits of a limb, twice: the first time up to 36 bits, the second
    /// time up to 8. Limbs are below 2^28 + 2^8 then, which is good enough.
    void Carry() {
        const Lanes mask = _mm_set1_epi64x(static_cast<std::int64_t>(LimbMask));
        const auto handOn = [mask](Lanes limbs, Lanes& above) {
            const Lanes carries = _mm_srli_epi64(limbs, LimbBits);
            const Lanes shifted = _mm_castpd_si128(
                _mm_shuffle_pd(_mm_castsi128_pd(above), _mm_castsi128_pd(carries), 1));
            above = carries;
            return _mm_add_epi64(_mm_and_si128(limbs, mask), shifted);
        };
        Lanes first = _mm_setzero_si128();
        Lanes second = _mm_setzero_si128();
        for (std::size_t i = 0; i < size_; i += 2) {
            Store(&term_[i], handOn(handOn(Load(&term_[i]), first), second));
        }
    }

    /// Rounds the term to an integer and adds it to, or subtracts it from, the total. Answers what
    /// was added, with its sign; or Large for more than a limb, whatever its sign; or NearTie.
    std::int64_t Accumulate() {
        constexpr int fractionBits = 2 * LimbBits;
        constexpr std::uint64_t half = std::uint64_t{1} << (fractionBits - 1);
        const std::uint64_t guard = (term_[2] << LimbBits) + term_[1] + (term_[0] >> LimbBits);
        const std::uint64_t fraction = guard & (2 * half - 1);
        if (fraction + TieMargin - half < 2 * TieMargin) {
            return NearTie;
        }
        const auto unit = static_cast<std::int64_t>((guard >> fractionBits) + (fraction >= half));
        const std::int64_t sign = subtract_ ? -1 : 1;
        subtract_ ^= alternate_;
        const std::int64_t added = static_cast<std::int64_t>(term_[GuardLimbs]) + unit;
        total_[0] += sign * unit;
        if (sign > 0) {
            AddTerm([](Lanes total, Lanes term) { return _mm_add_epi64(total, term); });
        } else {
            AddTerm([](Lanes total, Lanes term) { return _mm_sub_epi64(total, term); });
        }
        return size_ > GuardLimbs + 1 ? Large : sign * added;
    }

    template <typename Operation>
    void AddTerm(Operation operation) {
        for (std::size_t i = 0; i + GuardLimbs < size_; i += 2) {
            auto* total = reinterpret_cast<Lanes*>(&total_[i]);
            _mm_store_si128(total, operation(_mm_load_si128(total), Load(&term_[i + GuardLimbs])));
        }
    }

#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
    static constexpr std::uint64_t TieMargin = std::uint64_t{1} << 50;
#else
    static constexpr std::uint64_t TieMargin = std::uint64_t{1} << (2 * LimbBits - 26);
#endif
};

}  // namespace vqz::kernels
