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
// Cutting and joining take two limbs at once: they are 7 bytes, wherever the words begin.
#pragma once

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
inline constexpr int ByteBits = 8;
inline constexpr int PairBytes = 2 * LimbBits / ByteBits;
inline constexpr int GroupPairs = 4;
inline constexpr int GroupLimbs = 2 * GroupPairs;
inline constexpr int GroupWords = GroupLimbs * LimbBits / WordBits;

/// How many limbs hold `words` words with `lead` zero bits before them.
inline constexpr int LimbCount(int words, int lead = 0) {
    return (lead + words * WordBits + LimbBits - 1) / LimbBits;
}
/// How many groups hold `limbs` limbs.
inline constexpr int GroupCount(int limbs) {
    return (limbs + GroupLimbs - 1) / GroupLimbs;
}

/// The zero limbs that column sums may read before and behind a factor: one vector step of columns.
inline constexpr int LimbPadding = 16;

/// Up to `Words` words as limbs, with the padding that column sums want of a factor. They may begin
/// with `Lead` zero bits, which makes the fraction so much smaller.
template <int Words, int Padding = LimbPadding, int Lead = 0>
class LimbBuffer {
public:
    /// Cuts up the highest `count` of the words that end before `wordsEnd`, two at least.
    ///
    /// Two limbs are read with the byte above them, except for the highest two, which have none,
    /// and for the last two, which may reach below the words.
    LimbBuffer(const Word* wordsEnd, int count) : count_(LimbCount(count, Lead)) {
        Pad(lanes_);
        const auto* end = reinterpret_cast<const unsigned char*>(wordsEnd);
        const int bytes = count * static_cast<int>(sizeof(Word));
        const int whole = bytes / PairBytes;
        Limb* limbs = lanes_ + Padding;
        StorePair<Lead + ByteBits>(limbs, Load(end - PairBytes - 1));
#pragma GCC unroll 4
        for (int pair = 1; pair < whole; ++pair) {
            StorePair<Lead>(limbs + 2 * pair, Load(end - PairBytes * (pair + 1)));
        }
        const int below = (PairBytes * (whole + 1) - bytes) * ByteBits;
        limbs += 2 * whole;
        StorePair<Lead>(limbs, _mm_sll_epi64(Load(end - bytes), _mm_cvtsi32_si128(below)));
        Pad(limbs + 2);
    }

    Limb* data() {
        return lanes_ + Padding;
    }
    const Limb* data() const {
        return lanes_ + Padding;
    }
    int count() const {
        return count_;
    }

private:
    static constexpr int Capacity = 2 * (Words * int{sizeof(Word)} / PairBytes + 1);
    static_assert(Lead <= ByteBits);

    alignas(16) Limb lanes_[Padding + Capacity + Padding];
    int count_;

    /// Clears a padding. (As a call it would take as long as cutting up a mantissa of 8 words.)
    static void Pad(Limb* limbs) {
        static_assert(Padding % 2 == 0);
#pragma GCC unroll 16
        for (int i = 0; i < Padding; i += 2) {
            _mm_store_si128(reinterpret_cast<__m128i*>(limbs + i), _mm_setzero_si128());
        }
    }

    static __m128i Load(const unsigned char* bytes) {
        return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes));
    }

    /// Two limbs, the lower one of which begins `Shift` bits above the lowest of `bits`.
    template <int Shift>
    static void StorePair(Limb* limbs, __m128i bits) {
        const __m128i mask = _mm_set_epi32(0, LimbMask, 0, LimbMask);
        const __m128i pair =
            _mm_unpacklo_epi64(_mm_srli_epi64(bits, Shift + LimbBits), _mm_srli_epi64(bits, Shift));
        _mm_store_si128(reinterpret_cast<__m128i*>(limbs), _mm_and_si128(pair, mask));
    }
};

/// Joins columns, the highest first, as words that end before `wordsEnd`, and makes the carries.
/// Answers the carry out of the highest.
///
/// Columns are limbs of at most 2^35 + 2^28: two of them and a carry fit in a lane. Or they are
/// sums below 2^63; then the highest is 0, and so is the one behind the groups. Sums keep their
/// limbs and pass on the rest first, which makes them such columns.
///
/// Two limbs are written with what they carry above them, which the next two write over.
template <bool AreSums>
inline DoubleWord JoinColumns(const DoubleWord* columns, int groups, Word* wordsEnd) {
    const __m128i mask = _mm_set_epi32(0, LimbMask, 0, LimbMask);
    const auto load = [&](int i) __attribute__((always_inline)) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(columns + i));
    };
    __m128i carry = _mm_setzero_si128();
    const auto join = [&](int pair) __attribute__((always_inline)) {
        __m128i limbs = load(2 * pair);
        if constexpr (AreSums) {
            limbs = _mm_add_epi64(_mm_and_si128(limbs, mask),
                                  _mm_srli_epi64(load(2 * pair + 1), LimbBits));
        }
        const __m128i lower = _mm_add_epi64(carry, _mm_unpackhi_epi64(limbs, limbs));
        const __m128i bits = _mm_add_epi64(_mm_slli_epi64(limbs, LimbBits), lower);
        carry = _mm_srli_epi64(bits, 2 * LimbBits);
        return bits;
    };
    auto* bytes = reinterpret_cast<unsigned char*>(wordsEnd) - groups * GroupPairs * PairBytes;
    for (int pair = groups * GroupPairs - 1; pair > 0; --pair, bytes += PairBytes) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(bytes), join(pair));
    }
    const __m128i bits = join(0);
    _mm_storeu_si32(bytes, bits);
    _mm_storeu_si32(wordsEnd - 1, _mm_srli_epi64(bits, 2 * LimbBits - WordBits));
    DoubleWord answer = 0;
    _mm_storel_epi64(reinterpret_cast<__m128i*>(&answer), carry);
    return answer;
}

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
