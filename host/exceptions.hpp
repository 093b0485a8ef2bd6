// Host exceptions, and the guard that keeps native ones inside the plug-in.
//
// Raising does not unwind: the host delivers the exception when the routine returns to it. So
// whoever raises returns right after, with its neutral result.
#pragma once

#include <cstdint>
#include <exception>
#include <type_traits>

#include "interface/host_interface.hpp"

namespace vqz {

/// The plug-in's own exception class, for number operations that failed.
inline constexpr const char* NumberErrorClass = "BigNumberErrorExceptionVQZ";

/// What follows the operation's name in the message that has nothing else.
inline constexpr const char* OperationFailed = " operation failed.";

/// Raises a new instance of a host exception class, by name, with a UTF-8 message; null gives an
/// empty message. A class that cannot be made is replaced by "RuntimeException"; when that fails
/// too, nothing is raised.
void RaiseHostException(const char* className, const char* message);

/// The same with a message that is a host string already and stays the caller's.
void RaiseHostExceptionWithString(const char* className, host_interface::String message);

/// Raises `BigNumberErrorExceptionVQZ` for a failed operation of any kind, not just an overflow:
/// "NAME operation failed."
void RaiseOverflowException(const char* operationName);

/// Raises "OutOfBoundsException" for a value outside of `minimum` to `end` - 1. A null parameter
/// name prints "?", a null method name nothing.
void RaiseParameterOutOfBounds(std::int64_t value, std::int64_t minimum, std::int64_t end,
                               const char* parameterName, const char* methodName);

/// Raises the host exception that stands for a caught native one.
void HandleStdException(const std::exception& exception);

/// Raises the host exception that stands for a native one of no known type.
void HandleUnknownException();

/// Runs the body of a routine that the host calls. A native exception becomes a host exception and
/// the result is the neutral one: null, 0 or nothing. What the body changed before stays changed.
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
