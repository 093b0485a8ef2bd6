// Shifts of rows of words.
#pragma once

#include BIGNUMBER_PROCESSOR_WORD_SHIFT
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// result = words >> bits, for less than W words of bits. `result` may be `words`.
template <int W>
void ShiftRight(const Word* words, Word bits, Word* result) {
    const Word rest = bits % WordBits;
    const Word* source = words + bits / WordBits;
    const int count = W - static_cast<int>(bits / WordBits);
    const WordShift shift(rest);
    int i = 0;
    for (; i + WordShift::Count <= count; i += WordShift::Count) {
        shift.Step(source + i, i + WordShift::Count == count, result + i);
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
