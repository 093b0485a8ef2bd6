// Quotients of words.
#pragma once

#include "number/kernels/instruction_set.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// (high, low) / divisor, for high < divisor. A register holds the dividend, and the language's own
/// division is an instruction.
inline Word DivideWords(Word high, Word low, Word divisor, Word& remainder) {
    const DoubleWord dividend = Join(high, low);
    const DoubleWord quotient = dividend / divisor;
    remainder = Low(dividend - quotient * divisor);
    return Low(quotient);
}

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
