// Adapters for the operations and functions that cannot fail: each turns one call of ttmath into
// the routine of a class table. Their template arguments name the routine in the debug log.
#pragma once

#include "host/routine.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// A new object with what `operation` makes of a copy of the number.
template <typename Value, FixedString LogName, typename Operation>
NamedRoutine OneNumber(Operation) {
    return MakeRoutine<LogName>([](Object number) {
        Value result = ReadNumber<Value>(number);
        Operation{}(result);
        return NewNumberObject(result);
    });
}

/// A new object with the value that `set` gives to a number.
template <typename Value, typename Setter>
NamedRoutine Constant(Setter) {
    return MakeRoutine<NotLogged>([] {
        Value value = NanValue<Value>();
        Setter{}(value);
        return NewNumberObject(value);
    });
}

/// The remainder of the division by 2, as an Integer.
template <typename Value, FixedString LogName>
NamedRoutine RemainderOfTwo() {
    return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>(
        [](Object self) { return static_cast<Integer>(ReadNumber<Value>(self).Mod2()); });
}

/// -1, 0 or 1 as one number is less than, equal to or greater than the other. There is no test for
/// NaN: it has the zero flag and compares as 0.
template <typename Value, FixedString LogName>
NamedRoutine CompareTwoNumbers() {
    return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>(
        [](Object self, Object other) -> Integer {
            const Value& left = ReadNumber<Value>(self);
            const Value& right = ReadNumber<Value>(other);
            if (left > right) {
                return 1;
            }
            return left < right ? -1 : 0;
        });
}

}  // namespace vqz
