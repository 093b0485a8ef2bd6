#include "number/kernels/instruction_set.hpp"

namespace vqz::kernels {

constinit bool avx2Chosen = false;

namespace {

/// The compiler's own look at cpuid and xgetbv: the processor has the instructions, and the system
/// saves the registers.
[[maybe_unused]] const bool Chosen = [] {
#ifndef BIGNUMBER_KERNELS_SSE2_ONLY
    __builtin_cpu_init();
    avx2Chosen = __builtin_cpu_supports("avx2") != 0;
#endif
    return true;
}();

}  // namespace
}  // namespace vqz::kernels
