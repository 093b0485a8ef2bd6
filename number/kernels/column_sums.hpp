// The column sums of a product with vectors of any width.
#pragma once

#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_traits.hpp"

namespace vqz::kernels {

/// The most columns that one step computes; sums are written for whole steps.
inline constexpr int ColumnStep = 16;
static_assert(ColumnStep <= LimbPadding);

/// One step: `Vectors` vectors of neighbouring columns from column k on. Each left limb is
/// multiplied by the run of right limbs that falls in these columns; where the run leaves the
/// factor it meets the padding.
template <VectorLanes Lanes, int Stride, int Vectors>
inline void ColumnStepSums(const Limb* left, int leftCount, const Limb* right, int rightCount,
                           int k, DoubleWord* sums) {
    typename Lanes::Vector totals[Vectors] = {};
    const int begin = k < rightCount ? 0 : k - rightCount + 1;
    const int beyond = k + Vectors * Lanes::Count;
    const int end = leftCount < beyond ? leftCount : beyond;
    const Limb* run = right + (k - begin);
    for (int i = begin; i < end; ++i, --run) {
        // The runs of two iterations overlap.
        Lanes::Forget(run);
        const auto factor = Lanes::Broadcast(left + i * Stride);
#pragma GCC unroll 4
        for (int v = 0; v < Vectors; ++v) {
            totals[v] =
                Lanes::Add(totals[v], Lanes::Multiply(factor, Lanes::Load(run + v * Lanes::Count)));
        }
    }
#pragma GCC unroll 4
    for (int v = 0; v < Vectors; ++v) {
        Lanes::Store(sums + v * Lanes::Count, totals[v]);
    }
}

/// sums[k - first] = sum of left[i * Stride] * right[k - i] over all i, for `count` columns k from
/// `first` on; up to ColumnStep - 1 sums more are written. At most 2^8 products fall in a column.
/// `right` has LimbPadding zero limbs below and above its own. Steps are of four vectors, which
/// share each broadcast limb, and at the end of two.
template <VectorLanes Lanes, int Stride = 1>
inline void ColumnSums(const Limb* left, int leftCount, const Limb* right, int rightCount,
                       int first, int count, DoubleWord* sums) {
    constexpr int Step = 4 * Lanes::Count;
    static_assert(Step <= ColumnStep);
    const int last = first + count;
    int k = first;
    for (; k + Step / 2 < last; k += Step) {
        ColumnStepSums<Lanes, Stride, 4>(left, leftCount, right, rightCount, k, sums + (k - first));
    }
    for (; k < last; k += Step / 2) {
        ColumnStepSums<Lanes, Stride, 2>(left, leftCount, right, rightCount, k, sums + (k - first));
    }
}

}  // namespace vqz::kernels
