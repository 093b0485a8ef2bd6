// In which namespace inline functions are that are compiled for more than one instruction set.
//
// What takes time on long mantissas is written once and compiled for each instruction set of the
// processor: vector_kernels.cpp is. One computation never uses two of them: some x86 processors run
// the older instructions several times slower once a wide register was used, and in 32-bit code
// nothing that a program may do ends this.
//
// In the files for a newer instruction set the compiler may use it in any function, and the linker
// takes one of several copies of an inline function. So the inline functions that these files share
// with others live in an inline namespace named after the instruction set.
#pragma once

// The build defines it for the files that it compiles for one.
#ifndef BIGNUMBER_INSTRUCTION_SET
#define BIGNUMBER_INSTRUCTION_SET common
#endif
