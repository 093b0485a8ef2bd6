// Four words shifted at a time, with SSE2.
#pragma once

#include <emmintrin.h>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(WordBits == 32, "a vector shifts lanes of 32 bits");

/// A right shift of rows of words by `bits`, less than a word's.
class WordShift {
public:
    /// The words that one step shifts.
    static constexpr int Count = 4;

    explicit WordShift(Word bits)
        : right_(_mm_cvtsi32_si128(static_cast<int>(bits))),
          left_(_mm_cvtsi32_si128(static_cast<int>(WordBits - bits))) {}

    /// Shifts the words from `source` on. The word behind them moves in, or zeros for the last
    /// ones.
    void Step(const Word* source, bool isLast, Word* result) const {
        const __m128i low = Load(source);
        const __m128i high = isLast ? _mm_srli_si128(low, sizeof(Word)) : Load(source + 1);
        // A shift by all bits of a word gives 0 here, unlike the language's own.
        _mm_storeu_si128(reinterpret_cast<__m128i*>(result),
                         _mm_or_si128(_mm_srl_epi32(low, right_), _mm_sll_epi32(high, left_)));
    }

private:
    __m128i right_;
    __m128i left_;

    static __m128i Load(const Word* words) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(words));
    }
};

}  // namespace vqz::kernels
