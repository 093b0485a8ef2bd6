// Adapters for the operations that report a failure by a carry: each turns one call of ttmath into
// the routine of a class table. The first name among the template arguments is that of the debug
// log and of the failure report; where these differ there are two names.
//
// Operands never change: the call works on a copy of the first one.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "host/routine.hpp"
#include "number/ops/failure_report.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// A new object with the result of `operation` on a copy of the number. When that returns a carry,
/// it raises the exception that shows the number, and returns null.
template <typename Value, FixedString LogName, typename Operation>
NamedRoutine OneNumberOrCarry(Operation) {
    return MakeRoutine<LogName, Failure::OneNumber>([](Object number) -> Object {
        Value result = ReadNumber<Value>(number);
        if (Operation{}(result) == 0) {
            return NewNumberObject(result);
        }
        RaiseOverflowException<Value>(LogName.text, number);
        return nullptr;
    });
}

/// A new object with the result of `operation` on copies of two numbers. When that returns a carry,
/// it raises the exception that shows both numbers, and returns null.
template <typename Value, FixedString Name, typename Operation>
Object ComputeWithTwoNumbers(Object self, Object other, Operation operation) {
    Value result = ReadNumber<Value>(self);
    if (operation(result, ReadNumber<Value>(other)) == 0) {
        return NewNumberObject(result);
    }
    if (DebugEnabled) {
        // The first of two such lines; `RaiseOverflowException` writes the second.
        LogMessage("RaiseOverflowException");
    }
    RaiseOverflowException(Name.text, FindNumber<Value>(self), FindNumber<Value>(other));
    return nullptr;
}

/// A method or operator of two numbers. An `operation` with a third parameter makes a method with
/// a `round` argument.
template <typename Value, FixedString Name, typename Operation>
NamedRoutine TwoNumbersOrCarry(Operation) {
    if constexpr (std::is_invocable_v<Operation, Value&, const Value&, bool>) {
        return MakeRoutine<Name, Failure::TwoNumbers>(
            [](Object self, Object other, BooleanWord round) {
                return ComputeWithTwoNumbers<Value, Name>(
                    self, other, [round](Value& result, const Value& operand) {
                        return Operation{}(result, operand, IsTrue(round));
                    });
            });
    } else {
        return MakeRoutine<Name, Failure::TwoNumbers>([](Object self, Object other) {
            return ComputeWithTwoNumbers<Value, Name>(self, other, Operation{});
        });
    }
}

/// The integer part of a quotient. The exception of a failure shows the quotient as ttmath left it,
/// not the receiver.
template <typename Value, FixedString LogName>
NamedRoutine IntegerDivide() {
    return MakeRoutine<LogName, Failure::TwoNumbers>([](Object self, Object other) -> Object {
        Value quotient = ReadNumber<Value>(self);
        const auto carry = quotient.Div(ReadNumber<Value>(other), true);
        quotient.SkipFraction();
        if (carry == 0) {
            return NewNumberObject(quotient);
        }
        RaiseOverflowException(LogName.text, &quotient, FindNumber<Value>(other));
        return nullptr;
    });
}

/// Multiplies a number by a machine integer and returns ttmath's carry.
template <typename Value>
ttmath::uint MultiplyBy(Value& me, std::uint32_t factor) {
    return me.MulUInt(factor);
}

template <typename Value>
ttmath::uint MultiplyBy(Value& me, std::int32_t factor) {
    if (factor != std::numeric_limits<std::int32_t>::min()) {
        return me.MulInt(factor);
    }
    // MulInt negates a negative factor, which overflows for this one: its magnitude is taken here.
    if (!me.IsNan()) {
        me.ChangeSign();
    }
    return me.MulUInt(std::uint32_t{1} << 31);
}

/// A factor beyond 32 bits is made a number first.
template <typename Value>
ttmath::uint MultiplyBy(Value& me, std::int64_t factor) {
    if (std::in_range<std::int32_t>(factor)) {
        return MultiplyBy(me, static_cast<std::int32_t>(factor));
    }
    return me.Mul(NumberFrom<Value>(factor), true);
}

/// A product with a machine integer. The exception of a failure shows the product as ttmath left
/// it, not the receiver.
template <typename Value, FixedString LogName, FixedString FailureName, typename Host>
NamedRoutine MultiplyByInteger() {
    return MakeRoutine<LogName, Failure::TwoNumbers, FailureName>(
        [](Object self, Host factor) -> Object {
            Value product = ReadNumber<Value>(self);
            if (MultiplyBy(product, factor) == 0) {
                return NewNumberObject(product);
            }
            const auto shownFactor = NumberFrom<Value>(factor);
            RaiseOverflowException(FailureName.text, &product, &shownFactor);
            return nullptr;
        });
}

}  // namespace vqz
