// Four words shifted at a time, with NEON.
#pragma once

#include <cstring>

#include <arm_neon.h>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(WordBits == 32, "a vector shifts lanes of 32 bits");

/// A right shift of rows of words by `bits`, less than a word's.
class WordShift {
public:
    /// The words that one step shifts.
    static constexpr int Count = 4;

    // The instruction shifts left, and right by what is below 0.
    explicit WordShift(Word bits)
        : right_(vdupq_n_s32(-static_cast<int>(bits))),
          left_(vdupq_n_s32(WordBits - static_cast<int>(bits))) {}

    /// Shifts the words from `source` on. The word behind them moves in, or zeros for the last
    /// ones.
    void Step(const Word* source, bool isLast, Word* result) const {
        const uint32x4_t low = Load(source);
        const uint32x4_t high = isLast ? vextq_u32(low, vdupq_n_u32(0), 1) : Load(source + 1);
        // A shift by all bits of a word gives 0 here, unlike the language's own.
        const uint32x4_t shifted = vorrq_u32(vshlq_u32(low, right_), vshlq_u32(high, left_));
        std::memcpy(result, &shifted, sizeof(shifted));
    }

private:
    int32x4_t right_;
    int32x4_t left_;

    static uint32x4_t Load(const Word* words) {
        uint32x4_t vector;
        std::memcpy(&vector, words, sizeof(vector));
        return vector;
    }
};

}  // namespace vqz::kernels
