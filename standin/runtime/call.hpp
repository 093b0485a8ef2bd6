// Calling a plug-in's routine with argument words made at run time.
#pragma once

#include <cstdint>
#include <span>

#include "standin/runtime/host.hpp"

namespace standin {

/// In what state of the processor a routine is called.
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
    /// EBX or EDI came back changed.
    bool registersChanged = false;
    /// The x87 stack was left higher or lower than the result accounts for.
    bool floatStackUnbalanced = false;
};

struct CallResult {
    ReturnValue value;
    CallFaults faults;
};

/// Calls a routine with C linkage and the cdecl convention.
CallResult CallRoutine(Routine routine, std::span<const std::uintptr_t> words, ReturnKind kind,
                       CallConditions conditions);

}  // namespace standin
