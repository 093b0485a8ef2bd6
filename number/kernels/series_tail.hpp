// The small terms of a power series, added in fixed point.
//
// A series S = t0 + t1 + t2 + ... is summed by rounding: each term is a number of W words itself,
// and each partial sum is rounded to W words. Once a term is far below the sum, the sum keeps its
// exponent, so that adding a term means adding an integer to the sum's mantissa: the term divided
// by the unit of the mantissa's last bit and rounded. For this the term need not be known to W
// words, only precisely enough to make the nearest integer certain.
//
// Here terms are fixed-point numbers, counted in that unit: limbs of 28 bits, of which the lowest
// three lie below the unit. Each term is the one before times a factor below 1/2, the series'
// multiplier m times a small fraction a/d; of the product only the limbs that the term keeps are
// computed. Terms get shorter, and so does the work.
//
// How far such a term may be off, in units:
//
// - ttmath rounds too. It gets from one term to the next with at most three products, each with a
//   relative error of 2^-32W, and makes a term of these with at most four such errors: two from
//   products, and two from one quotient, whose remainder it drops. There are fewer than MaxTerms <
//   2^11 terms, so that each is off by less than (3 * 2^11 + 4) * 2^-32W < 2^13 * 2^-32W of its
//   size. The tail's terms are below 2^(32W - 41) units: an error below 2^-28. The tail's first
//   term comes from ttmath's sum and brings the same error with it: 2^-27 together.
// - Factors are cut off where a term's lowest limb ends, and so are the first term and products.
//   With n < 2^7 limbs and factor limbs below 2.86 * 2^28 the highest column that is neglected is
//   less than n * 2.87 * 2^56 < 2^65, and it counts 2^-28 of the lowest limb, which counts 2^-84:
//   less than 2^-47. All that is cut off below it is less than 2^-70. Factors are below 1/2, so
//   that the sum of all such errors stays below 2^-45.
// - The lowest limb is left out when a term is rounded: less than 2^-55.
//
// Together less than 2^-26, the TieMargin: a term that is nearer to the middle between two integers
// ends the attempt, and the rest of the series is summed term by term as ttmath does.
#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// How a term follows from the one before: times the series' multiplier, times numerator /
/// denominator, which is at most 1.
struct TermRatio {
    Word numerator;
    Word denominator;
};

/// Terms of a higher index are not computed here. It bounds errors, and numerators and denominators
/// of ratios, which must be below 2^24.
inline constexpr Word MaxTerms = (1U << 11) - 8;

/// A ratio made ready for division: numerator and denominator are shifted so that the denominator
/// has 24 bits, and the reciprocal is floor((2^55 - 1) / denominator).
struct PreparedRatio {
    static constexpr int DenominatorBits = 24;

    Word numerator;
    Word denominator;
    Word reciprocal;

    explicit PreparedRatio(TermRatio ratio) {
        const int shift = DenominatorBits - static_cast<int>(std::bit_width(ratio.denominator));
        numerator = ratio.numerator << shift;
        denominator = ratio.denominator << shift;
        constexpr DoubleWord dividend = (DoubleWord{1} << (31 + DenominatorBits)) - 1;
        reciprocal = static_cast<Word>(dividend / denominator);
    }
};

/// The sum of a series before its tail, and how it goes on.
struct TailStart {
    /// Mantissas of the sum, of the term that was added last, and of the multiplier.
    const Word* sum;
    const Word* term;
    const Word* multiplier;
    /// By how much the term's exponent is below the sum's.
    int termShift;
    /// The multiplier is its mantissa, with the point before the top bit, divided by
    /// 2^multiplierShift.
    int multiplierShift;
    /// Whether the next term is subtracted from the sum's magnitude, and whether that alternates.
    bool subtract;
    bool alternate;
    /// Whether the sum ends with four terms that change nothing together, not with a single one.
    /// Such a group ends at an index that is a multiple of 4.
    bool wholeGroups;
    /// The index of the next term; with whole groups it is the first of one.
    Word next;
    /// How the term with this index follows from the one before.
    PreparedRatio (*ratio)(Word index);
};

}  // namespace vqz::kernels
