#include <emmintrin.h>

#include "number/kernels/column_sums_steps.hpp"

namespace vqz::kernels {
namespace {

/// Two lanes.
struct Sse2Lanes {
    using Vector = __m128i;
    static constexpr int Count = 2;

    static Vector Broadcast(const Limb* limb) {
        return _mm_shuffle_epi32(_mm_cvtsi32_si128(static_cast<int>(*limb)),
                                 _MM_SHUFFLE(1, 0, 1, 0));
    }
    static Vector Product(Vector factor, const Limb* run) {
        return _mm_mul_epu32(factor, _mm_loadu_si128(reinterpret_cast<const Vector*>(run)));
    }
    static void Store(DoubleWord* sums, Vector totals) {
        _mm_storeu_si128(reinterpret_cast<Vector*>(sums), totals);
    }
};

}  // namespace

void ColumnSumsSse2(const Limb* left, int leftCount, const Limb* right, int rightCount, int first,
                    int last, DoubleWord* sums) {
    ColumnSumsInSteps<Sse2Lanes>(left, leftCount, right, rightCount, first, last, sums);
}

}  // namespace vqz::kernels
