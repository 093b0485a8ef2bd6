// The exception of a failed number operation whose message shows the numbers that it failed with.
#pragma once

#include <initializer_list>
#include <span>
#include <string>

#include "host/debug_log.hpp"
#include "host/exceptions.hpp"
#include "host/strings.hpp"
#include "number/value/number_object.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {

/// What follows the operation's name in a message that shows one number, or two of them.
inline constexpr const char* FailedWithNumber = " operation failed with number ";
inline constexpr const char* FailedWithNumbers = " operation failed with numbers ";

/// A number's text as messages show it: all digits in base 10; "nil" for a null pointer.
template <typename Value>
std::string ReportText(const Value* value) {
    if (value == nullptr) {
        return "nil";
    }
    std::string text;
    value->ToString(text, ttmath::Conv());
    return text;
}

/// Raises `BigNumberErrorExceptionVQZ` with a message that is made of the pieces in their order.
inline void RaiseNumberError(std::initializer_list<const char*> pieces) {
    StringReference message = CString2RB(*pieces.begin(), HostTextEncoding::Ascii);
    for (const char* piece : std::span(pieces).subspan(1)) {
        const StringReference next = CString2RB(piece, HostTextEncoding::Ascii);
        message = StringReference(host::RuntimeAddString(message.Get(), next.Get()));
    }
    RaiseHostExceptionWithString(NumberErrorClass, message.Get());
}

/// Raises `BigNumberErrorExceptionVQZ` for a failed operation of any kind, not just an overflow:
/// "NAME operation failed with number A." A null object is shown as "nil".
template <typename Value>
void RaiseOverflowException(const char* operationName, Object number) {
    if (DebugEnabled) {
        // The log shows two levels of this name here; the expected logs have both lines.
        LogMessage("RaiseOverflowException");
        LogMessage("RaiseOverflowException");
    }
    const std::string text = ReportText(FindNumber<Value>(number));
    RaiseNumberError({operationName, FailedWithNumber, text.c_str(), "."});
}

/// The same for two numbers: "NAME operation failed with numbers A and B." A null value is shown as
/// "nil".
template <typename Value>
void RaiseOverflowException(const char* operationName, const Value* first, const Value* second) {
    if (DebugEnabled) {
        LogMessage("RaiseOverflowException");
    }
    const std::string firstText = ReportText(first);
    const std::string secondText = ReportText(second);
    RaiseNumberError(
        {operationName, FailedWithNumbers, firstText.c_str(), " and ", secondText.c_str(), "."});
}

}  // namespace vqz
