// The predicates of numbers: routines that return a Boolean. Their template arguments name the
// routine in the debug log.
#pragma once

#include "host/routine.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// The getter of a Boolean property: whether `test` holds for the value.
template <typename Value, FixedString LogName, typename Test>
NamedRoutine TestValue(Test) {
    return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>(
        [](Object self, Integer) { return AsBooleanWord(Test{}(ReadNumber<Value>(self))); });
}

/// A method that returns whether `test` holds for two numbers.
template <typename Value, FixedString LogName, typename Test>
NamedRoutine TestTwoNumbers(Test) {
    return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>([](Object self, Object other) {
        return AsBooleanWord(Test{}(ReadNumber<Value>(self), ReadNumber<Value>(other)));
    });
}

}  // namespace vqz
