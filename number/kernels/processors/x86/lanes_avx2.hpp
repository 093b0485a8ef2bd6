// The vectors of AVX2, for source files that are compiled for it.
#pragma once

#include <cstdint>

#include <immintrin.h>

#include "number/kernels/instruction_set.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// Four lanes of 64 bits; its members do what those of Pair do.
struct Lanes {
    using Vector = __m256i;
    static constexpr int Count = 4;

    static Vector Load(const void* lanes) {
        return _mm256_loadu_si256(static_cast<const Vector*>(lanes));
    }
    static void Store(void* lanes, Vector vector) {
        _mm256_storeu_si256(static_cast<Vector*>(lanes), vector);
    }
    static Vector Broadcast(const std::uint64_t* lane) {
        return _mm256_broadcastq_epi64(_mm_cvtsi32_si128(static_cast<int>(*lane)));
    }
    static Vector Multiply(Vector left, Vector right) { return _mm256_mul_epu32(left, right); }
    static Vector Add(Vector left, Vector right) { return _mm256_add_epi64(left, right); }
    static Vector Subtract(Vector left, Vector right) { return _mm256_sub_epi64(left, right); }
    static Vector And(Vector left, Vector right) { return _mm256_and_si256(left, right); }
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
    static void Forget(const std::uint64_t*& run) { asm("" : "+r"(run)); }
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
