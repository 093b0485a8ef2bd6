// The vectors of NEON, which every processor of the platform has.
#pragma once

#include "number/kernels/processors/arm64/pair.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {

/// Two lanes of 64 bits.
using Lanes = Pair;

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
