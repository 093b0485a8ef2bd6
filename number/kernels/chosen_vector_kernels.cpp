#include BIGNUMBER_PROCESSOR_INSTRUCTION_SETS
#include "number/kernels/vector_kernels.hpp"

namespace vqz::kernels {

constinit const VectorKernels* vectorKernels = &BasicVectorKernels;

#ifndef BIGNUMBER_KERNELS_BASIC_ONLY
namespace {

[[maybe_unused]] const bool Chosen = [] {
    vectorKernels = &BestVectorKernels();
    return true;
}();

}  // namespace
#endif
}  // namespace vqz::kernels
