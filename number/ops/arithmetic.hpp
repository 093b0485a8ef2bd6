// Adapters for number operations, by shape. Each takes one call of ttmath and answers the routine
// for a class table; its template arguments are the debug-log name and the name that heads the
// failure message. Operands are never changed: an operation works on a copy.
#pragma once

#include <type_traits>

#include "host/exceptions.hpp"
#include "number/number_object.hpp"
#include "number/ops/failure_report.hpp"
#include "number/routine.hpp"

namespace vqz {

/// A new object with what `operation` makes of a copy of the object's value. Cannot fail.
template <typename Value, FixedString LogName, typename Operation>
Routine OneNumber(Operation) {
    return AsRoutine([](Object self) {
        return MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            Value result = ReadNumber<Value>(self);
            Operation{}(result);
            return NewNumberObject(result);
        });
    });
}

/// A new object with the result of `operation` on copies of two numbers, or null and the two-number
/// report when it answers a carry.
template <typename Value, FixedString LogName, FixedString FailureName, typename Operation>
Object ComputeWithTwoNumbers(Object self, Object other, Operation operation) {
    return MethodBoundaryGuard([&]() -> Object {
        LogEntry<LogName>();
        Value result = ReadNumber<Value>(self);
        if (operation(result, ReadNumber<Value>(other)) == 0) {
            return NewNumberObject(result);
        }
        if (DebugEnabled) {
            LogMessage("RaiseOverflowException");
        }
        RaiseOverflowException(FailureName.text, FindNumber<Value>(self), FindNumber<Value>(other));
        return nullptr;
    });
}

/// A method or operator of two numbers. An `operation` that takes a third argument makes a method
/// with a `round` argument.
template <typename Value, FixedString LogName, FixedString FailureName = LogName,
          typename Operation>
Routine TwoNumbers(Operation) {
    if constexpr (std::is_invocable_v<Operation, Value&, const Value&, bool>) {
        return AsRoutine([](Object self, Object other, BooleanWord round) {
            return ComputeWithTwoNumbers<Value, LogName, FailureName>(
                self, other, [round](Value& result, const Value& operand) {
                    return Operation{}(result, operand, IsTrue(round));
                });
        });
    } else {
        return AsRoutine([](Object self, Object other) {
            return ComputeWithTwoNumbers<Value, LogName, FailureName>(self, other, Operation{});
        });
    }
}

/// -1, 0 or 1 as one number is less than, equal to or greater than the other. NaN is not looked
/// for: it carries the zero flag and compares as 0. Carries no guard: nothing here can throw.
template <typename Value, FixedString LogName>
Routine CompareTwoNumbers() {
    return AsRoutine([](Object self, Object other) -> Integer {
        LogEntry<LogName>();
        const Value& left = ReadNumber<Value>(self);
        const Value& right = ReadNumber<Value>(other);
        if (left > right) {
            return 1;
        }
        return left < right ? -1 : 0;
    });
}

}  // namespace vqz
