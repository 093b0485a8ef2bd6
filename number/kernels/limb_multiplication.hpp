// How the product of two long mantissas is computed with vectors of any width.
#pragma once

#include <algorithm>

#include "number/kernels/column_sums.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_traits.hpp"

namespace vqz::kernels {

/// The highest columns of a product, summed up as words that end before `productEnd`.
template <VectorLanes Lanes, int W>
void MultiplyLimbs(const LimbBuffer<W>& left, const LimbBuffer<W>& right, int columns,
                   Word* productEnd) {
    // Column k is limb k + 1 of the product; limb 0 is the carry out of column 0. A 0 is behind the
    // groups.
    const int groups = GroupCount(columns + 1);
    DoubleWord sums[GroupCount(2 * LimbCount(W)) * GroupLimbs + ColumnStep];
    sums[0] = 0;
    ColumnSums<Lanes>(left.data(), left.count(), right.data(), right.count(), 0, columns, sums + 1);
    std::fill(sums + columns + 1, sums + groups * GroupLimbs + 1, 0);
    JoinColumns<true>(sums, groups, productEnd);
}

}  // namespace vqz::kernels
