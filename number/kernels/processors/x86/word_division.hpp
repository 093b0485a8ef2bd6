// Quotients of words, with the instruction that divides them.
#pragma once

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

static_assert(WordBits == 32, "div works on 32 bits here");

/// (high, low) / divisor, for high < divisor. There is no operator for it: the language would
/// divide two double words, which is a library call on a 32-bit processor.
inline Word DivideWords(Word high, Word low, Word divisor, Word& remainder) {
    Word quotient = 0;
    asm("divl %4" : "=a"(quotient), "=d"(remainder) : "a"(low), "d"(high), "rm"(divisor) : "cc");
    return quotient;
}

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
