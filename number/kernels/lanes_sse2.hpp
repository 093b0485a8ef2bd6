// Vectors of two lanes, which every processor of the platform has.
#pragma once

#include <emmintrin.h>

#include "number/kernels/limbs.hpp"

namespace vqz::kernels {

/// Two lanes of 64 bits.
struct Sse2Lanes {
    using Vector = __m128i;
    static constexpr int Count = 2;

    static Vector Load(const void* lanes) {
        return _mm_loadu_si128(static_cast<const Vector*>(lanes));
    }
    static void Store(void* lanes, Vector vector) {
        _mm_storeu_si128(static_cast<Vector*>(lanes), vector);
    }
    /// A limb in all lanes; it is read as 32 bits.
    static Vector Broadcast(const Limb* limb) {
        return _mm_shuffle_epi32(_mm_cvtsi32_si128(static_cast<int>(*limb)),
                                 _MM_SHUFFLE(1, 0, 1, 0));
    }
    /// Products of the low 32 bits of lanes.
    static Vector Multiply(Vector left, Vector right) { return _mm_mul_epu32(left, right); }
    static Vector Product(Vector factor, const Limb* run) { return Multiply(factor, Load(run)); }
    /// Sums and differences, which wrap: the vector types' own operators are signed.
    static Vector Add(Vector left, Vector right) { return _mm_add_epi64(left, right); }
    static Vector Subtract(Vector left, Vector right) { return _mm_sub_epi64(left, right); }
    template <int Bits>
    static Vector ShiftLeft(Vector vector) {
        return _mm_slli_epi64(vector, Bits);
    }
    template <int Bits>
    static Vector ShiftRight(Vector vector) {
        return _mm_srli_epi64(vector, Bits);
    }
    /// Each lane's successor; the last lane's is the first one of `next`.
    static Vector Follow(Vector vector, Vector next) {
        return _mm_castpd_si128(
            _mm_shuffle_pd(_mm_castsi128_pd(vector), _mm_castsi128_pd(next), 1));
    }
};

}  // namespace vqz::kernels
