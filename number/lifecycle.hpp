// Making and ending number objects, and the plain tests on a value. Each function here answers the
// routine for a class table; names in its template arguments are what the debug log shows.
#pragma once

#include "host/exceptions.hpp"
#include "number/number_object.hpp"
#include "number/routine.hpp"

namespace vqz {

/// "Constructor": the value is 0.
template <typename Value, FixedString LogName>
NamedRoutine ConstructEmpty() {
    return Named<LogName>([](Object self) {
        MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            StoreNumberValue(self, ZeroValue<Value>());
        });
    });
}

/// "Constructor(other)": a copy; a missing `other` gives a NaN.
template <typename Value, FixedString LogName>
NamedRoutine ConstructCopy() {
    return Named<LogName>([](Object self, Object other) {
        MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            StoreNumberValue(self, ReadNumber<Value>(other));
        });
    });
}

/// The destructor; a second call does nothing.
template <typename Value, FixedString LogName>
Routine Destruct() {
    return AsRoutine([](Object self) {
        MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            DropNumberValue<Value>(self);
        });
    });
}

/// The getter of a Boolean property that `test` answers from the value. Nothing here can throw, so
/// it carries no guard.
template <typename Value, FixedString LogName, typename Test>
NamedRoutine TestValue(Test) {
    return Named<LogName>([](Object self, Integer) -> BooleanWord {
        LogEntry<LogName>();
        return AsBooleanWord(Test{}(ReadNumber<Value>(self)));
    });
}

/// A method that answers whether `test` holds of two numbers. Carries no guard, like `TestValue`.
template <typename Value, FixedString LogName, typename Test>
NamedRoutine TestTwoNumbers(Test) {
    return Named<LogName>([](Object self, Object other) -> BooleanWord {
        LogEntry<LogName>();
        return AsBooleanWord(Test{}(ReadNumber<Value>(self), ReadNumber<Value>(other)));
    });
}

}  // namespace vqz
