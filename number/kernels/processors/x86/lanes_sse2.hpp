// The vectors of SSE2, which every processor of the platform has.
#pragma once

#include "number/kernels/processors/x86/pair.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// Two lanes of 64 bits.
using Lanes = Pair;

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
