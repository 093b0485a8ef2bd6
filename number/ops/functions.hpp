// Adapters for the shared functions and constants, by shape. Each takes one call of ttmath and
// answers the routine for a class table; its template arguments are the debug-log name and the name
// that heads the failure message.
#pragma once

#include <cstddef>
#include <span>

#include "host/debug_log.hpp"
#include "host/exceptions.hpp"
#include "host/random.hpp"
#include "number/number_object.hpp"
#include "number/ops/failure_report.hpp"
#include "number/routine.hpp"

namespace vqz {

/// A new object with the function's value, or null and the one-number report when it sets an error
/// code.
template <typename Value, FixedString Name, typename Function>
NamedRoutine FunctionOfOne(Function) {
    return Named<Name, Failure::OneNumber>([](Object argument) {
        return MethodBoundaryGuard([&]() -> Object {
            LogEntry<Name>();
            ttmath::ErrorCode error = ttmath::err_ok;
            const Value result = Function{}(ReadNumber<Value>(argument), &error);
            if (error == ttmath::err_ok) {
                return NewNumberObject(result);
            }
            RaiseOverflowException<Value>(Name.text, argument);
            return nullptr;
        });
    });
}

/// A new object with the function's value, or null and the report of the name alone when it sets an
/// error code.
template <typename Value, FixedString LogName, FixedString FailureName, typename Function,
          typename... Arguments>
Object ComputeWithShortReport(Function function, Arguments... arguments) {
    return MethodBoundaryGuard([&]() -> Object {
        LogEntry<LogName>();
        ttmath::ErrorCode error = ttmath::err_ok;
        const Value result = function(ReadNumber<Value>(arguments)..., &error);
        if (error == ttmath::err_ok) {
            return NewNumberObject(result);
        }
        RaiseOverflowException(FailureName.text);
        return nullptr;
    });
}

/// A function of two numbers that reports with its name alone.
template <typename Value, FixedString LogName, FixedString FailureName, typename Function>
NamedRoutine FunctionOfTwo(Function) {
    return Named<LogName, Failure::Name, FailureName>([](Object first, Object second) {
        return ComputeWithShortReport<Value, LogName, FailureName>(Function{}, first, second);
    });
}

/// A function of three numbers that reports with its name alone.
template <typename Value, FixedString LogName, FixedString FailureName, typename Function>
NamedRoutine FunctionOfThree(Function) {
    return Named<LogName, Failure::Name, FailureName>(
        [](Object first, Object second, Object third) {
            return ComputeWithShortReport<Value, LogName, FailureName>(Function{}, first, second,
                                                                       third);
        });
}

/// A new object with the value that `set` gives. Logs nothing and has no failure.
template <typename Value, typename Setter>
NamedRoutine Constant(Setter) {
    return Unlogged([] {
        return MethodBoundaryGuard([] {
            Value value = NanValue<Value>();
            Setter{}(value);
            return NewNumberObject(value);
        });
    });
}

/// Fills the words with random bytes, lowest address first.
inline void FillWithRandomBytes(std::span<std::byte> bytes) {
    for (std::byte& byte : bytes) {
        byte = static_cast<std::byte>(RandomUInt32() & 0xFF);
    }
}

/// A positive number whose mantissa and exponent are random in every bit. It is not normalised:
/// the top bit of its mantissa may be clear.
template <typename Value, FixedString LogName>
NamedRoutine RandomNumber() {
    return Named<LogName>([] {
        return MethodBoundaryGuard([] {
            LogEntry<LogName>();
            Value value = NanValue<Value>();
            value.SetOne();
            auto& mantissa = value.mantissa.table;
            auto& exponent = value.exponent.table;
            if (DebugEnabled) {
                LogUInt("mantissaLength", sizeof mantissa);
            }
            FillWithRandomBytes(std::as_writable_bytes(std::span(mantissa)));
            if (DebugEnabled) {
                LogUInt("exponentLength", sizeof exponent);
            }
            FillWithRandomBytes(std::as_writable_bytes(std::span(exponent)));
            return NewNumberObject(value);
        });
    });
}

}  // namespace vqz
