#include <immintrin.h>

#include "number/kernels/column_sums_steps.hpp"

namespace vqz::kernels {
namespace {

/// Four lanes.
struct Avx2Lanes {
    using Vector = __m256i;
    static constexpr int Count = 4;

    static Vector Broadcast(const Limb* limb) {
        return _mm256_broadcastd_epi32(_mm_cvtsi32_si128(static_cast<int>(*limb)));
    }
    static Vector Product(Vector factor, const Limb* run) {
        return _mm256_mul_epu32(factor, _mm256_loadu_si256(reinterpret_cast<const Vector*>(run)));
    }
    static void Store(DoubleWord* sums, Vector totals) {
        _mm256_storeu_si256(reinterpret_cast<Vector*>(sums), totals);
    }
};

}  // namespace

void ColumnSumsAvx2(const Limb* left, int leftCount, const Limb* right, int rightCount, int first,
                    int last, DoubleWord* sums) {
    ColumnSumsInSteps<Avx2Lanes>(left, leftCount, right, rightCount, first, last, sums);
}

}  // namespace vqz::kernels
