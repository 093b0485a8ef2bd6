// Two lanes of 64 bits, with SSE2.
#pragma once

#include <cstdint>

#include <emmintrin.h>

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// A vector of two lanes.
struct Pair {
    using Vector = __m128i;
    static constexpr int Count = 2;
    /// The bits of a lane that are multiplied.
    static constexpr int FactorBits = 32;

    static Vector Load(const void* lanes) {
        return _mm_loadu_si128(static_cast<const Vector*>(lanes));
    }
    static void Store(void* lanes, Vector vector) {
        _mm_storeu_si128(static_cast<Vector*>(lanes), vector);
    }
    /// The same for lanes at a multiple of 16 bytes.
    static Vector LoadAligned(const void* lanes) {
        return _mm_load_si128(static_cast<const Vector*>(lanes));
    }
    static void StoreAligned(void* lanes, Vector vector) {
        _mm_store_si128(static_cast<Vector*>(lanes), vector);
    }
    /// The low lane alone; the other one is 0.
    static Vector LoadLow(const void* lane) {
        return _mm_loadl_epi64(static_cast<const Vector*>(lane));
    }
    static void StoreLow(void* lane, Vector vector) {
        _mm_storel_epi64(static_cast<Vector*>(lane), vector);
    }
    /// The low 32 bits of the low lane.
    static void StoreLowest(void* bytes, Vector vector) { _mm_storeu_si32(bytes, vector); }

    /// A lane's low 32 bits in all lanes.
    static Vector Broadcast(const std::uint64_t* lane) {
        return _mm_shuffle_epi32(_mm_cvtsi32_si128(static_cast<int>(*lane)),
                                 _MM_SHUFFLE(1, 0, 1, 0));
    }
    /// A word in both lanes, or in the low one.
    static Vector Both(Word word) {
        return _mm_set_epi32(0, static_cast<int>(word), 0, static_cast<int>(word));
    }
    static Vector LowOnly(Word word) { return _mm_cvtsi32_si128(static_cast<int>(word)); }

    /// Products of the low 32 bits of lanes.
    static Vector Multiply(Vector left, Vector right) { return _mm_mul_epu32(left, right); }
    /// Sums and differences, which wrap: the vector types' own operators are signed.
    static Vector Add(Vector left, Vector right) { return _mm_add_epi64(left, right); }
    static Vector Subtract(Vector left, Vector right) { return _mm_sub_epi64(left, right); }
    static Vector And(Vector left, Vector right) { return _mm_and_si128(left, right); }
    /// The bits of `mask` that `vector` does not have.
    static Vector Missing(Vector vector, Vector mask) { return _mm_andnot_si128(vector, mask); }
    template <int Bits>
    static Vector ShiftLeft(Vector vector) {
        return _mm_slli_epi64(vector, Bits);
    }
    template <int Bits>
    static Vector ShiftRight(Vector vector) {
        return _mm_srli_epi64(vector, Bits);
    }
    static Vector ShiftLeftBy(Vector vector, int bits) {
        return _mm_sll_epi64(vector, _mm_cvtsi32_si128(bits));
    }

    /// Each lane's successor; the last lane's is the first one of `next`.
    static Vector Follow(Vector vector, Vector next) {
        return _mm_castpd_si128(
            _mm_shuffle_pd(_mm_castsi128_pd(vector), _mm_castsi128_pd(next), 1));
    }
    /// The high lane in both.
    static Vector High(Vector vector) { return _mm_unpackhi_epi64(vector, vector); }
    /// The low lanes of two vectors.
    static Vector JoinLow(Vector low, Vector high) { return _mm_unpacklo_epi64(low, high); }

    /// Hides from the compiler where a run of lanes begins. It would keep the vectors that this run
    /// shares with the last one, although there are not enough registers.
    static void Forget(const std::uint64_t*& run) { asm("" : "+r"(run)); }
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
