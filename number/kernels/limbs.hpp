// Limbs: the form in which long mantissas are multiplied.
//
// A word has 32 bits, and the product of two words fills a 64-bit lane of a vector register to its
// last bit: adding products would need a carry after each. So a mantissa is cut into limbs of 28
// bits, each alone in a lane of 64 bits. Products of two limbs have 56 bits, and 2^8 of them can be
// added in a lane before it overflows. The schoolbook's column sums then need no carry at all;
// carries are made once, when the sums become words again.
//
// Limbs begin at the mantissa's top bit, the highest limb first: a mantissa is a fraction between 0
// and 1, and limb i weighs 2^(-28 (i + 1)). Words stay in ttmath's order, the lowest first.
//
//    words   |    W-1    |    W-2    |  ...  |    W-7    |       7 words of 32 bits
//    limbs   |    0    |    1    |    2    |   ...  | 7  |    = 8 limbs of 28 bits = a group
//
// The pattern of shifts repeats with each group.
#pragma once

#include <algorithm>
#include <cstdint>

#include <emmintrin.h>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// A limb as the multiplication wants it: in the low 28 bits of a lane.
using Limb = std::uint64_t;

inline constexpr int LimbBits = 28;
inline constexpr Word LimbMask = (Word{1} << LimbBits) - 1;
inline constexpr int GroupWords = 7;
inline constexpr int GroupLimbs = 8;

/// How many limbs hold `words` words.
inline constexpr int LimbCount(int words) {
    return (words * WordBits + LimbBits - 1) / LimbBits;
}
/// How many groups hold `limbs` limbs.
inline constexpr int GroupCount(int limbs) {
    return (limbs + GroupLimbs - 1) / GroupLimbs;
}

/// The zero limbs that column sums may read before and behind a factor: one vector step of columns.
inline constexpr int LimbPadding = 16;

/// Up to `Words` words as limbs, with the padding that column sums want of a factor.
template <int Words, int Padding = LimbPadding>
class LimbBuffer {
public:
    /// Cuts up the highest `count` of the words that end before `wordsEnd`.
    LimbBuffer(const Word* wordsEnd, int count) : count_(LimbCount(count)) {
        Pad(lanes_);
        Limb* limbs = lanes_ + Padding;
        for (; count >= GroupWords; count -= GroupWords) {
            CutGroup(wordsEnd, limbs);
            wordsEnd -= GroupWords;
            limbs += GroupLimbs;
        }
        Word rest[GroupWords] = {};
        for (int i = 1; i <= count; ++i) {
            rest[GroupWords - i] = wordsEnd[-i];
        }
        CutGroup(rest + GroupWords, limbs);
        Pad(limbs + GroupLimbs);
    }

    const Limb* data() const { return lanes_ + Padding; }
    int count() const { return count_; }
    Limb operator[](int i) const { return data()[i]; }

private:
    static constexpr int Capacity = (Words / GroupWords + 1) * GroupLimbs;

    alignas(16) Limb lanes_[Padding + Capacity + Padding];
    int count_;

    /// Clears a padding. (As a call it would take as long as cutting up a mantissa of 8 words.)
    static void Pad(Limb* limbs) {
        static_assert(Padding % 2 == 0);
#pragma GCC unroll 8
        for (int i = 0; i < Padding; i += 2) {
            _mm_store_si128(reinterpret_cast<__m128i*>(limbs + i), _mm_setzero_si128());
        }
    }

    static void CutGroup(const Word* end, Limb* limbs) {
        limbs[0] = end[-1] >> (WordBits - LimbBits);
#pragma GCC unroll 8
        for (int i = 1; i < GroupLimbs - 1; ++i) {
            // 4 * i bits are left of the word in which the limb begins.
            limbs[i] = Low(Join(end[-i], end[-i - 1]) >> (4 * (i + 1))) & LimbMask;
        }
        limbs[GroupLimbs - 1] = end[-GroupWords] & LimbMask;
    }
};

/// Sums of the weights of limbs, the highest first, as words that end before `wordsEnd`; makes the
/// carries. Answers the carry out of the highest.
inline DoubleWord JoinColumns(const DoubleWord* sums, int groups, Word* wordsEnd) {
    DoubleWord carry = 0;
    sums += groups * GroupLimbs;
    wordsEnd -= groups * GroupWords;
    for (; groups > 0; --groups) {
        sums -= GroupLimbs;
        wordsEnd += GroupWords;
        Word limbs[GroupLimbs];
#pragma GCC unroll 8
        for (int i = GroupLimbs - 1; i >= 0; --i) {
            carry += sums[i];
            limbs[i] = Low(carry) & LimbMask;
            carry >>= LimbBits;
        }
#pragma GCC unroll 8
        for (int i = 0; i < GroupWords; ++i) {
            wordsEnd[-i - 1] =
                (limbs[i] << (4 * (i + 1))) | (limbs[i + 1] >> (LimbBits - 4 * (i + 1)));
        }
    }
    return carry;
}

}  // namespace vqz::kernels
