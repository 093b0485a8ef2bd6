// Access to the bytes of a number as they are in memory. Only these routines refuse an object
// without a value.
#pragma once

#include <cstdint>
#include <cstring>

#include "host/byte_view.hpp"
#include "host/debug_log.hpp"
#include "host/exceptions.hpp"
#include "host/memory_blocks.hpp"
#include "host/routine.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// The object's value, to be read or written in place. Without one it raises "Not initialized" and
/// returns null.
template <typename Value>
Value* RequireNumber(Object self) {
    Value* value = self == nullptr ? nullptr : InstanceOf<Value>(self).ref;
    if (value == nullptr) {
        if (DebugEnabled) {
            LogText("me->ref", "is nil");
        }
        RaiseHostException("NilObjectException", "Not initialized");
    }
    return value;
}

/// Makes a routine of this file. Those only copy bytes, and what they call to raise exceptions or
/// to make a MemoryBlock lets no C++ exception out.
template <typename Access>
NamedRoutine MakeRawAccess(Access access) {
    return MakeUnguardedRoutine<Unguarded::NothingThrows, NotLogged, Failure::Other>(access);
}

/// Getter of the bytes of one part, the mantissa or the exponent: least significant word first.
template <typename Value, auto Part>
NamedRoutine GetPart() {
    return MakeRawAccess([](Object self, Integer) -> Object {
        const Value* value = RequireNumber<Value>(self);
        if (value == nullptr) {
            return nullptr;
        }
        const auto& words = (value->*Part).table;
        return REALBuildMemoryblock(words, sizeof words).Release();
    });
}

/// Setter of the bytes of one part, in place. The block has to be of the part's size; its content
/// may be anything. A block of another size is reported under `MethodName`.
template <typename Value, auto Part, FixedString MethodName>
NamedRoutine SetPart() {
    return MakeRawAccess([](Object self, Integer, Object block) {
        Value* value = RequireNumber<Value>(self);
        if (value == nullptr) {
            return;
        }
        if (block == nullptr) {
            if (DebugEnabled) {
                LogText("mem", "is nil");
            }
            RaiseHostException("NilObjectException", "MemoryBlock is nil");
            return;
        }
        auto& words = (value->*Part).table;
        const ByteView bytes(block);
        if (bytes.length() != static_cast<Integer>(sizeof words)) {
            RaiseParameterOutOfBounds(bytes.length(), sizeof words, sizeof words + 1,
                                      "MemoryBlock.Size", MethodName.text);
            return;
        }
        std::memcpy(words, bytes.data(), sizeof words);
    });
}

/// Getter of the flag byte.
template <typename Value>
NamedRoutine GetFlags() {
    return MakeRawAccess([](Object self, Integer) -> Integer {
        const Value* value = RequireNumber<Value>(self);
        return value == nullptr ? 0 : value->info;
    });
}

/// Setter of the flag byte: the low 8 bits, in place.
template <typename Value>
NamedRoutine SetFlags() {
    return MakeRawAccess([](Object self, Integer, Integer flags) {
        if (Value* value = RequireNumber<Value>(self)) {
            value->info = static_cast<unsigned char>(flags & 0xFF);
        }
    });
}

}  // namespace vqz
