// Adapters for number operations, by shape. Each takes one call of ttmath and answers the routine
// for a class table. The name among its template arguments is what the debug log shows and what
// heads the failure message; where the two differ there are two names. Operands are never changed:
// an operation works on a copy.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "host/exceptions.hpp"
#include "number/conversions.hpp"
#include "number/number_object.hpp"
#include "number/ops/failure_report.hpp"
#include "number/routine.hpp"

namespace vqz {

/// A new object with what `operation` makes of a copy of the object's value. Cannot fail.
template <typename Value, FixedString LogName, typename Operation>
NamedRoutine OneNumber(Operation) {
    return Named<LogName>([](Object self) {
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
template <typename Value, FixedString Name, typename Operation>
Object ComputeWithTwoNumbers(Object self, Object other, Operation operation) {
    return MethodBoundaryGuard([&]() -> Object {
        LogEntry<Name>();
        Value result = ReadNumber<Value>(self);
        if (operation(result, ReadNumber<Value>(other)) == 0) {
            return NewNumberObject(result);
        }
        if (DebugEnabled) {
            LogMessage("RaiseOverflowException");
        }
        RaiseOverflowException(Name.text, FindNumber<Value>(self), FindNumber<Value>(other));
        return nullptr;
    });
}

/// A method or operator of two numbers. An `operation` that takes a third argument makes a method
/// with a `round` argument.
template <typename Value, FixedString Name, typename Operation>
NamedRoutine TwoNumbers(Operation) {
    if constexpr (std::is_invocable_v<Operation, Value&, const Value&, bool>) {
        return Named<Name, Failure::TwoNumbers>([](Object self, Object other, BooleanWord round) {
            return ComputeWithTwoNumbers<Value, Name>(
                self, other, [round](Value& result, const Value& operand) {
                    return Operation{}(result, operand, IsTrue(round));
                });
        });
    } else {
        return Named<Name, Failure::TwoNumbers>([](Object self, Object other) {
            return ComputeWithTwoNumbers<Value, Name>(self, other, Operation{});
        });
    }
}

/// A new object with the result of `operation` on a copy of the number, or null and the one-number
/// report when it answers a carry or an error code.
template <typename Value, FixedString LogName, typename Operation>
NamedRoutine OneNumberOrFailure(Operation) {
    return Named<LogName, Failure::OneNumber>([](Object number) {
        return MethodBoundaryGuard([&]() -> Object {
            LogEntry<LogName>();
            Value result = ReadNumber<Value>(number);
            if (Operation{}(result) == 0) {
                return NewNumberObject(result);
            }
            RaiseOverflowException<Value>(LogName.text, number);
            return nullptr;
        });
    });
}

/// The integer part of a quotient. A failure reports the quotient as it was left, not the receiver.
template <typename Value, FixedString LogName>
NamedRoutine IntegerDivide() {
    return Named<LogName, Failure::TwoNumbers>([](Object self, Object other) {
        return MethodBoundaryGuard([&]() -> Object {
            LogEntry<LogName>();
            Value quotient = ReadNumber<Value>(self);
            const auto carry = quotient.Div(ReadNumber<Value>(other), true);
            quotient.SkipFraction();
            if (carry == 0) {
                return NewNumberObject(quotient);
            }
            RaiseOverflowException(LogName.text, &quotient, FindNumber<Value>(other));
            return nullptr;
        });
    });
}

template <typename Value>
ttmath::uint MultiplyBy(Value& me, std::uint32_t factor) {
    return me.MulUInt(factor);
}

template <typename Value>
ttmath::uint MultiplyBy(Value& me, std::int32_t factor) {
    if (factor != std::numeric_limits<std::int32_t>::min()) {
        return me.MulInt(factor);
    }
    // ttmath negates the factor, which this one does not survive: its magnitude is taken instead.
    if (!me.IsNan()) {
        me.ChangeSign();
    }
    return me.MulUInt(std::uint32_t{1} << 31);
}

/// A product with a machine integer. A failure reports the product as it was left, not the
/// receiver.
template <typename Value, FixedString LogName, FixedString FailureName, typename Host>
NamedRoutine MultiplyByInteger() {
    return Named<LogName, Failure::TwoNumbers, FailureName>([](Object self, Host factor) {
        return MethodBoundaryGuard([&]() -> Object {
            LogEntry<LogName>();
            Value product = ReadNumber<Value>(self);
            if (MultiplyBy(product, factor) == 0) {
                return NewNumberObject(product);
            }
            const auto shownFactor = NumberFrom<Value>(factor);
            RaiseOverflowException(FailureName.text, &product, &shownFactor);
            return nullptr;
        });
    });
}

/// The remainder of the division by 2, as an Integer. Carries no guard: nothing here can throw.
template <typename Value, FixedString LogName>
NamedRoutine RemainderOfTwo() {
    return Named<LogName>([](Object self) -> Integer {
        LogEntry<LogName>();
        return static_cast<Integer>(ReadNumber<Value>(self).Mod2());
    });
}

/// -1, 0 or 1 as one number is less than, equal to or greater than the other. NaN is not looked
/// for: it carries the zero flag and compares as 0. Carries no guard: nothing here can throw.
template <typename Value, FixedString LogName>
NamedRoutine CompareTwoNumbers() {
    return Named<LogName>([](Object self, Object other) -> Integer {
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
