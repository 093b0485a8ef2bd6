// The namespace of inline functions that are compiled for more than one instruction set.
//
// The code that works on vectors, vector_kernels.cpp, is written once and
// compiled for each instruction set of the processor. One computation never uses two of them: some
// x86 processors run the older instructions several times slower once a wide register was used, and
// in 32-bit code a program has no way to end this state.
//
// In the files for a newer instruction set the compiler may use it in any function, and the linker
// takes one of several copies of an inline function. So what these files instantiate lives in an
// inline namespace named after the instruction set. The smallest functions of words.hpp and of the
// standard library do not; they are inlined in optimised builds. A test of the library makes sure
// that no object for a newer instruction set leaves the linker a function without the set's name.
#pragma once

// The build defines it for the files that it compiles for a certain instruction set.
#ifndef BIGNUMBER_INSTRUCTION_SET
#define BIGNUMBER_INSTRUCTION_SET common
#endif
