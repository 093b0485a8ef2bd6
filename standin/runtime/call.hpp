// Calling a plug-in's routine with arguments made at run time, by the convention of the platform.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "standin/runtime/host.hpp"

namespace standin {

/// In what state of the processor a routine is called. 64-bit hosts have the defaults.
struct CallConditions {
    /// How far, in bytes, the stack is off its 16-byte alignment: 0, 4, 8 or 12.
    std::uint32_t stackOffset = 0;
    /// Whether the x87 unit computes in single precision and rounds toward zero.
    bool changedControlWord = false;
};

/// What a routine did to the processor that the calling convention forbids.
struct CallFaults {
    /// The stack pointer came back elsewhere: the routine took its arguments off the stack.
    bool stackMoved = false;
    /// A register that a routine has to preserve came back changed: EBX and EDI at 32 bits, all but
    /// the frame pointer at 64.
    bool registersChanged = false;
    /// The x87 stack was left higher or lower than the result accounts for. Watched at 32 bits.
    bool floatStackUnbalanced = false;
};

struct CallResult {
    ReturnValue value;
    CallFaults faults;
};

/// The arguments of a call as words of the host; on a 32-bit host wide ones are two, the low one
/// first.
class ArgumentWords {
public:
    explicit ArgumentWords(std::span<const CallArgument> arguments) {
        for (const CallArgument& argument : arguments) {
            words_[count_++] = static_cast<std::uintptr_t>(argument.bits);
            if (sizeof(std::uintptr_t) < sizeof argument.bits &&
                (argument.passing == Passing::Wide || argument.passing == Passing::Double)) {
                words_[count_++] = static_cast<std::uintptr_t>(argument.bits >> 32U);
            }
        }
    }

    std::span<const std::uintptr_t> All() const { return {words_.data(), count_}; }

private:
    std::array<std::uintptr_t, 2 * MostArguments> words_{};
    std::size_t count_ = 0;
};

/// Calls a routine with C linkage and the platform's convention: cdecl at 32 bits, that of System
/// V, of Windows or of ARM at 64. There, what an argument leaves free in its register or stack
/// slot, and every register that holds none, is filled with noise.
CallResult CallRoutine(Routine routine, std::span<const CallArgument> arguments, ReturnKind kind,
                       CallConditions conditions);

}  // namespace standin
