// Sums and differences of rows of words. The compiler keeps a carry in a register between two
// words; these keep it where the processor does.
#pragma once

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// Words between which the carry stays in the processor's flag.
inline constexpr int ChainWords = 8;

#define BIGNUMBER_CHAIN_LINK(OPERATION, OFFSET)                \
    "movl " OFFSET "(%[left]), %%eax\n\t" OPERATION " " OFFSET \
    "(%[right]), %%eax\n\t"                                    \
    "movl %%eax, " OFFSET "(%[result])\n\t"

// The carry is 0 or all ones between chains: adding 1 puts it into the flag, subtracting the
// register from itself takes it out.
#define BIGNUMBER_CHAIN(OPERATION)                                                              \
    asm volatile(                                                                               \
        "addl $1, %[carry]\n\t" BIGNUMBER_CHAIN_LINK(OPERATION, "0")                            \
            BIGNUMBER_CHAIN_LINK(OPERATION, "4") BIGNUMBER_CHAIN_LINK(OPERATION, "8")           \
                BIGNUMBER_CHAIN_LINK(OPERATION, "12") BIGNUMBER_CHAIN_LINK(OPERATION, "16")     \
                    BIGNUMBER_CHAIN_LINK(OPERATION, "20") BIGNUMBER_CHAIN_LINK(OPERATION, "24") \
                        BIGNUMBER_CHAIN_LINK(OPERATION, "28") "sbbl %[carry], %[carry]"         \
        : [carry] "+&r"(carry)                                                                  \
        : [left] "r"(left), [right] "r"(right), [result] "r"(result)                            \
        : "eax", "cc", "memory")

/// result = left + right, of W words, which may all be the same. Answers the carry.
template <int W>
// The assembly writes there. NOLINTNEXTLINE(readability-non-const-parameter)
bool AddWords(const Word* left, const Word* right, Word* result) {
    static_assert(W % ChainWords == 0);
    Word carry = 0;
    for (int i = 0; i < W; i += ChainWords) {
        BIGNUMBER_CHAIN("adcl");
        left += ChainWords;
        right += ChainWords;
        result += ChainWords;
    }
    return carry != 0;
}

/// result = left - right, of W words, which may all be the same. Answers the borrow.
template <int W>
// The assembly writes there. NOLINTNEXTLINE(readability-non-const-parameter)
bool SubtractWords(const Word* left, const Word* right, Word* result) {
    static_assert(W % ChainWords == 0);
    Word carry = 0;
    for (int i = 0; i < W; i += ChainWords) {
        BIGNUMBER_CHAIN("sbbl");
        left += ChainWords;
        right += ChainWords;
        result += ChainWords;
    }
    return carry != 0;
}

#undef BIGNUMBER_CHAIN
#undef BIGNUMBER_CHAIN_LINK

}  // namespace vqz::kernels
