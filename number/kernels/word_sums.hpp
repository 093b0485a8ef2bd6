// Sums and differences of rows of words.
#pragma once

#include BIGNUMBER_PROCESSOR_CARRY_CHAINS
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// result = left + right, each of W words; all three may be the same words. Returns the carry.
template <int W>
bool AddWords(const Word* left, const Word* right, Word* result) {
    static_assert(W % ChainWords == 0);
    Word carry = 0;
    for (int i = 0; i < W; i += ChainWords) {
        AddChain(left + i, right + i, result + i, carry);
    }
    return carry != 0;
}

/// result = left - right, each of W words; all three may be the same words. Returns the borrow.
template <int W>
bool SubtractWords(const Word* left, const Word* right, Word* result) {
    static_assert(W % ChainWords == 0);
    Word borrow = 0;
    for (int i = 0; i < W; i += ChainWords) {
        SubtractChain(left + i, right + i, result + i, borrow);
    }
    return borrow != 0;
}

}  // namespace vqz::kernels
