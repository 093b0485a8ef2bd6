// The column sums of a product, the one place where long mantissas spend their time.
#pragma once

#include "number/kernels/limbs.hpp"

namespace vqz::kernels {

/// The columns that one step computes at most; sums are written for whole steps.
inline constexpr int ColumnStep = 16;
static_assert(ColumnStep <= LimbPadding);

/// sums[k - first] = sum of left[i] * right[k - i] over all i, for each column k from `first` to
/// before `last`; up to ColumnStep - 1 sums more are written. At most 2^8 products fall in a
/// column. `right` has LimbPadding zero limbs below and above its own.
using ColumnSumsFunction = void(const Limb* left, int leftCount, const Limb* right, int rightCount,
                                int first, int last, DoubleWord* sums);

/// With what every processor of the platform has.
ColumnSumsFunction ColumnSumsSse2;
/// For processors with AVX2, of systems that know its registers.
ColumnSumsFunction ColumnSumsAvx2;

/// The faster one that this machine can run. (It can be called before it is chosen.)
extern ColumnSumsFunction* columnSums;
/// Whether that is the one with AVX2. Kernels of both kinds are not mixed, which would be slow.
extern bool avx2Chosen;

}  // namespace vqz::kernels
