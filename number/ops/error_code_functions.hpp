// Adapters for the functions that report a failure by an error code: each turns one call of ttmath
// into the routine of a class table. The first name among the template arguments is that of the
// debug log and of the failure report; where these differ there are two names.
#pragma once

#include "host/exceptions.hpp"
#include "host/routine.hpp"
#include "number/ops/failure_report.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// A new object with the function's value. When the function sets an error code, it raises the
/// exception that shows the argument, and returns null.
template <typename Value, FixedString Name, typename Function>
NamedRoutine FunctionOfOne(Function) {
    return MakeRoutine<Name, Failure::OneNumber>([](Object argument) -> Object {
        ttmath::ErrorCode error = ttmath::err_ok;
        const Value result = Function{}(ReadNumber<Value>(argument), &error);
        if (error == ttmath::err_ok) {
            return NewNumberObject(result);
        }
        RaiseOverflowException<Value>(Name.text, argument);
        return nullptr;
    });
}

/// A new object with the function's value. When the function sets an error code, it raises the
/// exception that shows the name alone, and returns null.
template <typename Value, FixedString FailureName, typename Function, typename... Arguments>
Object ComputeOrReportName(Function function, Arguments... arguments) {
    ttmath::ErrorCode error = ttmath::err_ok;
    const Value result = function(ReadNumber<Value>(arguments)..., &error);
    if (error == ttmath::err_ok) {
        return NewNumberObject(result);
    }
    RaiseOverflowException(FailureName.text);
    return nullptr;
}

/// A function of two numbers that reports a failure with its name alone.
template <typename Value, FixedString LogName, FixedString FailureName, typename Function>
NamedRoutine FunctionOfTwo(Function) {
    return MakeRoutine<LogName, Failure::Name, FailureName>([](Object first, Object second) {
        return ComputeOrReportName<Value, FailureName>(Function{}, first, second);
    });
}

/// A function of three numbers that reports a failure with its name alone.
template <typename Value, FixedString LogName, FixedString FailureName, typename Function>
NamedRoutine FunctionOfThree(Function) {
    return MakeRoutine<LogName, Failure::Name, FailureName>(
        [](Object first, Object second, Object third) {
            return ComputeOrReportName<Value, FailureName>(Function{}, first, second, third);
        });
}

}  // namespace vqz
