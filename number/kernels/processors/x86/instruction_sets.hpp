// The instruction sets that vectors are computed with, SSE2 and AVX2, and which of them is taken.
#pragma once

#include "number/kernels/vector_kernels.hpp"

namespace vqz::kernels {

namespace sse2 {
extern const VectorKernels Kernels;
}
namespace avx2 {
extern const VectorKernels Kernels;
}

/// Those that run on every such processor.
inline constexpr const VectorKernels& BasicVectorKernels = sse2::Kernels;

/// The best ones that run here. The compiler's built-in test reads cpuid and xgetbv: AVX2 counts
/// only if the processor has the instructions and the system saves the registers.
inline const VectorKernels& BestVectorKernels() {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0 ? avx2::Kernels : sse2::Kernels;
}

}  // namespace vqz::kernels
