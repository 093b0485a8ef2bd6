// The constructors without a conversion, and the destructor. Their template arguments name the
// routine in the debug log.
#pragma once

#include "host/routine.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// "Constructor": the value is 0.
template <typename Value, FixedString LogName>
NamedRoutine ConstructEmpty() {
    return MakeRoutine<LogName>([](Object self) { StoreNumberValue(self, ZeroValue<Value>()); });
}

/// "Constructor(other)": a copy; a missing `other` gives a NaN.
template <typename Value, FixedString LogName>
NamedRoutine ConstructCopy() {
    return MakeRoutine<LogName>(
        [](Object self, Object other) { StoreNumberValue(self, ReadNumber<Value>(other)); });
}

/// The destructor; a second call does nothing.
template <typename Value, FixedString LogName>
NamedRoutine Destruct() {
    return MakeRoutine<LogName>([](Object self) { DropNumberValue<Value>(self); });
}

}  // namespace vqz
