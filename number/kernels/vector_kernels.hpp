// The kernels that work on vectors: small terms of series and, where factors are words, products
// and quotients of long mantissas, too. Each instruction set has its own copy of them; which one
// runs is chosen when the library is loaded.
#pragma once

#include <algorithm>
#include <array>

#include "number/kernels/factors.hpp"
#include "number/kernels/series_tail.hpp"
#include "number/kernels/sizes.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The kernels for mantissas of one size of W words.
struct SizedVectorKernels {
    /// Computes the highest `columns` columns of the product of two factors, the highest
    /// `leftCount` and `rightCount` of the W words before `leftEnd` and `rightEnd`. The words of
    /// their sum end before `productEnd`; there are as many as whole groups of limbs fill. It is
    /// null for a size whose products are all made of factors.
    void (*multiply)(const Word* leftEnd, int leftCount, const Word* rightEnd, int rightCount,
                     int columns, Word* productEnd);

    /// Divides two normalised mantissas, seen as fractions; the divisor's lowest words but
    /// `divisorCount` are 0. Returns the integer part of the quotient. The words of its fraction
    /// end before `quotientEnd`; there are as many as whole groups of limbs fill. The quotient is
    /// exact but for the bits below limb LimbCount(W) of the fraction: it is less than two units of
    /// that limb too small, and never too great.
    Word (*divide)(const Word* dividend, const Word* divisor, int divisorCount, Word* quotientEnd);

    /// Adds terms of a series from index `next` on to the sum's mantissa until adding them changes
    /// nothing. Returns the index of the last term; or 0, and leaves the sum as it is, if a term
    /// cannot be rounded with certainty or MaxTerms are not enough. The next term is below 2^-40 of
    /// the sum, each further one at most half of the one before, and the sum's top bit does not
    /// change on the way. series_tail.hpp explains how.
    Word (*addTail)(Word* sum, const TailStart& start);
};

/// All sizes' kernels with one instruction set.
struct VectorKernels {
#define BIGNUMBER_SIZE(W) W,
    static constexpr std::array Sizes{BIGNUMBER_MANTISSA_SIZES(BIGNUMBER_SIZE)};
#undef BIGNUMBER_SIZE

    std::array<SizedVectorKernels, Sizes.size()> ofSizes;

    /// The kernels for W words.
    template <int W>
    const SizedVectorKernels& Of() const {
        constexpr auto index = std::find(Sizes.begin(), Sizes.end(), W) - Sizes.begin();
        return ofSizes[index];
    }
};

/// Those of the best instruction set that processor and system have. (Until static initialisation
/// reaches it, it points to those of the basic set, which every processor has.)
extern const VectorKernels* vectorKernels;

}  // namespace vqz::kernels
