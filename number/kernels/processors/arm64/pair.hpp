// Two lanes of 64 bits, with NEON.
#pragma once

#include <cstdint>
#include <cstring>

#include <arm_neon.h>

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// A vector of two lanes.
struct Pair {
    using Vector = uint64x2_t;
    static constexpr int Count = 2;
    /// The bits of a lane that are multiplied.
    static constexpr int FactorBits = 32;

    static Vector Load(const void* lanes) {
        Vector vector;
        std::memcpy(&vector, lanes, sizeof(vector));
        return vector;
    }
    static void Store(void* lanes, Vector vector) { std::memcpy(lanes, &vector, sizeof(vector)); }
    /// The same for lanes at a multiple of 16 bytes, which makes no difference here.
    static Vector LoadAligned(const void* lanes) { return Load(lanes); }
    static void StoreAligned(void* lanes, Vector vector) { Store(lanes, vector); }
    /// The low lane alone; the other one is 0.
    static Vector LoadLow(const void* lane) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, lane, sizeof(bits));
        return vcombine_u64(vcreate_u64(bits), vcreate_u64(0));
    }
    static void StoreLow(void* lane, Vector vector) {
        const std::uint64_t bits = vgetq_lane_u64(vector, 0);
        std::memcpy(lane, &bits, sizeof(bits));
    }
    /// The low 32 bits of the low lane.
    static void StoreLowest(void* bytes, Vector vector) {
        const std::uint32_t bits = vgetq_lane_u32(vreinterpretq_u32_u64(vector), 0);
        std::memcpy(bytes, &bits, sizeof(bits));
    }

    /// A lane's low 32 bits in all lanes.
    static Vector Broadcast(const std::uint64_t* lane) { return Both(static_cast<Word>(*lane)); }
    /// A word in both lanes, or in the low one.
    static Vector Both(Word word) { return vdupq_n_u64(word); }
    static Vector LowOnly(Word word) { return vcombine_u64(vcreate_u64(word), vcreate_u64(0)); }

    /// Products of the low 32 bits of lanes.
    static Vector Multiply(Vector left, Vector right) {
        return vmull_u32(vmovn_u64(left), vmovn_u64(right));
    }
    /// Sums and differences, which wrap.
    static Vector Add(Vector left, Vector right) { return vaddq_u64(left, right); }
    static Vector Subtract(Vector left, Vector right) { return vsubq_u64(left, right); }
    static Vector And(Vector left, Vector right) { return vandq_u64(left, right); }
    /// The bits of `mask` that `vector` does not have.
    static Vector Missing(Vector vector, Vector mask) { return vbicq_u64(mask, vector); }
    template <int Bits>
    static Vector ShiftLeft(Vector vector) {
        return vshlq_n_u64(vector, Bits);
    }
    template <int Bits>
    static Vector ShiftRight(Vector vector) {
        // The instruction has no room for a shift by 0.
        if constexpr (Bits == 0) {
            return vector;
        } else {
            return vshrq_n_u64(vector, Bits);
        }
    }
    static Vector ShiftLeftBy(Vector vector, int bits) {
        return vshlq_u64(vector, vdupq_n_s64(bits));
    }

    /// Each lane's successor; the last lane's is the first one of `next`.
    static Vector Follow(Vector vector, Vector next) { return vextq_u64(vector, next, 1); }
    /// The high lane in both.
    static Vector High(Vector vector) { return vdupq_laneq_u64(vector, 1); }
    /// The low lanes of two vectors.
    static Vector JoinLow(Vector low, Vector high) { return vzip1q_u64(low, high); }

    /// Hides from the compiler where a run of lanes begins. It would keep the vectors that this run
    /// has in common with the last one.
    static void Forget(const std::uint64_t*& run) { asm("" : "+r"(run)); }
};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
