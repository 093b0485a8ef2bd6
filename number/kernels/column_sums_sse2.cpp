#include "number/kernels/column_sums_steps.hpp"
#include "number/kernels/lanes_sse2.hpp"

namespace vqz::kernels {

void ColumnSumsSse2(const Limb* left, int leftCount, const Limb* right, int rightCount, int first,
                    int last, DoubleWord* sums) {
    ColumnSumsInSteps<Sse2Lanes>(left, leftCount, right, rightCount, first, last, sums);
}

}  // namespace vqz::kernels
