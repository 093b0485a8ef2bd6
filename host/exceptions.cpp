#include "host/exceptions.hpp"

#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>

#include "host/debug_log.hpp"
#include "host/references.hpp"
#include "host/string_building.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {
namespace {

using Buffer = std::unique_ptr<char, decltype(&platform::FreeBuffer)>;

Buffer AllocateBuffer(std::size_t size) {
    const bool possible = size > 0 && size <= INT32_MAX;
    return {possible ? static_cast<char*>(platform::AllocateZeroed(size)) : nullptr,
            &platform::FreeBuffer};
}

struct ExceptionMapping {
    const char* messageHead;
    const char* hostClass;
};

template <typename... Types>
bool IsAnyOf(const std::exception& exception) {
    return ((dynamic_cast<const Types*>(&exception) != nullptr) || ...);
}

/// The first match counts. The second test for std::underflow_error never matches, since the first
/// one comes before it: so a failed cast is reported as a plain "C++ Exception", and stays so.
ExceptionMapping MapException(const std::exception& exception) {
    if (IsAnyOf<std::bad_alloc>(exception)) {
        return {"Failed to allocate memory", "OutOfMemoryException"};
    }
    if (IsAnyOf<std::range_error, std::out_of_range>(exception)) {
        return {"C++ reports range error", "OutOfBoundsException"};
    }
    if (IsAnyOf<std::overflow_error>(exception)) {
        return {"C++ reports overflow error", "OutOfBoundsException"};
    }
    if (IsAnyOf<std::underflow_error>(exception)) {
        return {"C++ reports underflow error", "OutOfBoundsException"};
    }
    if (IsAnyOf<std::underflow_error>(exception)) {
        // GCOVR_EXCL_START: the same test comes before this one
        return {"C++ Illegal Cast Exception", "IllegalCastException"};
        // GCOVR_EXCL_STOP
    }
    return {"C++ Exception", "RuntimeException"};
}

}  // namespace

void RaiseHostExceptionWithString(const char* className, host_interface::String message) {
    ObjectReference exception(host::PluginNewInstance(className));
    if (!exception) {
        exception = ObjectReference(host::PluginNewInstance("RuntimeException"));
    }
    if (!exception) {
        return;
    }
    host::REALSetPropValueString(exception.Get(), "Message", message);
    host::REALSetPropValueInteger(exception.Get(), "ErrorNumber", 0);
    host::RuntimeRaiseException(exception.Get());
}

void RaiseHostException(const char* className, const char* message) {
    const StringReference text = BuildFromCString(message, HostTextEncoding::Utf8);
    RaiseHostExceptionWithString(className, text.Get());
}

void RaiseOverflowException(const char* operationName) {
    if (DebugEnabled) {
        LogMessage("RaiseOverflowException");
    }
    const StringReference suffix = BuildFromCString(OperationFailed, HostTextEncoding::Ascii);
    const StringReference head = BuildFromCString(operationName, HostTextEncoding::Ascii);
    const StringReference message(host::RuntimeAddString(head.Get(), suffix.Get()));
    RaiseHostExceptionWithString(NumberErrorClass, message.Get());
}

void RaiseParameterOutOfBounds(std::int64_t value, std::int64_t minimum, std::int64_t end,
                               const char* parameterName, const char* methodName) {
    const char* parameter = parameterName == nullptr ? "?" : parameterName;
    const char* method = methodName == nullptr ? "" : methodName;

    // 200 characters hold the sentence and three 64-bit numbers.
    const std::size_t size = std::strlen(parameter) + std::strlen(method) + 200;
    const Buffer message = AllocateBuffer(size);
    if (!message) {
        RaiseHostException("OutOfBoundsException", "Out of Bounds");
        return;
    }
    std::snprintf(message.get(), size,
                  "The parameter %s %s%s is too %s. Range is %lld to %lld, but value is %lld.",
                  parameter, *method == '\0' ? "" : "to method ", method,
                  value < minimum ? "small" : "big", static_cast<long long>(minimum),
                  static_cast<long long>(end - 1), static_cast<long long>(value));
    RaiseHostException("OutOfBoundsException", message.get());
}

void HandleStdException(const std::exception& exception) {
    const ExceptionMapping mapping = MapException(exception);
    const char* what = exception.what();
    const std::size_t whatLength = what == nullptr ? 0 : std::strlen(what);

    // There may be no memory left: a message of usual length needs none, and a longer one is then
    // cut off instead of lost.
    char usualMessage[512];
    const std::size_t size = std::strlen(mapping.messageHead) + whatLength + sizeof ": ";
    const Buffer longMessage = AllocateBuffer(size > sizeof usualMessage ? size : 0);
    char* message = longMessage ? longMessage.get() : usualMessage;
    const std::size_t capacity = longMessage ? size : sizeof usualMessage;
    if (whatLength > 0) {
        std::snprintf(message, capacity, "%s: %s", mapping.messageHead, what);
    } else {
        std::snprintf(message, capacity, "%s.", mapping.messageHead);
    }
    RaiseHostException(mapping.hostClass, message);
}

void HandleUnknownException() {
    if (DebugEnabled) {
        LogMessage("Unnamed C++ Exception.");
    }
    RaiseHostException("RuntimeException", "Sorry, but there was an unnamed C++ Exception.");
}

}  // namespace vqz
