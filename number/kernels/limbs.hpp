// Limbs: the form in which long mantissas are multiplied.
//
// A word has 32 bits, and the product of two words fills a 64-bit lane of a vector register to its
// last bit: adding products would need a carry after each. So a mantissa is cut into limbs of 28
// bits, each alone in a lane of 64 bits. Products of two limbs have 56 bits, and 2^8 of them can be
// added in a lane before it overflows. The column sums of schoolbook multiplication then need no
// carry at all; carries are made once, when the sums become words again.
//
// Limbs begin at the mantissa's top bit, the highest limb first: a mantissa is a fraction between 0
// and 1, and limb i weighs 2^(-28 (i + 1)). Words stay in ttmath's order, the lowest first.
//
//    words   |    W-1    |    W-2    |  ...  |    W-7    |       7 words of 32 bits
//    limbs   |    0    |    1    |    2    |   ...  | 7  |    = 8 limbs of 28 bits = a group
//
// Cutting and joining take two limbs at once: they are 7 bytes, wherever the words begin.
#pragma once

#include <bit>
#include <cstdint>

#include BIGNUMBER_PROCESSOR_PAIR
#include "number/kernels/instruction_set.hpp"
#include "number/kernels/vector_traits.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

static_assert(VectorPair<Pair>, "vector_traits.hpp says what it lacks");

/// A limb in the form that the multiplication takes: in the low 28 bits of a lane.
using Limb = std::uint64_t;

inline constexpr int LimbBits = 28;
inline constexpr Word LimbMask = (Word{1} << LimbBits) - 1;
inline constexpr int ByteBits = 8;
inline constexpr int PairBytes = 2 * LimbBits / ByteBits;
inline constexpr int GroupPairs = 4;
inline constexpr int GroupLimbs = 2 * GroupPairs;
inline constexpr int GroupWords = GroupLimbs * LimbBits / WordBits;
static_assert(GroupLimbs * LimbBits == GroupWords * WordBits);
static_assert(std::endian::native == std::endian::little);

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

/// Up to `Words` words as limbs, with the padding that column sums need around a factor. They may
/// begin with `Lead` zero bits, which divides the fraction by 2^Lead.
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
        StorePair<Lead>(limbs, Pair::ShiftLeftBy(Load(end - bytes), below));
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
    using Vector = Pair::Vector;

    static constexpr int Capacity = 2 * (Words * int{sizeof(Word)} / PairBytes + 1);
    static_assert(Lead <= ByteBits);

    alignas(16) Limb lanes_[Padding + Capacity + Padding];
    int count_;

    /// Clears a padding. (As a call it would take as long as cutting up a mantissa of 8 words.)
    static void Pad(Limb* limbs) {
        static_assert(Padding % 2 == 0);
#pragma GCC unroll 16
        for (int i = 0; i < Padding; i += 2) {
            Pair::StoreAligned(limbs + i, Vector{});
        }
    }

    static Vector Load(const unsigned char* bytes) {
        return Pair::LoadLow(bytes);
    }

    /// Two limbs, the lower one of which begins `Shift` bits above the lowest of `bits`.
    template <int Shift>
    static void StorePair(Limb* limbs, Vector bits) {
        const Vector pair =
            Pair::JoinLow(Pair::ShiftRight<Shift + LimbBits>(bits), Pair::ShiftRight<Shift>(bits));
        Pair::StoreAligned(limbs, Pair::And(pair, Pair::Both(LimbMask)));
    }
};

/// Turns columns of limbs into words. `columns` holds the most significant one first; column k from
/// the end counts 2^(28 k). The words end before `wordsEnd`. Returns the carry out of the most
/// significant column.
///
/// Without `AreSums`, a column must be at most 2^35 + 2^28: then two columns and a carry fit in a
/// lane of 64 bits. With `AreSums`, columns are sums of products below 2^63. They are made small
/// first: each keeps its low 28 bits and gets the upper bits of the column below it. The first
/// column must be 0, as its upper bits would have nowhere to go; so must be the column behind the
/// last group, which is read too.
///
/// A step joins two columns to 56 bits and stores them as 8 bytes; the next step, for the two
/// columns above, overwrites the eighth byte.
template <bool AreSums>
inline DoubleWord JoinColumns(const DoubleWord* columns, int groups, Word* wordsEnd) {
    using Vector = Pair::Vector;
    const Vector mask = Pair::Both(LimbMask);
    Vector carry = {};
    const auto join = [&](int pair) __attribute__((always_inline)) {
        Vector limbs = Pair::Load(columns + 2 * pair);
        if constexpr (AreSums) {
            limbs = Pair::Add(Pair::And(limbs, mask),
                              Pair::ShiftRight<LimbBits>(Pair::Load(columns + 2 * pair + 1)));
        }
        const Vector lower = Pair::Add(carry, Pair::High(limbs));
        const Vector bits = Pair::Add(Pair::ShiftLeft<LimbBits>(limbs), lower);
        carry = Pair::ShiftRight<2 * LimbBits>(bits);
        return bits;
    };
    auto* bytes = reinterpret_cast<unsigned char*>(wordsEnd) - groups * GroupPairs * PairBytes;
    for (int pair = groups * GroupPairs - 1; pair > 0; --pair, bytes += PairBytes) {
        Pair::StoreLow(bytes, join(pair));
    }
    const Vector bits = join(0);
    Pair::StoreLowest(bytes, bits);
    Pair::StoreLowest(wordsEnd - 1, Pair::ShiftRight<2 * LimbBits - WordBits>(bits));
    DoubleWord above = 0;
    Pair::StoreLow(&above, carry);
    return above;
}

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
