// Sums and differences of eight words. The compiler keeps a carry in a register
// between two words; these keep it where the processor does, and take two words at a time.
#pragma once

#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(WordBits == 32, "the chain adds two words of 32 bits at a time");

/// Words between which the carry stays in the processor's flag.
inline constexpr int ChainWords = 8;

#define BIGNUMBER_CHAIN_LINK(OPERATION, OFFSET)                \
    "movq " OFFSET "(%[left]), %%rax\n\t" OPERATION " " OFFSET \
    "(%[right]), %%rax\n\t"                                    \
    "movq %%rax, " OFFSET "(%[result])\n\t"

// Adding 1 to a carry of all ones puts it into the flag, subtracting the register from itself takes
// it out.
#define BIGNUMBER_CHAIN(OPERATION)                                                              \
    asm volatile("addl $1, %[carry]\n\t" BIGNUMBER_CHAIN_LINK(OPERATION, "0")                   \
                     BIGNUMBER_CHAIN_LINK(OPERATION, "8") BIGNUMBER_CHAIN_LINK(OPERATION, "16") \
                         BIGNUMBER_CHAIN_LINK(OPERATION, "24") "sbbl %[carry], %[carry]"        \
                 : [carry] "+&r"(carry)                                                         \
                 : [left] "r"(left), [right] "r"(right), [result] "r"(result)                   \
                 : "rax", "cc", "memory")

/// result = left + right + carry, each of ChainWords words; all three may be the same words. The
/// carry, before and after it, is 0 or a word of ones.
// The assembly writes there. NOLINTNEXTLINE(readability-non-const-parameter)
inline void AddChain(const Word* left, const Word* right, Word* result, Word& carry) {
    BIGNUMBER_CHAIN("adcq");
}

/// result = left - right - carry, likewise.
// The assembly writes there. NOLINTNEXTLINE(readability-non-const-parameter)
inline void SubtractChain(const Word* left, const Word* right, Word* result, Word& carry) {
    BIGNUMBER_CHAIN("sbbq");
}

#undef BIGNUMBER_CHAIN
#undef BIGNUMBER_CHAIN_LINK

}  // namespace vqz::kernels
