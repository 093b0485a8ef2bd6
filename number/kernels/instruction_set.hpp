// Which instructions the kernels use.
//
// What takes time on long mantissas is written once and compiled twice: into files that end with
// _sse2 for every processor of the platform, and into files that end with _avx2 for those that have
// AVX2. One computation never uses both: some processors run the older instructions several times
// slower once a wide register was used, and in 32-bit code nothing that a program may do ends this.
//
// In the files for AVX2 the compiler may use it in any function, and the linker takes one of
// several copies of an inline function. So inline functions that these files share with others live
// in an inline namespace named after the instructions, or are templates on Lanes.
#pragma once

#ifdef __AVX2__
#define BIGNUMBER_INSTRUCTION_SET avx2
#else
#define BIGNUMBER_INSTRUCTION_SET sse2
#endif

namespace vqz::kernels {

/// Whether the processor has AVX2 and the system knows its registers. (It may be asked before it is
/// known, and is false then.)
extern bool avx2Chosen;

}  // namespace vqz::kernels
