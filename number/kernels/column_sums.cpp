#include "number/kernels/column_sums.hpp"

namespace vqz::kernels {

constinit ColumnSumsFunction* columnSums = ColumnSumsSse2;
constinit bool avx2Chosen = false;

namespace {

/// The compiler's own look at cpuid and xgetbv: the processor has the instructions, and the system
/// saves the registers.
[[maybe_unused]] const bool Chosen = [] {
    __builtin_cpu_init();
#ifndef BIGNUMBER_KERNELS_SSE2_ONLY
    if (__builtin_cpu_supports("avx2")) {
        columnSums = ColumnSumsAvx2;
        avx2Chosen = true;
    }
#endif
    return true;
}();

}  // namespace
}  // namespace vqz::kernels
