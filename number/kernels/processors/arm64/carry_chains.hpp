// Sums and differences of eight words. The compiler keeps a carry in a register
// between two words; these keep it where the processor does, and take two words at a time.
#pragma once

#include <cstdint>
#include <cstring>

#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(WordBits == 32, "the chain adds two words of 32 bits at a time");

/// Words between which the carry stays in the processor's flag.
inline constexpr int ChainWords = 8;

/// The words of a chain as the instructions take them.
struct ChainRegisters {
    std::uint64_t r[ChainWords / 2];

    explicit ChainRegisters(const Word* words) { std::memcpy(r, words, sizeof(r)); }
    void StoreTo(Word* words) const { std::memcpy(words, r, sizeof(r)); }
};

// SET_FLAG makes the processor's flag of the carry, and GET_CARRY the carry of it.
#define BIGNUMBER_CHAIN(SET_FLAG, OPERATION, GET_CARRY)                                            \
    ChainRegisters sums(left);                                                                     \
    const ChainRegisters others(right);                                                            \
    asm(SET_FLAG "\n\t" OPERATION " %[s0], %[s0], %[o0]\n\t" OPERATION                             \
                 " %[s1], %[s1], %[o1]\n\t" OPERATION " %[s2], %[s2], %[o2]\n\t" OPERATION         \
                 " %[s3], %[s3], %[o3]\n\t" GET_CARRY                                              \
        : [s0] "+&r"(sums.r[0]), [s1] "+&r"(sums.r[1]), [s2] "+&r"(sums.r[2]),                     \
          [s3] "+&r"(sums.r[3]), [carry] "+&r"(carry)                                              \
        :                                                                                          \
        [o0] "r"(others.r[0]), [o1] "r"(others.r[1]), [o2] "r"(others.r[2]), [o3] "r"(others.r[3]) \
        : "cc");                                                                                   \
    sums.StoreTo(result)

/// result = left + right + carry, of ChainWords words, which may all be the same. The carry, before
/// and after it, is 0 or a word of ones.
inline void AddChain(const Word* left, const Word* right, Word* result, Word& carry) {
    BIGNUMBER_CHAIN("cmn %w[carry], #1", "adcs", "csetm %w[carry], cs");
}

/// result = left - right - carry, likewise. The processor's flag is the opposite of a borrow.
inline void SubtractChain(const Word* left, const Word* right, Word* result, Word& carry) {
    BIGNUMBER_CHAIN("cmp wzr, %w[carry]", "sbcs", "csetm %w[carry], cc");
}

#undef BIGNUMBER_CHAIN

}  // namespace vqz::kernels
