// What a call needs of a 64-bit platform's calling convention. One source file for each convention,
// named after the platform, defines `PlatformConvention` and `StandinCallTrampoline`.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "standin/runtime/host.hpp"

namespace standin {

/// Where a convention puts arguments.
struct Convention {
    std::size_t integerRegisters;
    std::size_t realRegisters;
    /// Whether an argument takes the place of its number in both kinds of registers.
    bool sharesPlaces;
    /// Words of the stack in front of the arguments there, which belong to the routine.
    std::size_t shadowWords;
};

extern const Convention PlatformConvention;

/// The most registers for arguments of one kind, and the most shadow words, of any convention.
inline constexpr std::size_t MostRegisters = 8;
inline constexpr std::size_t MostShadowWords = 4;
/// Room for the registers that any of the conventions preserves.
inline constexpr std::size_t PreservedWords = 18;
inline constexpr std::size_t PreservedVectorWords = 20;

/// What the trampoline reads and writes, at the offsets asserted here, which its assembly contains
/// as numbers.
struct CallFrame {
    Routine routine;
    /// What the stack holds at the call, from the lowest word on.
    const std::uint64_t* stack;
    std::uint64_t stackCount;
    /// What the registers of integers hold at the call, and behind them scratch registers.
    std::array<std::uint64_t, MostRegisters> integers;
    std::array<std::uint64_t, MostRegisters> reals;
    std::uint64_t integerResult;
    std::uint64_t realResult;
    std::uint64_t stackMoved;
    /// What the registers that a routine preserves are to hold at the call, and then held after it.
    std::array<std::uint64_t, PreservedWords> preserved;
    /// Windows: what the vector registers that a routine preserves held before and after the call.
    std::array<std::uint64_t, PreservedVectorWords> vectorsBefore;
    std::array<std::uint64_t, PreservedVectorWords> vectorsAfter;
};
static_assert(offsetof(CallFrame, routine) == 0 && offsetof(CallFrame, stack) == 8);
static_assert(offsetof(CallFrame, stackCount) == 16 && offsetof(CallFrame, integers) == 24);
static_assert(offsetof(CallFrame, reals) == 88 && offsetof(CallFrame, integerResult) == 152);
static_assert(offsetof(CallFrame, realResult) == 160 && offsetof(CallFrame, stackMoved) == 168);
static_assert(offsetof(CallFrame, preserved) == 176);
static_assert(offsetof(CallFrame, vectorsBefore) == 320);
static_assert(offsetof(CallFrame, vectorsAfter) == 480);

/// Loads the registers and the stack from the frame, calls its routine and notes in the frame what
/// it returned and what became of the registers and the stack pointer. In assembly.
extern "C" void StandinCallTrampoline(CallFrame* frame) asm("standin_call_trampoline");

}  // namespace standin
