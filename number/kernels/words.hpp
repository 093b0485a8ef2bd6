// Words, and what portable C++ can do with them.
#pragma once

#include <cstdint>
#include <limits>

namespace vqz::kernels {

/// A number's unit of storage, the same as ttmath's; mantissas are words, the lowest first.
using Word = std::uint32_t;
using DoubleWord = std::uint64_t;

inline constexpr int WordBits = std::numeric_limits<Word>::digits;
static_assert(std::numeric_limits<DoubleWord>::digits == 2 * WordBits);
inline constexpr Word TopBit = Word{1} << (WordBits - 1);

inline constexpr Word Low(DoubleWord value) {
    return static_cast<Word>(value);
}
inline constexpr Word High(DoubleWord value) {
    return static_cast<Word>(value >> WordBits);
}
inline constexpr DoubleWord Join(Word high, Word low) {
    return (DoubleWord{high} << WordBits) | low;
}

/// How many of `count` words are left without the zero words at the low end.
inline int WithoutLowZeros(const Word* words, int count) {
    int zeros = 0;
    while (zeros < count && words[zeros] == 0) {
        ++zeros;
    }
    return count - zeros;
}

}  // namespace vqz::kernels
