// The one instruction set that vectors are computed with, NEON.
#pragma once

#include "number/kernels/vector_kernels.hpp"

namespace vqz::kernels {

namespace neon {
extern const VectorKernels Kernels;
}

/// Those that run on every such processor.
inline constexpr const VectorKernels& BasicVectorKernels = neon::Kernels;

/// The best ones that run here: there are no others.
inline const VectorKernels& BestVectorKernels() {
    return BasicVectorKernels;
}

}  // namespace vqz::kernels
