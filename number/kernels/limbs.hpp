// Limbs: the form in which long mantissas are multiplied.
//
// A word has 32 bits, and the product of two words fills a 64-bit lane of a vector register to its
// last bit: adding products would need a carry after each. So a mantissa is cut into limbs of 28
// bits, the lowest first, each alone in a lane of 64 bits. Products of two limbs have 56 bits, and
// 2^8 of them can be added in a lane before it overflows. The schoolbook's column sums then need no
// carry at all; carries are made once, when the sums become words again.
//
//    words   |    0    |    1    |  ...  |    6    |       7 words of 32 bits
//    limbs   |   0   |   1   |   2   | ... |   7   |    = 8 limbs of 28 bits = a group
//
// The pattern of shifts repeats with each group.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

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

/// The zero limbs that column sums may read below and above a factor: one vector step of columns.
inline constexpr int LimbPadding = 16;

/// Up to `Words` words as limbs, with the padding that column sums want, and room for whole groups.
template <int Words>
class LimbBuffer {
public:
    /// Cuts up `count` words.
    LimbBuffer(const Word* words, int count) : count_(LimbCount(count)) {
        std::fill_n(lanes_.begin(), LimbPadding, 0);
        Limb* limbs = lanes_.data() + LimbPadding;
        for (; count >= GroupWords; count -= GroupWords) {
            CutGroup(words, limbs);
            words += GroupWords;
            limbs += GroupLimbs;
        }
        std::array<Word, GroupWords> rest{};
        std::copy_n(words, count, rest.begin());
        CutGroup(rest.data(), limbs);
        std::fill_n(limbs + GroupLimbs, LimbPadding, 0);
    }

    const Limb* data() const { return lanes_.data() + LimbPadding; }
    int count() const { return count_; }

private:
    static constexpr int Capacity = (Words / GroupWords + 1) * GroupLimbs;

    alignas(16) std::array<Limb, LimbPadding + Capacity + LimbPadding> lanes_;
    int count_;

    static void CutGroup(const Word* words, Limb* limbs) {
        limbs[0] = words[0] & LimbMask;
#pragma GCC unroll 8
        for (int i = 1; i < GroupLimbs - 1; ++i) {
            // Limb i begins in the word before word i, 4 * i bits below its upper end.
            limbs[i] = Low(Join(words[i], words[i - 1]) >> (WordBits - 4 * i)) & LimbMask;
        }
        limbs[GroupLimbs - 1] = words[GroupWords - 1] >> (WordBits - LimbBits);
    }
};

/// Column sums of limbs, the lowest first, as words: `groups` groups of them.
inline void JoinColumns(const DoubleWord* sums, int groups, Word* words) {
    DoubleWord carry = 0;
    for (; groups > 0; --groups) {
        std::array<Word, GroupLimbs> limbs;
#pragma GCC unroll 8
        for (int i = 0; i < GroupLimbs; ++i) {
            carry += sums[i];
            limbs[i] = Low(carry) & LimbMask;
            carry >>= LimbBits;
        }
#pragma GCC unroll 8
        for (int i = 0; i < GroupWords; ++i) {
            words[i] = (limbs[i] >> (4 * i)) | (limbs[i + 1] << (LimbBits - 4 * i));
        }
        sums += GroupLimbs;
        words += GroupWords;
    }
}

}  // namespace vqz::kernels
