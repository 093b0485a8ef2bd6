// Shifts of rows of words.
#pragma once

#include <emmintrin.h>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// result = words >> bits, for less than W words of bits. `result` may be `words`.
template <int W>
void ShiftRight(const Word* words, Word bits, Word* result) {
    constexpr int VectorWords = 4;
    const Word rest = bits % WordBits;
    const Word* source = words + bits / WordBits;
    const int count = W - static_cast<int>(bits / WordBits);
    const __m128i right = _mm_cvtsi32_si128(static_cast<int>(rest));
    const __m128i left = _mm_cvtsi32_si128(static_cast<int>(WordBits - rest));
    int i = 0;
    for (; i + VectorWords <= count; i += VectorWords) {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + i));
        const __m128i high = i + VectorWords < count
                                 ? _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + i + 1))
                                 : _mm_srli_si128(low, sizeof(Word));
        // A shift of a whole word gives 0, unlike the language's own.
        _mm_storeu_si128(reinterpret_cast<__m128i*>(result + i),
                         _mm_or_si128(_mm_srl_epi32(low, right), _mm_sll_epi32(high, left)));
    }
    for (; i < count; ++i) {
        const Word above = i + 1 < count ? source[i + 1] : 0;
        result[i] = (source[i] >> rest) | (above << 1 << (WordBits - 1 - rest));
    }
    for (; i < W; ++i) {
        result[i] = 0;
    }
}

}  // namespace vqz::kernels
