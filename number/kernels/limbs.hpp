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

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

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

    /// Two neighbouring words hold each limb but the first and the last one.
    static void CutGroup(const Word* end, Limb* limbs) {
        StorePair(limbs, _mm_cvtsi32_si128(static_cast<int>(end[-1] >> (WordBits - LimbBits))),
                  LimbAcross<1>(end));
        StorePair(limbs + 2, LimbAcross<2>(end), LimbAcross<3>(end));
        StorePair(limbs + 4, LimbAcross<4>(end), LimbAcross<5>(end));
        StorePair(limbs + 6, LimbAcross<6>(end),
                  _mm_cvtsi32_si128(static_cast<int>(end[-GroupWords])));
    }

    /// Limb `I` of a group, with bits above it: 4 * I bits are left of the word in which it begins.
    template <int I>
    static __m128i LimbAcross(const Word* end) {
        const __m128i words = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(end - I - 1));
        return _mm_srli_epi64(words, 4 * (I + 1));
    }

    static void StorePair(Limb* limbs, __m128i first, __m128i second) {
        const __m128i mask = _mm_set_epi32(0, LimbMask, 0, LimbMask);
        _mm_store_si128(reinterpret_cast<__m128i*>(limbs),
                        _mm_and_si128(_mm_unpacklo_epi64(first, second), mask));
    }
};

/// Sums of the weights of limbs, the highest first, as words that end before `wordsEnd`; makes the
/// carries. Answers the carry out of the highest.
inline DoubleWord JoinColumns(const DoubleWord* sums, int groups, Word* wordsEnd) {
    // In a vector register, where 64 bits are one lane.
    const __m128i mask = _mm_set_epi32(0, 0, 0, LimbMask);
    __m128i carry = _mm_setzero_si128();
    const auto next = [&](const DoubleWord* sum) __attribute__((always_inline)) {
        carry = _mm_add_epi64(carry, _mm_loadl_epi64(reinterpret_cast<const __m128i*>(sum)));
        const __m128i limb = _mm_and_si128(carry, mask);
        carry = _mm_srli_epi64(carry, LimbBits);
        return limb;
    };
    sums += groups * GroupLimbs;
    wordsEnd -= groups * GroupWords;
    for (; groups > 0; --groups) {
        sums -= GroupLimbs;
        wordsEnd += GroupWords;
        __m128i below = next(sums + GroupLimbs - 1);
#pragma GCC unroll 8
        for (int i = GroupWords - 1; i >= 0; --i) {
            const __m128i limb = next(sums + i);
            const __m128i word = _mm_or_si128(_mm_slli_epi64(limb, 4 * (i + 1)),
                                              _mm_srli_epi64(below, LimbBits - 4 * (i + 1)));
            wordsEnd[-i - 1] = static_cast<Word>(_mm_cvtsi128_si32(word));
            below = limb;
        }
    }
    DoubleWord answer = 0;
    _mm_storel_epi64(reinterpret_cast<__m128i*>(&answer), carry);
    return answer;
}

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
