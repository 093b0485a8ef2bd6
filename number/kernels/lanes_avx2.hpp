// Vectors of four lanes, for source files that are compiled for AVX2.
#pragma once

#include <immintrin.h>

#include "number/kernels/limbs.hpp"

namespace vqz::kernels {

/// Four lanes of 64 bits; its members are those of Sse2Lanes.
struct Avx2Lanes {
    using Vector = __m256i;
    static constexpr int Count = 4;

    static Vector Load(const void* lanes) {
        return _mm256_loadu_si256(static_cast<const Vector*>(lanes));
    }
    static void Store(void* lanes, Vector vector) {
        _mm256_storeu_si256(static_cast<Vector*>(lanes), vector);
    }
    static Vector Broadcast(const Limb* limb) {
        return _mm256_broadcastq_epi64(_mm_cvtsi32_si128(static_cast<int>(*limb)));
    }
    static Vector Multiply(Vector left, Vector right) { return _mm256_mul_epu32(left, right); }
    static Vector Product(Vector factor, const Limb* run) { return Multiply(factor, Load(run)); }
    static Vector Add(Vector left, Vector right) { return _mm256_add_epi64(left, right); }
    static Vector Subtract(Vector left, Vector right) { return _mm256_sub_epi64(left, right); }
    template <int Bits>
    static Vector ShiftLeft(Vector vector) {
        return _mm256_slli_epi64(vector, Bits);
    }
    template <int Bits>
    static Vector ShiftRight(Vector vector) {
        return _mm256_srli_epi64(vector, Bits);
    }
    static Vector Follow(Vector vector, Vector next) {
        return _mm256_permute4x64_epi64(_mm256_blend_epi32(vector, next, 0x03),
                                        _MM_SHUFFLE(0, 3, 2, 1));
    }
};

}  // namespace vqz::kernels
