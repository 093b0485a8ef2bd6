// Host exceptions, and the guard that keeps C++ exceptions inside the plug-in.
//
// Raising does not unwind the stack: the host throws the exception when the routine has returned to
// it. So code that raises returns right after, with its neutral result: null, 0 or nothing.
#pragma once

#include <cstdint>
#include <exception>
#include <type_traits>

#include "interface/host_interface.hpp"

namespace vqz {

/// The plug-in's own exception class, for number operations that failed.
inline constexpr const char* NumberErrorClass = "BigNumberErrorExceptionVQZ";

/// What follows the operation's name in a message that shows no numbers.
inline constexpr const char* OperationFailed = " operation failed.";

/// Raises a new instance of the host exception class of that name, with a UTF-8 message; null gives
/// an empty message. When the host makes no instance of the class, a "RuntimeException" takes its
/// place; when it makes none of that either, nothing is raised.
void RaiseHostException(const char* className, const char* message);

/// The same with a message that is a host string already. The caller keeps its reference.
void RaiseHostExceptionWithString(const char* className, host_interface::String message);

/// Raises `BigNumberErrorExceptionVQZ` for a failed operation of any kind, not just an overflow:
/// "NAME operation failed."
void RaiseOverflowException(const char* operationName);

/// Raises "OutOfBoundsException" for a value outside of `minimum` to `end` - 1. A null parameter
/// name is shown as "?"; a null method name is left out.
void RaiseParameterOutOfBounds(std::int64_t value, std::int64_t minimum, std::int64_t end,
                               const char* parameterName, const char* methodName);

/// Raises the host exception that a caught C++ exception is mapped to.
void HandleStdException(const std::exception& exception);

/// Raises the host exception for a caught C++ exception that is no std::exception.
void HandleUnknownException();

/// Calls `body` and returns its result. A C++ exception that leaves it becomes a host exception,
/// and the result is the neutral one: null, 0 or nothing. What `body` changed before stays changed.
///
/// The routines for the host get this from host/routine.hpp.
template <typename Body>
auto MethodBoundaryGuard(Body&& body) noexcept -> std::invoke_result_t<Body> {
    using Result = std::invoke_result_t<Body>;
    try {
        return body();
    } catch (const std::exception& exception) {
        HandleStdException(exception);
    } catch (...) {
        HandleUnknownException();
    }
    return Result();
}

}  // namespace vqz
